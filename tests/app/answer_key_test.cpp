#include "output/answer_key.h"

#include <gtest/gtest.h>

#include "app/solvers.h"
#include "catalogue/topics.h"
#include "output/print_key.h"
#include "output/test_headings.h"
#include "tests/catalogue/examples.h"
#include "tests/topics/solver_log.h"

namespace numerello {
namespace {

std::vector<WorkedProblem> KeyOf(const std::vector<TestRow>& rows, int moment,
                                 std::uint32_t seed = 0) {
    MomentDraws draws(moment, seed);
    PracticeTest test;
    CreatePracticeTest(rows, test, *draws);
    return AnswerKey(test.problems, AnswerSettings(), AllSolvers());
}

std::string LastLine(const WorkedProblem& answered) {
    const Log log = LogOf(answered.problem);
    return log.empty() ? "" : log.back().first;
}

TEST(AnswerKey, WorksWhatTheTestSays) {
    const auto key = KeyOf(
        {
            {"Volume of a Box/Cube", 1, false},
            {"Area of a Trapezoid", 1, false},
            {"Pythagorean Theorem", 1, false},
            {"Distance = Speed * Time", 1, false},
            {"Converting Inches To Feet", 1, true},
            {"Fraction Arithmetic", 1, false},
            {"Addition", 1, true},
        },
        MomentOf(5));
    ASSERT_EQ(key.size(), 7U);
    EXPECT_EQ(key[0].line, "1) length = 5, width = 5, height = 5");
    EXPECT_NE(LastLine(key[0]).find("125"), std::string::npos) << LastLine(key[0]);
    // Half of 5 + 5, times 5.
    EXPECT_NE(LastLine(key[1]).find("25"), std::string::npos) << LastLine(key[1]);
    // a^2 = 7^2 - 5^2 = 24.
    EXPECT_EQ(key[2].line, "3) a = ?, b = 5, c = 7");
    EXPECT_NE(LastLine(key[2]).find("4.9"), std::string::npos) << LastLine(key[2]);
    EXPECT_EQ(key[3].line, "4) distance = ?, speed = 5, time = 5");
    EXPECT_NE(LastLine(key[3]).find("25"), std::string::npos) << LastLine(key[3]);
    // 5555 / 12.
    EXPECT_NE(LastLine(key[4]).find("462.92"), std::string::npos) << LastLine(key[4]);
    EXPECT_TRUE(key[6].problem.columns.ColumnAdd);
    EXPECT_EQ(key[6].problem.columns.ColumnTop, "56");
    EXPECT_EQ(key[6].problem.columns.ColumnBottom, "55");
}

/// Digits beyond what the form takes are worked all the same.
TEST(AnswerKey, KeepsEveryDigit) {
    const auto long9 = KeyOf({{"Converting Regular To Scientific Notation", 1, false},
                              {"Expanded Notation", 1, false},
                              {"Decimal To Percent Notation", 1, true}},
                             MomentOf(9));
    EXPECT_EQ(long9[0].problem.typed.ProblemText, "9999999999");
    EXPECT_NE(LastLine(long9[0]).find("9.999999999"), std::string::npos) << LastLine(long9[0]);
    EXPECT_EQ(long9[1].problem.typed.ProblemText, "9999999999");
    EXPECT_EQ(long9[2].problem.typed.ProblemText, "0.9999");
    EXPECT_NE(LastLine(long9[2]).find("99.99%"), std::string::npos) << LastLine(long9[2]);

    const auto rounding = KeyOf({{"Rounding", 1, true}}, MomentOf(4));
    EXPECT_EQ(rounding[0].line, "1) 4444444.444 Rounded to the nearest tenth");
    EXPECT_EQ(rounding[0].problem.typed.ProblemText, "4444444.444");
    EXPECT_NE(LastLine(rounding[0]).find("4444444.4"), std::string::npos) << LastLine(rounding[0]);
}

TEST(AnswerKey, HasAnAnswerForEveryTopic) {
    for (const TestTopic& topic : TestTopics()) {
        for (const bool complex : {false, true}) {
            const auto key = KeyOf({{std::string(topic.caption), 20, complex}}, 2317, 3);
            ASSERT_EQ(key.size(), 20U);
            for (const WorkedProblem& answered : key) {
                const Problem& problem = answered.problem;
                EXPECT_EQ(problem.topic.ProblemType, FindTopic(topic.caption)->code);
                EXPECT_NE(problem.columns.Any(), !KeyLines(answered).empty())
                    << topic.caption << " " << answered.line;
            }
        }
    }
}

}  // namespace
}  // namespace numerello
