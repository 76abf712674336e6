// A day on the air under the hands of an operator who does everything that can be done. SONARELLE_SOAK_SEEDS and
// SONARELLE_SOAK_HOURS make more of it; SONARELLE_SOAK_FROM is the first seed.
#include <gtest/gtest.h>

#include <cstdlib>
#include <iostream>

#include "playout/soak_operator.h"
#include "playout/soak_oracle.h"
#include "playout/soak_world.h"

namespace sonarelle {

namespace {

int number_of(const char* variable, int otherwise) {
    const char* text = std::getenv(variable);
    return text == nullptr ? otherwise : std::atoi(text);
}

unsigned first_seed() {
    return static_cast<unsigned>(number_of("SONARELLE_SOAK_FROM", 1));
}

unsigned seeds() {
    return static_cast<unsigned>(number_of("SONARELLE_SOAK_SEEDS", 20));
}

class Soak : public testing::TestWithParam<unsigned> {};

void tell(const std::map<std::string, int>& counts, const char* what) {
    for (const auto& [kind, count] : counts)
        std::cout << "    " << what << ' ' << count << " x " << kind << '\n';
}

} // namespace

TEST_P(Soak, UnderEveryHandTheAirIsSilentOnlyAtTheOperatorsWish) {
    SoakWorld world{GetParam()};
    SoakOracle oracle{world};
    SoakOperator hands{world, oracle};
    const Frames end = seconds(3600 * number_of("SONARELLE_SOAK_HOURS", 24));
    hands.begin_day();
    while (!HasFailure() && world.machine.time.now() < end) {
        world.machine.run_for(hands.patience());
        hands.move();
        world.machine.media.clear_log();
    }
    tell(oracle.silences(), "silences:");
    tell(oracle.messages(), "messages:");
}

INSTANTIATE_TEST_SUITE_P(Days, Soak, testing::Range(first_seed(), first_seed() + seeds()));

} // namespace sonarelle
