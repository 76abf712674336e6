#include "configuration/settings_rewrite.h"

#include <gmock/gmock.h>

#include "support/station_fixture.h"

namespace sonarelle {

namespace {

class SettingsRewriteTest : public StationFixture {
protected:
    [[nodiscard]] std::string stored(std::string_view section, std::string_view key) {
        return machine.settings.GetSetting(settings_application, section, key, "(absent)");
    }
    void purge() {
        machine.dialogs.expect_box("Continuer ?", Answer::yes);
        machine.dialogs.expect_box("Purge éffectué", Answer::ok);
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
    for (const SettingRow& row : settings_vocabulary()) {
        const bool is_editor = row.key == "Chemin_editeur_audio";
        EXPECT_EQ(stored(row.section, row.key) == "(absent)", is_editor) << row.key;
    }
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

TEST_F(SettingsRewriteTest, PurgeAsksFirst) {
    machine.dialogs.expect_box("Continuer ?", Answer::no);
    station.main_window.A_purger_registre.click();
    EXPECT_EQ(machine.dialogs.last().default_button, 2);
    EXPECT_TRUE(machine.settings.all(settings_application).empty());
    EXPECT_FALSE(station.ended());
}

TEST_F(SettingsRewriteTest, PurgeClosesTheJournal) {
    station.main_window.Active_journal.click();
    purge();
    EXPECT_THAT(machine.disk.bytes("C:\\Sonarelle\\journal.doc"), testing::HasSubstr(" Fermeture de Sonarelle"));
}

TEST_F(SettingsRewriteTest, PurgeDiscardsAJournalThatIsNotKept) {
    station.main_window.Active_journal1.click();
    purge();
    EXPECT_FALSE(machine.disk.exists("C:\\Sonarelle\\journal.doc"));
}

TEST_F(SettingsRewriteTest, PurgeKeepsTheMainWindowsPlace) {
    station.main_window.left = Twips{1200};
    purge();
    EXPECT_EQ(stored("Position", "Position_gauche"), "1200");
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
}

TEST_F(SettingsRewriteTest, FactoryReturnLeavesTheRunningStationAsItIs) {
    station.settings.nom_radio = "Radio Port";
    station.settings.mix_audio = 20;
    return_to_factory();
    EXPECT_EQ(station.settings.nom_radio, "Radio Port");
    EXPECT_EQ(station.settings.mix_audio, 20);
    EXPECT_FALSE(station.ended());
}

TEST_F(SettingsRewriteTest, FactoryReturnKeepsTheBanner) {
    station.settings.banniere = "C:\\ma.swf";
    return_to_factory();
    EXPECT_EQ(stored("Config", "banniere"), "C:\\ma.swf");
    EXPECT_EQ(station.settings.banniere, "C:\\ma.swf");
}

TEST_F(SettingsRewriteTest, FactoryReturnTakesTheStationsOwnListPictureAtOnce) {
    station.settings.logo = "C:\\ma.gif";
    return_to_factory();
    EXPECT_EQ(station.settings.logo, "C:\\Sonarelle\\Logo_liste1.gif");
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
}

TEST_F(SettingsRewriteTest, KeepsTheButtonColourInMemoryApartFromTheStore) {
    purge();
    EXPECT_EQ(station.settings.coul_bouton, 0xC08000);
    EXPECT_EQ(stored("Couleur_liste", "coul_bouton"), "10461087");
}

TEST_F(SettingsRewriteTest, PurgeSetsTheColoursInMemory) {
    purge();
    EXPECT_EQ(station.settings.coul_texte_liste, 0x0F0F0F);
    EXPECT_EQ(station.settings.coul_text_bouton, static_cast<Colour>(0x80000012U));
    EXPECT_EQ(station.settings.coul_label, 0xFFFFFF);
    EXPECT_EQ(station.settings.coul_fond_liste, 0x8F8F8F);
    EXPECT_EQ(station.settings.coul_fenetre, 0x8F8F8F);
}

TEST_F(SettingsRewriteTest, TellsWhenTheStoreCannotBeWritten) {
    machine.settings.refuse_writes(FailureNumber::path_access);
    machine.dialogs.expect_box("Erreur d'accès", Answer::ok);
    machine.dialogs.expect_box("nécessaire", Answer::ok);
    station.list_window.A_revenir_couleur.click();
    EXPECT_EQ(machine.dialogs.asked().front().icon, Icon::stop);
}

} // namespace sonarelle
