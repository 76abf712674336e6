#include "playout/antenne_fm.h"

namespace sonarelle {

Antenne_FM::Antenne_FM(Scheduler& scheduler)
    : Window{"Antenne_FM"}, decks{DeckControls{*this, scheduler, deck_names[0]},
                                  DeckControls{*this, scheduler, deck_names[1]},
                                  DeckControls{*this, scheduler, deck_names[2]}},
      Timer1{"Timer1", 1, scheduler}, Timer2{"Timer2", 2, scheduler}, Timer3{"Timer3", 3, scheduler},
      Timer4{"Timer4", 4, scheduler}, Timer8{"Timer8", 8, scheduler}, Timer9{"Timer9", 9, scheduler} {
    Text2.visible = false;
    A_desacive_J.checked = true;
    for (Timer* timer : {&Timer1, &Timer8, &Timer9})
        timer->set_interval(1000);
    Timer1.enable();
}

} // namespace sonarelle
