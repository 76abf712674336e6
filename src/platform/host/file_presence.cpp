#include "platform/host/file_presence.h"

#include <optional>
#include <unordered_map>
#include <utility>
#include <vector>

#include "platform/host/host_disk.h"
#include "platform/paths.h"
#include "platform/thread_annotations.h"

namespace sonarelle {

namespace {

using Clock = std::chrono::steady_clock;

constexpr std::size_t most_kept = 10000;

bool is_there(HostDisk& disk, const std::string& path) {
    try {
        return !disk.facts(path).is_folder;
    } catch (const Failure& failure) {
        // A disk that has a fault, or gives no right to look, says nothing of its files.
        return failure.number == FailureNumber::device_fault || failure.number == FailureNumber::permission_refused ||
               failure.number == FailureNumber::disk_not_ready;
    }
}

} // namespace

struct FilePresence::Known {
    struct Answer {
        bool missing = false;
        bool is_asked = false;
        std::optional<Clock::time_point> since; ///< Of the answer.
    };

    explicit Known(DriveTable table)
        : drives{std::move(table)} {}

    void look() {
        while (const std::optional<std::string> path = next()) {
            const bool missing = !is_there(disk, *path);
            const MutexLock lock{mutex};
            Answer& answer = answers[*path];
            news = news || answer.missing != missing;
            answer = {missing, false, Clock::now()};
        }
    }

    std::optional<std::string> next() {
        const MutexLock lock{mutex};
        if (asked.empty() || ends)
            return std::nullopt;
        std::string path = std::move(asked.back());
        asked.pop_back();
        return path;
    }

    const DriveTable drives;
    HostDisk disk{drives}; // the helper's alone
    Mutex mutex;
    std::unordered_map<std::string, Answer> answers SONARELLE_GUARDED_BY(mutex);
    std::vector<std::string> asked SONARELLE_GUARDED_BY(mutex);
    bool news SONARELLE_GUARDED_BY(mutex) = false;
    bool ends SONARELLE_GUARDED_BY(mutex) = false;
};

FilePresence::FilePresence(const DriveTable& drives, std::chrono::milliseconds fresh_for)
    : known_{std::make_shared<Known>(drives)},
      fresh_for_{fresh_for} {}

FilePresence::~FilePresence() {
    const MutexLock lock{known_->mutex};
    known_->ends = true;
}

bool FilePresence::is_missing(const std::string& path) {
    if (path.empty() || is_network_path(path))
        return false;
    const MutexLock lock{known_->mutex};
    if (known_->answers.size() > most_kept)
        known_->answers.clear();
    Known::Answer& answer = known_->answers[path];
    if (!answer.is_asked && (!answer.since || Clock::now() - *answer.since > fresh_for_)) {
        answer.is_asked = true;
        known_->asked.push_back(path);
        if (known_->asked.size() == 1)
            helper_.give([known = known_] { known->look(); });
    }
    return answer.missing;
}

bool FilePresence::has_news() {
    const MutexLock lock{known_->mutex};
    return std::exchange(known_->news, false);
}

} // namespace sonarelle
