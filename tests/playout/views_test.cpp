// Which windows are on view, and which view the display menu marks.
#include <gmock/gmock.h>

#include "playout/desk_fixture.h"

namespace sonarelle {

namespace {

using testing::ElementsAre;

class Views : public DeskFixture {
protected:
    Views() { start(); }

    [[nodiscard]] std::vector<std::string> checked_views() {
        std::vector<std::string> names;
        for (const MenuItem* view : window.views())
            if (view->checked)
                names.push_back(view->name());
        return names;
    }

    Liste_son& list = station.list_window;
};

} // namespace

TEST_F(Views, OfTheTaskBarHidesAllAndMinimisesTheMainWindow) {
    list.show();
    station.small_player.show();
    window.Affiche_barre.click();
    EXPECT_FALSE(list.visible);
    EXPECT_FALSE(station.small_player.visible);
    EXPECT_EQ(window.state.get(), WindowState::minimised);
    EXPECT_THAT(checked_views(), ElementsAre("Affiche_barre"));
}

TEST_F(Views, OfTheListAloneMinimisesTheMainWindow) {
    window.Aligner_liste.enabled = false;
    list.state = WindowState::maximised;
    window.Affiche_Fenetre_L.click();
    EXPECT_TRUE(list.visible);
    EXPECT_EQ(list.state.get(), WindowState::normal);
    EXPECT_EQ(window.state.get(), WindowState::minimised);
    EXPECT_TRUE(window.Aligner_liste.enabled);
    EXPECT_THAT(checked_views(), ElementsAre("Affiche_Fenetre_L"));
}

TEST_F(Views, OfTheMainWindowAloneHidesTheList) {
    list.show();
    window.state = WindowState::minimised;
    window.Affiche_Fenetre_P.click();
    EXPECT_FALSE(list.visible);
    EXPECT_EQ(window.state.get(), WindowState::normal);
    EXPECT_FALSE(window.Aligner_liste.enabled);
    EXPECT_THAT(checked_views(), ElementsAre("Affiche_Fenetre_P"));
}

TEST_F(Views, OfAllShowsBothWindows) {
    window.Affiche_barre.click();
    window.hide();
    window.affiche_tout.click();
    EXPECT_TRUE(window.visible);
    EXPECT_TRUE(list.visible);
    EXPECT_EQ(window.state.get(), WindowState::normal);
    EXPECT_TRUE(window.Aligner_liste.enabled);
    EXPECT_THAT(checked_views(), ElementsAre("affiche_tout"));
}

TEST_F(Views, OfAllBringAMinimisedListBack) {
    list.show();
    list.state = WindowState::minimised;
    window.affiche_tout.click();
    EXPECT_EQ(list.state.get(), WindowState::normal);
}

TEST_F(Views, OfAllLeaveAMaximisedListAsItIs) {
    list.state = WindowState::maximised;
    window.affiche_tout.click();
    EXPECT_EQ(list.state.get(), WindowState::maximised);
}

TEST_F(Views, AlwaysOnTopKeepsTheMainWindowThereUntilAnotherIsChosen) {
    window.hide();
    window.affiche_toujour.click();
    EXPECT_TRUE(window.visible);
    EXPECT_TRUE(window.topmost);
    EXPECT_THAT(checked_views(), ElementsAre("affiche_toujour"));
    window.affiche_tout.click();
    EXPECT_FALSE(window.topmost);
    EXPECT_THAT(checked_views(), ElementsAre("affiche_tout"));
}

TEST_F(Views, AlwaysOnTopBringAReducedMainWindowBack) {
    window.state = WindowState::minimised;
    window.reduce();
    window.affiche_toujour.click();
    EXPECT_TRUE(window.visible);
    EXPECT_EQ(window.state.get(), WindowState::normal);
}

TEST_F(Views, AlwaysOnTopLeaveAMaximisedMainWindowAsItIs) {
    window.state = WindowState::maximised;
    window.affiche_toujour.click();
    EXPECT_EQ(window.state.get(), WindowState::maximised);
}

TEST_F(Views, AreThoseOnTheScreenHoweverTheWindowsCame) {
    window.Affiche_Fenetre_P.click();
    window.ouvrir_liste.click();
    window.affiche.open();
    EXPECT_THAT(checked_views(), ElementsAre("affiche_tout"));
    EXPECT_TRUE(window.Aligner_liste.enabled);
    list.hide();
    window.affiche.open();
    EXPECT_THAT(checked_views(), ElementsAre("Affiche_Fenetre_P"));
    EXPECT_FALSE(window.Aligner_liste.enabled);
    window.Affiche_barre.click();
    list.show();
    window.affiche.open();
    EXPECT_THAT(checked_views(), ElementsAre("Affiche_Fenetre_L"));
}

TEST_F(Views, StayAsTheyWereChosenWhenTheMenuOpens) {
    for (MenuItem* view : window.views()) {
        view->click();
        window.affiche.open();
        EXPECT_THAT(checked_views(), ElementsAre(view->name()));
    }
}

TEST_F(Views, AreLeftToTheMainWindowWhileTheSmallPlayerStandsForIt) {
    window.affiche_tout.click();
    window.a_mini.click();
    window.affiche.open();
    EXPECT_THAT(checked_views(), ElementsAre("affiche_tout"));
}

TEST_F(Views, OfTheTaskBarHaveTheMainWindowInItWhenTheSmallPlayerWasThere) {
    window.reduce();
    window.Affiche_barre.click();
    EXPECT_TRUE(window.visible);
    EXPECT_EQ(window.state.get(), WindowState::minimised);
}

TEST_F(Views, OfOneWindowShowTheMainWindowThatTheSmallPlayerHid) {
    for (MenuItem* view : {&window.Affiche_Fenetre_L, &window.Affiche_Fenetre_P}) {
        window.reduce();
        view->click();
        EXPECT_TRUE(window.visible) << view->name();
    }
}

TEST_F(Views, OfTheListIsOpenedByF2) {
    window.ouvrir_liste.click();
    EXPECT_TRUE(list.visible);
}

TEST_F(Views, OfBothWindowsComeByTheKeyOfTheList) {
    window.key_press(U'l');
    EXPECT_TRUE(window.mix_list.value());
    EXPECT_TRUE(list.visible);
    EXPECT_THAT(checked_views(), ElementsAre("affiche_tout"));
}

TEST_F(Views, StayBehindTheKeyOfTheListInManualMode) {
    window.a_mode_manuel.checked = true;
    machine.dialogs.expect_box("Vous ètes en mode manuel", Answer::ok);
    window.key_press(U'L');
    EXPECT_FALSE(list.visible);
    EXPECT_THAT(checked_views(), testing::IsEmpty());
}

TEST_F(Views, OfBothWindowsComeWithAListThatIsAskedFor) {
    machine.add_track("C:\\Musique\\titre.mp3", 100);
    machine.disk.put_file("C:\\Listes\\soir.dfm", bytes_of({record_of("C:\\Musique\\titre.mp3")}));
    machine.dialogs.expect_open("C:\\Listes\\soir.dfm");
    window.ouvre_L.click();
    EXPECT_EQ(rows().count(), 1);
    EXPECT_TRUE(list.visible);
    EXPECT_TRUE(window.mix_list.value());
    EXPECT_EQ(window.list_chain_lamp.picture.get(), "bouton_noir_petitdoux.jpg");
    EXPECT_THAT(checked_views(), ElementsAre("affiche_tout"));
}

} // namespace sonarelle
