// Where the windows stand, and what stands for their menus.
#include <gmock/gmock.h>

#include "playout/desk_fixture.h"
#include "playout/opening_layout.h"

namespace sonarelle {

namespace {

using testing::ElementsAre;

class DisplayMenuTest : public DeskFixture {
protected:
    DisplayMenuTest() {
        start();
        window.on_popup = [this](MenuItem& menu, const Control*) { opened.push_back(menu.name()); };
    }

    void expect_place(int left, int top) {
        EXPECT_EQ(window.left.get(), Twips{left});
        EXPECT_EQ(window.top.get(), Twips{top});
    }

    Liste_son& list = station.list_window;
    std::vector<std::string> opened;
};

using Places = DisplayMenuTest;
using MenuBar = DisplayMenuTest;

} // namespace

TEST_F(Places, OfTheMainWindowAreTheMiddleAndTheUpperEdgeOfTheScreen) {
    window.width = Twips{9360};
    window.height = Twips{7000};
    window.A_centre_lecteur.click();
    expect_place(3000, 2260);
    window.A_centre_lecteur_haut.click();
    expect_place(3000, 0);
    window.a_droite_haut.click();
    expect_place(6000, 0);
    window.a_gauche_haut.click();
    expect_place(0, 0);
}

TEST_F(Places, AreThoseThatABarOfTheDesktopLeavesFree) {
    machine.screen = {.left = Twips{600}, .top = Twips{450}, .width = Twips{14000}, .height = Twips{10185}};
    window.width = Twips{9000};
    window.height = Twips{7185};
    window.a_gauche_haut.click();
    expect_place(600, 450);
    window.a_droite_haut.click();
    expect_place(5600, 450);
    window.A_centre_lecteur.click();
    expect_place(3100, 1950);
}

TEST_F(Places, OfTheKeyOfTheSquareAreTheTwoUpperCornersInTurn) {
    window.width = Twips{9360};
    window.key_press(U'²');
    expect_place(6000, 0);
    window.key_press(U'²');
    expect_place(0, 0);
    window.key_press(U'²');
    expect_place(6000, 0);
}

TEST_F(Places, OfTheListAreBelowTheMainWindow) {
    window.left = Twips{600};
    window.top = Twips{0};
    window.height = height_with_menus;
    list.height = Twips{4000};
    window.Aligner_liste.click();
    EXPECT_EQ(list.left.get(), Twips{600});
    EXPECT_EQ(list.width.get(), window.width.get());
    EXPECT_EQ(list.top.get(), Twips{7185});
    window.liste_pleine_largeur.click();
    EXPECT_EQ(list.left.get(), Twips{0});
    EXPECT_EQ(list.width.get(), Twips{15360});
    EXPECT_EQ(list.top.get(), Twips{7185});
}

TEST_F(Places, OfTheListStayOnTheScreen) {
    window.top = Twips{6000};
    list.height = Twips{4000};
    window.Aligner_liste.click();
    EXPECT_EQ(list.top.get(), Twips{7520});
}

TEST_F(Places, OfTheListAreBelowTheMainWindowsFrame) {
    window.top = Twips{0};
    window.height = height_without_menus;
    list.height = Twips{3500};
    window.take_frame(Twips{360});
    window.Aligner_liste.click();
    EXPECT_EQ(list.top.get(), height_without_menus + Twips{360});
    EXPECT_EQ(list.height.get(), Twips{3500});
}

TEST_F(Places, OfAListThatHasLessRoomAreAsHighAsThat) {
    machine.screen.height = Twips{11520};
    window.top = Twips{0};
    window.height = Twips{7700};
    list.height = docked_list_height;
    window.Aligner_liste.click();
    EXPECT_EQ(list.top.get(), Twips{7700});
    EXPECT_EQ(list.height.get(), Twips{11520 - 7700});
}

TEST_F(Places, OfAListThatHasNoRoomBesideTheDeskAreTheWholeScreen) {
    machine.screen.height = Twips{9000};
    window.top = Twips{0};
    window.height = Twips{8640};
    window.Aligner_liste.click();
    EXPECT_EQ(list.top.get(), Twips{0});
    EXPECT_EQ(list.height.get(), Twips{9000});
}

TEST_F(Places, OfAListOnViewFollowAMainWindowThatGrows) {
    list.show();
    window.top = Twips{0};
    window.height = Twips{7000};
    window.grow();
    EXPECT_EQ(list.top.get(), Twips{7000});
}

TEST_F(Places, OfAListOnViewFollowTheMainWindow) {
    list.show();
    window.height = Twips{7185};
    window.left = Twips{900};
    window.top = Twips{300};
    EXPECT_EQ(list.left.get(), Twips{900});
    EXPECT_EQ(list.top.get(), Twips{7485});
    EXPECT_EQ(list.width.get(), window.width.get());
}

TEST_F(Places, OfAHiddenListStay) {
    list.left = Twips{1500};
    list.top = Twips{1200};
    window.a_droite_haut.click();
    EXPECT_EQ(list.left.get(), Twips{1500});
    EXPECT_EQ(list.top.get(), Twips{1200});
}

TEST_F(Places, OfAListAsWideAsTheScreenStayUntilItIsAligned) {
    list.show();
    window.liste_pleine_largeur.click();
    window.left = Twips{900};
    EXPECT_EQ(list.left.get(), Twips{0});
    window.Aligner_liste.click();
    window.left = Twips{1200};
    EXPECT_EQ(list.left.get(), Twips{1200});
}

TEST_F(Places, OfAMaximisedListStay) {
    list.show();
    list.left = Twips{1500};
    list.state = WindowState::maximised;
    window.left = Twips{900};
    EXPECT_EQ(list.left.get(), Twips{1500});
}

TEST_F(MenuBar, IsHiddenByAPressOnTheWindow) {
    station.warning_window.show();
    window.favourites.set_text("titre");
    window.click();
    for (const MenuItem* menu : window.menu_bar)
        EXPECT_FALSE(menu->visible);
    for (const Label* label : window.menu_labels())
        EXPECT_TRUE(label->visible);
    EXPECT_FALSE(station.warning_window.visible);
    EXPECT_EQ(window.height.get(), Twips{6885});
    EXPECT_EQ(window.favourites.text(), "Favoris Sonarelle");
}

TEST_F(MenuBar, LeavesTheSizeThatTheOperatorGave) {
    window.height = Twips{10800};
    window.click();
    EXPECT_EQ(window.height.get(), Twips{10800});
    window.double_click();
    EXPECT_EQ(window.height.get(), Twips{10800});
}

TEST_F(MenuBar, ComesBackWhenItIsCalled) {
    window.click();
    window.call_menus();
    EXPECT_TRUE(window.Fichier.visible);
    EXPECT_FALSE(window.file_label.visible);
}

TEST_F(MenuBar, ComesBackByADoublePress) {
    window.click();
    window.double_click();
    for (const MenuItem* menu : window.menu_bar)
        EXPECT_TRUE(menu->visible);
    for (const Label* label : window.menu_labels())
        EXPECT_FALSE(label->visible);
    EXPECT_EQ(window.height.get(), Twips{7185});
}

TEST_F(MenuBar, IsRepresentedByLabelsThatOpenItsMenus) {
    window.click();
    for (Label* label : {&window.file_label, &window.play_label, &window.list_label, &window.display_label,
                         &window.option_label, &window.help_label, &window.about_label})
        label->click();
    EXPECT_THAT(opened, ElementsAre("Fichier", "lire_play", "liste", "affiche", "Option_", "aide", "A_Propos"));
}

TEST_F(MenuBar, LabelsChangeTheirColourUnderThePointer) {
    station.settings.coul_label = 0x101010;
    window.mouse_move();
    window.display_label.mouse_move();
    EXPECT_EQ(window.display_label.fore_colour.get(), 0x101010 + 18000);
    EXPECT_EQ(window.option_label.fore_colour.get(), 0x101010);
    window.mouse_move();
    EXPECT_EQ(window.display_label.fore_colour.get(), 0x101010);
}

TEST_F(DisplayMenuTest, OpensAtThePointerByTheRightButtonAndByItsKeys) {
    window.right_click();
    for (const char32_t key : {U'a', U'A', U'o', U'O'})
        window.key_press(key);
    EXPECT_THAT(opened, ElementsAre("affiche", "affiche", "affiche", "Option_", "Option_"));
}

TEST_F(DisplayMenuTest, KeysOfTheSmallPlayerAreCapitalIAndSmallM) {
    window.key_press(U'i');
    window.key_press(U'M');
    EXPECT_FALSE(station.small_player.visible);
    EXPECT_TRUE(window.visible);
    for (const char32_t key : {U'I', U'm'}) {
        list.show();
        window.show();
        station.small_player.hide();
        window.key_press(key);
        EXPECT_TRUE(station.small_player.visible);
        EXPECT_TRUE(station.small_player.topmost);
        EXPECT_FALSE(list.visible);
        EXPECT_FALSE(window.visible);
    }
}

TEST_F(DisplayMenuTest, TheSmallPlayerTakesThePlaceOfAReducedMainWindow) {
    window.reduce();
    EXPECT_TRUE(station.small_player.visible);
    EXPECT_FALSE(window.visible);
}

TEST_F(DisplayMenuTest, BringsAReducedWindowBackAtItsSize) {
    station.small_player.state = WindowState::minimised;
    window.a_mini.click();
    EXPECT_EQ(station.small_player.state, WindowState::normal);
    station.list_window.state = WindowState::minimised;
    window.ouvrir_liste.click();
    EXPECT_EQ(station.list_window.state, WindowState::normal);
}

TEST_F(DisplayMenuTest, OffersToAlignAListThatIsOnView) {
    for (MenuItem* view : {&window.Affiche_Fenetre_L, &window.affiche_tout}) {
        window.Affiche_Fenetre_P.click();
        ASSERT_FALSE(window.Aligner_liste.enabled);
        view->click();
        EXPECT_TRUE(window.Aligner_liste.enabled) << view->name();
    }
}

TEST_F(DisplayMenuTest, KeysOfTheFilesPressTheirEntry) {
    int presses = 0;
    window.A_gere.on_click = [&] { ++presses; };
    window.key_press(U'f');
    window.key_press(U'F');
    EXPECT_EQ(presses, 2);
}

} // namespace sonarelle
