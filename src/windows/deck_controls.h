#pragma once

#include <array>
#include <string_view>

#include "platform/controls.h"
#include "platform/timer.h"

namespace sonarelle {

/// What the parts of a deck are called on the main window.
struct DeckNames {
    std::string_view title, counter, progress, open, zap, play, stop, pause, forward, back, special_mix, keep_volume,
        playing_mark, slider, percent, louder, quieter, scroll_timer, zap_hint, stop_hint, mix_key;
    int scroll_timer_number;
};

inline constexpr std::array deck_names{
    DeckNames{"Label2",
              "Label6",
              "picProgBack",
              "Command1",
              "bouton_zap1",
              "Command3",
              "bouton_stop1",
              "bouton_pause1",
              "bouton_avance1",
              "bouton_recul1",
              "bouton_mix1",
              "bouton_volume1",
              "Shape1",
              "Slider",
              "Label21",
              "bouton_plus1",
              "bouton_moins1",
              "Timer5",
              "Zapper sur Play2",
              "Stopper lecteur 1",
              "F8",
              5},
    DeckNames{"Label3",
              "Label1",
              "picProgBack1",
              "Command2",
              "bouton_zap2",
              "Command4",
              "bouton_stop2",
              "bouton_pause2",
              "bouton_avance2",
              "bouton_recul2",
              "bouton_mix2",
              "bouton_volume2",
              "Shape2",
              "Slider1",
              "Label22",
              "bouton_plus2",
              "bouton_moins2",
              "Timer6",
              "Zapper sur Play3",
              "Stopper lecteur 2",
              "F9",
              6},
    DeckNames{"Label4",
              "Label9",
              "picProgBack2",
              "Command7",
              "bouton_zap3",
              "Command6",
              "bouton_stop3",
              "bouton_pause3",
              "bouton_avance3",
              "bouton_recul3",
              "bouton_mix3",
              "bouton_volume3",
              "Shape3",
              "Slider2",
              "Label26",
              "bouton_plus3",
              "bouton_moins3",
              "Timer7",
              "Zapper sur Play1",
              "Stopper lecteur 3",
              "F11",
              7},
};

/// What a press of the pause button does: it holds the deck, or lets it go on.
inline constexpr std::string_view pause_caption = "II";
inline constexpr std::string_view resume_caption = "=>";

/// The parts of one deck on the main window.
struct DeckControls {
    DeckControls(Window& window, Scheduler& scheduler, const DeckNames& names);

    static constexpr int bar_units = 1'000'000; ///< Fine enough for a tenth of a second in nine hours.

    Label title;
    Label counter; ///< The end point in whole seconds, as text; the chain reads it back.
    ProgressBar progress;
    GraphicButton open;
    GraphicButton zap;
    GraphicButton play;
    GraphicButton stop;
    GraphicButton pause;
    GraphicButton forward;
    GraphicButton back;
    GraphicButton special_mix;
    GraphicButton keep_volume;
    Image playing_mark;
    Slider slider; ///< 0 is full, 20 is the quietest.
    Label percent;
    GraphicButton louder;
    GraphicButton quieter;
    Timer scroll_timer;
};

} // namespace sonarelle
