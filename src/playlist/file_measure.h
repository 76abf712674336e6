#pragma once

#include <optional>
#include <string>
#include <variant>

#include "platform/failure.h"
#include "platform/lengths_ahead.h"
#include "platform/platform.h"

namespace sonarelle {

/// What a file is found to hold.
struct TrackFacts {
    double seconds = 0;
    std::string duration; ///< The same as hh:mm:ss.
    std::string genre;    ///< Of its tag.
};

/// The facts of a file, or why it can't be measured.
using MeasuredFile = std::variant<TrackFacts, Failure>;

/// Measures one file apart from the decks.
class FileMeasure {
public:
    explicit FileMeasure(const Platform& platform)
        : platform_{platform} {}

    [[nodiscard]] MeasuredFile met_ajour(const std::string& path) const;
    /// The same of a file whose length was measured ahead.
    [[nodiscard]] MeasuredFile met_ajour(const std::string& path, const MeasuredLength& length) const;

private:
    [[nodiscard]] TrackFacts facts_of(const std::string& path, double seconds) const;

    const Platform& platform_;
};

} // namespace sonarelle
