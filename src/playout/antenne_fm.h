#pragma once

#include <array>

#include "platform/controls.h"
#include "platform/timer.h"
#include "playout/deck_controls.h"

namespace sonarelle {

class Scheduler;

/// The main window: three decks, the chain's choices, the menus.
struct Antenne_FM : Window {
    explicit Antenne_FM(Scheduler& scheduler);

    /// The parts of deck 1, 2 or 3.
    [[nodiscard]] DeckControls& deck(int number) { return decks[static_cast<std::size_t>(number - 1)]; }

    std::array<DeckControls, 3> decks;

    Label Label5{*this, "Label5", "0"};                   ///< Elapsed second of the main deck; the chain reads it back.
    Label Label7{*this, "Label7", "Lecture en attente"};  ///< What the chain waits for.
    Label Label10{*this, "Label10", "Chargement rapide"}; ///< Which chain runs.
    TextBox Text1{*this, "Text1"};                        ///< The overlap in seconds.
    TextBox Text2{*this, "Text2"};                        ///< A path under check. Never shown.
    Image Image12{*this, "Image12"};                      ///< Lamp of the chain over decks.
    Image Image13{*this, "Image13"};                      ///< Lamp of the list chain.
    Image Image14{*this, "Image14"};                      ///< Overlap minus one.
    Image Image15{*this, "Image15"};                      ///< Overlap plus one.
    Label Label27{*this, "Label27"};                      ///< Stand where the volume sliders are hidden.
    Label Label28{*this, "Label28"};
    Label Label29{*this, "Label29"};

    OptionGroup chain_choice;
    OptionButton coche2{*this, chain_choice, "coche2", "Mixer les titres"};
    OptionButton coche3{*this, chain_choice, "coche3", "Mixer une liste"};
    CheckBox coche4{*this, "coche4", "Préchargement"};

    MenuItem lire_play{*this, "lire_play", "Play"};
    MenuItem lire_1{*this, "lire_1", "Play 1", "F5"};
    MenuItem lire_2{*this, "lire_2", "Play 2", "F6"};
    MenuItem lire_3{*this, "lire_3", "Play 3", "F7"};
    MenuItem Mix1{*this, "Mix1", "Mix 1", "F8"};
    MenuItem Mix2{*this, "Mix2", "Mix 2", "F9"};
    MenuItem Mix3{*this, "Mix3", "Mix 3", "F11"};
    MenuItem A_décharge_1{*this, "A_décharge_1", "Décharger Play 1"};
    MenuItem A_décharge_2{*this, "A_décharge_2", "Décharger Play 2"};
    MenuItem A_décharge_3{*this, "A_décharge_3", "Décharger Play 3"};

    MenuItem a_mode_manuel{*this, "a_mode_manuel", "Mode enchainement manuel"};
    MenuItem a_mode_auto{*this, "a_mode_auto", "Mode enchainement auto lecteur"};
    MenuItem a_mode_predefini{*this, "a_mode_predefini", "Mode enchainement auto liste"};
    MenuItem Active_audio_jingles{*this, "Active_audio_jingles",
                                  "Activer dégradé audio uniquement en mode enchainement auto"};
    MenuItem Active_audio{*this, "Active_audio", "Activer dégradé audio (liste)", "Ctrl+Y"};
    MenuItem Active_audio_zapping{*this, "Active_audio_zapping", "Activer dégradé audio sur zapping", "Ctrl+Z"};
    MenuItem Désactive_audio{*this, "Désactive_audio", "Désactiver dégradé audio"};

    MenuItem A_journal{*this, "A_journal", "Journal"};
    MenuItem Active_journal1{*this, "Active_journal1", "Activer et ne pas conserver"};
    MenuItem Active_journal{*this, "Active_journal", "Activer  conserver"};
    MenuItem A_desacive_J{*this, "A_desacive_J", "Désactiver"};
    MenuItem A_purger_journal{*this, "A_purger_journal", "Purger"};
    MenuItem A_ouvre_journal{*this, "A_ouvre_journal", "Ouvrir"};

    MenuItem affiche{*this, "affiche", "Affichage"};
    MenuItem Option_{*this, "Option_", "Option"};
    MenuItem A_def_jingles{*this, "A_def_jingles"};
    MenuItem A_def_musique{*this, "A_def_musique"};
    MenuItem a_editeur_audio{*this, "a_editeur_audio"};
    MenuItem A_visuel_active{*this, "A_visuel_active", "Activer les effets"};
    MenuItem A_visuel_desactive{*this, "A_visuel_desactive", "Désactiver les effets"};
    MenuItem aa_montrer_curseur{*this, "aa_montrer_curseur", "Montrer les curseurs"};
    MenuItem aa_cacher_curseur{*this, "aa_cacher_curseur", "Cacher les curseurs"};
    MenuItem A_purger_registre{*this, "A_purger_registre", "Purger la base de registre de la version précédente"};
    MenuItem Quitter_{*this, "Quitter_"};

    Timer Timer1; ///< Countdown and load step.
    Timer Timer2; ///< Chain over decks.
    Timer Timer3; ///< Fade and release of the outgoing deck.
    Timer Timer4; ///< Chain from the list.
    Timer Timer8; ///< Insertion of jingles by draw.
    Timer Timer9; ///< Insertion of list items by draw.

    /// The fade rules, of which one is checked.
    [[nodiscard]] std::array<MenuItem*, 4> fade_rules() {
        return {&Active_audio_jingles, &Active_audio, &Active_audio_zapping, &Désactive_audio};
    }
    /// Play, special mix and unload of the decks, by deck.
    [[nodiscard]] std::array<MenuItem*, 3> play_entries() { return {&lire_1, &lire_2, &lire_3}; }
    [[nodiscard]] std::array<MenuItem*, 3> special_mix_entries() { return {&Mix1, &Mix2, &Mix3}; }
    [[nodiscard]] std::array<MenuItem*, 3> unload_entries() { return {&A_décharge_1, &A_décharge_2, &A_décharge_3}; }
    [[nodiscard]] std::array<MenuItem*, 3> chain_modes() { return {&a_mode_manuel, &a_mode_auto, &a_mode_predefini}; }
    [[nodiscard]] std::array<MenuItem*, 3> journal_choices() {
        return {&Active_journal1, &Active_journal, &A_desacive_J};
    }
};

/// Checks one entry of an exclusive group of a menu and clears the others.
template <std::size_t Count>
void check_only(const std::array<MenuItem*, Count>& group, const MenuItem& chosen) {
    for (MenuItem* entry : group)
        entry->checked = entry == &chosen;
}

} // namespace sonarelle
