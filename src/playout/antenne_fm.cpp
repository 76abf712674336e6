#include "playout/antenne_fm.h"

namespace sonarelle {

Antenne_FM::Antenne_FM(Scheduler& scheduler)
    : Window{"Antenne_FM"}, decks{DeckControls{*this, scheduler, deck_names[0]},
                                  DeckControls{*this, scheduler, deck_names[1]},
                                  DeckControls{*this, scheduler, deck_names[2]}},
      Timer8{"Timer8", 8, scheduler}, Timer9{"Timer9", 9, scheduler} {
    Timer8.set_interval(1000);
    Timer9.set_interval(1000);
}

} // namespace sonarelle
