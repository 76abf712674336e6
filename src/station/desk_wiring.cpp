#include "station/desk_wiring.h"

#include "configuration/painting.h"
#include "station/station.h"

namespace sonarelle {

DeskWiring::DeskWiring(Station& station)
    : display_menu{station.platform(), station.main_window, station.list_window, station.small_player,
                   station.warning_window},
      desk_commands{station.platform(), station.settings, station.list, station.main_window},
      quick_load{station.desk, station.deck_loading, station.run_control},
      option_menu{station.platform(),   station.settings, station.main_window,
                  station.desk_display, display_menu,     quick_load},
      about{station.platform(),     station.settings,     station.chain,
            station.warning_window, station.about_window, station.update_window},
      startup{{station.desk, station.list, station.small_player, station.splash, station.settings_load,
               station.settings_rewrite, station.journal, station.list_document, station.chain_modes, station.list_run,
               station.deck_loading, quick_load, option_menu, desk_commands, station.mix_engine,
               [&station](Deck& deck) { station.press_play(deck); }}},
      shutdown{station.platform(),  station.settings,
               station.main_window, station.deck_ring,
               station.journal,     {[&station] { return station.windows(); }, [&station] { station.end(); }}},
      small_player{station.platform(),
                   station.deck_ring,
                   station.main_window,
                   station.small_player,
                   {[&station](Deck& deck) { station.deck_loading.open_by_hand(deck); },
                    [&station](Deck& deck) { station.press_play(deck); },
                    [&station](Deck& deck) { station.zapping.press_zap(deck); },
                    [&station](Deck& deck) { station.stop_deck(deck); },
                    [&station](Deck& deck) { station.deck_transport.toggle_pause(deck); },
                    [&station](Deck& deck) { station.deck_transport.back(deck); },
                    [&station](Deck& deck) { station.deck_transport.forward(deck); }},
                   [this] { shutdown.quit_confirmed(); }},
      station_{station} {
    connect_display_menu();
    connect_desk_commands();
    connect_option_menu();
    connect_quick_load();
    connect_windows();
    connect_menu_labels();
    answer_for_missing_windows();
    small_player.connect();
    about.connect();
}

void DeskWiring::connect_display_menu() {
    Antenne_FM& window = station_.main_window;
    display_menu.active_text_combo = [this] { quick_load.active_text_combo(); };
    window.affiche.on_open = [this] { display_menu.mark_view_on_screen(); };
    window.Affiche_barre.on_click = [this] { display_menu.show_as_bar(); };
    window.Affiche_Fenetre_L.on_click = [this] { display_menu.show_list_alone(); };
    window.Affiche_Fenetre_P.on_click = [this] { display_menu.show_main_window_alone(); };
    window.affiche_tout.on_click = [this] { display_menu.affiche_tout_Click(); };
    window.affiche_toujour.on_click = [this] { display_menu.keep_on_top(); };
    window.A_centre_lecteur.on_click = [this] { display_menu.centre(); };
    window.A_centre_lecteur_haut.on_click = [this] { display_menu.centre_at_top(); };
    window.a_droite_haut.on_click = [this] { display_menu.a_droite_haut_Click(); };
    window.a_gauche_haut.on_click = [this] { display_menu.a_gauche_haut_Click(); };
    window.Aligner_liste.on_click = [this] { display_menu.align_list(); };
    window.liste_pleine_largeur.on_click = [this] { display_menu.widen_list(); };
    window.a_mini.on_click = [this] { display_menu.a_mini_Click(); };
    window.ouvrir_liste.on_click = [this] { display_menu.open_list_window(); };
    window.ouvre_L.on_click = [this] {
        display_menu.affiche_tout_Click();
        station_.main_window.mix_list.set_value(true);
        station_.chain_modes.press_list_chain_lamp();
        station_.desk_display.light_list_chain();
        station_.list_document.A_liste_Click();
    };
}

void DeskWiring::connect_desk_commands() {
    Antenne_FM& window = station_.main_window;
    window.A_lecteur_CD_Win.on_click = [this] { desk_commands.start_cd_player(); };
    window.a_vol.on_click = [this] { desk_commands.open_volume_control(); };
    window.A_Ouvrir_CD.on_click = [this] { desk_commands.open_cd_door(); };
    window.A_fermer_CD.on_click = [this] { desk_commands.close_cd_door(); };
    window.A_glisser_déplacer.on_click = [this] { desk_commands.toggle_dragging(); };
    window.Supprimer_recherche.on_click = [this] { desk_commands.forget_search_words(); };
    window.A_visuel_active.on_click = [this] { desk_commands.switch_effect_on(); };
    window.A_visuel_desactive.on_click = [this] { desk_commands.switch_effect_off(); };
    window.A_affichage1.on_click = [this] { desk_commands.show_oscilloscope(); };
    window.A_affichage2.on_click = [this] { desk_commands.show_spectrum(); };
    window.aa_montrer_curseur.on_click = [this] { desk_commands.show_sliders(); };
    window.aa_cacher_curseur.on_click = [this] { desk_commands.hide_sliders(); };
    window.aideprog.on_click = [&window] { window.ask_for_help(); };
    for (Window* asker : station_.windows())
        asker->on_help = [this, asker] { desk_commands.open_help(*asker); };
    window.show_about.on_click = [this] { about.show_about(); };
    window.show_update_info.on_click = [this] { about.show_update_info(); };
}

void DeskWiring::connect_option_menu() {
    Antenne_FM& window = station_.main_window;
    window.nom_radio.on_click = [this] { option_menu.ask_station_name(); };
    window.A_def_jingles.on_click = [this] { option_menu.define_jingle_folder(); };
    window.A_def_musique.on_click = [this] { option_menu.define_music_folder(); };
    window.a_editeur_audio.on_click = [this] { option_menu.define_audio_editor(); };
    window.Modifie_banniere.on_click = [this] { option_menu.choose_banner(); };
    window.A_Rafraichir.on_click = [this] { option_menu.A_Rafraichir_Click(); };
}

void DeskWiring::connect_quick_load() {
    Antenne_FM& window = station_.main_window;
    const auto choose_list = [this](int mode) { return [this, mode] { quick_load.Charge_combo(mode); }; };
    window.choose_favourites.on_click = choose_list(1);
    window.choose_jingles.on_click = choose_list(2);
    window.favourites.on_click = [this] { quick_load.choose_favourite(); };
    window.jingles.on_click = [this] { quick_load.choose_jingle(); };
    window.favourites.on_key_press = [this](char32_t key) { quick_load.press_favourites_key(key); };
    window.jingles.on_key_press = [this](char32_t key) { quick_load.press_jingles_key(key); };
    for (Deck& deck : station_.deck_ring.decks) {
        const auto place = static_cast<std::size_t>(deck.number() - 1);
        window.favourite_loads()[place]->on_click = [this, &deck] { quick_load.load_favourite(deck); };
        window.jingle_loads()[place]->on_click = [this, &deck] { quick_load.load_jingle(deck); };
    }
}

void DeskWiring::connect_windows() {
    Antenne_FM& window = station_.main_window;
    window.Quitter_.on_click = [this] { shutdown.Quitter__Click(); };
    window.on_unload_request = [this] { shutdown.Form_QueryUnload(); };
    window.on_click = [this] { display_menu.hide_menus(); };
    window.on_double_click = window.on_menus_called = [this] { display_menu.show_menus(); };
    window.on_right_click = [&window] { window.popup(window.affiche); };
    window.on_reduce = [this] { display_menu.a_mini_Click(); };
    window.on_move = [this] { display_menu.Aligne_liste_son(); };
    startup.arrange_windows = [this] { display_menu.open_windows(); };
    startup.show_desk_first = [this] { display_menu.show_desk_first(); };
    station_.list_window.on_activate = [this] { display_menu.uncover_main_window(); };
    station_.settings_load.apply_colours = [this] { paint_windows(); };
}

void DeskWiring::connect_menu_labels() {
    Antenne_FM& window = station_.main_window;
    const auto labels = window.menu_labels();
    for (std::size_t place = 0; place < window.menu_bar.size(); ++place)
        labels[place]->on_click = [&window, menu = window.menu_bar[place], label = labels[place]] {
            window.popup(*menu, label);
        };
    window.quit_label.on_click = [this] { shutdown.Quitter__Click(); };
    connect_hover(window, labels, station_.settings);
    const std::array about_labels{&station_.about_window.site};
    connect_hover(station_.about_window, about_labels, station_.settings);
    const std::array update_labels{&station_.update_window.site, &station_.update_window.download,
                                   &station_.update_window.mail};
    connect_hover(station_.update_window, update_labels, station_.settings);
}

// What isn't built yet says so when it is chosen; its own wiring takes the entry over.
void DeskWiring::answer_for_missing_windows() {
    const auto answer = [this] { station_.notices.inform("Cette fenètre n'est pas encore disponible"); };
    for (Window* window : station_.windows())
        for (Control* control : window->controls()) {
            if (control->kind() != ControlKind::menu_item)
                continue;
            auto& entry = static_cast<MenuItem&>(*control);
            if (!entry.on_click && !entry.on_open && entry.entries().empty())
                entry.on_click = answer;
        }
    if (!station_.main_window.hourly_styles.on_click)
        station_.main_window.hourly_styles.on_click = answer;
}

void DeskWiring::paint_windows() {
    for (Window* window : station_.windows())
        paint_station_window(*window, station_.settings);
}

} // namespace sonarelle
