// A row that stops the list in random order doesn't come again in its cycle.
#include "playout/desk_fixture.h"

namespace sonarelle {

namespace {

class StoppedRandomOrder : public DeskFixture {
protected:
    StoppedRandomOrder() {
        machine.disk.add_drive("E");
        start();
        std::vector<enreg_liste> records;
        for (int number = 1; number <= 6; ++number) {
            const std::string track = (number == 4 ? "E:\\" : "C:\\Musique\\") + std::to_string(number) + ".mp3";
            machine.add_track(track, 60);
            records.push_back(record_of(track, "60.00"));
        }
        open_list("C:\\Sonarelle\\jour.dfm", records);
        machine.disk.unplug("E");
        list.random_mode.click();
        list.play_list.click();
    }

    Liste_son& list = station.list_window;
};

} // namespace

TEST_F(StoppedRandomOrder, BarsTheRowThatCannotBeReached) {
    int stops = 0;
    station.desk.on_event = [&](const OnAirEvent& event) { stops += event.kind == OnAirEvent::Kind::stopped ? 1 : 0; };
    machine.run_for(seconds(720));
    EXPECT_GE(stops, 1);
    EXPECT_LE(stops, 3) << "at most once in each cycle of six rows";
}

TEST_F(StoppedRandomOrder, GoesOnAsAListWhereAReadingModeIsChosenWhileTheTrackSounds) {
    while (station.chain.air != AirState::failed)
        machine.run_for(seconds(1));
    ASSERT_TRUE(station.deck_ring.main_deck().sounds());
    list.full_length_mode.click();
    EXPECT_TRUE(window.mix_list.value());
    EXPECT_TRUE(station.desk.list_runs());
}

} // namespace sonarelle
