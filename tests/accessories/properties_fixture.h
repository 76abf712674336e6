#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "support/station_fixture.h"

namespace sonarelle {

inline constexpr std::string_view music = "C:\\Musique\\été.mp3";

/// A list of two rows, of which the second one's properties are opened.
class PropertiesFixture : public StationFixture {
protected:
    PropertiesFixture() {
        machine.add_track(music, 200);
        open_list("C:\\Sonarelle\\matin.dfm", {record_of("C:\\Musique\\autre.mp3"), record_of(music, "180.00", 80)});
    }

    /// Opens the properties of a row from the list's menu.
    void open(int row = 2) {
        rows().select(row);
        station.list_window.a_modif.click();
    }
    void open_and_play() {
        open();
        window.play.click();
    }
    void run_for(int seconds) { machine.run_for(milliseconds(1000 * seconds)); }
    [[nodiscard]] MediaCommand last_command() const { return machine.media.log().back(); }
    [[nodiscard]] enreg_liste record(std::string_view file, std::size_t number) {
        return record_in(machine.disk.bytes(file), number);
    }
    [[nodiscard]] std::vector<std::string> fields() const {
        return {window.start.text(), window.end.text(), window.genre.text(), window.volume.text(),
                window.length.text()};
    }

    Propriete& window = station.properties_window;
};

} // namespace sonarelle
