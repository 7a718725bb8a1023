#include <gtest/gtest.h>

#include <QMainWindow>
#include <QWidget>

#include "catalogue/topic_choice.h"
#include "core/clock.h"
#include "core/text.h"
#include "tests/ui/window.h"
#include "ui/font_metrics.h"
#include "ui/frm_paper.h"

namespace numerello {
namespace {

struct Example {
    const char* topic;
    const char* keys;
    const char* display;

    friend void PrintTo(const Example& shown, std::ostream* out) { *out << shown.topic; }
};

/// The example that a topic's instruction gives: as it is typed, or with the marks of the display.
std::string ExampleIn(const std::string& instruction) {
    const std::size_t start = instruction.find(':', instruction.find("Example")) + 1;
    return Replace(std::string_view(instruction).substr(start), " ", "");
}

class TypedExamples : public testing::TestWithParam<Example> {};

TEST_P(TypedExamples, ShowAsMathematicsWhileTheyAreTyped) {
    const auto& [topic, keys, display] = GetParam();
    LoadSheetFont();
    QMainWindow frame;
    frame.resize(1100, 800);
    WindowLearner learner(&frame);
    Problem problem;
    MersenneSource random;
    TreeViewSelect(topic, problem.topic, FixedClock(0), random);
    auto* paper = new FrmPaper(problem, learner, &frame);
    frame.setCentralWidget(paper);
    paper->setFocus();
    ShowActive(frame);

    for (const char key : std::string_view(keys)) {
        TypeText(frame, QString(QLatin1Char(key)));
        EXPECT_EQ(problem.controls.Light, EntryControls::LightPicture::Correct) << key;
    }
    EXPECT_EQ(problem.typed.ProblemText, keys);
    EXPECT_EQ(problem.typed.DisplayLine, display);
    const std::string example = ExampleIn(problem.topic.InstructionText);
    EXPECT_TRUE(example == keys || example == display) << example;
    EXPECT_TRUE(problem.controls.SolveEnabled);
    EXPECT_FALSE(paper->findChild<SheetWidget*>(QStringLiteral("Paper0"))->Spoken().isEmpty());
}

constexpr Example kExamples[] = {
    {"Arithmetic", "4+2*3-5", "4+2*3-5"},
    {"Expanded Notation", "76494", "76494"},
    {"Comparing Values", "-3,4", "-3,4"},
    {"Absolute Values", "|-5|+3", "|-5|+3"},
    {"Complex Arithmetic Expressions", "(4-2)+3^2", "(4-2)+3^2^"},
    {"Least Common Multiples", "2,4,3,1", "2,4,3,1"},
    {"Greatest Common Factors", "2,4,3,1", "2,4,3,1"},
    {"Exponential Notation", "35*9*4^3", "35*9*4^3^"},
    {"Calculating Roots", "3~4~+2~9~", "3~4~+2~9~"},
    {"Calculating With Exponents", "3^2+4^2", "3^2^+4^2^"},
    {"Simplifying Fractions", "1/2", "#1/2#"},
    {"Reciprocals", "1/2", "#1/2#"},
    {"Ratios", "1:2", "1:2"},
    {"Fraction Arithmetic", "1/2+3/5", "#1/2#+#3/5#"},
    {"Fraction To Mixed Notation", "1/2", "#1/2#"},
    {"Mixed To Fraction Notation", "2+1/2", "2+#1/2#"},
    {"Fraction To Decimal Notation", "1/2", "#1/2#"},
    {"Fraction To Percent Notation", "1/2", "#1/2#"},
    {"Decimal To Fraction Notation", "0.32", "0.32"},
    {"Decimal To Percent Notation", "0.32", "0.32"},
    {"Percent To Decimal Notation", "42%", "42%"},
    {"Percent To Fraction Notation", "42%", "42%"},
    {"Means (Averages)", "2,4,3,1", "2,4,3,1"},
    {"Medians", "2,4,3,1", "2,4,3,1"},
    {"Modes", "2,4,3,1", "2,4,3,1"},
    {"Ranges", "2,4,3,1", "2,4,3,1"},
    {"Straight/Obtuse/Right/Acute Angles", "90", "90"},
    {"Plotting A Point", "(4,8)", "(4,8)"},
    {"Calculating A Point's Quadrant", "(4,8)", "(4,8)"},
    {"Graphing A Line Using Two Points", "(1,2)-(5,6)", "(1,2)-(5,6)"},
    {"Arithmetic Principles", "x+3=12", "x+3=12"},
    {"Solving Equations", "x+3=12", "x+3=12"},
    {"Negative Exponents", "9x^-2/6+8x^-2", "#9x^-2^/6#+8x^-2^"},
    {"Simplifying Polynomials", "9(3x^2+8^2)-3/4+4x", "9(3x^2^+8^2^)-#3/4#+4x"},
    {"Evaluating Polynomials", "4xy+9x*6y+8z^2", "4xy+9x*6y+8z^2^"},
    {"Graphing A Linear Equation", "y=2x+3", "y=2x+3"},
};

INSTANTIATE_TEST_SUITE_P(Instructions, TypedExamples, testing::ValuesIn(kExamples));

}  // namespace
}  // namespace numerello
