#include "output/practice_test.h"

#include <gtest/gtest.h>

#include "core/failure.h"
#include "output/test_headings.h"
#include "tests/catalogue/examples.h"

namespace numerello {
namespace {

PracticeTest Made(const std::vector<TestRow>& rows, int moment, std::uint32_t seed = 0) {
    MomentDraws draws(moment, seed);
    PracticeTest test;
    CreatePracticeTest(rows, test, *draws);
    return test;
}

using Lines = std::vector<std::string>;

TEST(PracticeTest, NumbersTheProblemsOfAllTopics) {
    const PracticeTest test = Made(
        {
            {"Addition", 2, false},
            {"", 5, true},
            {"Converting Inches To Yards", 2, true},
            {"Meter Conversions", 1, false},
            {"Straight/Obtuse/Right/Acute Angles", 0, false},
            {"Rounding", 1, false},
            {"Pythagorean Theorem", 1, false},
        },
        MomentOf(7));
    EXPECT_EQ(test.Lines(), (Lines{
                                "",
                                "Add:",
                                "1) 8 + 7",
                                "2) 8 + 7",
                                "",
                                "",
                                "3) 7777 inches = ? yards",
                                "4) 7777 inches = ? yards",
                                "",
                                "",
                                "5) 7 mm (0.001 meters) = ?  mm (0.001 meters)",
                                "",
                                "Determine whether this degree measurement is Straight, Obtuse, "
                                "Right, or Acute:",
                                "",
                                "Round the following numbers:",
                                "6) 77 Rounded to the nearest thousand",
                                "",
                                "Use the pythagorean theorem (a^2^+b^2^=c^2^) to calculate the "
                                "third side of the triangle:",
                                "7) a = 7, b = 7, c = ?",
                            }));
    EXPECT_EQ(test.TestLineCount, 19);
    EXPECT_EQ(test.problems.size(), 7U);
    EXPECT_EQ(test.problems[6].boxes.Text, (std::array<std::string, 6>{"", "7", "", "7"}));
}

TEST(PracticeTest, PutsTheDegreeMarkBehindAnAngle) {
    for (const std::string& line :
         Made({{"Straight/Obtuse/Right/Acute Angles", 20, false}}, 1234).Lines()) {
        const bool isProblem = line.find(") ") != std::string::npos;
        EXPECT_EQ(line.ends_with("^o^"), isProblem) << line;
    }
}

TEST(PracticeTest, PrintsTypedProblemsAsMathematics) {
    const PracticeTest test = Made({{"Calculating With Exponents", 30, true}}, 1234, 5);
    for (const TestProblem& problem : test.problems) {
        const Problem typed = Typed("Calculating With Exponents", problem.keys);
        EXPECT_TRUE(problem.line.ends_with(") " + typed.typed.DisplayLine)) << problem.line;
    }
    // The draws go on from one problem to the next.
    EXPECT_NE(test.problems[0].keys, test.problems[1].keys);
}

TEST(PracticeTest, EveryTopicFillsItsLines) {
    for (const TestTopic& topic : TestTopics()) {
        for (const bool complex : {false, true}) {
            const PracticeTest test = Made({{std::string(topic.caption), 5, complex}}, 2345, 9);
            const Lines lines = test.Lines();
            ASSERT_EQ(lines.size(), 7U) << topic.caption;
            EXPECT_EQ(lines[0], "");
            EXPECT_EQ(lines[1], topic.heading);
            for (std::size_t i = 2; i < lines.size(); ++i) {
                const std::string number = std::to_string(i - 1) + ") ";
                EXPECT_TRUE(lines[i].starts_with(number)) << lines[i];
                EXPECT_TRUE(lines[i].ends_with(topic.suffix)) << lines[i];
                EXPECT_GT(lines[i].size(), number.size() + topic.suffix.size()) << topic.caption;
                EXPECT_EQ(test.problems[i - 2].line, lines[i]);
            }
            EXPECT_TRUE(test.TestHeading.empty());
        }
    }
}

/// Made as if at that second of the hour, its problems a second apart.
PracticeTest MadeInTurn(const std::vector<TestRow>& rows, int second) {
    SteppingClock clock{FixedClock(MomentAt(second))};
    MersenneSource digits;
    MersenneSource direct;
    ExampleDraws draws(clock, digits, direct);
    PracticeTest test;
    CreatePracticeTest(rows, test, draws, &clock);
    return test;
}

TEST(PracticeTest, RepeatsNoProblemRightAwayWhereTheClockGoesOn) {
    // The last starts run over the end of the hour.
    for (const int second : {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 3590, 3599}) {
        for (const char* topic : {"Addition", "Factoring", "Rounding", "Medians", "Ratios",
                                  "Area of a Circle", "Reciprocals", "Meter Conversions"}) {
            const PracticeTest test = MadeInTurn({{topic, 18, false}}, second);
            ASSERT_EQ(test.problems.size(), 18U);
            for (std::size_t i = 1; i < test.problems.size(); ++i) {
                const std::string& above = test.problems[i - 1].line;
                const std::string& line = test.problems[i].line;
                EXPECT_NE(line.substr(line.find(')')), above.substr(above.find(')')))
                    << topic << ' ' << second << ' ' << i;
            }
        }
    }
}

TEST(PracticeTest, KeepsTheDigitsOfAProblemAlike) {
    for (const TestProblem& problem : MadeInTurn({{"Factoring", 18, true}}, 1234).problems) {
        EXPECT_EQ(problem.keys.find_first_not_of(problem.keys.front()), std::string::npos)
            << problem.line;
    }
}

TEST(PracticeTest, IsTheSameAtTheSameMoment) {
    const std::vector<TestRow> rows{{"Addition", 5, false}, {"Arithmetic", 5, true}};
    EXPECT_EQ(MadeInTurn(rows, 77).Lines(), MadeInTurn(rows, 77).Lines());
    EXPECT_NE(MadeInTurn(rows, 77).Lines(), MadeInTurn(rows, 177).Lines());
}

TEST(PracticeTest, WithoutTopicsIsEmpty) {
    EXPECT_TRUE(Made({}, 0).Lines().empty());
    EXPECT_TRUE(Made(std::vector<TestRow>(10), 0).Lines().empty());
}

TEST(PracticeTest, HasRoomFor201Lines) {
    EXPECT_EQ(Made({{"Addition", 199, false}}, 0).Lines().size(), 201U);
    // Ten rows of eighteen, as many as the form can ask for.
    EXPECT_EQ(Made(std::vector<TestRow>(10, {"Ratios", 18, true}), 0).Lines().size(), 200U);

    for (const std::vector<TestRow>& rows :
         {std::vector<TestRow>{{"Addition", 200, false}},
          std::vector<TestRow>{{"Addition", 199, false}, {"Ratios", 0, false}},
          std::vector<TestRow>{{"Addition", 198, false}, {"Ratios", 3, false}}}) {
        MomentDraws draws(0);
        PracticeTest test;
        try {
            CreatePracticeTest(rows, test, *draws);
            ADD_FAILURE() << "no failure";
        } catch (const Failure& failure) {
            EXPECT_EQ(failure.Kind(), FailureKind::Format);
        }
        EXPECT_EQ(test.Lines().size(), 201U);
        EXPECT_EQ(test.Lines()[2].substr(0, 3), "1) ");
    }
}

TEST(PracticeTest, BeginsAnew) {
    MomentDraws draws(MomentOf(7));
    PracticeTest test;
    CreatePracticeTest(std::vector<TestRow>{{"Addition", 30, false}}, test, *draws);
    CreatePracticeTest(std::vector<TestRow>{{"Division", 1, false}}, test, *draws);
    EXPECT_EQ(test.Lines(), (Lines{"", "Divide:", "1) 8 { 7"}));
    EXPECT_EQ(test.problems.size(), 1U);
}

TEST(SetTestTopic, SetsTheNumbersOfTheTopic) {
    PracticeTest test;
    SetTestTopic("Evaluating Polynomials", test);
    EXPECT_EQ(test.topic.ProblemType, 103);
    EXPECT_EQ(test.topic.MaxVariables, 3);
    EXPECT_EQ(test.topic.MaxDigits, 5);
    EXPECT_EQ(test.topic.InputMask, 0b10110111);
    EXPECT_EQ(test.TestHeading, "Evaluate the following polynomials:");
    SetTestTopic("Graphing A Linear Equation", test);
    EXPECT_EQ(test.topic.MaxVariables, 2);
    EXPECT_EQ(test.topic.LinearGraphTopic, 1);
    SetTestTopic("Addition", test);
    EXPECT_EQ(test.topic.ProblemType, 200);
    EXPECT_EQ(test.topic.InputMask, 0b11000011);
    SetTestTopic("Lengths", test);
    EXPECT_EQ(test.topic.ProblemType, 200);
    EXPECT_EQ(test.TestHeading, "Add:");
}

}  // namespace
}  // namespace numerello
