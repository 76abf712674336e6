#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace sonarelle {

/// Text is UTF-8 inside the program and Windows-1252 in the station's files, one byte a character.
/// The five bytes that Windows-1252 leaves open (81, 8D, 8F, 90, 9D) stand for the control characters of the same
/// number, so every byte survives a round trip.

/// Any bytes become text.
[[nodiscard]] std::string from_windows_1252(std::string_view bytes);

/// @throws Failure 5 whose source is the first character that has no byte (or is no valid UTF-8).
[[nodiscard]] std::string to_windows_1252(std::string_view text);

/// The first character of `text` that Windows-1252 lacks, as text; nothing when all have a byte.
[[nodiscard]] std::optional<std::string> first_foreign_character(std::string_view text);

/// The French sentence that refuses such a character, or a byte that is no valid UTF-8.
[[nodiscard]] std::string sentence_of_foreign(std::string_view foreign_character);

/// Without the spaces (0x20 alone) at both ends, or at one.
[[nodiscard]] std::string_view trim(std::string_view text);
[[nodiscard]] std::string_view trim_left(std::string_view text);
[[nodiscard]] std::string_view trim_right(std::string_view text);

/// Lower and upper case over the letters of Windows-1252 (É becomes é; ß and ÿ without a capital there stay or go to
/// Ÿ).
[[nodiscard]] std::string lower_case(std::string_view text);
[[nodiscard]] std::string upper_case(std::string_view text);
[[nodiscard]] bool equal_ignoring_case(std::string_view a, std::string_view b);

/// Counts and cuts in characters, never inside one. Positions start at 1; what lies outside is left out.
[[nodiscard]] std::size_t character_count(std::string_view text);
[[nodiscard]] std::string_view left(std::string_view text, std::size_t count);
[[nodiscard]] std::string_view right(std::string_view text, std::size_t count);
[[nodiscard]] std::string_view mid(std::string_view text, std::size_t start,
                                   std::size_t count = std::string_view::npos);

/// The code point at the head of `text`, which is shortened by it; a broken byte gives U+FFFD and is taken alone.
char32_t take_character(std::string_view& text);
/// UTF-8 of one code point.
[[nodiscard]] std::string character(char32_t code_point);

[[nodiscard]] bool is_control(char32_t code_point);

/// Text as a terminal or a journal may show it on one line: a control character becomes `·`, a byte that isn't UTF-8
/// `�`.
[[nodiscard]] std::string printable(std::string_view text);

} // namespace sonarelle
