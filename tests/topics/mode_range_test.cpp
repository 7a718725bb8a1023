#include <algorithm>
#include <map>

#include "tests/topics/exact.h"

namespace numerello {
namespace {

constexpr int kModes = 60;
constexpr int kRanges = 59;

const std::string kRangeReason =
    "To find the range, determine the largest and smallest numbers in the group and subtract.";

TEST(FindRange, SubtractsTheSmallestFromTheLargest) {
    const Log expected{
        {"9,2,4", ""},
        {"The range of a group of numbers is the difference between the largest", kRangeReason},
        {"and smallest numbers in that group.", kRangeReason},
        {"9 - 2", "Subtract the smallest number from the largest."},
        {"The range is 7.", "Calculate the range."}};
    EXPECT_EQ(LogOf(Solved(kRanges, "9,2,4")), expected);
}

TEST(FindRange, ANegativeSmallestStandsInParentheses) {
    const std::pair<std::string, std::pair<std::string, std::string>> cases[] = {
        {"3,-2.5", {"3 - (-2.5)", "The range is 5.5."}},
        // a negative largest stands bare
        {"-1,-3", {"-1 - (-3)", "The range is 2."}},
        {"-4", {"-4 - (-4)", "The range is 0."}},
        {"-7,0", {"0 - (-7)", "The range is 7."}},
    };
    for (const auto& [v, lines] : cases) {
        const Log log = LogOf(Solved(kRanges, v));
        ASSERT_EQ(log.size(), 5U);
        EXPECT_EQ(log[3].first, lines.first);
        EXPECT_EQ(log[4].first, lines.second);
    }
}

TEST(FindRange, ShowsNoNoiseOfSubtracting) {
    EXPECT_EQ(LogOf(Solved(kRanges, "100.1,100")).back().first, "The range is 0.1.");
}

TEST(FindRange, OfOneNumberIsZero) {
    const Log log = LogOf(Solved(kRanges, "5"));
    EXPECT_EQ(log[3].first, "5 - 5");
    EXPECT_EQ(log[4].first, "The range is 0.");
}

TEST(FindRange, TheNumbersAreRepeatedAsTyped) {
    EXPECT_EQ(LogOf(Solved(kRanges, "007,2.50"))[3].first, "007 - 2.50");
    EXPECT_EQ(LogOf(Solved(kRanges, "007,2.50"))[4].first, "The range is 4.5.");
    // Of equal values the first.
    EXPECT_EQ(LogOf(Solved(kRanges, "2.0,2"))[3].first, "2.0 - 2.0");
    EXPECT_EQ(LogOf(Solved(kRanges, "2,2.0,1.0,1"))[3].first, "2 - 1.0");
    // 0.3 - 0.1 as it is read, not as a Double holds it.
    EXPECT_EQ(LogOf(Solved(kRanges, "0.3,0.1"))[4].first, "The range is 0.2.");
}

TEST(FindRange, AnEntryThatIsNoNumberKeepsTheProblemLine) {
    for (const char* v : {"2,4,", "2,,4", "2,-", ",2"}) {
        ExpectFailure(ProblemOf(kRanges, v), FailureKind::Format, {{v, ""}});
    }
}

TEST(FindRange, IsTheLargestOfRandomListsLessTheSmallest) {
    const TypedTopic topic(kRanges);
    Draws draws(59);
    for (int i = 0; i < kRandomProblems; ++i) {
        std::vector<std::string> texts;
        TypedNumber largest;
        TypedNumber smallest;
        for (int left = draws.Below(12); left >= 0; --left) {
            const TypedNumber number = DrawNumber(draws, 5, true);
            if (texts.empty() || number.hundredths > largest.hundredths) {
                largest = number;
            }
            if (texts.empty() || number.hundredths < smallest.hundredths) {
                smallest = number;
            }
            texts.push_back(number.text);
        }
        const std::string subtracted =
            smallest.hundredths < 0 ? "(" + smallest.text + ")" : smallest.text;
        const Log log = topic.LogFor(Joined(texts, ","));
        ASSERT_EQ(log.size(), 5U);
        EXPECT_EQ(log[3].first, largest.text + " - " + subtracted);
        ExpectThousandths(log[4].first, "The range is ",
                          10 * (largest.hundredths - smallest.hundredths), ".");
    }
}

Log LogOfMode(const std::string& v, const Log& ending) {
    Log log{{v, ""},
            {"The mode is the number (or numbers) that occurs most often in a group.",
             "Count the occurrence of each number in the group:"}};
    log.insert(log.end(), ending.begin(), ending.end());
    return log;
}

Log NoMode() {
    return {{"Each number occurs the same number of times (1).",
             "To find a mode, one or more of the numbers have to occur more than at least one "
             "number."},
            {"There is no mode.", "A mode could not be calculate from the given numbers."}};
}

Log OneMode(const std::string& mode, const std::string& count) {
    return {{mode + " occurs the most (" + count + " times):", "One mode has been found."},
            {"Mode: " + mode, "The mode of the given group of numbers."}};
}

Log Modes(const std::vector<std::string>& modes, const std::string& count) {
    return {
        {"There are " + std::to_string(modes.size()) + " modes, each occuring " + count + " times:",
         "Mulitple modes have been calculated."},
        {Joined(modes, ", "), "Modes of the given group of numbers."}};
}

TEST(FindMode, IsTheNumberThatOccursMostOften) {
    const Log expected{{"4,9,4", ""},
                       {"The mode is the number (or numbers) that occurs most often in a group.",
                        "Count the occurrence of each number in the group:"},
                       {"4 occurs the most (2 times):", "One mode has been found."},
                       {"Mode: 4", "The mode of the given group of numbers."}};
    EXPECT_EQ(LogOf(Solved(kModes, "4,9,4")), expected);
}

TEST(FindMode, AreAllNumbersThatOccurMostOftenInTheirOrder) {
    const Log expected{
        {"1,1,2,2", ""},
        {"The mode is the number (or numbers) that occurs most often in a group.",
         "Count the occurrence of each number in the group:"},
        {"There are 2 modes, each occuring 2 times:", "Mulitple modes have been calculated."},
        {"1, 2", "Modes of the given group of numbers."}};
    EXPECT_EQ(LogOf(Solved(kModes, "1,1,2,2")), expected);
    EXPECT_EQ(LogOf(Solved(kModes, "4,9,4,9,1")), LogOfMode("4,9,4,9,1", Modes({"4", "9"}, "2")));
    EXPECT_EQ(LogOf(Solved(kModes, "3,2,1,1,2,3")),
              LogOfMode("3,2,1,1,2,3", Modes({"3", "2", "1"}, "2")));
}

TEST(FindMode, IsNoneWhereEachNumberOccursOnce) {
    const Log expected{
        {"1,2,3", ""},
        {"The mode is the number (or numbers) that occurs most often in a group.",
         "Count the occurrence of each number in the group:"},
        {"Each number occurs the same number of times (1).",
         "To find a mode, one or more of the numbers have to occur more than at least one number."},
        {"There is no mode.", "A mode could not be calculate from the given numbers."}};
    EXPECT_EQ(LogOf(Solved(kModes, "1,2,3")), expected);
    EXPECT_EQ(LogOf(Solved(kModes, "7")), LogOfMode("7", NoMode()));
}

TEST(FindMode, OneNumberAloneInTheListIsItsMode) {
    EXPECT_EQ(LogOf(Solved(kModes, "5,5,5")), LogOfMode("5,5,5", OneMode("5", "3")));
}

TEST(FindMode, ANumberThatWasCountedIsNotCountedAgain) {
    EXPECT_EQ(LogOf(Solved(kModes, "1,1,1,2,2")), LogOfMode("1,1,1,2,2", OneMode("1", "3")));
    EXPECT_EQ(LogOf(Solved(kModes, "2,2,1,1,1")), LogOfMode("2,2,1,1,1", OneMode("1", "3")));
}

TEST(FindMode, ComparesTexts) {
    EXPECT_EQ(LogOf(Solved(kModes, "2,2.0")), LogOfMode("2,2.0", NoMode()));
    EXPECT_EQ(LogOf(Solved(kModes, "2,2.0,02,2.0")),
              LogOfMode("2,2.0,02,2.0", OneMode("2.0", "2")));
    EXPECT_EQ(LogOf(Solved(kModes, "-0,0,-0")), LogOfMode("-0,0,-0", OneMode("-0", "2")));
}

TEST(FindMode, TakesAnyEntryAndNeverFails) {
    EXPECT_EQ(LogOf(Solved(kModes, "5,5,")), LogOfMode("5,5,", OneMode("5", "2")));
    EXPECT_EQ(LogOf(Solved(kModes, "5,,")), LogOfMode("5,,", OneMode("", "2")));
    EXPECT_EQ(LogOf(Solved(kModes, "5,5,,")), LogOfMode("5,5,,", Modes({"5", ""}, "2")));
    EXPECT_EQ(LogOf(Solved(kModes, ",,5,5")), LogOfMode(",,5,5", Modes({"", "5"}, "2")));
    EXPECT_EQ(LogOf(Solved(kModes, "-,3,-")), LogOfMode("-,3,-", OneMode("-", "2")));
}

TEST(FindMode, AreTheMostFrequentEntriesOfRandomLists) {
    const TypedTopic topic(kModes);
    Draws draws(60);
    int endings[3] = {};
    for (int i = 0; i < kRandomProblems; ++i) {
        std::vector<std::string> entries;
        std::map<std::string, int> counts;
        int highest = 0;
        const int variety = 1 + draws.Below(20);
        for (int left = draws.Below(12); left >= 0; --left) {
            const std::string sign = draws.Below(4) == 0 ? "-" : "";
            const std::string decimals = draws.Below(4) == 0 ? ".0" : "";
            entries.push_back(sign + std::to_string(draws.Below(variety)) + decimals);
            highest = std::max(highest, ++counts[entries.back()]);
        }
        std::vector<std::string> modes;
        for (const std::string& entry : entries) {
            if (counts[entry] == highest) {
                modes.push_back(entry);
                counts[entry] = 0;
            }
        }
        const std::string count = std::to_string(highest);
        const Log ending = highest == 1        ? NoMode()
                           : modes.size() == 1 ? OneMode(modes[0], count)
                                               : Modes(modes, count);
        ++endings[highest == 1 ? 0 : modes.size() == 1 ? 1 : 2];
        const std::string v = Joined(entries, ",");
        EXPECT_EQ(topic.LogFor(v), LogOfMode(v, ending));
    }
    for (const int times : endings) {
        EXPECT_GT(times, 100);
    }
}

}  // namespace
}  // namespace numerello
