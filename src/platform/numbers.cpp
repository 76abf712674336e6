#include "platform/numbers.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace sonarelle {

namespace {

constexpr std::string_view blanks = " \t";

[[noreturn]] void not_a_number(std::string_view text) {
    throw Failure{FailureNumber::type_mismatch, std::string{text}};
}

std::string_view without_blanks(std::string_view text) {
    const auto first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

bool is_digit(char c) {
    return c >= '0' && c <= '9';
}

/// The power of ten that `digits` (with a point, or none) begin with: 2 for 123.4, -2 for 0.01.
std::int64_t first_power(std::string_view digits) {
    const auto point = static_cast<std::int64_t>(std::min(digits.find('.'), digits.size()));
    const auto first = static_cast<std::int64_t>(digits.find_first_of("123456789"));
    return first < point ? point - first - 1 : point - first;
}

/// An exponent of any length, with its sign; one that is longer than any text is cut short.
std::int64_t exponent_of(std::string_view text) {
    const bool negative = text.starts_with('-');
    text.remove_prefix(negative || text.starts_with('+') ? 1 : 0);
    std::int64_t exponent = 0;
    if (std::from_chars(text.data(), text.data() + text.size(), exponent).ec != std::errc{})
        exponent = std::numeric_limits<std::int64_t>::max() / 2;
    return negative ? -exponent : exponent;
}

/// What stands for a value too small or too great for a double: 0 for the first, Failure 6 for the second.
double out_of_range(std::string_view number) {
    const auto mark = std::min(number.find_first_of("eE"), number.size());
    const std::int64_t exponent = mark < number.size() ? exponent_of(number.substr(mark + 1)) : 0;
    if (first_power(number.substr(0, mark)) + exponent >= 0)
        throw Failure{FailureNumber::overflow, std::string{number}};
    return 0.0;
}

/// `number` has a point as its mark and no sign.
double unsigned_number(std::string_view number, std::string_view whole_text) {
    const std::size_t first_digit = !number.empty() && number.front() == '.' ? 1 : 0;
    if (number.size() <= first_digit || !is_digit(number[first_digit]))
        not_a_number(whole_text);
    double value = 0;
    const auto [end, error] = std::from_chars(number.data(), number.data() + number.size(), value);
    if (error == std::errc::invalid_argument || end != number.data() + number.size())
        not_a_number(whole_text);
    return error == std::errc::result_out_of_range ? out_of_range(number) : value;
}

double with_sign(std::string_view number, std::string_view whole_text) {
    const bool has_sign = !number.empty() && (number.front() == '-' || number.front() == '+');
    const double value = unsigned_number(number.substr(has_sign ? 1 : 0), whole_text);
    return has_sign && number.front() == '-' ? -value : value;
}

std::string with_point(std::string_view text) {
    std::string pointed{text};
    std::ranges::replace(pointed, ',', '.');
    return pointed;
}

double half_to_even(double value) {
    const double below = std::floor(value);
    const double rest = value - below;
    if (rest != 0.5)
        return rest < 0.5 ? below : below + 1;
    return std::fmod(below, 2) == 0 ? below : below + 1;
}

/// The 15 decimal digits of a positive number, and how many of them stand before the point.
struct Digits {
    static constexpr int count = 15;

    explicit Digits(double value) {
        std::array<char, 32> buffer{};
        const auto end =
            std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::scientific, count - 1)
                .ptr;
        text[0] = buffer[0];
        std::copy_n(buffer.begin() + 2, count - 1, text.begin() + 1);
        const char* exponent = buffer.data() + count + 2;
        std::from_chars(*exponent == '+' ? exponent + 1 : exponent, end, before_point);
        ++before_point;
    }

    std::array<char, count> text{};
    int before_point = 0;
};

/// The digits up to `decimals` behind the point, the last one rounded half away from zero, with leading zeros so that
/// at least one stands before the point.
std::string rounded_digits(const Digits& digits, int decimals) {
    const int kept = digits.before_point + decimals;
    std::string result(static_cast<std::size_t>(std::max(1, 1 - digits.before_point)), '0');
    if (kept > 0)
        result.append(digits.text.data(), static_cast<std::size_t>(std::min(kept, Digits::count)));
    const bool round_up = kept >= 0 && kept < Digits::count && digits.text[static_cast<std::size_t>(kept)] >= '5';
    const auto wanted = static_cast<std::size_t>(1 + std::max(digits.before_point, 0) + decimals);
    result.resize(std::max(wanted, std::size_t{1}), '0');
    if (round_up) {
        auto place = result.rbegin();
        for (; *place == '9'; ++place)
            *place = '0';
        ++*place;
    }
    return result;
}

int decimals_of(std::string_view pattern) {
    const auto point = pattern.find('.');
    return point == std::string_view::npos ? 0 : static_cast<int>(pattern.size() - point - 1);
}

std::string not_finite(double value) {
    if (std::isnan(value))
        return "nan";
    return value < 0 ? "-inf" : "inf";
}

} // namespace

