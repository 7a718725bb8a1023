#include "tests/topics/boxed.h"
#include "tests/topics/boxed_topic.h"

namespace numerello {
namespace {

constexpr int kRectangle = 13;
constexpr int kTriangle = 19;

const std::string kAddAll =
    "To find the perimeter of a shape, add the lengths of all sides of that shape.";
const std::string kAddAndDouble =
    "To find the perimeter of a shape, add the lengths of all sides of that shape.  Since the "
    "lengths of opposite sides of a square/rectangle will be equal, length and width can be added "
    "and multiplied by 2.";

/// a stands in Text3, b in Text2, c in Text1.
Problem Triangle(const std::string& a, const std::string& b, const std::string& c,
                 int RoundDigits = 2) {
    return Boxed(kTriangle, {c, b, a}, RoundDigits);
}

/// The base stands in Text2, the height in Text1.
Problem Rectangle(const std::string& b, const std::string& h, int RoundDigits = 2) {
    return Boxed(kRectangle, {h, b}, RoundDigits);
}

TEST(PerimeterOfTriangle, AddsTheSides) {
    const Log expected{
        {"a = 3, b = 4.5, c = 5", ""},
        {"Perimeter = a + b + c",
         "To find the perimeter of a shape, add the lengths of all sides of that shape."},
        {"Perimeter = 3 + 4.5 + 5", "Substitute 3 in for a, 4.5 in for b, and 5 in for c."},
        {"Perimeter = 12.5", "Add all the terms to calculate the perimeter of the triangle."}};
    EXPECT_EQ(LogOf(Solved(Triangle("3", "4.5", "5"))), expected);
}

TEST(PerimeterOfTriangle, IsRoundedByTheSetting) {
    const std::pair<int, std::string> cases[] = {
        {1, "3.7"}, {2, "3.7"}, {3, "3.704"}, {4, "3.7037"}, {5, "3.7037"}};
    for (const auto& [RoundDigits, sum] : cases) {
        EXPECT_EQ(LogOf(Solved(Triangle("1.2345", "1.2346", "1.2346", RoundDigits))).back().first,
                  "Perimeter = " + sum);
    }
    // No triangle has such sides; nothing looks at that.
    EXPECT_EQ(LogOf(Solved(Triangle("1", "02", "9999999999"))).back().first,
              "Perimeter = 10000000002");
}

Log FormulaOfTriangle(const std::string& a, const std::string& b, const std::string& c) {
    return {{"a = " + a + ", b = " + b + ", c = " + c, ""},
            {"Perimeter = a + b + c", kAddAll},
            {"Perimeter = " + a + " + " + b + " + " + c,
             "Substitute " + a + " in for a, " + b + " in for b, and " + c + " in for c."}};
}

TEST(PerimeterOfTriangle, RefusesASideOfZeroOrLessBelowTheFormula) {
    const std::vector<std::vector<std::string>> cases{{"0", "4", "5"},  {"3", "0.0", "5"},
                                                      {"3", "4", "-5"}, {"-3", "-4", "-5"},
                                                      {"", "4", "5"},   {"3", "4", ""}};
    for (const auto& sides : cases) {
        Log expected = FormulaOfTriangle(sides[0], sides[1], sides[2]);
        expected.emplace_back(
            "All sides of a triangle must be greater than zero.",
            "It is impossible for a triangle to have a side less than or equal to 0.");
        EXPECT_EQ(LogOf(Solved(Triangle(sides[0], sides[1], sides[2]))), expected);
    }
}

TEST(PerimeterOfTriangle, TextThatIsNoNumberFailsBelowTheFormula) {
    for (const std::string text : {"abc", "--", "4%2", "1/2/3"}) {
        ExpectFailure(Triangle(text, "4", "5"), FailureKind::Format,
                      FormulaOfTriangle(text, "4", "5"));
        ExpectFailure(Triangle("3", text, "5"), FailureKind::Format,
                      FormulaOfTriangle("3", text, "5"));
        ExpectFailure(Triangle("3", "4", text), FailureKind::Format,
                      FormulaOfTriangle("3", "4", text));
    }
    ExpectFailure(Triangle("1E308", "1E308", "1"), FailureKind::Overflow,
                  FormulaOfTriangle("1E308", "1E308", "1"));
}

TEST(PerimeterOfRectangle, AddsAndDoubles) {
    const Log expected{
        {"base = 3, height = 4.5", ""},
        {"Perimeter = 2 * (base + height)",
         "To find the perimeter of a shape, add the lengths of all sides of that shape.  Since the "
         "lengths of opposite sides of a square/rectangle will be equal, length and width can be "
         "added and multiplied by 2."},
        {"Perimeter = 2 * (3 + 4.5)", "Substitute 3 in for base, and 4.5 in for height."},
        {"Perimeter = 15", "Add 3 and 4.5 first, then multiply by 2."}};
    EXPECT_EQ(LogOf(Solved(Rectangle("3", "4.5"))), expected);
}

TEST(PerimeterOfRectangle, IsRoundedByTheSetting) {
    const std::pair<int, std::string> cases[] = {
        {1, "5.7"}, {2, "5.72"}, {3, "5.716"}, {4, "5.716"}, {5, "5.716"}};
    for (const auto& [RoundDigits, perimeter] : cases) {
        EXPECT_EQ(LogOf(Solved(Rectangle("1.624", "1.234", RoundDigits))).back().first,
                  "Perimeter = " + perimeter);
    }
}

Log FormulaOfRectangle(const std::string& b, const std::string& h) {
    return {{"base = " + b + ", height = " + h, ""},
            {"Perimeter = 2 * (base + height)", kAddAndDouble},
            {"Perimeter = 2 * (" + b + " + " + h + ")",
             "Substitute " + b + " in for base, and " + h + " in for height."}};
}

TEST(PerimeterOfRectangle, RefusesASideOfZeroOrLessBelowTheFormula) {
    const std::vector<std::vector<std::string>> cases{{"0", "4"},  {"3", "0.0"}, {"-3", "4"},
                                                      {"3", "-4"}, {"", "4"},    {"3", ""}};
    for (const auto& sides : cases) {
        Log expected = FormulaOfRectangle(sides[0], sides[1]);
        expected.emplace_back(
            "All sides of a square/rectangle must be greater than zero.",
            "It is impossible for a square/rectangle to have a side less than or equal to 0.");
        EXPECT_EQ(LogOf(Solved(Rectangle(sides[0], sides[1]))), expected);
    }
}

TEST(PerimeterOfRectangle, TextThatIsNoNumberFailsBelowTheFormula) {
    for (const std::string text : {"abc", "--", "4%2", "1/2/3"}) {
        ExpectFailure(Rectangle(text, "4"), FailureKind::Format, FormulaOfRectangle(text, "4"));
        ExpectFailure(Rectangle("3", text), FailureKind::Format, FormulaOfRectangle("3", text));
    }
    ExpectFailure(Rectangle("1E308", "1"), FailureKind::Overflow, FormulaOfRectangle("1E308", "1"));
}

TEST(PerimeterOfTriangle, RandomSidesAreAdded) {
    const BoxedTopic topic(kTriangle);
    Draws draws(kTriangle);
    for (int i = 0; i < kRandomProblems; ++i) {
        const std::string a = DrawBox(draws, 7, BoxMarks::Minus);
        const std::string b = DrawBox(draws, 7);
        const std::string c = DrawBox(draws, 7);
        const int RoundDigits = DrawRoundDigits(draws);
        const Log log = topic.LogFor({c, b, a}, RoundDigits);
        const Rational sides[] = {Rational::Of(a), Rational::Of(b), Rational::Of(c)};
        if (sides[0] <= 0 || sides[1] <= 0 || sides[2] <= 0) {
            EXPECT_EQ(log.back().first, "All sides of a triangle must be greater than zero.");
            continue;
        }
        ExpectRounded(Between(log.back().first, "Perimeter = "), sides[0] + sides[1] + sides[2],
                      RoundDigits);
    }
}

TEST(PerimeterOfRectangle, RandomSidesAreAddedTwice) {
    const BoxedTopic topic(kRectangle);
    Draws draws(kRectangle);
    for (int i = 0; i < kRandomProblems; ++i) {
        const std::string b = DrawBox(draws, 7);
        const std::string h = DrawBox(draws, 7);
        const int RoundDigits = DrawRoundDigits(draws);
        const Log log = topic.LogFor({h, b}, RoundDigits);
        const Rational base = Rational::Of(b);
        const Rational height = Rational::Of(h);
        if (base <= 0 || height <= 0) {
            EXPECT_EQ(log.back().first,
                      "All sides of a square/rectangle must be greater than zero.");
            continue;
        }
        ExpectRounded(Between(log.back().first, "Perimeter = "), (base + height) * 2, RoundDigits);
    }
}

}  // namespace
}  // namespace numerello
