#pragma once

#include <optional>
#include <string>
#include <unordered_map>

#include "platform/disk.h"

namespace sonarelle {

/// Lengths in seconds of the files that were measured since the program started, by path, size and time.
class LengthCache {
public:
    [[nodiscard]] std::optional<double> find(const std::string& path, const FileFacts& facts) const {
        const auto found = lengths_.find(path);
        return found != lengths_.end() && found->second.facts == facts ? std::optional{found->second.seconds}
                                                                       : std::nullopt;
    }
    void keep(const std::string& path, const FileFacts& facts, double seconds) { lengths_[path] = {facts, seconds}; }

private:
    struct Length {
        FileFacts facts;
        double seconds = 0;
    };
    std::unordered_map<std::string, Length> lengths_;
};

} // namespace sonarelle
