#include <gtest/gtest.h>

#include "host/disk_fixture.h"
#include "platform/failure.h"
#include "support/child_process.h"

namespace sonarelle::test {

TEST(HostDiskLookup, FindsAFileIgnoringTheCaseOfEachPart) {
    DiskFixture bench;
    bench.folder.put("Musique/Été/Titre.mp3", "son");

    EXPECT_EQ(bench.read("d:\\MUSIQUE\\ÉTÉ\\titre.MP3"), "son");
}

TEST(HostDiskLookup, TakesTheExactNameFirst) {
    DiskFixture bench;
    bench.folder.put("TITRE.mp3", "grand");
    bench.folder.put("titre.mp3", "petit");

    EXPECT_EQ(bench.read("D:\\titre.mp3"), "petit");
    EXPECT_EQ(bench.read("D:\\TITRE.mp3"), "grand");
}

TEST(HostDiskLookup, TakesTheFirstSpellingInByteOrderWithoutAnExactName) {
    DiskFixture bench;
    bench.folder.put("titre.mp3", "petit");
    bench.folder.put("TITRE.mp3", "grand");

    EXPECT_EQ(bench.read("D:\\Titre.mp3"), "grand");
}

TEST(HostDiskLookup, TellsAMissingFileFromAMissingFolder) {
    DiskFixture bench;
    bench.folder.put_folder("Musique");

    EXPECT_EQ(failure_of([&] { (void)bench.disk.open("D:\\Musique\\x.mp3"); }), FailureNumber::file_not_found);
    EXPECT_EQ(failure_of([&] { (void)bench.disk.open("D:\\Jingles\\x.mp3"); }), FailureNumber::path_not_found);
}

TEST(HostDiskLookup, FileInThePlaceOfAFolderIsAMissingFolder) {
    DiskFixture bench;
    bench.folder.put("Musique", "a file");

    EXPECT_EQ(failure_of([&] { (void)bench.disk.open("D:\\musique\\x.mp3"); }), FailureNumber::path_not_found);
}

TEST(HostDiskLookup, DriveThatIsNotInTheTableIsUnavailable) {
    DiskFixture bench;

    EXPECT_EQ(failure_of([&] { (void)bench.disk.open("Q:\\x.mp3"); }), FailureNumber::device_unavailable);
    EXPECT_EQ(failure_of([&] { (void)bench.disk.Dir("Q:\\*.mp3"); }), FailureNumber::device_unavailable);
}

TEST(HostDiskLookup, DriveWhoseFolderIsGoneIsUnavailable) {
    DiskFixture bench;
    bench.drives.set("E", bench.folder.path("unplugged"));

    EXPECT_EQ(failure_of([&] { (void)bench.disk.open("E:\\x.mp3"); }), FailureNumber::device_unavailable);
    EXPECT_EQ(failure_of([&] { (void)bench.disk.Dir("E:\\x.mp3"); }), FailureNumber::device_unavailable);
}

TEST(HostDiskLookup, ReachesAShareByItsNameIgnoringCase) {
    DiskFixture bench;
    bench.folder.put("serveur/Titre.mp3", "son");
    bench.drives.set("\\\\Serveur\\Musique", bench.folder.path("serveur"));

    EXPECT_EQ(bench.read("\\\\SERVEUR\\musique\\titre.mp3"), "son");
}

TEST(HostDiskLookup, FailureNamesThePathInTheStationsForm) {
    DiskFixture bench;
    try {
        (void)bench.disk.open("d:absent.mp3");
        FAIL();
    } catch (const Failure& failure) {
        EXPECT_EQ(failure.source, "D:\\absent.mp3");
    }
}

TEST(HostDiskLookup, NameThatIsNoUtf8OnTheDiskIsNotFound) {
    DiskFixture bench;
    bench.folder.put("\xE9t\xE9.mp3");

    EXPECT_EQ(failure_of([&] { (void)bench.disk.open("D:\\ÉTÉ.mp3"); }), FailureNumber::file_not_found);
}

TEST(HostDiskLookup, FollowsAChangeOfTheDriveTable) {
    DiskFixture bench;
    bench.folder.put("autre/x.mp3", "there");
    bench.drives.set("D", bench.folder.path("autre"));

    EXPECT_EQ(bench.read("D:\\x.mp3"), "there");
}

TEST(HostDiskLookup, GivesTheMachinesPathInTheDisksSpelling) {
    DiskFixture bench;
    bench.folder.put("Musique/Titre.mp3");

    EXPECT_EQ(bench.disk.machine_path("D:\\musique\\TITRE.MP3"), bench.folder.path("Musique/Titre.mp3"));
}

} // namespace sonarelle::test
