// What the shape of a file's sound costs: the processor's time of a song of 4 minutes, and the greatest memory while it
// is read, which 3 hours must not raise.

#include <benchmark/benchmark.h>

#include <atomic>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>
#include <unistd.h>

#include "platform/audio/sound_files.h"
#include "platform/audio/waveform_reading.h"

namespace sonarelle {
namespace {

void run(const std::string& command) {
    if (std::system(command.c_str()) != 0)
        throw std::runtime_error{"ffmpeg failed"};
}

/// A song of 4 minutes, and the same 45 times.
class Sounds {
public:
    Sounds() {
        std::string pattern = (std::filesystem::temp_directory_path() / "sonarelle-bench-XXXXXX").string();
        if (::mkdtemp(pattern.data()) == nullptr)
            throw std::runtime_error{"no folder"};
        folder_ = pattern;
        run("ffmpeg -nostdin -loglevel error -y -f lavfi -i "
            "\"aevalsrc='0.4*sin(2*PI*(300+40*sin(3*t))*t)+0.1*random(0)|"
            "0.3*sin(2*PI*440*t)+0.1*random(1)':s=44100:d=240\" -b:a 192k '" +
            song() + "'");
        run("ffmpeg -nostdin -loglevel error -y -stream_loop 44 -i '" + song() + "' -c copy '" + programme() + "'");
    }
    ~Sounds() { std::filesystem::remove_all(folder_); }
    Sounds(const Sounds&) = delete;
    Sounds& operator=(const Sounds&) = delete;

    [[nodiscard]] std::string song() const { return folder_ / "song.mp3"; }
    [[nodiscard]] std::string programme() const { return folder_ / "programme.mp3"; }

private:
    std::filesystem::path folder_;
};

const Sounds& sounds() {
    static const Sounds made;
    return made;
}

/// The greatest memory of this process since the last call with `begin`, in megabytes.
double peak_memory(bool begin) {
    if (begin)
        std::ofstream{"/proc/self/clear_refs"} << "5";
    std::ifstream status{"/proc/self/status"};
    for (std::string word; status >> word;)
        if (word == "VmHWM:") {
            double kilobytes = 0;
            status >> kilobytes;
            return kilobytes / 1024;
        }
    return 0;
}

void read_shape(benchmark::State& state, const std::string& path) {
    MachineFiles files;
    const std::atomic<bool> stop{false};
    const double before = peak_memory(true);
    for (auto round : state) {
        const auto source = open_sample_source(files.open(path), path);
        benchmark::DoNotOptimize(read_waveform(*source, stop));
    }
    state.counters["peak_MB"] = peak_memory(false);
    state.counters["added_MB"] = peak_memory(false) - before;
}

void song_of_4_minutes(benchmark::State& state) {
    read_shape(state, sounds().song());
}
BENCHMARK(song_of_4_minutes)->MeasureProcessCPUTime()->Unit(benchmark::kMillisecond);

void programme_of_3_hours(benchmark::State& state) {
    read_shape(state, sounds().programme());
}
BENCHMARK(programme_of_3_hours)->MeasureProcessCPUTime()->Unit(benchmark::kMillisecond)->Iterations(1);

} // namespace
} // namespace sonarelle
