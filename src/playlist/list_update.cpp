#include "playlist/list_update.h"

#include <algorithm>
#include <cstdint>

#include "platform/clock.h"
#include "platform/dialogs.h"
#include "platform/failure.h"
#include "platform/media.h"
#include "platform/paths.h"
#include "platform/text.h"
#include "playlist/list_rows.h"

namespace sonarelle {

namespace {

constexpr int every_row = 1'000'000'000;       // also those that come during the walk
constexpr int rows_ahead = 512;                // enough to work on while the window thread waits for its next look
constexpr std::chrono::milliseconds a_look{5}; // far below the lead by which ticks run ahead of the sound

} // namespace

ListUpdate::ListUpdate(const Platform& platform, ListState& state, ChainState& chain, ListAtWork& list,
                       ListSaveDialog& save_dialog, ListVerification& verification)
    : platform_{platform},
      state_{state},
      chain_{chain},
      list_{list},
      save_dialog_{save_dialog},
      verification_{verification} {}

void ListUpdate::a_mettre_a_jour() {
    state_.volume_nul_signale = true;
    if (list_.rows().count() == 0)
        return;
    if (!chain_.maj_depuis_ajout.is_true() && !list_.allows(ListAction::a_mettre_a_jour))
        return;
    const ListWork work = list_.begin();
    std::optional<std::string> trouble;
    try {
        trouble = update_one_row();
    } catch (const Failure& failure) {
        trouble = failure.what();
    }
    if (trouble)
        give_up(*trouble);
    else
        list_.save();
}

// What goes wrong is told, or nothing.
std::optional<std::string> ListUpdate::update_one_row() {
    if (chain_.maj_depuis_ajout.is_false())
        return update_selected_row();
    if (!chain_.maj_depuis_ajout.is_true())
        return std::string{};
    update_dropped_row();
    chain_.maj_depuis_ajout = false;
    return std::nullopt;
}

void ListUpdate::update_dropped_row() {
    const int row = state_.index_insertion.value();
    const DestinationRecord record = list_.read(row);
    const MeasuredFile measured = measure_.met_ajour(record.dest_chemin);
    if (const auto* facts = std::get_if<TrackFacts>(&measured))
        return list_.rows().replace(row, measured_row(record, *facts));
    list_.remove(row);
}

std::optional<std::string> ListUpdate::update_selected_row() {
    const int row = list_.rows().selected();
    make_current(row);
    const DestinationRecord record = list_.read(row);
    const MeasuredFile measured = measure_.met_ajour(record.dest_chemin);
    if (const auto* failure = std::get_if<Failure>(&measured))
        return failure->what();
    list_.rows().replace(row, measured_row(record, std::get<TrackFacts>(measured)));
    return std::nullopt;
}

void ListUpdate::give_up(const std::string& description) {
    list_.window().mouse_pointer = 0;
    list_.tell("Impossible de mettre a jour.  " + description, Icon::warning);
}

void ListUpdate::a_mettre_a_jour_liste() {
    const bool after_drop = !chain_.maj_depuis_ajout.is_false();
    if (!after_drop && !list_.allows(ListAction::a_mettre_a_jour_liste))
        return;
    state_.volume_nul_signale = true;
    const std::string short_name{name_of_path(state_.nom_fichier)};
    ListVerification::Outcome tested;
    {
        const ListWork work = list_.begin();
        state_.maj_liste_en_cours = true;
        tested = test_before(after_drop);
        if (tested.goes_on)
            update_rows(1, every_row, true);
        state_.maj_liste_en_cours = false;
    }
    if (tested.goes_on)
        offer_result(short_name, tested.removed);
}

void ListUpdate::update_dropped_rows(int first, int count) {
    const std::string short_name{name_of_path(state_.nom_fichier)};
    {
        const ListWork work = list_.begin();
        state_.maj_liste_en_cours = true;
        update_rows(first, count, false);
        state_.maj_liste_en_cours = false;
    }
    offer_result(short_name, 0);
}

void ListUpdate::offer_result(const std::string& short_name, int removed) {
    offer_saving(short_name, removed);
    list_.window().list_status.caption = "Nb de morceaux : " + std::to_string(list_.rows().count()) + " (" +
                                         std::to_string(list_.rows().selected()) + ")";
}

ListVerification::Outcome ListUpdate::test_before(bool after_drop) {
    if (list_.rows().count() == 0 || after_drop)
        return {.goes_on = list_.rows().count() > 0};
    return verification_.test_all_rows(true);
}

void ListUpdate::update_rows(int first, int count, bool moves_chain) {
    list_.progress().begin(std::min(count, list_.rows().count()), "Traitement en cours ......Patientez !");
    try {
        walk_rows(first, count, moves_chain);
    } catch (const Failure& failure) {
        give_up(failure.what());
    }
    list_.save_what_is_left();
    list_.progress().end();
}

// Rows that were dropped are measured where they lie; the chain goes on from where it is.
void ListUpdate::walk_rows(int first, int count, bool moves_chain) {
    const auto lengths = platform_.media.measure_ahead();
    int wanted = first - 1;
    int done = 0;
    for (int row = first; row <= list_.rows().count() && done < count && !list_.progress().is_cancelled();) {
        const int last = std::min(row - 1 + count - done, list_.rows().count());
        for (; wanted < std::min(row + rows_ahead, last); ++wanted)
            lengths->want(list_.rows().text(wanted + 1));
        list_.progress().advance(done + 1, "Traitement en cours " + std::to_string(row) + " / " +
                                               std::to_string(list_.rows().count()));
        if (moves_chain)
            make_current(row);
        const Step step = update_row(row, *lengths);
        done += step.done ? 1 : 0;
        row = list_.follow(step.next);
    }
}

// The list may change during the wait for a row's length.
ListUpdate::Step ListUpdate::update_row(int row, LengthsAhead& lengths) {
    const DestinationRecord record = list_.read(row);
    const RowTable::Row before = list_.rows().row(row);
    const auto length = wait_for(lengths, record.dest_chemin);
    if (!length)
        return {.next = row};
    if (row > list_.rows().count() || list_.rows().row(row) != before)
        return {.next = list_.place_of(before, row)};
    const MeasuredFile measured = measure_.met_ajour(record.dest_chemin, *length);
    if (const auto* facts = std::get_if<TrackFacts>(&measured))
        list_.rows().replace(row, measured_row(record, *facts));
    return {.done = true, .next = row + 1};
}

/// Nothing when the operator doesn't want to wait any longer.
std::optional<MeasuredLength> ListUpdate::wait_for(LengthsAhead& lengths, const std::string& path) {
    while (!list_.progress().is_cancelled()) {
        if (auto length = lengths.take(path, a_look))
            return length;
        platform_.clock.yield();
    }
    return std::nullopt;
}

void ListUpdate::offer_saving(const std::string& short_name, int removed) {
    const std::string went = removed == 0 ? "" : "Eléments supprimés de la liste : " + std::to_string(removed) + "\n\n";
    if (platform_.dialogs.MsgBox({went + "Sauvegarder la liste ?", short_name, Buttons::yes_no, Icon::question}) ==
        Answer::yes)
        save_dialog_.A_enreg_sous();
}

/// Rows behind the station's 16-bit numbers are updated too; no number can name them.
void ListUpdate::make_current(int row) {
    if (row <= INT16_MAX)
        state_.index_en_cours = row;
}

RowTable::Row ListUpdate::measured_row(const DestinationRecord& record, const TrackFacts& facts) const {
    return {record.dest_chemin,
            Format(record.dest_debut, start_pattern, platform_.decimal_mark),
            Format(facts.seconds, start_pattern, platform_.decimal_mark),
            facts.genre,
            "100",
            facts.duration};
}

} // namespace sonarelle
