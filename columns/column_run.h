#pragma once

#include <functional>

#include "columns/column_pen.h"
#include "core/learner.h"
#include "core/problem.h"

namespace numerello {

/// What a drawing of a column problem works with. Every drawing begins from nothing, on a blank
/// page, and shows one column more than the one before.
struct ColumnRun {
    StepLog& log;        ///< StepNote gets the reason of the newest column
    Playback& playback;  ///< ShownStep, the reveal counter, the end of the drawing
    bool mnuShowStep;    ///< else everything is drawn at once
    ColumnPen pen;       ///< of the blank page
    Learner& learner;
    std::function<void()> Finish;  ///< ends the work: check mark, no column request
};

}  // namespace numerello
