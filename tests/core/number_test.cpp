#include "core/number.h"

#include <gtest/gtest.h>

#include <cfloat>
#include <cmath>
#include <limits>

#include "core/failure.h"

namespace numerello {
namespace {

template <class Action>
FailureKind KindOf(Action action) {
    try {
        action();
    } catch (const Failure& failure) {
        return failure.Kind();
    }
    ADD_FAILURE() << "nothing was thrown";
    return FailureKind::Unanswered;
}

TEST(ToNumber, ReadsWhatALearnerTypes) {
    EXPECT_EQ(ToNumber("40"), 40);
    EXPECT_EQ(ToNumber("007"), 7);
    EXPECT_EQ(ToNumber("5."), 5);
    EXPECT_EQ(ToNumber(".5"), 0.5);
    EXPECT_EQ(ToNumber("-.25"), -0.25);
    EXPECT_EQ(ToNumber("+3"), 3);
    EXPECT_EQ(ToNumber(" 12 "), 12);
    EXPECT_EQ(ToNumber("-0"), 0);
    EXPECT_EQ(ToNumber("0E400"), 0);
    EXPECT_EQ(ToNumber("4.9E-324"), std::numeric_limits<double>::denorm_min());
}

TEST(DecimalPlaces, CountsTheDigitsBehindThePoint) {
    const std::pair<const char*, int> numbers[] = {{"", 0},   {"12", 0},    {"12.", 0},
                                                   {".5", 1}, {"-1.50", 2}, {"0.001", 3}};
    for (const auto& [number, places] : numbers) {
        EXPECT_EQ(DecimalPlaces(number), places) << number;
    }
}

TEST(ToNumber, EmptyTextIsZero) {
    EXPECT_EQ(ToNumber(""), 0);
    EXPECT_EQ(ToNumber("   "), 0);
}

TEST(ToNumber, ReadsItsOwnExponentForm) {
    EXPECT_EQ(ToNumber("1E+15"), 1e15);
    EXPECT_EQ(ToNumber("1.5E-16"), 1.5e-16);
    EXPECT_EQ(ToNumber("2e3"), 2000);
}

TEST(ToNumber, AnyOtherTextIsAFormatFailure) {
    for (const char* text : {".", "-", "-.", "1.2.3", "1,2", "abc", "1E", "1E+", "E5", "--1", "1 2",
                             "inf", "nan", "0x10", "1/2", "%"}) {
        EXPECT_EQ(KindOf([text] { ToNumber(text); }), FailureKind::Format) << text;
    }
}

TEST(ToNumber, BeyondADoubleIsAnOverflow) {
    EXPECT_EQ(KindOf([] { ToNumber("1E309"); }), FailureKind::Overflow);
    EXPECT_EQ(KindOf([] { ToNumber("-1E+400"); }), FailureKind::Overflow);
    EXPECT_EQ(KindOf([] { ToNumber("1" + std::string(400, '0')); }), FailureKind::Overflow);
    EXPECT_EQ(KindOf([] { ToNumber("1" + std::string(400, '0') + "E-9"); }), FailureKind::Overflow);
    EXPECT_EQ(KindOf([] { ToNumber("1E99999999999"); }), FailureKind::Overflow);
}

TEST(ToNumber, FarBelowADoubleIsZero) {
    EXPECT_EQ(ToNumber("1E-400"), 0);
    EXPECT_EQ(ToNumber("1E-99999999999"), 0);
    EXPECT_EQ(ToNumber("0." + std::string(400, '0') + "1"), 0);
    EXPECT_EQ(ToNumber("0." + std::string(400, '0') + "1E+9"), 0);
}

TEST(NumberText, HasNoTrailingZerosAndALeadingZero) {
    EXPECT_EQ(NumberText(0), "0");
    EXPECT_EQ(NumberText(12), "12");
    EXPECT_EQ(NumberText(1000), "1000");
    EXPECT_EQ(NumberText(0.5), "0.5");
    EXPECT_EQ(NumberText(-0.25), "-0.25");
    EXPECT_EQ(NumberText(1.10), "1.1");
}

TEST(NumberText, MinusZeroIsZero) {
    EXPECT_EQ(NumberText(-0.0), "0");
}

TEST(NumberText, HasFifteenSignificantDigits) {
    EXPECT_EQ(NumberText(1.0 / 3), "0.333333333333333");
    EXPECT_EQ(NumberText(2.0 / 3), "0.666666666666667");
    EXPECT_EQ(NumberText(1.0 / 12), "0.0833333333333333");
    EXPECT_EQ(NumberText(100.0 / 3), "33.3333333333333");
    EXPECT_EQ(NumberText(0.1 + 0.2), "0.3");
    EXPECT_EQ(NumberText(3.14159e-11), "0.0000000000314159");
    EXPECT_EQ(NumberText(123456789012345), "123456789012345");
    EXPECT_EQ(NumberText(999999999999999), "999999999999999");
}

TEST(NumberText, FromTheSixteenthDigitOnIsInExponentForm) {
    EXPECT_EQ(NumberText(1e15), "1E+15");
    EXPECT_EQ(NumberText(999999999999999.9), "1E+15");
    EXPECT_EQ(NumberText(1.5e20), "1.5E+20");
    EXPECT_EQ(NumberText(-1234567890123456), "-1.23456789012346E+15");
    EXPECT_EQ(NumberText(1e100), "1E+100");
    EXPECT_EQ(NumberText(1e-15), "0.000000000000001");
    EXPECT_EQ(NumberText(1e-16), "1E-16");
    EXPECT_EQ(NumberText(1.5e-16), "1.5E-16");
}

TEST(NumberText, NoNumberIsAnOverflow) {
    EXPECT_EQ(KindOf([] { NumberText(INFINITY); }), FailureKind::Overflow);
    EXPECT_EQ(KindOf([] { NumberText(NAN); }), FailureKind::Overflow);
}

TEST(SingleText, HasSevenSignificantDigits) {
    EXPECT_EQ(SingleText(1.0F / 3), "0.3333333");
    EXPECT_EQ(SingleText(0.1F), "0.1");
    EXPECT_EQ(SingleText(9999999), "9999999");
    EXPECT_EQ(SingleText(1e7F), "1E+07");
    EXPECT_EQ(SingleText(-2.5F), "-2.5");
    EXPECT_EQ(SingleText(1e-7F), "0.0000001");
    EXPECT_EQ(SingleText(1e-8F), "1E-08");
}

TEST(WholeText, IsDecimal) {
    EXPECT_EQ(WholeText(0), "0");
    EXPECT_EQ(WholeText(-32768), "-32768");
    EXPECT_EQ(WholeText(std::numeric_limits<std::int64_t>::min()), "-9223372036854775808");
}

TEST(Round, HalvesGoToTheEvenNeighbour) {
    EXPECT_EQ(Round(0.5, 0), 0);
    EXPECT_EQ(Round(1.5, 0), 2);
    EXPECT_EQ(Round(2.5, 0), 2);
    EXPECT_EQ(Round(-0.5, 0), 0);
    EXPECT_EQ(Round(-1.5, 0), -2);
    EXPECT_EQ(Round(2.125, 2), 2.12);
    EXPECT_EQ(Round(0.375, 2), 0.38);
    EXPECT_EQ(Round(0.015625, 5), 0.01562);
}

TEST(Round, LooksAtTheScaledValue) {
    EXPECT_EQ(Round(2.675, 2), 2.68);  // 267.5 once scaled, though the Double lies below the tie
    EXPECT_EQ(Round(0.28 * 28.375, 2), 7.95);
    EXPECT_EQ(Round(123456789012.345, 2), 123456789012.34);
    EXPECT_EQ(Round(0.66 / 5280, 5), 0.00012);
}

TEST(Round, GoesToTheNearestWhereThereIsNoTie) {
    EXPECT_EQ(Round(3.3333, 2), 3.33);
    EXPECT_EQ(Round(3.336, 2), 3.34);
    EXPECT_EQ(Round(-3.336, 2), -3.34);
}

TEST(Round, LeavesWhatHasNoFurtherDigits) {
    EXPECT_EQ(Round(7, 2), 7);
    EXPECT_EQ(Round(1e300, 5), 1e300);
    EXPECT_EQ(Round(DBL_MAX, 5), DBL_MAX);
}

TEST(Round, RefusesWhatIsNoNumber) {
    EXPECT_EQ(KindOf([] { Round(INFINITY, 2); }), FailureKind::Overflow);
    EXPECT_EQ(KindOf([] { Round(NAN, 2); }), FailureKind::Overflow);
}

TEST(Divide, TellsItsTwoFailuresApart) {
    EXPECT_EQ(Divide(40, 12), 40.0 / 12);
    EXPECT_EQ(KindOf([] { Divide(1, 0); }), FailureKind::DivisionByZero);
    EXPECT_EQ(KindOf([] { Divide(0, 0); }), FailureKind::DivisionByZero);
    EXPECT_EQ(KindOf([] { Divide(1e308, 1e-10); }), FailureKind::Overflow);
}

TEST(Checked, LetsNumbersThroughAlone) {
    EXPECT_EQ(Checked(DBL_MAX), DBL_MAX);
    EXPECT_EQ(KindOf([] { Checked(DBL_MAX * 2); }), FailureKind::Overflow);
    EXPECT_EQ(KindOf([] { Checked(NAN); }), FailureKind::Overflow);
}

TEST(ToInteger16, StopsAtItsBorders) {
    EXPECT_EQ(ToInteger16(32767), 32767);
    EXPECT_EQ(ToInteger16(32767.4), 32767);
    EXPECT_EQ(ToInteger16(-32768.5), -32768);
    EXPECT_EQ(ToInteger16(2.5), 2);
    EXPECT_EQ(KindOf([] { ToInteger16(32767.5); }), FailureKind::Overflow);
    EXPECT_EQ(KindOf([] { ToInteger16(32768); }), FailureKind::Overflow);
    EXPECT_EQ(KindOf([] { ToInteger16(-32769); }), FailureKind::Overflow);
}

TEST(ToInteger32, StopsAtItsBorders) {
    EXPECT_EQ(ToInteger32(2147483647), 2147483647);
    EXPECT_EQ(ToInteger32(-2147483648.0), std::numeric_limits<std::int32_t>::min());
    EXPECT_EQ(ToInteger32(3.5), 4);
    EXPECT_EQ(KindOf([] { ToInteger32(2147483647.5); }), FailureKind::Overflow);
    EXPECT_EQ(KindOf([] { ToInteger32(-2147483649.0); }), FailureKind::Overflow);
    EXPECT_EQ(KindOf([] { ToInteger32(1e300); }), FailureKind::Overflow);
}

TEST(ToSingle, KeepsTwentyFourBits) {
    EXPECT_EQ(ToSingle(16777216), 16777216.0F);
    EXPECT_EQ(ToSingle(16777217), 16777216.0F);
    EXPECT_EQ(ToSingle(0.1), 0.1F);
    EXPECT_EQ(ToSingle(FLT_MAX), FLT_MAX);
    EXPECT_EQ(KindOf([] { ToSingle(3.5e38); }), FailureKind::Overflow);
    EXPECT_EQ(KindOf([] { ToSingle(-1e300); }), FailureKind::Overflow);
    EXPECT_EQ(KindOf([] { ToSingle(INFINITY); }), FailureKind::Overflow);
}

TEST(ReadInteger16, TakesDigitsWithASignAndBlanksAround) {
    EXPECT_EQ(ReadInteger16("0"), 0);
    EXPECT_EQ(ReadInteger16("-1"), -1);
    EXPECT_EQ(ReadInteger16("+12"), 12);
    EXPECT_EQ(ReadInteger16("  007 "), 7);
    EXPECT_EQ(ReadInteger16("32767"), 32767);
    EXPECT_EQ(ReadInteger16("-32768"), -32768);
}

TEST(ReadInteger16, TakesNothingElse) {
    for (const char* text : {"", " ", "+", "-", "+-1", "-+1", "--1", "1 2", "1.0", "1e1", "x", "1x",
                             "0x1", "32768", "-32769", "99999999999999999999", "1\n"}) {
        EXPECT_EQ(ReadInteger16(text), std::nullopt) << text;
    }
}

TEST(LeadingInteger16, DoesNotLookBehindTheDigits) {
    EXPECT_EQ(LeadingInteger16("91\r\n"), 91);
    EXPECT_EQ(LeadingInteger16(" -1x"), -1);
    EXPECT_EQ(LeadingInteger16("+3.5"), 3);
    EXPECT_EQ(LeadingInteger16("7 8"), 7);
    for (const char* text : {"", " ", "x1", "+-1", "- 1", "\n1", "32768", "-32769x"}) {
        EXPECT_EQ(LeadingInteger16(text), std::nullopt) << text;
    }
}

}  // namespace
}  // namespace numerello
