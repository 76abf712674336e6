#pragma once

#include <string>
#include <utility>
#include <vector>

#include "support/station_fixture.h"

namespace sonarelle {

/// A station with first-start settings and a list of tracks on the disk, whose run is followed event by event.
class ChainFixture : public StationFixture {
protected:
    ChainFixture() {
        SettingsStore{machine.settings, "C:\\Sonarelle", DecimalMark::point}.write_column(&SettingRow::first);
        station.create_main_window();
        station.desk.on_event = [this](const OnAirEvent& event) { events.emplace_back(machine.time.now(), event); };
    }

    static std::string track(int number) { return "C:\\Musique\\titre " + std::to_string(number) + ".mp3"; }

    /// Makes tracks of these lengths and opens a list that plays each to its end.
    void open_tracks(const std::vector<int>& lengths, double start = 0.0) {
        std::vector<enreg_liste> records;
        for (const int length : lengths) {
            const std::string path = track(static_cast<int>(records.size()) + 1);
            machine.add_track(path, length);
            records.push_back(record_of(path, std::to_string(length) + ".00", 100, start));
        }
        open_list("C:\\Sonarelle\\essai.dfm", records);
        rows().select(1);
    }

    /// Chooses the reading mode that plays each row to its end, and starts the list.
    void start_list() {
        station.list_window.defined_end_mode.click();
        station.list_window.play_list.click();
    }

    /// The seconds at which a kind of event happened, with its deck.
    [[nodiscard]] std::vector<std::pair<double, int>> times_of(OnAirEvent::Kind kind) const {
        std::vector<std::pair<double, int>> times;
        for (const auto& [at, event] : events)
            if (event.kind == kind)
                times.emplace_back(in_seconds(at), event.deck);
        return times;
    }

    [[nodiscard]] std::vector<int> rows_started() const {
        std::vector<int> rows;
        for (const auto& [at, event] : events)
            if (event.kind == OnAirEvent::Kind::started)
                rows.push_back(event.row);
        return rows;
    }

    [[nodiscard]] DeckControls& controls(int deck) { return station.main_window.deck(deck); }

    /// Loads a file on a deck with its open button.
    void open_on(int deck, std::string_view path) {
        machine.dialogs.expect_open(path);
        controls(deck).open.click();
    }

    /// Loads a new file of this length on each deck, by hand.
    void open_on_all(const std::vector<double>& lengths) {
        for (int deck = 1; deck <= static_cast<int>(lengths.size()); ++deck) {
            machine.add_track(track(deck), lengths[static_cast<std::size_t>(deck - 1)]);
            open_on(deck, track(deck));
        }
    }

    [[nodiscard]] std::string journal_text() const { return machine.disk.bytes("C:\\Sonarelle\\journal.doc"); }

    std::vector<std::pair<Frames, OnAirEvent>> events;
};

using Times = std::vector<std::pair<double, int>>;

} // namespace sonarelle
