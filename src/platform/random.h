#pragma once

#include <cstdint>
#include <functional>

namespace sonarelle {

/// Single-precision random numbers in [0, 1). The same seed gives the same run.
class Random {
public:
    /// `entropy` gives the clock's contribution to `Randomize`; without one, as in virtual time, `Randomize` does
    /// nothing.
    explicit Random(std::uint64_t seed, std::function<std::uint64_t()> entropy = {});

    virtual ~Random() = default;

    [[nodiscard]] virtual float Rnd();

    /// Mixes the clock into the state; never rewinds it.
    void Randomize();

private:
    std::uint64_t next();

    std::uint64_t state_;
    std::function<std::uint64_t()> entropy_;
};

} // namespace sonarelle
