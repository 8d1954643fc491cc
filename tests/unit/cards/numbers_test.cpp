#include "core/cards/failure.hpp"
#include "core/cards/numbers.hpp"

#include <gtest/gtest.h>

#include <clocale>
#include <cmath>
#include <string>

namespace kov {
namespace {

TEST(PlainNumber, HasALeadingBlankOrAMinusAndNoNeedlessZeroOrPoint) {
    EXPECT_EQ(plainNumber(0.5), " .5");
    EXPECT_EQ(plainNumber(-0.25), "-.25");
    EXPECT_EQ(plainNumber(5.0), " 5");
    EXPECT_EQ(plainNumber(5.25), " 5.25");
    EXPECT_EQ(plainNumber(0.0), " 0");
    EXPECT_EQ(plainNumber(-0.0), " 0");
    EXPECT_EQ(plainNumber(100000000.0), " 100000000");
    EXPECT_EQ(plainNumber(std::int16_t{-3}), "-3");
    EXPECT_EQ(plainNumber(std::int32_t{70000}), " 70000");
    EXPECT_EQ(bareNumber(12), "12");
}

TEST(NumericTest, TakesAWholeNumberWithItsOuterBlanks) {
    for (const auto* text :
         {"5", " 5 ", "-5", "+5", "5.", ".5", "-.5", "1E1", "1e-3", "1D+02", "1,000", "1,000.5", "  12.5   "}) {
        EXPECT_TRUE(isNumeric(text)) << text;
    }
}

TEST(NumericTest, RefusesAnythingElse) {
    for (const auto* text : {"", "     ", "abc", "12.5 kg", "1 2", ".", "-", "1E", "E5", "1.2.3", "5-", "--5", ",5"}) {
        EXPECT_FALSE(isNumeric(text)) << text;
    }
}

TEST(FieldValue, IsTheNumberAtTheStartOfTheText) {
    EXPECT_EQ(fieldValue("12.5 kg"), 12.5);
    EXPECT_EQ(fieldValue("1,000"), 1.0) << "unlike the numeric test it stops at a comma";
    EXPECT_EQ(fieldValue("abc"), 0.0);
    EXPECT_EQ(fieldValue(""), 0.0);
    EXPECT_EQ(fieldValue("          "), 0.0);
    EXPECT_EQ(fieldValue(" 1 2 . 5"), 12.5) << "blanks anywhere are skipped";
    EXPECT_EQ(fieldValue("- 3"), -3.0);
    EXPECT_EQ(fieldValue("1.5D2"), 150.0);
    EXPECT_EQ(fieldValue("1.5d-1"), 0.15);
    EXPECT_EQ(fieldValue("2E"), 2.0);
    EXPECT_EQ(fieldValue("2E+x"), 2.0);
    EXPECT_EQ(fieldValue(".5.5"), 0.5);
    EXPECT_EQ(fieldValue("+7"), 7.0);
    EXPECT_TRUE(std::isinf(fieldValue("1E999")));
    EXPECT_EQ(fieldValue("1E-999"), 0.0);
}

TEST(FieldValue, IsZeroOrInfiniteWhereTheNumberIsTooLong) {
    EXPECT_EQ(fieldValue("." + std::string(500, '0') + "1"), 0.0);
    EXPECT_EQ(fieldValue("-0." + std::string(500, '0') + "1E3"), 0.0);
    EXPECT_TRUE(std::isinf(fieldValue("1" + std::string(500, '0'))));
    EXPECT_TRUE(std::isinf(fieldValue("-1" + std::string(500, '0') + "E-3")));
    EXPECT_EQ(fieldValue("1" + std::string(500, '0') + "E-500"), 1.0);
    EXPECT_TRUE(std::isinf(fieldValue("1E99999999999999999999999")));
    EXPECT_EQ(fieldValue("1E-99999999999999999999999"), 0.0);
    EXPECT_EQ(fieldValue(std::string(500, '0') + "7"), 7.0);
}

TEST(StrictValue, RefusesANumberThatNothingCanHold) {
    EXPECT_EQ(strictValue(" 1,000.5 "), 1000.5);
    EXPECT_EQ(strictValue("1E-999"), 0.0);
    EXPECT_THROW(static_cast<void>(strictValue("1E999")), Failure);
}

TEST(FieldInteger, RoundsHalfToEven) {
    EXPECT_EQ(fieldInteger("2.5"), 2);
    EXPECT_EQ(fieldInteger("3.5"), 4);
    EXPECT_EQ(fieldInteger("-0.5"), 0);
    EXPECT_EQ(fieldInteger("-1.5"), -2);
    EXPECT_EQ(fieldInteger(""), 0);
    EXPECT_EQ(fieldInteger("      7"), 7);
}

TEST(FieldInteger, OverflowsBeyondSixteenBits) {
    EXPECT_EQ(fieldInteger("32767"), 32767);
    EXPECT_EQ(fieldInteger("32767.4"), 32767);
    EXPECT_EQ(fieldInteger("-32768.5"), -32768);
    for (const auto* text : {"32768", "32767.5", "-32769", "40000", "1E999", "-1E999"}) {
        EXPECT_THROW(static_cast<void>(fieldInteger(text)), Failure) << text;
    }
}

TEST(StrictInteger, RefusesABlankOrPartlyNumericField) {
    EXPECT_EQ(strictInteger("1,000"), 1000);
    EXPECT_EQ(strictInteger(" 2.5 "), 2);
    EXPECT_THROW(static_cast<void>(strictInteger("")), Failure);
    EXPECT_THROW(static_cast<void>(strictInteger("     ")), Failure);
    EXPECT_THROW(static_cast<void>(strictInteger("5 kg")), Failure);
    EXPECT_THROW(static_cast<void>(strictInteger("40000")), Failure);
}

TEST(Numbers, AreTheSameUnderEveryLocale) {
    const char* german = std::setlocale(LC_ALL, "de_DE.UTF-8");
    EXPECT_EQ(fieldValue("1.5"), 1.5);
    EXPECT_EQ(plainNumber(1.5), " 1.5");
    EXPECT_FALSE(isNumeric("1.000.5"));
    std::setlocale(LC_ALL, "C");
    if (german == nullptr) {
        GTEST_SKIP() << "no German locale on this machine";
    }
}

} // namespace
} // namespace kov
