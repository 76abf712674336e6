#include <gtest/gtest.h>

#include <string>

#include "disk_fixture.h"
#include "platform/simulated/simulated_disk.h"
#include "platform/timer.h"

namespace sonarelle {

namespace {

using DiskCapacity = DiskTest;
using DiskFaultSwitch = DiskTest;
using DiskProtection = DiskTest;

// The disk of the fixture holds 7 bytes.

TEST_F(DiskCapacity, AnAppendFitsToTheLastByte) {
    disk.set_capacity(10);
    disk.append("C:\\journal.doc", "abc");
    EXPECT_EQ(disk.used(), 10);
    EXPECT_EQ(number_of_failure([&] { disk.append("C:\\journal.doc", "d"); }), FailureNumber::disk_full);
    EXPECT_EQ(disk.bytes("C:\\journal.doc"), "abc");
}

TEST_F(DiskCapacity, AnAppendOneByteTooLongAddsNothing) {
    disk.set_capacity(10);
    EXPECT_EQ(number_of_failure([&] { disk.append("C:\\journal.doc", "abcd"); }), FailureNumber::disk_full);
    EXPECT_EQ(disk.bytes("C:\\journal.doc"), "");
}

TEST_F(DiskCapacity, AReplacementTakesItsRoomBesideTheOldFile) {
    disk.set_capacity(13);
    write_whole("D:\\Musique\\été.mp3", "ABCDEF");
    EXPECT_EQ(disk.bytes("D:\\Musique\\été.mp3"), "ABCDEF");
    EXPECT_EQ(disk.used(), 7);
}

TEST_F(DiskCapacity, AReplacementOneByteTooLongLeavesTheOldFile) {
    disk.set_capacity(12);
    EXPECT_EQ(number_of_failure([&] { write_whole("D:\\Musique\\été.mp3", "ABCDEF"); }), FailureNumber::disk_full);
    EXPECT_EQ(disk.bytes("D:\\Musique\\été.mp3"), "abcdef");
    EXPECT_EQ(disk.used(), 7);
}

TEST_F(DiskCapacity, AReplacementFailsAtTheWriteThatIsTooMuch) {
    disk.set_capacity(10);
    const auto file = disk.replace("C:\\liste.dfm");
    file->write(as_bytes_of("ab"));
    file->write(as_bytes_of("c"));
    EXPECT_EQ(number_of_failure([&] { file->write(as_bytes_of("d")); }), FailureNumber::disk_full);
}

TEST_F(DiskCapacity, AFailedReplacementIsOfNoMoreUse) {
    disk.set_capacity(7);
    const auto file = disk.replace("C:\\liste.dfm");
    EXPECT_EQ(number_of_failure([&] { file->write(as_bytes_of("a")); }), FailureNumber::disk_full);
    EXPECT_EQ(number_of_failure([&] { file->write({}); }), FailureNumber::device_fault);
    EXPECT_EQ(number_of_failure([&] { file->commit(); }), FailureNumber::device_fault);
    EXPECT_FALSE(disk.exists("C:\\liste.dfm"));
}

TEST_F(DiskCapacity, ACopyFitsToTheLastByte) {
    disk.set_capacity(12);
    EXPECT_EQ(number_of_failure([&] { disk.FileCopy("D:\\Musique\\été.mp3", "C:\\a.mp3"); }), FailureNumber::disk_full);
    EXPECT_FALSE(disk.exists("C:\\a.mp3"));
    disk.set_capacity(13);
    disk.FileCopy("D:\\Musique\\été.mp3", "C:\\a.mp3");
    EXPECT_EQ(disk.bytes("C:\\a.mp3"), "abcdef");
}

TEST_F(DiskCapacity, AKilledFileGivesItsRoomBack) {
    disk.set_capacity(7);
    disk.Kill("D:\\Musique\\été.mp3");
    disk.append("C:\\journal.doc", "123456");
    EXPECT_EQ(disk.used(), 7);
}

TEST_F(DiskCapacity, AnEmptyFileNeedsNoRoom) {
    disk.set_capacity(7);
    EXPECT_EQ(disk.open_or_create("C:\\liste.dfm")->length(), 0);
}

TEST_F(DiskFaultSwitch, ARefusedPathFailsInEveryOperation) {
    const std::string path = "D:\\Musique\\été.mp3";
    disk.refuse(path, FailureNumber::permission_refused);
    EXPECT_EQ(number_of_failure([&] { (void)disk.Dir(path); }), FailureNumber::permission_refused);
    EXPECT_EQ(number_of_failure([&] { (void)disk.facts(path); }), FailureNumber::permission_refused);
    EXPECT_EQ(number_of_failure([&] { (void)disk.open(path); }), FailureNumber::permission_refused);
    EXPECT_EQ(number_of_failure([&] { (void)disk.open_or_create(path); }), FailureNumber::permission_refused);
    EXPECT_EQ(number_of_failure([&] { (void)disk.replace(path); }), FailureNumber::permission_refused);
    EXPECT_EQ(number_of_failure([&] { disk.append(path, "x"); }), FailureNumber::permission_refused);
    EXPECT_EQ(number_of_failure([&] { disk.Kill(path); }), FailureNumber::permission_refused);
    EXPECT_EQ(number_of_failure([&] { disk.Kill("D:\\Musique\\*.mp3"); }), FailureNumber::permission_refused);
    EXPECT_EQ(number_of_failure([&] { disk.Name(path, "D:\\a.mp3"); }), FailureNumber::permission_refused);
    EXPECT_EQ(number_of_failure([&] { disk.Name("D:\\Musique\\Rock\\b.mp3", path); }),
              FailureNumber::permission_refused);
    EXPECT_EQ(number_of_failure([&] { disk.FileCopy(path, "D:\\a.mp3"); }), FailureNumber::permission_refused);
    EXPECT_EQ(number_of_failure([&] { disk.FileCopy("D:\\Musique\\Rock\\b.mp3", path); }),
              FailureNumber::permission_refused);
    EXPECT_EQ(disk.bytes(path), "abcdef");
}

TEST_F(DiskFaultSwitch, ARefusedFolderFailsWithAllThatItHolds) {
    disk.refuse("D:\\musique", FailureNumber::disk_not_ready);
    EXPECT_EQ(number_of_failure([&] { disk.ChDir("D:\\Musique"); }), FailureNumber::disk_not_ready);
    EXPECT_EQ(number_of_failure([&] { (void)disk.open("D:\\Musique\\Rock\\b.mp3"); }), FailureNumber::disk_not_ready);
    EXPECT_EQ(number_of_failure([&] { disk.MkDir("D:\\Musique2"); }), FailureNumber::none);
}

TEST_F(DiskFaultSwitch, ARefusedRootFailsItsDrive) {
    disk.refuse("D:\\", FailureNumber::disk_not_ready);
    EXPECT_EQ(number_of_failure([&] { disk.ChDrive("D:\\Musique"); }), FailureNumber::disk_not_ready);
    EXPECT_EQ(number_of_failure([&] { disk.RmDir("D:\\Musique\\Rock"); }), FailureNumber::disk_not_ready);
    EXPECT_EQ(disk.current_drive(), 'C');
}

TEST_F(DiskFaultSwitch, ARefusalBeforeTheCommitKeepsTheOldFile) {
    const auto file = disk.replace("D:\\Musique\\été.mp3");
    file->write(as_bytes_of("x"));
    disk.refuse("D:\\Musique\\été.mp3", FailureNumber::device_fault);
    EXPECT_EQ(number_of_failure([&] { file->commit(); }), FailureNumber::device_fault);
    EXPECT_EQ(disk.bytes("D:\\Musique\\été.mp3"), "abcdef");
}

TEST_F(DiskFaultSwitch, AHealedPathWorks) {
    disk.refuse("D:\\Musique\\été.mp3", FailureNumber::permission_refused);
    disk.heal("d:\\musique\\ÉTÉ.MP3");
    EXPECT_EQ(disk.open("D:\\Musique\\été.mp3")->length(), 6);
}

TEST_F(DiskFaultSwitch, AVanishingFileIsFoundAndThenGone) {
    disk.vanish_after_look("D:\\Musique\\été.mp3");
    EXPECT_EQ(disk.Dir("D:\\Musique\\été.mp3"), "Été.mp3");
    EXPECT_EQ(disk.facts("D:\\Musique\\été.mp3").size, 6);
    EXPECT_EQ(number_of_failure([&] { (void)disk.open("D:\\Musique\\été.mp3"); }), FailureNumber::file_not_found);
    EXPECT_EQ(disk.Dir("D:\\Musique\\été.mp3"), "");
}

TEST_F(DiskFaultSwitch, AVanishedFileMayComeBack) {
    disk.vanish_after_look("D:\\Musique\\été.mp3");
    EXPECT_EQ(number_of_failure([&] { (void)disk.open("D:\\Musique\\été.mp3"); }), FailureNumber::file_not_found);
    disk.put_file("D:\\Musique\\été.mp3", "x");
    EXPECT_EQ(disk.open("D:\\Musique\\été.mp3")->length(), 1);
}

TEST_F(DiskFaultSwitch, ABrokenByteFailsTheReadsThatHoldIt) {
    disk.fail_read_at("D:\\Musique\\été.mp3", 3);
    EXPECT_EQ(read_at("D:\\Musique\\été.mp3", 0, 3), "abc");
    EXPECT_EQ(read_at("D:\\Musique\\été.mp3", 4, 2), "ef");
    EXPECT_EQ(number_of_failure([&] { (void)read_at("D:\\Musique\\été.mp3", 3, 1); }), FailureNumber::device_fault);
    EXPECT_EQ(number_of_failure([&] { (void)read_at("D:\\Musique\\été.mp3", 0, 6); }), FailureNumber::device_fault);
}

TEST_F(DiskFaultSwitch, AByteMayBreakInAnOpenFile) {
    const auto file = disk.open("D:\\Musique\\été.mp3");
    disk.fail_read_at("D:\\Musique\\été.mp3", 0);
    std::byte byte{};
    EXPECT_EQ(number_of_failure([&] { (void)file->read(0, {&byte, 1}); }), FailureNumber::device_fault);
}

TEST_F(DiskFaultSwitch, ASlowPathLetsTimePass) {
    disk.take("D:\\", milliseconds(2500));
    (void)disk.Dir("D:\\Musique\\été.mp3");
    EXPECT_EQ(time.now(), milliseconds(2500));
    (void)disk.open("D:\\Musique\\été.mp3");
    EXPECT_EQ(time.now(), seconds(5));
}

TEST_F(DiskFaultSwitch, TimersRunWhileASlowPathIsAskedFor) {
    Timer timer{"Timer1", 1, scheduler};
    int ticks = 0;
    timer.on_tick = [&] { ++ticks; };
    timer.set_interval(1000);
    timer.enable();
    disk.take("D:\\Musique\\été.mp3", milliseconds(2500));
    (void)disk.open("D:\\Musique\\été.mp3");
    EXPECT_EQ(ticks, 2);
}

TEST_F(DiskFaultSwitch, ASlowPathFindsWhatIsThereAtTheEnd) {
    disk.take("D:\\Musique\\été.mp3", seconds(5));
    time.at(seconds(1), [&] { disk.remove_drive("D"); });
    EXPECT_EQ(number_of_failure([&] { (void)disk.open("D:\\Musique\\été.mp3"); }), FailureNumber::device_unavailable);
}

TEST_F(DiskProtection, AReadOnlyFileIsRead) {
    disk.set_read_only("D:\\Musique\\été.mp3");
    EXPECT_EQ(read_at("D:\\Musique\\été.mp3", 0, 6), "abcdef");
    EXPECT_EQ(disk.open_or_create("D:\\Musique\\été.mp3")->length(), 6);
}

TEST_F(DiskProtection, AReadOnlyFileIsNeitherWrittenNorKilled) {
    const std::string path = "D:\\Musique\\été.mp3";
    disk.set_read_only(path);
    EXPECT_EQ(number_of_failure([&] { disk.append(path, "x"); }), FailureNumber::path_access);
    EXPECT_EQ(number_of_failure([&] { (void)disk.replace(path); }), FailureNumber::path_access);
    EXPECT_EQ(number_of_failure([&] { disk.FileCopy("D:\\Musique\\Rock\\b.mp3", path); }), FailureNumber::path_access);
    EXPECT_EQ(number_of_failure([&] { disk.Kill(path); }), FailureNumber::path_access);
    EXPECT_EQ(disk.bytes(path), "abcdef");
}

TEST_F(DiskProtection, AReadOnlyFolderKeepsItsNames) {
    disk.set_read_only("D:\\Musique");
    EXPECT_EQ(number_of_failure([&] { (void)disk.open_or_create("D:\\Musique\\a.dfm"); }), FailureNumber::path_access);
    EXPECT_EQ(number_of_failure([&] { disk.MkDir("D:\\Musique\\Jazz"); }), FailureNumber::path_access);
    EXPECT_EQ(number_of_failure([&] { disk.RmDir("D:\\Musique\\Rock"); }), FailureNumber::path_access);
    EXPECT_EQ(number_of_failure([&] { disk.Name("D:\\Musique\\été.mp3", "D:\\été.mp3"); }), FailureNumber::path_access);
}

TEST_F(DiskProtection, EndsWhenItIsTakenAway) {
    disk.set_read_only("D:\\Musique\\été.mp3");
    disk.set_read_only("D:\\Musique\\été.mp3", false);
    disk.Kill("D:\\Musique\\été.mp3");
    EXPECT_FALSE(disk.exists("D:\\Musique\\été.mp3"));
}

} // namespace

} // namespace sonarelle
