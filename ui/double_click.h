#pragma once

#include <QMouseEvent>

namespace numerello {

/// Whether the mouse moved, or one of its buttons went down or up.
bool IsMouse(const QEvent& event);

/// For a window that a click has just closed. The click may be the first half of a double click, or
/// the button may still be down: what follows of it at that place, until the time of a double click
/// is over, reaches no window. `last` is the event that closed the window.
void SwallowRestOfDoubleClick(const QMouseEvent& last);

}  // namespace numerello
