#include "tests/learners.h"
#include "tests/typeset/samples.h"
#include "typeset/lines.h"
#include "typeset/notation_walk.h"

namespace numerello {
namespace {

constexpr double kC = kCharacter;

void ExpectBlue(const SampleAnswer& answer, std::vector<Piece> pieces) {
    for (Piece& piece : pieces) {
        piece.color = kBlue;
    }
    ExpectPieces(answer, pieces);
}

TEST(ExplanationLineTest, ASlashAnywhereMakesRoom) {
    ExpectBlue(Explained("ab"), {{"a", 0, 3}, {"b", kC, 3}});
    ExpectEnd(Explained("ab"), 0, 3 + kLine);
    ExpectBlue(Explained("a/b"), {{"a", 0, 12}, {"/", kC, 12}, {"b", 2 * kC, 12}});
    ExpectEnd(Explained("a/b"), 0, 12 + kLine);
}

TEST(ExplanationLineTest, RootAndFraction) {
    const double x = 6 + 2 * kC + kBlank;
    ExpectBlue(Explained("~4~ #1/2#"), {{"4", kC, 12},
                                        {"_", 6, 12 - 18},
                                        {"_", 6 + kC, 12 - 18},
                                        {"~", -2, 12},
                                        {"1", x, 12 - 7.2},
                                        {"2", x, 12 - 7.2 + 20.4},
                                        {"_", x, 12 - 7.2}});
}

TEST(ExplanationLineTest, OnlyThePlainSignComesFromTheSheetsFace) {
    const SampleAnswer plain = Explained("~4~x");
    ASSERT_EQ(plain.marks.size(), 5U);
    EXPECT_EQ(TextAt(plain, 0).font.name, "Book Antiqua");
    EXPECT_EQ(TextAt(plain, 3).text, "~");
    EXPECT_EQ(TextAt(plain, 3).font.name, "VantrelFont");
    EXPECT_EQ(TextAt(plain, 4).font.name, "Book Antiqua");

    const SampleAnswer tall = Explained("~#1/2#~");
    ASSERT_EQ(tall.marks.size(), 7U);
    EXPECT_EQ(TextAt(tall, 5).text, "&");
    EXPECT_EQ(TextAt(tall, 5).font.name, "Book Antiqua");
    EXPECT_EQ(TextAt(tall, 6).text, "~");
    EXPECT_EQ(TextAt(tall, 6).font.name, "Book Antiqua");
}

TEST(ExplanationLineTest, ATallRoot) {
    ExpectBlue(Explained("~#1/2#~"), {{"1", kC, 4.8},
                                      {"2", kC, 25.2},
                                      {"_", kC, 4.8},
                                      {"_", 6, 4.8 - 18},
                                      {"_", 6 + kC, 4.8 - 18},
                                      {"&", 2, 3},
                                      {"~", 2 + kC - 14, 19}});
}

TEST(ExplanationLineTest, BracketsGoBackToBlue) {
    ExpectPieces(Explained("[a]b^2^"),
                 {{"a", 0, 3, 12, kRed}, {"b", kC, 3, 12, kBlue}, {"2", 2 * kC, 1.4, 8, kBlue}});
    ExpectPieces(Explained("#[1]/2#"),
                 {{"1", 0, 4.8, 12, kRed}, {"2", 0, 25.2, 12, kBlue}, {"_", 0, 4.8, 12, kBlue}});
    ExpectPiece(Explained("~[9]~"), 1, {"_", 6, 3 - 18, 12, kBlue});
}

TEST(ExplanationLineTest, NoPageEnds) {
    const SampleAnswer answer =
        Typeset({.target = TypesetTarget::Explanation, .text = "x", .y = 5000});
    ExpectBlue(answer, {{"x", 0, 5003}});
    EXPECT_EQ(answer.pagesTurned, 0);
}

/// A text that speaks of the marks, drawn alone; the learner must not be told anything.
std::vector<TextMark> ExplainedQuotes(std::string_view text) {
    NotingLearner learner;
    const PlainMetrics metrics;
    Surface window(metrics, {"Book Antiqua", 12});
    ExplainLine(CharactersWithQuotedMarks(text), window, learner);
    EXPECT_EQ(learner.messages, std::vector<std::string>());
    std::vector<TextMark> marks;
    for (const Mark& mark : window.Marks()) {
        marks.push_back(std::get<TextMark>(mark));
    }
    return marks;
}

std::string Joined(const std::vector<TextMark>& marks) {
    std::string text;
    for (const TextMark& mark : marks) {
        text += mark.text;
    }
    return text;
}

TEST(ExplanationLineTest, AQuotedMarkIsPrinted) {
    for (const std::string mark : {"#", "^", "~", "[", "]"}) {
        SCOPED_TRACE(mark);
        const std::vector<TextMark> marks = ExplainedQuotes("a '" + mark + "' b");
        EXPECT_EQ(Joined(marks), "a'" + mark + "'b");
        EXPECT_NEAR(marks.back().x, 4 * kC + 2 * kBlank, 1e-6);
        EXPECT_NEAR(marks.back().y, 3, 1e-6);
        EXPECT_EQ(marks.back().color, kBlue);
        EXPECT_EQ(marks.back().font.name, "Book Antiqua");
    }
}

TEST(ExplanationLineTest, AQuotedRootShowsItsSign) {
    const std::vector<TextMark> marks = ExplainedQuotes("'~'");
    ASSERT_EQ(marks.size(), 3U);
    EXPECT_EQ(marks[0].text, "'");
    EXPECT_EQ(marks[1].text, "~");
    // As in a root: 2 to the left, and then two blanks of room, which are one character.
    EXPECT_NEAR(marks[1].x, kC - 2, 1e-6);
    EXPECT_EQ(marks[1].font.name, "VantrelFont");
    EXPECT_EQ(marks[2].text, "'");
    EXPECT_NEAR(marks[2].x, 2 * kC, 1e-6);
    EXPECT_EQ(marks[2].font.name, "Book Antiqua");
}

TEST(ExplanationLineTest, OtherQuotesAreNotLookedAt) {
    // Behind a quoted character the marks are obeyed as ever.
    const std::vector<TextMark> marks = ExplainedQuotes("'5' ~4~ 'Roots'");
    EXPECT_EQ(Joined(marks), "'5'4__~'Roots'");
}

}  // namespace
}  // namespace numerello
