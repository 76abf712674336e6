#include "app/outil/printable.h"

#include "platform/text.h"

namespace sonarelle {

namespace {

bool is_control(char32_t c) {
    return c < 0x20 || (c >= 0x7F && c < 0xA0);
}

} // namespace

std::string printable(std::string_view text) {
    std::string shown;
    shown.reserve(text.size());
    while (!text.empty()) {
        const char32_t c = take_character(text);
        shown += is_control(c) ? "·" : character(c);
    }
    return shown;
}

std::string printable_word(std::string_view word) {
    return trim(word).empty() ? "« »" : printable(word);
}

} // namespace sonarelle
