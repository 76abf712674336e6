#include "playout/desk_display.h"

#include "platform/application.h"
#include "platform/text.h"
#include "playlist/list_rows.h"
#include "playout/file_title.h"

namespace sonarelle {

namespace {

constexpr std::string_view lamp_on = "bouton_noir_petitdoux.jpg";

} // namespace

void DeskDisplay::loaded(Deck& deck, const std::string& duration, const std::string& title) const {
    deck.controls.title.caption = duration + " ( " + title + " )";
    deck.controls.special_mix.hint = "Mixage spécial sur lecteur en cours (" +
                                     std::string{deck_names[static_cast<std::size_t>(deck.number() - 1)].mix_key} +
                                     ") avec : " + deck.path;
}

void DeskDisplay::followed_by(const std::string& title) const {
    small_player_.caption = title;
    next_allowed();
}

void DeskDisplay::loaded_from_list(const std::string& name, const std::string& duration) const {
    list_.caption = cut_title(name, 16);
    list_.track_name.caption = cut_title(name, 16);
    list_.remaining.caption = duration;
}

void DeskDisplay::goes_over_to(const DestinationRecord& row, const std::string& name) const {
    draws_.file_heading.caption = "*  Info fichier chargé  *";
    draws_.file_name.caption = "Nom : " + name;
    draws_.file_start.caption = "Début a : " + Format(row.dest_debut, start_pattern, DecimalMark::point);
    draws_.file_end.caption = "Fin a : " + row.dest_fin;
    draws_.file_genre.caption = "genre : " + row.dest_genre;
    draws_.file_volume.caption = "Volume : " + text_of(row.dest_volume_pourcent) + " %";
    draws_.file_duration.caption = "Durée piste : " + std::string{trim(row.dest_duree)};
}

void DeskDisplay::volume(Deck& deck) const {
    const std::string percent = std::to_string(100 - 5 * deck.controls.slider.value());
    deck.controls.slider.hint = "Volume %" + percent;
    deck.controls.percent.caption = percent + "%";
}

void DeskDisplay::turn_title(Deck& deck) {
    const std::string& title = deck.controls.title.caption;
    const auto count = static_cast<double>(character_count(title));
    if (count == 0)
        return;
    const auto kept = static_cast<std::size_t>(to_integer(count - 0.5).value());
    deck.controls.title.caption = std::string{right(title, kept)} + std::string{left(title, 1)};
}

void DeskDisplay::rewound(Deck& deck) const {
    deck.controls.counter.caption = "0";
    deck.controls.progress.caption = "";
    deck.controls.progress.minimum = 1;
    deck.controls.progress.value = 0;
    deck.controls.open.enabled = true;
}

void DeskDisplay::paused(Deck& deck, bool is_paused) const {
    deck.controls.pause.caption = std::string{is_paused ? resume_caption : pause_caption};
    deck.controls.play.enabled = is_paused;
}

void DeskDisplay::stopped(Deck& deck) const {
    deck.controls.pause.caption = std::string{pause_caption};
    deck.controls.playing_mark.visible = false;
}

void DeskDisplay::started(Deck& deck, const TrackNames& names) const {
    window_.caption = settings_.nom_radio + " : " + names.on_main;
    list_.caption = names.of_file;
    deck.controls.title.caption = names.title + " - ";
    followed_by(names.title);
    draws_.file_heading.caption = "Info fichier chargé";
    list_.track_name.caption = names.title;
}

void DeskDisplay::mark_main(const Deck& main) const {
    for (Deck& deck : ring_.decks)
        deck.controls.playing_mark.visible = deck.number() == main.number();
    offer_entries_beside(main); // their keys work while no menu is open
}

void DeskDisplay::offer_entries_beside(const Deck& main) const {
    for (const Deck& deck : ring_.decks) {
        const auto place = static_cast<std::size_t>(deck.number() - 1);
        const bool beside = deck.number() != main.number();
        window_.play_entries()[place]->enabled = beside;
        window_.special_mix_entries()[place]->enabled = beside;
    }
}

void DeskDisplay::leave_buttons_to(const Deck& main) const {
    for (Deck& deck : ring_.decks) {
        const bool own = deck.number() == main.number();
        if (!own)
            deck.controls.play.enabled = false;
        deck.controls.zap.enabled = own;
    }
}

void DeskDisplay::arrange_buttons_round(const Deck& main) const {
    for (Deck& deck : ring_.decks) {
        const bool own = deck.number() == main.number();
        deck.controls.play.enabled = own;
        deck.controls.zap.enabled = own;
        deck.controls.open.enabled = !own;
    }
}

void DeskDisplay::main_deck_is_at(Deck& main, Integer second) const {
    elapsed(second);
    main.controls.progress.value = second.value();
}

void DeskDisplay::main_deck_ends_in(Integer seconds) const {
    small_player_.remaining.caption = text_of(seconds);
}

void DeskDisplay::overlap_over(Deck& old, Deck& main) const {
    waits(old);
    old.controls.progress.value = 0;
    old.controls.counter.caption = "0";
    chain_goes_on();
    old.controls.zap.enabled = false;
    main.controls.zap.enabled = true;
    zap_allowed();
    small_player_.next.visible = true;
}

void DeskDisplay::special_mix_began(Deck& deck, Integer seconds) const {
    deck.controls.progress.caption = "Mixage spécial en cours (" + text_of(seconds) + " S)";
    special_mix_offered(deck, false);
    chain_goes_on();
}

void DeskDisplay::special_mix_ended(Deck& deck) const {
    deck.controls.progress.value = 0;
    deck.controls.progress.caption = "";
    special_mix_offered(deck, true);
}

void DeskDisplay::overlap() const {
    window_.overlap.set_text(text_of(settings_.mix_courant));
    overlap_hints();
    window_.overlap_steps.show_value(settings_.mix_courant.value());
}

void DeskDisplay::overlap_hints() const {
    window_.overlap.hint = "Superposition de : " + text_of(settings_.mix_courant) + " seconde(s)";
    window_.load_ahead.hint = "Préchargement (" + text_of(settings_.prechargement) + " s avant le mix) ";
}

void DeskDisplay::chain_follows_list(Integer deck, Integer mix_point) const {
    window_.running_chain.caption = " Mix liste : Play " + text_of(deck);
    window_.chain_status.caption = "Play " + text_of(deck) + " : liste mix a " + text_of(mix_point);
}

void DeskDisplay::chain_follows_decks(const Deck& deck, Integer mix_point) const {
    window_.running_chain.caption = " Mix lecteur : Play " + deck.name();
    window_.chain_status.caption = "Play " + deck.name() + " : player mix a " + text_of(mix_point);
}

void DeskDisplay::decks_run_by_hand() const {
    window_.chain_status.caption = window_.Désactive_audio.checked ? "Fondu audio désactivé" : "Mode manuel";
}

void DeskDisplay::decks_wait_for_hands() const {
    window_.mix_titles.caption = "Mix Manuel";
    for (Deck& deck : ring_.decks) {
        deck.controls.play.enabled = true;
        deck.controls.open.enabled = true;
    }
}

void DeskDisplay::chain_stopped() const {
    for (Deck& deck : ring_.decks)
        deck.controls.open.enabled = true;
    window_.elapsed.caption = "0";
    window_.chain_status.caption = "Play en attente";
    no_chain_runs();
}

void DeskDisplay::light_deck_chain() const {
    window_.deck_chain_lamp.picture = std::string{lamp_on};
}

void DeskDisplay::light_list_chain() const {
    window_.list_chain_lamp.picture = std::string{lamp_on};
}

void DeskDisplay::light_deck_chain_alone() const {
    window_.list_chain_lamp.picture = "";
    light_deck_chain();
}

void DeskDisplay::light_reading_mode(Image& lamp) const {
    for (Image* each : {&list_.player_lamp, &list_.random_lamp, &list_.defined_end_lamp, &list_.full_length_lamp})
        light_switch(*each, each == &lamp);
}

void DeskDisplay::effects_offered(bool offered) const {
    for (MenuItem* entry : window_.effect_entries())
        entry->enabled = offered;
}

void DeskDisplay::order_is(bool random) const {
    window_.A_ordre_aléatoire.checked = random;
    window_.A_ordre_continue.checked = !random;
    for (MenuItem* entry : list_.entries_of_a_fixed_order())
        entry->enabled = !random;
    if (random)
        prelisten_offered(false); // the list's reading modes offer it again
    effects_offered(!random && !settings_.valide_fichier_aleatoire1.is_true());
}

void DeskDisplay::items_off() const {
    list_.items_status.caption = "liste Off";
    list_.items_status.fore_colour = settings_.coul_text_bouton;
    light_switch(list_.items_switch, false);
}

void DeskDisplay::insertions_off() const {
    items_off();
    list_.jingles_status.caption = "Jingle Off";
    list_.jingles_status.fore_colour = settings_.coul_text_bouton;
    list_.items_status.caption = "Liste Off";
    light_switch(list_.jingles_switch, false);
}

void DeskDisplay::list_can_start(bool can) const {
    list_.play_list.enabled = can;
    list_.lect_liste.enabled = can;
}

void DeskDisplay::list_starts() const {
    list_.play_list.picture = std::string{lamp_on};
}

void DeskDisplay::list_can_be_stopped() const {
    list_.stop_decks.enabled = true;
    list_.zap.enabled = true;
}

void DeskDisplay::list_stopped() const {
    list_.progress.caption = "Liste";
    list_.zap_status.caption = "Zapping autorisé";
}

void DeskDisplay::list_reads_row(Integer row) const {
    list_.list_status.caption = "En cours index N° : (" + text_of(row) + ")";
}

void DeskDisplay::list_mixes_at(Integer second, Integer mix_point) const {
    list_.progress.caption = "( " + text_of(second) + " / " + text_of(mix_point) + " )";
}

void DeskDisplay::zap_allowed() const {
    list_.zap.enabled = true;
    list_.zap_status.caption = "Zapping autorisé";
}

void DeskDisplay::station_named() const {
    window_.caption = settings_.nom_radio;
    small_player_.caption = settings_.nom_radio;
    list_.caption = settings_.nom_radio;
}

void DeskDisplay::station_nameless() const {
    const std::string title = std::string{application_title} + " V " + version_text();
    window_.caption = title + " - " + std::string{application_version.company};
    list_.caption = title;
}

void DeskDisplay::station_renamed() const {
    window_.caption = settings_.nom_radio;
    window_.Quitter_.caption = "Quitter " + settings_.nom_radio + " (Q)";
    list_.caption = settings_.nom_radio;
}

} // namespace sonarelle
