// What names a row by its number goes with it when rows come and go.
#include "playlist/row_edits.h"

#include <gtest/gtest.h>

#include <string>

#include "platform/controls.h"
#include "platform/failure.h"

namespace sonarelle {

namespace {

class RowEditsTest : public testing::Test {
protected:
    RowEditsTest() {
        for (const char* path : {"a", "b", "c", "d", "e"})
            rows.append({path});
        list.ligne_en_lecture = list.index_en_cours = chain.element_en_cours = 3;
        rows.select(3);
    }

    void expect_places(int playing, int current) {
        EXPECT_EQ(list.ligne_en_lecture, playing);
        EXPECT_EQ(list.index_en_cours, current);
    }
    [[nodiscard]] std::string paths() const {
        std::string all;
        for (int row = 1; row <= rows.count(); ++row)
            all += rows.text(row);
        return all;
    }

    Window window{"Liste_son"};
    RowTable rows{window, "ListView1", {}};
    ListState list;
    ChainState chain;
    RowEdits edits{list, chain, rows};
};

} // namespace

TEST_F(RowEditsTest, InsertionBeforeTheRowsInForceMovesThem) {
    edits.insert(2, {"x"});
    expect_places(4, 4);
    EXPECT_EQ(chain.element_en_cours, 4);
}

TEST_F(RowEditsTest, InsertionAtTheRowsInForceMovesThem) {
    edits.insert(3, {"x"});
    expect_places(4, 4);
    EXPECT_EQ(rows.selected(), 4);
}

TEST_F(RowEditsTest, InsertionBehindThemLeavesThem) {
    edits.insert(4, {"x"});
    expect_places(3, 3);
    EXPECT_EQ(rows.text(4), "x");
}

TEST_F(RowEditsTest, RemovalBeforeThemMovesThem) {
    edits.remove(1);
    expect_places(2, 2);
    EXPECT_EQ(chain.element_en_cours, 2);
    EXPECT_EQ(rows.selected(), 2);
}

TEST_F(RowEditsTest, RemovalBehindThemLeavesThem) {
    edits.remove(4);
    expect_places(3, 3);
}

TEST_F(RowEditsTest, OnTheAirTheChainGoesOnWithTheRowThatTakesThePlaceOfARemovedOne) {
    chain.lecteur_en_cours = 1;
    edits.remove(3);
    expect_places(3, 2);
}

TEST_F(RowEditsTest, OffTheAirTheRowThatTakesThePlaceIsTheCurrentOne) {
    edits.remove(3);
    expect_places(3, 3);
}

TEST_F(RowEditsTest, InsertionBehindTheChainsRowGivesTheLoadedOneUp) {
    chain.chargement_fait = true;
    edits.insert(4, {"x"});
    EXPECT_TRUE(chain.chargement_fait.is_false());
}

TEST_F(RowEditsTest, InsertionFurtherBehindKeepsTheLoadedRow) {
    chain.chargement_fait = true;
    edits.insert(5, {"x"});
    EXPECT_TRUE(chain.chargement_fait.is_true());
}

TEST_F(RowEditsTest, RemovalOfTheLoadedRowGivesItUp) {
    chain.chargement_fait = true;
    edits.remove(4);
    EXPECT_TRUE(chain.chargement_fait.is_false());
}

TEST_F(RowEditsTest, ADrawnRowIsFollowedToItsNewPlace) {
    chain.chargement_fait = chain.choix_prepare = true;
    edits.insert(1, {"x"});
    EXPECT_EQ(list.index_en_cours, 4);
    EXPECT_TRUE(chain.choix_prepare.is_true());
    EXPECT_TRUE(chain.chargement_fait.is_true());
}

TEST_F(RowEditsTest, InsertionBehindADrawnRowKeepsItLoaded) {
    chain.chargement_fait = chain.choix_prepare = true;
    edits.insert(4, {"x"});
    EXPECT_TRUE(chain.chargement_fait.is_true());
}

TEST_F(RowEditsTest, ADrawnRowThatIsRemovedIsDrawnAnew) {
    chain.chargement_fait = chain.choix_prepare = true;
    edits.remove(3);
    EXPECT_TRUE(chain.choix_prepare.is_false());
    EXPECT_TRUE(chain.chargement_fait.is_false());
}

TEST_F(RowEditsTest, RemovalOfTheFirstRowGivesItUpWhereItWasLoadedBehindTheLast) {
    list.index_en_cours = 5;
    chain.chargement_fait = true;
    edits.remove(1);
    EXPECT_EQ(list.index_en_cours, 4);
    EXPECT_TRUE(chain.chargement_fait.is_false());
}

TEST_F(RowEditsTest, ARowThatMovesDownLandsBeforeItsTarget) {
    edits.move(1, 4);
    EXPECT_EQ(paths(), "bcade");
}

TEST_F(RowEditsTest, ARowThatMovesUpLandsAtItsTarget) {
    edits.move(5, 2);
    EXPECT_EQ(paths(), "aebcd");
}

TEST_F(RowEditsTest, ARowThatMovesBeforeItselfOrTheNextOneStays) {
    edits.move(3, 3);
    edits.move(3, 4);
    EXPECT_EQ(paths(), "abcde");
    expect_places(3, 3);
}

TEST_F(RowEditsTest, AMovedRowTakesAllThatNamesItAlong) {
    edits.move(3, 1);
    expect_places(1, 1);
    EXPECT_EQ(chain.element_en_cours, 1);
    EXPECT_EQ(rows.selected(), 1);
}

TEST_F(RowEditsTest, ARowThatMovesDownPastThemRaisesThem) {
    edits.move(1, 5);
    expect_places(2, 2);
    EXPECT_EQ(rows.selected(), 2);
}

TEST_F(RowEditsTest, ARowThatMovesUpPastThemLowersThem) {
    edits.move(5, 3);
    expect_places(4, 4);
    EXPECT_EQ(rows.selected(), 4);
}

TEST_F(RowEditsTest, AMoveOnOneSideLeavesThem) {
    edits.move(1, 3);
    expect_places(3, 3);
    edits.move(5, 4);
    expect_places(3, 3);
}

TEST_F(RowEditsTest, AMoveKeepsTheLoadedRowWhileItIsTheNextOne) {
    chain.chargement_fait = true;
    edits.move(1, 5);
    edits.move(5, 1);
    EXPECT_TRUE(chain.chargement_fait.is_true());
}

TEST_F(RowEditsTest, AMoveBetweenThemGivesTheLoadedRowUp) {
    chain.chargement_fait = true;
    edits.move(1, 4);
    EXPECT_TRUE(chain.chargement_fait.is_false());
}

TEST_F(RowEditsTest, AMoveOfTheLoadedRowGivesItUp) {
    chain.chargement_fait = true;
    edits.move(4, 1);
    EXPECT_TRUE(chain.chargement_fait.is_false());
}

TEST_F(RowEditsTest, AMovedRowThatWasDrawnStaysPrepared) {
    chain.chargement_fait = chain.choix_prepare = true;
    edits.move(3, 1);
    EXPECT_EQ(list.index_en_cours, 1);
    EXPECT_TRUE(chain.choix_prepare.is_true());
    EXPECT_TRUE(chain.chargement_fait.is_true());
}

TEST_F(RowEditsTest, APlaceThatDoesNotExistMovesNothing) {
    EXPECT_THROW(edits.move(2, 6), Failure);
    EXPECT_THROW(edits.move(6, 2), Failure);
    EXPECT_EQ(paths(), "abcde");
    expect_places(3, 3);
}

TEST_F(RowEditsTest, ThePlacesEndWithTheRowsThatCanBePlayed) {
    while (rows.count() < INT16_MAX)
        rows.append({"x"});
    list.index_en_cours = INT16_MAX;
    edits.insert(1, {"x"});
    EXPECT_EQ(list.index_en_cours, INT16_MAX);
}

} // namespace sonarelle
