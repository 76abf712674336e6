// A thousand runs in random order: what a listener of a small station hears.
#include <algorithm>
#include <array>
#include <cmath>

#include "playout/chain_fixture.h"

namespace sonarelle {

namespace {

constexpr int rows_of_list = 50;
constexpr int seeds = 1000;
constexpr int starts_of_a_run = 1 + 49 + 48; // two cycles: the first one draws 49 rows, behind which it begins anew

/// The rows that a run of this seed starts.
std::vector<int> rows_of_run(std::uint64_t seed) {
    SimulatedPlatform machine{"C:\\Sonarelle", seed};
    SettingsStore{machine.settings, "C:\\Sonarelle", DecimalMark::point}.write_column(&SettingRow::first);
    Station station{machine.platform};
    station.create_main_window();
    station.settings.mix_audio_vitesse = 1000; // fades in fewer steps, which cost most of such a run
    std::vector<int> started;
    station.desk.on_event = [&started](const OnAirEvent& event) {
        if (event.kind == OnAirEvent::Kind::started)
            started.push_back(event.row);
    };
    std::vector<enreg_liste> records;
    for (int row = 1; row <= rows_of_list; ++row) {
        const std::string path = "C:\\Musique\\titre " + std::to_string(row) + ".mp3";
        machine.add_track(path, 60);
        records.push_back(record_of(path, "60.00"));
    }
    machine.disk.put_file("C:\\Sonarelle\\essai.dfm", bytes_of(records));
    machine.dialogs.expect_open("C:\\Sonarelle\\essai.dfm");
    station.list_window.A_liste.click();
    station.list_window.random_mode.click();
    station.list_window.play_list.click();
    machine.run_for(seconds(54 * (starts_of_a_run - 1) + 1));
    return started;
}

} // namespace

TEST(FairDraw, PlaysNoRowTwiceInACycle) {
    for (std::uint64_t seed = 1; seed <= seeds; ++seed) {
        std::vector<int> rows = rows_of_run(seed);
        ASSERT_EQ(rows.size(), static_cast<std::size_t>(starts_of_a_run));
        rows.resize(rows_of_list); // the first one and the 49 that are drawn before the table begins anew
        std::ranges::sort(rows);
        ASSERT_EQ(std::ranges::adjacent_find(rows), rows.end()) << "seed " << seed;
    }
}

// The first cycle plays each row once. The second one begins with the last row of the first barred, which is any row
// but the operator's own first one, and draws 48 of the 49 others.
TEST(FairDraw, GivesEachRowAsManyStartsAsTheRulesDo) {
    std::array<int, rows_of_list + 1> starts{};
    for (std::uint64_t seed = 1; seed <= seeds; ++seed)
        for (const int row : rows_of_run(seed))
            ++starts[static_cast<std::size_t>(row)];
    for (int row = 1; row <= rows_of_list; ++row) {
        const double drawn_again = row == 1 ? 48.0 / 49 : 48.0 / 49 * 48 / 49;
        const double deviation = std::sqrt(seeds * drawn_again * (1 - drawn_again));
        EXPECT_NEAR(starts[static_cast<std::size_t>(row)], seeds * (1 + drawn_again), 4 * deviation) << "row " << row;
    }
}

} // namespace sonarelle
