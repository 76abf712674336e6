// The switches of the insertions, and how they flash.
#include "playout/insertion.h"

#include <set>

#include "playout/random_order_fixture.h"

namespace sonarelle {

namespace {

constexpr Colour green = 8454016;

class InsertionSwitch : public RandomOrderFixture {
protected:
    InsertionSwitch() { open_tracks(std::vector<int>(6, 100)); }

    [[nodiscard]] std::string label() { return list().jingles_status.caption; }

    void start_with_jingles(int spacing) {
        start_list();
        switch_jingles_on(put_source("jingle", 5, 10), spacing);
        station.chain.compteur_aleatoire = 1;
    }
    void start_with_items() {
        list().random_mode.click();
        switch_items_on(put_source("music", 5));
        list().play_list.click();
    }
};

} // namespace

// The switches.

TEST_F(InsertionSwitch, WithoutAListTellsHowToMakeOneAndChangesNothing) {
    for (const char* none : {"", "Aucun fichier", "C:\\titre.mp3"}) {
        station.settings.chemin_fichier_aleatoire = none;
        machine.dialogs.expect_box("Aucun fichier rassemblant vos Jingles n'a été défini", Answer::ok);
        list().jingles_status.click();
        EXPECT_EQ(machine.dialogs.last().title, "Lecture aléatoire avec jingles aléatoire");
        EXPECT_FALSE(station.settings.valide_fichier_aleatoire.is_true());
        EXPECT_FALSE(window().jingle_timer.enabled());
    }
}

TEST_F(InsertionSwitch, OfItemsWithoutAListTellsHowToMakeOne) {
    station.settings.chemin_fichier_aleatoire1 = "Aucun fichier";
    machine.dialogs.expect_box("2° Sélectionner ce fichier dans le menu *Otions*", Answer::ok);
    list().items_switch.click();
    EXPECT_EQ(machine.dialogs.last().title, "Fichier par défaut");
    EXPECT_FALSE(station.settings.valide_fichier_aleatoire1.is_true());
}

TEST_F(InsertionSwitch, OfJinglesIsSwitchedByLabelAndLamp) {
    EXPECT_EQ(label(), "Jingle auto ");
    switch_jingles_on(put_source("jingle", 5), 3);
    EXPECT_TRUE(station.settings.valide_fichier_aleatoire.is_true());
    EXPECT_TRUE(station.chain.jingles_aleatoires.is_true());
    EXPECT_TRUE(window().jingle_timer.enabled());
    EXPECT_EQ(label(), "Jingle On");
    EXPECT_EQ(list().jingles_switch.picture.get(), "bouton_on.jpg");
    list().jingles_switch.click();
    EXPECT_FALSE(station.settings.valide_fichier_aleatoire.is_true());
    EXPECT_FALSE(station.chain.jingles_aleatoires.is_true());
    EXPECT_FALSE(window().jingle_timer.enabled());
    EXPECT_EQ(label(), "Jingle Off");
    EXPECT_EQ(list().jingles_switch.picture.get(), "bouton_off.jpg");
}

TEST_F(InsertionSwitch, OfItemsIsSwitchedWithItsOwnWords) {
    EXPECT_EQ(list().items_status.caption.get(), "Liste / Off");
    switch_items_on(put_source("music", 5));
    EXPECT_TRUE(window().item_timer.enabled());
    EXPECT_EQ(list().items_status.caption.get(), "liste On");
    list().items_status.click();
    EXPECT_FALSE(window().item_timer.enabled());
    EXPECT_EQ(list().items_status.caption.get(), "liste Off");
}

TEST_F(InsertionSwitch, OfItemsGreysTheVisualEffectWhileItIsOn) {
    switch_items_on(put_source("music", 5));
    EXPECT_FALSE(window().A_visuel_active.enabled);
    list().items_status.click();
    EXPECT_TRUE(window().A_visuel_active.enabled);
}

TEST_F(InsertionSwitch, OfItemsSwitchedOffInRandomOrderLeavesTheVisualEffectGrey) {
    list().random_mode.click();
    switch_items_on(put_source("music", 5));
    list().items_status.click();
    EXPECT_FALSE(window().A_visuel_active.enabled);
    list().defined_end_mode.click();
    EXPECT_TRUE(window().A_visuel_active.enabled);
}

TEST_F(InsertionSwitch, WithoutASpacingAsksForOne) {
    int asked = 0;
    station.main_window.pre_char.on_click = [&asked] { ++asked; };
    switch_jingles_on(put_source("jingle", 5), 0);
    EXPECT_EQ(asked, 1);
    list().jingles_status.click();
    EXPECT_EQ(asked, 1);
}

TEST_F(InsertionSwitch, HintsSayHowOften) {
    station.settings.nb_fichier_aleatoire = 4;
    list().jingles_status.on_mouse_move();
    EXPECT_EQ(list().jingles_status.hint.get(), "Insertion après 4 fichiers");
    list().items_status.on_mouse_move();
    EXPECT_EQ(list().items_status.hint.get(), "Liste aléatoire par défaut :Off");
    switch_items_on(put_source("music", 5));
    list().items_status.on_mouse_move();
    EXPECT_EQ(list().items_status.hint.get(), "Lecture dans fichier aleatoire");
}

TEST_F(InsertionSwitch, LampsHintAsTheirLabelsDo) {
    station.settings.nb_fichier_aleatoire = 4;
    list().jingles_switch.on_mouse_move();
    EXPECT_EQ(list().jingles_switch.hint.get(), "Insertion après 4 fichiers");
    list().items_switch.on_mouse_move();
    EXPECT_EQ(list().items_switch.hint.get(), "Liste aléatoire par défaut :Off");
}

// The flash.

TEST_F(InsertionSwitch, FlashesWithTheTracksThatAreLeft) {
    start_with_jingles(3);
    machine.run_for(seconds(1));
    EXPECT_EQ(label(), "Jingle On ( 2 )");
    EXPECT_EQ(list().jingles_status.fore_colour.get(), green);
    machine.run_for(seconds(1));
    EXPECT_EQ(list().jingles_status.fore_colour.get(), station.settings.coul_text_bouton);
}

TEST_F(InsertionSwitch, FlashesWithNoughtWhereTheSpacingWasLoweredWithoutATrack) {
    start_with_jingles(3);
    station.chain.compteur_aleatoire = 3;
    list().stop_decks.click();
    station.settings.nb_fichier_aleatoire = 1;
    machine.run_for(seconds(4));
    EXPECT_EQ(label(), "Jingle On ( 0 )");
}

TEST_F(InsertionSwitch, SwitchedOffInTheGreenPhaseIsAsBefore) {
    start_with_jingles(3);
    machine.run_for(seconds(1));
    list().jingles_status.click();
    EXPECT_EQ(list().jingles_status.fore_colour.get(), station.settings.coul_text_bouton);
    EXPECT_EQ(label(), "Jingle Off");
}

TEST_F(InsertionSwitch, SwitchedOffByAReadingModeInTheGreenPhaseIsAsBefore) {
    start_with_items();
    machine.run_for(seconds(1));
    ASSERT_EQ(list().items_status.fore_colour.get(), green);
    list().defined_end_mode.click();
    EXPECT_EQ(list().items_status.fore_colour.get(), station.settings.coul_text_bouton);
}

TEST_F(InsertionSwitch, OfJinglesSwitchedOffByTheLampOfTheDecksInTheGreenPhaseIsAsBefore) {
    start_with_jingles(3);
    machine.run_for(seconds(1));
    ASSERT_EQ(list().jingles_status.fore_colour.get(), green);
    window().deck_chain_lamp.click();
    EXPECT_EQ(list().jingles_status.fore_colour.get(), station.settings.coul_text_bouton);
    EXPECT_EQ(label(), "Jingle Off");
}

TEST_F(InsertionSwitch, SwitchedOffInTheGreenPhaseBeginsGreenAgain) {
    start_with_jingles(3);
    machine.run_for(seconds(1));
    list().jingles_status.click();
    list().jingles_status.click();
    machine.run_for(seconds(1));
    EXPECT_EQ(list().jingles_status.fore_colour.get(), green);
}

TEST_F(InsertionSwitch, FlashOfItemsHasNoCount) {
    start_with_items();
    machine.run_for(seconds(1));
    EXPECT_EQ(list().items_status.caption.get(), "liste On");
}

} // namespace sonarelle
