#include "configuration/settings_rewrite.h"

#include "support/station_bench.h"

namespace sonarelle {

namespace {

class SettingsRewriteTest : public StationBench {
protected:
    [[nodiscard]] std::string stored(std::string_view section, std::string_view key) {
        return machine.settings.GetSetting(settings_application, section, key, "(absent)");
    }
    void purge() {
        machine.dialogs.expect_box(Answer::ok);
        station.main_window.A_purger_registre.click();
    }
    void return_to_factory() {
        machine.dialogs.expect_box(Answer::ok);
        station.list_window.A_revenir_couleur.click();
    }
};

} // namespace

TEST_F(SettingsRewriteTest, PurgeWritesEveryKeyButTheAudioEditor) {
    purge();
    EXPECT_EQ(machine.settings.all(settings_application).size(), settings_vocabulary().size() - 1);
    EXPECT_EQ(stored("Config", "Chemin_editeur_audio"), "(absent)");
    EXPECT_EQ(station.settings.chemin_editeur_audio, "X");
}

TEST_F(SettingsRewriteTest, PurgeLeavesThePictureOfTheListAsAPath) {
    purge();
    EXPECT_EQ(stored("Config", "Logo_liste"), "C:\\Sonarelle\\Liste_Sonarine1.jpg");
}

TEST_F(SettingsRewriteTest, PurgeTellsThatARestartIsNeeded) {
    purge();
    EXPECT_EQ(machine.dialogs.last().text,
              "Purge éffectué avec succés\n\nPour prendre effet..le redémarrage de Sonarelle est nécessaire");
    EXPECT_EQ(machine.dialogs.last().icon, Icon::information);
}

TEST_F(SettingsRewriteTest, PurgeEndsTheProgram) {
    purge();
    EXPECT_TRUE(station.ended());
}

TEST_F(SettingsRewriteTest, PurgeOfAFirstStartSaysNothing) {
    station.settings.premier_lancement = true;
    station.main_window.A_purger_registre.click();
    EXPECT_TRUE(machine.dialogs.asked().empty());
    EXPECT_TRUE(station.ended());
}

TEST_F(SettingsRewriteTest, FactoryReturnBringsBackTheLongFade) {
    purge();
    return_to_factory();
    EXPECT_EQ(stored("Config", "Mix_audio"), "13");
    EXPECT_EQ(stored("Config", "Mix_audio_vitesse"), "40");
    EXPECT_EQ(stored("Config", "Mix_audio_attenuation"), "3");
    EXPECT_EQ(station.settings.mix_audio, 13);
}

TEST_F(SettingsRewriteTest, FactoryReturnLeavesTheInsertionsAlone) {
    machine.settings.SaveSetting(settings_application, "Config", "Nb_fichier_aleatoire", "4");
    machine.settings.SaveSetting(settings_application, "Config", "valeur_max_jingles", "25");
    return_to_factory();
    EXPECT_EQ(stored("Config", "Nb_fichier_aleatoire"), "4");
    EXPECT_EQ(stored("Config", "valeur_max_jingles"), "25");
}

TEST_F(SettingsRewriteTest, FactoryReturnTellsThatARestartIsNeeded) {
    return_to_factory();
    EXPECT_EQ(machine.dialogs.last().text, "Pour prendre effet..le redémarrage de Sonarelle est nécessaire ");
    EXPECT_TRUE(station.ended());
}

TEST_F(SettingsRewriteTest, KeepsTheButtonColourInMemoryApartFromTheStore) {
    purge();
    EXPECT_EQ(station.settings.coul_bouton, 0xC08000);
    EXPECT_EQ(stored("Couleur_liste", "coul_bouton"), "10461087");
}

TEST_F(SettingsRewriteTest, SetsTheColoursInMemory) {
    return_to_factory();
    EXPECT_EQ(station.settings.coul_texte_liste, 0x0F0F0F);
    EXPECT_EQ(station.settings.coul_text_bouton, static_cast<Colour>(0x80000012U));
    EXPECT_EQ(station.settings.coul_label, 0xFFFFFF);
    EXPECT_EQ(station.settings.coul_fond_liste, 0x8F8F8F);
    EXPECT_EQ(station.settings.coul_fenetre, 0x8F8F8F);
}

TEST_F(SettingsRewriteTest, TellsWhenTheStoreCannotBeWritten) {
    machine.settings.refuse_writes(failure_number::path_access);
    machine.dialogs.expect_box("Erreur d'accès", Answer::ok);
    machine.dialogs.expect_box("nécessaire", Answer::ok);
    station.list_window.A_revenir_couleur.click();
    EXPECT_EQ(machine.dialogs.asked().front().icon, Icon::stop);
}

} // namespace sonarelle
