// Loading and saving a list of 100,000 rows on a memory disk, as the list window does. The flush to a real disk is
// measured apart.
#include <benchmark/benchmark.h>

#include <filesystem>
#include <string>

#include "platform/drive_table.h"
#include "platform/host/host_disk.h"
#include "platform/simulated/simulated_platform.h"
#include "playlist/list_file.h"
#include "station/station.h"

namespace {

using namespace sonarelle;

constexpr int row_count = 100'000;
constexpr std::string_view list = "C:\\Sonarelle\\liste.dfm";

enreg_liste record_number(int number) {
    enreg_liste record;
    record.set_chemin("D:\\Musique\\Été indigo\\" + std::to_string(number) + " - La rivière du soir.mp3");
    record.set_fin_lecture(std::to_string(number % 400) + ".50");
    record.set_genre("Chanson");
    record.set_volume(100);
    record.set_debut_lecture(0.1 + number % 7);
    record.set_duree_piste("00:03:20");
    return record;
}

std::string list_bytes() {
    std::string bytes;
    for (int number = 1; number <= row_count; ++number) {
        const enreg_liste record = record_number(number);
        bytes.append(reinterpret_cast<const char*>(record.bytes().data()), enreg_liste::size);
    }
    return bytes;
}

/// A station with the list loaded.
struct LoadedStation {
    LoadedStation() {
        machine.disk.put_file(list, list_bytes());
        station.settings.chemin_programme = "C:\\Sonarelle\\";
        station.list.fichier_liste = list;
        station.list.index_en_cours = 1;
        station.list_document.charge_liste();
    }

    SimulatedPlatform machine;
    Station station{machine.platform};
};

void charge_liste(benchmark::State& state) {
    LoadedStation loaded;
    for (auto _ : state)
        loaded.station.list_document.charge_liste();
    if (loaded.station.list_window.rows.count() != row_count)
        state.SkipWithError("rows are missing");
}
BENCHMARK(charge_liste)->Unit(benchmark::kMillisecond)->Repetitions(5)->ReportAggregatesOnly();

void sauve_tout(benchmark::State& state) {
    LoadedStation loaded;
    for (auto _ : state)
        loaded.station.list_document.sauve_tout();
    if (loaded.machine.disk.bytes(list).size() != row_count * enreg_liste::size)
        state.SkipWithError("records are missing");
}
BENCHMARK(sauve_tout)->Unit(benchmark::kMillisecond)->Repetitions(5)->ReportAggregatesOnly();

/// The bytes of the list to this machine's disk, flushed.
void flush_to_real_disk(benchmark::State& state) {
    const auto folder = std::filesystem::temp_directory_path() / "sonarelle-list-bench";
    std::filesystem::create_directories(folder);
    DriveTable drives;
    HostDisk disk{drives};
    const std::string bytes = list_bytes();
    const std::string path = "C:" + folder.string() + "/liste.dfm";
    for (auto _ : state) {
        const auto file = disk.replace(path);
        file->write(std::as_bytes(std::span{bytes}));
        file->commit();
    }
    std::filesystem::remove_all(folder);
}
BENCHMARK(flush_to_real_disk)->Unit(benchmark::kMillisecond)->Iterations(5);

} // namespace
