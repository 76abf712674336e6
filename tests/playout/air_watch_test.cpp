// A silence that nobody on the desk has asked for is told, and no other.
#include "playout/air_view.h"
#include "playout/chain_fixture.h"

namespace sonarelle {

namespace {

using Kind = OnAirEvent::Kind;

class AirWatchTest : public ChainFixture {
protected:
    AirWatchTest() { station.settings.veille_antenne = 0; }

    void play_for(int seconds_played) { machine.run_for(seconds(seconds_played)); }
    /// A list whose one row is on the air and has nothing behind it.
    void start_lonely_track(int length) {
        open_tracks({length});
        start_list();
    }
    [[nodiscard]] std::vector<double> silences() const {
        std::vector<double> begins;
        for (const auto& [at, event] : events)
            if (event.kind == Kind::silence)
                begins.push_back(in_seconds(at));
        return begins;
    }
    [[nodiscard]] std::vector<double> lengths_of_silences() const {
        std::vector<double> lengths;
        for (const auto& [at, event] : events)
            if (event.kind == Kind::silence_over)
                lengths.push_back(in_seconds(event.span));
        return lengths;
    }
    [[nodiscard]] std::string shown() const { return silence_text(station.desk); }

    static constexpr double told_after = 2;
};

using Seconds = std::vector<double>;

} // namespace

TEST_F(AirWatchTest, TellsASilenceAfterTwoSeconds) {
    start_lonely_track(20);
    play_for(21);
    EXPECT_EQ(shown(), "");
    play_for(2);
    EXPECT_EQ(silences(), Seconds{20 + told_after});
    EXPECT_EQ(events.back().second.ago, Frames{});
}

TEST_F(AirWatchTest, CountsTheSilenceFromItsBegin) {
    start_lonely_track(20);
    play_for(22);
    EXPECT_EQ(shown(), "00:02");
    play_for(70);
    EXPECT_EQ(shown(), "01:12");
}

TEST_F(AirWatchTest, TellsHowLongTheSilenceWasWhenSoundIsBack) {
    start_lonely_track(20);
    play_for(27);
    machine.add_track(track(2), 30);
    rows().append({track(2), "0.00", "30.00", "Rock", "100", ""});
    station.list_document.sauve_tout();
    play_for(2);
    ASSERT_EQ(lengths_of_silences().size(), 1U);
    EXPECT_NEAR(lengths_of_silences().front(), 7, 0.11); // the row is looked for every 100 ms
    EXPECT_EQ(shown(), "");
}

TEST_F(AirWatchTest, SilenceGoesFromTheDeskAsSoonAsSoundIsBack) {
    start_lonely_track(20);
    play_for(27);
    machine.add_track(track(2), 30);
    rows().append({track(2), "0.00", "30.00", "Rock", "100", ""});
    station.list_document.sauve_tout();
    machine.run_for(milliseconds(300)); // the row and the sound are each looked for every 100 ms
    ASSERT_EQ(rows_started().size(), 2U);
    EXPECT_EQ(shown(), "");
}

TEST_F(AirWatchTest, JournalsBeginAndEndOfASilence) {
    station.main_window.Active_journal.click();
    start_lonely_track(20);
    play_for(27);
    EXPECT_NE(journal_text().find(" Silence \xE0 l'antenne\r\n"), std::string::npos);
    machine.add_track(track(2), 30);
    rows().append({track(2), "0.00", "30.00", "Rock", "100", ""});
    station.list_document.sauve_tout();
    play_for(2);
    EXPECT_NE(journal_text().find(" Fin du silence apr\xE8s 7 s\r\n"), std::string::npos);
}

TEST_F(AirWatchTest, TellsAFileThatSoundsBelowTheLevelOfSilence) {
    open_tracks({30, 30});
    machine.media.set_quiet(track(1));
    start_list();
    play_for(5);
    EXPECT_EQ(silences(), Seconds{told_after});
}

TEST_F(AirWatchTest, SaysNothingBeforeAnythingWasStarted) {
    open_tracks({20});
    play_for(60);
    EXPECT_TRUE(silences().empty());
}

TEST_F(AirWatchTest, CountsFromTheStartAndNotFromTheIdleTimeBeforeIt) {
    open_tracks({30, 30});
    machine.media.set_quiet(track(1));
    play_for(60);
    start_list();
    play_for(5);
    EXPECT_EQ(silences(), Seconds{60 + told_after});
}

TEST_F(AirWatchTest, CountsFromTheInstantOfAStartBetweenTwoOfItsLooks) {
    open_tracks({30, 30});
    machine.media.set_quiet(track(1));
    machine.run_for(milliseconds(60'500));
    start_list();
    play_for(5);
    EXPECT_EQ(silences(), Seconds{60.5 + told_after});
}

TEST_F(AirWatchTest, SaysNothingOfAStoppedList) {
    open_tracks({30, 30});
    start_list();
    play_for(5);
    station.list_window.stop_decks.click();
    play_for(60);
    EXPECT_TRUE(silences().empty());
}

TEST_F(AirWatchTest, SaysNothingOfAStoppedDeck) {
    open_tracks({30, 30});
    start_list();
    play_for(5);
    controls(1).stop.click();
    play_for(60);
    EXPECT_TRUE(silences().empty());
}

TEST_F(AirWatchTest, SaysNothingOfAPause) {
    open_tracks({30, 30});
    start_list();
    play_for(5);
    controls(1).pause.click();
    play_for(60);
    EXPECT_TRUE(silences().empty());
}

TEST_F(AirWatchTest, SaysNothingOfAPauseOnceItIsOver) {
    open_tracks({60, 60});
    start_list();
    play_for(5);
    controls(1).pause.click();
    play_for(20);
    controls(1).pause.click();
    play_for(20);
    EXPECT_TRUE(silences().empty());
}

TEST_F(AirWatchTest, CountsSoundBelowTheLevelOfSilenceFromTheEndOfAPause) {
    open_tracks({60, 60});
    machine.media.set_quiet(track(1));
    start_list();
    play_for(1);
    controls(1).pause.click();
    play_for(20);
    controls(1).pause.click();
    play_for(5);
    EXPECT_EQ(silences(), Seconds{21 + told_after});
}

TEST_F(AirWatchTest, TellsTheEndOfADeckThatWasStoppedAndRunAgain) {
    start_lonely_track(20);
    play_for(5);
    controls(1).stop.click();
    play_for(5);
    controls(1).pause.click();
    play_for(30);
    EXPECT_EQ(silences(), Seconds{10 + 20 + told_after});
}

TEST_F(AirWatchTest, SaysNothingOfTheManualMode) {
    open_on_all({10, 10, 10});
    station.main_window.a_mode_manuel.click();
    controls(1).play.click();
    play_for(60);
    EXPECT_TRUE(silences().empty());
}

TEST_F(AirWatchTest, SaysNothingWhereTheManualModeLeftNothingOn) {
    open_on_all({10, 10, 10});
    controls(1).play.click();
    play_for(2);
    station.main_window.a_mode_manuel.click();
    play_for(10);
    station.main_window.a_mode_auto.click();
    play_for(60);
    EXPECT_TRUE(silences().empty());
}

TEST_F(AirWatchTest, TellsTheEndOfATrackThoughAnotherDeckWasStopped) {
    start_lonely_track(20);
    machine.add_track(track(2), 60);
    open_on(2, track(2));
    controls(2).stop.click();
    station.list_window.defined_end_mode.click();
    play_for(30);
    EXPECT_EQ(silences(), Seconds{20 + told_after});
}

TEST_F(AirWatchTest, EndsTheAlarmWhenTheOperatorStopsTheList) {
    start_lonely_track(20);
    play_for(30);
    station.list_window.stop_decks.click();
    play_for(1);
    EXPECT_EQ(shown(), "");
    EXPECT_EQ(lengths_of_silences().size(), 1U);
}

TEST_F(AirWatchTest, TellsTheEndOfAChainOverDecksThatHasNothingToFollow) {
    machine.add_track(track(1), 20);
    open_on(1, track(1));
    controls(1).play.click();
    play_for(30);
    EXPECT_EQ(silences(), Seconds{20 + told_after});
}

TEST_F(AirWatchTest, TellsAListThatAFaultHasStopped) {
    open_tracks({100});
    rows().append({"C:\\Parti\\a.mp3", "0.10", "100.00", "Rock", "100", ""});
    station.list_document.sauve_tout();
    rows().select(1);
    start_list();
    play_for(110);
    EXPECT_EQ(silences(), Seconds{100 + told_after});
}

TEST_F(AirWatchTest, TellsAStartThatFailed) {
    open_tracks({100});
    machine.media.set_unplayable(track(1));
    play_for(7);
    start_list();
    play_for(5);
    EXPECT_EQ(silences(), Seconds{7 + told_after});
}

TEST_F(AirWatchTest, TellsEachSilenceOnce) {
    start_lonely_track(20);
    play_for(3600);
    EXPECT_EQ(silences().size(), 1U);
}

} // namespace sonarelle
