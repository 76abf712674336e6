// What names a row by its number goes with it when rows come and go.
#include "playlist/row_edits.h"

#include <gtest/gtest.h>

#include "platform/controls.h"

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

} // namespace sonarelle
