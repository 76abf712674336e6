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

    Label elapsed{*this, "Label5", "0"}; ///< Elapsed second of the main deck; the chain reads it back.
    Label chain_status{*this, "Label7", "Lecture en attente"};  ///< What the chain waits for.
    Label running_chain{*this, "Label10", "Chargement rapide"}; ///< Which chain runs.
    TextBox overlap{*this, "Text1"};                            ///< The overlap in seconds.
    Image background_picture{*this, "Image2"}; ///< A picture over the background; empty from the start on.
    Image deck_chain_lamp{*this, "Image12"};   ///< Lamp of the chain over decks.
    Image list_chain_lamp{*this, "Image13"};   ///< Lamp of the list chain.
    Image overlap_less{*this, "Image14"};      ///< Overlap minus one.
    Image overlap_more{*this, "Image15"};      ///< Overlap plus one.
    Image hourly_styles{*this, "Image17"};     ///< Opens the hourly styles.
    /// Stand where the volume sliders are hidden, by deck.
    std::array<Label, 3> slider_stand_ins{Label{*this, "Label27"}, Label{*this, "Label28"}, Label{*this, "Label29"}};

    Label file_label{*this, "Label12", "Fichier"}; ///< Stand for the menus while the bar is hidden.
    Label play_label{*this, "Label13", "Play"};
    Label list_label{*this, "Label14", "Liste"};
    Label display_label{*this, "Label15", "Affichage"};
    Label option_label{*this, "Label16", "Option"};
    Label help_label{*this, "Label17", "Aide"};
    Label about_label{*this, "Label18", "À propos"};
    Label quit_label{*this, "Label19", "Quitter"};

    Slider overlap_steps{*this, "UpDown1", 1, 20}; ///< The overlap field's companion.

    OptionGroup chain_choice;
    OptionButton mix_titles{*this, chain_choice, "coche2", "Mixer les titres"};
    OptionButton mix_list{*this, chain_choice, "coche3", "Mixer une liste"};
    CheckBox load_ahead{*this, "coche4", "Préchargement"};

    ComboBox favourites{*this, "Combo1", "Favoris "};
    ComboBox jingles{*this, "Combo2", "Jingles "};

    Movie banner{*this, "banner"};                      ///< 475 by 40 pixels.
    SoundDisplay sound_display{*this, "sound_display"}; ///< The visual effect.
    Frame meters{*this, "meters", "Niveau"};            ///< The place of the level meters.

    Timer load_ahead_timer; ///< Countdown and load step.
    Timer deck_chain_timer; ///< Chain over decks.
    Timer overlap_timer;    ///< Fade and release of the outgoing deck.
    Timer list_chain_timer; ///< Chain from the list.
    Timer jingle_timer;     ///< Insertion of jingles by draw.
    Timer item_timer;       ///< Insertion of list items by draw.

    /// What the chain lives on.
    [[nodiscard]] std::array<Timer*, 4> chain_timers() {
        return {&load_ahead_timer, &deck_chain_timer, &overlap_timer, &list_chain_timer};
    }
    /// What stands for the menus, in the order of the menu bar; the last one quits.
    [[nodiscard]] std::array<Label*, 8> menu_labels() {
        return {&file_label,   &play_label, &list_label,  &display_label,
                &option_label, &help_label, &about_label, &quit_label};
    }
    /// The decks' volume sliders, or the labels in their place, and the marks of the two entries.
    void show_sliders(bool shown);
};

/// Heights of the main window, in twips: with its menu bar, and without.
inline constexpr Twips height_with_menus{7185};
inline constexpr Twips height_without_menus{6885};

} // namespace sonarelle
