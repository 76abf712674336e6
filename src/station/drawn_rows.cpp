#include "station/drawn_rows.h"

#include <functional>
#include <initializer_list>

namespace sonarelle {

namespace {

void hint_on_hover(std::initializer_list<Control*> parts, const std::function<std::string()>& hint) {
    for (Control* part : parts)
        part->on_mouse_move = [part, hint] { part->hint = hint(); };
}

} // namespace

DrawnRows::DrawnRows(Desk& desk, Journal& journal, ListDocument& document, ListAtWork& list, DrawControl& control,
                     DrawTables& tables)
    : draws{desk, journal, control},
      jingles{jingle_rule, desk, document, draws, control, {tables.deja_lu, DrawControl::Lists::of_jingles}},
      items{item_rule, desk, document, draws, control, {tables.deja_lu1, DrawControl::Lists::of_list}},
      random_list{desk, document, list, draws, control, tables.deja_tires} {
    connect(desk, control);
}

void DrawnRows::connect(Desk& desk, DrawControl& control) {
    Liste_son& window = desk.list_window;
    connect_switch(desk, jingles, window.jingles_status, window.jingles_switch);
    connect_switch(desk, items, window.items_status, window.items_switch);
    jingles.on_switched = [&desk](bool on) { desk.chain.jingles_aleatoires = on; };
    items.on_switched = [&desk, &control](bool on) {
        desk.display.order_is(desk.chain.ordre_aleatoire.is_true());
        if (!on && desk.chain.ordre_aleatoire.is_true())
            control.head(DrawControl::Lists::of_list, "Lecture aléatoire");
    };
    random_list.switch_items_on = [this] { items.set_on(true); };
    window.creer_aleatoire.on_click = [this] { random_list.load_on_liste(); };
    window.A_ecoute_option.on_click = [&desk] { desk.window.pre_char.click(); };
    hint_on_hover({&window.jingles_switch, &window.jingles_status},
                  [&desk] { return "Insertion après " + text_of(desk.settings.nb_fichier_aleatoire) + " fichiers"; });
    hint_on_hover({&window.items_switch, &window.items_status}, [&desk]() -> std::string {
        return desk.settings.valide_fichier_aleatoire1.is_true() ? "Lecture dans fichier aleatoire"
                                                                 : "Liste aléatoire par défaut :Off";
    });
}

// Label and lamp are one switch.
void DrawnRows::connect_switch(Desk& desk, Insertion& insertion, Label& label, Image& lamp) {
    label.on_click = lamp.on_click = [&insertion] { insertion.press_switch(); };
    insertion.ask_for_spacing = [&desk] { desk.window.pre_char.click(); };
}

} // namespace sonarelle
