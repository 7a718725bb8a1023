#include <cstdio>
#include <cstdlib>

#include "catalogue/bare_form.h"
#include "catalogue/topics.h"
#include "core/erasing.h"
#include "line_invariants.h"
#include "typing.h"

/// Any bytes as a problem file: they are refused as a whole, or they load into a form whose problem
/// is saved and loaded again as it stands.
namespace {

using namespace numerello;

void Expect(bool right, const char* wrong, const std::string& line) {
    if (!right) {
        std::fprintf(stderr, "%s: %s\n", wrong, line.c_str());
        std::abort();
    }
}

void Load(const SavedProblem& saved, Problem& problem) {
    BareForm form(problem);
    MersenneSource random;
    LoadSavedProblem(saved, problem, form, FixedClock(0), random);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    Problem problem;
    try {
        Load(ReadSavedProblem({reinterpret_cast<const char*>(data), size}), problem);
    } catch (const FileError&) {
        return 0;
    }
    const std::string line = ProblemLine(problem);
    Expect(FindTopic(problem.topic.TopicTitle)->code == problem.topic.ProblemType,
           "the caption does not name the topic", line);
    if (IsTypedOnLine(problem.topic.ProblemType)) {
        const std::string wrong = WhatIsWrong(problem);
        Expect(wrong.empty(), wrong.c_str(), line);
    }
    Problem again;
    Load(ReadSavedProblem(line), again);
    Expect(ProblemLine(again) == line, "it does not come back", line);
    return 0;
}
