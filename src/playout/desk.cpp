#include "playout/desk.h"

#include <algorithm>

#include "configuration/settings_store.h"
#include "platform/clock.h"
#include "platform/dialogs.h"
#include "platform/failure.h"
#include "platform/text.h"

namespace sonarelle {

namespace {

constexpr int most_files_named = 10; // in one warning

} // namespace

Deck& Desk::main_deck() {
    if (!has_main_deck())
        throw Failure{failure_number::no_object, "lecteur en cours"};
    return deck(chain.lecteur_en_cours.value());
}

const Deck& Desk::main_deck() const {
    if (!has_main_deck())
        throw Failure{failure_number::no_object, "lecteur en cours"};
    return decks.at(static_cast<std::size_t>(chain.lecteur_en_cours.value() - 1));
}

void Desk::set_air(AirState state) {
    if (chain.air == AirState::off)
        chain.air_since = platform.clock.now();
    chain.air = state;
    show_list_start();
}

void Desk::show_list_start() const {
    const bool runs = list_runs();
    list_window.play_list.enabled = !runs;
    list_window.lect_liste.enabled = !runs;
}

bool Desk::list_runs() const {
    const int row = list.ligne_en_lecture.value();
    const bool chained = chain.mode_enchainement.is_true() && window.list_chain_timer.enabled();
    return chain.air == AirState::on && chained && has_main_deck() && !main_deck().rests() && row >= 1 &&
           row <= row_count() && equal_ignoring_case(list_window.rows.text(row), main_deck().path);
}

void Desk::show_on_small_player(const std::string& name) {
    small_player.caption = name;
    small_player.next.enabled = true;
}

void Desk::write_warning(const std::string& lines) {
    warning.caption = "ATTENTION ERREUR";
    warning.lines.caption = lines;
    if (on_warning)
        on_warning(lines);
}

void Desk::warn(const std::string& lines) {
    write_warning(lines);
    warning.show();
}

void Desk::warn_of_file(const std::string& heading, const std::string& path, const std::string& last_line) {
    const std::string head = heading + "\n";
    const std::string foot = "\n" + last_line;
    const std::string shown = warning.lines.caption;
    std::string paths = path;
    if (warning.visible && shown.starts_with(head) && shown.ends_with(foot))
        paths = shown.substr(head.size(), shown.size() - head.size() - foot.size()) + "\n" + path;
    while (std::ranges::count(paths, '\n') >= most_files_named)
        paths.erase(0, paths.find('\n') + 1);
    write_warning(head + path + foot); // who listens elsewhere has heard of the others
    warning.lines.caption = head + paths + foot;
    warning.show();
}

void Desk::report_loaded(const Deck& deck) const {
    report({.kind = OnAirEvent::Kind::loaded,
            .deck = deck.number(),
            .row = list.index_en_cours.value(),
            .path = deck.path,
            .end = deck.controls.counter.caption});
}

void Desk::inform(const std::string& text) {
    show_box(platform.dialogs, text, Icon::information);
}

void Desk::remember(std::string_view key, std::string_view value) {
    const SettingsStore store{platform};
    try {
        store.write(setting_section::config, key, value);
    } catch (const Failure& failure) {
        show_box(platform.dialogs, failure.what(), Icon::stop);
    }
}

std::string lines_of(const Failure& failure) {
    return failure.source.empty() ? failure.description : failure.description + "\n" + failure.source;
}

} // namespace sonarelle
