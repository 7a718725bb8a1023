#include <gtest/gtest.h>

#include <random>

#include "catalogue/complete_line.h"
#include "catalogue/topics.h"
#include "line_invariants.h"
#include "typing.h"

namespace numerello {
namespace {

/// Keys in the weights of somebody who means to get somewhere.
constexpr std::string_view kKeys =
    "0123456789012345678912345xyzXabc++--**//^^^(())(=~~||..,,:%\b\b\b#[]{ @";

std::string RandomKeys(std::mt19937& random) {
    std::string keys(1 + random() % 40, ' ');
    for (char& key : keys) {
        key = kKeys[random() % kKeys.size()];
    }
    return keys;
}

/// Calls `check` with a problem, the keys so far, for every key of many random lines of every
/// topic of the typing line.
template <class Check>
void ForRandomLines(unsigned seed, int linesPerTopic, Check check) {
    std::mt19937 random(seed);
    for (const Topic& topic : Topics()) {
        if (!IsTypedOnLine(topic.code)) {
            continue;
        }
        const Problem opened = Opened(topic.caption);
        for (int line = 0; line < linesPerTopic; ++line) {
            Problem problem = opened;
            const std::string keys = RandomKeys(random);
            for (std::size_t i = 0; i < keys.size(); ++i) {
                Form_KeyPress(problem, keys.substr(i, 1));
                const std::string wrong = check(opened, problem);
                ASSERT_EQ(wrong, "") << topic.caption << ": " << keys.substr(0, i + 1);
            }
        }
    }
}

TEST(RandomKeys, LeaveNoMalformedLine) {
    int complete = 0;
    ForRandomLines(20261, 400, [&complete](const Problem&, const Problem& problem) {
        complete += LineIsComplete(problem) ? 1 : 0;
        return WhatIsWrong(problem);
    });
    // Else the keys led nowhere, and nothing was tested.
    EXPECT_GT(complete, 50000);
}

TEST(ShortLines, AreWellFormedWhateverTheKeys) {
    // All lines of these keys: what random ones hit too seldom.
    const std::pair<const char*, std::string_view> kKeySets[] = {
        {"Absolute Values", "2-|/"},
        {"Fraction Arithmetic", "2-/*"},
        {"Simplifying Polynomials", "2x/()"}};
    for (const auto& [topic, keys] : kKeySets) {
        std::vector<Problem> lines{Opened(topic)};
        for (std::size_t next = 0; next < lines.size(); ++next) {
            for (std::size_t i = 0; i < keys.size() && lines[next].typed.ExprCharCount < 8; ++i) {
                Problem longer = lines[next];
                Form_KeyPress(longer, keys.substr(i, 1));
                if (longer.input.KeyAccepted) {
                    ASSERT_EQ(WhatIsWrong(longer), "") << topic << ": " << longer.typed.ProblemText;
                    lines.push_back(std::move(longer));
                }
            }
        }
        EXPECT_GT(lines.size(), 500U) << topic;
    }
}

TEST(RandomKeys, LeaveTheStateOfTheLineTypedAfresh) {
    ForRandomLines(20262, 40, [](const Problem& opened, const Problem& problem) {
        Problem afresh = opened;
        Type(afresh, problem.typed.ProblemText);
        return LineDifference(problem, afresh);
    });
}

TEST(RandomKeys, AreTakenBackToTheEmptyLine) {
    ForRandomLines(20263, 20, [](const Problem& opened, const Problem& problem) {
        Problem back = problem;
        for (int i = 0; i < 40 && back.typed.ExprCharCount > 0; ++i) {
            Form_KeyPress(back, kBackspace);
            if (!back.input.KeyAccepted) {
                return std::string("a Backspace was refused");
            }
        }
        return LineDifference(back, opened);
    });
}

}  // namespace
}  // namespace numerello
