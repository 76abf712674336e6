#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "playlist/list_rows.h"
#include "support/station_fixture.h"

namespace sonarelle {

/// A station with a list of songs on drive C, and the hands that an action of the list needs.
class MaintenanceFixture : public StationFixture {
protected:
    static constexpr std::string_view matin = "C:\\Listes\\matin.dfm";

    /// Puts files that play so long where the rows say.
    void put_songs(const std::vector<std::string>& paths, double seconds = 200) {
        for (const std::string& path : paths)
            machine.add_track(path, seconds);
    }
    void open_rows(const std::vector<std::string>& paths) {
        std::vector<enreg_liste> records;
        for (const std::string& path : paths)
            records.push_back(record_of(path));
        open_list(matin, records);
        rows().select(1);
    }
    [[nodiscard]] std::vector<std::string> column(std::size_t number) {
        std::vector<std::string> cells;
        for (int row = 1; row <= rows().count(); ++row)
            cells.push_back(rows().sub_item(row, number));
        return cells;
    }
    [[nodiscard]] std::vector<std::string> paths() { return column(0); }
    [[nodiscard]] std::vector<std::string> saved_paths() {
        const std::string bytes = default_list_bytes();
        std::vector<std::string> saved;
        for (std::size_t number = 1; number <= bytes.size() / enreg_liste::size; ++number)
            saved.push_back(record_in(bytes, number).trimmed_chemin());
        return saved;
    }
    /// Every text that the progress window shows from now on.
    void watch_progress() { window().step.observe(&progress_); }
    [[nodiscard]] const std::vector<std::string>& progress() const { return progress_.texts; }
    [[nodiscard]] fsauve& window() { return station.progress_window; }
    [[nodiscard]] std::string journal() {
        return machine.disk.exists("C:\\Sonarelle\\journal.doc") ? machine.disk.bytes("C:\\Sonarelle\\journal.doc")
                                                                 : "";
    }
    [[nodiscard]] Liste_son& list() { return station.list_window; }

    using Texts = std::vector<std::string>;

private:
    struct ProgressDiary : ControlObserver {
        void control_changed(Control& control) override {
            texts.push_back(dynamic_cast<Label&>(control).caption.get());
        }
        std::vector<std::string> texts;
    };
    ProgressDiary progress_;
};

} // namespace sonarelle
