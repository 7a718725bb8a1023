#include "tests/topics/solver_log.h"
#include "topics/conversions.h"

namespace numerello {
namespace {

Problem Metric(int code, std::string_view value, int from, int to, int RoundDigits = 2) {
    Problem problem = ProblemOf(code);
    problem.boxes.Text[3] = value;
    problem.boxes.ListIndex = {from, to, 0};
    problem.settings.RoundDigits = RoundDigits;
    return Solved(std::move(problem));
}

TEST(MetricConversions, MillimetersToKilometers) {
    const Log expected{
        {"1 mm = ? km", ""},
        {"To convert 1 mm to km:", "Convert 1 mm to km."},
        {"Multiply 1 by the number of meters in a mm (0.001)", "Multiply 1 by 0.001."},
        {"Then divide by the number of meters in a km (1000) ", "Divide by 0.001."},
        {"#1 * 0.001/1000#",
         "Multiply the values in the numerator then divide by the denominator."},
        {"1 mm = 0.000001 km", "1 mm converted to km."}};
    EXPECT_EQ(LogOf(Metric(23, "1", 0, 6)), expected);
}

TEST(MetricConversions, HectogramsToDecigrams) {
    // 2.5 * 100 / 0.1 = 2500
    const Log expected{
        {"2.5 hg = ? dg", ""},
        {"To convert 2.5 hg to dg:", "Convert 2.5 hg to dg."},
        {"Multiply 2.5 by the number of grams in a hg (100)", "Multiply 2.5 by 100."},
        {"Then divide by the number of grams in a dg (0.1) ", "Divide by 100."},
        {"#2.5 * 100/0.1#", "Multiply the values in the numerator then divide by the denominator."},
        {"2.5 hg = 2500 dg", "2.5 hg converted to dg."}};
    EXPECT_EQ(LogOf(Metric(24, "2.5", 5, 2)), expected);
}

TEST(MetricConversions, EveryUnitHasItsPrefixAndFactor) {
    const std::vector<std::pair<std::string, std::string>> units{
        {"mm", "0.001"}, {"cm", "0.01"}, {"dm", "0.1"}, {"m", "1"},
        {"dam", "10"},   {"hm", "100"},  {"km", "1000"}};
    for (int row = 0; row < 7; ++row) {
        const auto& [name, factor] = units[static_cast<std::size_t>(row)];
        const Log log = LogOf(Metric(23, "5", row, row));
        EXPECT_EQ(log[0].first, "5 " + name + " = ? " + name);
        EXPECT_EQ(log[2].first,
                  "Multiply 5 by the number of meters in a " + name + " (" + factor + ")");
        EXPECT_EQ(log[5].first, "5 " + name + " = 5 " + name);
    }
}

TEST(MetricConversions, TheListsNameUnitAndFactor) {
    const std::vector<std::pair<std::string_view, std::string_view>> items{
        {"mm (0.001 meters)", "mg (0.001 grams)"}, {"cm (0.01 meters)", "cg (0.01 grams)"},
        {"dm (0.1 meters)", "dg (0.1 grams)"},     {"m (1 meter)", "g (1 gram)"},
        {"dam (10 meters)", "dag (10 grams)"},     {"hm (100 meters)", "hg (100 grams)"},
        {"km (1000 meters)", "kg (1000 grams)"}};
    ASSERT_EQ(items.size(), static_cast<std::size_t>(kMetricItems));
    for (int row = 0; row < kMetricItems; ++row) {
        const auto& [length, mass] = items[static_cast<std::size_t>(row)];
        EXPECT_EQ(MetricItem(row, 1), length);
        EXPECT_EQ(MetricItem(row, 2), mass);
    }
}

TEST(MetricConversions, RoundAtSevenPlacesWhateverTheSetting) {
    // 1.23456 mm are 0.00000123456 km.
    EXPECT_EQ(LogOf(Metric(23, "1.23456", 0, 6, 2)).back().first, "1.23456 mm = 0.0000012 km");
    EXPECT_EQ(LogOf(Metric(23, "1.23456", 0, 6, 5)).back().first, "1.23456 mm = 0.0000012 km");
    EXPECT_EQ(LogOf(Metric(23, "1.123456789", 3, 3)).back().first, "1.123456789 m = 1.1234568 m");
}

TEST(MetricConversions, AskForTheirRowOnTheFirstSheet) {
    EXPECT_EQ(Metric(23, "1", 0, 6).playback.DrawingRow, 243);
}

TEST(MetricConversions, NegativeValuesAreWorkedLikeAny) {
    EXPECT_EQ(LogOf(Metric(23, "-5", 6, 3)).back().first, "-5 km = -5000 m");
}

TEST(MetricConversions, AListWithoutAChoiceIsAFormatFailureWithAnEmptyLog) {
    Problem problem = ProblemOf(23);
    problem.boxes.Text[3] = "1";
    problem.boxes.ListIndex = {0, EntryBoxes::kNoChoice, 0};
    EXPECT_EQ(FailureOf(problem), FailureKind::Format);
    EXPECT_EQ(problem.log.StepCount, 1);
}

TEST(MetricConversions, TextThatIsNoNumberFailsAtTheResult) {
    Problem problem = ProblemOf(24);
    problem.boxes.Text[3] = "-";
    problem.boxes.ListIndex = {0, 6, 0};
    EXPECT_EQ(FailureOf(problem), FailureKind::Format);
    EXPECT_EQ(problem.log.StepCount, 6);
}

TEST(MetricConversions, AFactorOfNoUnitIsAFormatFailure) {
    Problem problem;
    EXPECT_THROW(ConvertMetric(problem, "1", 5, 1, 1), Failure);
    EXPECT_THROW(MetricFactor(7), Failure);
    EXPECT_THROW(MetricFactor(-1), Failure);
}

}  // namespace
}  // namespace numerello
