#pragma once

#include <cstdio>
#include <cstdlib>

namespace sonarelle {

/// Ends the run, so that the fuzzer keeps the input, when something that always holds doesn't.
inline void check(bool holds, const char* what) {
    if (holds)
        return;
    std::fprintf(stderr, "broken: %s\n", what);
    std::abort();
}

} // namespace sonarelle
