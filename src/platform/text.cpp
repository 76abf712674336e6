#include "platform/text.h"

#include <algorithm>
#include <array>
#include <cstdint>

#include "platform/failure.h"

namespace sonarelle {

namespace {

// Bytes 80 to 9F of Windows-1252 (Unicode's CP1252.TXT); elsewhere byte and code point are the same.
constexpr std::array<char32_t, 32> upper_controls{
    U'\u20AC', 0x81,      U'\u201A', U'\u0192', U'\u201E', U'\u2026', U'\u2020', U'\u2021',
    U'\u02C6', U'\u2030', U'\u0160', U'\u2039', U'\u0152', 0x8D,      U'\u017D', 0x8F,
    0x90,      U'\u2018', U'\u2019', U'\u201C', U'\u201D', U'\u2022', U'\u2013', U'\u2014',
    U'\u02DC', U'\u2122', U'\u0161', U'\u203A', U'\u0153', 0x9D,      U'\u017E', U'\u0178'};

constexpr char32_t replacement = 0xFFFD;

char32_t code_point_of(unsigned char byte) {
    return byte >= 0x80 && byte < 0xA0 ? upper_controls[byte - 0x80U] : byte;
}

std::optional<unsigned char> byte_of(char32_t code_point) {
    if (code_point < 0x80 || (code_point >= 0xA0 && code_point < 0x100))
        return static_cast<unsigned char>(code_point);
    const auto* found = std::ranges::find(upper_controls, code_point);
    if (found == upper_controls.end())
        return std::nullopt;
    return static_cast<unsigned char>(0x80 + (found - upper_controls.begin()));
}

bool is_plain(std::string_view text) {
    return std::ranges::all_of(text, [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

void append_character(std::string& text, char32_t c) {
    const auto put = [&text](char32_t bits) { text.push_back(static_cast<char>(static_cast<unsigned char>(bits))); };
    if (c < 0x80) {
        put(c);
    } else if (c < 0x800) {
        put(0xC0 | (c >> 6));
        put(0x80 | (c & 0x3F));
    } else if (c < 0x10000) {
        put(0xE0 | (c >> 12));
        put(0x80 | ((c >> 6) & 0x3F));
        put(0x80 | (c & 0x3F));
    } else {
        put(0xF0 | (c >> 18));
        put(0x80 | ((c >> 12) & 0x3F));
        put(0x80 | ((c >> 6) & 0x3F));
        put(0x80 | (c & 0x3F));
    }
}

bool is_continuation(char c) {
    return (static_cast<unsigned char>(c) & 0xC0) == 0x80;
}

/// Bytes of the sequence that a lead byte announces; 0 for a byte that begins none.
std::size_t sequence_length(unsigned char lead) {
    if (lead < 0x80)
        return 1;
    if (lead >= 0xC2 && lead < 0xE0)
        return 2;
    if (lead >= 0xE0 && lead < 0xF0)
        return 3;
    return lead >= 0xF0 && lead < 0xF5 ? 4 : 0;
}

constexpr std::array<char32_t, 5> smallest_of_length{0, 0, 0x80, 0x800, 0x10000};

template <char32_t change(char32_t)>
std::string changed(std::string_view text) {
    std::string result;
    result.reserve(text.size());
    while (!text.empty())
        append_character(result, change(take_character(text)));
    return result;
}

char32_t lower(char32_t c) {
    if ((c >= U'A' && c <= U'Z') || (c >= 0xC0 && c <= 0xDE && c != 0xD7))
        return c + 0x20;
    switch (c) {
    case U'\u0160':
    case U'\u0152':
    case U'\u017D':
        return c + 1;
    case U'\u0178':
        return 0xFF;
    default:
        return c;
    }
}

char32_t upper(char32_t c) {
    if ((c >= U'a' && c <= U'z') || (c >= 0xE0 && c <= 0xFE && c != 0xF7))
        return c - 0x20;
    switch (c) {
    case U'\u0161':
    case U'\u0153':
    case U'\u017E':
        return c - 1;
    case 0xFF:
        return U'\u0178';
    default:
        return c;
    }
}

std::size_t bytes_of_characters(std::string_view text, std::size_t count) {
    std::string_view rest = text;
    for (; count > 0 && !rest.empty(); --count)
        take_character(rest);
    return text.size() - rest.size();
}

} // namespace

char32_t take_character(std::string_view& text) {
    const auto lead = static_cast<unsigned char>(text.front());
    const std::size_t length = sequence_length(lead);
    if (length <= 1 || text.size() < length) {
        text.remove_prefix(1);
        return length == 1 ? lead : replacement;
    }
    char32_t c = lead & (0x7FU >> length);
    for (std::size_t i = 1; i < length; ++i) {
        if (!is_continuation(text[i])) {
            text.remove_prefix(1);
            return replacement;
        }
        c = (c << 6) | (static_cast<unsigned char>(text[i]) & 0x3FU);
    }
    const bool valid = c >= smallest_of_length[length] && c <= 0x10FFFF && (c < 0xD800 || c > 0xDFFF);
    text.remove_prefix(valid ? length : 1);
    return valid ? c : replacement;
}

std::string character(char32_t code_point) {
    std::string text;
    append_character(text, code_point);
    return text;
}

std::string from_windows_1252(std::string_view bytes) {
    if (is_plain(bytes))
        return std::string{bytes};
    std::string text;
    text.reserve(bytes.size() + 8);
    for (const char c : bytes)
        append_character(text, code_point_of(static_cast<unsigned char>(c)));
    return text;
}

std::string to_windows_1252(std::string_view text) {
    if (is_plain(text))
        return std::string{text};
    std::string bytes;
    bytes.reserve(text.size());
    while (!text.empty()) {
        const std::string_view before = text;
        const auto byte = byte_of(take_character(text));
        if (!byte)
            throw Failure{FailureNumber::wrong_call, std::string{before.substr(0, before.size() - text.size())},
                          "Caractère absent de Windows-1252"};
        bytes.push_back(static_cast<char>(*byte));
    }
    return bytes;
}

std::optional<std::string> first_foreign_character(std::string_view text) {
    while (!text.empty()) {
        const std::string_view before = text;
        if (!byte_of(take_character(text)))
            return std::string{before.substr(0, before.size() - text.size())};
    }
    return std::nullopt;
}

std::string sentence_of_foreign(std::string_view foreign_character) {
    const bool is_broken = foreign_character.size() == 1;
    return is_broken ? "Ce texte n'est pas écrit en UTF-8"
                     : "Le caractère « " + std::string{foreign_character} + " » n'existe pas en Windows-1252";
}

std::string_view trim_left(std::string_view text) {
    text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
    return text;
}

std::string_view trim_right(std::string_view text) {
    return text.substr(0, text.find_last_not_of(' ') + 1);
}

std::string_view trim(std::string_view text) {
    return trim_left(trim_right(text));
}

std::string lower_case(std::string_view text) {
    return changed<lower>(text);
}

std::string upper_case(std::string_view text) {
    return changed<upper>(text);
}

bool equal_ignoring_case(std::string_view a, std::string_view b) {
    while (!a.empty() && !b.empty())
        if (lower(take_character(a)) != lower(take_character(b)))
            return false;
    return a.empty() && b.empty();
}

std::size_t character_count(std::string_view text) {
    std::size_t count = 0;
    for (; !text.empty(); ++count)
        take_character(text);
    return count;
}

std::string_view left(std::string_view text, std::size_t count) {
    return text.substr(0, bytes_of_characters(text, count));
}

std::string_view right(std::string_view text, std::size_t count) {
    const std::size_t total = character_count(text);
    return text.substr(bytes_of_characters(text, total - std::min(total, count)));
}

std::string_view mid(std::string_view text, std::size_t start, std::size_t count) {
    return left(text.substr(bytes_of_characters(text, start - 1)), count);
}

bool is_control(char32_t code_point) {
    return code_point < 0x20 || (code_point >= 0x7F && code_point < 0xA0);
}

std::string printable(std::string_view text) {
    std::string shown;
    shown.reserve(text.size());
    while (!text.empty()) {
        const char32_t c = take_character(text);
        shown += is_control(c) ? "·" : character(c);
    }
    return shown;
}

} // namespace sonarelle
