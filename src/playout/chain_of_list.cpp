#include <utility>

#include "platform/calendar_text.h"
#include "platform/failure.h"
#include "playout/auto_chain.h"

namespace sonarelle {

void AutoChain::Timer4_tick() {
    if (desk_.window.Active_audio_jingles.checked) {
        trap_of("T4")([this] { special_mix_tick(); });
        return;
    }
    if (desk_.chain.chaine_suspendue.is_true() || mix_walk_.under_way())
        return;
    trap_of("T4")([this] { list_tick(); });
}

// The chain stands still, and the desk goes on showing where the track on the air is.
void AutoChain::special_mix_tick() {
    mix_.serve_special_mix();
    if (desk_.has_main_deck() && desk_.main_deck().has_graph())
        show_list_progress(desk_.main_deck(), desk_.main_deck().end_point() - desk_.settings.mix_courant);
}

void AutoChain::list_tick() {
    desk_.list_window.Label13.caption = time_text(desk_.platform);
    const std::string deck_name = text_of(desk_.chain.lecteur_en_cours);
    desk_.window.Label10.caption = " Mix liste : Play " + deck_name;
    desk_.window.Label7.caption = "Play " + deck_name + " : liste mix a " + text_of(desk_.chain.dernier_point_mix);
    if (!desk_.has_main_deck())
        return;
    Deck& deck = desk_.main_deck();
    const Integer point = deck.end_point() - desk_.settings.mix_courant;
    show_list_progress(deck, point);
    // On the first deck alone the insertion of list items keeps the net at the file's end out of play.
    const bool has_net = deck.number() != 1 || !desk_.settings.valide_fichier_aleatoire1.is_true();
    if (has_net && has_played_out(deck)) {
        if (desk_.chain.ordre_aleatoire.is_false())
            return follow_at_once(deck, FirstLook::next_row);
        if (desk_.chain.ordre_aleatoire.is_true() && !desk_.chain.jingles_aleatoires.is_true())
            return follow_at_once(deck, FirstLook::drawn_row);
    }
    mix_point(deck, point);
}

void AutoChain::show_list_progress(Deck& deck, Integer point) {
    const Integer position = deck.whole_position();
    desk_.list_window.Label3.caption = "( " + text_of(position) + " / " + text_of(point) + " )";
    desk_.small_player.label1.caption = text_of(deck.whole_duration() - position);
    desk_.window.Label5.caption = text_of(position);
    deck.controls.progress.value = position.value();
}

void AutoChain::mix_point(Deck& deck, Integer point) {
    desk_.chain.dernier_point_mix = point;
    if (desk_.elapsed() != point || point < 1)
        return;
    if (point <= desk_.settings.valeur_max_jingles) {
        desk_.window.Timer3.disable();
        // In random order the load step has left the list on the row that it drew.
        follow_at_once(deck, desk_.chain.ordre_aleatoire.is_true() ? FirstLook::current_row : FirstLook::next_row);
        return;
    }
    desk_.settings.mix_courant = desk_.settings.mix_defaut;
    desk_.window.Timer1.enable();
    desk_.window.Timer3.enable();
    automatic_zap(deck);
}

// A short item is followed without a fade.
void AutoChain::follow_at_once(Deck& deck, FirstLook first) {
    first_look_ = first;
    walk_to_follow(deck, [this, &deck] { return try_to_follow(deck); });
}

// Once the operator has paused, or gone over to another deck or to a chain without a list, a row that turns up would
// cut what he does.
void AutoChain::walk_to_follow(Deck& deck, RowWalk::Step step) {
    const auto wanted = [this, &deck] {
        const bool list_chain = desk_.window.Timer4.enabled() || desk_.chain.mode_enchainement.is_true();
        return list_chain && desk_.chain.lecteur_en_cours == deck.number() && !deck.pause_lecteur.is_true();
    };
    mix_walk_.start(
        std::move(step), [this] { return desk_.row_count(); }, wanted, trap_of("T4"));
}

bool AutoChain::try_to_follow(Deck& deck) {
    return take_row_to_follow() && is_found_to_follow() && start_row(deck);
}

/// False when no row could be drawn: the next turn draws again.
bool AutoChain::take_row_to_follow() {
    if (first_look_ == FirstLook::drawn_row && !take_drawn_row())
        return false;
    if (first_look_ == FirstLook::current_row)
        take_current_row();
    if (first_look_ == FirstLook::next_row)
        take_next_row();
    first_look_ = FirstLook::next_row;
    return true;
}

bool AutoChain::is_found() {
    try {
        run_.detecte_fichier_liste();
    } catch (const Failure& failure) {
        pass_over_row(mix_walk_, failure.number == failure_number::device_fault ? passed_over::silent_disk
                                                                                : passed_over::no_folder);
        return false;
    }
    return !desk_.list.chemin_fichier.empty();
}

bool AutoChain::is_found_to_follow() {
    return is_found() && desk_.list.chemin_fichier != desk_.chain.chemin_precedent;
}

bool AutoChain::is_loaded(const Deck& next) const {
    return desk_.chain.chargement_fait.is_true() && next.path == desk_.list.chemin_fichier;
}

bool AutoChain::load_behind(Deck& old) {
    load_walk_.cancel();
    desk_.chain.element_en_cours = desk_.list.index_en_cours;
    desk_.list.index_destinataire = desk_.list.index_en_cours;
    reading_.read_for_the_air();
    Deck& next = desk_.deck(next_deck(old.number()));
    const bool told = is_loaded(next);
    const LoadResult result = loading_.load_from_list(next);
    if (is_passed_over(result)) {
        pass_over_row(mix_walk_, why_not_loaded(result));
        return false;
    }
    if (result == LoadResult::failed && !is_folder_there(next.path)) {
        pass_over_row(mix_walk_, passed_over::no_folder);
        return false;
    }
    if (!told && result == LoadResult::loaded)
        desk_.report_loaded(next);
    return true;
}

void AutoChain::play_behind(Deck& old) {
    begin_overlap();
    old.controls.title.caption = std::string{waiting_title};
    start_.play(desk_.deck(next_deck(old.number())));
}

bool AutoChain::start_row(Deck& old) {
    if (!load_behind(old))
        return false;
    play_behind(old);
    const int row = desk_.list.index_en_cours.value();
    desk_.list_window.ListView1.ensure_visible(row);
    desk_.list_window.ListView1.select(row);
    desk_.window.Timer1.enable();
    desk_.list_window.Image2.enabled = true;
    desk_.list_window.Label12.caption = "Zapping autorisé";
    desk_.small_player.Command2.enabled = true;
    return true;
}

void AutoChain::automatic_zap(Deck& old) {
    walk_to_follow(old, [this, &old] { return try_to_zap(old); });
}

/// In list order each turn begins with the next row. One that can't be taken gives way to a drawn one: the air goes on
/// with what there is.
bool AutoChain::try_to_zap(Deck& old) {
    const bool in_list_order = !desk_.chain.ordre_aleatoire.is_true() || desk_.chain.jingles_aleatoires.is_true() ||
                               desk_.settings.valide_fichier_aleatoire1.is_true();
    if (in_list_order && mix_walk_.begins_turn())
        take_next_row();
    else if (desk_.chain.choix_prepare.is_true())
        take_current_row();
    else if (!take_drawn_row())
        return false;
    const Integer row = desk_.list.index_en_cours;
    if (is_found_to_follow() && start_zapped(old))
        return true;
    give_prepared_row_up(row);
    return false;
}

/// A row that was removed leaves its place to the one before it, if there is one. What else can't be taken now mustn't
/// be looked at for ever: the next look draws anew.
void AutoChain::give_prepared_row_up(Integer row) {
    if (desk_.list.index_en_cours == row || desk_.list.index_en_cours < 1)
        desk_.chain.choix_prepare = false;
}

bool AutoChain::start_zapped(Deck& old) {
    if (!load_behind(old))
        return false;
    if (desk_.window.coche3.value()) {
        desk_.window.coche4.set_value(0);
        desk_.window.Timer2.set_interval(0);
        desk_.window.Timer3.enable();
    }
    play_behind(old);
    desk_.window.Timer3.set_interval(desk_.settings.mix_audio_vitesse);
    show_full_volume(desk_.deck(next_deck(old.number())));
    const int row = desk_.list.index_en_cours.value();
    desk_.list_window.ListView1.ensure_visible(row);
    desk_.list_window.ListView1.select(row);
    return true;
}

/// The slider of a record that isn't at full volume stands where the record has put it: from there the operator and the
/// special mix go on.
void AutoChain::show_full_volume(Deck& deck) {
    if (!deck.has_graph() || deck.graph().get_Volume() != Millibel{0})
        return;
    deck.controls.slider.show_value(0);
    DeckVolume::show(deck);
}

void AutoChain::cancel_walks() {
    load_walk_.cancel();
    mix_walk_.cancel();
}

AutoChain::Trap AutoChain::trap_of(const std::string& name) {
    return [this, name](const std::function<void()>& statement) {
        try {
            statement();
        } catch (const Failure& failure) {
            stop_after_failure(name, failure);
        }
    };
}

void AutoChain::stop_after_failure(const std::string& name, const Failure& failure) {
    run_.stoppe_liste(failure.what());
    desk_.warn("ATTENTION ERREUR ! " + name + "\nFICHIER NON TROUVEE , NON AUDIO ou " + failure.what() +
               "\nSI LISTE EN COURS : ARRETEE\nTapez F2 dans le cas de lecture de liste\nRevoir la sélection");
}

} // namespace sonarelle
