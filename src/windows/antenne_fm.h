#pragma once

#include <array>

#include "platform/controls.h"
#include "platform/timer.h"
#include "windows/deck_controls.h"
#include "windows/main_menus.h"

namespace sonarelle {

class Scheduler;

/// The main window: three decks, the chain's choices, the quick load boxes, the menus.
struct Antenne_FM : MainMenus {
    explicit Antenne_FM(Scheduler& scheduler);

    /// The parts of deck 1, 2 or 3.
    [[nodiscard]] DeckControls& deck(int number) { return decks.at(static_cast<std::size_t>(number - 1)); }

    std::array<DeckControls, 3> decks;

    Label Label5{*this, "Label5", "0"};                   ///< Elapsed second of the main deck; the chain reads it back.
    Label Label7{*this, "Label7", "Lecture en attente"};  ///< What the chain waits for.
    Label Label10{*this, "Label10", "Chargement rapide"}; ///< Which chain runs.
    TextBox Text1{*this, "Text1"};                        ///< The overlap in seconds.
    TextBox Text2{*this, "Text2"};                        ///< A path under check. Never shown.
    Image Image2{*this, "Image2"};                        ///< A picture over the background; empty from the start on.
    Image Image12{*this, "Image12"};                      ///< Lamp of the chain over decks.
    Image Image13{*this, "Image13"};                      ///< Lamp of the list chain.
    Image Image14{*this, "Image14"};                      ///< Overlap minus one.
    Image Image15{*this, "Image15"};                      ///< Overlap plus one.
    Image Image17{*this, "Image17"};                      ///< Opens the hourly styles.
    Label Label27{*this, "Label27"};                      ///< Stand where the volume sliders are hidden.
    Label Label28{*this, "Label28"};
    Label Label29{*this, "Label29"};

    Label Label12{*this, "Label12", "Fichier"}; ///< Stand for the menus while the bar is hidden.
    Label Label13{*this, "Label13", "Play"};
    Label Label14{*this, "Label14", "Liste"};
    Label Label15{*this, "Label15", "Affichage"};
    Label Label16{*this, "Label16", "Option"};
    Label Label17{*this, "Label17", "Aide"};
    Label Label18{*this, "Label18", "À propos"};
    Label Label19{*this, "Label19", "Quitter"};

    Slider UpDown1{*this, "UpDown1", 1, 20}; ///< The overlap field's companion.

    OptionGroup chain_choice;
    OptionButton coche2{*this, chain_choice, "coche2", "Mixer les titres"};
    OptionButton coche3{*this, chain_choice, "coche3", "Mixer une liste"};
    CheckBox coche4{*this, "coche4", "Préchargement"};

    ComboBox Combo1{*this, "Combo1", "Favoris "};
    ComboBox Combo2{*this, "Combo2", "Jingles "};

    Movie banner{*this, "banner"};                      ///< 475 by 40 pixels.
    SoundDisplay sound_display{*this, "sound_display"}; ///< The visual effect.
    Frame meters{*this, "meters", "Niveau"};            ///< The place of the level meters.

    Timer Timer1; ///< Countdown and load step.
    Timer Timer2; ///< Chain over decks.
    Timer Timer3; ///< Fade and release of the outgoing deck.
    Timer Timer4; ///< Chain from the list.
    Timer Timer8; ///< Insertion of jingles by draw.
    Timer Timer9; ///< Insertion of list items by draw.

    /// What the chain lives on.
    [[nodiscard]] std::array<Timer*, 4> chain_timers() { return {&Timer1, &Timer2, &Timer3, &Timer4}; }
    /// What stands for the menus, in the order of the menu bar; the last one quits.
    [[nodiscard]] std::array<Label*, 8> menu_labels() {
        return {&Label12, &Label13, &Label14, &Label15, &Label16, &Label17, &Label18, &Label19};
    }
    [[nodiscard]] std::array<Label*, 3> slider_stand_ins() { return {&Label27, &Label28, &Label29}; }
    /// The decks' volume sliders, or the labels in their place, and the marks of the two entries.
    void show_sliders(bool shown);
};

/// Heights of the main window, in twips: with its menu bar, and without.
inline constexpr Twips height_with_menus{7185};
inline constexpr Twips height_without_menus{6885};

} // namespace sonarelle
