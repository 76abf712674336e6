#include "platform/host/file_presence.h"

#include <mutex>
#include <optional>
#include <unordered_map>
#include <utility>
#include <vector>

#include "platform/host/host_disk.h"
#include "platform/paths.h"

namespace sonarelle {

namespace {

using Clock = std::chrono::steady_clock;

constexpr std::size_t most_kept = 10000;

bool is_there(HostDisk& disk, const std::string& path) {
    try {
        return !disk.facts(path).is_folder;
    } catch (const Failure& failure) {
        // A disk that has a fault, or gives no right to look, says nothing of its files.
        return failure.number == failure_number::device_fault || failure.number == failure_number::permission_refused ||
               failure.number == failure_number::disk_not_ready;
    }
}

} // namespace

struct FilePresence::Known {
    struct Answer {
        bool missing = false;
        bool is_asked = false;
        std::optional<Clock::time_point> since; ///< Of the answer.
    };

    explicit Known(DriveTable table) : drives{std::move(table)} {}

    void look() {
        for (std::unique_lock lock{mutex}; !asked.empty() && !ends;) {
            const std::string path = std::move(asked.back());
            asked.pop_back();
            lock.unlock();
            const bool missing = !is_there(disk, path);
            lock.lock();
            Answer& answer = answers[path];
            news = news || answer.missing != missing;
            answer = {missing, false, Clock::now()};
        }
    }

    const DriveTable drives;
    HostDisk disk{drives}; // the helper's alone
    std::mutex mutex;
    std::unordered_map<std::string, Answer> answers; // these four guarded by mutex
    std::vector<std::string> asked;
    bool news = false;
    bool ends = false;
};

FilePresence::FilePresence(const DriveTable& drives, std::chrono::milliseconds fresh_for)
    : known_{std::make_shared<Known>(drives)}, fresh_for_{fresh_for} {}

FilePresence::~FilePresence() {
    const std::scoped_lock lock{known_->mutex};
    known_->ends = true;
}

bool FilePresence::is_missing(const std::string& path) {
    if (path.empty() || is_network_path(path))
        return false;
    const std::scoped_lock lock{known_->mutex};
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
    const std::scoped_lock lock{known_->mutex};
    return std::exchange(known_->news, false);
}

} // namespace sonarelle
