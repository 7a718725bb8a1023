#include "catalogue/guided_input.h"

#include <gtest/gtest.h>

#include "catalogue/input_classes.h"
#include "typing.h"

namespace numerello {
namespace {

constexpr std::string_view kTopic = "Converting Inches To Yards";

TEST(NumberLine, TakesDigitsAndAPoint) {
    Problem problem = Opened(kTopic);
    const std::pair<const char*, const char*> lines[] = {
        {"4", "4"}, {"0", "40"}, {".", "40."}, {"x", "40."}, {"5", "40.5"}, {".", "40.5"}};
    for (const auto& [key, line] : lines) {
        FormFilter(problem, key);
        EXPECT_EQ(problem.typed.DisplayLine, line) << key;
    }
    EXPECT_EQ(problem.typed.ProblemText, "40.5");
    EXPECT_EQ(problem.typed.ExprCharCount, 4);
    EXPECT_EQ(problem.typed.ExprChars[2], ".");
    EXPECT_EQ(problem.typed.ExprCells[4], "40.5");
    EXPECT_EQ(problem.typed.ExprCellCount, 4);
}

TEST(NumberLine, MayBeginWithAPoint) {
    Problem problem = Opened(kTopic);
    Type(problem, ".5");
    EXPECT_EQ(problem.typed.ProblemText, ".5");
}

TEST(NumberLine, RefusesASixthDigit) {
    Problem problem = Opened(kTopic);
    Type(problem, "123456");
    EXPECT_FALSE(problem.input.KeyAccepted);
    EXPECT_EQ(problem.input.InputError, "Please keep all numbers to 5 digits or less.");
    EXPECT_EQ(problem.typed.ProblemText, "12345");
}

TEST(NumberLine, RefusesATenthPastTheLimitOfItsTopic) {
    Problem problem = Opened("Expanded Notation");
    Type(problem, "12345678901");
    EXPECT_EQ(problem.input.InputError, "Please keep all numbers to 10 digits or less.");
    EXPECT_EQ(problem.typed.ProblemText, "1234567890");
}

TEST(NumberLine, RefusesAThirdDecimal) {
    Problem problem = Opened(kTopic);
    Type(problem, "1.257");
    EXPECT_EQ(problem.input.InputError, "Please keep all decimal portions to 2 digits or less.");
    EXPECT_EQ(problem.typed.ProblemText, "1.25");
}

TEST(NumberLine, DigitsBeforeAndBehindThePointCountApart) {
    Problem problem = Opened(kTopic);
    Type(problem, "12345.67");
    EXPECT_EQ(problem.typed.ProblemText, "12345.67");
}

TEST(NumberLine, RefusesASecondPoint) {
    for (const std::string_view keys : {"1..", "1.5.", ".."}) {
        Problem problem = Opened(kTopic);
        Type(problem, keys);
        EXPECT_FALSE(problem.input.KeyAccepted) << keys;
        EXPECT_EQ(problem.input.InputError, "A number can only have one decimal point.") << keys;
    }
}

TEST(NumberLine, AnAcceptedKeyEmptiesTheError) {
    Problem problem = Opened(kTopic);
    Type(problem, "+4");
    EXPECT_TRUE(problem.input.KeyAccepted);
    EXPECT_EQ(problem.input.InputError, "");
}

TEST(NumberLine, BackspaceTakesTheLastCharacterBack) {
    Problem problem = Opened(kTopic);
    Type(problem, "1.\b.5\b\b\b");
    EXPECT_TRUE(problem.input.KeyAccepted);
    EXPECT_EQ(problem.typed.ProblemText, "");
    EXPECT_EQ(problem.typed.ExprCharCount, 0);
    Type(problem, "\b");
    EXPECT_FALSE(problem.input.KeyAccepted);
    EXPECT_EQ(problem.input.InputError, "Problem has already been erased.");
}

TEST(NumberLine, SolveComesOnWithTheFirstAcceptedKey) {
    Problem problem = Opened(kTopic);
    EXPECT_FALSE(problem.controls.SolveEnabled);
    Type(problem, "+");
    EXPECT_FALSE(problem.controls.SolveEnabled);
    Type(problem, "4");
    EXPECT_TRUE(problem.controls.SolveEnabled);
    Type(problem, "x");
    EXPECT_TRUE(problem.controls.SolveEnabled);
    Type(problem, "\b");
    EXPECT_FALSE(problem.controls.SolveEnabled);
}

TEST(NumberLine, LightAndPencilFollowTheKey) {
    Problem problem = Opened(kTopic);
    Type(problem, "4");
    EXPECT_EQ(problem.controls.Light, EntryControls::LightPicture::Correct);
    EXPECT_EQ(problem.controls.LightToolTip, "Correct Input.");
    EXPECT_EQ(problem.controls.Pencil, EntryControls::PencilPicture::Pencil);
    Type(problem, "-");
    EXPECT_EQ(problem.controls.Light, EntryControls::LightPicture::Incorrect);
    EXPECT_EQ(problem.controls.LightToolTip, "Incorrect input.");
    Type(problem, "\b");
    EXPECT_EQ(problem.controls.Light, EntryControls::LightPicture::Correct);
    EXPECT_EQ(problem.controls.Pencil, EntryControls::PencilPicture::Eraser);
}

TEST(NumberLine, NoKeyGoesInWhileTypingIsOff) {
    Problem problem = Opened(kTopic);
    problem.playback.TypingEnabled = false;
    Type(problem, "4");
    EXPECT_FALSE(problem.input.KeyAccepted);
    EXPECT_EQ(problem.typed.ProblemText, "");
    EXPECT_EQ(problem.controls.Light, EntryControls::LightPicture::Neutral);
}

TEST(NumberLine, ABoxTopicTakesNoKey) {
    Problem problem = Opened("Meter Conversions");
    Type(problem, "4\b");
    EXPECT_FALSE(problem.input.KeyAccepted);
    EXPECT_EQ(problem.input.InputError, "");
    EXPECT_EQ(problem.typed.ProblemText, "");
}

TEST(TypedLine, TakesNothingWithoutAMask) {
    Problem problem = Opened("Arithmetic");
    Type(problem, "4");
    problem.topic.InputMask = 0;
    for (const std::string_view key : {"4", "\b"}) {
        Type(problem, key);
        EXPECT_FALSE(problem.input.KeyAccepted);
        EXPECT_EQ(problem.input.InputError, "");
        EXPECT_EQ(problem.typed.ProblemText, "4");
    }
}

TEST(CheckKey, JudgesBehindTheLineWithoutTypingTheKey) {
    Problem problem = Opened("Arithmetic");
    Type(problem, "4+");
    EXPECT_TRUE(CheckKey(problem, "2"));
    EXPECT_EQ(problem.input.InputError, "");
    EXPECT_FALSE(CheckKey(problem, "+"));
    EXPECT_EQ(problem.input.InputError, "You can't type a '+' after a '+' in 'Arithmetic'.");
    EXPECT_EQ(problem.typed.ProblemText, "4+");
}

TEST(TypedLine, NamesALetterInLowerCase) {
    Problem problem = Opened("Solving Equations");
    Type(problem, "2XX");
    EXPECT_EQ(problem.typed.ProblemText, "2x");
    EXPECT_EQ(problem.input.InputError,
              "You can't type the same variable twice in a row in 'Solving Equations'.");
    Type(problem, "+Y");
    EXPECT_EQ(problem.input.InputError,
              "Only one different variable is allowed in 'Solving Equations'.");
    Type(problem, "X");
    EXPECT_TRUE(problem.input.KeyAccepted);
}

TEST(TypedLine, CountsALetterThatWasTakenBackNoMore) {
    Problem problem = Opened("Solving Equations");
    Type(problem, "x\by");
    EXPECT_EQ(problem.typed.ProblemText, "y");
}

TEST(TypedLine, KeepsItsFlagsInTheRecord) {
    Problem problem = Opened("Simplifying Polynomials");
    Type(problem, "(3x^2");
    EXPECT_TRUE(problem.input.InExponent);
    EXPECT_EQ(problem.input.ParenDepth, 1);
    Type(problem, ")/4");
    EXPECT_FALSE(problem.input.InExponent);
    EXPECT_TRUE(problem.input.InFraction);
    EXPECT_EQ(problem.input.ParenDepth, 0);
    Type(problem, "\b\b\b");
    EXPECT_TRUE(problem.input.InExponent);
    EXPECT_FALSE(problem.input.InFraction);
    EXPECT_EQ(problem.input.ParenDepth, 1);
}

TEST(TypedLine, TakesAnExponentsCaretBackWithItsDigit) {
    Problem problem = Opened("Negative Exponents");
    Type(problem, "x^-2\b");
    EXPECT_EQ(problem.typed.ProblemText, "x^-");
    Type(problem, "\b");
    EXPECT_EQ(problem.typed.ProblemText, "x");
    Type(problem, "^2\b");
    EXPECT_EQ(problem.typed.ProblemText, "x");
}

TEST(TypedLine, MayTypeASlashAgainBehindAFractionTakenBack) {
    Problem problem = Opened("Arithmetic");
    Type(problem, "3/4\b\b/");
    EXPECT_EQ(problem.typed.DisplayLine, "#3/#");
    EXPECT_TRUE(problem.input.KeyAccepted);
}

TEST(TypedLine, DropsKeysBeyondItsLengthWithoutAWord) {
    Problem problem = Opened("Medians");
    for (int i = 0; i < 240; ++i) {
        Type(problem, "1,");
    }
    ASSERT_EQ(problem.typed.ExprCharCount, 480);
    EXPECT_FALSE(IsJudged(problem, "1"));
    EXPECT_TRUE(IsJudged(problem, kBackspace));
    const auto light = problem.controls.Light;
    Type(problem, "1");
    EXPECT_FALSE(problem.input.KeyAccepted);
    EXPECT_EQ(problem.input.InputError, "");
    EXPECT_EQ(problem.controls.Light, light);
    EXPECT_EQ(problem.typed.ExprCharCount, 480);
    Type(problem, "\b");
    EXPECT_EQ(problem.typed.ExprCharCount, 479);
}

TEST(TypedLine, TakesTenParenthesesAtOnce) {
    Problem problem = Opened("Complex Arithmetic Expressions");
    Type(problem, "((((((((((");
    EXPECT_EQ(problem.input.ParenDepth, 10);
    Type(problem, "(");
    EXPECT_EQ(problem.input.InputError, "Close the last parenthesis before opening a new one.");
}

TEST(ClassRefusal, HasItsWordsForEveryClass) {
    constexpr std::string_view T = "Topic";
    const std::pair<const char*, const char*> refusals[] = {
        {"7", "Numbers are not allowed in 'Topic'.  Click the Assistant Wiz for details."},
        {"+",
         "The '+' sign is not allowed in 'Topic'.  Enter a number without using + or -.  Click the "
         "Assistant Wiz for details."},
        {"-",
         "The '-' sign is not allowed in 'Topic'.  Enter a number without using + or -.  Click the "
         "Assistant Wiz for details."},
        {"*", "The '*' is not allowed in 'Topic'.  Click the Assistant Wiz for details."},
        {"/",
         "The division symbol is not allowed in 'Topic'.  Click the Assistant Wiz for details."},
        {"^", "Exponents are not allowed in 'Topic'.  Click the Assistant Wiz for details."},
        {"(", "The '(' is not allowed in 'Topic'.  Click the Assistant Wiz for details."},
        {")", "The ')' is not allowed in 'Topic'.  Click the Assistant Wiz for details."},
        {"=", "The '=' is not allowed in 'Topic'.  Click the Assistant Wiz for details."},
        {"X", "Variables are not allowed in 'Topic'.  Click the Assistant Wiz for details."},
        {"~",
         "Square roots (~ ~) are not allowed in 'Topic'.  Click the Assistant Wiz for details."},
        {"|",
         "Absolute Values (|) are not allowed in 'Topic'.  Click the Assistant Wiz for details."},
        {".", "Decimals (.) are not allowed in 'Topic'.  Click the Assistant Wiz for details."},
        {",", "Commas (,) are not allowed in 'Topic'.  Click the Assistant Wiz for details."},
        {":", "Ratios (:) are not allowed in 'Topic'.  Click the Assistant Wiz for details."},
        {"%", "Percents (%) are not allowed in 'Topic'.  Click the Assistant Wiz for details."},
        {"[", "This symbol is not allowed in 'Topic'.  Click the Assistant Wiz for details."},
        {"#", "This symbol is not allowed in 'Topic'.  Click the Assistant Wiz for details."},
        {"]", "This symbol is not allowed in 'Topic'.  Click the Assistant Wiz for details."},
        {" ", "The ' ' is not allowed in 'Topic'.  Click the Assistant Wiz for details."},
        {"é", "The 'é' is not allowed in 'Topic'.  Click the Assistant Wiz for details."}};
    for (const auto& [character, refusal] : refusals) {
        EXPECT_EQ(ClassRefusal(character, 0, T), refusal) << character;
    }
}

TEST(ClassRefusal, LetsInWhatItsBitAllows) {
    const std::pair<const char*, int> bits[] = {{"7", 1},    {"+", 2},    {"-", 2},    {"*", 4},
                                                {"/", 8},    {"^", 16},   {"(", 32},   {")", 32},
                                                {"=", 64},   {"x", 128},  {"~", 256},  {"|", 512},
                                                {".", 1024}, {",", 2048}, {":", 4096}, {"%", 8192}};
    for (const auto& [character, bit] : bits) {
        EXPECT_EQ(ClassRefusal(character, bit, "T"), std::nullopt) << character;
        EXPECT_NE(ClassRefusal(character, 16383 - bit, "T"), std::nullopt) << character;
    }
}

}  // namespace
}  // namespace numerello
