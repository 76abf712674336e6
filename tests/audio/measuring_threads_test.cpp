#include "platform/audio/measuring_threads.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <condition_variable>
#include <cstring>
#include <fstream>
#include <map>
#include <mutex>
#include <new>
#include <set>
#include <thread>

#include "memory_file.h"
#include "platform/failure.h"
#include "support/private_folder.h"

namespace sonarelle {

namespace {

using namespace std::chrono_literals;

/// The bytes of a WAV file, 8 bits, mono, of so many samples at 8 kHz.
std::string wav(std::uint32_t samples) {
    const auto word = [](std::uint32_t value, std::size_t bytes) {
        std::string text(bytes, '\0');
        std::memcpy(text.data(), &value, bytes);
        return text;
    };
    return "RIFF" + word(36 + samples, 4) + "WAVEfmt " + word(16, 4) + word(1, 2) + word(1, 2) + word(8000, 4) +
           word(8000, 4) + word(1, 2) + word(8, 2) + "data" + word(samples, 4) + std::string(samples, '\x80');
}

/// Files in memory. The disk of one folder tells nothing of its files until it is let go, that of another tells of them
/// and then takes as long to read them.
class MemoryFiles final : public SoundFiles {
public:
    void put(const std::string& path, std::string bytes) { files_[path] = std::move(bytes); }
    void let_go() {
        const std::lock_guard lock{mutex_};
        hangs_ = false;
        free_.notify_all();
    }

    [[nodiscard]] FileFacts facts(const std::string& path) override {
        std::unique_lock lock{mutex_};
        seen_.insert(std::this_thread::get_id());
        if (path.starts_with("/mort/")) {
            ++hung_;
            free_.wait(lock, [this] { return !hangs_; });
        }
        if (!files_.contains(path))
            throw Failure{FailureNumber::file_not_found, path};
        return {.size = static_cast<std::int64_t>(files_[path].size()), .modified = 0, .is_folder = false};
    }
    [[nodiscard]] std::unique_ptr<RecordFile> open(const std::string& path) override {
        std::unique_lock lock{mutex_};
        if (path.starts_with("/immense/"))
            throw std::bad_alloc{};
        if (path.starts_with("/disque/long/"))
            free_.wait(lock, [this] { return !hangs_; });
        return std::make_unique<MemoryFile>(files_.at(path));
    }
    /// How often a folder that hangs was asked.
    [[nodiscard]] unsigned hung() {
        const std::lock_guard lock{mutex_};
        return hung_;
    }
    [[nodiscard]] std::set<std::thread::id> seen() {
        const std::lock_guard lock{mutex_};
        return seen_;
    }

private:
    std::mutex mutex_;
    std::condition_variable free_;
    std::map<std::string, std::string> files_;
    std::set<std::thread::id> seen_;
    bool hangs_ = true;
    unsigned hung_ = 0;
};

/// As the station's paths lie in memory: only drive Q is nowhere.
std::string resolve(std::string_view path) {
    if (path.starts_with("Q:"))
        throw Failure{FailureNumber::device_unavailable, std::string{path}};
    return std::string{path.substr(2)};
}

class MeasuringAhead : public testing::Test {
protected:
    ~MeasuringAhead() override { files->let_go(); }

    [[nodiscard]] static MeasuredLength taken(LengthsAhead& lengths, const std::string& path) {
        for (;;)
            if (auto length = lengths.take(path, 10ms))
                return *length;
    }
    [[nodiscard]] static FailureNumber failure_of(LengthsAhead& lengths, const std::string& path) {
        const MeasuredLength length = taken(lengths, path);
        return length.failure ? length.failure->number : FailureNumber::none;
    }

    /// The mount table of a system that has a disk there.
    [[nodiscard]] std::string mount_at(const std::string& place) const {
        std::string table = folder.path() + "/mountinfo";
        std::ofstream{table} << "36 35 98:0 / " << place << " rw,noatime shared:1 - nfs serveur rw\n";
        return table;
    }

