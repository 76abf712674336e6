#include "accessories/propriete.h"

namespace sonarelle {

Propriete::Propriete(Scheduler& scheduler)
    : Window{"Propriete"}, Timer1{"Propriete.Timer1", 1, scheduler}, Timer2{"Propriete.Timer2", 2, scheduler},
      Timer3{"Propriete.Timer3", 3, scheduler} {
    caption = "Propriété du fichier sélectionné";
    mark_start.hint = "Sélection Début / pause";
    mark_end.hint = "Sélection Fin / pause";
    for (Label* back : {&start_back, &end_back})
        back->hint = "Reculer";
    for (Label* forward : {&start_forward, &end_forward})
        forward->hint = "Avancer";
    for (Label* later : {&stop, &mark_end})
        later->visible = false;
    ProgressBar1.units_wide = bar_units;
    ProgressBar1.maximum = 0;
    for (Timer* timer : timers())
        timer->set_interval(position_interval);
}

} // namespace sonarelle
