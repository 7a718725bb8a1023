#include "tests/topics/exact.h"

namespace numerello {
namespace {

constexpr int kRounding = 98;
constexpr std::size_t kPlaces = 2;  // the list of places is the third

enum Row { Thousand, Hundred, Ten, Whole, Tenth, Hundredth, Thousandth };

const std::string kHalfRoundsUp =
    "If a number is 5 or greater, it rounds up.  If it is less than 5, it rounds down.";

Problem Rounding(std::string_view v, int row) {
    Problem problem = ProblemOf(kRounding, v);
    problem.boxes.ListIndex[kPlaces] = row;
    return problem;
}

Log LogOfRounding(std::string_view v, int row) {
    return LogOf(Solved(Rounding(v, row)));
}

TEST(RoundToPlace, ALargerNumberIsRoundedByItsDigits) {
    const Log hundred{{"1250", ""},
                      {"1250 rounded to the nearest hundred:",
                       "Find the hundred position in the number and round."},
                      {"1300", "1250 rounded to the nearest hundred is 1300."}};
    EXPECT_EQ(LogOfRounding("1250", Hundred), hundred);

    const Log thousand{{"12499", ""},
                       {"12499 rounded to the nearest thousand:",
                        "Find the thousand position in the number and round."},
                       {"12000", "12499 rounded to the nearest thousand is 12000."}};
    EXPECT_EQ(LogOfRounding("12499", Thousand), thousand);

    const Log ten{
        {"45", ""},
        {"45 rounded to the nearest ten:", "Find the ten position in the number and round."},
        {"50", "45 rounded to the nearest ten is 50."}};
    EXPECT_EQ(LogOfRounding("45", Ten), ten);
}

TEST(RoundToPlace, ASmallerNumberBecomesZeroOrThePlace) {
    const Log zero{{"40", ""},
                   {"40 rounded to the nearest hundred:", kHalfRoundsUp},
                   {"0", "40 rounded to the nearest hundred is 0."}};
    EXPECT_EQ(LogOfRounding("40", Hundred), zero);

    const Log hundred{{"50", ""},
                      {"50 rounded to the nearest hundred:", kHalfRoundsUp},
                      {"100", "50 rounded to the nearest hundred is 100."}};
    EXPECT_EQ(LogOfRounding("50", Hundred), hundred);
}

TEST(RoundToPlace, ANumberEqualToThePlaceCountsAsSmaller) {
    const Log expected{{"100", ""},
                       {"100 rounded to the nearest hundred:", kHalfRoundsUp},
                       {"100", "100 rounded to the nearest hundred is 100."}};
    EXPECT_EQ(LogOfRounding("100", Hundred), expected);
    EXPECT_EQ(LogOfRounding("1000", Thousand)[1].second, kHalfRoundsUp);
    EXPECT_EQ(LogOfRounding("10", Ten)[1].second, kHalfRoundsUp);
    // Cut to 1000.
    EXPECT_EQ(LogOfRounding("1000.99", Thousand)[1].second, kHalfRoundsUp);
    EXPECT_EQ(LogOfRounding("1001", Thousand)[1].second,
              "Find the thousand position in the number and round.");
}

struct Case {
    std::string v;
    int row;
    std::string result;

