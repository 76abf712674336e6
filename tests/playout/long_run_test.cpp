// A day on the air from lists that are as bad as lists become: lengths of every kind, files that are gone, files that
// can't be read. The chain may stand still only where its rules say so.
#include <array>
#include <functional>
#include <random>

#include "playout/chain_fixture.h"

namespace sonarelle {

namespace {

using Kind = OnAirEvent::Kind;

constexpr int tracks_in_list = 400;
constexpr int most_without_load = 3; // seconds of the longest item whose successor no load step looks at
constexpr Frames a_day = seconds(24 * 3600);
constexpr Frames longest_silence = seconds(2);

/// What a list is made of.
struct Make {
    int shortest;           ///< Seconds.
    int longest;            ///< Seconds.
    int missing_percent;    ///< Files that aren't there.
    int unplayable_percent; ///< Files that are there and can't be read.
};

class LongRun : public ChainFixture, public testing::WithParamInterface<unsigned> {
protected:
    LongRun() {
        station.desk.on_event = [this](const OnAirEvent& event) { follow(event); };
    }

    void make_list(const Make& make) {
        longest_track = make.longest;
        std::uniform_int_distribution<int> length{make.shortest, make.longest};
        std::vector<enreg_liste> records;
        for (int number = 1; number <= tracks_in_list; ++number) {
            const int whole = length(random);
            const int fate = number == 1 ? 99 : percent(random);
            machine.add_track(track(number), whole);
            if (fate < make.missing_percent)
                machine.disk.Kill(track(number));
            else if (fate < make.missing_percent + make.unplayable_percent)
                machine.media.set_unplayable(track(number));
            records.push_back(record_of(track(number), std::to_string(whole) + ".00", 100, 0.0));
        }
        open_list("C:\\Sonarelle\\essai.dfm", records);
        rows().select(1);
    }

    void follow(const OnAirEvent& event) {
        if (event.kind == Kind::started) {
            last_start = machine.time.now();
            end_of_item = controls(event.deck).counter.caption.get();
            item = event.path;
            ++starts;
        } else if (event.kind == Kind::stopped) {
            ++stops;
            stopped = true;
            expect_stop_by_the_rules();
        }
    }

    // The one stop that such a list has: behind an item so short that its load point lies before its beginning stands
    // a file that is there and can't be played.
    void expect_stop_by_the_rules() {
        EXPECT_LE(end_point_to_integer(end_of_item), most_without_load) << item;
        const std::string path = rows().text(station.list.index_en_cours.value());
        EXPECT_TRUE(machine.disk.exists(path));
        EXPECT_FALSE(station.list_run.can_be_played(path));
    }

    // What the operator does then: the row behind the bad one, and the play image.
    void restart() {
        EXPECT_EQ(station.warning_window.lines.caption.get().substr(0, 24), "ATTENTION ERREUR ! T4\nFI");
        stopped = false;
        int row = station.list.index_en_cours.value();
        for (const int before = starts; starts == before;) {
            row = row % rows().count() + 1;
            rows().select(row);
            start_list();
        }
    }

    void listen() {
        silence = machine.media.on_air().empty() ? silence + seconds(1) : Frames{};
        EXPECT_LE(silence, longest_silence)
            << in_seconds(machine.time.now()) << " s: behind " << item << " that ends at " << end_of_item;
        EXPECT_TRUE(holds_the_chain || machine.time.now() - last_start <= seconds(longest_track + 3)) << item;
    }

    void run_for(Frames span) {
        start_list();
        while (machine.time.now() < span && !HasFailure()) {
            machine.run_for(seconds(1));
            if (stopped)
                restart();
            listen();
            if (each_second)
                each_second();
        }
    }

    std::mt19937 random{GetParam()};
    std::uniform_int_distribution<int> percent{0, 99};
    std::function<void()> each_second;
    int longest_track = 0; // seconds
    Frames last_start;
    Frames silence;
    std::string item;
    std::string end_of_item = "100";
    int starts = 0;
    int stops = 0;
    bool stopped = false;
    bool holds_the_chain = false; // the hands do
};

} // namespace

TEST_P(LongRun, OfTracksOfEveryLengthNeverStandsStillForADay) {
    make_list({1, 600, 5, 2});
    run_for(a_day);
    EXPECT_GT(starts, 200);
    RecordProperty("stops", stops);
}

TEST_P(LongRun, OfShortItemsStopsOnlyBeforeAFileThatCannotBePlayed) {
    make_list({1, 12, 5, 10});
    run_for(seconds(3 * 3600));
    EXPECT_GT(starts, 1000);
    EXPECT_GT(stops, 0);
}

TEST_P(LongRun, UnderTheHandsOfAnOperatorIsNeverSilent) {
    make_list({20, 300, 5, 0});
    machine.dialogs.default_answers();
    const auto press_something = [this] {
        DeckControls& main = controls(station.chain.lecteur_en_cours.value());
        const std::array<std::function<void()>, 6> hands{[&] { main.zap.click(); },
                                                         [&] { station.main_window.key_press(U'z'); },
                                                         [&] { main.forward.click(); },
                                                         [&] { main.back.click(); },
                                                         [&] { station.main_window.key_press(U'b'); },
                                                         [&] { station.list_window.full_length_mode.click(); }};
        hands[static_cast<std::size_t>(percent(random)) % hands.size()]();
    };
    each_second = [this, press_something] {
        if (percent(random) < 3)
            press_something();
    };
    run_for(seconds(12 * 3600));
    EXPECT_EQ(stops, 0);
}

TEST_P(LongRun, UnderSpecialMixesAtAnySecondIsNeverSilent) {
    make_list({5, 120, 5, 0});
    holds_the_chain = true;
    machine.dialogs.default_answers();
    const auto press_something = [this] {
        Antenne_FM& window = station.main_window;
        const int main = station.chain.lecteur_en_cours.value();
        const std::array<std::function<void()>, 9> hands{[&] { window.Mix1.click(); },
                                                         [&] { window.Mix2.click(); },
                                                         [&] { window.Mix3.click(); },
                                                         [&] { window.Active_audio.click(); },
                                                         [&] { window.Active_audio_jingles.click(); },
                                                         [&] { controls(main).zap.click(); },
                                                         [&] { window.key_press(U'z'); },
                                                         [&] { controls(next_deck(main)).stop.click(); },
                                                         [&] { window.unload_entries()[2]->click(); }};
        hands[static_cast<std::size_t>(percent(random)) % hands.size()]();
    };
    each_second = [this, press_something] {
        if (percent(random) < 6)
            press_something();
    };
    run_for(seconds(6 * 3600));
    EXPECT_EQ(stops, 0);
}

INSTANTIATE_TEST_SUITE_P(Seeds, LongRun, testing::Range(1U, 21U));

} // namespace sonarelle
