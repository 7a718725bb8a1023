#include "ui/frm_graph.h"

#include <QActionGroup>
#include <QColorDialog>
#include <QMenuBar>
#include <QScreen>
#include <QShortcut>
#include <algorithm>
#include <array>

#include "graph/spoken_graph.h"
#include "ui/graph_place.h"
#include "ui/named_action.h"
#include "ui/pointer.h"
#include "ui/screen_room.h"
#include "ui/surface_painter.h"
#include "ui/text.h"

namespace numerello {

namespace {

constexpr int kTwipsPerPixel = 15;
constexpr int kNormalSide = 8000 / kTwipsPerPixel;
constexpr int kSmallSide = (4000 + kTwipsPerPixel / 2) / kTwipsPerPixel;

constexpr int kBesideEdge = 24;  ///< from the right edge of the frame, when the window opens

/// What lies on the drawing keeps away from its edges.
constexpr int kMargin = 8;
/// The list leaves the axis and the numeral of its quadrant free.
constexpr double kListWidth = 0.45;
constexpr double kListHeight = 0.2;

}  // namespace

FrmGraph::FrmGraph(const Problem& problem, GraphSettings& settings, QWidget* frame)
    : QMainWindow(frame, Qt::Window), settings(settings), graph(problem, settings) {
    setObjectName(QStringLiteral("frmGraph"));
    setAttribute(Qt::WA_DeleteOnClose);
    setContextMenuPolicy(Qt::NoContextMenu);
    MakeMenus();
    MakeControls();
    MakeShortcuts();

    const bool fine = settings.GraphQuality != kHighSpeed;
    Command("mnuToggleZoomButtons").setChecked(true);
    Command("mnuToggleCoordinates").setChecked(true);
    Command("mnuGraphQuadrant").setChecked(graph.ShowsQuadrants());
    Command(fine ? "mnuGraphHighQuality" : "mnuGraphHighSpeed").setChecked(true);
    SetPrintEnabled(false);
    Redraw();
}

void FrmGraph::MakeMenus() {
    struct MenuRow {
        const char* name;
        const char* caption;
    };
    /// An entry without a name is a separator.
    struct EntryRow {
        const char* menu;
        const char* name = "";
        const char* caption = "";
        void (FrmGraph::*procedure)() = nullptr;
        const char* shortcuts = "";
        bool ticks = false;
    };
    constexpr auto kMenus = std::to_array<MenuRow>({
        {"mnuGraphFile", "&File"},
        {"mnuGraphOptions", "&Options"},
        {"mnuGraphSettings", "&Change Colors"},
        {"mnuGraphWindow", "&Window"},
    });
    constexpr auto kEntries = std::to_array<EntryRow>({
        {"mnuGraphFile", "mnuGraphPrint", "&Print", &FrmGraph::PrintAsked, "Ctrl+P"},
        {"mnuGraphFile", "mnuGraphPrintSetup", "Print &Setup", &FrmGraph::PrintSetupAsked},
        {"mnuGraphFile"},
        {"mnuGraphFile", "mnuGraphExit", "&Exit", &FrmGraph::mnuGraphExit_Click, "Esc"},

        {"mnuGraphOptions", "mnuToggleZoomButtons", "Toggle &Zoom Buttons",
         &FrmGraph::mnuToggleZoomButtons_Click, "", true},
        {"mnuGraphOptions", "mnuToggleCoordinates", "Toggle &Coordinates",
         &FrmGraph::mnuToggleCoordinates_Click, "", true},
        {"mnuGraphOptions", "mnuGraphQuadrant", "Toggle &Quadrants",
         &FrmGraph::mnuGraphQuadrant_Click, "", true},
        {"mnuGraphOptions"},
        {"mnuGraphOptions", "mnuGraphHighQuality", "Highest &Quality",
         &FrmGraph::mnuGraphHighQuality_Click, "", true},
        {"mnuGraphOptions", "mnuGraphHighSpeed", "Highest &Speed",
         &FrmGraph::mnuGraphHighSpeed_Click, "", true},

        {"mnuGraphSettings", "mnuGraphColor", "&Line Color", &FrmGraph::mnuGraphColor_Click},
        {"mnuGraphSettings", "mnuGraphGridColor", "&Grid Color",
         &FrmGraph::mnuGraphGridColor_Click},
        {"mnuGraphSettings", "mnuGraphDefault", "&Default Colors",
         &FrmGraph::mnuGraphDefault_Click},

        {"mnuGraphWindow", "mnuGraphSmall", "&Small", &FrmGraph::mnuGraphSmall_Click},
        {"mnuGraphWindow", "mnuGraphNormal", "&Normal", &FrmGraph::mnuGraphNormal_Click},
        {"mnuGraphWindow", "mnuGraphMax", "&Large", &FrmGraph::mnuGraphMax_Click},
        {"mnuGraphWindow"},
        {"mnuGraphWindow", "mnuGraphZoomIn", "Zoom &In", &FrmGraph::Command1_Click,
         "Ctrl++; Ctrl+="},
        {"mnuGraphWindow", "mnuGraphZoomOut", "Zoom &Out", &FrmGraph::Command2_Click, "Ctrl+-"},
    });
    QMap<QString, QMenu*> menus;
    for (const MenuRow& row : kMenus) {
        QMenu* menu = menuBar()->addMenu(QString::fromUtf8(row.caption));
        menu->setObjectName(QString::fromUtf8(row.name));
        menus.insert(menu->objectName(), menu);
    }
    for (const EntryRow& row : kEntries) {
        QMenu& menu = *menus.value(QLatin1String(row.menu));
        if (row.procedure == nullptr) {
            menu.addSeparator();
            continue;
        }
        QAction* action = menu.addAction(QString::fromUtf8(row.caption));
        action->setObjectName(QString::fromUtf8(row.name));
        action->setShortcuts(QKeySequence::listFromString(QString::fromUtf8(row.shortcuts)));
        action->setCheckable(row.ticks);
        connect(action, &QAction::triggered, this,
                [this, procedure = row.procedure] { (this->*procedure)(); });
        commands.insert(action->objectName(), action);
    }
    auto* oneOfTwo = new QActionGroup(this);
    oneOfTwo->addAction(&Command("mnuGraphHighQuality"));
    oneOfTwo->addAction(&Command("mnuGraphHighSpeed"));
}

QAction& FrmGraph::Command(const char* name) const {
    return NamedAction(commands, name);
}

void FrmGraph::MakeControls() {
    picture = new GraphView(this);
    picture->setObjectName(QStringLiteral("Picture1"));
    setCentralWidget(picture);
    zoomIn = new ZoomButton(QStringLiteral("zoomin"), QStringLiteral("Zoom In"), picture);
    zoomIn->setObjectName(QStringLiteral("Command1"));
    zoomOut = new ZoomButton(QStringLiteral("zoomout"), QStringLiteral("Zoom Out"), picture);
    zoomOut->setObjectName(QStringLiteral("Command2"));
    list = new CoordinateView(picture);
    list->setObjectName(QStringLiteral("List1"));
    connect(picture, &GraphView::Resized, this, &FrmGraph::PlaceControls);
    connect(zoomIn, &QAbstractButton::clicked, this, &FrmGraph::Command1_Click);
    connect(zoomOut, &QAbstractButton::clicked, this, &FrmGraph::Command2_Click);
}

/// Keys of the frame that hold here too, without an entry in a menu.
void FrmGraph::MakeShortcuts() {
    connect(new QShortcut(Qt::Key_F1, this), &QShortcut::activated, this, &FrmGraph::HelpAsked);
    connect(new QShortcut(Qt::CTRL | Qt::Key_Q, this), &QShortcut::activated, this,
            &FrmGraph::ExitAsked);
}

void FrmGraph::Open(const QRect& written) {
    ResizeDrawing(kNormalSide);
    if (parentWidget() != nullptr) {
        // Solutions stand at the left of their sheet.
        QRect place = geometry();
        place.moveCenter(parentWidget()->geometry().center());
        place.moveRight(parentWidget()->geometry().right() - kBesideEdge);
        setGeometry(PlaceOfGraph(place, written, parentWidget()->screen()->availableGeometry()));
    }
    show();
    picture->setFocus();
}

void FrmGraph::ShowRequest(const Problem& problem) {
    graph.TakeRequest(problem);
    Redraw();
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
}

void FrmGraph::SetPrintEnabled(bool enabled) {
    Command("mnuGraphPrint").setEnabled(enabled);
    Command("mnuGraphPrintSetup").setEnabled(enabled);
}

void FrmGraph::Redraw() {
    const PointerGuard busy(Qt::WaitCursor);
    graph.Redraw();
    setWindowTitle(ToQString(graph.TopicTitle()));
    picture->Show(graph.Picture(), ToQString(SpokenGraph(graph)));
    list->Show(graph.ThePlot());
    zoomIn->setEnabled(graph.Range().CanZoomIn());
    Command("mnuGraphZoomIn").setEnabled(graph.Range().CanZoomIn());
    zoomOut->setEnabled(graph.Range().CanZoomOut());
    Command("mnuGraphZoomOut").setEnabled(graph.Range().CanZoomOut());
    PlaceControls();
}

/// The list stands against the right edge, the buttons in a row at the left.
void FrmGraph::PlaceControls() {
    const QSize whole = picture->size();
    zoomIn->move(kMargin, kMargin);
    zoomOut->move(zoomIn->geometry().right() + 1 + kMargin, kMargin);
    const QSize most(qRound(whole.width() * kListWidth), qRound(whole.height() * kListHeight));
    list->FitInto(most);
    list->move(whole.width() - list->width(), whole.height() - list->height() - kMargin);
}

/// The window stays centred where it was.
void FrmGraph::ResizeDrawing(int side) {
    const QPoint centre = geometry().center();
    if ((windowState() & (Qt::WindowMaximized | Qt::WindowFullScreen)) != 0) {
        showNormal();
    }
    const QRect free = screen()->availableGeometry();
    const int above = menuBar()->sizeHint().height();
    const int fits = std::min({side, free.width(), free.height() - above - kCaptionHeight});
    QRect place(0, 0, fits, fits + above);
    place.moveCenter(centre);
    setGeometry(Within(place, free));
}

void FrmGraph::ChooseColor(Color& color, const QString& title) {
    QColorDialog dialog(ToQColor(color), this);
    dialog.setObjectName(QStringLiteral("CommonDialog1"));
    dialog.setWindowTitle(title);
    if (dialog.exec() == QDialog::Accepted) {
        color = FromQColor(dialog.currentColor());
        Redraw();
    }
}

void FrmGraph::Command1_Click() {
    graph.Command1_Click();
    Redraw();
}

void FrmGraph::Command2_Click() {
    graph.Command2_Click();
    Redraw();
}

void FrmGraph::mnuToggleZoomButtons_Click() {
    const bool shown = Command("mnuToggleZoomButtons").isChecked();
    zoomIn->setVisible(shown);
    zoomOut->setVisible(shown);
}

void FrmGraph::mnuToggleCoordinates_Click() {
    list->setVisible(Command("mnuToggleCoordinates").isChecked());
}

void FrmGraph::mnuGraphQuadrant_Click() {
    graph.ShowQuadrants(Command("mnuGraphQuadrant").isChecked());
    Redraw();
}

void FrmGraph::mnuGraphHighQuality_Click() {
    settings.GraphQuality = kHighQuality;
    Redraw();
}

void FrmGraph::mnuGraphHighSpeed_Click() {
    settings.GraphQuality = kHighSpeed;
    Redraw();
}

void FrmGraph::mnuGraphColor_Click() {
    ChooseColor(settings.GraphLineColor, QStringLiteral("Line Color"));
}

void FrmGraph::mnuGraphGridColor_Click() {
    ChooseColor(settings.GraphGridColor, QStringLiteral("Grid Color"));
}

void FrmGraph::mnuGraphDefault_Click() {
    settings.GraphLineColor = GraphSettings::kDefaultLineColor;
    settings.GraphGridColor = GraphSettings::kDefaultGridColor;
    Redraw();
}

void FrmGraph::mnuGraphExit_Click() {
    close();
}

void FrmGraph::mnuGraphSmall_Click() {
    ResizeDrawing(kSmallSide);
}

void FrmGraph::mnuGraphNormal_Click() {
    ResizeDrawing(kNormalSide);
}

void FrmGraph::mnuGraphMax_Click() {
    showMaximized();
}

}  // namespace numerello
