#include "platform/simulated/simulated_disk.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <vector>

#include "disk_fixture.h"

namespace sonarelle {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using DiskFolders = DiskTest;
using DiskDir = DiskTest;
using DiskFiles = DiskTest;
using DiskNames = DiskTest;

std::vector<std::string> all_of(SimulatedDisk& disk, std::string_view pattern,
                                FileAttributes attributes = FileAttributes::normal) {
    std::vector<std::string> names;
    for (std::string name = disk.Dir(pattern, attributes); !name.empty(); name = disk.Dir())
        names.push_back(name);
    return names;
}

TEST_F(DiskFolders, RelativeNamesResolveInTheCurrentFolder) {
    disk.ChDrive("D:");
    disk.ChDir("d:\\musique");
    EXPECT_EQ(disk.current_drive(), 'D');
    EXPECT_EQ(disk.facts("été.MP3").size, 6);
}

TEST_F(DiskFolders, ChDirLeavesTheDrive) {
    disk.ChDir("D:\\Musique");
    EXPECT_EQ(disk.current_drive(), 'C');
    EXPECT_EQ(disk.absolute("D:a.mp3"), "D:\\Musique\\a.mp3");
}

TEST_F(DiskFolders, AMissingDriveIsFailure68) {
    EXPECT_EQ(number_of_failure([&] { disk.ChDrive("E:\\x"); }), FailureNumber::device_unavailable);
    EXPECT_EQ(number_of_failure([&] { disk.ChDrive("\\\\serveur\\partage"); }), FailureNumber::device_unavailable);
    EXPECT_EQ(number_of_failure([&] { disk.ChDir("E:\\"); }), FailureNumber::device_unavailable);
    EXPECT_EQ(number_of_failure([&] { (void)disk.open("E:\\a.mp3"); }), FailureNumber::device_unavailable);
    EXPECT_EQ(number_of_failure([&] { (void)disk.Dir("E:\\*.mp3"); }), FailureNumber::device_unavailable);
    EXPECT_EQ(disk.current_drive(), 'C');
}

TEST_F(DiskFolders, AMissingFolderIsFailure76) {
    EXPECT_EQ(number_of_failure([&] { disk.ChDir("D:\\Jazz"); }), FailureNumber::path_not_found);
    EXPECT_EQ(number_of_failure([&] { disk.ChDir("D:\\Musique\\été.mp3"); }), FailureNumber::path_not_found);
    EXPECT_EQ(number_of_failure([&] { (void)disk.open("D:\\Jazz\\a.mp3"); }), FailureNumber::path_not_found);
    EXPECT_EQ(number_of_failure([&] { disk.append("D:\\Jazz\\a.mp3", "x"); }), FailureNumber::path_not_found);
    EXPECT_EQ(number_of_failure([&] { (void)disk.replace("D:\\Jazz\\a.mp3"); }), FailureNumber::path_not_found);
    EXPECT_EQ(number_of_failure([&] { disk.MkDir("D:\\Jazz\\Cool"); }), FailureNumber::path_not_found);
}

TEST_F(DiskFolders, AnUnpluggedDriveIsGoneWithItsFiles) {
    disk.remove_drive("D");
    EXPECT_EQ(number_of_failure([&] { (void)disk.open("D:\\Musique\\été.mp3"); }), FailureNumber::device_unavailable);
    EXPECT_EQ(disk.used(), 0);
}

TEST_F(DiskFolders, AShareHoldsFiles) {
    disk.put_file("\\\\Serveur\\Partage\\a.mp3", "a");
    EXPECT_EQ(disk.Dir("\\\\serveur\\partage\\*.mp3"), "a.mp3");
    EXPECT_EQ(number_of_failure([&] { (void)disk.open("\\\\serveur\\autre\\a.mp3"); }),
              FailureNumber::device_unavailable);
}

TEST_F(DiskFolders, MkDirMakesOneAndRmDirTakesIt) {
    disk.MkDir("D:\\Jazz");
    EXPECT_TRUE(disk.facts("D:\\jazz").is_folder);
    disk.RmDir("D:\\JAZZ");
    EXPECT_FALSE(disk.exists("D:\\Jazz"));
}

TEST_F(DiskFolders, AFolderThatHoldsSomethingStays) {
    EXPECT_EQ(number_of_failure([&] { disk.RmDir("D:\\Musique"); }), FailureNumber::path_access);
    EXPECT_EQ(number_of_failure([&] { disk.RmDir("D:\\"); }), FailureNumber::path_access);
    EXPECT_EQ(number_of_failure([&] { disk.RmDir("D:\\Musique\\été.mp3"); }), FailureNumber::path_access);
    EXPECT_TRUE(disk.exists("D:\\Musique\\Rock\\b.mp3"));
}

TEST_F(DiskFolders, ANameThatIsTakenMakesNoFolder) {
    EXPECT_EQ(number_of_failure([&] { disk.MkDir("D:\\musique"); }), FailureNumber::path_access);
}

TEST_F(DiskDir, GivesTheDisksSpelling) {
    EXPECT_EQ(disk.Dir("d:\\MUSIQUE\\ÉTÉ.mp3"), "Été.mp3");
}

TEST_F(DiskDir, GivesFilesAloneUnlessFoldersAreAskedFor) {
    EXPECT_THAT(all_of(disk, "D:\\Musique\\*"), ElementsAre("Été.mp3"));
    EXPECT_THAT(all_of(disk, "D:\\Musique\\*", FileAttributes::folder), ElementsAre("Rock", "Été.mp3"));
    EXPECT_EQ(disk.Dir("D:\\musique"), "");
    EXPECT_EQ(disk.Dir("D:\\musique", FileAttributes::folder), "Musique");
}

TEST_F(DiskDir, GoesOnThroughAllThatFit) {
    disk.put_file("D:\\Musique\\b.MP3");
    disk.put_file("D:\\Musique\\a.wav");
    disk.put_file("D:\\Musique\\c.mp3");
    EXPECT_THAT(all_of(disk, "D:\\Musique\\*.mp3"), ElementsAre("b.MP3", "c.mp3", "Été.mp3"));
    EXPECT_EQ(disk.Dir(), "");
}

TEST_F(DiskDir, ABackslashAtTheEndMeansAll) {
    EXPECT_THAT(all_of(disk, "D:\\Musique\\"), ElementsAre("Été.mp3"));
}

TEST_F(DiskDir, FindsNothingWhereNothingIs) {
    EXPECT_EQ(disk.Dir("D:\\Jazz\\*.mp3"), "");
    EXPECT_EQ(disk.Dir("D:\\Musique\\a.mp3"), "");
    EXPECT_EQ(disk.Dir(""), "");
}

TEST_F(DiskDir, HiddenFilesAreFoundWhenAskedFor) {
    disk.set_hidden("D:\\Musique\\Été.mp3");
    EXPECT_THAT(all_of(disk, "D:\\Musique\\*"), IsEmpty());
    EXPECT_THAT(all_of(disk, "D:\\Musique\\*", FileAttributes::hidden), ElementsAre("Été.mp3"));
}

TEST_F(DiskDir, ANewPatternEndsTheOldOne) {
    disk.put_file("D:\\Musique\\a.mp3");
    (void)disk.Dir("D:\\Musique\\*.mp3");
    (void)disk.Dir("D:\\Musique\\Rock\\*.mp3");
    EXPECT_EQ(disk.Dir(), "");
}

TEST_F(DiskFiles, ReadAnyOfTheirBytes) {
    EXPECT_EQ(read_at("D:\\Musique\\été.mp3", 2, 3), "cde");
    EXPECT_EQ(read_at("D:\\Musique\\été.mp3", 4, 9), "ef");
    EXPECT_EQ(read_at("D:\\Musique\\été.mp3", 6, 1), "");
    EXPECT_EQ(disk.open("D:\\Musique\\été.mp3")->length(), 6);
}

TEST_F(DiskFiles, AMissingOneIsFailure53) {
    EXPECT_EQ(number_of_failure([&] { (void)disk.open("D:\\Musique\\a.mp3"); }), FailureNumber::file_not_found);
    EXPECT_EQ(number_of_failure([&] { (void)disk.facts("D:\\Musique\\a.mp3"); }), FailureNumber::file_not_found);
    EXPECT_EQ(number_of_failure([&] { disk.Kill("D:\\Musique\\a.mp3"); }), FailureNumber::file_not_found);
    EXPECT_EQ(number_of_failure([&] { disk.Name("D:\\Musique\\a.mp3", "D:\\b.mp3"); }), FailureNumber::file_not_found);
    EXPECT_EQ(number_of_failure([&] { disk.FileCopy("D:\\Musique\\a.mp3", "D:\\b.mp3"); }),
              FailureNumber::file_not_found);
}

TEST_F(DiskFiles, AFolderIsNone) {
    EXPECT_EQ(number_of_failure([&] { (void)disk.open("D:\\Musique"); }), FailureNumber::path_access);
    EXPECT_EQ(number_of_failure([&] { (void)disk.open_or_create("D:\\Musique"); }), FailureNumber::path_access);
    EXPECT_EQ(number_of_failure([&] { (void)disk.replace("D:\\Musique"); }), FailureNumber::path_access);
    EXPECT_EQ(number_of_failure([&] { disk.append("D:\\Musique", "x"); }), FailureNumber::path_access);
    EXPECT_EQ(number_of_failure([&] { disk.Kill("D:\\Musique"); }), FailureNumber::path_access);
    EXPECT_EQ(number_of_failure([&] { disk.Kill("D:\\Musique\\"); }), FailureNumber::path_access);
}

TEST_F(DiskFiles, OpenOrCreateLeavesAnEmptyFile) {
    EXPECT_EQ(disk.open_or_create("C:\\Sonarelle\\liste.dfm")->length(), 0);
    EXPECT_TRUE(disk.exists("C:\\Sonarelle\\liste.dfm"));
    EXPECT_EQ(disk.open_or_create("D:\\Musique\\été.mp3")->length(), 6);
}

TEST_F(DiskFiles, AFailureNamesTheAbsolutePath) {
    disk.ChDir("C:\\Sonarelle");
    try {
        (void)disk.open("liste.dfm");
        FAIL() << "it was opened";
    } catch (const Failure& failure) {
        EXPECT_EQ(failure.source, "C:\\Sonarelle\\liste.dfm");
    }
}

TEST_F(DiskFiles, AnAppendCreatesAndLengthens) {
    disk.append("C:\\Sonarelle\\journal.doc", "un\r\n");
    disk.append("C:\\Sonarelle\\journal.doc", "deux\r\n");
    EXPECT_EQ(disk.bytes("C:\\Sonarelle\\journal.doc"), "un\r\ndeux\r\n");
}

TEST_F(DiskFiles, AReplacementTakesEffectAtItsCommit) {
    const auto file = disk.replace("D:\\Musique\\été.mp3");
    file->write(as_bytes_of("xy"));
    EXPECT_EQ(disk.bytes("D:\\Musique\\été.mp3"), "abcdef");
    file->commit();
    EXPECT_EQ(disk.bytes("D:\\Musique\\été.mp3"), "xy");
    EXPECT_EQ(disk.Dir("D:\\Musique\\été.mp3"), "Été.mp3");
}

TEST_F(DiskFiles, ADroppedReplacementLeavesTheOldFile) {
    disk.replace("D:\\Musique\\été.mp3")->write(as_bytes_of("xy"));
    EXPECT_EQ(disk.bytes("D:\\Musique\\été.mp3"), "abcdef");
    EXPECT_EQ(disk.used(), 7);
}

TEST_F(DiskFiles, AReplacementOfWhatWasSeenTakesItsPlace) {
    const FileFacts seen = disk.open("D:\\Musique\\été.mp3")->facts();
    const auto file = disk.replace("D:\\Musique\\été.mp3");
    file->write(as_bytes_of("xy"));
    const auto written = file->commit_over(seen);
    EXPECT_EQ(written, disk.facts("D:\\Musique\\été.mp3"));
    EXPECT_EQ(disk.bytes("D:\\Musique\\été.mp3"), "xy");
}

TEST_F(DiskFiles, AReplacementNeverTakesThePlaceOfWhatWasNotSeen) {
    const FileFacts seen = disk.facts("D:\\Musique\\été.mp3");
    const auto file = disk.replace("D:\\Musique\\été.mp3");
    file->write(as_bytes_of("xy"));
    write_whole("D:\\Musique\\été.mp3", "fedcba");
    EXPECT_EQ(file->commit_over(seen), std::nullopt);
    EXPECT_EQ(disk.bytes("D:\\Musique\\été.mp3"), "fedcba");
}

TEST_F(DiskFiles, AClaimedNameIsNobodyElsesUntilTheClaimEnds) {
    auto claim = disk.claim("D:\\Musique\\liste.dfm");
    EXPECT_NE(claim, nullptr);
    EXPECT_EQ(disk.claim("D:\\Musique\\LISTE.DFM"), nullptr);
    claim.reset();
    EXPECT_NE(disk.claim("D:\\Musique\\liste.dfm"), nullptr);
}

TEST_F(DiskFiles, ADroppedReplacementOfNothingLeavesNothing) {
    disk.replace("C:\\Sonarelle\\liste.dfm")->write(as_bytes_of("xy"));
    EXPECT_FALSE(disk.exists("C:\\Sonarelle\\liste.dfm"));
}

TEST_F(DiskFiles, AnOpenFileShowsWhatItWas) {
    const auto file = disk.open("D:\\Musique\\été.mp3");
    write_whole("D:\\Musique\\été.mp3", "xy");
    disk.Kill("D:\\Musique\\été.mp3");
    std::string bytes(6, ' ');
    EXPECT_EQ(file->read(0, std::as_writable_bytes(std::span{bytes})), 6U);
    EXPECT_EQ(bytes, "abcdef");
}

TEST_F(DiskFiles, EveryChangeHasATimeOfItsOwn) {
    const FileFacts before = disk.facts("D:\\Musique\\été.mp3");
    write_whole("D:\\Musique\\été.mp3", "ABCDEF");
    EXPECT_NE(disk.facts("D:\\Musique\\été.mp3"), before);
}

TEST_F(DiskFiles, TimesOfChangeFollowTheCalendar) {
    const auto second_of_change = [&] {
        write_whole("D:\\nouveau.mp3", "x");
        return disk.facts("D:\\nouveau.mp3").modified / 1'000'000'000;
    };
    time.run_until(seconds(100));
    const std::int64_t before = second_of_change();
    time.run_for(seconds(50));
    EXPECT_EQ(second_of_change() - before, 50);
}

TEST_F(DiskNames, KillTakesAFile) {
    disk.Kill("d:\\musique\\ÉTÉ.mp3");
    EXPECT_FALSE(disk.exists("D:\\Musique\\Été.mp3"));
}

TEST_F(DiskNames, KillOfAPatternTakesAllThatFit) {
    disk.put_file("C:\\Sonarelle\\a.dfm");
    disk.put_file("C:\\Sonarelle\\b.DFM");
    disk.put_file("C:\\Sonarelle\\c.doc");
    disk.ChDir("C:\\Sonarelle");
    disk.Kill("*.dfm");
    EXPECT_THAT(all_of(disk, "*.*"), ElementsAre("c.doc"));
    EXPECT_EQ(number_of_failure([&] { disk.Kill("*.dfm"); }), FailureNumber::file_not_found);
}

TEST_F(DiskNames, KillOfAPatternLeavesFolders) {
    disk.Kill("D:\\Musique\\*");
    EXPECT_TRUE(disk.exists("D:\\Musique\\Rock"));
}

TEST_F(DiskNames, ARenamedFileKeepsItsBytes) {
    disk.Name("D:\\Musique\\été.mp3", "D:\\Musique\\Rock\\hiver.mp3");
    EXPECT_EQ(disk.bytes("D:\\Musique\\Rock\\hiver.mp3"), "abcdef");
    EXPECT_FALSE(disk.exists("D:\\Musique\\été.mp3"));
}

TEST_F(DiskNames, ARenamedFolderTakesItsFilesAlong) {
    disk.Name("D:\\Musique", "D:\\Sons");
    EXPECT_EQ(disk.bytes("D:\\Sons\\Rock\\b.mp3"), "b");
}

TEST_F(DiskNames, ARenameMayChangeTheSpellingAlone) {
    disk.Name("D:\\Musique\\été.mp3", "D:\\Musique\\ÉTÉ.MP3");
    EXPECT_EQ(disk.Dir("D:\\Musique\\été.mp3"), "ÉTÉ.MP3");
}

TEST_F(DiskNames, ARenameTakesNobodysPlace) {
    EXPECT_EQ(number_of_failure([&] { disk.Name("D:\\Musique\\été.mp3", "D:\\Musique\\Rock\\B.MP3"); }),
              FailureNumber::file_exists);
    EXPECT_EQ(disk.bytes("D:\\Musique\\Rock\\b.mp3"), "b");
}

TEST_F(DiskNames, ARenameStaysOnItsDrive) {
    EXPECT_EQ(number_of_failure([&] { disk.Name("D:\\Musique\\été.mp3", "C:\\été.mp3"); }), FailureNumber::other_drive);
}

TEST_F(DiskNames, AFolderDoesNotGoIntoItself) {
    EXPECT_EQ(number_of_failure([&] { disk.Name("D:\\Musique", "D:\\Musique\\Rock\\Musique"); }),
              FailureNumber::path_access);
}

TEST_F(DiskNames, ACopyIsAFileOfItsOwn) {
    disk.FileCopy("D:\\Musique\\été.mp3", "C:\\Sonarelle\\copie.mp3");
    disk.append("D:\\Musique\\été.mp3", "x");
    EXPECT_EQ(disk.bytes("C:\\Sonarelle\\copie.mp3"), "abcdef");
}

TEST_F(DiskNames, ACopyIsWrittenOverAnOldFile) {
    disk.FileCopy("D:\\Musique\\été.mp3", "D:\\Musique\\Rock\\b.mp3");
    EXPECT_EQ(disk.bytes("D:\\Musique\\Rock\\b.mp3"), "abcdef");
}

TEST_F(DiskNames, ACopyOntoItselfIsRefused) {
    EXPECT_EQ(number_of_failure([&] { disk.FileCopy("D:\\Musique\\été.mp3", "d:\\musique\\ÉTÉ.mp3"); }),
              FailureNumber::permission_refused);
    EXPECT_EQ(disk.bytes("D:\\Musique\\été.mp3"), "abcdef");
}

TEST_F(DiskNames, WrongNamesAreFailure52) {
    for (const char* name : {"a*.mp3", "a?.mp3", "a<.mp3", "a>.mp3", "a|.mp3", "a\".mp3", "Łódź.mp3"}) {
        const std::string path = std::string{"D:\\Musique\\"} + name;
        EXPECT_EQ(number_of_failure([&] { (void)disk.open(path); }), FailureNumber::wrong_file_name) << name;
        EXPECT_EQ(number_of_failure([&] { (void)disk.open_or_create(path); }), FailureNumber::wrong_file_name) << name;
        EXPECT_EQ(number_of_failure([&] { (void)disk.replace(path); }), FailureNumber::wrong_file_name) << name;
        EXPECT_EQ(number_of_failure([&] { disk.append(path, "x"); }), FailureNumber::wrong_file_name) << name;
        EXPECT_EQ(number_of_failure([&] { disk.Name("D:\\Musique\\été.mp3", path); }), FailureNumber::wrong_file_name)
            << name;
        EXPECT_EQ(number_of_failure([&] { disk.MkDir(path); }), FailureNumber::wrong_file_name) << name;
    }
}

TEST_F(DiskNames, WrongPatternsAreFailure52) {
    EXPECT_EQ(number_of_failure([&] { (void)disk.Dir("D:\\Mus*\\a.mp3"); }), FailureNumber::wrong_file_name);
    EXPECT_EQ(number_of_failure([&] { (void)disk.Dir("D:\\Musique\\<.mp3"); }), FailureNumber::wrong_file_name);
    EXPECT_EQ(number_of_failure([&] { disk.Kill("D:\\Musique\\|.mp3"); }), FailureNumber::wrong_file_name);
}

} // namespace

} // namespace sonarelle
