#include <gtest/gtest.h>

#include "app/column_worksheet.h"
#include "app/solvers.h"
#include "catalogue/examples/example_click.h"
#include "catalogue/guided_input.h"
#include "catalogue/topic_choice.h"
#include "catalogue/topics.h"
#include "core/erasing.h"
#include "core/topic_codes.h"
#include "ui/font_metrics.h"

namespace numerello {
namespace {

/// Knows the letters of a line, and a value for each of them.
class KnowingLearner : public Learner {
  public:
    explicit KnowingLearner(const Problem& problem) : problem(problem) {}

    void MessageBox(std::string_view, std::string_view) override {}
    bool Confirm(std::string_view, std::string_view) override { return true; }
    std::optional<std::string> InputBox(std::string_view, std::string_view) override {
        const bool wantsLetter = problem.topic.ProblemType == kGraphingAnEquation;
        return wantsLetter ? problem.typed.VarNames[1] : "2";
    }

  private:
    const Problem& problem;
};

/// Whatever a topic's examples come to stands on the paper, in the faces of the window.
class OnPaper : public testing::TestWithParam<int> {
  protected:
    /// The sheets without their window.
    class Form : public FillingForm {
      public:
        explicit Form(OnPaper& test) : test(test) {}

        void ShowEntry() override {}
        void Form_KeyPress(std::string_view key) override {
            numerello::Form_KeyPress(test.problem, key);
            test.sheets.DrawTypedLine();
        }
        void compute_Click() override {
            numerello::compute_Click(test.problem, AllSolvers(), test.learner, test.sheets);
        }

      private:
        OnPaper& test;
    };

    void PlayExample(const Topic& topic, int moment) {
        MersenneSource random;
        const FixedClock clock(moment);
        TreeViewSelect(topic.caption, problem.topic, clock, random);
        problem.settings.mnuShowStep = false;
        problem.settings.ComplexEx = GetParam();
        sheets.Open(1100);
        EraseProblem(problem, sheets);
        MersenneSource digits;
        MersenneSource direct;
        ExampleDraws draws(clock, digits, direct);
        Form form(*this);
        example_Click(problem, sheets, form, draws);
    }

    void ExpectOnPaper(const Sheet& sheet) {
        for (const Mark& mark : sheet.surface.Marks()) {
            if (const auto* text = std::get_if<TextMark>(&mark)) {
                EXPECT_GE(text->x, 0) << text->text;
                EXPECT_LE(text->x + metrics.Width(text->text, text->font), 800) << text->text;
                EXPECT_GE(text->y, 0) << text->text;
                EXPECT_LE(text->y + metrics.Ascent(text->font), sheet.height) << text->text;
                ++texts;
            } else if (const auto* stroke = std::get_if<StrokeMark>(&mark)) {
                EXPECT_GE(std::min(stroke->x1, stroke->x2), 0);
                EXPECT_LE(std::max(stroke->x1, stroke->x2), 800);
                EXPECT_LE(std::max(stroke->y1, stroke->y2), sheet.height);
            }
        }
    }

    Problem problem;
    FontMetrics metrics{FontMetrics::Medium::Sheet};
    KnowingLearner learner{problem};
    ColumnWorksheet sheets{problem, metrics, learner};
    int texts = 0;
};

TEST_P(OnPaper, StandsEveryLineOfEveryTopic) {
    for (const Topic& topic : Topics()) {
        SCOPED_TRACE(topic.caption);
        for (const int moment : {0, 1517, 2345, 5959}) {
            SCOPED_TRACE(moment);
            texts = 0;
            PlayExample(topic, moment);
            for (const int index : sheets.StackingOrder()) {
                ExpectOnPaper(sheets.SheetAt(index));
            }
            EXPECT_GT(texts, 0);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(SimpleAndComplex, OnPaper, testing::Values(0, 2));

}  // namespace
}  // namespace numerello
