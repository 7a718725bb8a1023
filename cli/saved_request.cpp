#include "cli/saved_request.h"

#include "catalogue/saved_problem.h"
#include "catalogue/topics.h"

namespace numerello {

namespace {

/// A box topic has no line to type on.
std::string TypedLine(const SavedProblem& saved, int ProblemType) {
    std::string line;
    if (IsTypedOnLine(ProblemType)) {
        for (const std::string& key : SavedKeys(saved)) {
            line += key;
        }
    }
    return line;
}

}  // namespace

Json SavedRequest(const std::string& path) {
    const SavedProblem saved = ReadSavedProblem(ReadFile(path, kLongestProblemFile));
    const int ProblemType = FindTopic(saved.TopicTitle)->code;
    const EntryBoxes boxes = SavedBoxes(saved, ProblemType);
    return {{"do", "solve"},
            {"topic", saved.TopicTitle},
            {"problem", TypedLine(saved, ProblemType)},
            {"boxes", boxes.Text},
            {"filled", true},
            {"lists", boxes.ListIndex}};
}

}  // namespace numerello
