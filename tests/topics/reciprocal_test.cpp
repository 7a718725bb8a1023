#include "tests/topics/typed_topic.h"

namespace numerello {
namespace {

constexpr int kReciprocals = 79;

Log LogOfReciprocal(const std::string& v) {
    return LogOf(Solved(kReciprocals, v));
}

TEST(FindReciprocal, OfAWholeNumber) {
    const Log expected{
        {"#12#", ""},
        {"To find the reciprocal, interchange the numerator and the denominator.",
         "The numerator is the number on top in the fraction, the denominator is the number on "
         "the bottom."},
        {"The reciprocal of 12, or #12/1#, is:",
         "The denominator of a whole number is understood as 1."},
        {"#1/12#", "Flip the numerator and the denominator."}};
    EXPECT_EQ(LogOfReciprocal("12"), expected);
}

TEST(FindReciprocal, OfAUnitFraction) {
    const Log expected{
        {"#1/4#", ""},
        {"To find the reciprocal, interchange the numerator and the denominator.",
         "The numerator is the number on top in the fraction, the denominator is the number on "
         "the bottom."},
        {"The reciprocal of #1/4# is:",
         "To find the reciprocal, flip the numerator and the denominator."},
        {"#4/1#, or 4", "Any number divided by 1 equals that number."}};
    EXPECT_EQ(LogOfReciprocal("1/4"), expected);
}

TEST(FindReciprocal, OfAnyOtherFraction) {
    const Log expected{
        {"#3/4#", ""},
        {"To find the reciprocal, interchange the numerator and the denominator.",
         "The numerator is the number on top in the fraction, the denominator is the number on "
         "the bottom."},
        {"The reciprocal of #3/4# is:",
         "To find the reciprocal of #3/4#, flip the numerator and the denominator."},
        {"#4/3#", "Flip the numerator and the denominator."}};
    EXPECT_EQ(LogOfReciprocal("3/4"), expected);
}

TEST(FindReciprocal, AWholeOneIsAWholeNumber) {
    const Log log = LogOfReciprocal("1");
    ASSERT_EQ(log.size(), 4U);
    EXPECT_EQ(log[2].first, "The reciprocal of 1, or #1/1#, is:");
    EXPECT_EQ(log[3].first, "#1/1#");
}

TEST(FindReciprocal, WorksOnTheTextAlone) {
    const std::pair<std::string, std::string> cases[] = {
        {"6/8", "#8/6#"},   {"4/1", "#1/4#"},      {"1/1", "#1/1#, or 1"},    {"0/4", "#4/0#"},
        {"4/0", "#0/4#"},   {"01/4", "#4/01#"},    {"1/04", "#04/1#, or 04"}, {"0", "#1/0#"},
        {"007", "#1/007#"}, {"1/0", "#0/1#, or 0"}};
    for (const auto& [v, answer] : cases) {
        EXPECT_EQ(LogOfReciprocal(v).back().first, answer);
    }
    EXPECT_EQ(LogOfReciprocal("01/4")[2].second,
              "To find the reciprocal of #01/4#, flip the numerator and the denominator.");
}

TEST(FindReciprocal, AMissingPartIsWrittenAsItIs) {
    EXPECT_EQ(LogOfReciprocal("3/").back().first, "#/3#");
    EXPECT_EQ(LogOfReciprocal("1/").back().first, "#/1#, or ");
    EXPECT_EQ(LogOfReciprocal("/4").back().first, "#4/#");
}

TEST(FindReciprocal, RandomNumbersAreTurnedOver) {
    const TypedTopic topic(kReciprocals);
    Draws draws(79);
    for (int i = 0; i < kRandomProblems; ++i) {
        const std::string top = draws.Below(6) == 0 ? "1" : draws.Digits(5);
        const bool whole = draws.Below(3) == 0;
        const std::string bottom = whole ? "1" : draws.Digits(5);
        const std::string answer = topic.LogFor(whole ? top : top + "/" + bottom).back().first;
        EXPECT_EQ(answer,
                  "#" + bottom + "/" + top + "#" + (!whole && top == "1" ? ", or " + bottom : ""));
    }
}

}  // namespace
}  // namespace numerello
