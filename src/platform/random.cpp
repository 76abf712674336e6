#include "platform/random.h"

#include <utility>

namespace sonarelle {

Random::Random(std::uint64_t seed, std::function<std::uint64_t()> entropy)
    : state_{seed},
      entropy_{std::move(entropy)} {}

float Random::Rnd() {
    // 24 bits fill the mantissa of a single exactly, so that 1 is never reached by rounding.
    return static_cast<float>(next() >> 40) * 0x1p-24F;
}

void Random::Randomize() {
    if (entropy_)
        state_ ^= entropy_() * 0x9E3779B97F4A7C15U;
}

// SplitMix64 (Steele, Lea and Flood, 2014).
std::uint64_t Random::next() {
    state_ += 0x9E3779B97F4A7C15U;
    std::uint64_t z = state_;
    z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9U;
    z = (z ^ (z >> 27)) * 0x94D049BB133111EBU;
    return z ^ (z >> 31);
}

} // namespace sonarelle
