#include "app/common/waveforms.h"

#include <algorithm>
#include <atomic>
#include <list>
#include <optional>
#include <system_error>
#include <thread>
#include <utility>

#include "platform/audio/sound_files.h"
#include "platform/audio/waveform_reading.h"
#include "platform/failure.h"
#include "platform/host/host_disk.h"
#include "platform/host/idle_thread.h"
#include "platform/host/waveform_store.h"
#include "platform/thread_annotations.h"

namespace sonarelle {

namespace {

using Clock = std::chrono::steady_clock;

constexpr std::size_t most_held = 32; // those of the decks, and of what was on them of late

} // namespace

struct Waveforms::Work {
    /// A file that was asked for; those asked for last stand first.
    struct File {
        std::string path;
        std::optional<Clock::time_point> since{}; ///< Of the reading; nothing while one is wanted.
        std::shared_ptr<const Waveform> waveform{};
    };

    Work(DriveTable table, std::string folder)
        : drives{std::move(table)},
          store{std::move(folder)} {}

    void run();
    [[nodiscard]] std::optional<std::string> next();
    [[nodiscard]] File& file_of(const std::string& path) SONARELLE_REQUIRES(mutex);
    void put(const std::string& path, std::shared_ptr<const Waveform> waveform);
    [[nodiscard]] std::shared_ptr<const Waveform> read_idly(const std::string& path);
    /// Null when it can't be read, or isn't wanted any more.
    [[nodiscard]] std::shared_ptr<const Waveform> read(const std::string& path);

    const DriveTable drives;
    HostDisk disk{drives}; // the reader's alone, like the store
    MachineFiles files;
    WaveformStore store;
    std::atomic<bool> ends = false;
    Mutex mutex;
    std::list<File> asked SONARELLE_GUARDED_BY(mutex);
    bool works SONARELLE_GUARDED_BY(mutex) = false;
};

void Waveforms::Work::run() {
    while (const std::optional<std::string> path = next())
        put(*path, read_idly(*path));
}

// A thread that may be kept from the processor for long never holds a lock that the window thread could wait for.
std::shared_ptr<const Waveform> Waveforms::Work::read_idly(const std::string& path) {
    std::shared_ptr<const Waveform> waveform;
    try {
        std::thread reader{[&] {
            become_idle_thread();
            waveform = read(path);
        }};
        reader.join();
    } catch (const std::system_error&) { // no thread to be had: the next look tries again
    }
    return waveform;
}

std::optional<std::string> Waveforms::Work::next() {
    const MutexLock lock{mutex};
    for (const File& file : asked)
        if (!file.since && !ends)
            return file.path;
    works = false;
    return std::nullopt;
}

Waveforms::Work::File& Waveforms::Work::file_of(const std::string& path) {
    const auto found = std::ranges::find(asked, path, &File::path);
    if (found != asked.end())
        return *found;
    asked.push_front({path});
    if (asked.size() > most_held)
        asked.pop_back();
    return asked.front();
}

void Waveforms::Work::put(const std::string& path, std::shared_ptr<const Waveform> waveform) {
    const MutexLock lock{mutex};
    for (File& file : asked)
        if (file.path == path) {
            file.since = Clock::now();
            if (waveform == nullptr || file.waveform == nullptr || *waveform != *file.waveform)
                file.waveform = std::move(waveform); // the same one isn't painted anew
            return;
        }
}

std::shared_ptr<const Waveform> Waveforms::Work::read(const std::string& path) {
    try {
        const std::string machine_path = disk.machine_path(path);
        const FileFacts facts = files.facts(machine_path);
        if (auto kept = store.find(machine_path, facts))
            return std::make_shared<const Waveform>(std::move(*kept));
        const auto source = open_sample_source(files.open(machine_path), machine_path);
        std::optional<Waveform> waveform = read_waveform(*source, ends);
        if (!waveform)
            return nullptr;
        store.keep(machine_path, facts, *waveform);
        return std::make_shared<const Waveform>(std::move(*waveform));
    } catch (const std::exception&) { // also no memory for what a broken file claims to hold
        return nullptr;
    }
}

Waveforms::Waveforms(const DriveTable& drives, std::string cache_folder, std::chrono::milliseconds fresh_for)
    : work_{std::make_shared<Work>(drives, std::move(cache_folder))},
      fresh_for_{fresh_for} {}

Waveforms::~Waveforms() {
    work_->ends = true;
}

std::shared_ptr<const Waveform> Waveforms::of(const std::string& path) {
    if (path.empty())
        return nullptr;
    const MutexLock lock{work_->mutex};
    Work::File& file = work_->file_of(path);
    if (file.since && Clock::now() - *file.since > fresh_for_)
        file.since.reset();
    if (!file.since && !std::exchange(work_->works, true))
        helper_.give([work = work_] { work->run(); });
    return file.waveform;
}

} // namespace sonarelle
