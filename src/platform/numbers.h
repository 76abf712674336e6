#pragma once

#include <compare>
#include <cstdint>
#include <string>
#include <string_view>

#include "platform/failure.h"

namespace sonarelle {

/// A 16-bit signed number whose every result is checked.
/// @throws Failure 6 where a value leaves -32768 to 32767.
class Integer {
public:
    constexpr Integer() = default;
    constexpr Integer(std::int64_t value)
        : word_{checked(value)} {} // NOLINT: seconds and rows are written as plain numbers

    [[nodiscard]] constexpr int value() const { return word_; }

    constexpr Integer& operator+=(Integer other) { return *this = *this + other; }
    constexpr Integer& operator-=(Integer other) { return *this = *this - other; }
    friend constexpr Integer operator+(Integer a, Integer b) { return std::int64_t{a.word_} + b.word_; }
    friend constexpr Integer operator-(Integer a, Integer b) { return std::int64_t{a.word_} - b.word_; }
    friend constexpr Integer operator*(Integer a, Integer b) { return std::int64_t{a.word_} * b.word_; }
    friend constexpr Integer operator-(Integer a) { return -std::int64_t{a.word_}; }
    friend constexpr auto operator<=>(Integer, Integer) = default;

private:
    static constexpr std::int16_t checked(std::int64_t value) {
        if (value < INT16_MIN || value > INT16_MAX)
            throw Failure{FailureNumber::overflow};
        return static_cast<std::int16_t>(value);
    }

    std::int16_t word_ = 0;
};

/// A 16-bit word that is true at -1 and false at 0; a third value is neither.
class Flag {
public:
    constexpr Flag() = default;
    constexpr Flag(bool value)
        : word_{static_cast<std::int16_t>(value ? -1 : 0)} {} // NOLINT: reads as a truth value
    [[nodiscard]] static constexpr Flag of_word(std::int16_t word) {
        Flag flag;
        flag.word_ = word;
        return flag;
    }

    [[nodiscard]] constexpr bool is_true() const { return word_ == -1; }
    [[nodiscard]] constexpr bool is_false() const { return word_ == 0; }
    [[nodiscard]] constexpr std::int16_t word() const { return word_; }
    friend constexpr bool operator==(Flag, Flag) = default;

private:
    std::int16_t word_ = 0;
};

/// How this station writes decimals. The locale of the machine is never asked.
enum class DecimalMark : char { point = '.', comma = ',' };

/// Text to number. Blanks around it are allowed, a sign, decimals behind the mark, an exponent; anything else is
/// Failure 13 with the text as its source, a value outside the range is Failure 6. Halves round to even.
[[nodiscard]] double to_double(std::string_view text, DecimalMark mark);
[[nodiscard]] Integer to_integer(std::string_view text, DecimalMark mark);
[[nodiscard]] std::int32_t to_long(std::string_view text, DecimalMark mark);

/// The same for an end point, which any station wrote: a point and a comma both part the decimals.
[[nodiscard]] double end_point_to_double(std::string_view text);
[[nodiscard]] Integer end_point_to_integer(std::string_view text);

/// Number to whole number, halves to even. @throws Failure 6 outside the range.
[[nodiscard]] Integer to_integer(double value);
[[nodiscard]] std::int32_t to_long(double value);

/// Number to text: up to 15 significant digits, no trailing zeros.
[[nodiscard]] std::string text_of(double value, DecimalMark mark);
[[nodiscard]] std::string text_of(Integer value);

/// Number to text by one of the patterns "0", "0.00" and "####0.00": rounded half away from zero on its decimal digits.
/// A number that isn't finite gives "nan", "inf" or "-inf".
[[nodiscard]] std::string Format(double value, std::string_view pattern, DecimalMark mark);
/// Formats the number in a text, which may have either mark; text that holds no number stays as it is.
[[nodiscard]] std::string Format(std::string_view text, std::string_view pattern, DecimalMark mark);

/// The greatest whole number not above the value, and the whole number towards zero.
[[nodiscard]] double Int(double value);
[[nodiscard]] double Fix(double value);
/// The number at the head of a text, with a point whatever the station's mark; 0 when there is none.
[[nodiscard]] double Val(std::string_view text);

} // namespace sonarelle
