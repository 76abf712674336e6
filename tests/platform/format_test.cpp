#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <limits>
#include <random>
#include <string>

#include "platform/numbers.h"

namespace sonarelle {

namespace {

constexpr DecimalMark point = DecimalMark::point;
constexpr DecimalMark comma = DecimalMark::comma;

TEST(Format, HalvesGoAwayFromZero) {
    EXPECT_EQ(Format(0.5, "0", point), "1");
    EXPECT_EQ(Format(2.5, "0", point), "3");
    EXPECT_EQ(Format(-2.5, "0", point), "-3");
    EXPECT_EQ(Format(0.125, "0.00", point), "0.13");
    EXPECT_EQ(Format(-0.125, "0.00", point), "-0.13");
}

// 1.005 has no exact double: what counts is the decimal number that the operator typed.
TEST(Format, RoundsTheDecimalDigitsThatTheNumberShows) {
    EXPECT_EQ(Format(1.005, "0.00", point), "1.01");
    EXPECT_EQ(Format(2.675, "0.00", point), "2.68");
    EXPECT_EQ(Format(1.0049999, "0.00", point), "1.00");
}

TEST(Format, ACarryGoesThroughAllNines) {
    EXPECT_EQ(Format(99.999, "0.00", point), "100.00");
    EXPECT_EQ(Format(9.5, "0", point), "10");
}

TEST(Format, PatternsPadTheDecimals) {
    EXPECT_EQ(Format(200.0, "0.00", point), "200.00");
    EXPECT_EQ(Format(0.1, "####0.00", point), "0.10");
    EXPECT_EQ(Format(1234567.0, "####0.00", point), "1234567.00");
}

TEST(Format, UsesTheStationsMark) {
    EXPECT_EQ(Format(0.1, "####0.00", comma), "0,10");
}

TEST(Format, SmallNumbersAreNothing) {
    EXPECT_EQ(Format(0.0, "0.00", point), "0.00");
    EXPECT_EQ(Format(0.0049, "0.00", point), "0.00");
    EXPECT_EQ(Format(1e-300, "0.00", point), "0.00");
}

TEST(Format, NothingHasNoSign) {
    EXPECT_EQ(Format(-0.001, "0.00", point), "0.00");
    EXPECT_EQ(Format(-0.0, "0", point), "0");
}

TEST(Format, GreatNumbersKeepTheirLength) {
    EXPECT_EQ(Format(1e20, "0.00", point), "100000000000000000000.00");
    EXPECT_EQ(Format(1e300, "0", point).size(), 301U);
}

TEST(Format, WhatIsNotFiniteIsItsName) {
    const double infinity = std::numeric_limits<double>::infinity();
    EXPECT_EQ(Format(std::nan(""), "0.00", point), "nan");
    EXPECT_EQ(Format(infinity, "0.00", point), "inf");
    EXPECT_EQ(Format(-infinity, "####0.00", point), "-inf");
}

TEST(Format, ATextMayHaveEitherMark) {
    EXPECT_EQ(Format(std::string_view{" 200,126 "}, "####0.00", point), "200.13");
    EXPECT_EQ(Format(std::string_view{"200.126"}, "####0.00", comma), "200,13");
}

TEST(Format, ATextWithoutANumberStaysAsItIs) {
    EXPECT_EQ(Format(std::string_view{"  X "}, "####0.00", point), "  X ");
    EXPECT_EQ(Format(std::string_view{}, "####0.00", point), "");
}

/// Rounds by hand: 15 digits as printf has them, then half away from zero on those, with whole-number arithmetic.
std::string rounded_by_hand(double value, int decimals) {
    char text[64];
    std::snprintf(text, sizeof text, "%.14e", std::fabs(value));
    const std::string digits = std::string(1, text[0]) + std::string(text + 2, 14);
    const int exponent = std::atoi(std::string(text).substr(std::string(text).find('e') + 1).c_str());
    // value = digits * 10^(exponent - 14); wanted is value * 10^decimals as a whole number.
    __extension__ using Wide = unsigned __int128;
    Wide number = std::stoull(digits);
    int scale = exponent - 14 + decimals;
    for (; scale > 0; --scale)
        number *= 10;
    for (; scale < -1; ++scale)
        number /= 10;
    if (scale == -1)
        number = number / 10 + (number % 10 >= 5 ? 1 : 0);
    std::string whole;
    for (Wide rest = number; rest > 0 || whole.size() <= static_cast<std::size_t>(decimals); rest /= 10)
        whole.insert(whole.begin(), static_cast<char>('0' + static_cast<int>(rest % 10)));
    if (decimals > 0)
        whole.insert(whole.size() - static_cast<std::size_t>(decimals), ".");
    return (value < 0 && number > 0 ? "-" : "") + whole;
}

TEST(Format, AgreesWithDecimalArithmeticOnManyNumbers) {
    std::mt19937_64 generator{20260105};
    std::uniform_int_distribution<std::int64_t> thousandths{-99'999'999, 99'999'999};
    std::uniform_real_distribution<double> exponents{-6, 12};
    for (int i = 0; i < 20'000; ++i) {
        const double plain = static_cast<double>(thousandths(generator)) / 1000;
        const double wide = static_cast<double>(thousandths(generator)) * std::pow(10, exponents(generator) - 8);
        for (const double value : {plain, wide}) {
            ASSERT_EQ(Format(value, "0", point), rounded_by_hand(value, 0)) << value;
            ASSERT_EQ(Format(value, "0.00", point), rounded_by_hand(value, 2)) << value;
            ASSERT_EQ(Format(value, "####0.00", point), rounded_by_hand(value, 2)) << value;
        }
    }
}

} // namespace

} // namespace sonarelle