    friend void PrintTo(const Case& shown, std::ostream* out) {
        *out << shown.v << ", row " << shown.row;
    }
};

class Rounded : public testing::TestWithParam<Case> {};

TEST_P(Rounded, ToPlace) {
    const auto& [v, row, result] = GetParam();
    const std::string word = row == Thousand ? "thousand" : row == Hundred ? "hundred" : "ten";
    const Log log = LogOfRounding(v, row);
    ASSERT_EQ(log.size(), 3U);
    EXPECT_EQ(log[0], std::pair(v, std::string()));
    EXPECT_EQ(log[1].first, v + " rounded to the nearest " + word + ":");
    EXPECT_EQ(log[2],
              std::pair(result, v + " rounded to the nearest " + word + " is " + result + "."));
}

const std::vector<Case> kToPlace{
    {"149", Hundred, "100"},
    {"150", Hundred, "200"},
    {"999", Hundred, "1000"},
    {"95", Ten, "100"},
    {"11", Ten, "10"},
    {"15", Ten, "20"},
    {"1499", Thousand, "1000"},
    {"1500", Thousand, "2000"},
    {"9999", Thousand, "10000"},
    {"99999999", Thousand, "100000000"},
    {"12345678", Ten, "12345680"},
    // on the half of the place and beside it
    {"499", Thousand, "0"},
    {"500", Thousand, "1000"},
    {"4", Ten, "0"},
    {"5", Ten, "10"},
    {"49", Hundred, "0"},
    {"0", Thousand, "0"},
    // decimals are cut off, not rounded first
    {"149.5", Hundred, "100"},
    {"149.99", Hundred, "100"},
    {"34.6", Ten, "30"},
    {"34.99", Ten, "30"},
    {"35.01", Ten, "40"},
    {"10.5", Ten, "10"},
    // but the half is compared with the number as typed
    {"4.99", Ten, "0"},
    {"5.00", Ten, "10"},
    {"49.99", Hundred, "0"},
    {"50.5", Hundred, "100"},
    {"499.99", Thousand, "0"},
    {".5", Ten, "0"},
    // leading zeros stay in the sentences
    {"007", Ten, "10"},
    {"0004", Ten, "0"},
    {"01250", Hundred, "1300"},
};

INSTANTIATE_TEST_SUITE_P(Places, Rounded, testing::ValuesIn(kToPlace));

TEST(RoundDecimal, ToAWholeNumber) {
    const Log expected{{"2.5", ""},
                       {"2.5 rounded to the nearest whole number:", kHalfRoundsUp},
                       {"3", "Round to the nearest whole number (no decimal places)."}};
    EXPECT_EQ(LogOfRounding("2.5", Whole), expected);
}

TEST(RoundDecimal, ToATenth) {
    const Log expected{{"2.45", ""},
                       {"2.45 rounded to the nearest tenth:", kHalfRoundsUp},
                       {"2.5", "Round to the nearest tenth (one digit after the decimal point)."}};
    EXPECT_EQ(LogOfRounding("2.45", Tenth), expected);
}

TEST(RoundDecimal, ToAHundredth) {
    const Log expected{
        {"2.5", ""},
        {"2.5 rounded to the nearest hundredth:", kHalfRoundsUp},
        {"2.50", "Round to the nearest hundredth (two digits after the decimal point)."}};
    EXPECT_EQ(LogOfRounding("2.5", Hundredth), expected);
}

TEST(RoundDecimal, ToAThousandth) {
    const Log expected{
        {"1.25", ""},
        {"1.25 rounded to the nearest thousandth:", kHalfRoundsUp},
        {"1.250", "Round to the nearest thousandth (three digits after the decimal point)."}};
    EXPECT_EQ(LogOfRounding("1.25", Thousandth), expected);
}

class RoundedDecimal : public testing::TestWithParam<Case> {};

TEST_P(RoundedDecimal, ToDigits) {
    const auto& [v, row, result] = GetParam();
    const Log log = LogOfRounding(v, row);
    ASSERT_EQ(log.size(), 3U);
    EXPECT_EQ(log[0], std::pair(v, std::string()));
    EXPECT_EQ(log[2].first, result);
}

const std::vector<Case> kToDigits{
    // a 5 always rounds up
    {"0.5", Whole, "1"},
    {"1.5", Whole, "2"},
    {"3.5", Whole, "4"},
    {"4.5", Whole, "5"},
    {"4.49", Whole, "4"},
    {"0.49", Whole, "0"},
    {"2.25", Tenth, "2.3"},
    {"2.35", Tenth, "2.4"},
    {"99999999.5", Whole, "100000000"},
    // without decimals nothing is appended
    {"12", Whole, "12"},
    {"0", Whole, "0"},
    {"12", Tenth, "12.0"},
    {"12", Hundredth, "12.00"},
    {"12", Thousandth, "12.000"},
    {"12.", Whole, "12"},
    {"12.", Tenth, "12.0"},
    // all places are shown
    {"2.5", Tenth, "2.5"},
    {"2.5", Thousandth, "2.500"},
    {"1.25", Hundredth, "1.25"},
    {"9.99", Tenth, "10.0"},
    {"100", Tenth, "100.0"},
    {"99999999.99", Tenth, "100000000.0"},
    // no lone 0 before the point
    {"0.46", Tenth, ".5"},
    {".46", Tenth, ".5"},
    {"0.04", Tenth, ".0"},
    {"0.05", Tenth, ".1"},
    {"0", Tenth, ".0"},
    {"0", Hundredth, ".00"},
    {"0", Thousandth, ".000"},
    {"0.07", Hundredth, ".07"},
    {".5", Whole, "1"},
    // more decimals than the filter lets in
    {"2.345", Hundredth, "2.35"},
    {"2.0005", Thousandth, "2.001"},
    {"2.345", Thousandth, "2.345"},
    // leading zeros
    {"007.5", Whole, "8"},
    {"00.5", Tenth, ".5"},
};

INSTANTIATE_TEST_SUITE_P(Digits, RoundedDecimal, testing::ValuesIn(kToDigits));

TEST(Rounding, BarsFailBehindTheProblemLine) {
    for (const int row : {Thousand, Hundred, Ten}) {
        ExpectFailure(Rounding("|5|", row), FailureKind::Format, {{"|5|", ""}});
    }
}

TEST(Rounding, BarsFailBehindTheHeadingOfDecimals) {
    const std::pair<int, std::string> words[] = {
        {Whole, "whole number"}, {Tenth, "tenth"}, {Hundredth, "hundredth"}};
    for (const auto& [row, word] : words) {
        for (const std::string v : {"|5|", "|2.5|"}) {
            ExpectFailure(Rounding(v, row), FailureKind::Format,
                          {{v, ""}, {v + " rounded to the nearest " + word + ":", kHalfRoundsUp}});
        }
    }
}

TEST(Rounding, WithoutAChoiceNothingIsWritten) {
    ExpectFailure(Rounding("5", EntryBoxes::kNoChoice), FailureKind::Format, {});
    ExpectFailure(Rounding("5", Thousandth + 1), FailureKind::Format, {});
}

TEST(Rounding, TheFormOpensWithThousandsChosen) {
    EXPECT_EQ(LogOf(Solved(kRounding, "1500"))[1].first, "1500 rounded to the nearest thousand:");
}

TEST(Rounding, RandomNumbersToAPlaceRoundHalfUp) {
    constexpr std::int64_t kPlaceOf[] = {1000, 100, 10};
    TypedTopic topic(kRounding);
    Draws draws(980);
    for (int i = 0; i < kRandomProblems; ++i) {
        const TypedNumber v = DrawNumber(draws, 8, false);
        const int row = draws.Below(3);
        const std::int64_t place = kPlaceOf[row];
        const std::string result =
            std::to_string((v.hundredths + 50 * place) / (100 * place) * place);
        topic.SetList(kPlaces, row);
        EXPECT_EQ(topic.LogFor(v.text).back().first, result) << v.text << " row " << row;
    }
}

TEST(Rounding, RandomNumbersToDecimalsRoundHalfUp) {
    TypedTopic topic(kRounding);
    Draws draws(983);
    for (int i = 0; i < kRandomProblems; ++i) {
        const TypedNumber v = DrawNumber(draws, 8, false);
        const int row = Whole + draws.Below(4);
        const std::int64_t units[] = {(v.hundredths + 50) / 100, (v.hundredths + 5) / 10,
                                      v.hundredths, v.hundredths * 10};
        // Cut where the point goes in; the whole part has lost its lone 0.
        const std::size_t places = static_cast<std::size_t>(row - Whole);
        std::string result = std::to_string(units[places]);
        if (places > 0) {
            result.insert(0, places - std::min(places, result.size()), '0');
            result.insert(result.size() - places, ".");
        }
        topic.SetList(kPlaces, row);
        EXPECT_EQ(topic.LogFor(v.text).back().first, result) << v.text << " row " << row;
    }
}

}  // namespace
}  // namespace numerello
