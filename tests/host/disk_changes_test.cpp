#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>

#include "host/disk_fixture.h"
#include "support/child_process.h"

namespace sonarelle::test {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(HostDiskKill, RemovesAFileIgnoringCase) {
    DiskFixture bench;
    bench.folder.put("Titre.mp3");
    bench.disk.Kill("D:\\TITRE.MP3");

    EXPECT_THAT(bench.folder.names(), IsEmpty());
}

TEST(HostDiskKill, RemovesAllFilesOfAPattern) {
    DiskFixture bench;
    for (const char* name : {"a.tmp", "b.TMP", "c.mp3"})
        bench.folder.put(name);
    bench.disk.Kill("D:\\*.tmp");

    EXPECT_THAT(bench.folder.names(), ElementsAre("c.mp3"));
}

TEST(HostDiskKill, MissingFileFails) {
    DiskFixture bench;

    EXPECT_EQ(failure_of([&] { bench.disk.Kill("D:\\absent"); }), FailureNumber::file_not_found);
    EXPECT_EQ(failure_of([&] { bench.disk.Kill("D:\\*.tmp"); }), FailureNumber::file_not_found);
}

TEST(HostDiskKill, FolderIsNoFile) {
    DiskFixture bench;
    bench.folder.put_folder("un");

    EXPECT_EQ(failure_of([&] { bench.disk.Kill("D:\\un"); }), FailureNumber::path_access);
}

TEST(HostDiskKill, RemovesALinkAndNotWhatItPointsTo) {
    DiskFixture bench;
    bench.folder.put("a.mp3");
    std::filesystem::create_symlink("a.mp3", bench.folder.path("lien.mp3"));
    bench.disk.Kill("D:\\lien.mp3");

    EXPECT_THAT(bench.folder.names(), ElementsAre("a.mp3"));
}

TEST(HostDiskName, RenamesIntoAnotherFolder) {
    DiskFixture bench;
    bench.folder.put("a.mp3", "son");
    bench.folder.put_folder("Autre");
    bench.disk.Name("D:\\A.mp3", "D:\\autre\\B.mp3");

    EXPECT_EQ(bench.folder.bytes("Autre/B.mp3"), "son");
    EXPECT_THAT(bench.folder.names(), ElementsAre("Autre"));
}

TEST(HostDiskName, RenamesAFolder) {
    DiskFixture bench;
    bench.folder.put("un/x");
    bench.disk.Name("D:\\un", "D:\\deux");

    EXPECT_TRUE(bench.folder.exists("deux/x"));
}

TEST(HostDiskName, NeverTakesThePlaceOfAnotherFile) {
    DiskFixture bench;
    bench.folder.put("a.mp3", "a");
    bench.folder.put("B.mp3", "b");

    EXPECT_EQ(failure_of([&] { bench.disk.Name("D:\\a.mp3", "D:\\b.MP3"); }), FailureNumber::file_exists);
    EXPECT_EQ(bench.folder.bytes("B.mp3"), "b");
}

TEST(HostDiskName, ChangesTheCaseOfAName) {
    DiskFixture bench;
    bench.folder.put("titre.mp3");
    bench.disk.Name("D:\\titre.mp3", "D:\\TITRE.mp3");

    EXPECT_THAT(bench.folder.names(), ElementsAre("TITRE.mp3"));
}

TEST(HostDiskName, MissingFileOrFolderFails) {
    DiskFixture bench;
    bench.folder.put("a.mp3");

    EXPECT_EQ(failure_of([&] { bench.disk.Name("D:\\absent", "D:\\b"); }), FailureNumber::file_not_found);
    EXPECT_EQ(failure_of([&] { bench.disk.Name("D:\\a.mp3", "D:\\absent\\a.mp3"); }), FailureNumber::path_not_found);
}

TEST(HostDiskName, AnotherDriveIsRefused) {
    DiskFixture bench;
    bench.folder.put("a.mp3");
    bench.drives.set("E", bench.folder.path());

    EXPECT_EQ(failure_of([&] { bench.disk.Name("D:\\a.mp3", "E:\\b.mp3"); }), FailureNumber::other_drive);
}

TEST(HostDiskName, FolderDoesNotGoIntoItself) {
    DiskFixture bench;
    bench.folder.put_folder("un");

    EXPECT_EQ(failure_of([&] { bench.disk.Name("D:\\un", "D:\\un\\deux"); }), FailureNumber::path_access);
}

TEST(HostDiskFileCopy, CopiesBytesAndRights) {
    DiskFixture bench;
    const std::string bytes(3'000'001, 'x');
    bench.folder.put("a.mp3", bytes);
    bench.folder.set_rights("a.mp3", 0640);
    bench.disk.FileCopy("D:\\a.mp3", "D:\\b.mp3");

    EXPECT_EQ(bench.folder.bytes("b.mp3"), bytes);
    EXPECT_EQ(bench.folder.rights("b.mp3"), 0640U);
}

TEST(HostDiskFileCopy, WritesOverAFileThatIsThere) {
    DiskFixture bench;
    bench.folder.put("a.mp3", "new");
    bench.folder.put("B.mp3", "older and longer");
    bench.disk.FileCopy("D:\\a.mp3", "D:\\b.mp3");

    EXPECT_EQ(bench.folder.bytes("B.mp3"), "new");
}

TEST(HostDiskFileCopy, RefusesToCopyAFileOntoItself) {
    DiskFixture bench;
    bench.folder.put("a.mp3", "son");
    std::filesystem::create_symlink("a.mp3", bench.folder.path("lien.mp3"));

    EXPECT_EQ(failure_of([&] { bench.disk.FileCopy("D:\\a.mp3", "D:\\A.MP3"); }), FailureNumber::permission_refused);
    EXPECT_EQ(failure_of([&] { bench.disk.FileCopy("D:\\a.mp3", "D:\\lien.mp3"); }), FailureNumber::permission_refused);
    EXPECT_EQ(bench.folder.bytes("a.mp3"), "son");
}

TEST(HostDiskFileCopy, FolderIsNoFile) {
    DiskFixture bench;
    bench.folder.put("a.mp3");
    bench.folder.put_folder("un");

    EXPECT_EQ(failure_of([&] { bench.disk.FileCopy("D:\\un", "D:\\b"); }), FailureNumber::path_access);
    EXPECT_EQ(failure_of([&] { bench.disk.FileCopy("D:\\a.mp3", "D:\\un"); }), FailureNumber::path_access);
}

TEST(HostDiskFolders, AreMadeAndRemoved) {
    DiskFixture bench;
    bench.disk.MkDir("D:\\un");
    bench.disk.MkDir("D:\\UN\\deux");
    EXPECT_TRUE(bench.folder.exists("un/deux"));

    bench.disk.RmDir("D:\\un\\deux");
    bench.disk.RmDir("D:\\un");
    EXPECT_THAT(bench.folder.names(), IsEmpty());
}

TEST(HostDiskFolders, NameThatIsTakenIsRefused) {
    DiskFixture bench;
    bench.folder.put("Un");

    EXPECT_EQ(failure_of([&] { bench.disk.MkDir("D:\\un"); }), FailureNumber::path_access);
}

TEST(HostDiskFolders, FolderThatHoldsSomethingStays) {
    DiskFixture bench;
    bench.folder.put("un/x");

    EXPECT_EQ(failure_of([&] { bench.disk.RmDir("D:\\un"); }), FailureNumber::path_access);
}

TEST(HostDiskFolders, MissingFolderFails) {
    DiskFixture bench;

    EXPECT_EQ(failure_of([&] { bench.disk.RmDir("D:\\absent"); }), FailureNumber::path_not_found);
    EXPECT_EQ(failure_of([&] { bench.disk.MkDir("D:\\absent\\un"); }), FailureNumber::path_not_found);
}

TEST(HostDiskFolders, FolderOfADriveStays) {
    DiskFixture bench;

    EXPECT_EQ(failure_of([&] { bench.disk.RmDir("D:\\"); }), FailureNumber::path_access);
    EXPECT_EQ(failure_of([&] { bench.disk.Kill("D:\\"); }), FailureNumber::path_access);
    EXPECT_EQ(failure_of([&] { bench.disk.Name("D:\\", "D:\\"); }), FailureNumber::path_access);
    EXPECT_EQ(failure_of([&] { bench.disk.Name("D:\\", "D:\\un"); }), FailureNumber::path_access);
    EXPECT_TRUE(bench.folder.exists("."));
}

TEST(HostDiskFacts, TellSizeTimeAndKind) {
    DiskFixture bench;
    bench.folder.put("a.mp3", "four");
    const timespec times[2]{{1'600'000'000, 0}, {1'600'000'000, 123'000'000}};
    ASSERT_EQ(::utimensat(AT_FDCWD, bench.folder.path("a.mp3").c_str(), times, 0), 0);

    const FileFacts facts = bench.disk.facts("D:\\A.MP3");
    EXPECT_EQ(facts.size, 4);
    EXPECT_EQ(facts.modified, 1'600'000'000'123'000'000);
    EXPECT_FALSE(facts.is_folder);
    EXPECT_TRUE(bench.disk.facts("D:\\").is_folder);
}

} // namespace sonarelle::test
