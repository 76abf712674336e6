#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <string_view>

#include "platform/failure.h"

namespace sonarelle {

/// What came of measuring a file: seconds as a graph's `get_Duration` gives them, or why there are none.
struct MeasuredLength {
    double seconds = 0;
    std::optional<Failure> failure;
};

/// Measures files ahead of a loop that takes their lengths one after the other: the loop asks early and takes later, in
/// whatever order. Each result is what opening that file by a graph would give. Dropping it forgets what wasn't taken,
/// at once. From the window thread.
class LengthsAhead {
public:
    virtual ~LengthsAhead() = default;

    /// Asks for a file, behind those asked for before; one that is under way already is asked for once.
    virtual void want(std::string_view path) = 0;

    /// Takes a file's length; one that nobody asked for is measured next. Nothing when it isn't there within
    /// `patience`: ask again.
    [[nodiscard]] virtual std::optional<MeasuredLength> take(std::string_view path,
                                                             std::chrono::milliseconds patience) = 0;
};

} // namespace sonarelle
