#pragma once

#include <sys/stat.h>

#include <chrono>
#include <cstddef>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "platform/host/file_times.h"
#include "platform/thread_annotations.h"

namespace sonarelle {

/// True for a file's name on this machine that a path of the station can hold.
[[nodiscard]] bool can_be_named(std::string_view name);

/// Calls `use` with each name in a folder of this machine, and its kind (DT_…), until it returns false.
/// Returns false when the folder can't be read.
bool for_each_name(const std::string& folder, const std::function<bool(std::string_view, unsigned char)>& use);

/// Finds files of this machine by names that ignore case. What it learns of a folder is kept until the folder changes,
/// so that a list written on a disk that ignores case doesn't cost a walk through the folder for each row.
/// From any thread; nobody waits for another one's slow disk.
class NameLookup {
public:
    /// What is learnt of a folder is kept when its last change is older than this.
    explicit NameLookup(std::chrono::nanoseconds settled_after = file_time_settles)
        : settled_after_{settled_after} {}

    enum class Outcome { present, missing, folder_missing };

    struct Place {
        std::string path; ///< As the disk spells it; the names that are missing are as they were given.
        Outcome outcome = Outcome::present;
    };

    /// Looks for the names one after the other below `base` (a folder without a final slash), the exact one first.
    /// Failures name `source`.
    /// @throws Failure 68 when `base` itself is not to be reached, 70 without rights, 57 and 71 for a disk's fault.
    [[nodiscard]] Place find(const std::string& base, const std::vector<std::string>& names,
                             const std::string& source) const;

private:
    struct Folder {
        struct stat facts {};
        std::unordered_map<std::string, std::string> spellings; // lower case -> the first spelling in byte order
    };

    [[nodiscard]] std::optional<std::string> spelling(const std::string& folder, const std::string& name) const;
    [[nodiscard]] std::optional<std::string> kept_spelling(const std::string& folder, const struct stat& facts,
                                                           const std::string& name, bool& known) const;
    void keep(const std::string& folder, Folder learnt) const;

    const std::chrono::nanoseconds settled_after_;
    mutable Mutex mutex_;
    mutable std::map<std::string, Folder> folders_ SONARELLE_GUARDED_BY(mutex_);
    mutable std::size_t names_kept_ SONARELLE_GUARDED_BY(mutex_) = 0;
};

} // namespace sonarelle
