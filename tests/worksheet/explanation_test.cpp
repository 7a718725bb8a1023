#include "worksheet/explanation.h"

#include "tests/worksheet/desk.h"

namespace numerello {
namespace {

constexpr int kFeetToYards = 50;
constexpr int kExponentialNotation = 83;

constexpr double kLine = 43.0 / 30 * 12;
constexpr double kDrop = 3;           // above a row of plain characters
constexpr double kFractionDrop = 12;  // above one that holds a "/"

class ExplanationTest : public Desk {
  protected:
    /// As Rows of a sheet, for the explanation.
    std::vector<std::string> RowTexts() {
        std::vector<std::string> texts;
        double y = -1;
        for (const Mark& mark : explanation.Rows().Marks()) {
            const auto& text = std::get<TextMark>(mark);
            if (text.y != y) {
                texts.emplace_back();
                y = text.y;
            }
            texts.back() += text.text;
        }
        return texts;
    }

    std::string Say() {
        explanation.ShowExplanation();
        return explanation.Text();
    }

    /// A refusal as the filter leaves it.
    void Refuse(std::string_view why) {
        problem.controls.Light = EntryControls::LightPicture::Incorrect;
        problem.input.InputError = why;
    }

    std::string SayRefusal(std::string_view why) {
        Refuse(why);
        EXPECT_TRUE(explanation.Light_Click());
        return Say();
    }

