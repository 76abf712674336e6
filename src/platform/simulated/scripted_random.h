#pragma once

#include <deque>
#include <initializer_list>

#include "platform/random.h"

namespace sonarelle {

/// Random numbers of a seed, or those that a test foresees.
class ScriptedRandom : public Random {
public:
    using Random::Random;

    /// The next numbers; behind them those of the seed go on.
    void then(std::initializer_list<float> numbers) { script_.insert(script_.end(), numbers); }
    /// How many foreseen numbers nobody has drawn yet.
    [[nodiscard]] std::size_t left() const { return script_.size(); }

    [[nodiscard]] float Rnd() override {
        if (script_.empty())
            return Random::Rnd();
        const float number = script_.front();
        script_.pop_front();
        return number;
    }

private:
    std::deque<float> script_;
};

} // namespace sonarelle
