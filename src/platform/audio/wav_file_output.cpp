#include "platform/audio/wav_file_output.h"

#include <algorithm>
#include <bit>
#include <cmath>

#include "platform/failure.h"
#include "platform/units.h"

namespace sonarelle {

static_assert(std::endian::native == std::endian::little);

namespace {

constexpr std::uint32_t head_bytes = 44;
constexpr std::uint16_t channels = 2;
constexpr std::uint16_t sample_bytes = 2;

template <typename Number>
void put(std::ofstream& file, Number number) {
    file.write(reinterpret_cast<const char*>(&number), sizeof number);
}

} // namespace

WavFileOutput::WavFileOutput(const std::string& path) : path_{path}, file_{path, std::ios::binary | std::ios::trunc} {
    if (!file_)
        throw Failure{failure_number::path_access, path};
    write_head();
}

WavFileOutput::~WavFileOutput() {
    try {
        close();
    } catch (const Failure&) { // nobody is left to hear of it
    }
}

void WavFileOutput::write(std::span<const float> frames) {
    samples_.resize(frames.size());
    std::ranges::transform(frames, samples_.begin(), [](float sample) {
        return static_cast<std::int16_t>(std::lrint(std::clamp(sample * 32768.0F, -32768.0F, 32767.0F)));
    });
    file_.write(reinterpret_cast<const char*>(samples_.data()),
                static_cast<std::streamsize>(samples_.size() * sample_bytes));
    data_bytes_ += static_cast<std::uint32_t>(samples_.size() * sample_bytes);
    check();
}

void WavFileOutput::close() {
    if (!file_.is_open())
        return;
    file_.seekp(0);
    write_head();
    file_.close();
    check();
}

void WavFileOutput::check() {
    if (!file_)
        throw Failure{failure_number::disk_full, path_};
}

void WavFileOutput::write_head() {
    const auto rate = static_cast<std::uint32_t>(frame_rate);
    file_.write("RIFF", 4);
    put(file_, head_bytes - 8 + data_bytes_);
    file_.write("WAVEfmt ", 8);
    put(file_, std::uint32_t{16});
    put(file_, std::uint16_t{1}); // whole numbers
    put(file_, channels);
    put(file_, rate);
    put(file_, rate * channels * sample_bytes);
    put(file_, std::uint16_t{channels * sample_bytes});
    put(file_, std::uint16_t{8 * sample_bytes});
    file_.write("data", 4);
    put(file_, data_bytes_);
}

} // namespace sonarelle
