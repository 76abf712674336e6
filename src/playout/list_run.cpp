#include "playout/list_run.h"

#include <algorithm>
#include <array>
#include <cstdint>

#include "platform/dialogs.h"
#include "platform/failure.h"
#include "playlist/file_existence.h"

namespace sonarelle {

ListRun::ListRun(Desk& desk, AutoChain& chain, DeckTransport& transport, RunControl& run, ListSaveDialog& save_dialog,
                 ListDocument& document)
    : desk_{desk},
      chain_{chain},
      transport_{transport},
      run_{run},
      save_dialog_{save_dialog},
      document_{document} {}

void ListRun::play_list() {
    if (draw_first_row)
        draw_first_row();
    take_up();
}

void ListRun::start_by_key() {
    if (desk_.list_window.play_list.enabled && !first_deck_sounds())
        desk_.list_window.play_list.click();
}

bool ListRun::first_deck_sounds() const {
    const bool sounds = desk_.ring.deck(1).sounds();
    if (sounds)
        desk_.list_window.list_status.caption = "Le lecteur 1 est à l'antenne";
    return sounds;
}

void ListRun::take_up() {
    if (desk_.row_count() == 0)
        return desk_.notices.inform("La liste est vide");
    desk_.display.list_starts();
    ErrorIndicator{}.skip([this] { start_selected_row(); });
}

void ListRun::start_selected_row() {
    select_a_row();
    if (!is_playable_number(desk_.list_window.rows.selected()))
        return;
    const Integer row = desk_.list_window.rows.selected();
    const Integer row_before = desk_.list.index_en_cours;
    desk_.list.index_en_cours = row;
    document_.show_file_in_use();
    if (desk_.list.fichier_liste.empty())
        return save_dialog_.A_enreg_sous();
    desk_.display.list_can_be_stopped();
    const DestinationRecord record = chain_.cursor.record_of(row);
    if (desk_.ring.sounds() && !can_be_played(record.dest_chemin)) {
        desk_.list.index_en_cours = row_before;
        return run_.report_failed_start(record.dest_chemin);
    }
    choose_a_reading_mode();
    start_row(row, record);
}

void ListRun::start_row(Integer number, const DestinationRecord& row) {
    desk_.chain.chemin_precedent = desk_.list.chemin_fichier = row.dest_chemin;
    desk_.display.list_reads_row(number);
    chain_.cancel_walks();
    desk_.list.ligne_en_lecture = number;
    chain_.cursor.load_on(desk_.ring.deck(1), row);
    desk_.report_loaded(desk_.ring.deck(1));
    stop_other_decks();
    run_.lect_liste();
}

bool ListRun::is_playable_number(int row) const {
    if (row > INT16_MAX)
        desk_.notices.inform("La ligne " + std::to_string(row) +
                             " ne peut pas être lue\nLa lecture va jusqu'à la ligne " + std::to_string(INT16_MAX));
    return row <= INT16_MAX;
}

void ListRun::load_selected_row() {
    const int row = desk_.list_window.rows.selected();
    if (row == 0 || !desk_.list_window.play_list.enabled || !is_playable_number(row))
        return;
    if (first_deck_sounds())
        return;
    ErrorIndicator{}.skip([&] { put_on_first_deck(row); });
}

void ListRun::put_on_first_deck(Integer number) {
    desk_.list.glisser_en_cours = false;
    desk_.list.index_en_cours = number;
    if (!desk_.chain.ecoute_en_cours.is_true())
        desk_.list.ligne_en_lecture = number;
    if (desk_.list.fichier_liste.empty())
        return save_dialog_.A_enreg_sous();
    const DestinationRecord record = chain_.cursor.record_of(number);
    desk_.list.chemin_fichier = record.dest_chemin;
    const FileState found = look_for_file(desk_.platform.disk, record.dest_chemin).state;
    if (found == FileState::missing || found == FileState::folder_missing)
        return tell_missing_file(record.dest_chemin);
    chain_.cursor.load_on(desk_.ring.deck(1), record);
    desk_.report_loaded(desk_.ring.deck(1));
    desk_.show_list_start();
}

void ListRun::tell_missing_file(const std::string& path) {
    const MessageBox box{path + "\nCe fichier est NON TROUVE !\nIl est peut etre situé sur le réseau ?",
                         "Recupération du nom de fichier"};
    (void)desk_.platform.dialogs.MsgBox(box);
    desk_.list.chemin_fichier.clear();
    desk_.list_window.list_status.caption = "Fichier non trouve";
}

// On a graph of its own: a row that can't be played leaves the air as it is.
bool ListRun::can_be_played(const std::string& path) const {
    return length_of(desk_.platform, path) >= shortest_good_file;
}

bool ListRun::can_be_heard(int row) const {
    const double length = length_of(desk_.platform, desk_.list_window.rows.text(row));
    return length >= shortest_good_file && length - chain_.cursor.record_of(row).dest_debut >= shortest_good_file;
}

// The list begins on the first deck alone, and what has played out elsewhere doesn't wait there with a file.
void ListRun::stop_other_decks() {
    desk_.chain.lecteur_en_cours = 1;
    for (Deck& deck : desk_.ring.decks)
        if (deck.number() != 1 && (deck.sounds() || deck.is_at_its_end()))
            transport_.stop(deck);
}

// A list that was just loaded begins with its first row.
void ListRun::select_a_row() {
    RowTable& rows = desk_.list_window.rows;
    if (rows.selected() == 0 && rows.count() > 0)
        rows.select(1);
}

// Without a mode the list would end with its first track. The lamp of the list chain chooses the same one.
void ListRun::choose_a_reading_mode() {
    Liste_son& list = desk_.list_window;
    const std::array modes{&list.player_mode, &list.random_mode, &list.defined_end_mode, &list.full_length_mode};
    const bool none = std::ranges::none_of(modes, [](const OptionButton* mode) { return mode->value(); });
    if (none && desk_.chain.mode_enchainement.is_false())
        list.full_length_mode.set_value(true);
}

void ListRun::stop_decks() {
    run_.write_stop();
    chain_.cancel_walks();
    for (Deck& deck : desk_.ring.decks)
        transport_.stop(deck);
    desk_.chain.lecteur_en_cours = 0;
    desk_.set_air(AirState::off);
    desk_.display.list_stopped();
    document_.a_mettre_Enabled();
    desk_.report({.kind = OnAirEvent::Kind::stopped, .text = "Arrét lecture liste"});
}

void ListRun::show_playing_row() {
    ErrorIndicator{}.skip([this] {
        desk_.list_window.rows.select(desk_.list.ligne_en_lecture.value());
        desk_.list_window.rows.ensure_visible(desk_.list.ligne_en_lecture.value());
    });
}

} // namespace sonarelle
