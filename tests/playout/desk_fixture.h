#pragma once

#include <array>
#include <string>
#include <string_view>

#include "support/station_fixture.h"

namespace sonarelle {

/// A station that begins as the program does, with its pictures beside it and a store as after a first start.
class DeskFixture : public StationFixture {
protected:
    DeskFixture() {
        for (const std::string_view picture : pictures)
            machine.disk.put_file("C:\\Sonarelle\\" + std::string{picture}, "image");
    }

    static constexpr std::array<std::string_view, 8> pictures{
        "main_.jpg",       "fond_noir1.jpg", "Liste_Sonarine1.jpg",    "Menu_fichier_noir.gif",
        "Logo_liste1.gif", "Open_noir.gif",  "bouton_fleche_noir.gif", "tplay_noir.gif"};

    void fill_store() {
        SettingsStore{machine.settings, "C:\\Sonarelle", DecimalMark::point}.write_column(&SettingRow::first);
    }
    void set(std::string_view key, std::string_view value, std::string_view section = "Config") {
        machine.settings.SaveSetting(settings_application, section, key, value);
    }
    [[nodiscard]] std::string stored(std::string_view key, std::string_view section = "Config") {
        return machine.settings.GetSetting(settings_application, section, key, "(absent)");
    }
    /// A start with these settings, to a main window that is ready.
    void start(const std::string& command_line = {}) {
        fill_store();
        station.start(command_line);
    }
    /// A list of tracks that are there, of 200 seconds each.
    void put_list(std::string_view path, int tracks) {
        std::vector<enreg_liste> records;
        for (int number = 1; number <= tracks; ++number) {
            const std::string track = "C:\\Musique\\titre " + std::to_string(number) + ".mp3";
            machine.add_track(track, 200);
            records.push_back(record_of(track));
        }
        machine.disk.put_file(path, bytes_of(records));
    }
    [[nodiscard]] std::string journal_text() const { return machine.disk.bytes("C:\\Sonarelle\\journal.doc"); }
    [[nodiscard]] bool has_journal() { return !machine.disk.Dir("C:\\Sonarelle\\journal.doc").empty(); }

    Antenne_FM& window = station.main_window;
};

} // namespace sonarelle
