#include "text/numbers.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

namespace {

using text::HalfWidthNumber;
using text::SafeNumber;
using text::Str;
using text::Val;

TEST(Val, ReadsTheLeadingNumber) {
    EXPECT_EQ(Val(u"12"), 12);
    EXPECT_EQ(Val(u" 1 2 3 abc 4"), 123);
    EXPECT_EQ(Val(u"\t7\n8"), 78);
    EXPECT_EQ(Val(u"-3.5.7"), -3.5);
    EXPECT_EQ(Val(u"+.25"), 0.25);
    EXPECT_EQ(Val(u"- 5"), -5);
    EXPECT_EQ(Val(u"1,000"), 1);
    EXPECT_EQ(Val(u"１２"), 0);  // full-width digits are no digits
    EXPECT_EQ(Val(u"12％"), 12);
}

TEST(Val, TakesNothingForZero) {
    for (const TextView nothing : {u"", u"  ", u"abc", u"--5", u".", u"-", u"E5", u"&", u"&H"}) {
        EXPECT_EQ(Val(nothing), 0) << text::ToUtf8(nothing);
    }
}

TEST(Val, TakesExponents) {
    EXPECT_EQ(Val(u"1E3"), 1000);
    EXPECT_EQ(Val(u"1d3"), 1000);
    EXPECT_EQ(Val(u"2.5e+2x"), 250);
    EXPECT_EQ(Val(u"25E-1"), 2.5);
    EXPECT_EQ(Val(u"1 E 2"), 100);
    EXPECT_EQ(Val(u"4E"), 4);
    EXPECT_EQ(Val(u"4E+"), 4);
    EXPECT_EQ(Val(u"1E-999"), 0);
    EXPECT_EQ(Val(u"0E999"), 0);
}

TEST(Val, TakesHexadecimalAndOctal) {
    EXPECT_EQ(Val(u"&HFF"), 255);
    EXPECT_EQ(Val(u"&h7fff"), 32767);
    EXPECT_EQ(Val(u"&H8000"), -32768);
    EXPECT_EQ(Val(u"&HFFFF"), -1);
    EXPECT_EQ(Val(u"&HFFFF&"), 65535);
    EXPECT_EQ(Val(u"&H10000"), 65536);
    EXPECT_EQ(Val(u"&H7FFFFFFF"), 2147483647.0);
    EXPECT_EQ(Val(u"&HFFFFFFFF"), -1);
    EXPECT_EQ(Val(u"&O17"), 15);
    EXPECT_EQ(Val(u"&O178"), 15);
    EXPECT_EQ(Val(u"&HG"), 0);
}

TEST(Val, FailsOnlyWhereADoubleIsTooSmall) {
    EXPECT_EQ(Val(u"1E400"), std::nullopt);
    EXPECT_EQ(Val(u"-1E400"), std::nullopt);
    EXPECT_EQ(Val(Text(400, u'9')), std::nullopt);
    EXPECT_EQ(Val(u"." + Text(400, u'0') + u"1"), 0);
    EXPECT_EQ(Val(u"1E308"), 1e308);
}

TEST(SafeNumber, ReadsDigitByDigitWhereValFails) {
    // 1 stands in the fifth place before the end (10000), E divides by ten, 4 adds 400.
    EXPECT_EQ(SafeNumber(u"1E400"), 1400);
    EXPECT_EQ(SafeNumber(u"-1E400"), -1400);
    // A '-' anywhere makes it negative. 10^6, by ten at E, plus 4×10^4, by ten at X and at '-'.
    EXPECT_EQ(SafeNumber(u"1E400X-"), -1400);
    // After the point: 5 is 5/10; E moves the place on, so 4 is 4/100 and the zeros nothing.
    EXPECT_DOUBLE_EQ(SafeNumber(u"1.5E400"), 1.54);
    EXPECT_EQ(SafeNumber(u"12abc"), 12);
    EXPECT_EQ(SafeNumber(u"abc"), 0);
}

TEST(SafeNumber, NeverFails) {
    EXPECT_TRUE(std::isfinite(SafeNumber(Text(500, u'9'))));
    EXPECT_TRUE(std::isfinite(SafeNumber(Text(500, u'9') + u"." + Text(500, u'9'))));
    EXPECT_EQ(SafeNumber(Text(500, u'9') + u"-"), -std::numeric_limits<double>::max());
}

TEST(HalfWidthNumber, BringsTypedNumbersIntoAscii) {
    EXPECT_EQ(HalfWidthNumber(u"０１２３４５６７８９"), u"0123456789");
    EXPECT_EQ(HalfWidthNumber(u"－９９９"), u"-999");
    EXPECT_EQ(HalfWidthNumber(u"−９"), u"-9");
    EXPECT_EQ(HalfWidthNumber(u"ー３０"), u"-30");
    EXPECT_EQ(HalfWidthNumber(u"＋２．５"), u"+2.5");
    EXPECT_EQ(HalfWidthNumber(u"２。５"), u"2.5");
    EXPECT_EQ(HalfWidthNumber(u"　１ ２秒"), u" 1 2秒");
    EXPECT_EQ(HalfWidthNumber(u""), u"");
}

TEST(HalfWidthNumber, IsNoAffairOfSafeNumber) {
    EXPECT_EQ(SafeNumber(u"１２"), 0);
    EXPECT_EQ(SafeNumber(HalfWidthNumber(u"１２")), 12);
}

TEST(Rounding, TiesGoToEven) {
    EXPECT_EQ(text::RoundHalfEven(0.5), 0);
    EXPECT_EQ(text::RoundHalfEven(1.5), 2);
    EXPECT_EQ(text::RoundHalfEven(2.5), 2);
    EXPECT_EQ(text::RoundHalfEven(-0.5), 0);
    EXPECT_EQ(text::RoundHalfEven(-1.5), -2);
    EXPECT_EQ(text::RoundHalfEven(-2.5), -2);
    EXPECT_EQ(text::RoundHalfEven(2.4999), 2);
    EXPECT_EQ(text::RoundHalfEven(-2.6), -3);
    EXPECT_EQ(text::RoundHalfEven(1e300), 1e300);
}

TEST(Rounding, ToWholeNumbersOfAWidth) {
    EXPECT_EQ(text::ToInt16(32767.4), 32767);
    EXPECT_EQ(text::ToInt16(32767.5), std::nullopt);
    EXPECT_EQ(text::ToInt16(-32768.5), -32768);
    EXPECT_EQ(text::ToInt16(-32769), std::nullopt);
    EXPECT_EQ(text::ToInt32(2147483647.0), 2147483647);
    EXPECT_EQ(text::ToInt32(2147483648.0), std::nullopt);
    EXPECT_EQ(text::ToInt32(std::nan("")), std::nullopt);
    EXPECT_EQ(text::ToInt32(std::numeric_limits<double>::infinity()), std::nullopt);
}

TEST(Int, IsFloor) {
    EXPECT_EQ(text::Int(2.9), 2);
    EXPECT_EQ(text::Int(-2.1), -3);
    EXPECT_EQ(text::Int(-21), -21);
}

TEST(Str, PrintsASignPlaceAndNoZeroBeforeThePoint) {
    EXPECT_EQ(Str(0), u" 0");
    EXPECT_EQ(Str(-0.0), u" 0");
    EXPECT_EQ(Str(12), u" 12");
    EXPECT_EQ(Str(-3), u"-3");
    EXPECT_EQ(Str(0.5), u" .5");
    EXPECT_EQ(Str(-0.5), u"-.5");
    EXPECT_EQ(Str(0.001), u" .001");
    EXPECT_EQ(Str(10.25), u" 10.25");
    EXPECT_EQ(Str(100), u" 100");
    EXPECT_EQ(text::PrintedNumber(-30), u"-30 ");
    EXPECT_EQ(text::PrintedNumber(480), u" 480 ");
}

TEST(Str, KeepsFifteenDigits) {
    EXPECT_EQ(Str(0.1 + 0.2), u" .3");
    EXPECT_EQ(Str(2.0 / 3), u" .666666666666667");
    EXPECT_EQ(Str(999999999999999.0), u" 999999999999999");
    EXPECT_EQ(Str(1e15), u" 1E+15");
    EXPECT_EQ(Str(1e20), u" 1E+20");
    EXPECT_EQ(Str(-1.5e-20), u"-1.5E-20");
    EXPECT_EQ(Str(1.25e100), u" 1.25E+100");
    EXPECT_EQ(Str(1.0 / 30), u" 3.33333333333333E-02");
    EXPECT_EQ(Str(999999999999999.9), u" 1E+15");  // rounds up into the next power
}

TEST(Str, ReadsBackWithinItsDigits) {
    std::mt19937_64 random(1);
    std::uniform_real_distribution<double> mantissa(-10, 10);
    std::uniform_int_distribution<int> exponent(-300, 300);
    for (int i = 0; i < 20000; ++i) {
        const double value = mantissa(random) * std::pow(10.0, exponent(random));
        const std::optional<double> back = Val(Str(value));
        ASSERT_TRUE(back);
        ASSERT_NEAR(*back, value, std::abs(value) * 1e-14) << text::ToUtf8(Str(value));
        ASSERT_EQ(Str(*back), Str(value));
    }
}

TEST(Str, ReadsEveryWholeNumberBackExactly) {
    std::mt19937_64 random(2);
    std::uniform_int_distribution<int64_t> whole(-999999999999999, 999999999999999);
    for (int i = 0; i < 20000; ++i) {
        const auto value = static_cast<double>(whole(random) >> (i % 50));
        ASSERT_EQ(Val(text::PrintedNumber(value)), value);
    }
}

}  // namespace
