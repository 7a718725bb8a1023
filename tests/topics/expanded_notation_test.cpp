#include <algorithm>
#include <map>

#include "tests/topics/typed_topic.h"

namespace numerello {
namespace {

constexpr int kExpandedNotation = 99;

void ExpectLines(const std::string& v, const std::vector<std::string>& lines) {
    Log expected{{v, ""}};
    for (const std::string& line : lines) {
        expected.emplace_back(line, v + " in expanded notation.");
    }
    EXPECT_EQ(LogOf(Solved(kExpandedNotation, v)), expected);
}

TEST(ExpandedNotation, WritesDigitAfterDigit) {
    const Log expected{{"205", ""}, {"2 hundreds, 0 tens, 5 ones", "205 in expanded notation."}};
    EXPECT_EQ(LogOf(Solved(kExpandedNotation, "205")), expected);
}

TEST(ExpandedNotation, AOneStandsInTheSingular) {
    ExpectLines("1", {"1 one"});
    ExpectLines("11111", {"1 ten thousand, 1 thousand, 1 hundred, 1 ten, 1 one"});
    ExpectLines("21", {"2 tens, 1 one"});
}

TEST(ExpandedNotation, AZeroIsWritten) {
    ExpectLines("0", {"0 ones"});
    ExpectLines("10", {"1 ten, 0 ones"});
    ExpectLines("1000", {"1 thousand, 0 hundreds, 0 tens, 0 ones"});
}

TEST(ExpandedNotation, LeadingZerosAreRepeatedButNotExpanded) {
    ExpectLines("0012", {"1 ten, 2 ones"});
    ExpectLines("007", {"7 ones"});
    ExpectLines("0000000000", {"0 ones"});
}

TEST(ExpandedNotation, FiveDigitsStandInOneLine) {
    ExpectLines("98765", {"9 ten thousands, 8 thousands, 7 hundreds, 6 tens, 5 ones"});
}

TEST(ExpandedNotation, TheSecondLineBeginsOnceTheFirstHas61Characters) {
    // 20 + 16 + 13 + 12 = 61 characters up to the hundreds.
    ExpectLines("112222", {"1 hundred thousand, 1 ten thousand, 2 thousands, 2 hundreds, ",
                           "2 tens, 2 ones"});
    // 20 + 16 + 12 + 12 = 60: the tens still go into the first line.
    ExpectLines("111222",
                {"1 hundred thousand, 1 ten thousand, 1 thousand, 2 hundreds, 2 tens, ", "2 ones"});
    // 21 + 17 + 13 = 51 up to the thousands, 63 with the hundreds.
    ExpectLines("222222", {"2 hundred thousands, 2 ten thousands, 2 thousands, 2 hundreds, ",
                           "2 tens, 2 ones"});
    // 11 + 20 + 16 + 12 = 59 up to the thousands, 70 with the hundreds.
    ExpectLines("1111111", {"1 million, 1 hundred thousand, 1 ten thousand, 1 thousand, "
                            "1 hundred, ",
                            "1 ten, 1 one"});
}

TEST(ExpandedNotation, TheFirstLineTakesEverythingAboveTheTenThousands) {
    // 12 + 20 + 16 + 12 + 21 = 81 characters.
    const std::string first =
        "2 billions, 2 hundred millions, 2 ten millions, 2 millions, 2 hundred thousands, ";
    ASSERT_EQ(first.size(), 81U);
    ExpectLines("2222222222", {first, "2 ten thousands, 2 thousands, 2 hundreds, 2 tens, 2 ones"});
    ExpectLines("1234567890", {"1 billion, 2 hundred millions, 3 ten millions, 4 millions, "
                               "5 hundred thousands, ",
                               "6 ten thousands, 7 thousands, 8 hundreds, 9 tens, 0 ones"});
}

TEST(ExpandedNotation, DigitsBeyondTheTenthArePassedOver) {
    ExpectLines("92345678901", {"2 billions, 3 hundred millions, 4 ten millions, 5 millions, "
                                "6 hundred thousands, ",
                                "7 ten thousands, 8 thousands, 9 hundreds, 0 tens, 1 one"});
}

TEST(ExpandedNotation, TheDigitsAreThoseOfTheAbsoluteValue) {
    ExpectLines("-205", {"2 hundreds, 0 tens, 5 ones"});
}

TEST(ExpandedNotation, TextThatIsNoNumberKeepsTheProblemLine) {
    ExpectFailure(ProblemOf(kExpandedNotation, "-"), FailureKind::Format, {{"-", ""}});
}

/// What a place is worth.
const std::map<std::string, std::int64_t> kWorth{{"one", 1},
                                                 {"ten", 10},
                                                 {"hundred", 100},
                                                 {"thousand", 1000},
                                                 {"ten thousand", 10000},
                                                 {"hundred thousand", 100000},
                                                 {"million", 1000000},
                                                 {"ten million", 10000000},
                                                 {"hundred million", 100000000},
                                                 {"billion", 1000000000}};

/// The number that the words name, -1 when they name none.
std::int64_t NumberInWords(std::string words) {
    std::int64_t number = 0;
    for (words += ", "; !words.empty();) {
        const std::size_t end = words.find(", ");
        const std::string piece = words.substr(0, end);
        words.erase(0, end + 2);
        if (piece.size() < 3 || piece[1] != ' ' || piece[0] < '0' || piece[0] > '9') {
            return -1;
        }
        const int digit = piece[0] - '0';
        const bool plural = piece.back() == 's';
        const auto worth = kWorth.find(piece.substr(2, piece.size() - 2 - (plural ? 1 : 0)));
        if (worth == kWorth.end() || plural != (digit != 1)) {
            return -1;
        }
        number += digit * worth->second;
    }
    return number;
}

TEST(ExpandedNotation, TheWordsNameTheNumber) {
    const TypedTopic topic(kExpandedNotation);
    Draws draws(99);
    for (int i = 0; i < kRandomProblems; ++i) {
        const std::string v = draws.Digits(10);
        const Log log = topic.LogFor(v);
        ASSERT_GE(log.size(), 2U) << v;
        const std::string words = log[1].first + (log.size() == 3 ? log[2].first : "");
        EXPECT_EQ(NumberInWords(words), std::stoll(v)) << words;
        const auto digits = static_cast<std::ptrdiff_t>(std::to_string(std::stoll(v)).size());
        EXPECT_EQ(std::count(words.begin(), words.end(), ','), digits - 1) << words;
    }
}

}  // namespace
}  // namespace numerello
