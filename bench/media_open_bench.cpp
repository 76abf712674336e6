// How long it takes to open a song of 200 s to its first samples, with its length, beside what FFmpeg alone needs; and
// what rendering costs. Each opening is a sample: the counters are in milliseconds.

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <stdexcept>
#include <unistd.h>

#include "platform/audio/ffmpeg_handles.h"
#include "platform/audio/file_opener.h"
#include "platform/audio/sound_media.h"
#include "platform/audio/virtual_renderer.h"
#include "platform/scheduler.h"
#include "platform/simulated/virtual_time.h"

namespace sonarelle {
namespace {

struct Song {
    const char* name;
    const char* options;
};
constexpr std::array songs{Song{"cbr.mp3", "-b:a 128k"},
                           Song{"vbr.mp3", "-q:a 2"},
                           Song{"cbr_without_header.mp3", "-b:a 128k -write_xing 0"},
                           Song{"vbr_without_header.mp3", "-q:a 2 -write_xing 0"},
                           Song{"cd.wav", ""},
                           Song{"two.wma", "-b:a 128k"}};

class Songs {
public:
    Songs() {
        std::string pattern = (std::filesystem::temp_directory_path() / "sonarelle-bench-XXXXXX").string();
        if (::mkdtemp(pattern.data()) == nullptr)
            throw std::runtime_error{"no folder"};
        folder_ = pattern;
        for (const Song& song : songs) {
            const std::string command = "ffmpeg -nostdin -loglevel error -y -f lavfi -i "
                                        "\"aevalsrc='0.4*sin(2*PI*(300+40*sin(3*t))*t)+0.1*random(0)|0.3*sin(2*PI*440*"
                                        "t)+0.1*random(1)':s=44100:d=200\" " +
                                        std::string{song.options} + " '" + path(song) + "'";
            if (std::system(command.c_str()) != 0)
                throw std::runtime_error{"ffmpeg failed"};
        }
    }
    ~Songs() { std::filesystem::remove_all(folder_); }
    [[nodiscard]] std::string path(const Song& song) const { return (folder_ / song.name).string(); }

private:
    std::filesystem::path folder_;
};

const Songs& all_songs() {
    static const Songs made;
    return made;
}

class Percentiles {
public:
    template <typename Work>
    void time(Work&& work) {
        const auto begin = std::chrono::steady_clock::now();
        work();
        times_.push_back(std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - begin).count());
    }
    void tell(benchmark::State& state) {
        std::ranges::sort(times_);
        state.counters["median_ms"] = times_[times_.size() / 2];
        state.counters["p99_ms"] = times_[times_.size() * 99 / 100];
    }

private:
    std::vector<double> times_;
};

void open_as_a_deck(benchmark::State& state) {
    const Song& song = songs[static_cast<std::size_t>(state.range(0))];
    const std::string path = all_songs().path(song);
    const auto files = std::make_shared<MachineFiles>();
    Percentiles times;
    double duration = 0;
    for (auto _ : state)
        times.time([&] {
            FileOpener opener{files, DiskPatience{station_patience}}; // a new one knows no lengths
            auto file = opener.open(path);
            duration = file.seconds;
            benchmark::DoNotOptimize(file.opening.data());
        });
    times.tell(state);
    state.counters["seconds"] = duration;
    state.SetLabel(song.name);
}
BENCHMARK(open_as_a_deck)->DenseRange(0, songs.size() - 1)->Iterations(400)->UseRealTime();

// The yardstick: the least that FFmpeg does to the first decoded frame.
void open_with_bare_ffmpeg(benchmark::State& state) {
    const Song& song = songs[static_cast<std::size_t>(state.range(0))];
    const std::string path = all_songs().path(song);
    const bool walk = state.range(1) != 0;
    Percentiles times;
    for (auto _ : state)
        times.time([&] {
            AVFormatContext* format = nullptr;
            if (avformat_open_input(&format, path.c_str(), nullptr, nullptr) < 0 ||
                avformat_find_stream_info(format, nullptr) < 0)
                throw std::runtime_error{"FFmpeg failed"};
            const AVCodecParameters* parameters = format->streams[0]->codecpar;
            const FfmpegHandle<AVCodecContext> codec{
                avcodec_alloc_context3(avcodec_find_decoder(parameters->codec_id))};
            avcodec_parameters_to_context(codec.get(), parameters);
            avcodec_open2(codec.get(), nullptr, nullptr);
            const FfmpegHandle<AVPacket> packet{av_packet_alloc()};
            const FfmpegHandle<AVFrame> frame{av_frame_alloc()};
            bool first = true;
            while ((first || walk) && av_read_frame(format, packet.get()) >= 0) {
                if (first && avcodec_send_packet(codec.get(), packet.get()) >= 0)
                    first = avcodec_receive_frame(codec.get(), frame.get()) < 0;
                av_packet_unref(packet.get());
            }
            avformat_close_input(&format);
        });
    times.tell(state);
    state.SetLabel(std::string{song.name} + (walk ? ", walk of packets" : ""));
}
BENCHMARK(open_with_bare_ffmpeg)->ArgsProduct({{0, 1, 2, 3, 4, 5}, {0}})->Args({3, 1})->Iterations(400)->UseRealTime();

// Blocks of 10 ms with three graphs that run; the decoding is not counted.
void render_three_graphs(benchmark::State& state) {
    Scheduler scheduler;
    VirtualTime time{scheduler};
    ProgrammeBus bus;
    SoundMedia media{time, bus, std::make_shared<MachineFiles>(),
                     [](std::string_view path) { return std::string{path}; }, Decoding::inline_with_rendering};
    std::vector<std::shared_ptr<MediaGraph>> graphs;
    std::vector<float> block(2 * 480);
    double spent = 0;
    double programme = 0;
    for (auto _ : state) {
        if (graphs.empty() || graphs[0]->get_CurrentPosition() > 190) {
            graphs.clear();
            for (int count = 0; count < 3; ++count) {
                graphs.push_back(media.create_graph());
                graphs.back()->RenderFile(all_songs().path(songs[0]));
                graphs.back()->put_Volume(Millibel{-100 * count});
                graphs.back()->Run();
            }
        }
        media.feed();
        const auto begin = std::chrono::steady_clock::now();
        bus.render(block.data(), 480);
        const double took = std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
        state.SetIterationTime(took);
        spent += took;
        programme += 0.01;
        time.run_for(milliseconds(10));
        media.housekeep();
    }
    state.counters["percent_of_real_time"] = 100 * spent / programme;
}
BENCHMARK(render_three_graphs)->Iterations(20000)->UseManualTime();

// A song rendered in virtual time, as a rehearsal does.
void render_a_song(benchmark::State& state) {
    const Song& song = songs[static_cast<std::size_t>(state.range(0))];
    for (auto _ : state) {
        Scheduler scheduler;
        VirtualTime time{scheduler};
        ProgrammeBus bus;
        SoundMedia media{time, bus, std::make_shared<MachineFiles>(),
                         [](std::string_view path) { return std::string{path}; }, Decoding::inline_with_rendering};
        VirtualRenderer renderer{bus, media, nullptr};
        const auto graph = media.create_graph();
        graph->RenderFile(all_songs().path(song));
        graph->Run();
        renderer.render_until(seconds(200));
    }
    state.SetLabel(song.name);
}
BENCHMARK(render_a_song)->DenseRange(0, songs.size() - 1)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace sonarelle
