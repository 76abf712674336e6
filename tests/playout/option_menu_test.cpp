// The settings that the option menu edits.
#include "playout/desk_fixture.h"

namespace sonarelle {

namespace {

class OptionMenuTest : public DeskFixture {
protected:
    OptionMenuTest() { start(); }

    void enter(std::string_view text) { machine.dialogs.expect_input(text); }
};

using StationName = OptionMenuTest;
using StationPaths = OptionMenuTest;
using Banner = OptionMenuTest;

} // namespace

TEST_F(StationName, IsStoredAndShown) {
    enter("Radio Port");
    window.nom_radio.click();
    EXPECT_EQ(machine.dialogs.last().title, "Saisie d'un nouveau nom");
    EXPECT_EQ(machine.dialogs.last().text, " Nom de votre Radio ");
    EXPECT_EQ(machine.dialogs.last().preset, "Sonarelle");
    EXPECT_EQ(stored("Nom_antenne_fm"), "Radio Port");
    EXPECT_EQ(window.caption.get(), "Radio Port");
    EXPECT_EQ(window.favourites.text(), "Favoris Radio Port");
    EXPECT_EQ(window.jingles.text(), "Jingles Radio Port");
    EXPECT_EQ(station.list_window.caption.get(), "Radio Port");
    EXPECT_EQ(window.Quitter_.caption.get(), "Quitter Radio Port (Q)");
}

TEST_F(StationName, ThatIsEmptyBecomesTheDefaultOne) {
    enter("");
    window.nom_radio.click();
    EXPECT_EQ(stored("Nom_antenne_fm"), "Antenne_FM");
    EXPECT_EQ(station.settings.nom_radio, "Antenne_FM");
}

TEST_F(StationName, StaysAfterACancel) {
    enter("Radio Port");
    window.nom_radio.click();
    machine.dialogs.expect_cancel();
    window.nom_radio.click();
    EXPECT_EQ(stored("Nom_antenne_fm"), "Radio Port");
    EXPECT_EQ(station.settings.nom_radio, "Radio Port");
    EXPECT_EQ(window.caption.get(), "Radio Port");
}

TEST_F(StationName, ThatWasEmptyIsOfferedAsTheDefaultOne) {
    station.settings.nom_radio.clear();
    enter("Radio Port");
    window.nom_radio.click();
    EXPECT_EQ(machine.dialogs.last().preset, "Antenne_FM");
}

TEST_F(StationPaths, OfTheJinglesAreStoredAndShownOnTheirEntry) {
    station.list_window.show();
    enter(" D:\\Jingles ");
    window.A_def_jingles.click();
    EXPECT_EQ(stored("Chemin_dossier_jingles"), "D:\\Jingles");
    EXPECT_EQ(station.settings.chemin_jingles, "D:\\Jingles");
    EXPECT_EQ(window.A_def_jingles.caption.get(), "Définir le chemin des jingles : D:\\Jingles");
    EXPECT_FALSE(station.list_window.visible);
    EXPECT_TRUE(window.Affiche_Fenetre_P.checked);
}

TEST_F(StationPaths, OfTheMusicAreStoredAndShownOnTheirEntry) {
    enter("D:\\Musique");
    window.A_def_musique.click();
    EXPECT_EQ(stored("Chemin_dernier_fichier"), "D:\\Musique");
    EXPECT_EQ(station.settings.chemin_musique, "D:\\Musique");
    EXPECT_EQ(window.A_def_musique.caption.get(), "Définir le chemin du dossier Musique :D:\\Musique");
}

TEST_F(StationPaths, OfTheEditorAreStoredAndShownOnTheirEntry) {
    enter("C:\\usr\\bin\\audacity");
    window.a_editeur_audio.click();
    EXPECT_EQ(stored("Chemin_editeur_audio"), "C:\\usr\\bin\\audacity");
    EXPECT_EQ(station.settings.chemin_editeur_audio, "C:\\usr\\bin\\audacity");
    EXPECT_EQ(window.a_editeur_audio.caption.get(), "Définir le chemin de l'editeur audio :C:\\usr\\bin\\audacity");
}

TEST_F(StationPaths, ThatAreNotGivenStayAsTheyWere) {
    machine.dialogs.expect_cancel();
    window.A_def_jingles.click();
    EXPECT_EQ(stored("Chemin_dossier_jingles"), "C:\\Sonarelle");
}

TEST_F(Banner, IsTheChosenFile) {
    machine.dialogs.expect_open("D:\\bandeau.swf");
    window.Modifie_banniere.click();
    EXPECT_EQ(machine.dialogs.last().title, "Ouvrir une nouvelle banniere");
    EXPECT_EQ(machine.dialogs.last().filter, " fichier (*.swf)|*.swf");
    EXPECT_EQ(machine.dialogs.last().folder, "C:\\Sonarelle\\");
    EXPECT_EQ(window.banner.movie.get(), "D:\\bandeau.swf");
    EXPECT_TRUE(window.banner.playing);
    EXPECT_TRUE(window.banner.loop);
    EXPECT_EQ(stored("banniere"), "D:\\bandeau.swf");
}

TEST_F(Banner, ThatIsNotChosenStays) {
    machine.dialogs.expect_cancel();
    window.Modifie_banniere.click();
    EXPECT_EQ(stored("banniere"), "C:\\Sonarelle\\bandeau_Flash.swf");
}

TEST_F(Banner, IsPlayedAnewOnDemand) {
    window.banner.playing = false;
    window.A_Rafraichir.click();
    EXPECT_TRUE(window.banner.playing);
}

} // namespace sonarelle
