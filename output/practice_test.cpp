#include "output/practice_test.h"

#include <cstdint>
#include <utility>

#include "catalogue/examples/example.h"
#include "catalogue/topics.h"
#include "core/number.h"
#include "core/text.h"
#include "output/test_headings.h"

namespace numerello {

namespace {

void WriteLine(PracticeTest& test, std::string line) {
    test.TestLines[test.TestLineCount] = std::move(line);
    ++test.TestLineCount;
}

/// Neighbouring moments may draw the same digits.
constexpr int kMostRepeats = 50;

/// A problem that differs from the one printed before it, where the clock goes on.
Example NextExample(const PracticeTest& test, bool complex, ExampleDraws& draws,
                    SteppingClock* clock, std::string_view before) {
    const int complexEx = complex ? AnswerSettings::kComplex : 0;
    Example example = GenerateExample(test.topic, true, complexEx, draws);
    if (clock == nullptr) {
        return example;
    }
    clock->Step();
    for (int repeats = 0; example.printed == before && repeats < kMostRepeats; ++repeats) {
        example = GenerateExample(test.topic, true, complexEx, draws);
        clock->Step();
    }
    return example;
}

void WriteProblem(PracticeTest& test, const Example& example) {
    const auto number = static_cast<std::int64_t>(test.problems.size()) + 1;
    const std::string line =
        Text(WholeText(number), ") ", example.printed, example.suffix, test.TestSuffix);
    WriteLine(test, line);
    test.problems.push_back({line, test.topic, example.keys, example.boxes});
}

}  // namespace

std::vector<std::string> PracticeTest::Lines() const {
    std::vector<std::string> lines;
    lines.reserve(static_cast<std::size_t>(TestLineCount));
    for (int i = 0; i < TestLineCount; ++i) {
        lines.push_back(TestLines[i]);
    }
    return lines;
}

void SetTestTopic(std::string_view Name, PracticeTest& test) {
    test.topic.MaxDigits = 5;
    const TestTopic* found = FindTestTopic(Name);
    if (found == nullptr) {
        return;
    }
    const Topic& topic = *FindTopic(Name);
    test.topic.TopicTitle = topic.caption;
    test.topic.ProblemType = topic.code;
    test.TestHeading = found->heading;
    test.TestSuffix = found->suffix;
    if (found->walks) {
        test.topic.InputMask = BinaryFlagValue(found->Mask());
        test.topic.MaxVariables = topic.variables;
    }
    if (topic.linearGraph) {
        test.topic.LinearGraphTopic = 1;
    }
}

void CreatePracticeTest(std::span<const TestRow> rows, PracticeTest& test, ExampleDraws& draws,
                        SteppingClock* clock) {
    test = PracticeTest();
    std::string printed;
    for (const TestRow& row : rows) {
        if (row.topic.empty()) {
            continue;
        }
        test.TestSuffix.clear();
        SetTestTopic(row.topic, test);
        WriteLine(test, "");
        WriteLine(test, test.TestHeading);
        test.TestHeading.clear();
        for (int i = 0; i < row.count; ++i) {
            const Example example = NextExample(test, row.complex, draws, clock, printed);
            WriteProblem(test, example);
            printed = example.printed;
        }
    }
}

}  // namespace numerello
