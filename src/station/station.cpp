#include "station/station.h"

#include "platform/dialogs.h"
#include "platform/scheduler.h"

namespace sonarelle {

Station::Station(const Platform& platform)
    : platform_{platform}, main_window{platform_.scheduler}, settings_load{platform_,   settings, main_window,
                                                                           list_window, list,     options_window,
                                                                           small_player},
      settings_rewrite{platform_, settings, [this] { ended_ = true; }},
      record_reading{platform_, list, destination, dragged, [this] { warn_of_null_volume(); }},
      deck_record{platform_, chain, list, destination}, list_document{platform_, settings, list, list_window},
      list_save_dialog{platform_, settings, list, list_window, list_document},
      legacy_list{platform_, settings, list, list_window, list_document, list_save_dialog},
      row_to_deck{platform_, list, destination, chain, list_window, record_reading, [](int) {}} {
    connect_events();
}

void Station::connect_events() {
    list_window.A_liste.on_click = [this] { list_document.A_liste_Click(); };
    list_window.A_Charge.on_click = [this] { list_document.A_liste_Click(); };
    list_window.A_liste_anciene.on_click = [this] { list_document.A_liste_anciene(); };
    list_window.A_enreg_sous.on_click = [this] { list_save_dialog.A_enreg_sous(); };
    list_window.Label8.on_click = [this] { list_save_dialog.A_enreg_sous(); };
    list_window.A_sauve.on_click = [this] { list_document.A_sauve(); };
    list_window.a_Ne_pas_Sauve.on_click = [this] { list_document.a_Ne_pas_Sauve(); };
    list_window.A_Copen_rfm.on_click = [this] { legacy_list.A_Copen_rfm(); };
    list_window.A_Convertir_dfm.on_click = [this] { list_save_dialog.A_Convertir_dfm(); };
    list_window.Load_Pl.on_open = [this] { row_to_deck.Load_Pl(); };
    list_window.char1.on_click = [this] { row_to_deck.Charg1_son(); };
    list_window.char2.on_click = [this] { row_to_deck.charg2_son(); };
    list_window.char3.on_click = [this] { row_to_deck.Charg3_son(); };
}

// The volume 0 of an old list is no silence but a value that it never had.
void Station::warn_of_null_volume() {
    if (chain.lecteur_en_cours >= 1 && chain.lecteur_en_cours <= 3)
        for (DeckControls& deck : main_window.decks)
            deck.slider.set_value(0);
    warning_window.Label1.caption =
        "le niveau son est nul\rvous devez si vous utilisez des listes\r\n\r\n"
        "créés avec une version anterieure de Sonarelle\rMettez a jour vos listes (voir menu clic droit)\r"
        "- Mettre a jour les infos de la liste -";
    if (platform_.scheduler.in_tick())
        warning_window.show();
    else
        platform_.dialogs.show_modal(warning_window);
}

} // namespace sonarelle
