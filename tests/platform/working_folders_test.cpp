#include "platform/working_folders.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/failure.h"

namespace sonarelle {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(WorkingFolders, BeginAtTheRootOfDriveC) {
    const WorkingFolders folders;
    EXPECT_EQ(folders.drive(), 'C');
    EXPECT_EQ(folders.folder(), "C:\\");
}

TEST(WorkingFolders, EachDriveRemembersItsFolder) {
    WorkingFolders folders;
    folders.set_folder("C:\\Sonarelle");
    folders.set_folder("D:\\Musique");
    EXPECT_EQ(folders.folder(), "C:\\Sonarelle");
    folders.set_drive('d');
    EXPECT_EQ(folders.folder(), "D:\\Musique");
    EXPECT_EQ(folders.drive(), 'D');
}

TEST(WorkingFolders, ANameResolvesInTheCurrentFolder) {
    WorkingFolders folders;
    folders.set_folder("C:\\Sonarelle");
    EXPECT_EQ(folders.absolute("liste.dfm"), "C:\\Sonarelle\\liste.dfm");
    EXPECT_EQ(folders.absolute(""), "C:\\Sonarelle");
}

TEST(WorkingFolders, ABackslashBeginsAtTheRootOfTheDrive) {
    WorkingFolders folders;
    folders.set_drive('D');
    folders.set_folder("D:\\Musique");
    EXPECT_EQ(folders.absolute("\\a.mp3"), "D:\\a.mp3");
}

TEST(WorkingFolders, ADriveWithoutABackslashMeansItsCurrentFolder) {
    WorkingFolders folders;
    folders.set_folder("D:\\Musique");
    EXPECT_EQ(folders.absolute("d:a.mp3"), "D:\\Musique\\a.mp3");
    EXPECT_EQ(folders.absolute("D:"), "D:\\Musique");
}

TEST(WorkingFolders, AnAbsoluteNameIsMadePlain) {
    const WorkingFolders folders;
    EXPECT_EQ(folders.absolute("d:\\a\\.\\b\\..\\\\c\\"), "D:\\a\\c");
    EXPECT_EQ(folders.absolute("D:\\..\\.."), "D:\\");
    EXPECT_EQ(folders.absolute("D:/Musique/a.mp3"), "D:\\Musique\\a.mp3");
}

TEST(WorkingFolders, AShareIsARootOfItsOwn) {
    const WorkingFolders folders;
    EXPECT_EQ(folders.absolute("\\\\serveur\\partage\\..\\a.mp3"), "\\\\serveur\\partage\\a.mp3");
    EXPECT_EQ(folders.absolute("\\\\serveur\\partage"), "\\\\serveur\\partage");
}

TEST(WorkingFolders, AServerWithoutAShareIsNoDrive) {
    const WorkingFolders folders;
    for (const char* path : {"\\\\serveur", "\\\\serveur\\", "\\\\\\partage"})
        EXPECT_THROW((void)folders.absolute(path), Failure) << path;
}

TEST(WorkingFolders, NamesResolveOnAShareUntilADriveIsMadeCurrent) {
    WorkingFolders folders;
    folders.set_folder("\\\\serveur\\partage\\Rock");
    EXPECT_EQ(folders.absolute("a.mp3"), "\\\\serveur\\partage\\Rock\\a.mp3");
    EXPECT_EQ(folders.absolute("\\a.mp3"), "\\\\serveur\\partage\\a.mp3");
    folders.set_drive('C');
    EXPECT_EQ(folders.absolute("a.mp3"), "C:\\a.mp3");
}

TEST(WorkingFolders, TheFolderOfAnotherDriveLeavesTheShareCurrent) {
    WorkingFolders folders;
    folders.set_folder("\\\\serveur\\partage");
    folders.set_folder("D:\\Musique");
    EXPECT_EQ(folders.folder(), "\\\\serveur\\partage");
    folders.set_folder("C:\\");
    EXPECT_EQ(folders.folder(), "C:\\");
}

TEST(PathParts, HaveTheDriveAndTheNames) {
    const PathParts parts = parts_of("d:\\Musique\\Été\\a.mp3");
    EXPECT_EQ(parts.drive, "D:");
    EXPECT_THAT(parts.names, ElementsAre("Musique", "Été", "a.mp3"));
}

TEST(PathParts, OfARootHaveNoNames) {
    EXPECT_THAT(parts_of("D:\\").names, IsEmpty());
    EXPECT_EQ(parts_of("\\\\serveur\\partage\\").drive, "\\\\serveur\\partage");
}

TEST(PathParts, OfARelativeNameAreRefused) {
    EXPECT_THROW((void)parts_of("Musique\\a.mp3"), Failure);
    EXPECT_THROW((void)parts_of("1:\\a.mp3"), Failure);
}

} // namespace

} // namespace sonarelle
