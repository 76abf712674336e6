#pragma once

#include <functional>
#include <string>

#include "configuration/form_options.h"
#include "configuration/settings_store.h"
#include "platform/failure.h"
#include "platform/platform.h"
#include "playlist/liste_son.h"
#include "windows/antenne_fm.h"
#include "windows/mini_lecteur.h"

namespace sonarelle {

/// Reads the settings into the station's variables and onto its windows. A failing statement is skipped and the next
/// one runs; the last failure is remembered until a check reads it. That is how a first start is known: an empty store
/// has no number where one is needed.
class SettingsLoad {
public:
    SettingsLoad(const Platform& platform, StationSettings& settings, Antenne_FM& main_window, Liste_son& list_window,
                 Form_options& options, mini_lecteur& small_player);

    void Chargement_parametres();

    /// Gives all windows the colours that were read.
    std::function<void()> apply_colours;

private:
    /// The texts that are read in one place and converted in another.
    struct KeptTexts {
        std::string forcer_mix_jingles, mix_audio, mix_audio_vitesse, mix_audio_attenuation;
        std::string mix, prechargement, valeur_vitesse_timer, montrer_curseur;
    };
    /// What belongs to one of the two insertions by draw.
    struct Insertion;

    void write_program_folder();
    std::string read_chain_value(std::string_view key);
    void read_chain_values();
    void read_positions();
    void read_texts();
    void make_options_dialog();
    void read_insertion(const Insertion& insertion);
    void repair_if_damaged();
    void convert_kept_texts();
    void show_paths();
    void show_effects();
    void show_cursors();
    void show_name();
    void place_windows();
    void read_colours();
    void place_small_player();

    const Platform& platform_;
    SettingsStore store_;
    StationSettings& settings_;
    Antenne_FM& main_;
    Liste_son& list_;
    Form_options& options_;
    mini_lecteur& small_player_;
    ErrorIndicator errors_;
    KeptTexts kept_;
};

} // namespace sonarelle
