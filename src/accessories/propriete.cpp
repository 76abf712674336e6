#include "accessories/propriete.h"

namespace sonarelle {

Propriete::Propriete(Scheduler& scheduler)
    : Window{"Propriete"},
      progress_timer{"Propriete.Timer1", 1, scheduler},
      start_timer{"Propriete.Timer2", 2, scheduler},
      end_timer{"Propriete.Timer3", 3, scheduler} {
    caption = "Propriété du fichier sélectionné";
    mark_start.hint = "Sélection Début / pause";
    mark_end.hint = "Sélection Fin / pause";
    for (Label* back : {&start_back, &end_back})
        back->hint = "Reculer";
    for (Label* forward : {&start_forward, &end_forward})
        forward->hint = "Avancer";
    for (Label* later : {&stop, &mark_end, &modified})
        later->visible = false;
    bar.units_wide = bar_units;
    bar.maximum = 0;
    for (Timer* timer : timers())
        timer->set_interval(position_interval);
}

} // namespace sonarelle
