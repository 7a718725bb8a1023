#include <algorithm>

#include "tests/topics/exact.h"

namespace numerello {
namespace {

constexpr int kMeans = 62;
constexpr int kMedians = 61;

TEST(FindMean, AddsAndDivides) {
    const Log expected{
        {"2,4,9", ""},
        {"Add all the numbers then divide by the amount of numbers:",
         "The mean of a group of numbers is the average of that group."},
        {"Average = #2+4+9 / 3#", "There are 3 numbers, so add all the numbers and divide by 3"},
        {"Average = #15 / 3#", "Add all the numbers in the numerator."},
        {"Average = 5", "Divide to find the average."}};
    EXPECT_EQ(LogOf(Solved(kMeans, "2,4,9")), expected);
}

TEST(FindMean, ANegativeNumberIsSubtracted) {
    // -2 - 4 + 1.5 = -4.5
    const Log log = LogOf(Solved(kMeans, "-2,-4,1.5"));
    EXPECT_EQ(log[2].first, "Average = #-2-4+1.5 / 3#");
    EXPECT_EQ(log[3].first, "Average = #-4.5 / 3#");
    EXPECT_EQ(log[4].first, "Average = -1.5");
}

TEST(FindMean, ShowsNoNoiseOfAdding) {
    const Log log = LogOf(Solved(kMeans, "0.1,0.2,-0.3"));
    EXPECT_EQ(log[3].first, "Average = #0 / 3#");
    EXPECT_EQ(log[4].first, "Average = 0");
    EXPECT_EQ(LogOf(Solved(kMeans, "-10,10.1"))[3].first, "Average = #0.1 / 2#");
    EXPECT_EQ(LogOf(Solved(kMedians, "-10,10.1")).back().first, "The median is 0.05");
}

TEST(FindMean, OfOneNumber) {
    const Log expected{
        {"7", ""},
        {"Add all the numbers then divide by the amount of numbers:",
         "The mean of a group of numbers is the average of that group."},
        {"Average = #7 / 1#", "There are 1 numbers, so add all the numbers and divide by 1"},
        {"Average = #7 / 1#", "Add all the numbers in the numerator."},
        {"Average = 7", "Divide to find the average."}};
    EXPECT_EQ(LogOf(Solved(kMeans, "7")), expected);
}

TEST(FindMean, TheEntriesAreRepeatedAsTyped) {
    const Log log = LogOf(Solved(kMeans, "007,2.50,.5"));
    EXPECT_EQ(log[2].first, "Average = #007+2.50+.5 / 3#");
    EXPECT_EQ(log[3].first, "Average = #10 / 3#");
    EXPECT_EQ(log[4].first, "Average = 3.33");
}

TEST(FindMean, IsRoundedAsTheLearnerChose) {
    // 5 / 3
    EXPECT_EQ(LogOf(Solved(kMeans, "1,2,2", 1)).back().first, "Average = 1.7");
    EXPECT_EQ(LogOf(Solved(kMeans, "1,2,2", 4)).back().first, "Average = 1.6667");
    EXPECT_EQ(LogOf(Solved(kMeans, "1,2,2", 5)).back().first, "Average = 1.66667");
    // The ties 0.25, 0.75 and 2.125 go to the even neighbour.
    EXPECT_EQ(LogOf(Solved(kMeans, "0.5,0", 1)).back().first, "Average = 0.2");
    EXPECT_EQ(LogOf(Solved(kMeans, "1.5,0", 1)).back().first, "Average = 0.8");
    EXPECT_EQ(LogOf(Solved(kMeans, "4.25,0")).back().first, "Average = 2.12");
    // 2.675 times 100 is the tie 267.5.
    EXPECT_EQ(LogOf(Solved(kMeans, "5.35,0")).back().first, "Average = 2.68");
}

TEST(FindMean, ASmallNegativeMeanHasNoSignOnceItIsZero) {
    EXPECT_EQ(LogOf(Solved(kMeans, "-0.01,0,0")).back().first, "Average = 0");
}

TEST(FindMean, AnEntryThatIsNoNumberFailsAtTheSum) {
    const std::pair<std::string, std::string> sums[] = {
        {"2,4,", "2+4+"}, {"2,,4", "2++4"}, {"2,-,4", "2-+4"}, {",2,4", "+2+4"}};
    for (const auto& [v, sum] : sums) {
        ExpectFailure(ProblemOf(kMeans, v), FailureKind::Format,
                      {{v, ""},
                       {"Add all the numbers then divide by the amount of numbers:",
                        "The mean of a group of numbers is the average of that group."},
                       {"Average = #" + sum + " / 3#",
                        "There are 3 numbers, so add all the numbers and divide by 3"}});
    }
}

TEST(FindMedian, OfAnOddAmount) {
    const Log expected{
        {"9,2,4", ""},
        {"To determine the median, arrange the numbers from smallest to largest:",
         "The median of a group of numbers is the number in the middle of that group after it is "
         "arranged from smallest to largest."},
        {"2,4,9", "Arranged from smallest to largest."},
        {"If the amount of numbers is odd, the median is the number in the middle.",
         "If there are an odd amount of numbers, an equal amount of numbers fall on both sides of "
         "the median."},
        {"There is an odd amount of numbers: 3", "The sum of the numbers does not divide evenly."},
        {"The median is 4", "Determine the median."}};
    EXPECT_EQ(LogOf(Solved(kMedians, "9,2,4")), expected);
}

TEST(FindMedian, OfAnEvenAmount) {
    const Log expected{
        {"4,1,3,2", ""},
        {"To determine the median, arrange the numbers from smallest to largest:",
         "The median of a group of numbers is the number in the middle of that group after it is "
         "arranged from smallest to largest."},
        {"1,2,3,4", "Arranged from smallest to largest."},
        {"If the amount is even, the median is the average of the two middle numbers.",
         "The average of two numbers is the sum divided by 2."},
        {"There is an even amount of numbers: 4", "The sum of the numbers divides evenly by 2."},
        {"Take the average of the two middle numbers: 2 and 3",
         "The average is the sum of the two middle numbers divided by 2."},
        {"The median is 2.5", "Determine the median."}};
    EXPECT_EQ(LogOf(Solved(kMedians, "4,1,3,2")), expected);
}

TEST(FindMedian, OfOneNumberIsTheNumber) {
    const Log log = LogOf(Solved(kMedians, "7"));
    ASSERT_EQ(log.size(), 6U);
    EXPECT_EQ(log[2].first, "7");
    EXPECT_EQ(log[4].first, "There is an odd amount of numbers: 1");
    EXPECT_EQ(log[5].first, "The median is 7");
}

TEST(FindMedian, IsArrangedByValue) {
    EXPECT_EQ(LogOf(Solved(kMedians, "10,9,-1,-10,.5"))[2].first, "-10,-1,.5,9,10");
    EXPECT_EQ(LogOf(Solved(kMedians, "5,5,1"))[2].first, "1,5,5");
}

TEST(FindMedian, TheEntriesAreRepeatedAsTyped) {
    const Log even = LogOf(Solved(kMedians, "2.50,01"));
    EXPECT_EQ(even[2].first, "01,2.50");
    EXPECT_EQ(even[5].first, "Take the average of the two middle numbers: 01 and 2.50");
    EXPECT_EQ(even[6].first, "The median is 1.75");
    EXPECT_EQ(LogOf(Solved(kMedians, "1,2.0,3")).back().first, "The median is 2.0");
}

TEST(FindMedian, TheAverageIsNotRounded) {
    EXPECT_EQ(LogOf(Solved(kMedians, "1.25,1.26", 1)).back().first, "The median is 1.255");
    EXPECT_EQ(LogOf(Solved(kMedians, "1.25,1.26", 5)).back().first, "The median is 1.255");
    EXPECT_EQ(LogOf(Solved(kMedians, "-1,1")).back().first, "The median is 0");
}

TEST(FindMedian, AnEntryThatIsNoNumberKeepsTheProblemLine) {
    for (const char* v : {"2,4,", "2,,4", "2,-", ",2"}) {
        ExpectFailure(ProblemOf(kMedians, v), FailureKind::Format, {{v, ""}});
    }
}

std::vector<TypedNumber> DrawList(Draws& draws) {
    std::vector<TypedNumber> numbers;
    for (int i = draws.Below(12); i >= 0; --i) {
        numbers.push_back(DrawNumber(draws, 5, true));
    }
    return numbers;
}

std::string Line(const std::vector<TypedNumber>& numbers) {
    std::vector<std::string> texts;
    for (const TypedNumber& number : numbers) {
        texts.push_back(number.text);
    }
    return Joined(texts, ",");
}

/// The whole number next to the quotient, or both neighbours of a tie, on either side of which the
/// Double may stand.
std::vector<std::int64_t> NearestTo(std::int64_t dividend, std::int64_t divisor) {
    std::int64_t below = dividend / divisor;
    if (below * divisor > dividend) {
        --below;
    }
    const std::int64_t twiceRest = 2 * (dividend - below * divisor);
    if (twiceRest == divisor) {
        return {below, below + 1};
    }
    return {twiceRest < divisor ? below : below + 1};
}

TEST(FindMean, IsTheSumOfRandomListsOverTheirCount) {
    TypedTopic topic(kMeans);
    Draws draws(62);
    for (int i = 0; i < kRandomProblems; ++i) {
        const std::vector<TypedNumber> numbers = DrawList(draws);
        std::int64_t hundredths = 0;
        for (const TypedNumber& number : numbers) {
            hundredths += number.hundredths;
        }
        const auto count = static_cast<std::int64_t>(numbers.size());
        const auto places = static_cast<std::size_t>(1 + draws.Below(5));
        topic.SetRoundDigits(static_cast<int>(places));
        const Log log = topic.LogFor(Line(numbers));
        ASSERT_EQ(log.size(), 5U);
        ExpectThousandths(log[3].first, "Average = #", 10 * hundredths,
                          " / " + std::to_string(count) + "#");
        std::int64_t scale = 1;
        for (std::size_t place = 0; place < places; ++place) {
            scale *= 10;
        }
        std::vector<std::string> answers;
        for (const std::int64_t mean : NearestTo(hundredths * scale, 100 * count)) {
            answers.push_back("Average = " + ExactText(mean, places));
        }
        EXPECT_NE(std::find(answers.begin(), answers.end(), log[4].first), answers.end())
            << log[4].first << " for " << log[0].first << ", " << answers.front();
    }
}

TEST(FindMedian, IsTheMiddleOfRandomListsInOrder) {
    const TypedTopic topic(kMedians);
    Draws draws(61);
    for (int i = 0; i < kRandomProblems; ++i) {
        std::vector<TypedNumber> numbers = DrawList(draws);
        const Log log = topic.LogFor(Line(numbers));
        // Each number goes left past all larger ones.
        for (std::size_t from = 1; from < numbers.size(); ++from) {
            for (std::size_t at = from; at > 0; --at) {
                if (numbers[at].hundredths < numbers[at - 1].hundredths) {
                    std::swap(numbers[at], numbers[at - 1]);
                }
            }
        }
        EXPECT_EQ(log[2].first, Line(numbers));
        const TypedNumber& upper = numbers[numbers.size() / 2];
        if (numbers.size() % 2 == 1) {
            EXPECT_EQ(log.back().first, "The median is " + upper.text);
        } else {
            const TypedNumber& lower = numbers[numbers.size() / 2 - 1];
            const std::int64_t thousandths = 5 * (lower.hundredths + upper.hundredths);
            ExpectThousandths(log.back().first, "The median is ", thousandths, "");
        }
    }
}

}  // namespace
}  // namespace numerello
