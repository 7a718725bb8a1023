#include "ui/frame_commands.h"

#include <QMenu>
#include <QMenuBar>
#include <QToolBar>
#include <QToolButton>
#include <stdexcept>
#include <utility>

#include "core/text.h"
#include "ui/artwork.h"
#include "ui/named_action.h"

namespace numerello {

namespace {

constexpr int kPictureSize = 48;

bool IsEmpty(const char* text) {
    return *text == '\0';
}

bool IsOpen(OpenWhen open, const EntryControls& controls, bool onSheet, bool takesKeys) {
    switch (open) {
        case OpenWhen::Always:
            break;
        case OpenWhen::OnSheet:
            return onSheet;
        case OpenWhen::TakesKeys:
            return onSheet && takesKeys;
        case OpenWhen::Solvable:
            return onSheet && controls.SolveEnabled;
        case OpenWhen::Saveable:
            return onSheet && controls.SaveEnabled;
        case OpenWhen::Printable:
            return onSheet && controls.PrintEnabled;
        case OpenWhen::Graphable:
            return onSheet && controls.GraphEnabled;
    }
    return true;
}

}  // namespace

FrameCommands::FrameCommands(QMainWindow& frame) : frame(frame) {
    MakeMenus();
    MakePopUps();
    MakeToolbar();
}

void FrameCommands::MakeMenus() {
    QMap<QString, QMenu*> menus;
    for (const MenuRow& row : MenuRows()) {
        auto* menu = new QMenu(QString::fromUtf8(row.caption), frame.menuBar());
        menu->setObjectName(QString::fromUtf8(row.name));
        menus.insert(menu->objectName(), menu);
        if (row.inMenuBar) {
            frame.menuBar()->addMenu(menu);
        }
    }
    for (const CommandRow& row : CommandRows()) {
        QMenu& menu = *menus.value(QLatin1String(row.menu));
        if (IsEmpty(row.name)) {
            menu.addSeparator();
        } else if (IsEmpty(row.caption)) {
            menu.addMenu(menus.value(QLatin1String(row.name)));
        } else {
            MakeCommand(row, menu);
        }
    }
}

void FrameCommands::MakeCommand(const CommandRow& row, QMenu& menu) {
    QAction* action = menu.addAction(QString::fromUtf8(row.caption));
    action->setObjectName(QString::fromUtf8(row.name));
    action->setShortcut(QKeySequence(QString::fromUtf8(row.shortcut)));
    action->setCheckable(row.ticks);
    action->setIconVisibleInMenu(false);
    actions.insert(action->objectName(), action);
}

/// Their entries stand for commands of the menu bar.
void FrameCommands::MakePopUps() {
    for (const PopUpRow& row : PopUpRows()) {
        auto* menu = frame.findChild<QMenu*>(QLatin1String(row.menu));
        if (menu == nullptr) {
            menu = new QMenu(&frame);
            menu->setObjectName(QString::fromUtf8(row.menu));
        }
        QAction* action = menu->addAction(QString::fromUtf8(row.caption));
        action->setObjectName(QString::fromUtf8(row.name));
        QAction* command = &At(row.command);
        QObject::connect(action, &QAction::triggered, command, &QAction::trigger);
        QObject::connect(command, &QAction::enabledChanged, action, &QAction::setEnabled);
        if (row.ticks) {
            action->setCheckable(true);
            QObject::connect(command, &QAction::toggled, action, &QAction::setChecked);
        }
    }
}

void FrameCommands::MakeToolbar() {
    auto* toolbar = frame.addToolBar(QStringLiteral("Toolbar"));
    toolbar->setObjectName(QStringLiteral("Toolbar1"));
    toolbar->setMovable(false);
    toolbar->setIconSize({kPictureSize, kPictureSize});
    toolbar->setContextMenuPolicy(Qt::PreventContextMenu);
    // Shows the buttons that a narrow frame has no room for.
    if (auto* more = toolbar->findChild<QToolButton*>(QStringLiteral("qt_toolbar_ext_button"))) {
        more->setAccessibleName(QStringLiteral("More commands"));
        more->setFocusPolicy(Qt::NoFocus);
    }
    for (const ButtonRow& row : ButtonRows()) {
        if (IsEmpty(row.key)) {
            toolbar->addSeparator();
            continue;
        }
        QAction& action = At(row.command);
        action.setIcon(ToolbarIcon(QString::fromUtf8(row.key)));
        action.setToolTip(QString::fromUtf8(row.toolTip));
        toolbar->addAction(&action);
        QWidget* button = toolbar->widgetForAction(&action);
        button->setObjectName(QString::fromUtf8(row.key));
        button->setAccessibleName(QString::fromUtf8(row.toolTip));
        // Keys go on to the sheet after a click on a button.
        button->setFocusPolicy(Qt::NoFocus);
    }
}

QAction& FrameCommands::At(const char* name) const {
    return NamedAction(actions, name);
}

void FrameCommands::Connect(const char* name, std::function<void()> procedure) {
    connected.insert(QString::fromUtf8(name));
    QObject::connect(&At(name), &QAction::triggered, &frame,
                     [procedure = std::move(procedure)] { procedure(); });
}

void FrameCommands::Update(const EntryControls& controls, bool onSheet, bool takesKeys) {
    for (const CommandRow& row : CommandRows()) {
        if (QAction* action = actions.value(QLatin1String(row.name))) {
            action->setEnabled(connected.contains(action->objectName()) &&
                               IsOpen(row.open, controls, onSheet, takesKeys));
        }
    }
}

void FrameCommands::PopUp(const char* menu, QPoint place) const {
    auto* popUp = frame.findChild<QMenu*>(QLatin1String(menu));
    if (popUp == nullptr) {
        throw std::invalid_argument(Text("there is no menu ", menu));
    }
    popUp->popup(place);
}

}  // namespace numerello
