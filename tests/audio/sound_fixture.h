#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <span>
#include <string>
#include <vector>

#include "platform/audio/decoder.h"
#include "platform/audio/sound_files.h"
#include "platform/audio/sound_media.h"
#include "platform/audio/virtual_renderer.h"
#include "platform/scheduler.h"
#include "platform/simulated/virtual_time.h"

namespace sonarelle {

/// A folder that goes with the test.
class SoundFolder {
public:
    SoundFolder();
    ~SoundFolder();
    SoundFolder(const SoundFolder&) = delete;
    SoundFolder& operator=(const SoundFolder&) = delete;

    [[nodiscard]] std::string path(const std::string& name) const { return (folder_ / name).string(); }

    /// 48 kHz, stereo, 16 bit: the left channel counts its frames, so any place can be recognised; the right is a tone.
    std::string counting_wav(const std::string& name, double seconds) const;
    /// Music of two tones through the ffmpeg program; `options` choose the format.
    std::string encoded(const std::string& name, double seconds, const std::string& options) const;
    std::string file(const std::string& name, std::span<const char> bytes) const;

private:
    std::filesystem::path folder_;
};

/// What the left channel of `counting_wav` has at a frame.
[[nodiscard]] float counted(std::int64_t frame);

/// All that decoding from the start gives, two floats a frame.
[[nodiscard]] std::vector<float> decoded(const std::string& path);
[[nodiscard]] std::unique_ptr<Decoder> decoder_of(const std::string& path);

/// Graphs on a bus in virtual time; what is heard is kept.
class SoundFixture {
public:
    explicit SoundFixture(std::shared_ptr<SoundFiles> files = std::make_shared<MachineFiles>());

    [[nodiscard]] std::shared_ptr<MediaGraph> graph(const std::string& path);
    void run_for(Frames span) { time.run_for(span); }
    [[nodiscard]] float left(std::int64_t frame) const { return heard.at(static_cast<std::size_t>(2 * frame)); }
    /// The greatest sample of these frames.
    [[nodiscard]] float peak(std::int64_t from, std::int64_t to) const;

    SoundFolder folder;
    Scheduler scheduler;
    VirtualTime time;
    ProgrammeBus bus;
    SoundMedia media;
    std::vector<float> heard;
    std::vector<SoundReport> reports;

private:
    VirtualRenderer renderer_;
};

} // namespace sonarelle
