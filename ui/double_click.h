#pragma once

#include <QPointF>

namespace numerello {

/// For a window that a click has just closed. Should the click be the first half of a double click,
/// the second half would go to what lies behind: it reaches no window. `place` is where the click
/// was on the screen; a click elsewhere, or after the time of a double click, is one of its own.
void SwallowSecondClick(QPointF place);

}  // namespace numerello
