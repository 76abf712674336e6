#include "windows/deck_controls.h"

#include <string>

namespace sonarelle {

DeckControls::DeckControls(Window& window, Scheduler& scheduler, const DeckNames& names)
    : title{window, std::string{names.title}, "(Aucun fichier en cours)"},
      counter{window, std::string{names.counter}, "0"},
      progress{window, std::string{names.progress}},
      open{window, std::string{names.open}},
      zap{window, std::string{names.zap}},
      play{window, std::string{names.play}},
      stop{window, std::string{names.stop}},
      pause{window, std::string{names.pause}, std::string{pause_caption}},
      forward{window, std::string{names.forward}},
      back{window, std::string{names.back}},
      special_mix{window, std::string{names.special_mix}},
      keep_volume{window, std::string{names.keep_volume}},
      playing_mark{window, std::string{names.playing_mark}},
      slider{window, std::string{names.slider}, 0, 20},
      percent{window, std::string{names.percent}, "100%"},
      louder{window, std::string{names.louder}, "+"},
      quieter{window, std::string{names.quieter}, "-"},
      scroll_timer{std::string{names.scroll_timer}, names.scroll_timer_number, scheduler} {
    zap.hint = std::string{names.zap_hint};
    stop.hint = std::string{names.stop_hint};
    pause.hint = "Pause / Lecture";
    forward.hint = "Avancer";
    back.hint = "Reculer";
    progress.units_wide = bar_units;
    playing_mark.visible = false;
    slider.hint = "Volume %100";
    special_mix.hint = "Mixage spécial sur lecteur en cours (" + std::string{names.mix_key} + ") avec : ";
    keep_volume.hint = "Garder le volume dans la liste";
    scroll_timer.set_interval(500);
}

} // namespace sonarelle
