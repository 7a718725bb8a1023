#include "worksheet/entry_rows.h"

#include "core/problem.h"

namespace numerello {

namespace {

constexpr double kTypedRow = 81;
constexpr double kRowBelowPicture = 265;
constexpr double kRowBelowBoxes = 173;

constexpr int kTopBoxTopic = 27;

/// Whether the boxes stand on a drawing. Up to 19 all codes but 14, a percent, are geometry.
bool HasPicture(int ProblemType) {
    return ProblemType >= 1 && ProblemType <= 19 && ProblemType != 14;
}

}  // namespace

std::optional<double> EntryRow(int ProblemType) {
    if (IsTypedOnLine(ProblemType)) {
        return kTypedRow;
    }
    if (ProblemType > kTopBoxTopic) {
        return std::nullopt;
    }
    return HasPicture(ProblemType) ? kRowBelowPicture : kRowBelowBoxes;
}

}  // namespace numerello
