// The search box of the list window.
#include <gmock/gmock.h>

#include "playlist/edited_list_fixture.h"

namespace sonarelle {

namespace {

using testing::ElementsAre;

class ListSearchTest : public EditedList {
protected:
    void open_titles() { open_rows({"C:\\Aube.mp3", "C:\\Été indien.mp3", "C:\\ete 2.mp3", "C:\\Œuvre.mp3"}, 1); }
    void type(const char* text) { list.search.set_text(text); }
    void rest() { machine.run_for(seconds(1)); }
};

} // namespace

TEST_F(ListSearchTest, TheFirstRowThatHoldsTheTextIsSelected) {
    open_titles();
    type("INDIEN");
    EXPECT_EQ(rows().selected(), 2);
}

TEST_F(ListSearchTest, AccentsAreOfNoConcern) {
    open_titles();
    type("ete");
    EXPECT_EQ(rows().selected(), 2);
    type("éte 2");
    EXPECT_EQ(rows().selected(), 3);
    type("œuvre");
    EXPECT_EQ(rows().selected(), 4);
}

TEST_F(ListSearchTest, TheHitsAreCountedAndGoneThroughRoundTheEnd) {
    open_titles();
    type("ete");
    EXPECT_EQ(list.search_hits.caption.get(), "1 / 2");
    list.find_next.click();
    EXPECT_EQ(rows().selected(), 3);
    EXPECT_EQ(list.search_hits.caption.get(), "2 / 2");
    list.find_next.click();
    EXPECT_EQ(rows().selected(), 2);
    list.find_previous.click();
    EXPECT_EQ(rows().selected(), 3);
}

TEST_F(ListSearchTest, WithoutAHitTheLastRowIsSelectedAndItIsToldWhenTheHandRests) {
    open_titles();
    type("zzz");
    EXPECT_EQ(rows().selected(), 4);
    EXPECT_EQ(list.search_hits.caption.get(), "aucun");
    EXPECT_THAT(machine.dialogs.asked().size(), 1U) << "the dialog of the list";
    machine.dialogs.expect_box("Fichier non trouvé", Answer::ok);
    rest();
}

TEST_F(ListSearchTest, AWordThatGrowsFromOneThatWasNotFoundIsToldOnce) {
    open_titles();
    machine.dialogs.expect_box("Fichier non trouvé", Answer::ok);
    type("zz");
    rest();
    type("zzz");
    rest();
    type("aube");
    machine.dialogs.expect_box("Fichier non trouvé", Answer::ok);
    type("zzz");
    rest();
}

TEST_F(ListSearchTest, AnEntryThatWasChosenIsToldAtOnce) {
    open_titles();
    list.search.items = {"C:\\absent.mp3"};
    machine.dialogs.expect_box("Non trouvé", Answer::ok);
    list.search.choose(0);
    rest();
}

TEST_F(ListSearchTest, TheUntouchedBoxLooksForNothing) {
    open_titles();
    for (const char* text : {"x", "Recherche ", "", "Rechercher"}) {
        type(text);
        rows().select(1);
    }
    rest();
    EXPECT_EQ(rows().selected(), 1);
}

TEST_F(ListSearchTest, AnEmptyTableHasNothingToTell) {
    type("zzz");
    rest();
    EXPECT_EQ(rows().selected(), 0);
}

TEST_F(ListSearchTest, WhatASearchSelectsIsNoPlaceForTheProgrammeUntilItIsPressed) {
    open_titles();
    type("indien");
    EXPECT_TRUE(rows().is_looked_at());
    EXPECT_EQ(station.list.index_en_cours, 1);
    rows().click(2);
    EXPECT_FALSE(rows().is_looked_at());
    EXPECT_EQ(station.list.index_en_cours, 2);
}

TEST_F(ListSearchTest, NothingIsKeptWhileTheBoxIsUntouched) {
    list.search_label.click();
    type("Recherche ");
    list.search_label.click();
}

TEST_F(ListSearchTest, AnEmptyBoxHasNothingToKeep) {
    type("");
    machine.dialogs.expect_box("Rien a sauvegarder !", Answer::ok);
    list.search_label.click();
}

TEST_F(ListSearchTest, ThePathLastSentToADeckIsKept) {
    open_titles();
    station.list.chemin_fichier = "C:\\Été indien.mp3";
    type("ete");
    for (int turn = 1; turn <= 2; ++turn) {
        machine.dialogs.expect_box("Conservez cette recherche ? - C:\\Été indien.mp3", Answer::yes);
        list.search_label.click();
    }
    EXPECT_THAT(list.search.items.get(), ElementsAre("C:\\Été indien.mp3", "C:\\Été indien.mp3"));
    EXPECT_EQ(machine.disk.bytes("C:\\Sonarelle\\recherche.dit").size(), 400U);
    EXPECT_EQ(list.search.text(), "ete");
}

TEST_F(ListSearchTest, NoKeepsNothingAndReadsTheEntriesAgain) {
    machine.disk.put_file("C:\\Sonarelle\\recherche.dit", "mot" + std::string(197, ' '));
    type("x");
    machine.dialogs.expect_box("Conservez cette recherche ? - ", Answer::no);
    list.search_label.click();
    EXPECT_THAT(list.search.items.get(), ElementsAre("mot"));
    EXPECT_EQ(machine.disk.bytes("C:\\Sonarelle\\recherche.dit").size(), 200U);
}

TEST_F(ListSearchTest, BeforeAnyRowWentToADeckTheEntryIsEmpty) {
    type("x");
    machine.dialogs.expect_box("Conservez cette recherche ? - ", Answer::yes);
    list.search_label.click();
    EXPECT_EQ(machine.disk.bytes("C:\\Sonarelle\\recherche.dit"), std::string(200, ' '));
    EXPECT_THAT(list.search.items.get(), ElementsAre(""));
}

TEST_F(ListSearchTest, AFileThatCannotBeReadIsTold) {
    machine.disk.put_file("C:\\Sonarelle\\recherche.dit", std::string(200, ' '));
    machine.disk.fail_read_at("C:\\Sonarelle\\recherche.dit", 0);
    machine.dialogs.expect_box("Erreur chargement recherche précédente", Answer::ok);
    station.list_wiring.search_words.charge_recherche();
}

} // namespace sonarelle
