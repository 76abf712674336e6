// Header and tag of 10,000 small MP3 files on a warm cache, here and by TagLib's own reader; and the writing of a tag.
// Files a second are the figure; --benchmark_repetitions=5 gives their medians.

#include <array>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <random>
#include <string>

#include <benchmark/benchmark.h>
#include <id3v1tag.h>
#include <mpegfile.h>

#include "metadata/TagType.h"
#include "platform/drive_table.h"
#include "platform/host/host_disk.h"

namespace sonarelle {
namespace {

constexpr int file_count = 10'000;
constexpr std::size_t audio_bytes = 8192;

/// Frames of MPEG-1 Layer III, 128 kbit/s, 44100 Hz.
std::string audio() {
    constexpr std::array header{'\xFF', '\xFB', '\x90', '\x00'};
    std::string bytes;
    while (bytes.size() < audio_bytes) {
        bytes.append(header.begin(), header.end());
        bytes.append(417 - header.size(), 'a');
    }
    return bytes;
}

std::string tag(int number) {
    std::string title = "Titre " + std::to_string(number);
    title.resize(30, '\0');
    std::string block = "TAG" + title + std::string(93, '\0');
    block += '\x07';
    block += '\x11';
    return block;
}

/// 10,000 files in a folder that goes with this object. Drive M is the folder.
class Collection {
public:
    Collection() {
        std::filesystem::create_directories(folder_);
        drives_.set("M", folder_.string());
        for (int i = 0; i < file_count; ++i)
            std::ofstream{folder_ / name(i), std::ios::binary} << audio() << tag(i);
    }
    ~Collection() { std::filesystem::remove_all(folder_); }
    Collection(const Collection&) = delete;
    Collection& operator=(const Collection&) = delete;

    [[nodiscard]] static std::string station_path(int number) { return "M:\\" + name(number); }
    [[nodiscard]] std::string machine_path(int number) const { return (folder_ / name(number)).string(); }
    [[nodiscard]] HostDisk& disk() { return disk_; }

private:
    static std::string name(int number) { return "titre" + std::to_string(number) + ".mp3"; }

    std::filesystem::path folder_ =
        std::filesystem::temp_directory_path() / ("sonarelle-metadata-bench-" + std::to_string(std::random_device{}()));
    DriveTable drives_;
    HostDisk disk_{drives_};
};

Collection& collection() {
    static Collection files;
    return files;
}

void count_files(benchmark::State& state) {
    state.SetItemsProcessed(state.iterations() * file_count);
}

/// Reads every file once a turn.
template <typename Read>
void read_all(benchmark::State& state, Read&& read) {
    Collection& files = collection();
    for (auto _ : state) {
        int found = 0;
        for (int i = 0; i < file_count; ++i)
            found += read(files, i) ? 1 : 0;
        if (found != file_count)
            state.SkipWithError("a file was not read");
    }
    count_files(state);
}

void read_header(benchmark::State& state) {
    TypeTagMpeg header{collection().disk()};
    read_all(state, [&](Collection&, int i) { return header.LireEntete(Collection::station_path(i)).Valide(); });
}

void read_tag(benchmark::State& state) {
    TypeTagV1 tag{collection().disk()};
    read_all(state, [&](Collection&, int i) { return tag.LireTag(Collection::station_path(i)).Valide(); });
}

void read_header_and_tag(benchmark::State& state) {
    TagType tag{collection().disk()};
    read_all(state, [&](Collection&, int i) {
        const std::string path = Collection::station_path(i);
        return tag.Mpeg.LireEntete(path).Valide() && tag.V1.LireTag(path).Valide();
    });
}

void read_tag_by_taglib(benchmark::State& state) {
    read_all(state, [](const Collection& files, int i) {
        TagLib::MPEG::File file{files.machine_path(i).c_str(), false};
        return file.ID3v1Tag()->track() == 7;
    });
}

void read_header_and_tag_by_taglib(benchmark::State& state) {
    read_all(state, [](const Collection& files, int i) {
        TagLib::MPEG::File file{files.machine_path(i).c_str()};
        return file.audioProperties()->bitrate() == 128 && file.ID3v1Tag()->track() == 7;
    });
}

/// Mostly the flush to the disk.
void write_tag(benchmark::State& state) {
    Collection& files = collection();
    TypeTagV1 tag{files.disk()};
    tag.set_Valide(true);
    tag.set_Titre("Titre");
    for (auto _ : state)
        if (!tag.EcrireTag(Collection::station_path(0)))
            state.SkipWithError("the tag was not written");
    state.SetItemsProcessed(state.iterations());
}

BENCHMARK(read_header)->Unit(benchmark::kMillisecond);
BENCHMARK(read_tag)->Unit(benchmark::kMillisecond);
BENCHMARK(read_header_and_tag)->Unit(benchmark::kMillisecond);
BENCHMARK(read_tag_by_taglib)->Unit(benchmark::kMillisecond);
BENCHMARK(read_header_and_tag_by_taglib)->Unit(benchmark::kMillisecond);
BENCHMARK(write_tag)->Unit(benchmark::kMicrosecond);

} // namespace
} // namespace sonarelle
