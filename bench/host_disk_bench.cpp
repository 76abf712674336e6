// A list of 100,000 rows on this machine's disk: reading it row by row, and finding files of the rows when the list was
// written on a disk that ignores case.

#include <benchmark/benchmark.h>
#include <stdlib.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "platform/drive_table.h"
#include "platform/host/host_disk.h"
#include "platform/host/host_settings.h"

namespace sonarelle {

namespace {

constexpr std::size_t record_size = 418;
constexpr std::int64_t rows = 100'000;

/// Drive D in a folder of its own.
struct Machine {
    Machine()
        : folder{std::filesystem::temp_directory_path() / "sonarelle-bench-XXXXXX"} {
        if (::mkdtemp(folder.data()) == nullptr)
            std::abort();
        drives.set("D", folder);
    }
    ~Machine() { std::filesystem::remove_all(folder); }
    Machine(const Machine&) = delete;
    Machine& operator=(const Machine&) = delete;

    std::string folder;
    DriveTable drives;
    HostDisk disk{drives};
};

void read_row_by_row(benchmark::State& state) {
    Machine machine;
    std::ofstream{machine.folder + "/liste.dfm"} << std::string(rows * record_size, ' ');
    std::vector<std::byte> record(record_size);
    for (auto _ : state) {
        const auto file = machine.disk.open("D:\\liste.dfm");
        for (std::int64_t row = 0; row < rows; ++row)
            benchmark::DoNotOptimize(file->read(row * static_cast<std::int64_t>(record_size), record));
    }
    state.SetItemsProcessed(state.iterations() * rows);
}
BENCHMARK(read_row_by_row)->Unit(benchmark::kMillisecond);

void replace_row_by_row(benchmark::State& state) {
    Machine machine;
    const std::vector<std::byte> record(record_size);
    for (auto _ : state) {
        const auto file = machine.disk.replace("D:\\liste.dfm");
        for (std::int64_t row = 0; row < rows; ++row)
            file->write(record);
        file->commit();
    }
    state.SetItemsProcessed(state.iterations() * rows);
}
BENCHMARK(replace_row_by_row)->Unit(benchmark::kMillisecond);

/// Looks for files in a folder of 10,000, by a name as the disk has it, in other case, or that isn't there.
void look_for(benchmark::State& state, const std::string& path) {
    Machine machine;
    std::filesystem::create_directory(machine.folder + "/Musique");
    for (int i = 0; i < 10'000; ++i)
        std::ofstream{machine.folder + "/Musique/Titre " + std::to_string(i) + ".mp3"};
    for (auto _ : state)
        benchmark::DoNotOptimize(machine.disk.Dir(path));
}
BENCHMARK_CAPTURE(look_for, as_on_the_disk, "D:\\Musique\\Titre 5000.mp3")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(look_for, in_other_case, "D:\\MUSIQUE\\TITRE 5000.MP3")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(look_for, not_there, "D:\\Musique\\Absent.mp3")->Unit(benchmark::kMicrosecond);

void get_setting(benchmark::State& state) {
    Machine machine;
    HostSettings settings{machine.folder + "/reglages.json"};
    std::vector<Setting> all;
    for (int i = 0; i < 60; ++i)
        all.push_back({"Config", "cle" + std::to_string(i), std::to_string(i)});
    settings.save_all("Sonarelle V6", all);
    for (auto _ : state)
        benchmark::DoNotOptimize(settings.GetSetting("Sonarelle V6", "Config", "CLE59", ""));
}
BENCHMARK(get_setting)->Unit(benchmark::kMicrosecond);

} // namespace

} // namespace sonarelle
