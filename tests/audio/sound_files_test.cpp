// What the operator is told of a sound file that can't be opened.
#include "platform/audio/sound_files.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include <array>

#include "platform/failure.h"
#include "support/child_process.h"
#include "support/private_folder.h"

namespace sonarelle {

namespace {

using test::failure_of;
using test::failure_without_rights;

class SoundFilesOnDisk : public testing::Test {
protected:
    [[nodiscard]] std::function<void()> look_at(const std::string& name) {
        return [this, path = folder.path(name)] { static_cast<void>(files.facts(path)); };
    }
    [[nodiscard]] std::function<void()> open(const std::string& name) {
        return [this, path = folder.path(name)] { static_cast<void>(files.open(path)); };
    }

    test::PrivateFolder folder;
    MachineFiles files;
};

} // namespace

TEST_F(SoundFilesOnDisk, OneThatIsNotThereIsNotFound) {
    EXPECT_EQ(failure_of(look_at("a.mp3")), FailureNumber::file_not_found);
    EXPECT_EQ(failure_of(open("a.mp3")), FailureNumber::file_not_found);
}

TEST_F(SoundFilesOnDisk, OneInAFileInsteadOfAFolderIsNotFound) {
    folder.put("a.mp3");
    EXPECT_EQ(failure_of(look_at("a.mp3/b.mp3")), FailureNumber::file_not_found);
    EXPECT_EQ(failure_of(open("a.mp3/b.mp3")), FailureNumber::file_not_found);
}

TEST_F(SoundFilesOnDisk, OneThatMayNotBeReadIsRefused) {
    folder.put("a.mp3");
    folder.set_rights("a.mp3", 0);
    EXPECT_EQ(failure_without_rights(open("a.mp3")), FailureNumber::permission_refused);
}

TEST_F(SoundFilesOnDisk, OneInAFolderThatMayNotBeEnteredIsRefused) {
    folder.put("un/a.mp3");
    folder.set_rights("un", 0);
    EXPECT_EQ(failure_without_rights(look_at("un/a.mp3")), FailureNumber::permission_refused);
    EXPECT_EQ(failure_without_rights(open("un/a.mp3")), FailureNumber::permission_refused);
    folder.set_rights("un", 0755);
}

TEST_F(SoundFilesOnDisk, OneTooManyIsTold) {
    folder.put("a.mp3");
    // A sanitizer wants a descriptor for its first look at each type on the way.
    EXPECT_EQ(failure_of(open("absent.mp3")), FailureNumber::file_not_found);
    rlimit limit{};
    ASSERT_EQ(::getrlimit(RLIMIT_NOFILE, &limit), 0);
    const rlimit none{.rlim_cur = 0, .rlim_max = limit.rlim_max};
    ASSERT_EQ(::setrlimit(RLIMIT_NOFILE, &none), 0);
    EXPECT_EQ(failure_of(open("a.mp3")), FailureNumber::too_many_files);
    ASSERT_EQ(::setrlimit(RLIMIT_NOFILE, &limit), 0);
}

TEST_F(SoundFilesOnDisk, AreClosedWhenTheyAreDropped) {
    folder.put("a.mp3");
    rlimit limit{};
    ASSERT_EQ(::getrlimit(RLIMIT_NOFILE, &limit), 0);
    const rlimit few{.rlim_cur = 100, .rlim_max = limit.rlim_max};
    ASSERT_EQ(::setrlimit(RLIMIT_NOFILE, &few), 0);
    for (int file = 0; file < 200; ++file)
        EXPECT_EQ(failure_of(open("a.mp3")), FailureNumber::none);
    ASSERT_EQ(::setrlimit(RLIMIT_NOFILE, &limit), 0);
}

TEST_F(SoundFilesOnDisk, AreReadFromAnyPlaceToTheirEnd) {
    folder.put("a.mp3", "0123456789");
    const auto file = files.open(folder.path("a.mp3"));
    EXPECT_EQ(file->length(), 10);
    const auto read = [&](std::int64_t position) {
        std::array<std::byte, 4> bytes{};
        const std::size_t count = file->read(position, bytes);
        return std::string{reinterpret_cast<const char*>(bytes.data()), count};
    };
    EXPECT_EQ(read(0), "0123");
    EXPECT_EQ(read(5), "5678");
    EXPECT_EQ(read(8), "89");
    EXPECT_EQ(read(10), "");
    EXPECT_EQ(read(1000), "");
}

TEST_F(SoundFilesOnDisk, ThatGiveNoBytesAreADeviceFault) {
    folder.put("un/a.mp3");
    const auto opened = files.open(folder.path("un"));
    std::array<std::byte, 4> bytes{};
    EXPECT_EQ(failure_of([&] { static_cast<void>(opened->read(0, bytes)); }), FailureNumber::device_fault);
}

TEST_F(SoundFilesOnDisk, TellToTheNanosecondWhenTheyChanged) {
    folder.put("a.mp3");
    const std::array<timespec, 2> times{timespec{.tv_sec = 5, .tv_nsec = 6},
                                        timespec{.tv_sec = 1'700'000'000, .tv_nsec = 7}};
    ASSERT_EQ(::utimensat(AT_FDCWD, folder.path("a.mp3").c_str(), times.data(), 0), 0);
    EXPECT_EQ(files.facts(folder.path("a.mp3")).modified, 1'700'000'000'000'000'007);
}

TEST_F(SoundFilesOnDisk, FolderIsToldFromAFile) {
    folder.put("un/a.mp3", "sound");
    EXPECT_TRUE(files.facts(folder.path("un")).is_folder);
    EXPECT_FALSE(files.facts(folder.path("un/a.mp3")).is_folder);
    EXPECT_EQ(files.facts(folder.path("un/a.mp3")).size, 5);
}

} // namespace sonarelle
