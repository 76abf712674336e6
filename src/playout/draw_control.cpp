#include "playout/draw_control.h"

#include <charconv>

#include "platform/text.h"

namespace sonarelle {

namespace {

constexpr std::size_t most_lines = 1000;
constexpr std::string_view number_found = "Oui ce nombre existe";

std::string counted(const std::string& words, int count) {
    return words + " ( " + std::to_string(count) + ")";
}

std::vector<std::string> texts_of(const std::vector<int>& numbers) {
    std::vector<std::string> texts;
    texts.reserve(numbers.size());
    for (const int number : numbers)
        texts.push_back(std::to_string(number));
    return texts;
}

} // namespace

DrawControl::DrawControl(liste& window, DrawTables& tables, const ListState& list, ChainState& chain,
                         const RowTable& rows)
    : window_{window},
      tables_{tables},
      list_{list},
      chain_{chain},
      rows_{rows} {
    window_.on_unload_request = window_.close.on_click = [this] { window_.hide(); };
    window_.reload.on_click = [this] { reload(); };
    window_.clear_lists.on_click = [this] { press_clear_lists(); };
    window_.clear_table.on_click = [this] { press_clear_table(); };
    window_.add_current.on_click = [this] { add_current(); };
    window_.number.on_change = [this] { search(); };
}

void DrawControl::show() {
    window_.show();
    fill(of_list_);
    fill(of_jingles_);
}

void DrawControl::head(Lists which, const std::string& heading) {
    (which == Lists::of_list ? window_.heading : window_.jingles_heading).caption = heading;
}

void DrawControl::begin_cycle(Lists which) {
    Pair& lists = pair(which);
    lists.lines.clear();
    lists.table = nullptr;
    fill(lists);
}

void DrawControl::clear_lists() {
    begin_cycle(Lists::of_list);
}

void DrawControl::show_table(Lists which, const DrawTable& table, int barred) {
    pair(which).table = &table; // which the log shows, once a draw
    if (which == Lists::of_list)
        window_.number.set_text(std::to_string(barred));
    show_total();
}

void DrawControl::log(Lists which, const Draw& draw, const DrawWords& words) {
    Pair& lists = pair(which);
    const auto add = [&lists](int number, std::string_view word) {
        lists.lines.push_back(std::to_string(number) + std::string{word});
    };
    for (const int number : draw.hits)
        add(number, words.hit);
    if (!draw.hits.empty())
        window_.finding.set_text(std::string{words.on_hit});
    if (draw.number)
        add(*draw.number, words.accepted);
    fill(lists);
}

void DrawControl::log(Lists which, const std::vector<std::string>& lines) {
    Pair& lists = pair(which);
    lists.lines.insert(lists.lines.end(), lines.begin(), lines.end());
    fill(lists);
}

void DrawControl::rows_to_draw(int rows) {
    window_.total_index.caption = counted("Total index", rows);
}

void DrawControl::row_drawn(int row, int rows, const std::string& file) {
    rows_to_draw(rows);
    window_.finding.set_text(counted("Total index", rows));
    window_.file.caption = "Dans fichier " + file;
    window_.drawn.set_text(std::to_string(row));
}

void DrawControl::item_drawn(int number, int records, const std::string& every, const std::string& file) {
    window_.total_index.caption = counted("Index non trouvé sur", records);
    window_.finding.set_text(counted("Index non trouvé sur", records));
    window_.file.caption = "Dans fichier " + file;
    window_.file.hint = every;
    window_.drawn.set_text(std::to_string(number));
}

void DrawControl::jingle_drawn(int number, int records, const std::string& every, const std::string& file) {
    window_.jingle_index.caption = counted("Nombre d'index", records);
    window_.jingle_total.caption = std::to_string(tables_.deja_lu.entries().size());
    window_.jingle_every.caption = every;
    window_.jingle_file.caption = "Dans fichier " + file;
    window_.jingle_drawn.set_text(std::to_string(number));
}

void DrawControl::fill(Pair& lists) {
    while (lists.lines.size() > most_lines)
        lists.lines.pop_front();
    if (!window_.visible)
        return;
    lists.played.items = lists.table == nullptr ? std::vector<std::string>{} : texts_of(lists.table->entries());
    lists.draws.items = std::vector<std::string>{lists.lines.begin(), lists.lines.end()};
    lists.draws.selected = static_cast<int>(lists.lines.size()) - 1; // the newest one comes into view
}

void DrawControl::show_total() {
    window_.total.caption = std::to_string(of_list_.table == nullptr ? 0 : of_list_.table->entries().size());
}

void DrawControl::forget_null_draws() {
    chain_.nb_tirages_nuls = 0;
    window_.null_draws.caption = "0";
}

// In the table that is shown.
void DrawControl::search() {
    const std::string& text = window_.number.text();
    int number = 0;
    const bool is_number = std::from_chars(text.data(), text.data() + text.size(), number).ec == std::errc{};
    const DrawTable& table = of_list_.table == nullptr ? tables_.deja_lu : *of_list_.table;
    window_.finding.set_text(is_number && number >= 0 && table.holds(number) ? std::string{number_found} : "");
}

void DrawControl::reload() {
    of_list_.table = &tables_.deja_lu;
    fill(of_list_);
    show_total();
    forget_null_draws();
}

// The table itself stays: the next draw shows it again.
void DrawControl::press_clear_lists() {
    clear_lists();
    window_.finding.set_text("");
    show_total();
    forget_null_draws();
}

void DrawControl::press_clear_table() {
    tables_.deja_lu.clear();
    of_list_.table = &tables_.deja_lu;
    fill(of_list_);
    window_.number.set_text("1");
    window_.finding.set_text("");
    show_total();
    forget_null_draws();
}

void DrawControl::add_current() {
    const int row = list_.index_en_cours.value();
    if (row < 1)
        return;
    if (tables_.deja_lu.bar(row, rows_.count()))
        begin_cycle(Lists::of_list);
    of_list_.table = &tables_.deja_lu;
    log(Lists::of_list, {std::to_string(row) + " - CH manuel"});
    window_.finding.set_text("Trouvé ");
    show_total();
}

} // namespace sonarelle
