#pragma once

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "platform/simulated/simulated_platform.h"
#include "platform/text.h"
#include "playlist/enreg_liste.h"
#include "station/station.h"

namespace sonarelle {

/// A record as a list file holds it.
inline enreg_liste record_of(std::string_view path, std::string_view end = "200.00", std::int16_t volume = 100,
                             double start = 0.10, std::string_view genre = "Rock",
                             std::string_view duration = "00:03:20") {
    enreg_liste record;
    record.set_chemin(path);
    record.set_fin_lecture(end);
    record.set_genre(genre);
    record.set_volume(volume);
    record.set_debut_lecture(start);
    record.set_duree_piste(duration);
    return record;
}

inline std::string bytes_of(const enreg_liste& record) {
    return {reinterpret_cast<const char*>(record.bytes().data()), enreg_liste::size};
}

inline std::string bytes_of(const std::vector<enreg_liste>& records) {
    std::string bytes;
    for (const enreg_liste& record : records)
        bytes += bytes_of(record);
    return bytes;
}

/// Record `number` of a list file's bytes.
inline enreg_liste record_in(std::string_view bytes, std::size_t number) {
    enreg_liste record;
    const auto part = bytes.substr((number - 1) * enreg_liste::size, enreg_liste::size);
    std::ranges::transform(part, record.bytes().begin(), [](char c) { return static_cast<std::byte>(c); });
    return record;
}

/// A station on a simulated machine, whose settings were read. A question that no script foresaw fails the test.
class StationFixture : public testing::Test {
protected:
    StationFixture() { station.settings.chemin_programme = "C:\\Sonarelle\\"; }

    ~StationFixture() override {
        for (const std::string& complaint : machine.dialogs.complaints())
            ADD_FAILURE() << complaint;
    }

    /// Puts a list on the disk and loads it as the operator does, with "Charger liste".
    void open_list(std::string_view path, const std::vector<enreg_liste>& records) {
        machine.disk.put_file(path, bytes_of(records));
        machine.dialogs.expect_open(path);
        station.list_window.A_liste.click();
    }

    [[nodiscard]] RowTable& rows() { return station.list_window.rows; }
    [[nodiscard]] std::string default_list_bytes() { return machine.disk.bytes("C:\\Sonarelle\\liste.dfm"); }

    SimulatedPlatform machine;
    Station station{machine.platform};
};

} // namespace sonarelle
