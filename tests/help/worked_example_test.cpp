#include "help/worked_example.h"

#include <gtest/gtest.h>

#include "help/help_error.h"
#include "tests/help/book.h"

namespace numerello {

namespace {

TopicText Typed(const char* caption, const char* problem) {
    TopicText text;
    text.caption = caption;
    text.problem = problem;
    return text;
}

std::string WhyNot(const TopicText& text) {
    const PlainMetrics metrics;
    try {
        const WorkedExample example(text, metrics);
    } catch (const HelpError& error) {
        return error.what();
    }
    return "";
}

TEST(WorkedExample, PlaysEveryLine) {
    const PlainMetrics metrics;
    const WorkedExample example(Typed("Converting Inches To Feet", "48"), metrics);
    ASSERT_EQ(example.Steps().size(), 3U);
    EXPECT_EQ(example.Steps()[0].line, "There are 12 inches in a foot.");
    EXPECT_EQ(example.Steps()[0].reason, "12 inches = 1 foot");
    EXPECT_EQ(example.Steps()[2].line, "48 inches = 4 feet");
    EXPECT_EQ(example.Steps()[2].reason, "Inches converted to feet.");
}

TEST(WorkedExample, PlaysEveryColumn) {
    TopicText sum;
    sum.caption = "Addition";
    sum.boxes.Text[0] = "12";
    sum.boxes.Text[1] = "34";
    const PlainMetrics metrics;
    const WorkedExample example(sum, metrics);
    ASSERT_EQ(example.Steps().size(), 3U);
    for (const WorkedExample::Step& step : example.Steps()) {
        EXPECT_EQ(step.line, "");
        EXPECT_NE(step.reason, "");
    }
    EXPECT_FALSE(example.Drawing().Marks().empty());
}

TEST(WorkedExample, AnswersQuestions) {
    TopicText text = Typed("Evaluating Polynomials", "2x");
    text.answers = {"3"};
    const PlainMetrics metrics;
    const WorkedExample example(text, metrics);
    EXPECT_EQ(example.Questions().size(), 1U);
    EXPECT_EQ(example.Steps().back().line, "6");
}

TEST(WorkedExample, KeepsTheNumberLine) {
    const PlainMetrics metrics;
    const WorkedExample comparing(Typed("Comparing Values", "-3,4"), metrics);
    ASSERT_TRUE(comparing.NumberLine().has_value());
    EXPECT_EQ(comparing.NumberLine()->A, -3);
    EXPECT_EQ(comparing.NumberLine()->B, 4);
    const WorkedExample other(Typed("Converting Inches To Feet", "48"), metrics);
    EXPECT_FALSE(other.NumberLine().has_value());
}

TEST(WorkedExample, RefusesWhatTheProgramRefuses) {
    EXPECT_EQ(WhyNot(Typed("Converting Inches To Feet", "4x")),
              "the example of \"Converting Inches To Feet\" has a key that is refused: x");
    EXPECT_EQ(WhyNot(Typed("Juggling", "3")), "there is no topic \"Juggling\"");
    EXPECT_EQ(WhyNot(Typed("Arithmetic", "")), "the example of \"Arithmetic\" is not complete");
    EXPECT_EQ(WhyNot(Typed("Arithmetic", "4/0")),
              "the example of \"Arithmetic\" fails: division by zero");
}

TEST(WorkedExample, RefusesAnAnswerThatNobodyAsksFor) {
    TopicText text = Typed("Converting Inches To Feet", "48");
    text.answers = {"3"};
    EXPECT_EQ(WhyNot(text),
              "the example of \"Converting Inches To Feet\" has an answer that nobody asks for");
}

TEST(WorkedExample, RefusesAMessage) {
    TopicText sum;
    sum.caption = "Subtraction";
    sum.boxes.Text[0] = "3";
    sum.boxes.Text[1] = "5";
    EXPECT_NE(WhyNot(sum).find("brings a message"), std::string::npos) << WhyNot(sum);
}

/// Checked apart from the code: what the examples have to come to.
TEST(WorkedExample, EndsInTheRightAnswer) {
    struct Answer {
        const char* caption;
        const char* ends;
    };
    const PlainMetrics metrics;
    for (const Answer& answer : {
             Answer{"Arithmetic", "5"},                                        // 4+6-5
             Answer{"Complex Arithmetic Expressions", "11"},                   // 2+9
             Answer{"Absolute Values", "8"},                                   // 5+3
             Answer{"Rounding", "3700"},                                       // 3746 to hundreds
             Answer{"Calculating Roots", "12"},                                // 3*2+2*3
             Answer{"Calculating With Exponents", "25"},                       // 9+16
             Answer{"Fraction Arithmetic", "#11/10#"},                         // 5/10+6/10
             Answer{"Solving Equations", "x=4"},                               // 2*4+3=11
             Answer{"Arithmetic Principles", "x=9"},                           // 9+3=12
             Answer{"Simplifying Polynomials", "5x+12"},                       // 3x+12+2x
             Answer{"Evaluating Polynomials", "22"},                           // 4*3+2*5
             Answer{"Graphing A Linear Equation", "y=2x+3"},                   // y-2x=3
             Answer{"Converting Fahrenheit To Celsius", "77^o^ F = 25^o^ C"},  // 45*5/9
         }) {
        const WorkedExample example(TextFor(answer.caption), metrics);
        EXPECT_EQ(example.Steps().back().line, answer.ends) << answer.caption;
    }
}

}  // namespace

}  // namespace numerello
