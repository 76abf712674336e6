#include "platform/numbers.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace sonarelle {

namespace {

constexpr DecimalMark point = DecimalMark::point;
constexpr DecimalMark comma = DecimalMark::comma;

template <typename Statement>
FailureNumber number_of_failure(Statement&& statement) {
    try {
        statement();
    } catch (const Failure& failure) {
        return failure.number;
    }
    return FailureNumber::none;
}

const Integer greatest{32767};
const Integer least{-32768};

TEST(Integer, HoldsBothEndsOfSixteenBits) {
    EXPECT_EQ(greatest.value(), 32767);
    EXPECT_EQ(least.value(), -32768);
}

TEST(Integer, AValueBeyondSixteenBitsOverflows) {
    EXPECT_EQ(number_of_failure([] { (void)Integer{32768}; }), FailureNumber::overflow);
    EXPECT_EQ(number_of_failure([] { (void)Integer{-32769}; }), FailureNumber::overflow);
}

TEST(Integer, SumsOverflowAtBothEnds) {
    EXPECT_EQ((greatest + Integer{0}).value(), 32767);
    EXPECT_EQ(number_of_failure([] { (void)(greatest + Integer{1}); }), FailureNumber::overflow);
    EXPECT_EQ(number_of_failure([] { (void)(least + Integer{-1}); }), FailureNumber::overflow);
}

TEST(Integer, DifferencesOverflowAtBothEnds) {
    EXPECT_EQ((least - Integer{0}).value(), -32768);
    EXPECT_EQ(number_of_failure([] { (void)(least - Integer{1}); }), FailureNumber::overflow);
    EXPECT_EQ(number_of_failure([] { (void)(greatest - Integer{-1}); }), FailureNumber::overflow);
}

TEST(Integer, ProductsOverflowAtBothEnds) {
    EXPECT_EQ((Integer{-32768} * Integer{1}).value(), -32768);
    EXPECT_EQ(number_of_failure([] { (void)(Integer{256} * Integer{128}); }), FailureNumber::overflow);
    EXPECT_EQ(number_of_failure([] { (void)(Integer{-257} * Integer{128}); }), FailureNumber::overflow);
    EXPECT_EQ(number_of_failure([] { (void)(least * least); }), FailureNumber::overflow);
}

TEST(Integer, TheLeastHasNoOpposite) {
    EXPECT_EQ((-greatest).value(), -32767);
    EXPECT_EQ(number_of_failure([] { (void)-least; }), FailureNumber::overflow);
}

TEST(Integer, AnAssignmentThatOverflowsLeavesTheValue) {
    Integer value = greatest;
    EXPECT_EQ(number_of_failure([&] { value += 1; }), FailureNumber::overflow);
    EXPECT_EQ(value, greatest);
    value = least;
    EXPECT_EQ(number_of_failure([&] { value -= 1; }), FailureNumber::overflow);
    EXPECT_EQ(value, least);
}

TEST(Flag, TrueIsAllBitsAndFalseIsNone) {
    EXPECT_EQ(Flag{true}.word(), -1);
    EXPECT_EQ(Flag{false}.word(), 0);
}

TEST(Flag, AThirdValueIsNeither) {
    const Flag third = Flag::of_word(1);
    EXPECT_FALSE(third.is_true());
    EXPECT_FALSE(third.is_false());
}

TEST(Numbers, TextReadsWithTheStationsMark) {
    EXPECT_EQ(to_double("12.5", point), 12.5);
    EXPECT_EQ(to_double("12,5", comma), 12.5);
}

TEST(Numbers, TheOtherMarkIsNoNumber) {
    EXPECT_EQ(number_of_failure([] { (void)to_double("12,5", point); }), FailureNumber::type_mismatch);
    EXPECT_EQ(number_of_failure([] { (void)to_double("12.5", comma); }), FailureNumber::type_mismatch);
}

TEST(Numbers, BlanksSignsAndExponentsAreAllowed) {
    EXPECT_EQ(to_double("  -1.5e2 ", point), -150);
    EXPECT_EQ(to_double("+.5", point), 0.5);
    EXPECT_EQ(to_double("5.", point), 5);
    EXPECT_EQ(to_double("\t7", point), 7);
}

TEST(Numbers, WhatIsNoNumberIsATypeMismatchWithItsText) {
    for (const std::string text : {"", "   ", "a", "1a", "1 2", "--1", "-", ".", "1.2.3", "1e", "0x10", "nan", "inf",
                                   "-inf", "infinity", "00:03:20"})
        try {
            (void)to_double(text, point);
            ADD_FAILURE() << "\"" << text << "\" was taken for a number";
        } catch (const Failure& failure) {
            EXPECT_EQ(failure.number, FailureNumber::type_mismatch) << text;
            EXPECT_EQ(failure.source, text);
        }
}

TEST(Numbers, ANumberTooGreatForADoubleOverflows) {
    EXPECT_EQ(number_of_failure([] { (void)to_double("1e400", point); }), FailureNumber::overflow);
    EXPECT_EQ(number_of_failure([] { (void)to_double("-" + std::string(400, '9'), point); }), FailureNumber::overflow);
}

TEST(Numbers, ANumberTooSmallForADoubleIsNothing) {
    EXPECT_EQ(to_double("1e-400", point), 0);
    EXPECT_EQ(to_double("0." + std::string(400, '0') + "1", point), 0);
}

TEST(Numbers, AnExponentCountsWithTheDigitsBeforeIt) {
    const std::string nines(800, '9');
    const std::string zeros(800, '0');
    EXPECT_EQ(number_of_failure([&] { (void)to_double(nines + "e-400", point); }), FailureNumber::overflow);
    EXPECT_EQ(number_of_failure([] { (void)to_double("1e99999999999999999999", point); }), FailureNumber::overflow);
    EXPECT_EQ(to_double("0." + zeros + "1e+400", point), 0);
    EXPECT_EQ(to_double("." + zeros + "1e400", point), 0);
    EXPECT_EQ(to_double("1e-99999999999999999999", point), 0);
    EXPECT_DOUBLE_EQ(to_double("1" + zeros + "e-800", point), 1);
}

TEST(Numbers, WholeNumbersRoundHalvesToEven) {
    const struct {
        double value;
        int whole;
    } cases[] = {{0.5, 0}, {1.5, 2}, {2.5, 2}, {3.5, 4}, {-0.5, 0}, {-1.5, -2}, {-2.5, -2}, {2.4999, 2}, {2.5001, 3}};
    for (const auto& [value, whole] : cases)
        EXPECT_EQ(to_integer(value).value(), whole) << value;
}

TEST(Numbers, RoundingDecidesWhetherANumberStillFits) {
    EXPECT_EQ(to_integer("32767.4", point).value(), 32767);
    EXPECT_EQ(to_integer(-32768.5).value(), -32768);
    EXPECT_EQ(number_of_failure([] { (void)to_integer("32767.5", point); }), FailureNumber::overflow);
    EXPECT_EQ(number_of_failure([] { (void)to_integer(-32768.51); }), FailureNumber::overflow);
}

TEST(Numbers, LongsHaveThirtyTwoBits) {
    EXPECT_EQ(to_long("2147483647", point), INT32_MAX);
    EXPECT_EQ(to_long("-2147483648", point), INT32_MIN);
    EXPECT_EQ(number_of_failure([] { (void)to_long("2147483647.5", point); }), FailureNumber::overflow);
    EXPECT_EQ(number_of_failure([] { (void)to_long("-2147483649", point); }), FailureNumber::overflow);
}

TEST(Numbers, WhatIsNotFiniteHasNoWholeNumber) {
    EXPECT_EQ(number_of_failure([] { (void)to_long(std::nan("")); }), FailureNumber::overflow);
    EXPECT_EQ(number_of_failure([] { (void)to_integer(std::numeric_limits<double>::infinity()); }),
              FailureNumber::overflow);
}

TEST(Numbers, AnEndPointReadsWithEitherMark) {
    EXPECT_EQ(end_point_to_double(" 200.25 "), 200.25);
    EXPECT_EQ(end_point_to_double(" 200,25 "), 200.25);
    EXPECT_EQ(end_point_to_integer("200,5").value(), 200);
    EXPECT_EQ(end_point_to_integer("201.5").value(), 202);
}

TEST(Numbers, AnEndPointWithTwoMarksIsNoNumber) {
    EXPECT_EQ(number_of_failure([] { (void)end_point_to_double("1,234.5"); }), FailureNumber::type_mismatch);
}

TEST(Numbers, AnEndPointBeyondSixteenBitsOverflows) {
    EXPECT_EQ(number_of_failure([] { (void)end_point_to_integer("32768.00"); }), FailureNumber::overflow);
}

TEST(Numbers, TextOfANumberHasNoTrailingZeros) {
    EXPECT_EQ(text_of(0.1, point), "0.1");
    EXPECT_EQ(text_of(200.0, point), "200");
    EXPECT_EQ(text_of(-12.5, comma), "-12,5");
    EXPECT_EQ(text_of(1.0 / 3, point), "0.333333333333333");
}

TEST(Numbers, TextOfNothingHasNoSign) {
    EXPECT_EQ(text_of(-0.0, point), "0");
}

TEST(Numbers, TextOfWhatIsNotFiniteIsItsName) {
    const double infinity = std::numeric_limits<double>::infinity();
    EXPECT_EQ(text_of(std::nan(""), point), "nan");
    EXPECT_EQ(text_of(infinity, point), "inf");
    EXPECT_EQ(text_of(-infinity, point), "-inf");
}

TEST(Numbers, TextOfAnIntegerIsItsDigits) {
    EXPECT_EQ(text_of(Integer{-32768}), "-32768");
}

TEST(Numbers, IntGoesDownAndFixTowardsZero) {
    EXPECT_EQ(Int(-2.5), -3);
    EXPECT_EQ(Fix(-2.5), -2);
    EXPECT_EQ(Int(2.9), 2);
    EXPECT_EQ(Fix(2.9), 2);
}

TEST(Numbers, ValTakesTheNumberAtTheHead) {
    EXPECT_EQ(Val("12.5%"), 12.5);
    EXPECT_EQ(Val(" -3 titres"), -3);
    EXPECT_EQ(Val("12,5"), 12);
}

TEST(Numbers, ValOfNoNumberIsNothing) {
    for (const char* text : {"", "titre", "-", ".", "nan", "inf"})
        EXPECT_EQ(Val(text), 0) << text;
}

} // namespace

} // namespace sonarelle