    Explanation explanation{problem, metrics, learner};
};

TEST_F(ExplanationTest, BeforeSolvingItSaysWhatToType) {
    Choose(kExponentialNotation);
    EXPECT_TRUE(explanation.HasNote());
    EXPECT_EQ(Say(),
              "Enter numbers separated by multiplication symbols (*).  Exponents can also be "
              "entered.  Example: 35*9*4^3^");
    // 366.5, 331.1 and 70.9 wide; a word more would pass 380.
    EXPECT_EQ(RowTexts()[0], "Enternumbersseparatedbymultiplicationsymbols");
    EXPECT_EQ(RowTexts()[1], "(*).Exponentscanalsobeentered.Example:");
    EXPECT_NEAR(explanation.Height(), 3 * (kDrop + kLine) + 3.5 * kLine, 1e-6);
    EXPECT_EQ(explanation.RowsWidth(), 380);
    EXPECT_TRUE(learner.messages.empty());
}

TEST_F(ExplanationTest, ThenTheReasonOfTheShownStep) {
    Choose(kFeetToYards);
    Type("7");
    SolveInLines<4>();
    EXPECT_EQ(Say(), "reason 2");
    sheet.blinker_Click();
    EXPECT_EQ(Say(), "reason 3");
    sheet.blinker_Click();
    EXPECT_EQ(Say(), "reason 4");
    EXPECT_EQ(RowTexts(), std::vector<std::string>{"reason4"});
    EXPECT_NEAR(explanation.Height(), kDrop + kLine + 3.5 * kLine, 1e-6);
}

TEST_F(ExplanationTest, IsReadAloudAsWords) {
    Choose(kFeetToYards);
    problem.log.StepNote[0] = "Add #1/2# and 3^2^.";
    Say();
    EXPECT_EQ(explanation.SpokenText(), "Add one half and 3 squared.");
    SayRefusal("No roots (~ ~) and no '^' here.");
    EXPECT_EQ(explanation.SpokenText(), "No roots (~ ~) and no '^' here.");
}

TEST_F(ExplanationTest, AnEmptyNoteIsNone) {
    Choose(kFeetToYards);
    Type("7");
    SolveInLines<3>();
    problem.log.StepNote[2].clear();
    EXPECT_FALSE(explanation.HasNote());
    problem.playback.ShownStep = 201;
    EXPECT_FALSE(explanation.HasNote());
}

TEST_F(ExplanationTest, ARowWithASlashStandsLower) {
    Choose(kFeetToYards);
    problem.log.StepNote[0] = "Divide #1/2# by 3.";
    Say();
    EXPECT_NEAR(explanation.Height(), kFractionDrop + kLine + 3.5 * kLine, 1e-6);
}

TEST_F(ExplanationTest, ARowBelowAFractionStandsClearOfIt) {
    Choose(kFeetToYards);
    problem.log.StepNote[0] = "Divide by #1/2# and then go on with the words of the second row.";
    Say();
    // A denominator's cell begins 1.7 * 12 - 0.6 * 12 below the row's base, which is at 12.
    const double below = kFractionDrop + 13.2 + kLine;
    const auto& last = std::get<TextMark>(explanation.Rows().Marks().back());
    EXPECT_NEAR(last.y, below + kDrop, 1e-6);
    EXPECT_NEAR(explanation.Height(), below + kDrop + kLine + 3.5 * kLine, 1e-6);
    EXPECT_NEAR(explanation.RowsHeight(), below + kDrop + kLine, 1e-6);

    problem.log.StepNote[0] = "Divide by #1/2#.";
    Say();
    EXPECT_NEAR(explanation.RowsHeight(), below, 1e-6);
    EXPECT_NEAR(explanation.Height(), kFractionDrop + kLine + 3.5 * kLine, 1e-6);
}

TEST_F(ExplanationTest, OnlyTheRedLightTellsWhy) {
    Choose(kFeetToYards);
    EXPECT_FALSE(explanation.Light_Click());
    Type("7");
    EXPECT_FALSE(explanation.Light_Click());
    Type("x");
    EXPECT_TRUE(explanation.Light_Click());
    EXPECT_EQ(Say(),
              "Variables are not allowed in 'Converting Feet To Yards'.  Click the Assistant Wiz "
              "for details.");
    // 350.8 and 327.1 wide.
    EXPECT_EQ(RowTexts(), (std::vector<std::string>{"Variablesarenotallowedin'ConvertingFeetTo",
                                                    "Yards'.ClicktheAssistantWizfordetails."}));
    // The note has not changed meanwhile.
    EXPECT_EQ(Say(), problem.topic.InstructionText);
}

TEST_F(ExplanationTest, AClickOnAnotherPictureTakesTheRefusalBack) {
    Choose(kFeetToYards);
    Type("x");
    EXPECT_TRUE(explanation.Light_Click());
    Type("7");
    EXPECT_FALSE(explanation.Light_Click());
    EXPECT_EQ(Say(), problem.topic.InstructionText);
}

TEST_F(ExplanationTest, ARefusalWithoutAReasonOpensNothing) {
    Choose(kFeetToYards);
    Refuse("");
    EXPECT_FALSE(explanation.Light_Click());
}

TEST_F(ExplanationTest, LessDetailSilencesTheSteps) {
    const std::string hint = "Select 'High' step-by-step detail for explanations.";
    for (const int detail : {2, 3}) {
        Choose(kFeetToYards);
        problem.settings.DetailLevel = detail;
        EXPECT_EQ(Say(), problem.topic.InstructionText);
        EXPECT_EQ(SayRefusal("A number can only have one decimal point."),
                  "A number can only have one decimal point.");
        Type("7");
        SolveInLines<3>();
        EXPECT_EQ(Say(), hint);
        problem.log.StepNote[problem.playback.ShownStep].clear();
        EXPECT_FALSE(explanation.HasNote());
    }
}

TEST_F(ExplanationTest, AQuotedMarkOfARefusalIsPrinted) {
    Choose(kFeetToYards);
    for (const std::string mark : {"~", "^", "#", "[", "]"}) {
        SCOPED_TRACE(mark);
        SayRefusal("You can't type a '5' after a '" + mark + "' in 'Roots'.");
        // 34 characters and 9 blanks fit one row.
        EXPECT_EQ(RowTexts(),
                  std::vector<std::string>{"Youcan'ttypea'5'aftera'" + mark + "'in'Roots'."});
    }
    SayRefusal("You can't type a '^' in an exponent after a '~', nor a '#'.");
    EXPECT_TRUE(learner.messages.empty());
}

TEST_F(ExplanationTest, UnquotedRootsOfARefusalAreDrawn) {
    Choose(kFeetToYards);
    Type("~");
    ASSERT_TRUE(explanation.Light_Click());
    Say();
    // The root of a blank: three blanks end 11.8 right of its place and the bar begins at 6, so
    // that one segment covers them.
    EXPECT_EQ(RowTexts()[0], "Squareroots(");
    int signs = 0;
    int bars = 0;
    for (const Mark& mark : explanation.Rows().Marks()) {
        const auto& text = std::get<TextMark>(mark);
        signs += text.text == "~" && text.font.name == "VantrelFont" ? 1 : 0;
        bars += text.text == "_" ? 1 : 0;
    }
    EXPECT_EQ(signs, 1);
    EXPECT_EQ(bars, 1);

    SayRefusal("You can't type a ~~ after a '~'. ");
    EXPECT_TRUE(learner.messages.empty());
}

TEST_F(ExplanationTest, AnInstructionsMarksAreObeyed) {
    Choose(kFeetToYards);
    problem.topic.InstructionText = problem.log.StepNote[0] = "Type '^2^', as in 4^2^.";
    Say();
    // The exponents stand higher and in a smaller size.
    int small = 0;
    for (const Mark& mark : explanation.Rows().Marks()) {
        const auto& text = std::get<TextMark>(mark);
        EXPECT_NE(text.text, "^");
        small += text.font.size == 8 ? 1 : 0;
    }
    EXPECT_EQ(small, 2);
}

TEST_F(ExplanationTest, WhatCannotBeDrawnIsToldOnce) {
    Choose(kFeetToYards);
    const std::string wide = "#" + std::string(60, '1') + "/2#";
    problem.log.StepNote[0] = "First " + wide + " and " + wide + " and ~4 at last.";
    Say();
    EXPECT_EQ(learner.messages,
              std::vector<std::string>{"An error occurred while displaying information."});
    // What could be drawn stands there.
    EXPECT_EQ(RowTexts().front(), "First");
    Say();
    EXPECT_EQ(learner.messages.size(), 2U);
}

TEST_F(ExplanationTest, ARowThatCannotBeCutMakesRoomForItself) {
    Choose(kFeetToYards);
    // 49 digits are 386.2 wide, and so is the bar.
    problem.log.StepNote[0] = "#" + std::string(49, '1') + "/2#";
    Say();
    EXPECT_NEAR(explanation.RowsWidth(), 49 * kCharacter, 1e-6);
}

TEST_F(ExplanationTest, StandsBesideTheLastLine) {
    Choose(kFeetToYards);
    Type("7");
    SolveInLines<4>();
    Say();
    // "line 2" ends at 67 + 5 characters + a blank - 4; its base is that of the second row.
    const Explanation::Corner corner = explanation.Place(First());
    EXPECT_NEAR(corner.left, 150 + EndOf("line 2") + 54, 1e-6);
    EXPECT_NEAR(corner.top, BaseOf(1) + 120, 1e-6);
}

TEST_F(ExplanationTest, ATextOfNoStepHasAPlaceOfItsOwn) {
    Choose(kFeetToYards);
    Say();
    Sheet fanned = First();
    fanned.left = 175;
    fanned.top = 25;
    EXPECT_EQ(explanation.Place(fanned).left, 175 + 255);
    EXPECT_EQ(explanation.Place(fanned).top, 25 + 70);
    SayRefusal("A number can only have one decimal point.");
    EXPECT_EQ(explanation.Place(First()).left, 150 + 255);
    EXPECT_EQ(explanation.Place(First()).top, 70);
}

}  // namespace
}  // namespace numerello
