#pragma once

#include "platform/platform.h"
#include "state/list_state.h"
#include "state/station_settings.h"
#include "windows/antenne_fm.h"

namespace sonarelle {

/// The entries of the desk that take no part in the chain: programs around the station, the CD drive's door, dragging,
/// the remembered search words, the visual effect and the volume sliders.
class DeskCommands {
public:
    DeskCommands(const Platform& platform, StationSettings& settings, ListState& list, Antenne_FM& window)
        : platform_{platform},
          settings_{settings},
          list_{list},
          window_{window} {}

    void A_lecteur_CD_Win_Click();
    void a_vol_Click();
    void aideprog_Click();
    void A_Ouvrir_CD_Click() { move_cd_door(true); }
    void A_fermer_CD_Click() { move_cd_door(false); }

    void A_glisser_déplacer_Click();
    void Supprimer_recherche_Click();

    void A_visuel_active_Click() { set_effect(true); }
    void A_visuel_desactive_Click() { set_effect(false); }
    void A_affichage1_Click() { choose_sound_picture(SoundPicture::oscilloscope); }
    void A_affichage2_Click() { choose_sound_picture(SoundPicture::spectrum); }
    /// Shows the effect, or not, without storing it.
    void show_effect(bool on);

    void aa_montrer_curseur_Click() { set_sliders(true); }
    void aa_cacher_curseur_Click() { set_sliders(false); }

private:
    [[nodiscard]] bool start(std::string_view program);
    void move_cd_door(bool open);
    void set_effect(bool on);
    void choose_sound_picture(SoundPicture picture);
    void set_sliders(bool shown);

    const Platform& platform_;
    StationSettings& settings_;
    ListState& list_;
    Antenne_FM& window_;
};

} // namespace sonarelle
