#include "station/station.h"

#include <utility>

#include "platform/dialogs.h"
#include "platform/failure.h"
#include "platform/paths.h"
#include "platform/scheduler.h"
#include "playlist/file_existence.h"
#include "playout/air_view.h"

namespace sonarelle {

Station::Station(const Platform& platform)
    : platform_{platform},
      main_window{platform_.scheduler},
      deck_ring{platform_.media, main_window, chain},
      notices{platform_.dialogs, warning_window},
      desk_display{settings, main_window, list_window, small_player, draw_window, deck_ring},
      desk{platform_, settings, list, chain, main_window, list_window, notices, desk_display, deck_ring},
      settings_load{platform_, settings, main_window, list_window, options_window, small_player},
      settings_rewrite{platform_, settings, {[this] { end(); }, [this] { desk_wiring.shutdown.quit_confirmed(); }}},
      record_reading{platform_, list, list_window.rows, [this] { warn_of_null_volume(); }},
      list_document{platform_, settings, list, chain, list_window},
      list_save_dialog{platform_, settings, list, list_window, list_document},
      legacy_list{platform_,     settings,         list,
                  list_document, list_save_dialog, [this] { list_maintenance.verification.prechar(); }},
      journal{platform_, settings, chain, main_window, notices},
      deck_volume{desk, list_document},
      mix_engine{desk, deck_volume},
      deck_loading{desk, deck_volume, mix_engine},
      deck_start{desk, deck_loading, deck_volume, mix_engine, journal},
      deck_transport{desk, deck_loading, deck_start, deck_volume, mix_engine},
      run_control{desk, deck_start, journal},
      row_cursor{desk, journal, list_document, record_reading, deck_loading, row_draw},
      auto_chain{desk, row_cursor, deck_start, mix_engine, journal, run_control},
      zapping{desk, auto_chain, deck_start, mix_engine, journal, list_document},
      chain_modes{desk, mix_engine, journal, draw_control},
      list_run{desk, auto_chain, deck_transport, run_control, list_save_dialog, list_document},
      list_rescue{desk, auto_chain, list_run, journal},
      air_watch{desk, journal, list_rescue},
      row_to_deck{platform_,
                  list,
                  chain,
                  list_window,
                  record_reading,
                  {[this](int deck) { return deck_loading.may_be_cut(deck_ring.deck(deck)); },
                   [this](int deck, const DestinationRecord& row) { load_row_on_deck(deck, row); }}},
      row_listening{desk, row_cursor, deck_loading, mix_engine, list_run},
      list_maintenance{desk, progress_window, record_reading, list_document, list_save_dialog, journal},
      drawn_rows{desk, journal, list_document, list_maintenance.list, draw_control, draw_tables},
      track_properties{platform_, settings, list, properties_window, list_maintenance.list, record_reading} {
    run_control.end_walks = [this] { auto_chain.cancel_walks(); };
    connect_list_window();
    connect_reading_modes();
    connect_timers();
    connect_chain_choices();
    connect_menus();
    connect_play_menu();
    connect_keys();
    for (Deck& deck : deck_ring.decks)
        connect_deck(deck);
}

// A search that nobody has kept anything of has no file, and none is made for it.
void Station::start(const std::string& command_line) {
    list_window.search.set_text("Recherche ");
    bool kept = false;
    ErrorIndicator{}.skip(
        [&] { kept = is_listed(platform_.disk, join_path(platform_.program_folder, search_words_file)); });
    if (kept)
        list_wiring.search_words.charge_recherche();
    desk_wiring.startup.enter_program(command_line);
    splash.activate();
}

void Station::end() {
    if (!std::exchange(ended_, true) && on_end)
        on_end();
}

std::vector<Window*> Station::windows() {
    return {&splash,          &main_window,       &list_window,  &options_window, &small_player, &warning_window,
            &progress_window, &properties_window, &about_window, &update_window,  &draw_window};
}

void Station::connect_list_window() {
    list_document.tell = [this](const std::string& text) { notices.warn(text); };
    list_window.A_liste.on_click = [this] { list_document.A_liste_Click(); };
    list_window.A_Charge.on_click = [this] { list_document.A_liste_Click(); };
    list_window.A_liste_anciene.on_click = [this] { list_document.A_liste_anciene(); };
    list_window.A_enreg_sous.on_click = [this] { list_save_dialog.A_enreg_sous(); };
    list_window.save_as.on_click = [this] { list_save_dialog.A_enreg_sous(); };
    list_window.A_sauve.on_click = [this] { list_document.A_sauve(); };
    list_window.a_Ne_pas_Sauve.on_click = [this] { list_document.a_Ne_pas_Sauve(); };
    list_window.A_Copen_rfm.on_click = [this] { legacy_list.A_Copen_rfm(); };
    list_window.A_Convertir_dfm.on_click = [this] { list_save_dialog.A_Convertir_dfm(); };
    list_window.char1.on_click = [this] { row_to_deck.Charg1_son(); };
    list_window.char2.on_click = [this] { row_to_deck.charg2_son(); };
    list_window.char3.on_click = [this] { row_to_deck.Charg3_son(); };
    list_window.play_list.on_click = [this] { list_run.play_list(); };
    list_window.zap.on_click = [this] { zapping.zapping(); };
    list_window.stop_decks.on_click = [this] { list_run.stop_decks(); };
    list_window.show_playing_row.on_click = [this] { list_run.show_playing_row(); };
    list_window.show_playing_row.on_mouse_move = [this] {
        list_window.show_playing_row.hint = "Position en cours N° " + text_of(list.ligne_en_lecture);
    };
}

// Picture and option of a reading mode are one choice.
void Station::connect_reading_modes() {
    list_window.player_mode.on_click = [this] { chain_modes.choose_player_mode(); };
    list_window.random_mode.on_click = [this] { chain_modes.choose_random_mode(); };
    list_window.defined_end_mode.on_click = [this] { chain_modes.choose_defined_end_mode(); };
    list_window.full_length_mode.on_click = [this] { chain_modes.choose_full_length_mode(); };
    list_window.player_lamp.on_click = [this] { list_window.player_mode.set_value(true); };
    list_window.random_lamp.on_click = [this] { list_window.random_mode.set_value(true); };
    list_window.defined_end_lamp.on_click = [this] { list_window.defined_end_mode.set_value(true); };
    list_window.full_length_lamp.on_click = [this] { list_window.full_length_mode.set_value(true); };
    list_window.A_revenir_couleur.on_click = [this] { settings_rewrite.A_revenir_couleur_Click(); };
    list_window.lect_liste.on_click = [this] { run_control.lect_liste(); };
    list_window.A_a_zapping.on_click = [this] { chain_modes.toggle_list_chain(); };
    list_window.A_ecoute.on_click = [this] { row_listening.A_ecoute(); };
    list_window.A_precoute.on_click = [this] { prelisten.A_precoute(); };
    list_run.draw_first_row = [this] { drawn_rows.random_list.draw_first_row(); };
}

void Station::connect_timers() {
    main_window.load_ahead_timer.on_tick = [this] { auto_chain.load_ahead.tick(); };
    main_window.deck_chain_timer.on_tick = [this] { auto_chain.deck_chain.tick(); };
    main_window.overlap_timer.on_tick = [this] { auto_chain.overlap.tick(); };
    main_window.list_chain_timer.on_tick = [this] { auto_chain.follow_list(); };
}

void Station::connect_chain_choices() {
    deck_start.choose_chain_over_decks = [this] {
        main_window.mix_titles.show_value(true); // whose click is raised, also where it is chosen already
        main_window.mix_titles.set_value(true);
    };
    main_window.mix_titles.on_click = [this] { chain_modes.choose_mix_titles(); };
    main_window.mix_list.on_click = [this] { chain_modes.choose_mix_list(); };
    main_window.load_ahead.on_click = [this] { mix_engine.choose_load_ahead(); };
    main_window.a_mode_manuel.on_click = [this] { chain_modes.choose_manual_mode(); };
    main_window.a_mode_auto.on_click = [this] { chain_modes.choose_deck_chain(); };
    main_window.a_mode_predefini.on_click = [this] { chain_modes.choose_list_chain(); };
    main_window.A_ordre_aléatoire.on_click = [this] { chain_modes.choose_order(true); };
    main_window.A_ordre_continue.on_click = [this] { chain_modes.choose_order(false); };
    main_window.Afficher_C_aleatoire.on_click = [this] { draw_control.show(); };
    main_window.deck_chain_lamp.on_click = [this] { chain_modes.press_deck_chain_lamp(); };
    main_window.list_chain_lamp.on_click = [this] { chain_modes.press_list_chain_lamp(); };
    main_window.overlap_less.on_click = [this] { mix_engine.shorten_overlap(); };
    main_window.overlap_more.on_click = [this] { mix_engine.lengthen_overlap(); };
    main_window.overlap_steps.on_change = [this] { mix_engine.take_overlap_steps(); };
    main_window.Active_audio_jingles.on_click = [this] { mix_engine.choose_special_mix_rule(); };
    main_window.Active_audio.on_click = [this] { mix_engine.choose_list_fade(); };
    main_window.Active_audio_zapping.on_click = [this] { mix_engine.choose_zap_fade(); };
    main_window.Désactive_audio.on_click = [this] { mix_engine.choose_no_fade(); };
}

void Station::connect_menus() {
    main_window.A_purger_registre.on_click = [this] { settings_rewrite.A_purger_registre_Click(); };
    main_window.Active_journal1.on_click = [this] { journal.keep_for_this_run(); };
    main_window.Active_journal.on_click = [this] { journal.keep_on(); };
    main_window.A_desacive_J.on_click = [this] { journal.switch_off(); };
    main_window.A_purger_journal.on_click = [this] { journal.purge(); };
    main_window.A_ouvre_journal.on_click = [this] { journal.open(); };
}

// Two entries of the main deck are greyed whenever the menu opens; without a main deck they stay as they are.
void Station::connect_play_menu() {
    for (Deck& deck : deck_ring.decks) {
        const auto place = static_cast<std::size_t>(deck.number() - 1);
        main_window.play_entries()[place]->on_click = [this, &deck] { press_play(deck); };
        main_window.special_mix_entries()[place]->on_click = [this, &deck] { mix_engine.special_mix(deck); };
        main_window.unload_entries()[place]->on_click = [this, &deck] { deck_transport.unload(deck); };
    }
    main_window.lire_play.on_open = [this] {
        if (deck_ring.has_main_deck())
            desk.display.offer_entries_beside(deck_ring.main_deck());
    };
}

void Station::press_play(Deck& deck) {
    ErrorIndicator{}.skip([&] { deck_start.press_play(deck); });
}

// The letters of the main window, each with its action. Letters have their two cases where the table has them.
void Station::connect_keys() {
    struct Key {
        std::u32string_view characters;
        std::function<void()> act;
    };
    const auto step_back = [this](int deck) { return [this, deck] { deck_transport.back(deck_ring.deck(deck)); }; };
    std::vector<Key> keys{
        {U"\x1bqQ", [this] { desk_wiring.shutdown.Quitter__Click(); }},
        {U"&1", step_back(1)},
        {U"é2", step_back(2)},
        {U"\"3", step_back(3)},
        {U"aA", [this] { main_window.popup(main_window.affiche); }},
        {U"bB", [this] { step_volume(1); }},
        {U"hH", [this] { step_volume(-1); }},
        {U"fF", [this] { main_window.A_gere.click(); }},
        {U"Im", [this] { desk_wiring.display_menu.a_mini_Click(); }},
        {U"lL", [this] { press_list_key(); }},
        {U"oO", [this] { main_window.popup(main_window.Option_); }},
        {U"pP", [this] { pause_or_go_on(); }},
        {U"zZ", [this] { zapping.zapping(); }},
        {U"²", [this] { desk_wiring.display_menu.change_corner(); }},
    };
    main_window.on_key_press = [keys = std::move(keys)](char32_t character) {
        for (const Key& key : keys)
            if (key.characters.find(character) != std::u32string_view::npos)
                return key.act();
    };
}

void Station::pause_or_go_on() {
    run_control.Mettre_en_pause([this](Deck& deck) { deck_transport.toggle_pause(deck); });
}

void Station::step_volume(int steps) {
    if (deck_ring.has_main_deck())
        deck_volume.step(deck_ring.main_deck(), steps);
}

void Station::press_list_key() {
    const bool manual = desk.is_manual();
    chain_modes.press_list_key();
    if (!manual)
        desk_wiring.display_menu.affiche_tout_Click();
}

void Station::connect_deck(Deck& deck) {
    DeckControls& controls = deck.controls;
    controls.open.on_click = [this, &deck] { deck_loading.open_by_hand(deck); };
    controls.open.on_files_dropped = [this, &deck](const auto& paths) { deck_loading.open_dropped(deck, paths); };
    controls.zap.on_click = [this, &deck] { zapping.press_zap(deck); };
    controls.play.on_click = [this, &deck] { press_play(deck); };
    controls.stop.on_click = [this, &deck] { stop_deck(deck); };
    controls.pause.on_click = [this, &deck] { deck_transport.toggle_pause(deck); };
    controls.forward.on_click = [this, &deck] { deck_transport.forward(deck); };
    controls.back.on_click = [this, &deck] { deck_transport.back(deck); };
    controls.progress.on_click_at = [this, &deck](int x) {
        deck_transport.go_to(deck, static_cast<double>(x) / DeckControls::bar_units);
    };
    controls.progress.refusal = [this, &deck] { return deck_transport.why_it_stays(deck); };
    controls.special_mix.on_click = [this, &deck] { mix_engine.special_mix(deck); };
    controls.keep_volume.on_click = [this, &deck] { deck_volume.keep_in_record(deck); };
    controls.slider.on_change = [this, &deck] { deck_volume.adjust(deck); };
    controls.louder.on_click = [this, &deck] { deck_volume.step(deck, -1); };
    controls.quieter.on_click = [this, &deck] { deck_volume.step(deck, 1); };
    controls.scroll_timer.on_tick = [&deck] { DeskDisplay::turn_title(deck); };
    // A hand that falls on the largest key doesn't silence the station.
    controls.open.refuses_space =
        controls.stop.refuses_space = [this, &deck] { return role_of(desk, deck) == DeckRole::on_air; };
}

// A list that looks for its next track gives up when the operator stops the one that plays.
void Station::stop_deck(Deck& deck) {
    if (deck_ring.is_main(deck))
        auto_chain.cancel_walks();
    deck_transport.stop(deck);
}

void Station::load_row_on_deck(int deck, const DestinationRecord& row) {
    deck_loading.load_from_list(deck_ring.deck(deck), row);
    mix_engine.select_bouton();
    desk.show_list_start();
}

// The volume 0 of an old list is no silence but a value that it never had.
void Station::warn_of_null_volume() {
    if (deck_ring.has_main_deck())
        for (DeckControls& deck : main_window.decks)
            deck.slider.set_value(0);
    const std::string lines =
        "le niveau son est nul\rvous devez si vous utilisez des listes\r\n\r\n"
        "créés avec une version anterieure de Sonarelle\rMettez a jour vos listes (voir menu clic droit)\r"
        "- Mettre a jour les infos de la liste -";
    if (platform_.scheduler.in_tick())
        return notices.warn(lines);
    notices.write_warning(lines);
    platform_.dialogs.show_modal(warning_window);
}

} // namespace sonarelle
