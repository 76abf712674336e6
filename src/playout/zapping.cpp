#include "playout/zapping.h"

#include <optional>
#include <utility>

#include "platform/calendar_text.h"
#include "platform/disk.h"
#include "platform/failure.h"
#include "platform/text.h"
#include "playout/row_on_air.h"

namespace sonarelle {

namespace {

/// No track is zapped by key in its first seconds. The message names the longest jingle, whatever this limit is.
constexpr int earliest_second = 30;

} // namespace

void Zapping::zapping() {
    if (desk_.ring.has_main_deck())
        return zap(desk_.ring.main_deck());
    tell("Aucune lecture en cours", Icon::none);
    desk_.display.zap_allowed();
}

void Zapping::press_zap(Deck& old) {
    if (desk_.is_manual() || !desk_.ring.is_main(old))
        return;
    if (!desk_.list_window.reads_the_list())
        return zap(old);
    try {
        chain_.list_chain.automatic_zap(old);
    } catch (const Failure& failure) {
        tell(lines_of(failure), Icon::none);
    }
}

void Zapping::zap(Deck& old) {
    try {
        zap_by_the_rules(old);
    } catch (const Failure& failure) {
        tell(lines_of(failure), Icon::none);
    }
}

void Zapping::zap_by_the_rules(Deck& old) {
    if (ends_record() && desk_.elapsed() <= earliest_second)
        return refuse_too_early();
    if (desk_.window.mix_list.value())
        zap_in_list(old);
    else
        zap_over_decks(old);
}

bool Zapping::ends_record() const {
    return desk_.list_window.reads_the_list() && desk_.chain.mode_enchainement.is_true();
}

void Zapping::refuse_too_early() {
    tell("Action mpossible avec l'option :\nMode enchainement auto liste prédéfini\ndu menu Option\n" +
             text_of(desk_.settings.valeur_max_jingles) + " secondes minimun sont demandées",
         Icon::warning);
    desk_.show_list_start();
    desk_.display.zap_allowed();
}

void Zapping::zap_in_list(Deck& old) {
    const RowCursor::Place before = chain_.cursor.place();
    const std::optional<double> length = find_row();
    if (!length)
        return chain_.cursor.go_back_to(before);
    if (*length == 0)
        refuse_unplayable(before);
    std::optional<RowOnAir> ended;
    try {
        ended = record_to_end(old);
    } catch (const Failure&) {
        chain_.cursor.go_back_to(before);
        throw;
    }
    chain_.cancel_walks();
    load_row(desk_.ring.after(old));
    desk_.window.load_ahead.set_value(0);
    desk_.window.deck_chain_timer.set_interval(desk_.settings.valeur_vitesse_timer);
    hand_over(old, ended);
    chain_.cursor.select_row();
}

// The track on the air goes on, with its load step. In list order its mix point and the next zap take the row behind,
// or the operator would never get over this one; in random order a drawn row that can't be played is drawn anew.
void Zapping::refuse_unplayable(const RowCursor::Place& before) {
    const Failure refusal{FailureNumber::file_not_found, desk_.list.chemin_fichier, "lecture impossible"};
    const bool was_prepared = desk_.list.index_en_cours == before.row;
    if (desk_.chain.ordre_aleatoire.is_true())
        chain_.cursor.go_back_to(before);
    if (was_prepared)
        desk_.chain.choix_prepare = false;
    throw refusal;
}

std::optional<double> Zapping::find_row() {
    bool by_draw = desk_.chain.ordre_aleatoire.is_true();
    const int rows = desk_.row_count();
    for (int looked_at = 0; looked_at <= rows; ++looked_at) {
        if (std::exchange(by_draw, false))
            chain_.cursor.draw_any_row();
        else
            chain_.cursor.take_next_row();
        if (chain_.cursor.look() != RowCursor::Look::found)
            continue;
        const double length = length_of(desk_.platform, desk_.list.chemin_fichier);
        if (length == 0 || length >= shortest_good_file)
            return length;
        chain_.cursor.note_passed_over(passed_over::too_short);
    }
    return std::nullopt;
}

void Zapping::load_row(Deck& next) {
    desk_.chain.element_en_cours = desk_.list.index_en_cours;
    const DestinationRecord row = chain_.cursor.read_row();
    const bool told = chain_.cursor.is_loaded(next);
    if (chain_.cursor.load_on(next, row) != LoadResult::loaded)
        throw Failure{FailureNumber::file_not_found, next.path, "lecture impossible"};
    if (!told)
        desk_.report_loaded(next);
}

void Zapping::zap_over_decks(Deck& old) {
    Deck& next = desk_.ring.after(old);
    if (next.path.empty())
        return;
    if (desk_.platform.disk.Dir(next.path).empty())
        return tell("Fichier non trouvé /abandon", Icon::stop);
    if (length_of(desk_.platform, next.path) == 0)
        throw Failure{FailureNumber::unplayable_file, next.path, "lecture impossible"};
    const std::optional<RowOnAir> ended = record_to_end(old);
    mix_.leave_special_mix(next);
    if (next.controls.progress.value == 0) // one that has moved doesn't start
        hand_over(old, ended);
}

std::optional<RowOnAir> Zapping::record_to_end(const Deck& old) const {
    std::optional<RowOnAir> ended = ends_record() ? row_on_air(desk_.platform, desk_.list, old) : std::nullopt;
    if (ended)
        ended->record.set_fin_lecture(text_of(desk_.elapsed()));
    return ended;
}

void Zapping::hand_over(Deck& old, const std::optional<RowOnAir>& ended) {
    choose_fade();
    chain_.begin_overlap();
    desk_.display.waits(old);
    Deck& next = desk_.ring.after(old);
    journal_.note(date_and_time(desk_.platform) + " ZAPPING sur ----> : " + next.path);
    start_.play(next);
    desk_.chain.position_zap =
        to_integer(Format(next.graph().get_CurrentPosition(), "0", DecimalMark::point), DecimalMark::point);
    desk_.window.overlap_timer.set_interval(desk_.settings.mix_audio_vitesse);
    desk_.window.overlap_timer.enable();
    if (!ended)
        return;
    document_.change_record(ended->number, ended->record);
    document_.show_changed_record(ended->number);
}

void Zapping::choose_fade() {
    if (!desk_.list_window.reads_the_list() || !desk_.chain.mode_enchainement.is_false())
        return;
    if (desk_.window.Désactive_audio.checked)
        mix_.Pas_demix_audio();
    else
        mix_.choose_zap_fade();
}

void Zapping::tell(const std::string& text, Icon icon) {
    show_box(desk_.platform.dialogs, text, icon);
}

} // namespace sonarelle
