// Measuring a list of 10,000 small MP3 files anew with the list window's own entry, on this machine's disk: test of
// the files, exact lengths, tags, and the save. Their heads are walked one by one, for they have no length header. The
// cache is warm from the second run on; see the median. The yardstick measures one file after the other.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <unistd.h>

#include "platform/audio/programme_bus.h"
#include "platform/audio/silent_media.h"
#include "platform/audio/sound_media.h"
#include "platform/disk_patience.h"
#include "platform/drive_table.h"
#include "platform/host/host_disk.h"
#include "platform/simulated/simulated_platform.h"
#include "playlist/list_file.h"
#include "station/station.h"

namespace sonarelle {
namespace {

constexpr int file_count = 10'000;
constexpr int files_a_folder = 100;

/// The files, in folders of a hundred, and the list of them.
class Collection {
public:
    Collection() {
        std::string pattern = (std::filesystem::temp_directory_path() / "sonarelle-bench-XXXXXX").string();
        if (::mkdtemp(pattern.data()) == nullptr)
            throw std::runtime_error{"no folder"};
        folder_ = pattern;
        const std::string song = (folder_ / "chanson.mp3").string();
        const std::string command =
            "ffmpeg -nostdin -loglevel error -y -f lavfi -i sine=440:d=3 -b:a 128k -write_xing 0 "
            "-write_id3v1 1 -metadata genre=Rock '" +
            song + "'";
        if (std::system(command.c_str()) != 0)
            throw std::runtime_error{"ffmpeg failed"};
        std::ifstream in{song, std::ios::binary};
        const std::string bytes{std::istreambuf_iterator<char>{in}, {}};
        DriveTable drives;
        HostDisk disk{drives};
        ListWriter list{disk, list_path()};
        for (int number = 0; number < file_count; ++number) {
            const auto folder = folder_ / ("Album " + std::to_string(number / files_a_folder));
            std::filesystem::create_directories(folder);
            const auto file = folder / ("Titre " + std::to_string(number) + ".mp3");
            std::ofstream{file, std::ios::binary} << bytes;
            enreg_liste record;
            record.set_chemin(station_path(file.string()));
            record.set_fin_lecture("0.00");
            record.set_volume(100);
            list.write(record);
        }
        if (!list.commit_over(std::nullopt))
            throw std::runtime_error{"another list is there"};
    }
    ~Collection() { std::filesystem::remove_all(folder_); }
    Collection(const Collection&) = delete;
    Collection& operator=(const Collection&) = delete;

    [[nodiscard]] std::string program_folder() const { return station_path(folder_.string()); }
    [[nodiscard]] std::string list_path() const { return program_folder() + "\\matin.dfm"; }

private:
    static std::string station_path(std::string path) {
        std::ranges::replace(path, '/', '\\');
        return "C:" + path;
    }

    std::filesystem::path folder_;
};

const Collection& collection() {
    static const Collection made;
    return made;
}

/// Measures by a graph for each file, when its length is wanted.
class OneByOne final : public Media {
public:
    explicit OneByOne(Media& media)
        : media_{media} {}
    [[nodiscard]] std::shared_ptr<MediaGraph> create_graph() override { return media_.create_graph(); }
    [[nodiscard]] ProgrammeSilence silence() const override { return media_.silence(); }

private:
    Media& media_;
};

/// `patient`: on a disk that is waited for two seconds at most, as on the air.
enum class Kind { silent, sound, one_by_one, patient };

/// A station on this machine's disk with the list loaded.
class LoadedStation {
public:
    explicit LoadedStation(Kind kind)
        : disk_{drives_, std::make_shared<DiskPatience>(kind == Kind::patient ? DiskPatience::Limit{station_patience}
                                                                              : DiskPatience::Limit{})},
          silent_{machine_.time, files_, resolve_},
          sound_{machine_.time, bus_, files_, resolve_, Decoding::by_threads},
          one_by_one_{silent_},
          media_{kind == Kind::silent                           ? static_cast<Media&>(silent_)
                 : kind == Kind::sound || kind == Kind::patient ? static_cast<Media&>(sound_)
                                                                : static_cast<Media&>(one_by_one_)},
          station_{Platform{machine_.time, machine_.scheduler, disk_, machine_.settings, machine_.dialogs, media_,
                            machine_.random, machine_.shell, collection().program_folder(), DecimalMark::point}} {
        machine_.dialogs.default_answers();
        station_.settings.chemin_programme = collection().program_folder() + "\\";
        station_.list_document.open_list(collection().list_path());
    }

    void update() { station_.list_window.a_mettre_a_jour_liste.click(); }

    [[nodiscard]] bool is_measured() const {
        const RowTable& rows = station_.list_window.rows;
        if (rows.count() != file_count)
            return false;
        for (int row = 1; row <= file_count; ++row)
            if (rows.sub_item(row, 2) != rows.sub_item(1, 2) || rows.sub_item(row, 2) == "0.00" ||
                rows.sub_item(row, 3) != "Rock")
                return false;
        return true;
    }

private:
    SimulatedPlatform machine_;
    DriveTable drives_;
    HostDisk disk_;
    std::shared_ptr<SoundFiles> files_ = std::make_shared<MachineFiles>();
    std::function<std::string(std::string_view)> resolve_ = [this](std::string_view path) {
        return disk_.machine_path(path);
    };
    ProgrammeBus bus_;
    SilentMedia silent_;
    SoundMedia sound_;
    OneByOne one_by_one_;
    Media& media_;
    Station station_;
};

void a_mettre_a_jour_liste(benchmark::State& state) {
    static_cast<void>(collection());
    for (auto _ : state) {
        state.PauseTiming();
        LoadedStation station{static_cast<Kind>(state.range(0))};
        state.ResumeTiming();
        station.update();
        state.PauseTiming();
        if (!station.is_measured())
            state.SkipWithError("rows were not measured");
        state.ResumeTiming();
    }
    state.counters["files_per_second"] = benchmark::Counter{
        static_cast<double>(file_count) * static_cast<double>(state.iterations()), benchmark::Counter::kIsRate};
    state.SetLabel(std::array{"silent", "sound", "one by one", "patient"}[static_cast<std::size_t>(state.range(0))]);
}
BENCHMARK(a_mettre_a_jour_liste)
    ->DenseRange(0, 3)
    ->Iterations(1)
    ->Repetitions(5)
    ->ReportAggregatesOnly()
    ->UseRealTime()
    ->Unit(benchmark::kMillisecond);

} // namespace
} // namespace sonarelle
