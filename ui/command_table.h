#pragma once

#include <span>

/// What stands in the menus and on the toolbar. Names are those of the controls.
namespace numerello {

/// When a command may be given.
enum class OpenWhen {
    Always,
    OnSheet,    ///< a topic is chosen
    TakesKeys,  ///< its line is being typed
    Solvable,
    Saveable,
    Printable,
    Graphable,
};

struct MenuRow {
    const char* name;
    const char* caption;
    bool inMenuBar = true;  ///< else it stands where a command of its name does
};

/// A line of a menu. Without a caption it is a menu inside the menu; without a name, a separator.
struct CommandRow {
    const char* menu;
    const char* name = "";
    const char* caption = "";
    OpenWhen open = OpenWhen::Always;
    const char* shortcut = "";
    bool ticks = false;
};

/// A line of a menu that the right button opens.
struct PopUpRow {
    const char* menu;
    const char* name;
    const char* caption;
    const char* command;  ///< the one that it stands for
    bool ticks;           ///< whether it shows that one's tick
};

/// A button of the toolbar: its key, and the command that it stands for. Without a key it is a
/// separator.
struct ButtonRow {
    const char* key = "";
    const char* command = "";
    const char* toolTip = "";
};

/// A command that types a key on the line.
struct FunctionRow {
    const char* command;
    const char* key;
};

/// In the order in which they stand on the screen.
std::span<const MenuRow> MenuRows();
std::span<const CommandRow> CommandRows();
std::span<const PopUpRow> PopUpRows();
std::span<const ButtonRow> ButtonRows();

std::span<const FunctionRow> FunctionRows();

}  // namespace numerello
