#include "station/list_wiring.h"

#include <cstdint>

#include "configuration/painting.h"
#include "platform/dialogs.h"
#include "platform/failure.h"
#include "platform/shell.h"
#include "station/station.h"

namespace sonarelle {

namespace {

constexpr Colour label_under_pointer = 8454016;

/// A row of the list that plays; 0 for none.
int row_on_air(const Desk& desk) {
    return desk.list_runs() ? desk.list.ligne_en_lecture.value() : 0;
}

} // namespace

ListWiring::ListWiring(Station& station)
    : editing{station.platform(),
              station.list,
              station.list_maintenance.list,
              station.list_document,
              {[&station] { return station.desk.list_runs(); },
               [&station] { station.list_window.player_mode.set_value(true); }}},
      clearing{station.platform(),  station.settings,      station.list,
               station.list_window, station.list_document, [&station] { return row_on_air(station.desk); }},
      drag{station.list, station.list_maintenance.list, station.list_document},
      arrival{station.platform(),    station.list,
              station.chain,         station.list_maintenance.list,
              station.list_document, station.list_maintenance.update},
      sorting{station.platform(), station.list_maintenance.list, station.list_document},
      search_words{station.platform(), station.list, station.list_window},
      search{station.platform(), station.list_window},
      themes{station.platform(),
             station.settings,
             {{&station.list_window, &station.main_window, &station.about_window, &station.warning_window},
              station.list_window,
              station.list_window.rows}},
      station_{station} {
    connect_rows();
    connect_editing();
    connect_search();
    connect_look();
    connect_labels();
    station.list_window.on_key_press = [this](char32_t character) { press_key(character); };
    station.list_window.keys_once = "\rsSvVzZ ";
    station.list_window.on_unload_request = [&station] { station.desk_wiring.display_menu.close_list(); };
}

void ListWiring::connect_rows() {
    RowTable& rows = station_.list_window.rows;
    rows.on_press = [this] { drag.press(); };
    rows.on_click = [this] { choose_row(); };
    rows.on_double_click = [this] { station_.list_run.load_selected_row(); };
    rows.on_heading_click = [this] { sorting.press_heading(); };
    rows.on_drag = [this](int row) { return drag.take(row); };
    rows.on_drop = [this](int target) { drag.drop(target); };
    rows.on_drag_end = [this] { drag.end(); };
    rows.on_files_dropped = [this](const auto& paths) { arrival.drop_files(paths); };
}

// The pressed row is where the list goes on, but not before a row that was drawn already.
void ListWiring::choose_row() {
    const int row = station_.list_window.rows.selected();
    station_.list.glisser_en_cours = false;
    station_.list_maintenance.path_editing.follow();
    if (row <= INT16_MAX) {
        station_.list.index_insertion = row;
        if (!station_.chain.choix_prepare.is_true() && station_.list.index_en_cours != row) {
            station_.list.index_en_cours = row;
            station_.chain.chargement_fait = false;
        }
    }
    station_.list_window.list_status.caption =
        "Nb de morceaux : " + std::to_string(row) + " / " + std::to_string(station_.list_window.rows.count());
}

void ListWiring::connect_editing() {
    Liste_son& window = station_.list_window;
    window.copier_.on_click = [this] { editing.copier_(); };
    window.Couper_.on_click = [this] { editing.Couper_(); };
    window.coller.on_click = [this] { editing.coller_(); };
    window.supprime.on_click = [this] { editing.supprime(); };
    window.Effacer_liste.on_click = [this] { clearing.Effacer_liste(); };
    window.Supprimer_fichier.on_click = [this] { clearing.Supprimer_fichier(); };
    window.inser_avant.on_click = [this] { arrival.inser_avant(); };
    window.inser_apres.on_click = [this] { arrival.inser_apres(); };
    window.inser_fin.on_click = [this] { arrival.inser_fin(); };
    window.ajout_fich_reseau.on_click = [this] { open_explorer(); };
    window.of_adding.on_open = [this] {
        station_.list_window.A_conserver.enabled = !station_.list.chemin_fichier.empty();
    };
    window.Load_Pl.on_open = [this] {
        station_.row_to_deck.Load_Pl();
        clearing.offer_paste();
    };
}

void ListWiring::open_explorer() {
    const bool opened =
        ErrorIndicator{}.skip([this] { station_.platform().shell.open_document(station_.settings.chemin_musique); });
    if (!opened)
        show_box(station_.platform().dialogs, "L'explorateur de fichiers : Introuvable ...", Icon::none);
}

void ListWiring::connect_search() {
    Liste_son& window = station_.list_window;
    window.search.on_enter = [&window] { window.key_preview = false; };
    window.search.on_leave = [this, &window] {
        window.key_preview = true;
        search.leave();
    };
    window.search.on_change = [this] { search.text_changed(); };
    window.search.on_click = [this] { search.entry_chosen(); };
    window.search_label.on_click = [this] { search_words.press_save(); };
    window.A_conserver.on_click = [this] { search_words.enregistre_recherche(); };
    window.find_next.on_click = [this] { search.find_next(); };
    window.find_previous.on_click = [this] { search.find_previous(); };
}

void ListWiring::connect_look() {
    Liste_son& window = station_.list_window;
    const auto choose = [this](const ColourTheme& theme) {
        return [this, &theme] { themes.choose(theme, station_.list_window.logo_liste.enabled); };
    };
    window.T_Printemps.on_click = choose(colour_theme::spring);
    window.T_Eté.on_click = choose(colour_theme::summer);
    window.T_Autonne.on_click = choose(colour_theme::autumn);
    window.T_Hiver.on_click = choose(colour_theme::winter);
    window.T_Nuit.on_click = choose(colour_theme::night);
    window.a_coul_label.on_click = [this] { themes.a_coul_label(); };
    window.A_coul_texte_liste.on_click = [this] { themes.A_coul_texte_liste(); };
    window.A_coul_fenètre.on_click = [this] { themes.A_coul_fenètre(); };
    window.dock_list.on_click = [this] { station_.desk_wiring.display_menu.dock_list(); };
    window.free_list.on_click = [this] { station_.desk_wiring.display_menu.free_list(); };
}

void ListWiring::connect_labels() {
    Liste_son& window = station_.list_window;
    const auto open = [&window](MenuItem& menu, Label& under) {
        under.on_click = [&window, &menu, &under] { window.popup(menu, &under); };
    };
    open(window.of_file, window.list_label);
    open(window.of_deletion, window.delete_label);
    open(window.of_adding, window.add_label);
    window.look.on_click = [&window] { window.popup(window.of_look, &window.look); };
    window.help.on_click = [&window] { window.ask_for_help(); };
    window.show_main_window.on_click = [this] {
        station_.main_window.picture = station_.settings.logo_fond;
        station_.main_window.state = WindowState::normal;
        station_.main_window.show();
    };
    window.close_label.on_click = [this] { station_.desk_wiring.display_menu.close_list(); };
    window.display_label.on_click = [this] { station_.main_window.popup(station_.main_window.affiche); };
    window.zap_status.on_click = [this] { station_.main_window.pre_char.click(); };
    window.list_status.on_click = [this] { station_.desk_wiring.display_menu.show_list_alone(); };
    connect_hover(window, window.label_buttons(), station_.settings, label_under_pointer);
}

// What the rows take, while they have the keyboard, is for them alone.
void ListWiring::press_key(char32_t character) {
    if (drag.is_under_way())
        return;
    if (station_.list_window.rows.has_keyboard && press_key_of_rows(character))
        return tell_count();
    struct Key {
        std::u32string_view characters;
        std::function<void(Station&, Liste_son&)> act;
    };
    static const std::array keys{
        Key{U"\r", [](Station& station, Liste_son&) { station.list_run.start_by_key(); }},
        Key{U"zZ", [](Station&, Liste_son& list) { list.zap.click(); }},
        Key{U"sS", [](Station&, Liste_son& list) { list.stop_decks.click(); }},
        Key{U"pP", [](Station& station, Liste_son&) { station.pause_or_go_on(); }},
        Key{U"lL", [](Station&, Liste_son& list) { list.list_label.click(); }},
        Key{U"uU", [](Station&, Liste_son& list) { list.delete_label.click(); }},
        Key{U"aA", [](Station&, Liste_son& list) { list.add_label.click(); }},
        Key{U"eE", [](Station&, Liste_son& list) { list.save_as.click(); }},
        Key{U"\x1bqQ", [](Station&, Liste_son& list) { list.close_label.click(); }},
        Key{U"cC", [](Station&, Liste_son& list) { list.A_liste.click(); }},
        Key{U"vV", [](Station&, Liste_son& list) { list.Effacer_liste.click(); }},
        Key{U"mM", [](Station& station, Liste_son&) { station.desk_wiring.display_menu.a_mini_Click(); }},
        Key{U"fF", [](Station& station, Liste_son&) { station.main_window.A_gere.click(); }},
        Key{U"oO", [](Station& station, Liste_son&) { station.main_window.pre_char.click(); }},
        Key{U"bB", [](Station& station, Liste_son&) { station.step_volume(1); }},
        Key{U"hH", [](Station& station, Liste_son&) { station.step_volume(-1); }},
        Key{U"<", [](Station& station, Liste_son&) { station.desk_wiring.display_menu.toggle_list_place(); }},
    };
    for (const Key& key : keys)
        if (key.characters.find(character) != std::u32string_view::npos)
            return key.act(station_, station_.list_window);
}

bool ListWiring::press_key_of_rows(char32_t character) {
    Liste_son& list = station_.list_window;
    switch (character) {
    case U'i':
    case U'I':
        list.a_mettre_a_jour_liste.click();
        return true;
    case U' ':
        if (list.rows.is_row_on_view(list.rows.selected()))
            list.supprime.click();
        return true;
    case U'j':
    case U'J':
        list.A_ecoute.click();
        return true;
    case U'O':
    case U'm':
        station_.desk_wiring.display_menu.a_mini_Click();
        return true;
    case U'\r':
        station_.list_run.start_by_key();
        return true;
    default:
        return false;
    }
}

void ListWiring::tell_count() {
    const RowTable& rows = station_.list_window.rows;
    station_.list_window.list_status.caption =
        "Nb de morceaux : " + std::to_string(rows.count()) + " (" + std::to_string(rows.selected()) + ")";
}

} // namespace sonarelle
