#pragma once

#include <functional>

#include "core/learner.h"
#include "core/problem.h"
#include "typeset/surface.h"

namespace numerello {

/// Draws the next step of the column request: blanks the page and draws the numbers of Text1 and
/// Text2 with one column more than the last time, or with all of them. The reason of the newest one
/// goes to the notes. After the last one calls `Finish`, which has to put the check mark behind the
/// drawing's end and to clear the request.
///
/// Throws Failure(Format) for numbers that are not whole or too long for the columns, and
/// Failure(Overflow) for a dividend beyond 32 bits.
void StepColumns(Problem& problem, Surface& page, Learner& learner, std::function<void()> Finish);

/// Prints the finished working of a column problem, ColumnTop and ColumnBottom, below the pen of a
/// print surface of 800 by 600. The arrangement is that of the sheet, in the proportions of the
/// surface's own letters. The problem's playback and notes stay as they are. Throws as above.
void PrintColumns(const Problem& problem, Surface& Target, Learner& learner);

}  // namespace numerello
