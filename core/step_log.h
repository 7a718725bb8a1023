#pragma once

#include <string>

#include "core/bounds.h"

namespace numerello {

/// The worked steps of the problem. Step lines stand at 1 to StepCount - 1; index 0 is no step's.
/// An index above 200 throws Failure(Format).
struct StepLog {
    static constexpr int kTopIndex = 200;
    static constexpr int kUnsetLevel = 99;

    BoundedArray<std::string, kTopIndex> StepText;
    BoundedArray<std::string, kTopIndex> StepNote;
    BoundedArray<int, kTopIndex> StepLevels{kUnsetLevel};
    int StepCount = 1;  ///< index of the next free step

    std::string StepReason;    ///< note of the next recorded step
    int StepLevel = 0;         ///< what kind of step is recorded next, 0 to 3; kept in StepLevels
    std::string LastStepLine;  ///< drops a step that repeats the last one recorded
    bool StepUnchanged = false;
    bool FreshProblem = true;  ///< kept, though nothing asks

    /// Adds a step: its line and its reason.
    void Write(std::string text, std::string note);
};

/// Keeps one recorded line in `detailLevel`, and always the first and the last. A log that the
/// step recorder did not write stays untouched.
void ThinSteps(StepLog& log, int detailLevel);

}  // namespace numerello
