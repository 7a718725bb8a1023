#include <gtest/gtest.h>

#include <QPainterPath>
#include <QRawFont>
#include <QtEndian>
#include <array>
#include <string>

#include "typeset/surface.h"
#include "ui/font_metrics.h"

namespace numerello {
namespace {

const Font kTwelve{std::string(kSheetFace), 12};
constexpr double kBlank = 67.0 / 17;  // 17 blanks are the left margin, 67 pixels
constexpr double kDigit = 2 * kBlank;
constexpr std::array kSpecial{"~", "&", "`", "\\", "$", "{", "_"};

QPainterPath Glyph(const std::string& character, const FontMetrics& metrics) {
    const QRawFont& face = metrics.Face(kTwelve);
    const auto glyphs = face.glyphIndexesForString(QString::fromStdString(character));
    return face.pathForGlyph(glyphs.value(0));
}

/// The glyph's outline in a cell whose top left corner is (x, y).
QPainterPath GlyphAt(const std::string& character, double x, double y, const FontMetrics& metrics) {
    return Glyph(character, metrics).translated(x, y + metrics.Ascent(kTwelve));
}

double Advance(const std::string& character, const FontMetrics& metrics) {
    const QRawFont& face = metrics.Face(kTwelve);
    const auto glyphs = face.glyphIndexesForString(QString::fromStdString(character));
    const auto advances = face.advancesForGlyphIndexes(glyphs);
    return advances.value(0).x();
}

/// A big-endian 16-bit number of one of the font's tables.
int TableNumber(const char* table, int offset, const FontMetrics& metrics) {
    const QByteArray bytes = metrics.Face(kTwelve).fontTable(table);
    EXPECT_GE(bytes.size(), offset + 2) << table;
    return bytes.size() < offset + 2 ? 0 : qFromBigEndian<qint16>(bytes.constData() + offset);
}

class SheetFont : public ::testing::Test {
  protected:
    FontMetrics sheet{FontMetrics::Medium::Sheet};
    /// Takes blank and line from the face itself.
    FontMetrics face{FontMetrics::Medium::Print};
};

TEST_F(SheetFont, IsFoundByItsName) {
    EXPECT_EQ(sheet.Face(kTwelve).familyName(), "VantrelFont");
    EXPECT_EQ(sheet.Face(kTwelve).styleName(), "Regular");
    EXPECT_DOUBLE_EQ(sheet.Face(kTwelve).pixelSize(), 16);
}

TEST_F(SheetFont, BlankDigitAndLineAreThoseOfTheRuledPaper) {
    for (const FontMetrics* metrics : {&sheet, &face}) {
        EXPECT_NEAR(metrics->Width(" ", kTwelve), kBlank, 0.01);
        EXPECT_NEAR(metrics->Width(std::string(17, ' '), kTwelve), 67.0, 0.01);
        EXPECT_NEAR(metrics->LineHeight(kTwelve), 17.2, 0.01);
        for (const char digit : std::string("0123456789")) {
            EXPECT_NEAR(metrics->Width(std::string(1, digit), kTwelve), kDigit, 0.01) << digit;
        }
    }
}

TEST_F(SheetFont, FaceIsDrawnAsWideAsItIsMeasured) {
    EXPECT_NEAR(Advance(" ", face), kBlank, 0.02);
    EXPECT_NEAR(Advance("7", face), kDigit, 0.02);
    EXPECT_NEAR(Advance("W", face), face.Width("W", kTwelve), 0.02);
}

TEST_F(SheetFont, WidthsGrowWithTheSize) {
    for (const double size : {8.0, 10.0, 14.0, 18.0}) {
        const Font font{kTwelve.name, size};
        EXPECT_NEAR(face.Width("12", font), size * 134 / 102, 0.001);
        EXPECT_NEAR(sheet.LineHeight(font), size * 43 / 30, 0.001);
        EXPECT_NEAR(sheet.Width("x = 5", font), sheet.Width("x = 5", kTwelve) * size / 12, 0.001);
    }
}

TEST_F(SheetFont, AllHeightsAgreeAndNoLineGapIsLeft) {
    const int ascent = TableNumber("hhea", 4, sheet);
    const int descent = TableNumber("hhea", 6, sheet);
    EXPECT_NEAR((ascent - descent) * 16.0 / TableNumber("head", 18, sheet), 17.2, 0.001);
    EXPECT_EQ(TableNumber("hhea", 8, sheet), 0);
    EXPECT_EQ(TableNumber("OS/2", 68, sheet), ascent);
    EXPECT_EQ(TableNumber("OS/2", 70, sheet), descent);
    EXPECT_EQ(TableNumber("OS/2", 72, sheet), 0);
    EXPECT_EQ(TableNumber("OS/2", 74, sheet), ascent);
    EXPECT_EQ(TableNumber("OS/2", 76, sheet), -descent);
    constexpr int kUseTypographicHeights = 0x80;
    EXPECT_TRUE(TableNumber("OS/2", 62, sheet) & kUseTypographicHeights);
}

TEST_F(SheetFont, EveryCharacterIsPrintedByItself) {
    EXPECT_TRUE(sheet.Face(kTwelve).fontTable("GPOS").isEmpty());
    EXPECT_TRUE(sheet.Face(kTwelve).fontTable("GSUB").isEmpty());
    EXPECT_DOUBLE_EQ(sheet.Width("AVfi", kTwelve),
                     sheet.Width("A", kTwelve) + sheet.Width("V", kTwelve) +
                         sheet.Width("f", kTwelve) + sheet.Width("i", kTwelve));
}

TEST_F(SheetFont, SpecialCharactersHaveInkAndTheAdvanceOfADigit) {
    const QPainterPath missing = sheet.Face(kTwelve).pathForGlyph(0);
    for (const std::string character : kSpecial) {
        const QPainterPath glyph = Glyph(character, sheet);
        EXPECT_GT(glyph.boundingRect().width(), 1) << character;
        EXPECT_GT(glyph.boundingRect().height(), 0.5) << character;
        EXPECT_NE(glyph, missing) << character;
        const bool isOperator = character == "{";
        EXPECT_NEAR(sheet.Width(character, kTwelve),
                    isOperator ? sheet.Width("+", kTwelve) : kDigit, 0.01)
            << character;
    }
}

TEST_F(SheetFont, OperatorsStandClearOfTheFractionsBesideThem) {
    for (const std::string sign : {"+", "-", "*", "{", "="}) {
        const QRectF ink = Glyph(sign, sheet).boundingRect();
        EXPECT_GT(ink.left(), 1.5) << sign;
        EXPECT_GT(sheet.Width(sign, kTwelve) - ink.right(), 1.5) << sign;
    }
}

TEST_F(SheetFont, AnEqualsSignIsToldFromTheBarsBesideIt) {
    const QRectF equals = Glyph("=", sheet).boundingRect();
    EXPECT_GT(equals.left(), 2.5);
    EXPECT_NEAR(sheet.Width("=", kTwelve) - equals.right(), equals.left(), 0.1);
}

TEST_F(SheetFont, AMinusIsToldFromTheBarsBesideIt) {
    const QRectF minus = Glyph("-", sheet).boundingRect();
    EXPECT_LT(minus.width(), 0.75 * kDigit);
    EXPECT_GT(minus.left(), 3);
    EXPECT_NEAR(sheet.Width("-", kTwelve) - minus.right(), minus.left(), 0.1);
}

TEST_F(SheetFont, SpecialCharactersLookLikeTheSignsTheyStandFor) {
    EXPECT_EQ(Glyph("`", sheet), Glyph("\u03c0", sheet));
    EXPECT_EQ(Glyph("\\", sheet), Glyph("\u00b1", sheet));
    EXPECT_EQ(Glyph("$", sheet), Glyph("\u2260", sheet));
    EXPECT_EQ(Glyph("{", sheet), Glyph("\u00f7", sheet));
    EXPECT_NE(Glyph("`", sheet), Glyph("\\", sheet));
}

TEST_F(SheetFont, EveryAsciiCharacterHasAGlyph) {
    for (char32_t character = U' '; character < 0x7F; ++character) {
        EXPECT_TRUE(sheet.Face(kTwelve).supportsCharacter(character)) << char(character);
    }
}

TEST_F(SheetFont, BarSegmentFillsItsAdvance) {
    const QRectF ink = Glyph("_", sheet).boundingRect();
    EXPECT_LE(ink.left(), 0);
    EXPECT_GE(ink.left(), -0.2);
    EXPECT_GE(ink.right(), kDigit);
    EXPECT_LE(ink.right(), kDigit + 0.2);
}

/// Numerator and bar are printed at one height, the denominator 1.7 times 12 lower.
TEST_F(SheetFont, FractionBarIsClearOfBothParts) {
    const QRectF bar = GlyphAt("_", 0, 0, sheet).boundingRect();
    for (const std::string above : {"0", "8", "g", "j", "p", "q", "y", "(", ")"}) {
        EXPECT_LT(GlyphAt(above, 0, 0, sheet).boundingRect().bottom(), bar.top() - 0.3) << above;
    }
    for (const std::string below : {"0", "8", "b", "f", "T", "(", ")"}) {
        EXPECT_GT(GlyphAt(below, 0, 1.7 * 12, sheet).boundingRect().top(), bar.bottom() + 0.3)
            << below;
    }
}

/// The bar's end in a square's corner with the highest edge of a rising stroke.
void ExpectJoined(const QPainterPath& stroke, const QPainterPath& bar) {
    EXPECT_NEAR(stroke.boundingRect().top(), bar.boundingRect().top(), 0.02);
    EXPECT_NEAR(stroke.boundingRect().right(), bar.boundingRect().left(), 0.6);
    EXPECT_GE(stroke.boundingRect().right(), bar.boundingRect().left());
    EXPECT_TRUE(stroke.intersects(bar));
}

/// A root at (0, 0): body behind two blanks, bar from half the size on, one and a half sizes up.
TEST_F(SheetFont, RootSignMeetsItsBar) {
    const QPainterPath sign = GlyphAt("~", -2, -2, sheet);
    const QPainterPath bar = GlyphAt("_", 6, -18, sheet);
    ExpectJoined(sign, bar);
    const double baseline = sheet.Ascent(kTwelve);
    EXPECT_GT(sign.boundingRect().bottom(), baseline);
    EXPECT_LT(sign.boundingRect().bottom(), baseline + 2);
    EXPECT_GT(sign.boundingRect().left(), -1);
    const QRectF body = GlyphAt("8", 2 * kBlank, 0, sheet).boundingRect();
    EXPECT_GT(body.top(), bar.boundingRect().bottom() + 1);
    EXPECT_GT(body.left(), sign.boundingRect().right() - 0.5);
}

/// A body with a fraction: its numerator is 0.6 times the size up, and the bar goes up with it.
TEST_F(SheetFont, TallRootSignIsOneStrokeUpToItsBar) {
    const QPainterPath upper = GlyphAt("&", 2, -9, sheet);
    const QPainterPath sign = GlyphAt("~", 2 + kDigit - 14, -9 + 16, sheet);
    const QPainterPath bar = GlyphAt("_", 6, -7.2 - 18, sheet);
    ExpectJoined(upper, bar);
    EXPECT_TRUE(upper.intersects(sign));
    EXPECT_NEAR(upper.boundingRect().bottom(), sign.boundingRect().top() + 0.8, 0.05);
    const QRectF numerator = GlyphAt("8", 2 * kBlank, -7.2, sheet).boundingRect();
    EXPECT_GT(numerator.left(), upper.boundingRect().right());
}

/// Of an exponent at 8 points, raised by 1.6.
TEST_F(SheetFont, ExponentStaysBelowTheBarOfItsRoot) {
    const Font eight{kTwelve.name, 8};
    const QRawFont& small = sheet.Face(eight);
    const QRectF digit = small.pathForGlyph(small.glyphIndexesForString("8").value(0))
                             .boundingRect()
                             .translated(0, -1.6 + sheet.Ascent(eight));
    EXPECT_GT(digit.top(), GlyphAt("_", 0, -18, sheet).boundingRect().bottom() + 0.3);
}

TEST(OtherFaces, AreThoseOfTheDistribution) {
    const FontMetrics sheet(FontMetrics::Medium::Sheet);
    const FontMetrics explanation(FontMetrics::Medium::Explanation);
    EXPECT_EQ(sheet.Face({"Book Antiqua", 12}).familyName(), "TeX Gyre Pagella");
    EXPECT_EQ(sheet.Face({"Book Antiqua", 12}).weight(), QFont::Normal);
    EXPECT_EQ(explanation.Face({"Book Antiqua", 12}).weight(), QFont::Bold);
    EXPECT_EQ(explanation.Face(kTwelve).weight(), QFont::Normal);
    EXPECT_EQ(sheet.Face({"Arial", 9}).familyName(), "Liberation Sans");
    EXPECT_EQ(sheet.Face({"MS Sans Serif", 8.25}).familyName(), "Liberation Sans");
    EXPECT_DOUBLE_EQ(sheet.Face({"MS Sans Serif", 8.25}).pixelSize(), 11);
    EXPECT_EQ(sheet.Face({"Courier", 16}).familyName(), "Liberation Mono");
    EXPECT_EQ(sheet.Face({"Courier", 16}).weight(), QFont::Bold);
}

TEST(OtherFaces, KeepTheRuledPitchOnASheetOnly) {
    const Font antiqua{"Book Antiqua", 12};
    EXPECT_NEAR(FontMetrics(FontMetrics::Medium::Sheet).LineHeight(antiqua), 17.2, 0.001);
    EXPECT_NEAR(FontMetrics(FontMetrics::Medium::Sheet).Width(" ", antiqua), kBlank, 0.001);
    // Of 1000 units a blank is 250 and a line 720 + 258.
    const FontMetrics explanation(FontMetrics::Medium::Explanation);
    EXPECT_NEAR(explanation.LineHeight(antiqua), 15.648, 0.001);
    EXPECT_NEAR(explanation.Width(" ", antiqua), 4, 0.001);
}

TEST(Font, SetsOtherAlphabetsInAnotherFace) {
    const FontMetrics print(FontMetrics::Medium::Print);
    const QString name = QString::fromUtf8("\xD0\x9C\xD0\xB0\xCE\xA9");  // two Cyrillic, one Greek
    for (const char32_t letter : name.toStdU32String()) {
        const QRawFont& face = print.FaceOf(letter, kTwelve);
        EXPECT_TRUE(face.supportsCharacter(letter));
        EXPECT_DOUBLE_EQ(face.pixelSize(), 16);
        EXPECT_GT(print.CharacterWidth(letter, kTwelve), 4);
    }
    EXPECT_EQ(print.FaceOf(U'a', kTwelve).familyName(), "VantrelFont");
    EXPECT_NEAR(print.Width(name.toStdString(), kTwelve),
                print.CharacterWidth(0x41C, kTwelve) + print.CharacterWidth(0x430, kTwelve) +
                    print.CharacterWidth(0x3A9, kTwelve),
                1e-9);
}

}  // namespace
}  // namespace numerello
