#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "catalogue/examples/draws.h"
#include "core/bounds.h"
#include "core/clock.h"
#include "core/problem.h"

/// A sheet of made-up problems over chosen topics.
namespace numerello {

/// How many rows an outline has, and how many problems its form lets a row ask for.
inline constexpr int kTestRows = 10;
inline constexpr int kMostProblemsOfRow = 18;

/// A row of the outline; one without a topic is left out.
struct TestRow {
    std::string topic;
    int count = 0;
    bool complex = false;
};

/// A problem of a test: its line, and what somebody would enter for it.
struct TestProblem {
    std::string line;
    TopicChoice topic;
    std::string keys;  ///< as in Example
    EntryBoxes boxes;
};

struct PracticeTest {
    static constexpr int kTopLine = 200;

    BoundedArray<std::string, kTopLine> TestLines;
    int TestLineCount = 0;              ///< next free index
    std::string TestHeading;            ///< waits to be written
    std::string TestSuffix;             ///< behind every problem of the topic
    TopicChoice topic;                  ///< whose problems are being made
    std::vector<TestProblem> problems;  ///< number n at n - 1

    /// The lines written so far, math text.
    std::vector<std::string> Lines() const;
};

/// A row's problems stand below an empty line and a heading: what the form can ask for finds room.
static_assert(kTestRows * (2 + kMostProblemsOfRow) <= PracticeTest::kTopLine + 1);

/// Chooses a topic for the test: its code and limits, heading and suffix. Any other text than a
/// topic's caption leaves all but MaxDigits as it was.
void SetTestTopic(std::string_view Name, PracticeTest& test);

/// Makes the test of the rows, the free ones left out: for each topic an empty line, its heading
/// and its problems, numbered through the whole test. Throws Failure(Format) at the line that finds
/// no room; the lines before it stand.
///
/// The digits of one moment are all alike. With the clock of the draws, problems are made as if a
/// second apart, and one that would repeat the problem before it as if some seconds later; without
/// it all are of one moment.
void CreatePracticeTest(std::span<const TestRow> rows, PracticeTest& test, ExampleDraws& draws,
                        SteppingClock* clock = nullptr);

}  // namespace numerello
