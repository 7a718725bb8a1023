#include "worksheet/shown_note.h"

namespace numerello {

std::string_view ShownNote(const Problem& problem) {
    // Long products run on behind the last step that has a note.
    const int shown = problem.playback.ShownStep;
    return shown <= StepLog::kTopIndex ? std::string_view(problem.log.StepNote[shown])
                                       : std::string_view();
}

}  // namespace numerello
