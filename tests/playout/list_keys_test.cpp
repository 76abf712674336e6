// The keys of the list window.
#include "playout/desk_fixture.h"

namespace sonarelle {

namespace {

class ListKeys : public DeskFixture {
protected:
    ListKeys() {
        start();
        put_list("C:\\Sonarelle\\jour.dfm", 5);
        machine.dialogs.expect_open("C:\\Sonarelle\\jour.dfm");
        list.A_liste.click();
        rows().click(2);
    }

    void press(char32_t character) { list.key_press(character); }
    void press_in_rows(char32_t character) {
        rows().has_keyboard = true;
        press(character);
    }
    [[nodiscard]] bool plays() const { return station.desk.list_runs(); }

    Liste_son& list = station.list_window;
};

} // namespace

TEST_F(ListKeys, ReturnStartsTheListOnce) {
    press_in_rows(U'\r');
    EXPECT_TRUE(plays());
    EXPECT_EQ(station.list.ligne_en_lecture, 2);
}

TEST_F(ListKeys, SStopsTheDecks) {
    press(U'\r');
    press(U's');
    EXPECT_FALSE(plays());
}

TEST_F(ListKeys, ZZapsAndPPauses) {
    press(U'\r');
    machine.run_for(seconds(40));
    press(U'Z');
    machine.run_for(seconds(20));
    EXPECT_EQ(station.list.ligne_en_lecture, 3);
    press(U'p');
    EXPECT_EQ(station.deck_ring.main_deck().graph().GetState(), MediaState::paused);
}

TEST_F(ListKeys, BAndHTurnTheMainDeck) {
    press(U'\r');
    const int before = station.deck_ring.main_deck().controls.slider.value();
    press(U'b');
    EXPECT_GT(station.deck_ring.main_deck().controls.slider.value(), before);
    press(U'H');
    EXPECT_EQ(station.deck_ring.main_deck().controls.slider.value(), before);
}

TEST_F(ListKeys, CLoadsAList) {
    machine.dialogs.expect_cancel();
    press(U'c');
    EXPECT_EQ(machine.dialogs.asked().back().title, "Ouvrir un fichier liste");
}

TEST_F(ListKeys, VEmptiesTheTable) {
    press(U'V');
    EXPECT_EQ(rows().count(), 0);
}

TEST_F(ListKeys, VOnTheAirAsksAndLeavesTheRowsAtNo) {
    press(U'\r');
    machine.dialogs.expect_box("titre 2.mp3 est à l'antenne", Answer::no);
    press(U'v');
    EXPECT_EQ(rows().count(), 5);
    EXPECT_EQ(machine.dialogs.asked().back().default_button, 2);
}

TEST_F(ListKeys, AListThatIsLoadedOverAnEmptiedOneGoesOnTheAirFromItsFirstRow) {
    press(U'\r');
    machine.run_for(seconds(10));
    machine.dialogs.expect_box("est à l'antenne", Answer::yes);
    press(U'v');
    put_list("C:\\Sonarelle\\soir.dfm", 4);
    machine.dialogs.expect_open("C:\\Sonarelle\\soir.dfm");
    press(U'c');
    machine.run_for(seconds(200));
    EXPECT_EQ(station.list.ligne_en_lecture, 1);
    EXPECT_TRUE(plays());
}

TEST_F(ListKeys, AnEmptiedListStopsNothingUntilAnotherOneComes) {
    press(U'\r');
    machine.run_for(seconds(10));
    machine.dialogs.expect_box("est à l'antenne", Answer::yes);
    press(U'v');
    machine.run_for(seconds(188)); // beyond the mix point
    EXPECT_NE(station.chain.air, AirState::failed);
    put_list("C:\\Sonarelle\\soir.dfm", 4);
    machine.dialogs.expect_open("C:\\Sonarelle\\soir.dfm");
    press(U'c');
    machine.run_for(seconds(10));
    EXPECT_TRUE(plays());
    EXPECT_EQ(station.list.ligne_en_lecture, 1);
}

TEST_F(ListKeys, ReturnCutsNothingThatSoundsOnTheFirstDeck) {
    machine.add_track("C:\\a.mp3", 60);
    station.deck_ring.deck(1).controls.open.drop_files({"C:\\a.mp3"});
    station.deck_ring.deck(1).controls.play.click();
    ASSERT_TRUE(station.deck_ring.deck(1).sounds());
    press(U'\r');
    EXPECT_EQ(station.deck_ring.deck(1).path, "C:\\a.mp3");
    EXPECT_EQ(list.list_status.caption.get(), "Le lecteur 1 est à l'antenne");
}

TEST_F(ListKeys, SpaceInTheRowsRemovesTheSelectedOne) {
    press_in_rows(U' ');
    EXPECT_EQ(rows().count(), 4);
    EXPECT_EQ(rows().text(2), "C:\\Musique\\titre 3.mp3");
}

TEST_F(ListKeys, SpaceElsewhereRemovesNone) {
    press(U' ');
    EXPECT_EQ(rows().count(), 5);
}

TEST_F(ListKeys, SpaceRemovesNoRowThatCannotBeSeen) {
    rows().is_on_view = [](int) { return false; };
    press_in_rows(U' ');
    EXPECT_EQ(rows().count(), 5);
}

TEST_F(ListKeys, SpaceOnThePlayingRowAsksFirst) {
    press(U'\r');
    machine.dialogs.expect_box("titre 2.mp3 est à l'antenne\nRetirer cette ligne de la liste ?", Answer::no);
    press_in_rows(U' ');
    EXPECT_EQ(rows().count(), 5);
    machine.dialogs.expect_box("titre 2.mp3 est à l'antenne", Answer::yes);
    press_in_rows(U' ');
    EXPECT_EQ(rows().count(), 4);
    EXPECT_TRUE(station.deck_ring.main_deck().sounds());
}

TEST_F(ListKeys, EscapeAndQCloseTheWindowAndKeepItsPlace) {
    list.show();
    list.left = Twips{345};
    press(U'\x1b');
    EXPECT_FALSE(list.visible);
    EXPECT_TRUE(window.visible);
    EXPECT_EQ(stored("Position_gauche_liste", "Position"), "345");
    list.show();
    press(U'q');
    EXPECT_FALSE(list.visible);
}

TEST_F(ListKeys, MOpensTheSmallPlayerAndSoDoesTheUpperOInTheRows) {
    press(U'M');
    EXPECT_TRUE(station.small_player.visible);
    station.small_player.hide();
    press_in_rows(U'O');
    EXPECT_TRUE(station.small_player.visible);
}

TEST_F(ListKeys, TheLessThanSignTwiceGivesTheFirstPlaceBack) {
    list.left = Twips{300};
    list.top = Twips{450};
    list.width = Twips{15000};
    list.height = Twips{9000};
    press(U'<');
    EXPECT_EQ(list.left.get(), window.left.get());
    EXPECT_EQ(list.width.get(), window.width.get());
    EXPECT_LE(list.height.get(), Twips{4400});
    press(U'<');
    EXPECT_EQ(list.left.get(), Twips{300});
    EXPECT_EQ(list.top.get(), Twips{450});
    EXPECT_EQ(list.width.get(), Twips{15000});
    EXPECT_EQ(list.height.get(), Twips{9000});
}

TEST_F(ListKeys, WhatTheRowsTakeIsCounted) {
    press_in_rows(U' ');
    EXPECT_EQ(list.list_status.caption.get(), "Nb de morceaux : 4 (2)");
}

TEST_F(ListKeys, APressedRowTellsItsNumberAndIsWhereTheListGoesOn) {
    press(U'\r');
    rows().click(4);
    EXPECT_EQ(list.list_status.caption.get(), "Nb de morceaux : 4 / 5");
    machine.run_for(seconds(200));
    EXPECT_EQ(station.list.ligne_en_lecture, 5);
}

TEST_F(ListKeys, APressedRowLeavesADrawnOneToCome) {
    station.chain.choix_prepare = true;
    rows().click(4);
    EXPECT_EQ(station.list.index_en_cours, 2);
}

TEST_F(ListKeys, ARowThatIsPressedTwiceGoesOnTheFirstDeckAndWaitsThere) {
    rows().double_click(3);
    EXPECT_EQ(station.deck_ring.deck(1).path, "C:\\Musique\\titre 3.mp3");
    EXPECT_FALSE(station.deck_ring.deck(1).sounds());
    EXPECT_EQ(station.list.ligne_en_lecture, 3);
}

TEST_F(ListKeys, ARowThatIsPressedTwiceCutsNothingOnTheAir) {
    press(U'\r');
    rows().double_click(3);
    EXPECT_EQ(station.deck_ring.deck(1).path, "C:\\Musique\\titre 2.mp3");
    EXPECT_TRUE(station.deck_ring.deck(1).sounds());
}

TEST_F(ListKeys, ARowWithoutItsFileIsToldWhenItIsPressedTwice) {
    machine.disk.Kill("C:\\Musique\\titre 3.mp3");
    machine.dialogs.expect_box("C:\\Musique\\titre 3.mp3\nCe fichier est NON TROUVE !\n"
                               "Il est peut etre situé sur le réseau ?",
                               Answer::ok);
    rows().double_click(3);
    EXPECT_EQ(list.list_status.caption.get(), "Fichier non trouve");
}

} // namespace sonarelle
