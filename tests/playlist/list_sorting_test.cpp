// The list is sorted by its paths.
#include <gmock/gmock.h>

#include "playlist/edited_list_fixture.h"

namespace sonarelle {

namespace {

using testing::ElementsAre;

class ListSortingTest : public EditedList {
protected:
    void sort(Answer answer) {
        machine.dialogs.expect_box("Vous allez modifier l'ordre de lecture de la liste ..\n"
                                   "il est possible de la sauvegarder au paravent!\n"
                                   "Continuer le trie ?",
                                   answer);
        rows().click_heading();
    }
};

} // namespace

TEST_F(ListSortingTest, AHeadingSortsByThePathsAndSaves) {
    open_rows({"b", "C", "a"}, 1);
    sort(Answer::yes);
    EXPECT_THAT(paths(), ElementsAre("a", "b", "C"));
    EXPECT_THAT(saved_paths(), ElementsAre("a", "b", "C"));
}

TEST_F(ListSortingTest, TheNextSortGoesTheOtherWay) {
    open_rows({"b", "c", "a"}, 1);
    sort(Answer::yes);
    sort(Answer::yes);
    EXPECT_THAT(paths(), ElementsAre("c", "b", "a"));
}

TEST_F(ListSortingTest, NoLeavesTheRowsAndTheOrderToCome) {
    open_rows({"b", "c", "a"}, 1);
    sort(Answer::no);
    EXPECT_THAT(paths(), ElementsAre("b", "c", "a"));
    sort(Answer::yes);
    EXPECT_THAT(paths(), ElementsAre("a", "b", "c"));
}

TEST_F(ListSortingTest, WhereModificationsAreNotSavedItIsRefused) {
    open_rows({"b", "a"}, 1);
    list.a_Ne_pas_Sauve.click();
    machine.dialogs.expect_box("Traitement impossible avec l'option", Answer::ok);
    rows().click_heading();
    EXPECT_THAT(paths(), ElementsAre("b", "a"));
}

TEST_F(ListSortingTest, ThePlayingRowIsFollowedToItsPlace) {
    open_rows({"b", "c", "a"}, 2);
    station.list.ligne_en_lecture = 2;
    sort(Answer::yes);
    EXPECT_EQ(station.list.ligne_en_lecture, 3);
    EXPECT_EQ(station.list.index_en_cours, 3);
}

TEST_F(ListSortingTest, WhatWasMadeReadyForTheAirIsGivenUp) {
    open_rows({"b", "a"}, 1);
    station.chain.choix_prepare = station.chain.chargement_fait = true;
    sort(Answer::yes);
    EXPECT_TRUE(station.chain.choix_prepare.is_false());
    EXPECT_TRUE(station.chain.chargement_fait.is_false());
}

} // namespace sonarelle
