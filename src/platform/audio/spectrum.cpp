#include "platform/audio/spectrum.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <numbers>

#include "platform/units.h"

namespace sonarelle {

namespace {

constexpr std::size_t size = Spectrum::window_frames;
constexpr double line_width = static_cast<double>(frame_rate) / static_cast<double>(size); // Hz
constexpr std::size_t last_line = size / 2;
constexpr float quietest = 1e-10F; // power at the floor

// A Hann window halves a sine, whose line is half of its peak; both channels' powers are summed, and so are a line and
// its mirror image, which doubles each.
constexpr float full_power = static_cast<float>(size) * static_cast<float>(size) / 4;

std::size_t mirrored(std::size_t place) {
    std::size_t image = 0;
    for (std::size_t bit = 1; bit < size; bit *= 2, place /= 2)
        image = image * 2 + place % 2;
    return image;
}

} // namespace

Spectrum::Spectrum(std::size_t bands, Range range)
    : range_{range},
      bands_(bands),
      window_(size),
      turns_(size / 2),
      lines_(size),
      decibels_(size / 2 + 1) {
    constexpr double turn = 2 * std::numbers::pi / static_cast<double>(size);
    for (std::size_t frame = 0; frame < size; ++frame)
        window_[frame] = static_cast<float>(0.5 - 0.5 * std::cos(turn * static_cast<double>(frame)));
    for (std::size_t line = 0; line < size / 2; ++line)
        turns_[line] = Line{std::polar(1.0, -turn * static_cast<double>(line))};
}

std::span<const float> Spectrum::bands_of(std::span<const float> frames) {
    load(frames);
    transform();
    measure_lines();
    for (std::size_t band = 0; band < bands_.size(); ++band)
        bands_[band] = level(band);
    return bands_;
}

double Spectrum::centre(std::size_t band) const {
    return edge(static_cast<double>(band) + 0.5);
}

double Spectrum::edge(double band) const {
    return range_.lowest * std::pow(range_.highest / range_.lowest, band / static_cast<double>(bands_.size()));
}

// The left channel is the real part, the right one the imaginary: one transform serves both.
void Spectrum::load(std::span<const float> frames) {
    const std::size_t count = std::min(frames.size() / 2, size);
    const auto newest = frames.last(2 * count);
    std::ranges::fill(lines_, Line{});
    for (std::size_t frame = 0; frame < count; ++frame) {
        const std::size_t place = size - count + frame;
        const Line both{newest[2 * frame], newest[2 * frame + 1]};
        lines_[mirrored(place)] = both * window_[place];
    }
}

// Radix 2, in place, on input in mirrored order.
void Spectrum::transform() {
    for (std::size_t half = 1; half < size; half *= 2)
        for (std::size_t group = 0; group < size; group += 2 * half)
            for (std::size_t line = 0; line < half; ++line) {
                Line& first = lines_[group + line];
                Line& second = lines_[group + line + half];
                const Line turned = second * turns_[line * (size / 2 / half)];
                second = first - turned;
                first += turned;
            }
}

void Spectrum::measure_lines() {
    for (std::size_t line = 0; line < decibels_.size(); ++line) {
        const float power = (std::norm(lines_[line]) + std::norm(lines_[(size - line) % size])) / full_power;
        decibels_[line] = power > quietest ? 10 * std::log10(power) : floor;
    }
}

// The greatest line in the band; one narrower than the lines are apart is read between its two neighbours.
float Spectrum::level(std::size_t band) const {
    const double low = edge(static_cast<double>(band)) / line_width;
    const double high = std::min(edge(static_cast<double>(band) + 1) / line_width, double{last_line});
    const double middle = std::min(centre(band) / line_width, double{last_line - 1});
    const auto below = static_cast<std::size_t>(middle);
    float greatest = std::lerp(decibels_[below], decibels_[below + 1], static_cast<float>(middle - std::floor(middle)));
    for (auto line = static_cast<std::size_t>(std::ceil(low)); static_cast<double>(line) < high; ++line)
        greatest = std::max(greatest, decibels_[line]);
    return greatest;
}

} // namespace sonarelle
