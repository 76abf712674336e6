#include "app/outil/printable.h"

namespace sonarelle {

namespace {

/// A control character as JSON writes it.
std::string escaped(char32_t control) {
    constexpr std::string_view digits = "0123456789abcdef";
    return std::string{"\\u00"} + digits[control >> 4U] + digits[control & 0xFU];
}

} // namespace

std::string printable_word(std::string_view word) {
    return trim(word).empty() ? "« »" : printable(word);
}

std::string json_line(const nlohmann::ordered_json& value) {
    std::string text = value.dump(-1, ' ', false, nlohmann::ordered_json::error_handler_t::replace);
    if (text.find_first_of("\x7F\xC2") == std::string::npos)
        return text;
    std::string line;
    line.reserve(text.size());
    for (std::string_view rest = text; !rest.empty();) {
        const char32_t c = take_character(rest);
        line += is_control(c) ? escaped(c) : character(c);
    }
    return line;
}

} // namespace sonarelle
