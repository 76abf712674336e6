// The draws of random order, and the window that shows them.
#include "playout/draw_control.h"

#include "playout/random_order_fixture.h"

namespace sonarelle {

namespace {

using Kind = OnAirEvent::Kind;

/// Ten tracks of 100 s from the third row on, whose next row is loaded at second 87.
class DrawControlTest : public RandomOrderFixture {
protected:
    DrawControlTest() {
        open_tracks(std::vector<int>(10, 100));
        rows().select(3);
    }
    void run_to_the_load(std::initializer_list<float> numbers) {
        start_at_random();
        machine.random.then(numbers);
        machine.run_for(seconds(88));
    }
    void add_rows_up_to(int count) {
        while (rows().count() < count)
            rows().append({track(1), "0.10", "100.00", "", "100", ""});
    }
    void zap_at_40(std::initializer_list<float> numbers) {
        start_at_random();
        machine.run_for(seconds(40));
        machine.random.then(numbers);
        controls(1).zap.click();
    }
};

} // namespace

TEST_F(DrawControlTest, LoadStepLogsWhatItHitsAndWhatItTakes) {
    run_to_the_load({0.2F, 0.5F}); // row 3, which plays, and row 6
    EXPECT_EQ(log(), (Texts{"3 - Trouvé Nul", "6 - Pas Trouvé Ok"}));
    EXPECT_EQ(station.list.index_en_cours, 6);
}

TEST_F(DrawControlTest, LoadStepCountsNoNullDraws) {
    run_to_the_load({0.2F, 0.5F});
    EXPECT_EQ(station.chain.nb_tirages_nuls, 0);
}

TEST_F(DrawControlTest, ZapHasWordsOfItsOwnAndCountsItsHits) {
    zap_at_40({0.2F, 0.2F, 0.95F});
    EXPECT_EQ(log(), (Texts{"3 - Zapping Trouvé Nul", "3 - Zapping Trouvé Nul", "10 - Zapping Pas Trouvé Ok"}));
    EXPECT_EQ(station.chain.nb_tirages_nuls, 2);
    EXPECT_EQ(draws().null_draws.caption.get(), "2");
}

TEST_F(DrawControlTest, ShowsTheTableTheTotalsTheListAndTheDraw) {
    run_to_the_load({0.5F});
    EXPECT_EQ(draws().played.items.get(), Texts{"3"});
    EXPECT_EQ(draws().total.caption.get(), "1");
    EXPECT_EQ(draws().number.text(), "3");
    EXPECT_EQ(draws().finding.text(), "Total index ( 10)");
    EXPECT_EQ(draws().file.caption.get(), "Dans fichier C:\\Sonarelle\\essai.dfm");
    EXPECT_EQ(draws().drawn.text(), "6");
}

TEST_F(DrawControlTest, TellsEachDrawWithWhatWasPassedOver) {
    run_to_the_load({0.2F, 0.2F, 0.5F});
    const auto drawn = events_of(Kind::drawn);
    ASSERT_EQ(drawn.size(), 1U);
    EXPECT_EQ(drawn[0].row, 6);
    EXPECT_EQ(drawn[0].path, track(6));
    EXPECT_EQ(drawn[0].among, 10);
    ASSERT_EQ(drawn[0].passed_over.size(), 1U);
    EXPECT_EQ(drawn[0].passed_over[0].number, 3);
    EXPECT_EQ(drawn[0].passed_over[0].reason, "déjà tiré");
}

TEST_F(DrawControlTest, BeginsACycleAnewWhenAllRowsHaveBeenDrawn) {
    open_tracks({});
    rows().clear();
    open_tracks({100, 100, 100});
    start_at_random();
    machine.run_for(seconds(88));
    EXPECT_EQ(station.draw_tables.deja_lu.entries(), (std::vector<int>{1}));
    machine.run_for(seconds(94));
    EXPECT_EQ(station.draw_tables.deja_lu.entries().size(), 2U);
    machine.run_for(seconds(94));
    EXPECT_EQ(station.draw_tables.deja_lu.entries().size(), 1U);
    EXPECT_EQ(log().size() - 1U, events_of(Kind::drawn).back().passed_over.size());
}

TEST_F(DrawControlTest, OfTwoRowsBarsTheOneInPlayAlone) {
    rows().clear();
    open_tracks({100, 100});
    start_at_random();
    for (int turn = 0; turn < 5; ++turn) {
        machine.run_for(seconds(94));
        EXPECT_EQ(station.draw_tables.deja_lu.entries().size(), 1U);
    }
    EXPECT_EQ(rows_started(), (std::vector<int>{1, 2, 1, 2, 1, 2}));
}

TEST_F(DrawControlTest, NullDrawsBeginAnewWithEachRun) {
    station.chain.nb_tirages_nuls = 5;
    start_at_random();
    EXPECT_EQ(station.chain.nb_tirages_nuls, 0);
}

TEST_F(DrawControlTest, NullDrawsBeginAnewWithEachCycle) {
    rows().clear();
    open_tracks({100, 100, 100});
    start_at_random();
    machine.run_for(seconds(94 * 2));
    station.chain.nb_tirages_nuls = 5;
    draws().null_draws.caption = "5";
    machine.run_for(seconds(94)); // the third row in play begins the table anew
    EXPECT_EQ(station.chain.nb_tirages_nuls, 0);
    EXPECT_EQ(draws().null_draws.caption.get(), "0");
}

TEST_F(DrawControlTest, NullDrawsStayAtTheirGreatestAndTheAirGoesOn) {
    station.main_window.Active_journal1.click();
    start_at_random();
    machine.run_for(seconds(40));
    station.chain.nb_tirages_nuls = 32767;
    machine.random.then({0.2F, 0.5F});
    controls(1).zap.click();
    EXPECT_EQ(station.chain.nb_tirages_nuls, 32767);
    EXPECT_EQ(rows_started().back(), 6);
    EXPECT_NE(journal_text().find("Tirages nuls : "), std::string::npos);
}

TEST_F(DrawControlTest, DrawsNoRowBeyondTheChainsNumbers) {
    add_rows_up_to(40'000);
    run_to_the_load({0.9999F});
    EXPECT_EQ(station.list.index_en_cours, 32764);
}

TEST_F(DrawControlTest, ZapByKeyDrawsNoRowBeyondTheChainsNumbers) {
    add_rows_up_to(40'000);
    start_at_random();
    machine.run_for(seconds(40));
    machine.random.then({0.9999F});
    window().key_press(U'z');
    EXPECT_EQ(rows_started().back(), 32764);
}

TEST_F(DrawControlTest, KeepsTheLastThousandLines) {
    Draw draw;
    draw.hits.assign(1000, 7);
    draw.number = 8;
    station.draw_control.log(DrawControl::Lists::of_list, draw, {" a", " b", "c"});
    EXPECT_EQ(log().size(), 1000U);
    EXPECT_EQ(log().back(), "8 b");
}

TEST_F(DrawControlTest, FillsItsListsWhenItIsShown) {
    draws().close.click();
    EXPECT_FALSE(draws().visible);
    run_to_the_load({0.5F});
    EXPECT_TRUE(log().empty());
    station.main_window.Afficher_C_aleatoire.click();
    EXPECT_TRUE(draws().visible);
    EXPECT_EQ(log(), Texts{"6 - Pas Trouvé Ok"});
    EXPECT_EQ(draws().played.items.get(), Texts{"3"});
}

TEST_F(DrawControlTest, ListsAreClearedAndTheTableStays) {
    run_to_the_load({0.2F, 0.5F});
    draws().clear_lists.click();
    EXPECT_TRUE(log().empty());
    EXPECT_TRUE(draws().played.items.get().empty());
    EXPECT_EQ(draws().finding.text(), "");
    EXPECT_EQ(draws().total.caption.get(), "0");
    EXPECT_EQ(draws().null_draws.caption.get(), "0");
    EXPECT_TRUE(station.draw_tables.deja_lu.holds(3));
}

TEST_F(DrawControlTest, ShowsTheTableAgain) {
    run_to_the_load({0.5F});
    draws().clear_lists.click();
    draws().reload.click();
    EXPECT_EQ(draws().played.items.get(), Texts{"3"});
    EXPECT_EQ(draws().total.caption.get(), "1");
}

TEST_F(DrawControlTest, ShownAgainForgetsTheNullDraws) {
    zap_at_40({0.2F, 0.2F, 0.95F});
    draws().reload.click();
    EXPECT_EQ(station.chain.nb_tirages_nuls, 0);
    EXPECT_EQ(draws().null_draws.caption.get(), "0");
}

TEST_F(DrawControlTest, ClearsTheTable) {
    run_to_the_load({0.5F});
    draws().clear_table.click();
    EXPECT_TRUE(station.draw_tables.deja_lu.entries().empty());
    EXPECT_TRUE(draws().played.items.get().empty());
    EXPECT_EQ(draws().number.text(), "1");
    EXPECT_EQ(draws().finding.text(), "");
    EXPECT_EQ(draws().total.caption.get(), "0");
}

TEST_F(DrawControlTest, AddsTheCurrentRowByHand) {
    start_at_random();
    draws().add_current.click();
    EXPECT_EQ(log(), Texts{"3 - CH manuel"});
    EXPECT_EQ(draws().played.items.get(), Texts{"3"});
    EXPECT_EQ(draws().finding.text(), "Trouvé ");
    EXPECT_EQ(draws().total.caption.get(), "1");
}

TEST_F(DrawControlTest, ByHandWithoutACurrentRowAddsNothing) {
    station.list.index_en_cours = 0;
    draws().add_current.click();
    EXPECT_TRUE(station.draw_tables.deja_lu.entries().empty());
    EXPECT_EQ(log(), Texts{});
}

TEST_F(DrawControlTest, ByHandRenewsAFullTable) {
    start_at_random();
    for (int press = 0; press < 10; ++press)
        draws().add_current.click();
    EXPECT_EQ(station.draw_tables.deja_lu.entries(), std::vector<int>{3});
    EXPECT_EQ(log(), Texts{"3 - CH manuel"});
}

TEST_F(DrawControlTest, SaysOfANumberThatIsTypedWhetherItWasDrawn) {
    run_to_the_load({0.5F});
    draws().number.set_text("6");
    EXPECT_EQ(draws().finding.text(), "");
    draws().number.set_text("3");
    EXPECT_EQ(draws().finding.text(), "Oui ce nombre existe");
    draws().number.set_text("trois");
    EXPECT_EQ(draws().finding.text(), "");
}

TEST_F(DrawControlTest, WordsAtAFilesEndAreThoseOfItsDeck) {
    struct Case {
        int deck;
        const char* hit;
        const char* taken;
    };
    for (const auto& [deck, hit, taken] : {Case{1, "3 - B2 trouvé", "6 - B2 Ok"}, Case{2, "3 - B3 trouvé", "6 - B3 Ok"},
                                           Case{3, "3 - B1 trouvé", "6 - B1 Ok"}}) {
        station.chain.lecteur_en_cours = deck;
        station.list.index_en_cours = 3;
        draws().clear_table.click();
        draws().clear_lists.click();
        machine.random.then({0.2F, 0.5F});
        EXPECT_TRUE(station.row_cursor.take_drawn_row(DrawPlace::list_chain));
        EXPECT_EQ(log(), (Texts{hit, taken}));
    }
}

} // namespace sonarelle
