#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include "host/disk_fixture.h"
#include "platform/failure.h"
#include "platform/host/host_drive_table.h"
#include "platform/host/host_settings.h"
#include "support/child_process.h"

namespace sonarelle::test {

using testing::ElementsAre;
using testing::IsEmpty;

/// A folder that may be read but not written, with a file in it that may be both.
struct ReadOnlyFolder : DiskFixture {
    ReadOnlyFolder() {
        folder.put("un/liste.dfm", "old");
        folder.set_rights("un/liste.dfm", 0666);
        folder.set_rights("un", 0555);
    }
    ~ReadOnlyFolder() { folder.set_rights("un", 0755); }
};

TEST(Rights, FileThatMayNotBeReadIsRefused) {
    DiskFixture bench;
    bench.folder.put("a.mp3");
    bench.folder.set_rights("a.mp3", 0);

    EXPECT_EQ(failure_without_rights([&] { (void)bench.disk.open("D:\\a.mp3"); }), FailureNumber::permission_refused);
}

TEST(Rights, FolderThatMayNotBeEnteredIsRefused) {
    DiskFixture bench;
    bench.folder.put("un/a.mp3");
    bench.folder.set_rights("un", 0);

    EXPECT_EQ(failure_without_rights([&] { (void)bench.disk.open("D:\\un\\a.mp3"); }),
              FailureNumber::permission_refused);
    EXPECT_EQ(failure_without_rights([&] { (void)bench.disk.Dir("D:\\un\\*"); }), FailureNumber::permission_refused);
    bench.folder.set_rights("un", 0755);
}

TEST(Rights, FolderThatMayBeEnteredButNotReadGivesItsFilesByTheirExactNames) {
    DiskFixture bench;
    bench.folder.put("un/a.mp3");
    bench.folder.set_rights("un", 0111);

    EXPECT_EQ(failure_without_rights([&] { (void)bench.disk.open("D:\\un\\a.mp3"); }), FailureNumber::none);
    EXPECT_EQ(failure_without_rights([&] { (void)bench.disk.open("D:\\un\\A.mp3"); }), FailureNumber::file_not_found);
    bench.folder.set_rights("un", 0755);
}

TEST(Rights, NothingIsSavedIntoAFolderThatMayNotBeWritten) {
    ReadOnlyFolder bench;

    EXPECT_EQ(failure_without_rights([&] { bench.save("D:\\un\\liste.dfm", "new"); }), FailureNumber::path_access);
    EXPECT_EQ(failure_without_rights([&] { bench.save("D:\\un\\autre.dfm", "new"); }), FailureNumber::path_access);
    EXPECT_EQ(bench.folder.bytes("un/liste.dfm"), "old");
}

TEST(Rights, NothingIsMadeOrRemovedInAFolderThatMayNotBeWritten) {
    ReadOnlyFolder bench;

    EXPECT_EQ(failure_without_rights([&] { (void)bench.disk.open_or_create("D:\\un\\b"); }),
              FailureNumber::path_access);
    EXPECT_EQ(failure_without_rights([&] { bench.disk.append("D:\\un\\b", "x"); }), FailureNumber::path_access);
    EXPECT_EQ(failure_without_rights([&] { bench.disk.MkDir("D:\\un\\b"); }), FailureNumber::path_access);
    EXPECT_EQ(failure_without_rights([&] { bench.disk.Kill("D:\\un\\liste.dfm"); }), FailureNumber::path_access);
    EXPECT_EQ(failure_without_rights([&] { bench.disk.Name("D:\\un\\liste.dfm", "D:\\un\\b"); }),
              FailureNumber::path_access);
    EXPECT_THAT(bench.folder.names("un"), ElementsAre("liste.dfm"));
}

TEST(Rights, FileThatIsThereOpensInAFolderThatMayNotBeWritten) {
    ReadOnlyFolder bench;

    EXPECT_EQ(failure_without_rights([&] { (void)bench.disk.open_or_create("D:\\un\\liste.dfm"); }),
              FailureNumber::none);
    EXPECT_EQ(failure_without_rights([&] { bench.disk.append("D:\\un\\liste.dfm", "x"); }), FailureNumber::none);
}

TEST(Rights, WriteProtectedFileStaysThoughItsFolderMayBeWritten) {
    DiskFixture bench;
    bench.folder.put("un/liste.dfm", "old");
    bench.folder.set_rights("un/liste.dfm", 0444);
    bench.folder.set_rights("un", 0777);

    EXPECT_EQ(failure_without_rights([&] { bench.save("D:\\un\\liste.dfm", "new"); }), FailureNumber::path_access);
    EXPECT_EQ(failure_without_rights([&] { bench.disk.Kill("D:\\un\\liste.dfm"); }), FailureNumber::path_access);
    EXPECT_EQ(bench.folder.bytes("un/liste.dfm"), "old");
}

TEST(Rights, LinkToAWriteProtectedFileGoesByItself) {
    DiskFixture bench;
    bench.folder.put("liste.dfm", "old");
    bench.folder.set_rights("liste.dfm", 0444);
    bench.folder.put_folder("un");
    bench.folder.set_rights("un", 0777);
    ASSERT_EQ(::symlink("../liste.dfm", bench.folder.path("un/lien.dfm").c_str()), 0);

    EXPECT_EQ(failure_without_rights([&] { bench.disk.Kill("D:\\un\\lien.dfm"); }), FailureNumber::none);
    EXPECT_THAT(bench.folder.names("un"), IsEmpty());
    EXPECT_EQ(bench.folder.bytes("liste.dfm"), "old");
}

TEST(Rights, FileOfAnotherOwnerThatAllMayWriteIsReplaced) {
    DiskFixture bench;
    bench.folder.put("un/liste.dfm", "old");
    bench.folder.set_rights("un/liste.dfm", 0666);
    bench.folder.set_rights("un", 0777);

    EXPECT_EQ(failure_without_rights([&] { bench.save("D:\\un\\liste.dfm", "new"); }), FailureNumber::none);
    EXPECT_EQ(bench.folder.bytes("un/liste.dfm"), "new");
    EXPECT_EQ(bench.folder.rights("un/liste.dfm"), 0666U);
}

TEST(Rights, AdministratorLeavesAFileToItsOwner) {
    DiskFixture bench;
    bench.folder.put("liste.dfm", "old");
    // Only an administrator can own a file as someone else; for another user the owner stays the same anyway.
    const uid_t owner = ::getuid() == 0 ? 12345 : ::getuid();
    ASSERT_EQ(::chown(bench.folder.path("liste.dfm").c_str(), owner, static_cast<gid_t>(-1)), 0);
    bench.save("D:\\liste.dfm", "new");

    struct stat facts {};
    ASSERT_EQ(::stat(bench.folder.path("liste.dfm").c_str(), &facts), 0);
    EXPECT_EQ(facts.st_uid, owner);
}

TEST(Rights, SettingsThatMayNotBeReadOrWrittenAreRefused) {
    PrivateFolder folder;
    HostSettings settings{folder.path("reglages.json")};
    settings.SaveSetting("Sonarelle", "Config", "Mix", "6");
    folder.set_rights("reglages.json", 0600);

    EXPECT_EQ(failure_without_rights([&] { settings.SaveSetting("Sonarelle", "Config", "Mix", "7"); }),
              FailureNumber::path_access);
    EXPECT_EQ(failure_without_rights([&] { (void)settings.GetSetting("Sonarelle", "Config", "Mix", ""); }),
              FailureNumber::path_access);
    EXPECT_EQ(failure_without_rights([&] { (void)load_drive_table(folder.path("reglages.json")); }),
              FailureNumber::path_access);
}

TEST(Rights, SettingsInAFolderThatMayNotBeMadeAreRefusedByName) {
    PrivateFolder folder;
    HostSettings settings{folder.path("absent/reglages.json")};
    const auto named = [&] {
        try {
            settings.SaveSetting("Sonarelle", "Config", "Mix", "7");
        } catch (const Failure& failure) {
            throw Failure{failure.source == folder.path("absent/reglages.json") ? failure.number : FailureNumber::none};
        }
    };

    EXPECT_EQ(failure_without_rights(named), FailureNumber::path_access);
}

TEST(Rights, LockOfAnotherUserShutsNobodyOutOfSharedSettings) {
    DiskFixture bench;
    const std::string file = bench.folder.path("commun/reglages.json");
    bench.folder.put_folder("commun");
    HostSettings{file}.SaveSetting("Sonarelle V6", "Config", "Mix", "6");
    bench.folder.set_rights("commun", 0777);
    bench.folder.set_rights("commun/reglages.json", 0666);
    bench.folder.set_rights("commun/.reglages.verrou", 0644);

    EXPECT_EQ(failure_without_rights([&] { HostSettings{file}.SaveSetting("Sonarelle V6", "Config", "Mix", "7"); }),
              FailureNumber::none);
}

TEST(Rights, LinkThatSomeoneElseLeftInASharedFolderIsNotWrittenThrough) {
    if (::geteuid() != 0)
        GTEST_SKIP() << "a link of another user's can't be made";
    DiskFixture bench;
    bench.folder.put("cible.txt", "kept");
    bench.folder.put_folder("tous");
    bench.folder.set_rights("tous", 01777);
    ASSERT_EQ(failure_without_rights([&] {
                  if (::symlink("../cible.txt", bench.folder.path("tous/liste.dfm").c_str()) != 0)
                      throw Failure{FailureNumber::path_access};
              }),
              FailureNumber::none);

    EXPECT_EQ(failure_of([&] { bench.save("D:\\tous\\liste.dfm", "new"); }), FailureNumber::path_access);
    EXPECT_EQ(bench.folder.bytes("cible.txt"), "kept");
}

} // namespace sonarelle::test