double to_double(std::string_view text, DecimalMark mark) {
    const std::string_view number = without_blanks(text);
    if (mark == DecimalMark::point)
        return with_sign(number, text);
    if (number.find('.') != std::string_view::npos)
        not_a_number(text);
    return with_sign(with_point(number), text);
}

Integer to_integer(std::string_view text, DecimalMark mark) {
    return to_integer(to_double(text, mark));
}

std::int32_t to_long(std::string_view text, DecimalMark mark) {
    return to_long(to_double(text, mark));
}

double end_point_to_double(std::string_view text) {
    const std::string_view number = without_blanks(text);
    return number.find(',') == std::string_view::npos ? with_sign(number, text) : with_sign(with_point(number), text);
}

Integer end_point_to_integer(std::string_view text) {
    return to_integer(end_point_to_double(text));
}

Integer to_integer(double value) {
    return to_long(value);
}

std::int32_t to_long(double value) {
    const double whole = half_to_even(value);
    if (!(whole >= std::numeric_limits<std::int32_t>::min() && whole <= std::numeric_limits<std::int32_t>::max()))
        throw Failure{FailureNumber::overflow};
    return static_cast<std::int32_t>(whole);
}

std::string text_of(double value, DecimalMark mark) {
    if (!std::isfinite(value))
        return not_finite(value);
    std::array<char, 40> buffer{};
    const auto end =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), value + 0.0, std::chars_format::general, 15).ptr;
    std::string text{buffer.data(), end};
    std::ranges::replace(text, 'e', 'E');
    std::ranges::replace(text, '.', static_cast<char>(mark));
    return text;
}

std::string text_of(Integer value) {
    return std::to_string(value.value());
}

std::string Format(double value, std::string_view pattern, DecimalMark mark) {
    if (!std::isfinite(value))
        return not_finite(value);
    const int decimals = decimals_of(pattern);
    const bool zero = value == 0.0;
    std::string digits = zero ? std::string(static_cast<std::size_t>(decimals) + 2, '0')
                              : rounded_digits(Digits{std::fabs(value)}, decimals);
    const auto point = digits.size() - static_cast<std::size_t>(decimals);
    const auto first = std::min(digits.find_first_not_of('0'), point - 1);
    const bool negative = value < 0 && digits.find_first_not_of('0') != std::string::npos;
    std::string text = negative ? "-" : "";
    text.append(digits, first, point - first);
    if (decimals > 0)
        text.append(1, static_cast<char>(mark)).append(digits, point);
    return text;
}

std::string Format(std::string_view text, std::string_view pattern, DecimalMark mark) {
    try {
        return Format(end_point_to_double(text), pattern, mark);
    } catch (const Failure&) {
        return std::string{text};
    }
}

double Int(double value) {
    return std::floor(value);
}

double Fix(double value) {
    return std::trunc(value);
}

double Val(std::string_view text) {
    std::string_view number = without_blanks(text);
    const bool has_sign = !number.empty() && (number.front() == '-' || number.front() == '+');
    const bool negative = has_sign && number.front() == '-';
    number.remove_prefix(has_sign ? 1 : 0);
    double value = 0;
    if (!number.empty() && (is_digit(number.front()) || number.front() == '.'))
        std::from_chars(number.data(), number.data() + number.size(), value);
    return negative ? -value : value;
}

} // namespace sonarelle
