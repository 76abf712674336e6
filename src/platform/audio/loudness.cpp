#include "platform/audio/loudness.h"

#include <cmath>
#include <numeric>

namespace sonarelle {

namespace {

constexpr double offset = -0.691; // makes up for the weighting at 997 Hz
constexpr double no_sound = 1e-30;

} // namespace

double MomentaryLoudness::Section::pass(double sample) {
    const double out = b_[0] * sample + state_[0];
    state_[0] = b_[1] * sample - a_[0] * out + state_[1];
    state_[1] = b_[2] * sample - a_[1] * out;
    return out;
}

void MomentaryLoudness::Section::drop_remains() {
    for (double& value : state_)
        if (std::abs(value) < no_sound)
            value = 0;
}

void MomentaryLoudness::feed(std::span<const float> frames) {
    for (std::size_t frame = 0; frame + 1 < frames.size(); frame += 2) {
        for (std::size_t channel = 0; channel < 2; ++channel) {
            const float sample = frames[frame + channel];
            // A filter would never forget a sample that is no number.
            const double finite = std::isfinite(sample) ? sample : 0.0;
            KWeighting& weighting = channels_[channel];
            const double weighted = weighting.lows.pass(weighting.head.pass(finite));
            squares_of_step_ += weighted * weighted;
        }
        if (++frames_in_step_ == step_frames)
            end_step();
    }
}

void MomentaryLoudness::end_step() {
    squares_[step_] = squares_of_step_;
    step_ = (step_ + 1) % steps;
    squares_of_step_ = 0;
    frames_in_step_ = 0;
    for (KWeighting& weighting : channels_) {
        weighting.head.drop_remains();
        weighting.lows.drop_remains();
    }
}

std::optional<double> MomentaryLoudness::lufs() const {
    const double power = std::accumulate(squares_.begin(), squares_.end(), 0.0) / double{steps * step_frames};
    if (power <= 0)
        return std::nullopt;
    const double loudness = offset + 10 * std::log10(power);
    return loudness < least ? std::nullopt : std::optional{loudness};
}

} // namespace sonarelle
