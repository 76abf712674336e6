#include "platform/disk_patience.h"

#include <algorithm>
#include <condition_variable>
#include <deque>
#include <fstream>
#include <sstream>
#include <string_view>

#include "platform/thread_annotations.h"

namespace sonarelle {

namespace {

/// Whether the path is the folder or lies in it.
bool lies_in(std::string_view folder, std::string_view path) {
    return path.starts_with(folder) &&
           (path.size() == folder.size() || folder.ends_with('/') || path[folder.size()] == '/');
}

/// The table of mounts writes blanks and the like as \ooo.
std::string unescaped(std::string_view text) {
    std::string result;
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (text[at] == '\\' && at + 3 < text.size()) {
            const int code = (text[at + 1] - '0') * 64 + (text[at + 2] - '0') * 8 + (text[at + 3] - '0');
            result += static_cast<char>(code);
            at += 3;
        } else {
            result += text[at];
        }
    }
    return result;
}

/// Where the disk that holds the path is mounted, without asking that disk.
std::string mount_of(std::string_view path, const std::string& mount_table) {
    std::ifstream table{mount_table};
    std::string mount = "/";
    for (std::string line; std::getline(table, line);) {
        std::istringstream fields{line};
        std::string number;
        std::string parent;
        std::string device;
        std::string root;
        std::string point;
        if (!(fields >> number >> parent >> device >> root >> point))
            continue;
        point = unescaped(point);
        if (lies_in(point, path) && point.size() > mount.size())
            mount = point;
    }
    return mount;
}

} // namespace

bool DiskPatience::is_silent(const std::string& machine_path) {
    std::erase_if(silent_, [](const Silent& silent) { return silent.returned->load(); });
    return std::ranges::any_of(silent_, [&](const Silent& silent) { return lies_in(silent.folder, machine_path); });
}

// A path of the root's own disk may lead to another one by a link. The station's own files lie on that disk too, so no
// more is avoided than the path.
void DiskPatience::remember(const std::string& machine_path, std::shared_ptr<std::atomic<bool>> returned) {
    const std::string mount = mount_of(machine_path, mount_table_);
    silent_.push_back({mount == "/" ? machine_path : mount, std::move(returned)});
}

struct DiskHelper::Queue {
    Mutex mutex;
    std::condition_variable_any wakes;
    std::deque<std::function<void()>> work SONARELLE_GUARDED_BY(mutex);
    std::atomic<bool> has_work{false};
    bool ends SONARELLE_GUARDED_BY(mutex) = false;

    void run() {
        while (std::function<void()> next = take()) {
            next();
            next = nullptr; // what it owns goes before the wait
            stay_awake_until([this] { return has_work.load(); });
        }
    }

    /// Waits for work; nothing at the end.
    std::function<void()> take() {
        const MutexLock lock{mutex};
        while (!ends && work.empty())
            wakes.wait(mutex);
        if (work.empty())
            return {};
        std::function<void()> next = std::move(work.front());
        work.pop_front();
        has_work = !work.empty();
        return next;
    }
};

DiskHelper::DiskHelper()
    : queue_{std::make_shared<Queue>()} {
    std::thread{[queue = queue_] { queue->run(); }}.detach();
}

DiskHelper::~DiskHelper() {
    const MutexLock lock{queue_->mutex};
    queue_->ends = true;
    queue_->wakes.notify_one();
}

void DiskHelper::give(std::function<void()> work) {
    const MutexLock lock{queue_->mutex};
    queue_->work.push_back(std::move(work));
    queue_->has_work = true;
    queue_->wakes.notify_one();
}

} // namespace sonarelle
