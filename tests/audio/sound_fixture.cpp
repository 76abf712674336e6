#include "sound_fixture.h"

#include <cmath>
#include <cstdlib>
#include <fstream>
#include <numbers>
#include <stdexcept>
#include <unistd.h>

#include "platform/audio/wav_file_output.h"

namespace sonarelle {

namespace {

constexpr std::int64_t count_period = 12000; // frames until the count begins again
constexpr double tone = 440.0;

} // namespace

SoundFolder::SoundFolder() {
    std::string pattern = (std::filesystem::temp_directory_path() / "sonarelle-sound-XXXXXX").string();
    if (mkdtemp(pattern.data()) == nullptr)
        throw std::runtime_error{"no folder for the test"};
    folder_ = pattern;
}

SoundFolder::~SoundFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(folder_, ignored);
}

float counted(std::int64_t frame) {
    return static_cast<float>(frame % count_period - count_period / 2) / 32768.0F;
}

std::string SoundFolder::counting_wav(const std::string& name, double seconds) const {
    WavFileOutput file{path(name)};
    std::vector<float> frames;
    for (std::int64_t frame = 0; frame < nearest_frame(seconds).count(); ++frame) {
        frames.push_back(counted(frame));
        frames.push_back(0.3F * static_cast<float>(std::sin(2 * std::numbers::pi * tone * in_seconds(Frames{frame}))));
    }
    file.write(frames);
    file.close();
    return path(name);
}

std::string SoundFolder::encoded(const std::string& name, double seconds, const std::string& options) const {
    const std::string music = "aevalsrc='0.4*sin(2*PI*(300+40*sin(3*t))*t)|0.3*sin(2*PI*440*t)+0.1*sin(2*PI*1234*t)':"
                              "s=44100:d=" +
                              std::to_string(seconds);
    const std::string command =
        "ffmpeg -nostdin -loglevel error -y -f lavfi -i \"" + music + "\" " + options + " '" + path(name) + "'";
    if (std::system(command.c_str()) != 0)
        throw std::runtime_error{"ffmpeg failed: " + command};
    return path(name);
}

std::string SoundFolder::file(const std::string& name, std::span<const char> bytes) const {
    std::ofstream{path(name), std::ios::binary}.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    return path(name);
}

std::unique_ptr<Decoder> decoder_of(const std::string& path) {
    return std::make_unique<Decoder>(open_sample_source(MachineFiles{}.open(path), path));
}

std::vector<float> decoded(const std::string& path) {
    const auto decoder = decoder_of(path);
    std::vector<float> frames;
    for (;;) {
        const std::size_t before = frames.size();
        frames.resize(before + 2 * 10000);
        const std::size_t count = decoder->read(std::span{frames}.subspan(before));
        frames.resize(before + 2 * count);
        if (count == 0)
            return frames;
    }
}

SoundFixture::SoundFixture(std::shared_ptr<SoundFiles> files)
    : time{scheduler},
      media{time, bus, std::move(files), [](std::string_view path) { return std::string{path}; },
            Decoding::inline_with_rendering},
      renderer_{bus, media,
                [this](std::span<const float> frames) { heard.insert(heard.end(), frames.begin(), frames.end()); }} {
    time.before_instant = [this](Frames frame) { renderer_.render_until(frame); };
    media.on_trouble = [this](const SoundReport& report) { reports.push_back(report); };
}

std::shared_ptr<MediaGraph> SoundFixture::graph(const std::string& path) {
    auto graph = media.create_graph();
    graph->RenderFile(path);
    return graph;
}

float SoundFixture::peak(std::int64_t from, std::int64_t to) const {
    float greatest = 0;
    for (std::int64_t sample = 2 * from; sample < 2 * to; ++sample)
        greatest = std::max(greatest, std::abs(heard.at(static_cast<std::size_t>(sample))));
    return greatest;
}

} // namespace sonarelle
