#include <cstdio>
#include <cstdlib>
#include <vector>

#include "catalogue/topics.h"
#include "line_invariants.h"
#include "typing.h"

/// Any keys into any topic: the line stays well formed, and what is shown, allowed and left open
/// follows from its characters alone. The first byte picks the topic, the others are the keys.
namespace {

using namespace numerello;

std::vector<Problem> OpenedLines() {
    std::vector<Problem> opened;
    for (const Topic& topic : Topics()) {
        if (IsTypedOnLine(topic.code)) {
            opened.push_back(Opened(topic.caption));
        }
    }
    return opened;
}

void Expect(const std::string& wrong, const Problem& problem) {
    if (!wrong.empty()) {
        std::fprintf(stderr, "%s: %s\n", problem.topic.TopicTitle.c_str(), wrong.c_str());
        std::abort();
    }
}

void ExpectStateOfLineTypedAfresh(const Problem& problem, const Problem& opened) {
    Problem afresh = opened;
    Type(afresh, problem.typed.ProblemText);
    Expect(LineDifference(problem, afresh), problem);
}

void ExpectWayBack(Problem& problem, const Problem& opened) {
    while (problem.typed.ExprCharCount > 0) {
        const int before = problem.typed.ExprCharCount;
        Form_KeyPress(problem, kBackspace);
        Expect(problem.typed.ExprCharCount < before ? "" : "a Backspace took nothing", problem);
    }
    Expect(LineDifference(problem, opened), problem);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    static const std::vector<Problem> kOpened = OpenedLines();
    if (size < 2) {
        return 0;
    }
    const Problem& opened = kOpened[data[0] % kOpened.size()];
    Problem problem = opened;
    const std::string_view keys(reinterpret_cast<const char*>(data) + 1, size - 1);
    for (const std::string& key : Characters(keys)) {
        Form_KeyPress(problem, key);
        Expect(
            problem.input.KeyAccepted == problem.input.InputError.empty() || !IsJudged(problem, key)
                ? ""
                : "a judged key was neither accepted nor refused with a reason",
            problem);
        Expect(WhatIsWrong(problem), problem);
    }
    ExpectStateOfLineTypedAfresh(problem, opened);
    ExpectWayBack(problem, opened);
    return 0;
}
