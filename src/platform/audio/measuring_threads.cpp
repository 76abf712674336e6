#include "platform/audio/measuring_threads.h"

#include <algorithm>
#include <deque>
#include <exception>

#include "platform/audio/sample_source.h"
#include "platform/thread_annotations.h"

namespace sonarelle {

namespace {

constexpr std::chrono::milliseconds patience_at_the_end{100};

using Instant = std::chrono::steady_clock::time_point;

MeasuredLength measure(SoundFiles& files, const std::string& path, std::atomic<bool>& disk_answers) {
    try {
        const FileFacts facts = files.facts(path);
        disk_answers = true;
        if (facts.is_folder)
            throw Failure{FailureNumber::unplayable_file, path};
        const auto source = open_sample_source(files.open(path), path);
        return {static_cast<double>(source->length()) / source->rate(), {}};
    } catch (const Failure& failure) {
        disk_answers = true;
        return {0, failure};
    } catch (const std::exception&) { // no memory for what a broken file claims to hold
        disk_answers = true;
        return {0, Failure{FailureNumber::unplayable_file, path}};
    }
}

} // namespace

/// What the window thread and the measuring threads share.
struct MeasuringThreads::Work {
    enum class Stage { waiting, under_way, measured };
    /// A file from the asking to the taking.
    struct File {
        [[nodiscard]] bool hangs(DiskPatience& patience) const;
        void fail(FailureNumber number) {
            stage = Stage::measured;
            length = {0, Failure{number}};
        }

        std::string machine_path;
        Stage stage = Stage::waiting;
        Instant since{};
        std::shared_ptr<std::atomic<bool>> disk_answers{}; ///< Set once the disk has answered about the file.
        MeasuredLength length{};
    };

    explicit Work(std::shared_ptr<SoundFiles> sound_files)
        : files{std::move(sound_files)} {}

    void run();
    /// The file takes too long. Where its disk hasn't even told of it, what waits for the same one fails unasked.
    void give_up(File& file, DiskPatience& patience) SONARELLE_REQUIRES(mutex);

    const std::shared_ptr<SoundFiles> files;
    Mutex mutex;
    Condition asked;
    Condition answered;
    std::unordered_map<std::string, File> by_path SONARELLE_GUARDED_BY(mutex); // the station's form
    std::deque<std::string> queue SONARELLE_GUARDED_BY(mutex);
    std::size_t running SONARELLE_GUARDED_BY(mutex) = 0;
    bool ends SONARELLE_GUARDED_BY(mutex) = false;
};

void MeasuringThreads::Work::run() {
    MutexLock lock{mutex};
    while (!ends) {
        if (queue.empty()) {
            asked.wait(mutex);
            continue;
        }
        const std::string path = std::move(queue.front());
        queue.pop_front();
        const auto waiting = by_path.find(path);
        if (waiting == by_path.end() || waiting->second.stage != Stage::waiting)
            continue; // nobody waits for its disk any more
        const auto disk_answers = std::make_shared<std::atomic<bool>>(false);
        waiting->second.stage = Stage::under_way;
        waiting->second.since = std::chrono::steady_clock::now();
        waiting->second.disk_answers = disk_answers;
        const std::string machine_path = waiting->second.machine_path;
        mutex.unlock();
        MeasuredLength length = measure(*files, machine_path, *disk_answers);
        mutex.lock();
        const auto found = by_path.find(path);
        if (found == by_path.end() || found->second.disk_answers != disk_answers)
            continue; // given up meanwhile
        found->second.length = std::move(length);
        found->second.stage = Stage::measured;
        answered.notify_all();
    }
    --running;
    answered.notify_all();
}

bool MeasuringThreads::Work::File::hangs(DiskPatience& patience) const {
    return stage == Stage::under_way && patience.limit() &&
           (std::chrono::steady_clock::now() - since > *patience.limit() ||
            (!*disk_answers && patience.is_silent(machine_path)));
}

void MeasuringThreads::Work::give_up(File& file, DiskPatience& patience) {
    file.fail(FailureNumber::device_fault);
    if (*file.disk_answers)
        return;
    patience.remember(file.machine_path, file.disk_answers);
    for (auto& [path, other] : by_path)
        if (other.stage == Stage::waiting && patience.is_silent(other.machine_path))
            other.fail(FailureNumber::device_fault);
}

MeasuringThreads::MeasuringThreads(std::shared_ptr<SoundFiles> files, Resolve resolve, DiskPatience patience)
    : work_{std::make_shared<Work>(std::move(files))},
      resolve_{std::move(resolve)},
      patience_{std::move(patience)} {
    const unsigned count = std::max(1U, std::thread::hardware_concurrency());
    for (unsigned thread = 0; thread < count; ++thread)
        add_thread();
}

MeasuringThreads::~MeasuringThreads() {
    const Instant limit = std::chrono::steady_clock::now() + patience_at_the_end;
    bool all_ended = false;
    {
        MutexLock lock{work_->mutex};
        work_->ends = true;
        work_->asked.notify_all();
        while (work_->running > 0 && std::chrono::steady_clock::now() < limit)
            work_->answered.wait_until(work_->mutex, limit);
        all_ended = work_->running == 0;
    }
    for (std::thread& thread : threads_)
        all_ended ? thread.join() : thread.detach();
}

void MeasuringThreads::add_thread() {
    {
        const MutexLock lock{work_->mutex};
        ++work_->running;
    }
    threads_.emplace_back([work = work_] { work->run(); });
}

void MeasuringThreads::want(std::string_view path) {
    ask(path, false);
}

void MeasuringThreads::ask(std::string_view path, bool first) {
    const std::string name{path};
    {
        const MutexLock lock{work_->mutex};
        if (work_->by_path.contains(name))
            return;
    }
    Work::File file;
    try {
        file.machine_path = resolve_(path);
        if (patience_.is_silent(file.machine_path))
            file.fail(FailureNumber::device_fault);
    } catch (const Failure& failure) {
        file.stage = Work::Stage::measured;
        file.length.failure = failure;
    }
    const bool to_measure = file.stage == Work::Stage::waiting;
    const MutexLock lock{work_->mutex};
    work_->by_path[name] = std::move(file);
    if (!to_measure)
        return;
    if (first)
        work_->queue.push_front(name);
    else
        work_->queue.push_back(name);
    work_->asked.notify_one();
}

std::optional<MeasuredLength> MeasuringThreads::take(std::string_view path, std::chrono::milliseconds patience) {
    ask(path, true);
    const std::string name{path};
    const Instant limit = std::chrono::steady_clock::now() + patience;
    MeasuredLength length;
    bool left_behind = false;
    {
        MutexLock lock{work_->mutex};
        Work::File& file = work_->by_path[name];
        while (file.stage != Work::Stage::measured && !file.hangs(patience_) &&
               std::chrono::steady_clock::now() < limit)
            work_->answered.wait_until(work_->mutex, limit);
        left_behind = file.hangs(patience_);
        if (left_behind)
            work_->give_up(file, patience_);
        if (file.stage != Work::Stage::measured)
            return std::nullopt;
        length = std::move(file.length);
        work_->by_path.erase(name);
    }
    if (left_behind)
        add_thread();
    if (length.failure) // known to the station by its own name
        length.failure = Failure{length.failure->number, name, length.failure->description};
    return length;
}

} // namespace sonarelle
