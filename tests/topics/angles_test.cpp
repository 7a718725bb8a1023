#include "tests/topics/typed_topic.h"

namespace numerello {
namespace {

constexpr int kAngles = 104;

TEST(ClassifyAngle, NamesEachKindWithItsBounds) {
    const Log kinds[] = {
        {{"180", ""}, {"180^o^ (degrees) forms a STRAIGHT angle.", "A straight angle = 180^o^"}},
        {{"90", ""}, {"90^o^ (degrees) forms a RIGHT angle.", "A right angle = 90^o^"}},
        {{"124", ""},
         {"124^o^ (degrees) forms an OBTUSE angle because it is between 90^o^ and 180^o^.",
          "90^o^ < obtuse < 180^o^"}},
        {{"45", ""},
         {"45^o^ (degrees) forms an ACUTE angle because it is between 0^o^ and 90^o^.",
          "0^o^ < acute < 90^o^"}}};
    for (const Log& expected : kinds) {
        EXPECT_EQ(LogOf(Solved(kAngles, expected[0].first)), expected);
    }
}

TEST(ClassifyAngle, RefusesWhatIsNoAngle) {
    for (const std::string d : {"0", "000", "181", "99999", "-5", "180.01", ""}) {
        const Log expected{
            {d, ""},
            {"An angle must have a measurement greater than 0^o^ and no more than 180^o^.",
             "Enter an angle ranging from 1^o^ to 180^o^."}};
        EXPECT_EQ(LogOf(Solved(kAngles, d)), expected);
    }
}

TEST(ClassifyAngle, TellsByValueAndRepeatsTheText) {
    const std::pair<std::string, std::string> cases[] = {
        {"0180", "180^o^ (degrees) forms a STRAIGHT angle."},
        {"090", "90^o^ (degrees) forms a RIGHT angle."},
        {"0179", "0179^o^ (degrees) forms an OBTUSE angle because it is between 90^o^ and 180^o^."},
        {"91", "91^o^ (degrees) forms an OBTUSE angle because it is between 90^o^ and 180^o^."},
        {"089", "089^o^ (degrees) forms an ACUTE angle because it is between 0^o^ and 90^o^."},
        {"1", "1^o^ (degrees) forms an ACUTE angle because it is between 0^o^ and 90^o^."}};
    for (const auto& [d, line] : cases) {
        const Log log = LogOf(Solved(kAngles, d));
        ASSERT_EQ(log.size(), 2U);
        EXPECT_EQ(log[0].first, d);
        EXPECT_EQ(log[1].first, line);
    }
}

TEST(ClassifyAngle, TextThatIsNoNumberFailsBehindTheProblemLine) {
    for (const std::string text : {".", "abc", "--", "4%2", "1/2/3"}) {
        ExpectFailure(ProblemOf(kAngles, text), FailureKind::Format, {{text, ""}});
    }
}

TEST(ClassifyAngle, RandomDegreesAreOfTheKindOfTheirRange) {
    const TypedTopic topic(kAngles);
    Draws draws(kAngles);
    for (int i = 0; i < kRandomProblems; ++i) {
        const std::string d =
            draws.Below(4) == 0 ? draws.Digits(5) : std::to_string(draws.Below(200));
        const long degrees = std::stol(d);
        const std::string kind = degrees <= 0 || degrees > 180 ? "greater than 0^o^"
                                 : degrees == 180              ? "forms a STRAIGHT angle"
                                 : degrees == 90               ? "forms a RIGHT angle"
                                 : degrees > 90                ? "forms an OBTUSE angle"
                                                               : "forms an ACUTE angle";
        const Log log = topic.LogFor(d);
        ASSERT_EQ(log.size(), 2U);
        EXPECT_NE(log[1].first.find(kind), std::string::npos) << d << ": " << log[1].first;
    }
}

}  // namespace
}  // namespace numerello
