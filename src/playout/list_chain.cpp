#include "playout/list_chain.h"

#include <utility>

#include "platform/calendar_text.h"
#include "platform/failure.h"
#include "playout/file_title.h"

namespace sonarelle {

ListChain::ListChain(Desk& desk, RowCursor& cursor, LoadAhead& load_ahead, DeckStart& start, Overlap& overlap,
                     RunControl& run)
    : desk_{desk},
      cursor_{cursor},
      load_ahead_{load_ahead},
      start_{start},
      overlap_{overlap},
      run_{run},
      walk_{"mix_walk", desk.platform.scheduler, desk.list_window.rows,
            [&run](const auto& turn) { run.under_trap("T4", turn); }} {}

void ListChain::tick() {
    if (!desk_.chain.chaine_suspendue.is_true() && !walk_.under_way())
        run_.under_trap("T4", [this] { look(); });
}

void ListChain::show_main_deck() {
    if (desk_.ring.has_main_deck() && desk_.ring.main_deck().has_graph())
        show_progress(desk_.ring.main_deck(), desk_.ring.main_deck().end_point() - desk_.settings.mix_courant);
}

void ListChain::look() {
    desk_.display.list_time(time_text(desk_.platform));
    desk_.display.chain_follows_list(desk_.chain.lecteur_en_cours, desk_.chain.dernier_point_mix);
    if (!desk_.ring.has_main_deck())
        return;
    Deck& deck = desk_.ring.main_deck();
    const Integer point = deck.end_point() - desk_.settings.mix_courant;
    show_progress(deck, point);
    // On the first deck alone the insertion of list items keeps the net at the file's end out of play.
    const bool has_net = deck.number() != 1 || !desk_.settings.valide_fichier_aleatoire1.is_true();
    if (has_net && deck.has_played_out()) {
        if (desk_.chain.ordre_aleatoire.is_false())
            return follow_at_once(deck, FirstLook::next_row);
        if (desk_.chain.ordre_aleatoire.is_true() && !desk_.chain.jingles_aleatoires.is_true())
            return follow_at_once(deck, FirstLook::drawn_row);
    }
    mix_point(deck, point);
}

void ListChain::show_progress(Deck& deck, Integer point) {
    const Integer position = deck.whole_position();
    desk_.display.list_mixes_at(position, point);
    desk_.display.main_deck_ends_in(deck.whole_duration() - position);
    desk_.display.main_deck_is_at(deck, position);
}

void ListChain::mix_point(Deck& deck, Integer point) {
    desk_.chain.dernier_point_mix = point;
    if (desk_.elapsed() != point || point < 1)
        return;
    if (point <= desk_.settings.valeur_max_jingles) {
        desk_.window.overlap_timer.disable();
        // In random order the load step has left the list on the row that it drew.
        follow_at_once(deck, desk_.chain.ordre_aleatoire.is_true() ? FirstLook::current_row : FirstLook::next_row);
        return;
    }
    desk_.settings.mix_courant = desk_.settings.mix_defaut;
    desk_.window.load_ahead_timer.enable();
    desk_.window.overlap_timer.enable();
    automatic_zap(deck);
}

// A short item is followed without a fade.
void ListChain::follow_at_once(Deck& deck, FirstLook first) {
    first_look_ = first;
    walk_to_follow(deck, [this, &deck] { return try_to_follow(deck); });
}

// Once the operator has paused, or gone over to another deck or to a chain without a list, a row that turns up would
// cut what he does.
void ListChain::walk_to_follow(Deck& deck, RowWalk::Step step) {
    const auto wanted = [this, &deck] {
        const bool list_chain = desk_.window.list_chain_timer.enabled() || desk_.chain.mode_enchainement.is_true();
        return list_chain && desk_.ring.is_main(deck) && !deck.pause_lecteur.is_true();
    };
    walk_.start(std::move(step), wanted);
}

bool ListChain::try_to_follow(Deck& deck) {
    return take_row_to_follow() && is_found_to_follow() && start_row(deck);
}

/// False when no row could be drawn: the next turn draws again.
bool ListChain::take_row_to_follow() {
    if (first_look_ == FirstLook::drawn_row && !cursor_.take_drawn_row(DrawPlace::list_chain))
        return false;
    if (first_look_ == FirstLook::current_row)
        cursor_.take_current_row();
    if (first_look_ == FirstLook::next_row)
        cursor_.take_next_row();
    first_look_ = FirstLook::next_row;
    return true;
}

bool ListChain::is_found_to_follow() {
    const RowCursor::Look look = cursor_.look();
    if (look == RowCursor::Look::silent_disk)
        walk_.rest();
    return look == RowCursor::Look::found && desk_.list.chemin_fichier != desk_.chain.chemin_precedent;
}

bool ListChain::load_behind(Deck& old, const DestinationRecord& row) {
    load_ahead_.cancel();
    desk_.chain.element_en_cours = desk_.list.index_en_cours;
    Deck& next = desk_.ring.after(old);
    const bool told = cursor_.is_loaded(next);
    const LoadResult result = cursor_.load_on(next, row);
    if (is_passed_over(result)) {
        pass_over(passed_over::because_of(result));
        return false;
    }
    if (result == LoadResult::failed && !cursor_.is_folder_there(next.path)) {
        pass_over(passed_over::no_folder);
        return false;
    }
    if (!told && result == LoadResult::loaded)
        desk_.report_loaded(next);
    return true;
}

// A disk that is waited for ends the walk's turn.
void ListChain::pass_over(std::string_view why) {
    cursor_.pass_over(why);
    if (why == passed_over::silent_disk)
        walk_.rest();
}

void ListChain::play_behind(Deck& old) {
    overlap_.begin();
    cursor_.begin_track();
    desk_.display.waits(old);
    start_.play(desk_.ring.after(old));
}

bool ListChain::start_row(Deck& old) {
    if (!load_behind(old, cursor_.read_row()))
        return false;
    play_behind(old);
    cursor_.select_row();
    desk_.window.load_ahead_timer.enable();
    desk_.display.zap_allowed();
    desk_.display.next_allowed();
    return true;
}

void ListChain::automatic_zap(Deck& old) {
    walk_to_follow(old, [this, &old] { return try_to_zap(old); });
}

bool ListChain::try_to_zap(Deck& old) {
    if (!take_row_to_zap_on())
        return false;
    if (is_found_to_follow() && start_zapped(old))
        return true;
    desk_.chain.choix_prepare =
        false; // what can't be taken now mustn't be looked at for ever: the next look draws anew
    return false;
}

/// In list order each turn begins with the next row. One that can't be taken gives way to a drawn one: the air goes on
/// with what there is.
bool ListChain::take_row_to_zap_on() {
    const bool in_list_order = !desk_.chain.ordre_aleatoire.is_true() || desk_.chain.jingles_aleatoires.is_true() ||
                               desk_.settings.valide_fichier_aleatoire1.is_true();
    if (in_list_order && walk_.begins_turn())
        cursor_.take_next_row();
    else if (desk_.chain.choix_prepare.is_true())
        cursor_.take_current_row();
    else
        return cursor_.take_drawn_row(DrawPlace::zap);
    return true;
}

bool ListChain::start_zapped(Deck& old) {
    const DestinationRecord row = cursor_.read_row();
    if (!load_behind(old, row))
        return false;
    desk_.display.goes_over_to(row, title_of(row.dest_chemin).name);
    if (desk_.window.mix_list.value()) {
        desk_.window.load_ahead.set_value(0);
        desk_.window.deck_chain_timer.set_interval(0);
        desk_.window.overlap_timer.enable();
    }
    play_behind(old);
    desk_.window.overlap_timer.set_interval(desk_.settings.mix_audio_vitesse);
    show_full_volume(desk_.ring.after(old));
    cursor_.select_row();
    return true;
}

/// The slider of a record that isn't at full volume stands where the record has put it: from there the operator and the
/// special mix go on.
void ListChain::show_full_volume(Deck& deck) {
    if (!deck.has_graph() || deck.graph().get_Volume() != Millibel{0})
        return;
    deck.controls.slider.show_value(0);
    desk_.display.volume(deck);
}

} // namespace sonarelle
