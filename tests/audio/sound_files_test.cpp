// What the operator is told of a sound file that can't be opened.
#include "platform/audio/sound_files.h"

#include <gtest/gtest.h>

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

TEST_F(SoundFilesOnDisk, FolderIsToldFromAFile) {
    folder.put("un/a.mp3", "sound");
    EXPECT_TRUE(files.facts(folder.path("un")).is_folder);
    EXPECT_FALSE(files.facts(folder.path("un/a.mp3")).is_folder);
    EXPECT_EQ(files.facts(folder.path("un/a.mp3")).size, 5);
}

} // namespace sonarelle
