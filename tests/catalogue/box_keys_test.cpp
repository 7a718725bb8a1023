#include "catalogue/box_keys.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

namespace numerello {
namespace {

TEST(BoxKey, LooksAtNoMask) {
    Problem problem;
    problem.topic.ProblemType = 23;
    problem.topic.InputMask = 1;
    problem.playback.TypingEnabled = true;
    for (const std::string_view key : {"-", "4", ".", "5"}) {
        EXPECT_TRUE(BoxKey(problem, 4, key)) << key;
    }
    EXPECT_EQ(problem.boxes.Text[3], "-4.5");
}

Problem WithCode(int code) {
    Problem problem;
    problem.topic.ProblemType = code;
    problem.playback.TypingEnabled = true;
    return problem;
}

std::string Typed(int code, int box, std::string_view keys) {
    Problem problem = WithCode(code);
    for (const char key : keys) {
        BoxKey(problem, box, std::string_view(&key, 1));
    }
    return problem.boxes.Text[static_cast<std::size_t>(box) - 1];
}

TEST(BoxKey, TakesDigitsEverywhere) {
    for (int box = 1; box <= 6; ++box) {
        EXPECT_EQ(Typed(11, box, "12a3 4+"), "1234") << box;
        EXPECT_EQ(Typed(200, box, "0123456789"), "0123456789") << box;
    }
}

TEST(BoxKey, TakesTenCharactersAtMost) {
    EXPECT_EQ(Typed(23, 4, "12345678901"), "1234567890");
    EXPECT_EQ(Typed(23, 4, "-123.456789"), "-123.45678");
}

struct BoxRule {
    int code;
    int box;
    bool point;
    bool minus;
};

TEST(BoxKey, PointAndMinusGoByBoxAndTopic) {
    constexpr BoxRule kRules[] = {
        {14, 1, true, true},  {25, 1, true, true},  {200, 1, false, false}, {14, 2, true, true},
        {25, 2, false, true}, {27, 2, false, true}, {24, 2, true, true},    {203, 2, false, false},
        {11, 3, false, true}, {26, 3, false, true}, {14, 4, true, true},    {26, 4, false, true},
        {23, 4, true, true},  {11, 5, false, true}, {11, 6, false, true}};
    for (const auto& [code, box, point, minus] : kRules) {
        EXPECT_EQ(Typed(code, box, "1.5"), point ? "1.5" : "15") << code << " box " << box;
        EXPECT_EQ(Typed(code, box, "-7"), minus ? "-7" : "7") << code << " box " << box;
    }
}

TEST(BoxKey, OnePointAndAMinusOnlyInFront) {
    EXPECT_EQ(Typed(14, 1, "1.2.3"), "1.23");
    EXPECT_EQ(Typed(14, 1, "1-2--"), "12");
    EXPECT_EQ(Typed(14, 1, "--5"), "-5");
}

TEST(BoxKey, BackspaceIsAlwaysAllowed) {
    EXPECT_EQ(Typed(23, 4, "12\b\b\b3"), "3");
    EXPECT_EQ(Typed(23, 4, "1234567890\b5"), "1234567895");
    Problem problem = WithCode(23);
    EXPECT_TRUE(BoxKey(problem, 4, "\b"));
}

TEST(BoxKey, TellsWhetherTheKeyWentIn) {
    Problem problem = WithCode(23);
    EXPECT_TRUE(BoxKey(problem, 4, "1"));
    EXPECT_FALSE(BoxKey(problem, 4, "x"));
}

TEST(BoxKey, ALockedBoxTakesNone) {
    Problem problem = WithCode(23);
    problem.playback.TypingEnabled = false;
    EXPECT_FALSE(BoxKey(problem, 4, "1"));
    EXPECT_FALSE(BoxKey(problem, 4, "\b"));
    EXPECT_EQ(problem.boxes.Text[3], "");
}

TEST(CheckBoxesReady, MetricTopicsNeedAValueAndBothUnits) {
    for (const int code : {23, 24}) {
        Problem problem = WithCode(code);
        const auto ready = [&problem](std::string_view value, int from, int to) {
            problem.boxes.Text[3] = value;
            problem.boxes.ListIndex = {from, to, 0};
            CheckBoxesReady(problem);
            return problem.controls.SolveEnabled;
        };
        EXPECT_TRUE(ready("5", 0, 6));
        EXPECT_TRUE(ready("5.", 3, 3));
        EXPECT_TRUE(ready("-.5", 0, 0));
        EXPECT_FALSE(ready("", 0, 6));
        EXPECT_FALSE(ready("-", 0, 6));
        EXPECT_FALSE(ready(".", 0, 6));
        EXPECT_FALSE(ready("5", -1, 6));
        EXPECT_FALSE(ready("5", 0, -1));
    }
}

using Texts = std::array<std::string, 6>;

bool Ready(int code, const Texts& texts) {
    Problem problem = WithCode(code);
    problem.boxes.Text = texts;
    problem.boxes.ListIndex = {0, 6, 0};
    problem.controls.SolveEnabled = false;
    CheckBoxesReady(problem);
    return problem.controls.SolveEnabled;
}

/// Numbers in these boxes, 1 to 6, and nothing in the others.
Texts Filled(const std::vector<int>& boxes) {
    Texts texts;
    for (const int box : boxes) {
        texts[static_cast<std::size_t>(box) - 1] = "7";
    }
    return texts;
}

Texts With(Texts texts, int box, const std::string& text) {
    texts[static_cast<std::size_t>(box) - 1] = text;
    return texts;
}

/// Which boxes a group of topics asks for.
struct Asked {
    std::vector<int> codes;
    std::vector<int> boxes;
};

const std::vector<Asked> kAllAsked = {{{2, 3, 6, 8, 9, 13, 25, 200, 201, 202, 203}, {1, 2}},
                                      {{1, 4, 10, 19}, {1, 2, 3}},
                                      {{26, 27}, {1, 2, 3, 4}},
                                      {{5, 7, 15, 16, 17, 18}, {2}},
                                      {{23, 24}, {4}}};
const std::vector<Asked> kAllButOneAsked = {{{12, 14, 21, 22}, {1, 2, 4}}, {{20}, {1, 2, 3, 4}}};

const std::vector<std::string> kNumbers = {"5.", ".5", "-5", "-.5", "0", "0.00", "1234567890"};
const std::vector<std::string> kNoNumbers = {"-", ".", "-.", "1.2.3", "5-", "x"};

TEST(CheckBoxesReady, MostTopicsWantANumberInEachOfTheirBoxes) {
    for (const auto& [codes, boxes] : kAllAsked) {
        for (const int code : codes) {
            SCOPED_TRACE(code);
            const Texts all = Filled(boxes);
            EXPECT_TRUE(Ready(code, all));
            EXPECT_FALSE(Ready(code, Texts()));
            for (const int box : boxes) {
                SCOPED_TRACE(box);
                EXPECT_FALSE(Ready(code, With(all, box, "")));
                EXPECT_EQ(Ready(code, With(Texts(), box, "7")), boxes.size() == 1);
                for (const std::string& number : kNumbers) {
                    EXPECT_TRUE(Ready(code, With(all, box, number))) << number;
                }
                for (const std::string& text : kNoNumbers) {
                    EXPECT_FALSE(Ready(code, With(all, box, text))) << text;
                }
            }
        }
    }
}

TEST(CheckBoxesReady, MissingValueTopicsWantExactlyOneEmptyBox) {
    for (const auto& [codes, boxes] : kAllButOneAsked) {
        for (const int code : codes) {
            SCOPED_TRACE(code);
            const Texts all = Filled(boxes);
            EXPECT_FALSE(Ready(code, all));
            EXPECT_FALSE(Ready(code, Texts()));
            for (const int empty : boxes) {
                const Texts oneEmpty = With(all, empty, "");
                EXPECT_TRUE(Ready(code, oneEmpty)) << empty;
                for (const std::string& text : kNoNumbers) {
                    EXPECT_FALSE(Ready(code, With(all, empty, text))) << text;
                }
                for (const int other : boxes) {
                    if (other == empty) {
                        continue;
                    }
                    EXPECT_FALSE(Ready(code, With(oneEmpty, other, ""))) << empty << other;
                    for (const std::string& number : kNumbers) {
                        EXPECT_TRUE(Ready(code, With(oneEmpty, other, number))) << number;
                    }
                    for (const std::string& text : kNoNumbers) {
                        EXPECT_FALSE(Ready(code, With(oneEmpty, other, text))) << text;
                    }
                }
            }
        }
    }
}

TEST(CheckBoxesReady, SimilarTrianglesWantTheLeftOneAndASideOfTheRightOne) {
    constexpr int kCode = 11;
    EXPECT_FALSE(Ready(kCode, Texts()));
    EXPECT_FALSE(Ready(kCode, Filled({1, 2, 3})));
    EXPECT_FALSE(Ready(kCode, Filled({4, 5, 6})));
    for (const std::vector<int>& right :
         std::vector<std::vector<int>>{{4}, {5}, {6}, {4, 5}, {4, 6}, {5, 6}, {4, 5, 6}}) {
        Texts texts = Filled(right);
        texts[0] = texts[1] = texts[2] = "7";
        EXPECT_TRUE(Ready(kCode, texts)) << right.size();
        for (const int left : {1, 2, 3}) {
            EXPECT_FALSE(Ready(kCode, With(texts, left, ""))) << left;
        }
        for (int box = 1; box <= 6; ++box) {
            for (const std::string& number : kNumbers) {
                EXPECT_TRUE(Ready(kCode, With(texts, box, number))) << box << " " << number;
            }
            for (const std::string& text : kNoNumbers) {
                EXPECT_FALSE(Ready(kCode, With(texts, box, text))) << box << " " << text;
            }
        }
    }
}

TEST(CheckBoxesReady, BoxesThatATopicDoesNotShowDoNotCount) {
    EXPECT_TRUE(Ready(5, {"-", "7", "-", "-", "-", "-"}));
    EXPECT_TRUE(Ready(14, {"7", "7", "-", "", "-", "-"}));
    EXPECT_FALSE(Ready(7, {"7", "", "7", "7", "7", "7"}));
}

TEST(CheckBoxesReady, WithoutATopicNothingIsReady) {
    EXPECT_FALSE(Ready(0, Filled({1, 2, 3, 4, 5, 6})));
    EXPECT_FALSE(Ready(204, Filled({1, 2, 3, 4, 5, 6})));
}

TEST(CheckBoxesReady, RunsWithEachKey) {
    Problem problem = WithCode(23);
    problem.boxes.ListIndex = {0, 6, 0};
    BoxKey(problem, 4, "-");
    EXPECT_FALSE(problem.controls.SolveEnabled);
    BoxKey(problem, 4, "1");
    EXPECT_TRUE(problem.controls.SolveEnabled);
    BoxKey(problem, 4, "\b");
    EXPECT_FALSE(problem.controls.SolveEnabled);
}

TEST(CheckBoxesReady, LeavesALineTopicAlone) {
    Problem problem = WithCode(53);
    problem.controls.SolveEnabled = true;
    CheckBoxesReady(problem);
    EXPECT_TRUE(problem.controls.SolveEnabled);
}

TEST(IsNumeric, WantsADigitAndOnePointAtMost) {
    for (const char* text : {"5", "5.", ".5", "-5", "-.5", "0", "007", "12.34"}) {
        EXPECT_TRUE(IsNumeric(text)) << text;
    }
    for (const char* text : {"", "-", ".", "-.", "1.2.3", "--1", "1-", "1a", "+1", " 1", "1E5"}) {
        EXPECT_FALSE(IsNumeric(text)) << text;
    }
}

}  // namespace
}  // namespace numerello
