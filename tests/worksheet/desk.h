#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "app/solvers.h"
#include "catalogue/guided_input.h"
#include "catalogue/topic_choice.h"
#include "catalogue/topics.h"
#include "core/erasing.h"
#include "core/number.h"
#include "core/text.h"
#include "tests/learners.h"
#include "worksheet/worksheet.h"

namespace numerello {

// Plain metrics at 12 points.
constexpr double kCharacter = 134.0 / 204 * 12;
constexpr double kBlank = 67.0 / 204 * 12;
constexpr double kMargin = 67;

/// The base of a row of a sheet: row 0 is the typed line, or the first line of a turned sheet.
constexpr double BaseOf(int row) {
    return 81 + 2.4 * 12 + 46 * row;
}

inline std::string WithoutBlanks(std::string_view text) {
    return Replace(text, " ", "");
}

/// LineEndX of a line of plain characters.
inline double EndOf(std::string_view text) {
    const auto blanks = static_cast<double>(std::count(text.begin(), text.end(), ' '));
    const auto others = static_cast<double>(text.size()) - blanks;
    return kMargin + others * kCharacter + blanks * kBlank - 4;
}

/// What stands in one row of a sheet: its characters, blanks left out.
struct Row {
    double y;
    std::string text;
};

inline std::vector<Row> RowsOf(const Sheet& sheet) {
    std::vector<Row> rows;
    for (const Mark& mark : sheet.surface.Marks()) {
        if (const auto* const text = std::get_if<TextMark>(&mark)) {
            if (rows.empty() || rows.back().y != text->y) {
                rows.push_back({text->y, ""});
            }
            rows.back().text += text->text;
        }
    }
    return rows;
}

inline void ExpectRow(const Sheet& sheet, int index, double y, std::string_view text) {
    const std::vector<Row> rows = RowsOf(sheet);
    SCOPED_TRACE("row " + std::to_string(index) + ", " + std::string(text));
    ASSERT_LT(static_cast<std::size_t>(index), rows.size());
    const Row& row = rows[static_cast<std::size_t>(index)];
    EXPECT_EQ(row.text, WithoutBlanks(text));
    EXPECT_NEAR(row.y, y, 1e-6);
}

/// The check marks of a sheet.
inline std::vector<ImageMark> ChecksOf(const Sheet& sheet) {
    std::vector<ImageMark> checks;
    for (const Mark& mark : sheet.surface.Marks()) {
        if (const auto* const image = std::get_if<ImageMark>(&mark)) {
            EXPECT_EQ(image->key, "check");
            checks.push_back(*image);
        }
    }
    return checks;
}

/// A worksheet that writes down what it asks of others.
class RecordingSheet : public Worksheet {
  public:
    RecordingSheet(Problem& problem, const TextMetrics& metrics, Learner& learner)
        : Worksheet(problem, metrics, learner) {}

    std::vector<std::string> calls;
    std::function<void()> stepColumns = [] {};

  protected:
    void OpenGraph() override { calls.emplace_back("OpenGraph"); }
    void StepColumns() override {
        calls.emplace_back("StepColumns");
        stepColumns();
    }
};

/// Logs the problem as line 1, then "line 2", "line 3" and so on, each with its reason.
template <int lines>
void WriteLines(SolveRun& run) {
    run.problem.log.Write(run.problem.typed.ProblemText, "");
    for (int i = 2; i <= lines; ++i) {
        run.problem.log.Write(Text("line ", WholeText(i)), Text("reason ", WholeText(i)));
    }
}

/// The entry form of a topic in a view of 1100, erased and ready for typing.
class Desk : public testing::Test {
  protected:
    static constexpr int kViewWidth = 1100;

    void Choose(int code) {
        MersenneSource random;
        TreeViewSelect(FindTopicByCode(code)->caption, problem.topic, FixedClock(0), random);
        sheet.Open(kViewWidth);
        EraseProblem(problem, sheet);
    }

    void Type(std::string_view keys) {
        for (const std::string& key : Characters(keys)) {
            Form_KeyPress(problem, key);
            sheet.DrawTypedLine();
        }
    }

    std::optional<FailureKind> Solve() {
        return compute_Click(problem, AllSolvers(), learner, sheet);
    }

    /// Solves as if the topic's solution had so many lines, the problem included.
    template <int lines>
    void SolveInLines() {
        const SolverRow row{problem.topic.ProblemType, WriteLines<lines>};
        const Solvers solvers{std::span(&row, 1), [](const Problem&) { return true; }};
        EXPECT_EQ(compute_Click(problem, solvers, learner, sheet), std::nullopt);
    }

    int ShownStep() const { return problem.playback.ShownStep; }
    std::string Note() { return problem.log.StepNote[ShownStep()]; }
    const Sheet& First() const { return sheet.SheetAt(0); }

    Problem problem;
    PlainMetrics metrics;
    NotingLearner learner;
    RecordingSheet sheet{problem, metrics, learner};
};

}  // namespace numerello
