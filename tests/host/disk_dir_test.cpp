#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>

#include "host/disk_fixture.h"
#include "support/child_process.h"

namespace sonarelle::test {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(HostDiskDir, GivesTheNamesThatFitIgnoringCaseOneAfterTheOther) {
    DiskFixture bench;
    for (const char* name : {"b.mp3", "A.MP3", "c.wav"})
        bench.folder.put(name);

    EXPECT_THAT(bench.all("D:\\*.mp3"), ElementsAre("A.MP3", "b.mp3"));
}

TEST(HostDiskDir, QuestionMarkStandsForOneCharacterOfAnyLength) {
    DiskFixture bench;
    for (const char* name : {"é.mp3", "ab.mp3", ".mp3"})
        bench.folder.put(name);

    EXPECT_THAT(bench.all("D:\\?.mp3"), ElementsAre("é.mp3"));
}

TEST(HostDiskDir, StarPointStarFindsNamesWithoutAPoint) {
    DiskFixture bench;
    bench.folder.put("LISEZMOI");

    EXPECT_THAT(bench.all("D:\\*.*"), ElementsAre("LISEZMOI"));
}

TEST(HostDiskDir, PatternThatEndsInABackslashMeansAllFiles) {
    DiskFixture bench;
    bench.folder.put("un/a");
    bench.folder.put("un/b");

    EXPECT_THAT(bench.all("D:\\un\\"), ElementsAre("a", "b"));
}

TEST(HostDiskDir, EmptyPatternFindsNothing) {
    DiskFixture bench;
    bench.folder.put("a");
    bench.disk.ChDrive("D");

    EXPECT_EQ(bench.disk.Dir(""), "");
}

TEST(HostDiskDir, FindsFoldersOnlyWhenTheyAreAskedFor) {
    DiskFixture bench;
    bench.folder.put_folder("Temp");

    EXPECT_EQ(bench.disk.Dir("D:\\temp"), "");
    EXPECT_EQ(bench.disk.Dir("D:\\temp", FileAttributes::folder), "Temp");
    EXPECT_THAT(bench.all("D:\\*"), IsEmpty());
    EXPECT_THAT(bench.all("D:\\*", FileAttributes::folder), ElementsAre("Temp"));
}

TEST(HostDiskDir, GivesOneNameInTheSpellingOfTheDisk) {
    DiskFixture bench;
    bench.folder.put("Titre Été.mp3");

    EXPECT_THAT(bench.all("D:\\TITRE ÉTÉ.MP3"), ElementsAre("Titre Été.mp3"));
}

TEST(HostDiskDir, IsEmptyWithoutTheFileOrItsFolder) {
    DiskFixture bench;

    EXPECT_EQ(bench.disk.Dir("D:\\absent.mp3"), "");
    EXPECT_EQ(bench.disk.Dir("D:\\absent\\x.mp3"), "");
    EXPECT_EQ(bench.disk.Dir("D:\\absent\\*.mp3"), "");
}

TEST(HostDiskDir, GoesOnWithNothingBehindTheLastName) {
    DiskFixture bench;
    bench.folder.put("a.mp3");
    (void)bench.disk.Dir("D:\\*.mp3");

    EXPECT_EQ(bench.disk.Dir(), "");
    EXPECT_EQ(bench.disk.Dir(), "");
}

TEST(HostDiskDir, SearchThatFindsNothingEndsTheOneBefore) {
    DiskFixture bench;
    bench.folder.put("a.mp3");
    bench.folder.put("b.mp3");
    (void)bench.disk.Dir("D:\\*.mp3");
    (void)bench.disk.Dir("D:\\absent");

    EXPECT_EQ(bench.disk.Dir(), "");
}

TEST(HostDiskDir, FilesMayGoWhileTheirNamesAreGiven) {
    DiskFixture bench;
    bench.folder.put("a.mp3");
    bench.folder.put("b.mp3");

    std::vector<std::string> killed;
    for (std::string name = bench.disk.Dir("D:\\*.mp3"); !name.empty(); name = bench.disk.Dir()) {
        bench.disk.Kill("D:\\" + name);
        killed.push_back(name);
    }

    EXPECT_THAT(killed, ElementsAre("a.mp3", "b.mp3"));
    EXPECT_THAT(bench.folder.names(), IsEmpty());
}

TEST(HostDiskDir, DoesNotListWhatNoPathOfTheStationCanName) {
    DiskFixture bench;
    for (const char* name : {"\xE9t\xE9.mp3", "песня.mp3", "quoi ?.mp3", "a\\b.mp3", "bon.mp3"})
        bench.folder.put(name);

    EXPECT_THAT(bench.all("D:\\*"), ElementsAre("bon.mp3"));
}

TEST(HostDiskDir, ListsHiddenFilesOnlyWhenTheyAreAskedFor) {
    DiskFixture bench;
    bench.folder.put(".caché");

    EXPECT_THAT(bench.all("D:\\*"), IsEmpty());
    EXPECT_THAT(bench.all("D:\\*", FileAttributes::hidden), ElementsAre(".caché"));
    EXPECT_EQ(bench.disk.Dir("D:\\.caché"), ".caché");
}

TEST(HostDiskDir, FollowsLinksAndLeavesOutWhatIsNoFile) {
    DiskFixture bench;
    bench.folder.put("a.mp3");
    std::filesystem::create_symlink("a.mp3", bench.folder.path("lien.mp3"));
    std::filesystem::create_symlink("absent", bench.folder.path("mort.mp3"));
    ASSERT_EQ(::mkfifo(bench.folder.path("tube.mp3").c_str(), 0600), 0);

    EXPECT_THAT(bench.all("D:\\*.mp3"), ElementsAre("a.mp3", "lien.mp3"));
}

TEST(HostDiskDir, PatternInAFolderPartIsAWrongName) {
    DiskFixture bench;

    EXPECT_EQ(failure_of([&] { (void)bench.disk.Dir("D:\\M*\\x.mp3"); }), FailureNumber::wrong_file_name);
    EXPECT_EQ(failure_of([&] { (void)bench.disk.Dir("D:\\a|b*"); }), FailureNumber::wrong_file_name);
}

} // namespace sonarelle::test
