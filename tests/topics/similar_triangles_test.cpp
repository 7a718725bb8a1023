#include "tests/topics/boxed.h"
#include "tests/topics/boxed_topic.h"

namespace numerello {
namespace {

constexpr int kSimilarTriangles = 11;

const std::pair<std::string, std::string> kEqually{
    "The sides of a similar triangle are equally proportioned:",
    "In other words, #a1/a2# = #b1/b2# = #c1/c2#"};
const std::string kUse =
    "Use the side of the triangle given on both triangles to determine the other side's "
    "proportions.";
const std::string kPositive = "All sides of a triangle must have a length greater than zero.";

/// a1 stands in Text3, b1 in Text2, c1 in Text1, a2 in Text4, b2 in Text6, c2 in Text5.
Problem Triangles(const std::vector<std::string>& first, const std::vector<std::string>& second,
                  int RoundDigits = 2) {
    return Boxed(kSimilarTriangles, {first[2], first[1], first[0], second[0], second[2], second[1]},
                 RoundDigits);
}

TEST(SimilarTriangles, GivenA) {
    const Log expected{
        {"a1 = 3, b1 = 4, c1 = 5, a2 = 6, b2 = , c2 = ", ""},
        {"The sides of a similar triangle are equally proportioned:",
         "In other words, #a1/a2# = #b1/b2# = #c1/c2#"},
        {"#a1/a2# = proportion",
         "Use the side of the triangle given on both triangles to determine the other side's "
         "proportions."},
        {"#3/6# = 0.5", "Divide 3 by 6."},
        {"#a1/a2# = #b1/b2# = #c1/c2# = 0.5", "The ratio of every side must equal 0.5."},
        {"#b1/b2# = 0.5", "Use 0.5 to calculate b2."},
        {"#4/b2# = 0.5", "Substitute the value of b1 (4) into the equation."},
        {"b2 = 8", "Solve for b2."},
        {"#c1/c2# = 0.5", "Use 0.5 to calculate c2."},
        {"#5/c2# = 0.5", "Substitute the value of c1 (5) into the equation."},
        {"c2 = 10", "Solve for c2."}};
    EXPECT_EQ(LogOf(Solved(Triangles({"3", "4", "5"}, {"6", "", ""}))), expected);
}

TEST(SimilarTriangles, GivenB) {
    const Log expected{
        {"a1 = 3, b1 = 4, c1 = 5, a2 = , b2 = 2, c2 = ", ""},
        {"The sides of a similar triangle are equally proportioned:",
         "In other words, #a1/a2# = #b1/b2# = #c1/c2#"},
        {"#b1/b2# = proportion",
         "Use the side of the triangle given on both triangles to determine the other side's "
         "proportions."},
        {"#4/2# = 2", "Divide 4 by 2."},
        {"#a1/a2# = #b1/b2# = #c1/c2# = 2", "The ratio of every side must equal 2."},
        {"#a1/a2# = 2", "Use 2 to calculate a2."},
        {"#3/a2# = 2", "Substitute the value of a1 (3) into the equation."},
        {"a2 = 1.5", "Solve for a2."},
        {"#c1/c2# = 2", "Use 2 to calculate c2."},
        {"#5/c2# = 2", "Substitute the value of c1 (5) into the equation."},
        {"c2 = 2.5", "Solve for c2."}};
    EXPECT_EQ(LogOf(Solved(Triangles({"3", "4", "5"}, {"", "2", ""}))), expected);
}

TEST(SimilarTriangles, GivenC) {
    const Log expected{
        {"a1 = 3, b1 = 4, c1 = 5, a2 = , b2 = , c2 = 2", ""},
        {"The sides of a similar triangle are equally proportioned:",
         "In other words, #a1/a2# = #b1/b2# = #c1/c2#"},
        {"#c1/c2# = proportion",
         "Use the side of the triangle given on both triangles to determine the other side's "
         "proportions."},
        {"#5/2# = 2.5", "Divide 5 by 2."},
        {"#a1/a2# = #b1/b2# = #c1/c2# = 2.5", "The ratio of every side must equal 2.5."},
        {"#a1/a2# = 2.5", "Use 2.5 to calculate a2."},
        {"#3/a2# = 2.5", "Substitute the value of a1 (3) into the equation."},
        {"a2 = 1.2", "Solve for a2."},
        {"#b1/b2# = 2.5", "Use 2.5 to calculate b2."},
        {"#4/b2# = 2.5", "Substitute the value of b1 (4) into the equation."},
        {"b2 = 1.6", "Solve for b2."}};
    EXPECT_EQ(LogOf(Solved(Triangles({"3", "4", "5"}, {"", "", "2"}))), expected);
}

TEST(SimilarTriangles, ASecondSideThatWasTypedIsNotWorkedAgain) {
    struct Case {
        std::vector<std::string> second;
        std::string problem;
        std::string proportion;
        std::string last;
        std::size_t lines;
    };
    const Case cases[] = {
        {{"6", "9", ""}, "a2 = 6, b2 = 9, c2 = ", "#a1/a2# = proportion", "c2 = 10", 8},
        {{"6", "", "9"}, "a2 = 6, b2 = , c2 = 9", "#a1/a2# = proportion", "b2 = 8", 8},
        {{"", "8", "9"}, "a2 = , b2 = 8, c2 = 9", "#b1/b2# = proportion", "a2 = 6", 8},
        {{"6", "8", "9"},
         "a2 = 6, b2 = 8, c2 = 9",
         "#a1/a2# = proportion",
         "#a1/a2# = #b1/b2# = #c1/c2# = 0.5",
         5}};
    for (const Case& each : cases) {
        const Log log = LogOf(Solved(Triangles({"3", "4", "5"}, each.second)));
        ASSERT_EQ(log.size(), each.lines) << each.problem;
        EXPECT_EQ(log[0].first, "a1 = 3, b1 = 4, c1 = 5, " + each.problem);
        EXPECT_EQ(log[2].first, each.proportion);
        EXPECT_EQ(log.back().first, each.last);
    }
}

TEST(SimilarTriangles, TheRoundedProportionIsWhatIsDividedBy) {
    struct Case {
        int RoundDigits;
        std::string proportion;
        std::string b2;
    };
    // 2 divided by a third that was cut off is not quite 6.
    const Case cases[] = {{1, "0.3", "6.7"},
                          {2, "0.33", "6.06"},
                          {3, "0.333", "6.006"},
                          {4, "0.3333", "6.0006"},
                          {5, "0.33333", "6.00006"}};
    for (const Case& each : cases) {
        const Log log =
            LogOf(Solved(Triangles({"1", "2", "2.5"}, {"3", "", ""}, each.RoundDigits)));
        ASSERT_EQ(log.size(), 11U);
        EXPECT_EQ(log[3].first, "#1/3# = " + each.proportion);
        EXPECT_EQ(log[7].first, "b2 = " + each.b2);
    }
}

TEST(SimilarTriangles, RepeatTheSidesAsTyped) {
    const Log log = LogOf(Solved(Triangles({"03.0", ".5", "5."}, {"6.0", "", ""})));
    EXPECT_EQ(log[0].first, "a1 = 03.0, b1 = .5, c1 = 5., a2 = 6.0, b2 = , c2 = ");
    EXPECT_EQ(log[3],
              (std::pair<std::string, std::string>("#03.0/6.0# = 0.5", "Divide 03.0 by 6.0.")));
    EXPECT_EQ(log[6].second, "Substitute the value of b1 (.5) into the equation.");
    EXPECT_EQ(log[7].first, "b2 = 1");
}

TEST(SimilarTriangles, RefuseAFirstTriangleWithoutThreeSides) {
    const std::vector<std::vector<std::string>> cases{
        {"0", "4", "5"}, {"3", "-4", "5"}, {"3", "4", "0.0"}, {"", "4", "5"}, {"3", "4", ""}};
    for (const auto& first : cases) {
        const std::string problem =
            "a1 = " + first[0] + ", b1 = " + first[1] + ", c1 = " + first[2];
        // Whatever the second triangle is.
        EXPECT_EQ(LogOf(Solved(Triangles(first, {"6", "", ""}))),
                  (Log{{problem + ", a2 = 6, b2 = , c2 = ", ""},
                       {kPositive, "A triangle must have three sides."}}));
        EXPECT_EQ(LogOf(Solved(Triangles(first, {"", "0", ""}))),
                  (Log{{problem + ", a2 = , b2 = 0, c2 = ", ""},
                       {kPositive, "A triangle must have three sides."}}));
    }
}

TEST(SimilarTriangles, RefuseAGivenSideOfZeroOrLess) {
    const std::pair<std::vector<std::string>, std::string> cases[] = {
        {{"0", "", ""}, "a2 = 0, b2 = , c2 = "},
        {{"", "-2", ""}, "a2 = , b2 = -2, c2 = "},
        {{"", "", "0.0"}, "a2 = , b2 = , c2 = 0.0"},
        // The first that is given decides, whatever the other.
        {{"0", "8", ""}, "a2 = 0, b2 = 8, c2 = "}};
    for (const auto& [second, problem] : cases) {
        EXPECT_EQ(
            LogOf(Solved(Triangles({"3", "4", "5"}, second))),
            (Log{{"a1 = 3, b1 = 4, c1 = 5, " + problem, ""},
                 kEqually,
                 {kPositive,
                  "It is impossible for a triangle to have a side less than or equal to 0."}}));
    }
}

TEST(SimilarTriangles, AProportionThatRoundsToZeroFailsWhereItIsDividedBy) {
    ExpectFailure(Triangles({"1", "2", "3"}, {"999", "", ""}), FailureKind::DivisionByZero,
                  {{"a1 = 1, b1 = 2, c1 = 3, a2 = 999, b2 = , c2 = ", ""},
                   kEqually,
                   {"#a1/a2# = proportion", kUse},
                   {"#1/999# = 0", "Divide 1 by 999."},
                   {"#a1/a2# = #b1/b2# = #c1/c2# = 0", "The ratio of every side must equal 0."},
                   {"#b1/b2# = 0", "Use 0 to calculate b2."},
                   {"#2/b2# = 0", "Substitute the value of b1 (2) into the equation."}});
}

TEST(SimilarTriangles, TextThatIsNoNumberFailsWhereItIsNeeded) {
    for (const std::string text : {"abc", "--", "4%2", "1/2/3"}) {
        ExpectFailure(Triangles({"3", text, "5"}, {"6", "", ""}), FailureKind::Format,
                      {{"a1 = 3, b1 = " + text + ", c1 = 5, a2 = 6, b2 = , c2 = ", ""}});
        ExpectFailure(Triangles({"3", "4", "5"}, {"", text, ""}), FailureKind::Format,
                      {{"a1 = 3, b1 = 4, c1 = 5, a2 = , b2 = " + text + ", c2 = ", ""}, kEqually});
    }
}

TEST(SimilarTriangles, AProportionBeyondADoubleOverflowsBeforeItsLines) {
    ExpectFailure(Triangles({"1E200", "4", "5"}, {"1E-200", "", ""}), FailureKind::Overflow,
                  {{"a1 = 1E200, b1 = 4, c1 = 5, a2 = 1E-200, b2 = , c2 = ", ""}, kEqually});
}

TEST(SimilarTriangles, BeginOnTheFirstSheet) {
    Problem problem = Triangles({"3", "4", "5"}, {"6", "", ""});
    problem.playback.CurrentPage = 3;
    EXPECT_EQ(Solved(problem).playback.CurrentPage, 0);
}

/// Sides a, b and c of both; of the second triangle the given one is the first that is typed.
struct TwoTriangles {
    std::vector<std::string> first;
    std::vector<std::string> second;
    std::size_t given = 0;
};

TwoTriangles DrawTriangles(Draws& draws) {
    TwoTriangles drawn{
        {DrawBox(draws, 5, BoxMarks::None), DrawBox(draws, 5), DrawBox(draws, 5, BoxMarks::Point)},
        {DrawBox(draws, 5), DrawBox(draws, 4, BoxMarks::Minus), DrawBox(draws, 4, BoxMarks::None)},
        static_cast<std::size_t>(draws.Below(3))};
    for (std::size_t side = 0; side < 3; ++side) {
        if (side < drawn.given || (side > drawn.given && draws.Below(3) != 0)) {
            drawn.second[side].clear();
        }
    }
    return drawn;
}

/// That the sides not typed are those of the first triangle over the proportion shown.
void ExpectWorkedSides(const BoxedTopic& topic, const TwoTriangles& triangles, int RoundDigits) {
    const auto& [first, second, given] = triangles;
    Problem problem = Triangles(first, second, RoundDigits);
    const std::optional<FailureKind> failure = FailureOf(problem);
    const Log log = LogOf(problem);
    const auto& boxes = problem.boxes.Text;
    EXPECT_EQ(topic.LogFor({boxes.begin(), boxes.end()}, RoundDigits, failure), log);
    ASSERT_GE(log.size(), 5U);
    const std::string P = Between(log[3].first, "#" + first[given] + "/" + second[given] + "# = ");
    ExpectRounded(P, Rational::Of(first[given]) / Rational::Of(second[given]), RoundDigits);

    const auto unknowns = static_cast<std::size_t>(std::count(second.begin(), second.end(), ""));
    if (P == "0" && unknowns > 0) {
        EXPECT_EQ(failure, FailureKind::DivisionByZero);
        EXPECT_EQ(log.size(), 7U);
        return;
    }
    EXPECT_EQ(failure, std::nullopt);
    ASSERT_EQ(log.size(), 5 + 3 * unknowns);
    const std::string letters[] = {"a2 = ", "b2 = ", "c2 = "};
    std::size_t line = 7;
    for (std::size_t side = 0; side < 3; ++side) {
        if (second[side].empty()) {
            ExpectRounded(Between(log[line].first, letters[side]),
                          Rational::Of(first[side]) / Rational::Of(P), RoundDigits);
            line += 3;
        }
    }
}

TEST(SimilarTriangles, RandomTrianglesHaveTheirSidesInOneRatio) {
    const BoxedTopic topic(kSimilarTriangles);
    Draws draws(kSimilarTriangles);
    for (int i = 0; i < kRandomProblems; ++i) {
        const TwoTriangles triangles = DrawTriangles(draws);
        const auto& [first, second, given] = triangles;
        const bool hasSides = std::all_of(first.begin(), first.end(), [](const std::string& side) {
            return !(Rational::Of(side) <= 0);
        });
        if (!hasSides) {
            EXPECT_EQ(LogOf(Solved(Triangles(first, second))).back().second,
                      "A triangle must have three sides.");
        } else if (Rational::Of(second[given]) <= 0) {
            EXPECT_EQ(LogOf(Solved(Triangles(first, second))).back().second,
                      "It is impossible for a triangle to have a side less than or equal to 0.");
        } else {
            ExpectWorkedSides(topic, triangles, DrawRoundDigits(draws));
        }
    }
}

}  // namespace
}  // namespace numerello
