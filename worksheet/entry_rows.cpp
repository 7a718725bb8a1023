#include "worksheet/entry_rows.h"

#include "catalogue/entry_layouts.h"
#include "core/topic_codes.h"

namespace numerello {

namespace {

constexpr double kTypedRow = 81;
constexpr double kRowBelowPicture = 265;
constexpr double kRowBelowBoxes = 173;

}  // namespace

std::optional<double> EntryRow(int ProblemType) {
    if (IsTypedOnLine(ProblemType)) {
        return kTypedRow;
    }
    if (ProblemType > kLastBoxTopic) {
        return std::nullopt;
    }
    const EntryLayout* layout = FindEntryLayout(ProblemType);
    return layout != nullptr && !layout->picture.empty() ? kRowBelowPicture : kRowBelowBoxes;
}

}  // namespace numerello
