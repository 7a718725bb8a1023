#include "operands.h"

namespace numerello {
namespace {

/// A page whose units are narrower than high, as a sheet of paper of 800 by 600 has them.
class PrintMetrics : public TextMetrics {
  public:
    static constexpr double kAcross = 1.25;
    static constexpr double kDown = 0.5;

    double Width(std::string_view text, const Font& font) const override {
        return plain.Width(text, font) * kAcross;
    }
    double LineHeight(const Font& font) const override { return plain.LineHeight(font) * kDown; }

  private:
    PlainMetrics plain;
};

struct PrintCase {
    int code;
    std::string Text1;
    std::string Text2;

    friend void PrintTo(const PrintCase& shown, std::ostream* out) {
        *out << shown.code << " " << shown.Text1 << " and " << shown.Text2;
    }
};

constexpr double kHeadingEnd = 60;
constexpr double kLine = 43.0 / 30 * 12;

class Printed : public testing::TestWithParam<PrintCase> {
  protected:
    Printed() {
        film.Play();
        Solved().NextStep();
        page.Print("heading");
        page.CurrentY = kHeadingEnd;
        page.ForeColor = kBlue;
        page.SetFontSize(10);
    }

    Film& Solved() {
        halfPlayed.Solve();
        return halfPlayed;
    }

    const PrintMetrics metrics;
    Surface page{metrics, {std::string(kSheetFace), 12}};
    Film film{GetParam().code, GetParam().Text1, GetParam().Text2, false};
    Film halfPlayed{GetParam().code, GetParam().Text1, GetParam().Text2};
    NotingLearner learner;
};

TEST_P(Printed, IsTheWholeWorkingInTheProportionsOfThePage) {
    PrintColumns(halfPlayed.problem, page, learner);
    const std::vector<Mark>& sheet = film.Last().marks;
    ASSERT_EQ(page.Marks().size(), sheet.size() + 1);
    double moved = 0;  // how far all of it was moved down or up
    for (std::size_t i = 0; i < sheet.size(); ++i) {
        const Mark& printed = page.Marks()[i + 1];
        ASSERT_EQ(printed.index(), sheet[i].index());
        if (const auto* const text = std::get_if<TextMark>(&sheet[i])) {
            const auto& copy = std::get<TextMark>(printed);
            moved = i == 0 ? copy.y - text->y * PrintMetrics::kDown : moved;
            EXPECT_EQ(copy.text, text->text);
            EXPECT_EQ(copy.color, text->color);
            EXPECT_EQ(copy.font.size, text->font.size);
            EXPECT_NEAR(copy.x, text->x * PrintMetrics::kAcross, 1e-6);
            EXPECT_NEAR(copy.y, text->y * PrintMetrics::kDown + moved, 1e-6);
        } else {
            const auto& stroke = std::get<StrokeMark>(sheet[i]);
            const auto& copy = std::get<StrokeMark>(printed);
            EXPECT_NEAR(copy.x1, stroke.x1 * PrintMetrics::kAcross, 1e-6);
            EXPECT_NEAR(copy.x2, stroke.x2 * PrintMetrics::kAcross, 1e-6);
            EXPECT_NEAR(copy.y1, stroke.y1 * PrintMetrics::kDown + moved, 1e-6);
            EXPECT_NEAR(copy.y2, stroke.y2 * PrintMetrics::kDown + moved, 1e-6);
            EXPECT_EQ(copy.width, stroke.width);
        }
    }
}

TEST_P(Printed, StandsBelowTheHeadingAndOnThePage) {
    PrintColumns(halfPlayed.problem, page, learner);
    for (std::size_t i = 1; i < page.Marks().size(); ++i) {
        if (const auto* const text = std::get_if<TextMark>(&page.Marks()[i])) {
            EXPECT_GE(text->y, kHeadingEnd + kLine * PrintMetrics::kDown - 1e-6) << text->text;
            EXPECT_LT(text->y, 600) << text->text;
            EXPECT_GE(text->x, 0) << text->text;
            EXPECT_LT(text->x, 790) << text->text;
        }
    }
}

TEST_P(Printed, LeavesAHalfPlayedProblemAsItIs) {
    const Problem before = halfPlayed.problem;
    PrintColumns(halfPlayed.problem, page, learner);
    halfPlayed.NextStep();
    Film undisturbed(GetParam().code, GetParam().Text1, GetParam().Text2);
    undisturbed.Solve();
    undisturbed.NextStep();
    undisturbed.NextStep();
    EXPECT_EQ(halfPlayed.Last().Texts(), undisturbed.Last().Texts());
    EXPECT_EQ(halfPlayed.Last().note, undisturbed.Last().note);
    EXPECT_EQ(halfPlayed.problem.columns.Any(), before.columns.Any());
}

INSTANTIATE_TEST_SUITE_P(All, Printed,
                         testing::Values(PrintCase{kAddition, "9999", "9876"},
                                         PrintCase{kSubtraction, "52300", "34701"},
                                         PrintCase{kMultiplication, "305", "46"},
                                         PrintCase{kMultiplication, "9999999999", "9999999999"},
                                         PrintCase{kDivision, "123456", "12"},
                                         PrintCase{kDivision, "2147483647", "2"}));

TEST(PrintColumns, PrintsNothingForOtherTopics) {
    const PlainMetrics metrics;
    Surface page(metrics, {std::string(kSheetFace), 12});
    NotingLearner learner;
    Problem problem;
    problem.topic.ProblemType = 53;
    PrintColumns(problem, page, learner);
    EXPECT_TRUE(page.Marks().empty());
}

}  // namespace
}  // namespace numerello
