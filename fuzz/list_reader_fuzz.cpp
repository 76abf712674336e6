// Any bytes are a list: they load into rows, and what is saved from the rows is loaded again with the same texts.
#include <cstdint>
#include <cstdlib>
#include <string>

#include "platform/simulated/simulated_platform.h"
#include "playlist/list_file.h"
#include "playlist/list_rows.h"
#include "station/station.h"

namespace {

using namespace sonarelle;

void check(bool holds) {
    if (!holds)
        std::abort();
}

constexpr std::string_view path = "C:\\Sonarelle\\essai.dfm";
constexpr std::string_view old_path = "C:\\Sonarelle\\essai.rfm";

std::vector<RowTable::Row> rows_of(Station& station) {
    std::vector<RowTable::Row> rows;
    for (int row = 1; row <= station.list_window.rows.count(); ++row)
        rows.push_back(station.list_window.rows.row(row));
    return rows;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    SimulatedPlatform machine;
    machine.dialogs.default_answers();
    Station station{machine.platform};
    machine.disk.put_file(path, bytes);

    station.list.fichier_liste = path;
    station.list_document.charge_liste();
    const auto rows = rows_of(station);
    check(rows.size() == size / enreg_liste::size);

    station.list_document.sauve_tout();
    check(machine.disk.bytes("C:\\Sonarelle\\liste.dfm").size() == rows.size() * enreg_liste::size);
    const auto completed = rows_of(station);
    station.list_document.charge_liste();
    const auto again = rows_of(station);
    for (std::size_t i = 0; i < completed.size(); ++i) {
        check(again[i][list_column::path] == completed[i][list_column::path]);
        check(again[i][list_column::genre] == completed[i][list_column::genre]);
        check(again[i][list_column::volume] == completed[i][list_column::volume]);
    }

    station.list_window.rows.clear();
    machine.disk.put_file(old_path, bytes);
    station.list.nom_sauvegarde = old_path;
    station.legacy_list.A_Copen_rfm();
    check(station.list_window.rows.count() == static_cast<int>(size / enreg_rfm::size));
    return 0;
}
