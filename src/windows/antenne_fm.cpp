#include "windows/antenne_fm.h"

namespace sonarelle {

Antenne_FM::Antenne_FM(Scheduler& scheduler)
    : decks{DeckControls{*this, scheduler, deck_names[0]}, DeckControls{*this, scheduler, deck_names[1]},
            DeckControls{*this, scheduler, deck_names[2]}},
      load_ahead_timer{"Timer1", 1, scheduler},
      deck_chain_timer{"Timer2", 2, scheduler},
      overlap_timer{"Timer3", 3, scheduler},
      list_chain_timer{"Timer4", 4, scheduler},
      jingle_timer{"Timer8", 8, scheduler},
      item_timer{"Timer9", 9, scheduler} {
    width = Twips{14400};
    height = height_with_menus;
    sound_display.visible = false;
    hourly_styles.hint = "Top horaire";
    for (Label* label : menu_labels())
        label->visible = false;
    for (ComboBox* box : {&favourites, &jingles}) {
        box->hint = "Appuyer sur barre d'espacement puis sélection du lecteur";
        box->takes_typing = false;
    }
    banner.width = Twips{475 * 15};
    banner.height = Twips{40 * 15};
    for (Timer* timer : {&load_ahead_timer, &jingle_timer, &item_timer})
        timer->set_interval(1000);
    load_ahead_timer.enable();
}

void Antenne_FM::show_sliders(bool shown) {
    aa_montrer_curseur.checked = shown;
    aa_cacher_curseur.checked = !shown;
    for (DeckControls& deck : decks)
        deck.slider.visible = shown;
    for (Label& stand_in : slider_stand_ins)
        stand_in.visible = !shown;
}

} // namespace sonarelle
