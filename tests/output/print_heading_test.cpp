#include "output/print_heading.h"

#include "output/print_scale.h"
#include "printed.h"

namespace numerello {
namespace {

TEST(PrintHeading, StandsBelowThreeEmptyLinesBehindThreeBlanks) {
    PlainPrinter printer;
    PrintHeading({"Vantrel Numerello", "Medians", "03/09/2026"}, printer.surface);
    ExpectRows(printer.surface.Marks(), {{"   Vantrel Numerello", 0, 3 * kLine},
                                         {"   Medians", 0, 4 * kLine},
                                         {"   03/09/2026", 0, 5 * kLine}});
    EXPECT_NEAR(printer.surface.CurrentX, 0, 1e-9);
    EXPECT_NEAR(printer.surface.CurrentY, 6 * kLine, 1e-9);
}

TEST(PrintHeading, KeepsTheRoomOfAnEmptyLine) {
    PlainPrinter printer;
    PrintHeading({"", "Medians", ""}, printer.surface);
    ExpectRows(printer.surface.Marks(), {{"   Medians", 0, 4 * kLine}});
    EXPECT_NEAR(printer.surface.CurrentY, 6 * kLine, 1e-9);
}

TEST(PrintHeading, SetsALineTooLongForThePaperSmaller) {
    PlainPrinter printer;
    const std::string longLine(200, 'x');
    PrintHeading({longLine, "Medians", ""}, printer.surface);
    const auto& mark = std::get<TextMark>(printer.surface.Marks().front());
    EXPECT_EQ(mark.text, "   " + longLine);
    // Three blanks count as one character and a half.
    EXPECT_NEAR(mark.font.size, 12 * 800 / (201.5 * kCharacter), 1e-9);
    EXPECT_EQ(std::get<TextMark>(printer.surface.Marks().back()).font.size, 12);
    EXPECT_NEAR(std::get<TextMark>(printer.surface.Marks().back()).y, 4 * kLine, 1e-9);
}

TEST(PrintHeading, MeansTheCharactersThatTheSheetsDrawAsMathematics) {
    PlainPrinter printer;
    PrintHeading({"Bob & Ann $5", "~", ""}, printer.surface);
    const double ampersand = 3 * kBlank + 3 * kCharacter + kBlank;
    const double dollar = ampersand + kCharacter + kBlank + 3 * kCharacter + kBlank;
    const std::string other(kExplanationFace);
    ExpectRows(printer.surface.Marks(), {{"   Bob ", 0, 3 * kLine},
                                         {"&", ampersand, 3 * kLine, 12, other},
                                         {" Ann ", ampersand + kCharacter, 3 * kLine},
                                         {"$", dollar, 3 * kLine, 12, other},
                                         {"5", dollar + kCharacter, 3 * kLine},
                                         {"~", 3 * kBlank, 4 * kLine, 12, other}});
    EXPECT_EQ(printer.surface.FontName(), kSheetFace);
}

TEST(PrintHeading, KeepsThoseCharactersOnPaper) {
    PlainPrinter printer;
    PrintHeading({"Mr & Mrs Smith", "~a~", "&"}, printer.surface);
    int signs = 0;
    for (const Row& row : RowsOf(MarksInPixels(printer.surface.Marks(), ScaleOfPrint(kA4)))) {
        if (row.text == "&" || row.text == "~") {
            ++signs;
            EXPECT_EQ(row.face, kExplanationFace) << row.text;
        }
    }
    EXPECT_EQ(signs, 4);
}

TEST(PrintHeading, IsBlackWhateverWasPrintedBefore) {
    PlainPrinter printer;
    printer.surface.ForeColor = kBlue;
    PrintHeading({"a", "b", "c"}, printer.surface);
    EXPECT_EQ(std::get<TextMark>(printer.surface.Marks().front()).color, kBlack);
}

TEST(HeadingAtOpening, NamesTheProgramTheSubjectAndTheDay) {
    const HeadingLines heading = HeadingAtOpening("Rounding", {.year = 2026, .month = 3, .day = 9});
    EXPECT_EQ(heading, (HeadingLines{"Vantrel Numerello", "Rounding", "03/09/2026"}));
    EXPECT_EQ(DateText({.year = 2026, .month = 11, .day = 21}), "11/21/2026");
}

}  // namespace
}  // namespace numerello
