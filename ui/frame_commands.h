#pragma once

#include <QAction>
#include <QMainWindow>
#include <QMap>
#include <QSet>
#include <functional>

#include "core/problem.h"
#include "ui/command_table.h"

namespace numerello {

/// The commands of the frame: each one action, which menus, toolbar and shortcuts share.
class FrameCommands {
  public:
    /// Makes menu bar, pop-ups and toolbar. The frame owns what is made and outlives this.
    explicit FrameCommands(QMainWindow& frame);

    /// Throws std::invalid_argument for a name that is no command's; so do the others.
    QAction& At(const char* name) const;

    /// From now on the command does this. One that does nothing stays grey.
    void Connect(const char* name, std::function<void()> procedure);

    /// Opens and closes each command: by what the problem's controls say, and whether there is a
    /// sheet and its line takes keys.
    void Update(const EntryControls& controls, bool onSheet, bool takesKeys);

    /// Opens a menu of the right button, at this place of the screen.
    void PopUp(const char* menu, QPoint place) const;

  private:
    void MakeMenus();
    void MakeCommand(const CommandRow& row, QMenu& menu);
    void MakePopUps();
    void MakeToolbar();

    QMainWindow& frame;
    QMap<QString, QAction*> actions;  ///< by name
    QSet<QString> connected;
};

}  // namespace numerello