    const test::PrivateFolder folder;
    const unsigned threads = std::max(1U, std::thread::hardware_concurrency());
    std::shared_ptr<MemoryFiles> files = std::make_shared<MemoryFiles>();
    MeasuringThreads lengths{files, resolve, DiskPatience{60s}};
};

} // namespace

TEST_F(MeasuringAhead, GivesEachFileItsLength) {
    for (std::uint32_t seconds = 1; seconds <= 40; ++seconds)
        files->put("/" + std::to_string(seconds), wav(seconds * 8000));
    for (int seconds = 1; seconds <= 40; ++seconds)
        lengths.want("C:/" + std::to_string(seconds));
    for (int seconds = 1; seconds <= 40; ++seconds)
        EXPECT_EQ(taken(lengths, "C:/" + std::to_string(seconds)).seconds, seconds);
}

TEST_F(MeasuringAhead, GivesThemInWhateverOrderTheyAreTaken) {
    files->put("/a", wav(8000));
    files->put("/b", wav(16000));
    lengths.want("C:/a");
    lengths.want("C:/b");
    EXPECT_EQ(taken(lengths, "C:/b").seconds, 2);
    EXPECT_EQ(taken(lengths, "C:/a").seconds, 1);
}

TEST_F(MeasuringAhead, MeasuresAFileThatNobodyAskedFor) {
    files->put("/a", wav(8000));
    EXPECT_EQ(taken(lengths, "C:/a").seconds, 1);
}

TEST_F(MeasuringAhead, MeasuresAFileThatIsTakenTwice) {
    files->put("/a", wav(8000));
    lengths.want("C:/a");
    lengths.want("C:/a");
    EXPECT_EQ(taken(lengths, "C:/a").seconds, 1);
    EXPECT_EQ(taken(lengths, "C:/a").seconds, 1);
}

TEST_F(MeasuringAhead, MeasuresOnThreadsOfItsOwn) {
    files->put("/a", wav(8000));
    static_cast<void>(taken(lengths, "C:/a"));
    EXPECT_FALSE(files->seen().contains(std::this_thread::get_id()));
}

TEST_F(MeasuringAhead, SaysWhyThereIsNoLengthUnderTheStationsName) {
    const MeasuredLength length = taken(lengths, "C:/rien");
    ASSERT_TRUE(length.failure);
    EXPECT_EQ(length.failure->number, FailureNumber::file_not_found);
    EXPECT_EQ(length.failure->source, "C:/rien");
}

TEST_F(MeasuringAhead, TellsAPathThatNoDriveReaches) {
    lengths.want("Q:/a");
    EXPECT_EQ(failure_of(lengths, "Q:/a"), FailureNumber::device_unavailable);
}

TEST_F(MeasuringAhead, TellsAFileWithoutSound) {
    files->put("/texte", "Ceci n'est pas de la musique.");
    EXPECT_EQ(failure_of(lengths, "C:/texte"), FailureNumber::unplayable_file);
}

TEST_F(MeasuringAhead, TellsAFileThatMemoryDoesNotHold) {
    files->put("/immense/a", wav(8000));
    EXPECT_EQ(failure_of(lengths, "C:/immense/a"), FailureNumber::unplayable_file);
}

TEST_F(MeasuringAhead, LeavesADeadDiskBehindAndGoesOn) {
    files->put("/a", wav(8000));
    MeasuringThreads impatient{files, resolve, DiskPatience{500ms}};
    for (int file = 0; file < 4; ++file)
        impatient.want("C:/mort/" + std::to_string(file));
    for (int file = 0; file < 4; ++file)
        EXPECT_EQ(failure_of(impatient, "C:/mort/" + std::to_string(file)), FailureNumber::device_fault);
    EXPECT_EQ(taken(impatient, "C:/a").seconds, 1);
}

TEST_F(MeasuringAhead, AsksADeadDiskNoMoreThanOnceAThread) {
    const unsigned count = 3 * threads;
    MeasuringThreads impatient{files, resolve, DiskPatience{500ms, mount_at("/mort")}};
    for (unsigned file = 0; file < count; ++file)
        impatient.want("C:/mort/" + std::to_string(file));
    for (unsigned file = 0; file < count; ++file)
        EXPECT_EQ(failure_of(impatient, "C:/mort/" + std::to_string(file)), FailureNumber::device_fault);
    EXPECT_EQ(failure_of(impatient, "C:/mort/later"), FailureNumber::device_fault);
    EXPECT_LE(files->hung(), threads);
}

TEST_F(MeasuringAhead, TakesADiskThatReadsALongFileForNoDeadOne) {
    const auto long_file = [](unsigned number) { return "/disque/long/" + std::to_string(number); };
    files->put("/disque/a", wav(8000));
    MeasuringThreads impatient{files, resolve, DiskPatience{500ms, mount_at("/disque")}};
    for (unsigned file = 0; file < threads; ++file) {
        files->put(long_file(file), wav(8000));
        impatient.want("C:" + long_file(file));
    }
    impatient.want("C:/disque/a");
    EXPECT_EQ(failure_of(impatient, "C:" + long_file(0)), FailureNumber::device_fault);
    EXPECT_EQ(taken(impatient, "C:/disque/a").seconds, 1);
}

TEST_F(MeasuringAhead, AsksADiskThatCameBackAgain) {
    files->put("/mort/a", wav(8000));
    MeasuringThreads impatient{files, resolve, DiskPatience{500ms}};
    EXPECT_EQ(failure_of(impatient, "C:/mort/a"), FailureNumber::device_fault);
    files->let_go();
    MeasuredLength length = taken(impatient, "C:/mort/a");
    while (length.failure) // as long as the thread that was left behind is on its way back
        length = taken(impatient, "C:/mort/a");
    EXPECT_EQ(length.seconds, 1);
}

TEST_F(MeasuringAhead, AsksADiskThatCameBackWithoutTheFileAgain) {
    MeasuringThreads impatient{files, resolve, DiskPatience{500ms}};
    EXPECT_EQ(failure_of(impatient, "C:/mort/disparu"), FailureNumber::device_fault);
    files->let_go();
    while (failure_of(impatient, "C:/mort/disparu") != FailureNumber::file_not_found) {
        // the thread that was left behind is on its way back
    }
}

TEST_F(MeasuringAhead, IsDroppedWhileADiskHangs) {
    {
        MeasuringThreads others{files, resolve, DiskPatience{}};
        others.want("C:/mort/a");
        EXPECT_FALSE(others.take("C:/mort/a", 10ms));
    }
    files->put("/b", wav(8000));
    EXPECT_EQ(taken(lengths, "C:/b").seconds, 1);
}

} // namespace sonarelle
