// A zap at every second of a track's first minute, by key and by button, in the reading modes.
#include <tuple>

#include "playout/chain_fixture.h"

namespace sonarelle {

namespace {

using Kind = OnAirEvent::Kind;

enum class Door { key, button };

class ZapGrid : public ChainFixture, public testing::WithParamInterface<std::tuple<int, Door, int>> {
protected:
    [[nodiscard]] int option() const { return std::get<0>(GetParam()); }
    [[nodiscard]] Door door() const { return std::get<1>(GetParam()); }
    [[nodiscard]] int second() const { return std::get<2>(GetParam()); }
    [[nodiscard]] bool is_refused() const { return option() != 1 && door() == Door::key && second() <= 30; }

    void start_in_option() {
        open_tracks({200, 200, 200});
        OptionButton& chosen = option() == 1   ? station.list_window.player_mode
                               : option() == 2 ? station.list_window.random_mode
                               : option() == 3 ? station.list_window.defined_end_mode
                                               : station.list_window.full_length_mode;
        chosen.click();
        station.list_window.play_list.click();
    }

    void zap() {
        if (is_refused())
            machine.dialogs.expect_box("30 secondes minimun sont demandées", Answer::ok);
        if (door() == Door::key)
            station.main_window.key_press(U'z');
        else
            controls(1).zap.click();
    }
};

std::string name_of(const testing::TestParamInfo<std::tuple<int, Door, int>>& info) {
    const auto [option, door, second] = info.param;
    return "Option" + std::to_string(option) + (door == Door::key ? "ByKeyAt" : "ByButtonAt") + std::to_string(second);
}

} // namespace

TEST_P(ZapGrid, GoesOverAtOnceOrIsRefusedAndTheAirGoesOn) {
    start_in_option();
    machine.run_for(seconds(second()));
    zap();
    const Times expected = is_refused() ? Times{{0, 1}} : Times{{0, 1}, {static_cast<double>(second()), 2}};
    EXPECT_EQ(times_of(Kind::started), expected);
    machine.run_for(seconds(199));
    EXPECT_FALSE(machine.media.on_air().empty());
    EXPECT_GE(times_of(Kind::started).size(), 2U);
}

INSTANTIATE_TEST_SUITE_P(FirstMinute, ZapGrid,
                         testing::Combine(testing::Values(1, 2, 3, 4), testing::Values(Door::key, Door::button),
                                          testing::Range(1, 61)),
                         name_of);

namespace {

class ZapTest : public ChainFixture {
protected:
    void start_and_run(int seconds_played) {
        open_tracks({200, 200, 200, 200});
        start_list();
        machine.run_for(seconds(seconds_played));
    }
    [[nodiscard]] std::string end_in_list(std::size_t row) {
        return record_in(machine.disk.bytes("C:\\Sonarelle\\essai.dfm"), row).trimmed_fin_lecture();
    }
};

} // namespace

TEST_F(ZapTest, RefusedChangesNothing) {
    start_and_run(20);
    const std::string before = machine.disk.bytes("C:\\Sonarelle\\essai.dfm");
    machine.dialogs.expect_box("Action mpossible avec l'option :\nMode enchainement auto liste prédéfini\n"
                               "du menu Option\n30 secondes minimun sont demandées",
                               Answer::ok);
    station.main_window.key_press(U'z');
    EXPECT_EQ(machine.disk.bytes("C:\\Sonarelle\\essai.dfm"), before);
    EXPECT_EQ(station.list_window.zap_status.caption.get(), "Zapping autorisé");
    machine.run_for(seconds(180));
    EXPECT_EQ(times_of(Kind::started), (Times{{0, 1}, {194, 2}}));
}

TEST_F(ZapTest, AcceptedEndsTheTrackAtThatSecondInTheNextTurn) {
    start_and_run(50);
    station.main_window.key_press(U'z');
    machine.run_for(seconds(194 * 3));
    ASSERT_EQ(rows_started().back(), 1);
    EXPECT_EQ(controls(2).counter.caption.get(), "50");
    machine.run_for(seconds(45));
    EXPECT_EQ(rows_started().back(), 2);
}

TEST_F(ZapTest, ByTheButtonLeavesTheList) {
    start_and_run(50);
    controls(1).zap.click();
    EXPECT_EQ(end_in_list(1), "200.00");
    EXPECT_EQ(station.chain.position_zap, 0);
}

TEST_F(ZapTest, KeepsItsPositionForLaterFades) {
    machine.add_track(track(1), 200);
    machine.add_track(track(2), 200);
    machine.add_track(track(3), 200);
    open_list("C:\\Sonarelle\\essai.dfm",
              {record_of(track(1), "200"), record_of(track(2), "200", 100, 5.6), record_of(track(3), "200")});
    rows().select(1);
    start_list();
    machine.run_for(seconds(50));
    station.main_window.key_press(U'z');
    EXPECT_EQ(station.chain.position_zap, 6);
    machine.run_for(seconds(250));
    EXPECT_EQ(station.chain.position_zap, 6);
    EXPECT_EQ(rows_started(), (std::vector<int>{1, 2, 3}));
}

TEST_F(ZapTest, LeavesAStalePositionByWhichALaterFadeIsReleased) {
    for (const int row : {1, 2, 3})
        machine.add_track(track(row), 200);
    open_list("C:\\Sonarelle\\essai.dfm",
              {record_of(track(1), "200"), record_of(track(2), "200", 100, 5.6), record_of(track(3), "200", 100, 0.0)});
    rows().select(1);
    start_list();
    machine.run_for(seconds(50));
    station.main_window.key_press(U'z');
    machine.run_for(seconds(230));
    const double begin = times_of(Kind::started).back().first;
    EXPECT_NEAR(times_of(Kind::cut).back().first - begin, 6.0 + station.settings.mix_audio.value(), 0.05);
}

TEST_F(ZapTest, TwiceLeavesTwoDecksOnTheAir) {
    start_and_run(10);
    controls(1).zap.click();
    machine.run_for(seconds(2));
    controls(2).zap.click();
    EXPECT_EQ(machine.media.on_air(), (std::vector<std::string>{track(2), track(3)}));
}

TEST_F(ZapTest, AfterTheLoadStepStartsTheLoadedRow) {
    start_and_run(190);
    station.main_window.key_press(U'z');
    EXPECT_EQ(rows_started(), (std::vector<int>{1, 2}));
    machine.run_for(seconds(195));
    EXPECT_EQ(rows_started(), (std::vector<int>{1, 2, 3}));
}

TEST_F(ZapTest, SkipsRowsWhoseFilesAreMissing) {
    start_and_run(40);
    machine.disk.Kill(track(2));
    station.main_window.key_press(U'z');
    EXPECT_EQ(machine.media.on_air().back(), track(3));
    EXPECT_EQ(rows().count(), 3);
}

TEST_F(ZapTest, ByTheButtonAgainAndAgainKeepsTheAirFull) {
    start_and_run(7);
    for (int zaps = 0; zaps < 50; ++zaps) {
        controls(station.chain.lecteur_en_cours.value()).zap.click();
        machine.run_for(seconds(7));
        ASSERT_FALSE(machine.media.on_air().empty());
    }
    EXPECT_EQ(rows_started().size(), 51U);
}

TEST_F(ZapTest, TwiceTellsThatTheFirstDeckIsCut) {
    start_and_run(10);
    controls(1).zap.click();
    machine.run_for(seconds(2));
    controls(2).zap.click();
    EXPECT_EQ(times_of(Kind::cut), (Times{{12, 1}}));
}

} // namespace sonarelle
