// A list of one row has no next one: the chain looks for it until one turns up, or until nobody needs it any more.
#include "playout/row_walk.h"

#include "playout/chain_fixture.h"

namespace sonarelle {

namespace {

using Paths = std::vector<std::string>;

class RowWalkTest : public ChainFixture {
protected:
    static constexpr std::string_view by_hand = "C:\\main.mp3";
    static constexpr std::string_view added = "C:\\neuf.mp3";

    void start_list_of_one_row() {
        open_tracks({100});
        start_list();
    }
    void open_by_hand_on(int deck) {
        machine.add_track(by_hand, 100);
        open_on(deck, by_hand);
    }
    void add_row() {
        machine.add_track(added, 100);
        rows().append({std::string{added}, "0.10", "100.00", "Rock", "100", ""});
        station.list_document.sauve_tout();
    }
};

} // namespace

TEST_F(RowWalkTest, ForTheLoadEndsOnceTheOperatorMixesTitles) {
    start_list_of_one_row();
    machine.run_for(seconds(88));
    station.main_window.mix_titles.click();
    open_by_hand_on(2);
    add_row();
    machine.run_for(seconds(1));
    EXPECT_EQ(station.chain.chemin_lecture2, by_hand);
}

TEST_F(RowWalkTest, ForTheLoadEndsOnceAnotherDeckIsTheMainOne) {
    start_list_of_one_row();
    machine.run_for(seconds(88));
    open_by_hand_on(2);
    controls(2).play.click();
    add_row();
    machine.run_for(seconds(1));
    EXPECT_EQ(station.chain.chemin_lecture3, "");
}

TEST_F(RowWalkTest, ForTheLoadGoesOnWhenAnotherDeckIsStopped) {
    start_list_of_one_row();
    machine.run_for(seconds(88));
    controls(3).stop.click();
    add_row();
    machine.run_for(seconds(1));
    EXPECT_EQ(station.chain.chemin_lecture2, added);
}

TEST_F(RowWalkTest, ForTheLoadEndsWhenTheDeckOnTheAirIsStopped) {
    start_list_of_one_row();
    machine.run_for(seconds(88));
    controls(1).stop.click();
    add_row();
    machine.run_for(seconds(1));
    EXPECT_EQ(station.chain.chemin_lecture2, "");
}

TEST_F(RowWalkTest, ForTheMixEndsOnceTheOperatorMixesTitles) {
    start_list_of_one_row();
    machine.run_for(seconds(110));
    station.main_window.mix_titles.click();
    add_row();
    machine.run_for(seconds(1));
    EXPECT_TRUE(machine.media.on_air().empty());
}

TEST_F(RowWalkTest, ForTheMixLeavesTheDeckThatTheOperatorPlaysOnTheAir) {
    start_list_of_one_row();
    machine.run_for(seconds(110));
    open_by_hand_on(2);
    controls(2).play.click();
    add_row();
    machine.run_for(seconds(5));
    EXPECT_EQ(machine.media.on_air(), Paths{std::string{by_hand}});
}

TEST_F(RowWalkTest, LooksAtFourHundredRowsAndLetsTheStationGoOn) {
    station.main_window.Active_journal.click();
    machine.add_track(track(1), 3);
    std::vector<enreg_liste> records{record_of(track(1), "3", 100, 0.0)};
    for (int row = 2; row <= 900; ++row)
        records.push_back(record_of("C:\\Parti\\" + std::to_string(row) + ".mp3"));
    open_list("C:\\Sonarelle\\essai.dfm", records);
    rows().select(1);
    start_list();
    machine.run_for(seconds(2));
    EXPECT_NE(journal_text().find("\\400.mp3 Dossier absent"), std::string::npos);
    EXPECT_EQ(journal_text().find("\\402.mp3 Dossier absent"), std::string::npos);
}

} // namespace sonarelle
