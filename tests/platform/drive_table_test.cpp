#include "platform/drive_table.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/failure.h"

namespace sonarelle {

namespace {

using testing::ElementsAre;
using testing::Pair;

DriveTable music_and_share() {
    DriveTable table;
    table.set("D", "/srv/musique/");
    table.set("\\\\Serveur\\Partage", "/mnt/partage");
    return table;
}

template <typename Statement>
void expect_no_drive(Statement&& statement) {
    try {
        statement();
        ADD_FAILURE() << "no failure";
    } catch (const Failure& failure) {
        EXPECT_EQ(failure.number, FailureNumber::device_unavailable);
    }
}

TEST(DriveTable, DriveCIsTheMachinesRootAtFirst) {
    EXPECT_EQ(DriveTable{}.machine_path("C:\\srv\\a.mp3"), "/srv/a.mp3");
}

TEST(DriveTable, ADriveLeadsToItsFolder) {
    const DriveTable table = music_and_share();
    EXPECT_EQ(table.machine_path("D:\\Rock\\a.mp3"), "/srv/musique/Rock/a.mp3");
    EXPECT_EQ(table.machine_path("d:\\a.mp3"), "/srv/musique/a.mp3");
    EXPECT_EQ(table.machine_path("D:\\"), "/srv/musique/");
}

TEST(DriveTable, AShareLeadsToItsFolderIgnoringCase) {
    EXPECT_EQ(music_and_share().machine_path("\\\\serveur\\PARTAGE\\Été\\a.mp3"), "/mnt/partage/Été/a.mp3");
}

TEST(DriveTable, APathThatNoDriveReachesIsRefused) {
    const DriveTable table = music_and_share();
    for (const char* path : {"E:\\a.mp3", "\\\\serveur\\autre\\a.mp3", "a.mp3", "\\\\serveur", ""})
        expect_no_drive([&] { (void)table.machine_path(path); });
}

TEST(DriveTable, OnlyLettersAndSharesAreDrives) {
    DriveTable table;
    for (const char* drive : {"", "1", "DD", "\\\\serveur", "\\\\serveur\\", "\\\\\\partage", "\\\\a\\b\\c", "musique"})
        expect_no_drive([&] { table.set(drive, "/srv"); });
}

TEST(DriveTable, ADriveMayBeNamedWithItsColon) {
    DriveTable table;
    table.set("d:", "/srv");
    EXPECT_THAT(table.entries(), ElementsAre(Pair("C", ""), Pair("D", "/srv")));
}

TEST(DriveTable, ARemovedDriveReachesNothing) {
    DriveTable table = music_and_share();
    table.remove("d");
    expect_no_drive([&] { (void)table.machine_path("D:\\a.mp3"); });
}

TEST(DriveTable, TheLongestFolderGivesTheDrive) {
    const DriveTable table = music_and_share();
    EXPECT_EQ(table.station_path("/srv/musique/Rock/a.mp3"), "D:\\Rock\\a.mp3");
    EXPECT_EQ(table.station_path("/srv/a.mp3"), "C:\\srv\\a.mp3");
    EXPECT_EQ(table.station_path("/mnt/partage/a.mp3"), "\\\\serveur\\partage\\a.mp3");
}

TEST(DriveTable, AFolderWithALongerNameIsAnother) {
    EXPECT_EQ(music_and_share().station_path("/srv/musique2/a.mp3"), "C:\\srv\\musique2\\a.mp3");
}

TEST(DriveTable, TheFolderOfADriveIsItsRoot) {
    EXPECT_EQ(music_and_share().station_path("/srv/musique"), "D:\\");
    EXPECT_EQ(music_and_share().station_path("/"), "C:\\");
}

TEST(DriveTable, WithoutADriveForItAFileHasNoPath) {
    DriveTable table = music_and_share();
    table.remove("C");
    EXPECT_EQ(table.station_path("/home/a.mp3"), std::nullopt);
}

TEST(DriveTable, ANameWithABackslashHasNoPath) {
    EXPECT_EQ(music_and_share().station_path("/srv/musique/a\\b.mp3"), std::nullopt);
}

TEST(DriveTable, PathsGoForthAndBack) {
    const DriveTable table = music_and_share();
    for (const char* path : {"D:\\Rock\\a.mp3", "C:\\etc\\x", "\\\\serveur\\partage\\Été\\a.mp3"})
        EXPECT_EQ(table.station_path(table.machine_path(path)), path);
}

} // namespace

} // namespace sonarelle
