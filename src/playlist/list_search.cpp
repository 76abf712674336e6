#include "playlist/list_search.h"

#include <algorithm>
#include <iterator>
#include <vector>

#include "platform/dialogs.h"
#include "platform/text.h"

namespace sonarelle {

namespace {

constexpr int rest_ms = 700;

// The letters from U+00C0 to U+00FF in lower case and without their accents; a blank is one that has none to lose.
constexpr std::string_view latin_letters = "aaaaaa ceeeeiiii nooooo ouuuuy  aaaaaa ceeeeiiii nooooo ouuuuy y";

bool is_folded(unsigned char lead, unsigned char next) {
    return lead == 0xc3 && next >= 0x80 && next <= 0xbf && latin_letters[next - 0x80U] != ' ';
}

// Æ, Ð, Þ and Œ have a small form of their own.
bool is_capital(unsigned char lead, unsigned char next) {
    return lead == 0xc3 ? next == 0x86 || next == 0x90 || next == 0x9e : lead == 0xc5 && next == 0x92;
}

/// All rows are folded into one text, so that a hundred thousand of them cost no memory.
void fold_into(std::string& folded, std::string_view text) {
    folded.clear();
    for (std::size_t place = 0; place < text.size(); ++place) {
        const auto byte = static_cast<unsigned char>(text[place]);
        const auto next = static_cast<unsigned char>(place + 1 < text.size() ? text[place + 1] : '\0');
        if (is_folded(byte, next)) {
            folded += latin_letters[next - 0x80U];
            ++place;
        } else if (is_capital(byte, next)) {
            folded += text[place];
            folded += static_cast<char>(byte == 0xc3 ? next + 0x20 : next + 1);
            ++place;
        } else {
            folded += byte >= 'A' && byte <= 'Z' ? static_cast<char>(byte + ('a' - 'A')) : text[place];
        }
    }
}

} // namespace

std::string folded(std::string_view text) {
    std::string result;
    fold_into(result, text);
    return result;
}

ListSearch::ListSearch(const Platform& platform, Liste_son& window)
    : platform_{platform},
      window_{window},
      rest_{"search_rest", 0, platform.scheduler} {
    rest_.set_interval(rest_ms);
    rest_.on_tick = [this] { tell_after_a_rest(); };
}

std::string ListSearch::wanted() const {
    const std::string& text = window_.search.text();
    return is_untouched_search(text) ? std::string{} : folded(trim(text));
}

void ListSearch::text_changed() {
    const std::string text = wanted();
    rest_.disable();
    window_.search_hits.caption = "";
    not_found_.clear();
    if (text.empty() || window_.rows.count() == 0)
        return told_.clear();
    if (search(text))
        return told_.clear();
    not_found_ = text;
    if (told_.empty() || !text.starts_with(told_))
        rest_.enable();
}

void ListSearch::leave() {
    rest_.disable();
}

void ListSearch::tell_after_a_rest() {
    rest_.disable();
    told_ = not_found_;
    tell_not_found("Fichier non trouvé");
}

void ListSearch::entry_chosen() {
    rest_.disable();
    const std::string text = wanted();
    if (!text.empty() && window_.rows.count() > 0 && !search(text))
        tell_not_found("Non trouvé");
}

void ListSearch::tell_not_found(const char* words) {
    show_box(platform_.dialogs, words, Icon::none);
}

// Without a hit the last row stays selected.
bool ListSearch::search(const std::string& text) {
    const std::vector<int> rows = hits(text);
    window_.search_hits.caption = rows.empty() ? "aucun" : "1 / " + std::to_string(rows.size());
    show(rows.empty() ? window_.rows.count() : rows.front());
    return !rows.empty();
}

std::vector<int> ListSearch::hits(const std::string& text) const {
    std::vector<int> rows;
    std::string path;
    for (int row = 1; row <= window_.rows.count(); ++row) {
        fold_into(path, window_.rows.text(row));
        if (path.find(text) != std::string::npos)
            rows.push_back(row);
    }
    return rows;
}

void ListSearch::find_next() {
    step([](const std::vector<int>& rows, int selected) { return std::ranges::upper_bound(rows, selected); });
}

// The one before the first is the last.
void ListSearch::find_previous() {
    step([](const std::vector<int>& rows, int selected) {
        const auto place = std::ranges::lower_bound(rows, selected);
        return place == rows.begin() ? std::prev(rows.end()) : std::prev(place);
    });
}

template <typename Choose>
void ListSearch::step(const Choose& choose) {
    const std::string text = wanted();
    const std::vector<int> rows = text.empty() ? std::vector<int>{} : hits(text);
    if (rows.empty())
        return;
    auto place = choose(rows, window_.rows.selected());
    if (place == rows.end())
        place = rows.begin();
    window_.search_hits.caption = std::to_string(place - rows.begin() + 1) + " / " + std::to_string(rows.size());
    show(*place);
}

// What a search selects is no place for the programme to go on.
void ListSearch::show(int row) {
    window_.rows.look_at(row);
    window_.rows.ensure_visible(row);
}

} // namespace sonarelle
