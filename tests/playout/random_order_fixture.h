#pragma once

#include "playout/chain_fixture.h"

namespace sonarelle {

/// A station whose list runs in random order, and lists on the disk to draw records from.
class RandomOrderFixture : public ChainFixture {
protected:
    RandomOrderFixture() { station.draw_control.show(); }

    void start_at_random() {
        station.list_window.random_mode.click();
        station.list_window.play_list.click();
    }

    /// A list of so many tracks, named `NAME 1` and so on, each there for so long.
    std::string put_source(const std::string& name, int records, double length = 100) {
        std::vector<enreg_liste> list;
        for (int number = 1; number <= records; ++number) {
            const std::string path = "C:\\" + name + "\\" + name + " " + std::to_string(number) + ".mp3";
            machine.add_track(path, length);
            list.push_back(record_of(path, Format(length, "0.00", DecimalMark::point), 80, 1.5, "Jazz", "00:01:40"));
        }
        const std::string path = "C:\\Sonarelle\\" + name + ".dfm";
        machine.disk.put_file(path, bytes_of(list));
        return path;
    }

    /// The jingles' switch is pressed, for one after so many tracks.
    void switch_jingles_on(const std::string& source, int spacing) {
        station.settings.chemin_fichier_aleatoire = source;
        station.settings.nb_fichier_aleatoire = spacing;
        station.list_window.jingles_status.click();
    }
    void switch_items_on(const std::string& source, int spacing = 1) {
        station.settings.chemin_fichier_aleatoire1 = source;
        station.settings.nb_fichier_aleatoire1 = spacing;
        station.list_window.items_status.click();
    }

    [[nodiscard]] std::vector<OnAirEvent> events_of(OnAirEvent::Kind kind) const {
        std::vector<OnAirEvent> found;
        for (const auto& [at, event] : events)
            if (event.kind == kind)
                found.push_back(event);
        return found;
    }
    [[nodiscard]] std::vector<std::string> paths() {
        std::vector<std::string> texts;
        for (int row = 1; row <= rows().count(); ++row)
            texts.push_back(rows().text(row));
        return texts;
    }
    [[nodiscard]] const std::vector<std::string>& log() { return draws().draws.items; }
    [[nodiscard]] liste& draws() { return station.draw_window; }
    [[nodiscard]] Liste_son& list() { return station.list_window; }
    [[nodiscard]] Antenne_FM& window() { return station.main_window; }

    using Texts = std::vector<std::string>;
};

} // namespace sonarelle
