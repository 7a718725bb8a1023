#include "ui/frm_graph.h"

#include <QActionGroup>
#include <QColorDialog>
#include <QMenuBar>
#include <QScreen>
#include <algorithm>
#include <array>

#include "graph/spoken_graph.h"
#include "ui/pointer.h"
#include "ui/surface_painter.h"
#include "ui/text.h"

namespace numerello {

namespace {

constexpr int kTwipsPerPixel = 15;
constexpr int kNormalSide = 8000 / kTwipsPerPixel;
constexpr int kSmallSide = (4000 + kTwipsPerPixel / 2) / kTwipsPerPixel;

constexpr int kBesideEdge = 24;  ///< from the right edge of the frame, when the window opens

constexpr int kCaptionHeight = 32;  ///< what the desktop adds above a window, at a guess

/// What lies on the drawing keeps away from its edges.
constexpr int kMargin = 8;
/// The list leaves the axis and the numeral of its quadrant free.
constexpr double kListWidth = 0.45;
constexpr double kListHeight = 0.2;

struct Entry {
    const char* name;
    const char* caption;
    const char* shortcuts = "";
    bool ticks = false;
};

/// An entry without a caption is a separator.
constexpr Entry kSeparator{"", ""};

struct Menu {
    const char* name;
    const char* caption;
    std::array<Entry, 7> entries;
    int count;  ///< of the entries, separators included
};

constexpr std::array kMenus{
    Menu{"mnuGraphFile",
         "&File",
         {Entry{"mnuGraphPrint", "&Print", "Ctrl+P"}, Entry{"mnuGraphPrintSetup", "Print &Setup"},
          kSeparator, Entry{"mnuGraphExit", "&Exit", "Esc"}},
         4},
    Menu{"mnuGraphOptions",
         "&Options",
         {Entry{"mnuToggleZoomButtons", "Toggle &Zoom Buttons", "", true},
          Entry{"mnuToggleCoordinates", "Toggle &Coordinates", "", true},
          Entry{"mnuGraphQuadrant", "Toggle &Quadrants", "", true}, kSeparator,
          Entry{"mnuGraphHighQuality", "Highest &Quality", "", true},
          Entry{"mnuGraphHighSpeed", "Highest &Speed", "", true}},
         6},
    Menu{"mnuGraphSettings",
         "&Change Colors",
         {Entry{"mnuGraphColor", "&Line Color"}, Entry{"mnuGraphGridColor", "&Grid Color"},
          Entry{"mnuGraphDefault", "&Default Colors"}},
         3},
    Menu{"mnuGraphWindow",
         "&Window",
         {Entry{"mnuGraphSmall", "&Small"}, Entry{"mnuGraphNormal", "&Normal"},
          Entry{"mnuGraphMax", "&Large"}, kSeparator,
          Entry{"mnuGraphZoomIn", "Zoom &In", "Ctrl++; Ctrl+="},
          Entry{"mnuGraphZoomOut", "Zoom &Out", "Ctrl+-"}},
         6},
};

Color ColorOf(const QColor& color) {
    return static_cast<Color>(color.red() | color.green() << 8 | color.blue() << 16);
}

/// The place, moved into the screen as far as it must.
QRect OnScreen(QRect place, const QRect& screen) {
    place.moveRight(std::min(place.right(), screen.right()));
    place.moveBottom(std::min(place.bottom(), screen.bottom()));
    place.moveLeft(std::max(place.left(), screen.left()));
    place.moveTop(std::max(place.top(), screen.top()));
    return place;
}

}  // namespace

FrmGraph::FrmGraph(const Problem& problem, GraphSettings& settings, QWidget* frame)
    : QMainWindow(frame, Qt::Window), settings(settings), graph(problem, settings) {
    setObjectName(QStringLiteral("frmGraph"));
    setAttribute(Qt::WA_DeleteOnClose);
    setContextMenuPolicy(Qt::NoContextMenu);
    MakeMenus();
    MakeControls();

    const bool fine = settings.GraphQuality != kHighSpeed;
    Command("mnuToggleZoomButtons")->setChecked(true);
    Command("mnuToggleCoordinates")->setChecked(true);
    Command("mnuGraphQuadrant")->setChecked(graph.ShowsQuadrants());
    Command(fine ? "mnuGraphHighQuality" : "mnuGraphHighSpeed")->setChecked(true);
    SetPrintEnabled(false);
    OnTrigger("mnuGraphPrint", &FrmGraph::PrintAsked);
    OnTrigger("mnuGraphPrintSetup", &FrmGraph::PrintSetupAsked);
    connect(Command("mnuGraphExit"), &QAction::triggered, this, &QWidget::close);
    OnTrigger("mnuToggleZoomButtons", &FrmGraph::mnuToggleZoomButtons_Click);
    OnTrigger("mnuToggleCoordinates", &FrmGraph::mnuToggleCoordinates_Click);
    OnTrigger("mnuGraphQuadrant", &FrmGraph::mnuGraphQuadrant_Click);
    OnTrigger("mnuGraphHighQuality", &FrmGraph::mnuGraphHighQuality_Click);
    OnTrigger("mnuGraphHighSpeed", &FrmGraph::mnuGraphHighSpeed_Click);
    OnTrigger("mnuGraphColor", &FrmGraph::mnuGraphColor_Click);
    OnTrigger("mnuGraphGridColor", &FrmGraph::mnuGraphGridColor_Click);
    OnTrigger("mnuGraphDefault", &FrmGraph::mnuGraphDefault_Click);
    OnTrigger("mnuGraphSmall", &FrmGraph::mnuGraphSmall_Click);
    OnTrigger("mnuGraphNormal", &FrmGraph::mnuGraphNormal_Click);
    OnTrigger("mnuGraphMax", &FrmGraph::mnuGraphMax_Click);
    OnTrigger("mnuGraphZoomIn", &FrmGraph::Command1_Click);
    OnTrigger("mnuGraphZoomOut", &FrmGraph::Command2_Click);
    Redraw();
}

void FrmGraph::MakeMenus() {
    for (const Menu& menu : kMenus) {
        QMenu* made = menuBar()->addMenu(QString::fromUtf8(menu.caption));
        made->setObjectName(QString::fromUtf8(menu.name));
        for (int i = 0; i < menu.count; ++i) {
            const Entry& entry = menu.entries[static_cast<std::size_t>(i)];
            if (*entry.name == '\0') {
                made->addSeparator();
                continue;
            }
            QAction* action = made->addAction(QString::fromUtf8(entry.caption));
            action->setObjectName(QString::fromUtf8(entry.name));
            action->setShortcuts(QKeySequence::listFromString(QString::fromUtf8(entry.shortcuts)));
            action->setCheckable(entry.ticks);
            commands.insert(action->objectName(), action);
        }
    }
    auto* oneOfTwo = new QActionGroup(this);
    oneOfTwo->addAction(Command("mnuGraphHighQuality"));
    oneOfTwo->addAction(Command("mnuGraphHighSpeed"));
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

void FrmGraph::OnTrigger(const char* name, Procedure procedure) {
    connect(Command(name), &QAction::triggered, this, [this, procedure] { (this->*procedure)(); });
}

void FrmGraph::Open() {
    ResizeDrawing(kNormalSide);
    if (parentWidget() != nullptr) {
        // Solutions stand at the left of their sheet.
        QRect place = geometry();
        place.moveCenter(parentWidget()->geometry().center());
        place.moveRight(parentWidget()->geometry().right() - kBesideEdge);
        setGeometry(OnScreen(place, parentWidget()->screen()->availableGeometry()));
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
    Command("mnuGraphPrint")->setEnabled(enabled);
    Command("mnuGraphPrintSetup")->setEnabled(enabled);
}

void FrmGraph::Redraw() {
    const PointerGuard busy(Qt::WaitCursor);
    graph.Redraw();
    setWindowTitle(ToQString(graph.TopicTitle()));
    picture->Show(graph.Picture(), ToQString(SpokenGraph(graph)));
    list->Show(graph.ThePlot());
    zoomIn->setEnabled(graph.Range().CanZoomIn());
    Command("mnuGraphZoomIn")->setEnabled(graph.Range().CanZoomIn());
    zoomOut->setEnabled(graph.Range().CanZoomOut());
    Command("mnuGraphZoomOut")->setEnabled(graph.Range().CanZoomOut());
    PlaceControls();
}

/// The list stands against the right edge, the buttons in a row at the left.
void FrmGraph::PlaceControls() {
    const QSize whole = picture->size();
    zoomIn->move(kMargin, kMargin);
    zoomOut->move(zoomIn->geometry().right() + 1 + kMargin, kMargin);
    const QSize most(qRound(whole.width() * kListWidth), qRound(whole.height() * kListHeight));
    list->resize(list->SizeWithin(most));
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
    setGeometry(OnScreen(place, free));
}

void FrmGraph::ChooseColor(Color& color, const QString& title) {
    QColorDialog dialog(ToQColor(color), this);
    dialog.setObjectName(QStringLiteral("CommonDialog1"));
    dialog.setWindowTitle(title);
    if (dialog.exec() == QDialog::Accepted) {
        color = ColorOf(dialog.currentColor());
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
    const bool shown = Command("mnuToggleZoomButtons")->isChecked();
    zoomIn->setVisible(shown);
    zoomOut->setVisible(shown);
}

void FrmGraph::mnuToggleCoordinates_Click() {
    list->setVisible(Command("mnuToggleCoordinates")->isChecked());
}

void FrmGraph::mnuGraphQuadrant_Click() {
    graph.ShowQuadrants(Command("mnuGraphQuadrant")->isChecked());
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
