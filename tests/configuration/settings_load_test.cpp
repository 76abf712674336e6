#include "configuration/settings_load.h"

#include "support/station_fixture.h"

namespace sonarelle {

namespace {

constexpr std::string_view config = "Config";
constexpr std::string_view colours = "Couleur_liste";

class SettingsLoadTest : public StationFixture {
protected:
    void set(std::string_view section, std::string_view key, std::string_view value) {
        machine.settings.SaveSetting(settings_application, section, key, value);
    }
    [[nodiscard]] std::string stored(std::string_view section, std::string_view key) {
        return machine.settings.GetSetting(settings_application, section, key, "(absent)");
    }
    /// The store as it is after a first start.
    void fill_store() {
        SettingsStore{machine.settings, "C:\\Sonarelle", DecimalMark::point}.write_column(&SettingRow::first);
    }
    void load() { station.settings_load.Chargement_parametres(); }

    [[nodiscard]] bool colours_were_rewritten() { return stored(colours, "coul_cadre") == "-2147483630"; }
    void mark_colours() { set(colours, "coul_cadre", "1"); }
};

/// What a damaged key leads to.
struct Outcome {
    bool first_start;
    bool colours_rewritten;
    friend bool operator==(const Outcome&, const Outcome&) = default;
};

struct Damage {
    std::string_view section, key;
    Outcome outcome;
};

// A number that is read before the options dialog is made counts as missing; one behind it decides the first check, one
// behind that the second.
constexpr Outcome forgotten{false, false};
constexpr Outcome colours_only{false, true};
constexpr Outcome first_start{true, false};

constexpr std::array damages{
    Damage{config, "Forcer_Mix_Jingles", colours_only},
    Damage{config, "Mix_audio", colours_only},
    Damage{config, "Mix_audio_vitesse", colours_only},
    Damage{config, "Mix_audio_attenuation", colours_only},
    Damage{config, "valeur_max_jingles", forgotten},
    Damage{config, "Veille_antenne", forgotten},
    Damage{config, "Ecart_artiste", forgotten},
    Damage{config, "Mix", colours_only},
    Damage{config, "Préchargement", colours_only},
    Damage{config, "Valeur_vitesse_timer", colours_only},
    Damage{config, "Nom_antenne_fm", forgotten},
    Damage{config, "Nb_fichier_aleatoire", first_start},
    Damage{config, "Nb_fichier_aleatoire1", first_start},
    Damage{config, "valide_fichier_aleatoire", forgotten},
    Damage{config, "Montrer curseur", forgotten},
    Damage{"Position", "Position_haut", forgotten},
    Damage{"Position", "Position_gauche_mini_lecteur", forgotten},
    Damage{colours, "coul_texte_liste", colours_only},
    Damage{colours, "coul_bouton", colours_only},
    Damage{colours, "coul_fond_label", forgotten},
};

/// A repaired store has sound texts for the fade keys and the mix, so their damage is gone by the second check.
Outcome outcome_of(const Damage& one, const Damage& other) {
    Outcome outcome{one.outcome.first_start || other.outcome.first_start, false};
    for (const Damage* damage : {&one, &other}) {
        const bool repaired =
            outcome.first_start && (damage->key == "Forcer_Mix_Jingles" || damage->key.starts_with("Mix"));
        outcome.colours_rewritten |= damage->outcome.colours_rewritten && !repaired;
    }
    return outcome;
}

class EveryPairOfDamages : public SettingsLoadTest, public testing::WithParamInterface<std::tuple<Damage, Damage>> {
protected:
    EveryPairOfDamages() {
        fill_store();
        mark_colours();
    }
};

} // namespace

TEST_P(EveryPairOfDamages, LeadsToItsOutcome) {
    const auto& [one, other] = GetParam();
    set(one.section, one.key, "abîmé");
    set(other.section, other.key, "abîmé");
    load();
    const Outcome seen{station.settings.premier_lancement.is_true(), colours_were_rewritten()};
    EXPECT_EQ(seen, outcome_of(one, other)) << one.key << ", " << other.key;
}

INSTANTIATE_TEST_SUITE_P(Settings, EveryPairOfDamages,
                         testing::Combine(testing::ValuesIn(damages), testing::ValuesIn(damages)));

TEST_F(SettingsLoadTest, OfAnEmptyStoreIsAFirstStart) {
    load();
    EXPECT_TRUE(station.settings.premier_lancement.is_true());
}

TEST_F(SettingsLoadTest, OfAFirstStartsStoreIsNone) {
    fill_store();
    load();
    EXPECT_TRUE(station.settings.premier_lancement.is_false());
}

TEST_F(SettingsLoadTest, OfAnEmptyStoreWritesItsOwnFadeValues) {
    load();
    EXPECT_EQ(stored(config, "Mix_audio"), "13");
    EXPECT_EQ(stored(config, "Mix_audio_vitesse"), "40");
    EXPECT_EQ(stored(config, "Mix_audio_attenuation"), "3");
    EXPECT_EQ(stored(config, "banniere"), "C:\\Sonarelle\\bandeau.swf");
}

TEST_F(SettingsLoadTest, OfAnEmptyStoreFollowedByThePurgeLeavesTheFirstStartsFadeValues) {
    load();
    station.settings_rewrite.A_purger_registre_Click();
    EXPECT_EQ(stored(config, "Mix_audio"), "10");
    EXPECT_EQ(stored(config, "Mix_audio_vitesse"), "35");
    EXPECT_EQ(stored(config, "Mix_audio_attenuation"), "2");
    EXPECT_EQ(stored(config, "banniere"), "C:\\Sonarelle\\bandeau_Flash.swf");
}

TEST_F(SettingsLoadTest, OfAnEmptyStoreSetsItsVariables) {
    load();
    EXPECT_EQ(station.settings.mix_courant, 6);
    EXPECT_EQ(station.settings.mix_defaut, 6);
    EXPECT_EQ(station.settings.prechargement, 7);
    EXPECT_EQ(station.settings.prechargement_defaut, 7);
    EXPECT_EQ(station.settings.mix_audio_attenuation, 3);
    EXPECT_EQ(station.settings.valeur_vitesse_timer, 0);
    EXPECT_EQ(station.settings.effet_visuel, "Non");
    EXPECT_EQ(station.settings.chemin_editeur_audio, "X");
    EXPECT_EQ(station.settings.type_affichage, "T_défaut");
    EXPECT_EQ(station.settings.chemin_musique, "C:\\Sonarelle\\");
}

TEST_F(SettingsLoadTest, OfAnEmptyStoreWritesThePlacesOfTheWindows) {
    load();
    for (const SettingRow& row : settings_vocabulary())
        if (row.section == setting_section::position && row.repair) {
            EXPECT_EQ(stored("Position", row.key), *row.repair) << row.key;
        }
}

TEST_F(SettingsLoadTest, OfAnEmptyStoreRewritesTheColoursToo) {
    load();
    EXPECT_EQ(stored(colours, "coul_texte_liste"), "986895");
    EXPECT_EQ(stored(colours, "coul_bouton"), "10461087");
    EXPECT_EQ(station.settings.coul_texte_liste, 0x0F0F0F);
    EXPECT_EQ(station.settings.coul_bouton, 0xC08000);
    EXPECT_EQ(station.settings.coul_bouton_groupe_lecture, "noir");
}

TEST_F(SettingsLoadTest, WritesTheProgramFolderBeforeItReads) {
    load();
    EXPECT_EQ(stored(config, "Chemin_programme"), "C:\\Sonarelle\\");
    EXPECT_EQ(station.settings.chemin_programme, "C:\\Sonarelle\\");
}

TEST_F(SettingsLoadTest, ForgetsADamagedWindowPlaceAndLeavesItZero) {
    fill_store();
    set("Position", "Position_haut", "abc");
    load();
    EXPECT_EQ(station.settings.position_haut, 0);
    EXPECT_EQ(station.main_window.top.get(), Twips{0});
    EXPECT_EQ(stored("Position", "Position_haut"), "abc");
}

TEST_F(SettingsLoadTest, TakesAPlaceOutside16BitsAsDamaged) {
    fill_store();
    set("Position", "Position_haut", "40000");
    load();
    EXPECT_EQ(station.settings.position_haut, 0);
}

TEST_F(SettingsLoadTest, ReadsAPlaceWithDecimals) {
    fill_store();
    set("Position", "Position_gauche", "1234.5");
    load();
    EXPECT_EQ(station.settings.position_gauche, 1234);
}

TEST_F(SettingsLoadTest, LeavesADamagedMixAtZero) {
    fill_store();
    set(config, "Mix", "abc");
    load();
    EXPECT_EQ(station.settings.mix_courant, 0);
    EXPECT_EQ(stored(config, "Mix"), "abc");
}

TEST_F(SettingsLoadTest, ReadsAnEmptyFadeTimeAs13) {
    fill_store();
    set(config, "Mix_audio", "");
    load();
    EXPECT_EQ(station.settings.mix_audio, 13);
}

TEST_F(SettingsLoadTest, WatchesOverTheAirForFiveSecondsWhereTheStoreDoesNotSay) {
    fill_store();
    machine.settings.SaveSetting(settings_application, config, "Veille_antenne", "");
    load();
    EXPECT_EQ(station.settings.veille_antenne, 5);
}

TEST_F(SettingsLoadTest, WatchesOverTheAirAsLongAsTheStoreSays) {
    fill_store();
    set(config, "Veille_antenne", "0");
    load();
    EXPECT_EQ(station.settings.veille_antenne, 0);
}

TEST_F(SettingsLoadTest, FindsTheSameKeyInAnyCase) {
    fill_store();
    set(config, "logo_liste", "Vrai");
    load();
    EXPECT_EQ(station.settings.logo_liste, "Vrai");
}

TEST_F(SettingsLoadTest, FailsOnAFractionWrittenWithAnotherMark) {
    fill_store();
    set(config, "Nb_fichier_aleatoire", "2,5");
    load();
    EXPECT_TRUE(station.settings.premier_lancement.is_true());
}

TEST_F(SettingsLoadTest, SwitchesTheJinglesOn) {
    fill_store();
    set(config, "valide_fichier_aleatoire", "true");
    set(config, "Nb_fichier_aleatoire", "4");
    set(config, "Chemin_fichier_aleatoire", "C:\\jingles.dfm");
    load();
    EXPECT_TRUE(station.settings.valide_fichier_aleatoire.is_true());
    EXPECT_TRUE(station.main_window.jingle_timer.enabled());
    EXPECT_EQ(station.options_window.draws_jingles.value(), 1);
    EXPECT_EQ(station.list_window.jingles_status.caption.get(), "Jingle On");
    EXPECT_EQ(station.list_window.jingles_switch.picture.get(), "C:\\Sonarelle\\bouton_on.jpg");
    EXPECT_EQ(station.settings.nb_fichier_aleatoire, 4);
    EXPECT_EQ(station.options_window.jingle_spacing.text(), "4");
    EXPECT_EQ(station.options_window.jingle_list.text(), "C:\\jingles.dfm");
}

TEST_F(SettingsLoadTest, SwitchesTheJinglesOffAgain) {
    fill_store();
    set(config, "valide_fichier_aleatoire", "true");
    load();
    ASSERT_TRUE(station.main_window.jingle_timer.enabled());
    set(config, "valide_fichier_aleatoire", "false");
    load();
    EXPECT_FALSE(station.main_window.jingle_timer.enabled());
}

TEST_F(SettingsLoadTest, SwitchesTheListItemsOn) {
    fill_store();
    set(config, "valide_fichier_aleatoire1", "true");
    set(config, "Nb_fichier_aleatoire1", "5");
    set(config, "Chemin_fichier_aleatoire1", "C:\\articles.dfm");
    load();
    EXPECT_TRUE(station.settings.valide_fichier_aleatoire1.is_true());
    EXPECT_TRUE(station.main_window.item_timer.enabled());
    EXPECT_EQ(station.options_window.draws_items.value(), 1);
    EXPECT_EQ(station.list_window.items_status.caption.get(), "Liste On");
    EXPECT_EQ(station.list_window.items_switch.picture.get(), "C:\\Sonarelle\\bouton_on.jpg");
    EXPECT_EQ(station.options_window.item_spacing.text(), "5");
    EXPECT_EQ(station.options_window.item_list.text(), "C:\\articles.dfm");
}

TEST_F(SettingsLoadTest, TakesNeitherBranchForAThirdFlagText) {
    fill_store();
    station.main_window.jingle_timer.enable();
    set(config, "valide_fichier_aleatoire", "peut-être");
    load();
    EXPECT_TRUE(station.main_window.jingle_timer.enabled());
    EXPECT_TRUE(station.settings.valide_fichier_aleatoire.is_false());
}

TEST_F(SettingsLoadTest, ShowsTheTuningInTheOptionsDialog) {
    fill_store();
    load();
    EXPECT_EQ(station.options_window.load_lead.text(), "7");
    EXPECT_EQ(station.options_window.overlap.text(), "6");
    EXPECT_EQ(station.options_window.longest_jingle.text(), "30");
    EXPECT_EQ(station.options_window.fade_interval.text(), "35");
    EXPECT_EQ(station.options_window.special_mix_steps.text(), "2");
    EXPECT_EQ(station.options_window.chain_interval.text(), "1000");
    EXPECT_EQ(station.options_window.short_overlap.text(), "1");
    EXPECT_EQ(station.options_window.outgoing_life.text(), "10");
    EXPECT_EQ(station.main_window.overlap.text(), "6");
}

TEST_F(SettingsLoadTest, ShowsTheSlidersOnYes) {
    fill_store();
    set(config, "Montrer curseur", "Oui");
    load();
    EXPECT_TRUE(station.main_window.deck(2).slider.visible);
    EXPECT_FALSE(station.main_window.slider_stand_ins[1].visible);
    EXPECT_TRUE(station.main_window.aa_montrer_curseur.checked);
    EXPECT_FALSE(station.main_window.aa_cacher_curseur.checked);
}

TEST_F(SettingsLoadTest, HidesTheSlidersOtherwise) {
    fill_store();
    load();
    EXPECT_FALSE(station.main_window.deck(2).slider.visible);
    EXPECT_TRUE(station.main_window.slider_stand_ins[1].visible);
    EXPECT_TRUE(station.main_window.aa_cacher_curseur.checked);
}

TEST_F(SettingsLoadTest, ChecksTheVisualEffectsEntry) {
    fill_store();
    set(config, "Effet visuel", "Oui");
    load();
    EXPECT_TRUE(station.main_window.A_visuel_active.checked);
    EXPECT_FALSE(station.main_window.A_visuel_desactive.checked);
}

TEST_F(SettingsLoadTest, PutsThePathsAndTheNameIntoTheMenu) {
    fill_store();
    set(config, "Chemin_editeur_audio", "C:\\editeur");
    load();
    EXPECT_EQ(station.main_window.A_def_jingles.caption.get(), "Définir le chemin des jingles : C:\\Sonarelle");
    EXPECT_EQ(station.main_window.A_def_musique.caption.get(), "Définir le chemin du dossier Musique :C:\\Sonarelle");
    EXPECT_EQ(station.main_window.a_editeur_audio.caption.get(), "Définir le chemin de l'editeur audio :C:\\editeur");
    EXPECT_EQ(station.main_window.Quitter_.caption.get(), "Quitter Sonarelle (Q)");
}

TEST_F(SettingsLoadTest, PlacesTheWindows) {
    fill_store();
    set("Position", "Position_gauche_liste", "450");
    set("Position", "Position_haut_mini_lecteur", "750");
    load();
    EXPECT_EQ(station.main_window.left.get(), Twips{100});
    EXPECT_EQ(station.list_window.left.get(), Twips{450});
    EXPECT_EQ(station.small_player.top.get(), Twips{750});
}

TEST_F(SettingsLoadTest, OfADamagedColourLeavesTheOtherSettingsAlone) {
    fill_store();
    set(config, "Mix_audio", "11");
    set(colours, "coul_label", "blanc");
    load();
    EXPECT_EQ(stored(config, "Mix_audio"), "11");
    EXPECT_EQ(stored(colours, "coul_label"), "16777215");
}

TEST_F(SettingsLoadTest, OfAnEmptyStoreShowsTheRepairedLeadAndNoTimerInTheOptionsDialog) {
    load();
    EXPECT_EQ(station.options_window.load_lead.text(), "7");
    EXPECT_EQ(station.options_window.chain_interval.text(), "0");
}

TEST_F(SettingsLoadTest, GoesOnWhenTheStoreCannotBeWritten) {
    machine.settings.refuse_writes();
    load();
    EXPECT_EQ(station.settings.chemin_programme, "C:\\Sonarelle\\");
    EXPECT_EQ(station.settings.prechargement, 7);
}

} // namespace sonarelle
