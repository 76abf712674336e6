#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "platform/failure.h"
#include "platform/units.h"

namespace sonarelle {

class Clock;

/// What goes wrong on a simulated disk, by absolute path. A refusal or a delay of a folder holds for all that lies in
/// it, one of a drive's root for the whole drive.
class DiskFaults {
public:
    void refuse(std::string_view path, FailureNumber number) { at(path).refusal = number; }
    void delay(std::string_view path, Frames span) { at(path).span = span; }
    void break_at(std::string_view path, std::int64_t byte) { at(path).broken_byte = byte; }
    void vanish(std::string_view path) { at(path).vanishes = true; }
    void leave(std::string_view folder) { at(folder).leaves = true; }
    void heal(std::string_view path);

    /// Lasts as long as the path's delay, then throws its refusal.
    void meet(std::string_view path, Clock& clock) const;
    /// Whether the path is one that is gone when it is asked for; says so once.
    [[nodiscard]] bool take_vanishing(std::string_view path);
    /// Whether the folder is one that is gone once it was entered; says so once.
    [[nodiscard]] bool take_leaving(std::string_view folder);
    /// @throws Failure 57 when the broken byte lies among the `count` bytes from `position` on.
    void check_read(std::string_view path, std::int64_t position, std::size_t count) const;

private:
    struct Fault {
        std::optional<FailureNumber> refusal;
        std::optional<std::int64_t> broken_byte;
        Frames span;
        bool vanishes = false;
        bool leaves = false;
    };

    Fault& at(std::string_view path);
    [[nodiscard]] bool take(std::string_view path, bool Fault::*mark);

    std::map<std::string, Fault> faults_; // path in lower case
};

} // namespace sonarelle
