// The themes of the look menu, and its single colours.
#include "playout/desk_fixture.h"

namespace sonarelle {

namespace {

class ColourThemesTest : public DeskFixture {
protected:
    ColourThemesTest() { start(); }

    void choose(MenuItem& entry) {
        machine.dialogs.expect_box("Pour prendre effet..le redémarrage de ", Answer::ok);
        entry.click();
    }

    Liste_son& list = station.list_window;
};

} // namespace

TEST_F(ColourThemesTest, AThemeIsStoredAndChangesNothingBeforeTheNextStart) {
    const Colour before = list.rows.fore_colour;
    choose(list.T_Printemps);
    EXPECT_EQ(stored("coul_fond_liste", "Couleur_liste"), "8454016");
    EXPECT_EQ(stored("coul_bouton_groupe_lecture", "Couleur_liste"), "65280");
    EXPECT_EQ(stored("type_affichage"), "T_printemps");
    EXPECT_EQ(list.rows.fore_colour.get(), before);
}

TEST_F(ColourThemesTest, OfFourThemesInARowTheLastIsKept) {
    for (MenuItem* entry : {&list.T_Printemps, &list.T_Eté, &list.T_Autonne, &list.T_Hiver})
        choose(*entry);
    EXPECT_EQ(stored("type_affichage"), "T_Hiver");
    EXPECT_EQ(stored("coul_fond_liste", "Couleur_liste"), "16033024");
}

TEST_F(ColourThemesTest, BehindAThemeTheListsPictureIsATruthValue) {
    choose(list.T_Eté);
    EXPECT_EQ(stored("Logo_liste"), "Vrai");
    EXPECT_EQ(stored("coul_text_bouton", "Couleur_liste"), "16777215");
}

TEST_F(ColourThemesTest, TheNightIsTheStationsOwn) {
    choose(list.T_Nuit);
    EXPECT_EQ(stored("type_affichage"), "T_Nuit");
    EXPECT_EQ(stored("coul_texte_liste", "Couleur_liste"), "16250869");
}

TEST_F(ColourThemesTest, TheColourOfTheTextsActsAtOnceAndIsKept) {
    machine.dialogs.expect_colour(255);
    list.a_coul_label.click();
    EXPECT_EQ(list.track_name.fore_colour.get(), 255);
    EXPECT_EQ(window.elapsed.fore_colour.get(), 255);
    EXPECT_EQ(stored("coul_label", "Couleur_liste"), "255");
}

TEST_F(ColourThemesTest, TheColourOfTheRowsActsAtOnceAndIsKept) {
    machine.dialogs.expect_colour(65280);
    list.A_coul_texte_liste.click();
    EXPECT_EQ(list.rows.fore_colour.get(), 65280);
    EXPECT_EQ(stored("coul_texte_liste", "Couleur_liste"), "65280");
}

TEST_F(ColourThemesTest, ACancelLeavesTheColours) {
    const Colour before = list.track_name.fore_colour;
    machine.dialogs.expect_cancel();
    list.a_coul_label.click();
    EXPECT_EQ(list.track_name.fore_colour.get(), before);
}

TEST_F(ColourThemesTest, TheGroundIsTheColourThatWasChosenLastAndBlackWithoutOne) {
    list.A_coul_fenètre.click();
    EXPECT_EQ(list.back_colour.get(), 0);
    machine.dialogs.expect_colour(4711);
    list.A_coul_texte_liste.click();
    list.A_coul_fenètre.click();
    EXPECT_EQ(list.back_colour.get(), 4711);
}

TEST_F(ColourThemesTest, EntriesWithoutAnActionAreNotSeen) {
    for (const MenuItem* entry :
         {&list.logofond, &list.logo_, &list.logo_liste, &list.A_coul_fond_liste, &list.logo_menu_fichier,
          &list.a_coul_bouton, &list.A_coul_text_bouton, &list.a_coul_bouton_groupe_lecture})
        EXPECT_FALSE(entry->visible) << entry->name();
}

} // namespace sonarelle
