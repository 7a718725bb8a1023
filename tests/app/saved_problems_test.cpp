#include <gtest/gtest.h>

#include "catalogue/box_keys.h"
#include "catalogue/entry_layouts.h"
#include "tests/app/solving_form.h"
#include "tests/topics/typed_topic.h"

namespace numerello {
namespace {

constexpr int kProblemsOfATopic = 10;
constexpr std::string_view kKeys = "0123456789012345678901234567890123456789+-*/^()=~|.,:%xy";

void TypeAnything(Problem& problem, Draws& draws) {
    const int keys = draws.Below(40);
    for (int i = 0; i < keys; ++i) {
        const auto key = static_cast<std::size_t>(draws.Below(static_cast<int>(kKeys.size())));
        Form_KeyPress(problem, kKeys.substr(key, 1));
    }
}

void FillForm(Problem& problem, Draws& draws) {
    const EntryLayout* layout = FindEntryLayout(problem.topic.ProblemType);
    if (layout == nullptr) {
        return;
    }
    for (const EntryBoxLayout& box : layout->boxes) {
        const bool fills = draws.Below(8) > 0;
        for (const char digit : fills ? draws.Digits(4) : "") {
            BoxKey(problem, box.number, std::string_view(&digit, 1));
        }
    }
    if (layout->lists == EntryLists::Roundings) {
        problem.boxes.ListIndex[2] = draws.Below(7);
    } else if (layout->lists != EntryLists::None) {
        problem.boxes.ListIndex[0] = draws.Below(8) - 1;
        problem.boxes.ListIndex[1] = draws.Below(8) - 1;
    }
    CheckBoxesReady(problem);
}

std::string LogText(const Problem& problem) {
    std::string text;
    for (int i = 1; i < problem.log.StepCount; ++i) {
        text += Text(problem.log.StepText[i], " | ", problem.log.StepNote[i], "\n");
    }
    return text;
}

void ExpectSame(const Problem& loaded, const Problem& saved) {
    EXPECT_EQ(loaded.topic.TopicTitle, saved.topic.TopicTitle);
    EXPECT_EQ(loaded.topic.ProblemType, saved.topic.ProblemType);
    if (IsTypedOnLine(saved.topic.ProblemType)) {
        EXPECT_EQ(loaded.topic.InputMask, saved.topic.InputMask);
    }
    EXPECT_EQ(loaded.typed.ProblemText, saved.typed.ProblemText);
    EXPECT_EQ(loaded.typed.DisplayLine, saved.typed.DisplayLine);
    EXPECT_EQ(loaded.boxes.Text, saved.boxes.Text);
    EXPECT_EQ(loaded.boxes.ListIndex, saved.boxes.ListIndex);
    EXPECT_EQ(loaded.controls.SaveEnabled, saved.controls.SaveEnabled);
    EXPECT_EQ(loaded.columns.Any(), saved.columns.Any());
    if (saved.columns.Any()) {
        EXPECT_EQ(loaded.columns.ColumnTop, saved.columns.ColumnTop);
        EXPECT_EQ(loaded.columns.ColumnBottom, saved.columns.ColumnBottom);
    }
    EXPECT_EQ(loaded.graph.GraphMode, saved.graph.GraphMode);
    EXPECT_EQ(LogText(loaded), LogText(saved));
}

TEST(SavedProblems, OfEveryTopicComeBackAndAreWorkedAlike) {
    Draws draws(2026);
    Problem loaded;
    SolvingForm form(loaded);
    MersenneSource random;
    int solved = 0;
    for (const Topic& topic : Topics()) {
        const Problem opened = Opened(topic.caption);
        for (int i = 0; i < kProblemsOfATopic; ++i) {
            Problem saved = opened;
            TypeAnything(saved, draws);
            FillForm(saved, draws);
            if (saved.controls.SolveEnabled) {
                ++solved;
                Solve(saved);
            }
            const std::string text = ProblemLine(saved) + "\n";
            SCOPED_TRACE(text);
            LoadSavedProblem(ReadSavedProblem(text), loaded, form, FixedClock(0), random);
            ExpectSame(loaded, saved);
            EXPECT_EQ(ProblemLine(loaded) + "\n", text);
        }
    }
    EXPECT_GE(solved, 700);
}

TEST(SavedProblems, AreTheSameWhateverStoodBefore) {
    Draws draws(7);
    Problem loaded;
    SolvingForm form(loaded);
    MersenneSource random;
    for (int i = 0; i < 200; ++i) {
        const auto count = static_cast<int>(Topics().size());
        Problem saved = Opened(Topics()[static_cast<std::size_t>(draws.Below(count))].caption);
        TypeAnything(saved, draws);
        FillForm(saved, draws);
        if (saved.controls.SolveEnabled) {
            Solve(saved);
        }
        const std::string text = ProblemLine(saved);
        SCOPED_TRACE(text);
        LoadSavedProblem(ReadSavedProblem(text), loaded, form, FixedClock(0), random);
        EXPECT_EQ(ProblemLine(loaded), text);
        EXPECT_EQ(LogText(loaded), LogText(saved));
    }
}

}  // namespace
}  // namespace numerello
