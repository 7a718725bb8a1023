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

void WriteProblem(PracticeTest& test, bool complex, ExampleDraws& draws) {
    const Example example =
        GenerateExample(test.topic, true, complex ? AnswerSettings::kComplex : 0, draws);
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

void CreatePracticeTest(std::span<const TestRow> rows, PracticeTest& test, ExampleDraws& draws) {
    test = PracticeTest();
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
            WriteProblem(test, row.complex, draws);
        }
    }
}

}  // namespace numerello
