#include "platform/audio/waveform_reading.h"

#include <algorithm>
#include <cmath>

#include "platform/audio/sample_loops.h"

namespace sonarelle {

namespace {

/// Damaged floats can be anything; what is beyond full scale looks as loud as that.
std::uint8_t level_of(float peak) {
    return static_cast<std::uint8_t>(std::lround(255.0F * std::min(cleaned(peak), 1.0F)));
}

float peak_of(const PlanarBlock& block, std::size_t count) {
    float peak = 0;
    for (const float* channel : block.channel) {
        const auto [even, odd] = peaks_of(channel, count);
        peak = std::max({peak, even, odd});
    }
    return peak;
}

} // namespace

void WaveformBuilder::add(PlanarBlock block) {
    while (block.samples > 0) {
        const std::size_t count = std::min(block.samples, column_samples_ - in_column_);
        peak_ = std::max(peak_, peak_of(block, count));
        in_column_ += count;
        block.drop(count);
        if (in_column_ == column_samples_)
            close_column();
    }
}

void WaveformBuilder::close_column() {
    peaks_.push_back(peak_);
    peak_ = 0;
    in_column_ = 0;
    if (peaks_.size() < most_columns)
        return;
    for (std::size_t column = 0; column < peaks_.size() / 2; ++column)
        peaks_[column] = std::max(peaks_[2 * column], peaks_[2 * column + 1]);
    peaks_.resize(peaks_.size() / 2);
    column_samples_ *= 2;
}

Waveform WaveformBuilder::finish() const {
    Waveform waveform{static_cast<double>(column_samples_) / rate_, {}};
    std::ranges::transform(peaks_, std::back_inserter(waveform.peaks), level_of);
    if (in_column_ > 0)
        waveform.peaks.push_back(level_of(peak_));
    return waveform;
}

std::optional<Waveform> read_waveform(SampleSource& source, const std::atomic<bool>& stop) {
    if (source.channels() == 0)
        return Waveform{};
    WaveformBuilder builder{source.rate()};
    while (!stop) {
        const PlanarBlock block = source.read();
        if (block.samples == 0)
            return builder.finish();
        builder.add(block);
    }
    return std::nullopt;
}

} // namespace sonarelle
