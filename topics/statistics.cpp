#include "topics/statistics.h"

#include <algorithm>
#include <string>
#include <vector>

#include "core/number.h"
#include "core/text.h"
#include "topics/number_list.h"
#include "topics/results.h"

namespace numerello {

namespace {

std::string Count(std::size_t count) {
    return WholeText(static_cast<std::int64_t>(count));
}

std::string JoinedTexts(const std::vector<ListEntry>& entries) {
    std::string joined;
    for (const ListEntry& entry : entries) {
        joined += (joined.empty() ? "" : ",") + entry.text;
    }
    return joined;
}

std::string InParensIfNegative(const ListEntry& entry) {
    return entry.value < 0 ? Text("(", entry.text, ")") : entry.text;
}

void WriteOddMedian(StepLog& log, const std::vector<ListEntry>& sorted) {
    log.Write(
        "If the amount of numbers is odd, the median is the number in the middle.",
        "If there are an odd amount of numbers, an equal amount of numbers fall on both sides "
        "of the median.");
    log.Write(Text("There is an odd amount of numbers: ", Count(sorted.size())),
              "The sum of the numbers does not divide evenly.");
    log.Write(Text("The median is ", sorted[sorted.size() / 2].text), "Determine the median.");
}

void WriteEvenMedian(StepLog& log, const std::vector<ListEntry>& sorted) {
    const ListEntry& m1 = sorted[sorted.size() / 2 - 1];
    const ListEntry& m2 = sorted[sorted.size() / 2];
    log.Write("If the amount is even, the median is the average of the two middle numbers.",
              "The average of two numbers is the sum divided by 2.");
    log.Write(Text("There is an even amount of numbers: ", Count(sorted.size())),
              "The sum of the numbers divides evenly by 2.");
    log.Write(Text("Take the average of the two middle numbers: ", m1.text, " and ", m2.text),
              "The average is the sum of the two middle numbers divided by 2.");
    const double sum = Round(Checked(m1.value + m2.value), MostDecimals({m1, m2}));
    log.Write(Text("The median is ", NumberText(sum / 2)), "Determine the median.");
}

/// How often each entry's text occurs, told at its first place; 0 at the later ones.
std::vector<std::size_t> CountTexts(const std::vector<std::string>& entries) {
    std::vector<std::size_t> counts(entries.size(), 0);
    for (std::size_t i = 0; i < entries.size(); ++i) {
        const auto first = std::find(entries.begin(), entries.end(), entries[i]);
        ++counts[static_cast<std::size_t>(first - entries.begin())];
    }
    return counts;
}

void WriteModes(StepLog& log, const std::vector<std::string>& modes, const std::string& count) {
    if (modes.size() == 1) {
        log.Write(Text(modes.front(), " occurs the most (", count, " times):"),
                  "One mode has been found.");
        log.Write(Text("Mode: ", modes.front()), "The mode of the given group of numbers.");
        return;
    }
    std::string list;
    for (const std::string& mode : modes) {
        list += mode + ", ";
    }
    log.Write(Text("There are ", Count(modes.size()), " modes, each occuring ", count, " times:"),
              "Mulitple modes have been calculated.");
    log.Write(list.substr(0, list.size() - 2), "Modes of the given group of numbers.");
}

}  // namespace

void FindMean(Problem& problem, std::string_view ListText) {
    StepLog& log = problem.log;
    log.Write(std::string(ListText), "");
    const std::vector<std::string> entries = SplitList(ListText);
    const std::string n = Count(entries.size());
    const std::string sumText = Replace(Replace(ListText, ",", "+"), "+-", "-");
    log.Write("Add all the numbers then divide by the amount of numbers:",
              "The mean of a group of numbers is the average of that group.");
    // The reason ends without a period: kept as it is.
    log.Write(Text("Average = #", sumText, " / ", n, "#"),
              Text("There are ", n, " numbers, so add all the numbers and divide by ", n));

    const std::vector<ListEntry> values = ReadList(ListText);
    double sum = 0;
    for (const ListEntry& entry : values) {
        sum = Checked(sum + entry.value);
    }
    sum = Round(sum, MostDecimals(values));
    log.Write(Text("Average = #", NumberText(sum), " / ", n, "#"),
              "Add all the numbers in the numerator.");
    const double mean = sum / static_cast<double>(entries.size());
    log.Write(Text("Average = ", RoundedResult(problem, mean)), "Divide to find the average.");
}

void FindMedian(Problem& problem, std::string_view ListText) {
    StepLog& log = problem.log;
    log.Write(std::string(ListText), "");
    std::vector<ListEntry> sorted = ReadList(ListText);
    std::stable_sort(sorted.begin(), sorted.end(), SmallerValue);
    log.Write("To determine the median, arrange the numbers from smallest to largest:",
              "The median of a group of numbers is the number in the middle of that group after it "
              "is arranged from smallest to largest.");
    log.Write(JoinedTexts(sorted), "Arranged from smallest to largest.");
    if (sorted.size() % 2 == 1) {
        WriteOddMedian(log, sorted);
    } else {
        WriteEvenMedian(log, sorted);
    }
}

void FindRange(Problem& problem, std::string_view ListText) {
    StepLog& log = problem.log;
    log.Write(std::string(ListText), "");
    const std::vector<ListEntry> entries = ReadList(ListText);
    const ListEntry& largest = *std::max_element(entries.begin(), entries.end(), SmallerValue);
    const ListEntry& smallest = *std::min_element(entries.begin(), entries.end(), SmallerValue);
    // One sentence, broken over two lines.
    log.Write("The range of a group of numbers is the difference between the largest",
              "To find the range, determine the largest and smallest numbers in the group and "
              "subtract.");
    log.Write("and smallest numbers in that group.",
              "To find the range, determine the largest and smallest numbers in the group and "
              "subtract.");
    log.Write(Text(largest.text, " - ", InParensIfNegative(smallest)),
              "Subtract the smallest number from the largest.");
    const double difference = Checked(largest.value - smallest.value);
    log.Write(Text("The range is ", NumberText(Round(difference, MostDecimals(entries))), "."),
              "Calculate the range.");
}

void FindMode(Problem& problem, std::string_view ListText) {
    StepLog& log = problem.log;
    log.Write(std::string(ListText), "");
    log.Write("The mode is the number (or numbers) that occurs most often in a group.",
              "Count the occurrence of each number in the group:");

    // Compared as texts: 2 and 2.0 are different numbers.
    const std::vector<std::string> entries = SplitList(ListText);
    const std::vector<std::size_t> counts = CountTexts(entries);
    const std::size_t highest = *std::max_element(counts.begin(), counts.end());
    if (std::count(counts.begin(), counts.end(), highest) ==
        static_cast<std::ptrdiff_t>(counts.size())) {
        log.Write(Text("Each number occurs the same number of times (", Count(highest), ")."),
                  "To find a mode, one or more of the numbers have to occur more than at least one "
                  "number.");
        log.Write("There is no mode.", "A mode could not be calculate from the given numbers.");
        return;
    }
    std::vector<std::string> modes;
    for (std::size_t i = 0; i < entries.size(); ++i) {
        if (counts[i] == highest) {
            modes.push_back(entries[i]);
        }
    }
    WriteModes(log, modes, Count(highest));
}

}  // namespace numerello
