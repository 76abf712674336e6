#include "windows/antenne_fm.h"

namespace sonarelle {

Antenne_FM::Antenne_FM(Scheduler& scheduler)
    : decks{DeckControls{*this, scheduler, deck_names[0]}, DeckControls{*this, scheduler, deck_names[1]},
            DeckControls{*this, scheduler, deck_names[2]}},
      Timer1{"Timer1", 1, scheduler}, Timer2{"Timer2", 2, scheduler}, Timer3{"Timer3", 3, scheduler},
      Timer4{"Timer4", 4, scheduler}, Timer8{"Timer8", 8, scheduler}, Timer9{"Timer9", 9, scheduler} {
    width = Twips{14400};
    height = height_with_menus;
    Text2.visible = false;
    sound_display.visible = false;
    Image17.hint = "Top horaire";
    for (Label* label : menu_labels())
        label->visible = false;
    for (ComboBox* box : {&Combo1, &Combo2}) {
        box->hint = "Appuyer sur barre d'espacement puis sélection du lecteur";
        box->takes_typing = false;
    }
    banner.width = Twips{475 * 15};
    banner.height = Twips{40 * 15};
    for (Timer* timer : {&Timer1, &Timer8, &Timer9})
        timer->set_interval(1000);
    Timer1.enable();
}

void Antenne_FM::show_sliders(bool shown) {
    aa_montrer_curseur.checked = shown;
    aa_cacher_curseur.checked = !shown;
    for (DeckControls& deck : decks)
        deck.slider.visible = shown;
    for (Label* stand_in : slider_stand_ins())
        stand_in->visible = !shown;
}

} // namespace sonarelle
