#pragma once

#include <optional>
#include <string>
#include <unordered_map>

#include "platform/disk.h"

namespace sonarelle {

/// The length of a file while it was so.
struct KnownLength {
    FileFacts facts;
    double seconds = 0;
};

/// Lengths of the files that were measured since the program started, by path; size and time tell whether they hold.
class LengthCache {
public:
    [[nodiscard]] std::optional<KnownLength> find(const std::string& path) const {
        const auto found = lengths_.find(path);
        return found == lengths_.end() ? std::nullopt : std::optional{found->second};
    }
    void keep(const std::string& path, const KnownLength& length) { lengths_[path] = length; }

private:
    std::unordered_map<std::string, KnownLength> lengths_;
};

} // namespace sonarelle
