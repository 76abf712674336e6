#include <gtest/gtest.h>

#include <functional>

#include "host/disk_fixture.h"
#include "platform/failure.h"
#include "support/child_process.h"

namespace sonarelle::test {

using Use = std::function<void(HostDisk&, const std::string&)>;

struct NamedUse {
    const char* name;
    Use use;
};

class ForbiddenCharacter : public testing::TestWithParam<NamedUse> {};

TEST_P(ForbiddenCharacter, IsAWrongFileName) {
    DiskFixture bench;
    for (const std::string character : {"*", "?", "<", ">", "|", "\""})
        EXPECT_EQ(failure_of([&] { GetParam().use(bench.disk, "D:\\a" + character + "b.mp3"); }),
                  FailureNumber::wrong_file_name)
            << character;
}

TEST_P(ForbiddenCharacter, CharacterOutsideWindows1252IsRefusedByName) {
    DiskFixture bench;
    try {
        GetParam().use(bench.disk, "D:\\песня.mp3");
        FAIL();
    } catch (const Failure& failure) {
        EXPECT_EQ(failure.number, FailureNumber::wrong_file_name);
        EXPECT_EQ(failure.description, "Le caractère « п » n'existe pas en Windows-1252");
    }
}

INSTANTIATE_TEST_SUITE_P(
    HostDisk, ForbiddenCharacter,
    testing::Values(NamedUse{"open", [](HostDisk& d, const std::string& p) { (void)d.open(p); }},
                    NamedUse{"open_or_create", [](HostDisk& d, const std::string& p) { (void)d.open_or_create(p); }},
                    NamedUse{"replace", [](HostDisk& d, const std::string& p) { (void)d.replace(p); }},
                    NamedUse{"append", [](HostDisk& d, const std::string& p) { d.append(p, "x"); }},
                    NamedUse{"facts", [](HostDisk& d, const std::string& p) { (void)d.facts(p); }},
                    NamedUse{"MkDir", [](HostDisk& d, const std::string& p) { d.MkDir(p); }},
                    NamedUse{"RmDir", [](HostDisk& d, const std::string& p) { d.RmDir(p); }},
                    NamedUse{"ChDir", [](HostDisk& d, const std::string& p) { d.ChDir(p); }}),
    [](const auto& test) { return std::string{test.param.name}; });

TEST(HostDiskNames, ForbiddenCharacterInANewNameLeavesTheOldOne) {
    DiskFixture bench;
    bench.folder.put("a.mp3");

    EXPECT_EQ(failure_of([&] { bench.disk.Name("D:\\a.mp3", "D:\\a?.mp3"); }), FailureNumber::wrong_file_name);
    EXPECT_EQ(bench.folder.names(), std::vector<std::string>{"a.mp3"});
}

TEST(HostDiskNames, NulByteIsAWrongFileNameAndNotAnEnd) {
    DiskFixture bench;
    bench.folder.put("a.mp3");

    EXPECT_EQ(failure_of([&] {
                  bench.disk.Kill(std::string_view{"D:\\a.mp3\0.dfm", 13});
              }),
              FailureNumber::wrong_file_name);
    EXPECT_TRUE(bench.folder.exists("a.mp3"));
}

TEST(HostDiskNames, NameThatIsTooLongForTheDiskIsWrong) {
    DiskFixture bench;

    EXPECT_EQ(failure_of([&] { (void)bench.disk.open_or_create("D:\\" + std::string(300, 'a')); }),
              FailureNumber::wrong_file_name);
}

TEST(HostDiskNames, EachDriveRemembersItsCurrentFolder) {
    DiskFixture bench;
    bench.folder.put("un/x.txt", "on D");
    bench.folder.put("deux/y.txt", "on E");
    bench.drives.set("E", bench.folder.path());
    bench.disk.ChDir("D:\\un");
    bench.disk.ChDir("E:\\deux");

    EXPECT_EQ(bench.read("D:x.txt"), "on D");
    EXPECT_EQ(bench.read("E:y.txt"), "on E");
}

TEST(HostDiskNames, RelativeNameResolvesOnTheCurrentDrive) {
    DiskFixture bench;
    bench.folder.put("un/x.txt", "here");
    bench.disk.ChDir("D:\\un");
    bench.disk.ChDrive("d");

    EXPECT_EQ(bench.disk.current_drive(), 'D');
    EXPECT_EQ(bench.disk.current_folder(), "D:\\un");
    EXPECT_EQ(bench.read("x.txt"), "here");
}

TEST(HostDiskNames, ChDirOnAnotherDriveLeavesTheCurrentDrive) {
    DiskFixture bench;
    bench.folder.put_folder("un");
    bench.disk.ChDir("D:\\un");

    EXPECT_EQ(bench.disk.current_drive(), 'C');
    EXPECT_EQ(bench.disk.current_folder(), "C:\\");
}

TEST(HostDiskNames, PointsGoUpAndNoHigherThanTheRoot) {
    DiskFixture bench;
    bench.folder.put("un/x.txt", "here");
    bench.disk.ChDrive("D");
    bench.disk.ChDir("un");

    EXPECT_EQ(bench.read(".\\..\\..\\un\\.\\x.txt"), "here");
    EXPECT_EQ(bench.disk.absolute("..\\y"), "D:\\y");
}

TEST(HostDiskNames, ChDirToAMissingFolderFailsAndChangesNothing) {
    DiskFixture bench;
    bench.disk.ChDrive("D");

    EXPECT_EQ(failure_of([&] { bench.disk.ChDir("absent"); }), FailureNumber::path_not_found);
    EXPECT_EQ(bench.disk.current_folder(), "D:\\");
}

TEST(HostDiskNames, ChDirToAFileIsAMissingFolder) {
    DiskFixture bench;
    bench.folder.put("x.txt");

    EXPECT_EQ(failure_of([&] { bench.disk.ChDir("D:\\x.txt"); }), FailureNumber::path_not_found);
}

TEST(HostDiskNames, ChDriveToAMissingDriveFails) {
    DiskFixture bench;

    EXPECT_EQ(failure_of([&] { bench.disk.ChDrive("Q:\\x"); }), FailureNumber::device_unavailable);
    EXPECT_EQ(bench.disk.current_drive(), 'C');
}

TEST(HostDiskNames, NamesResolveOnAShareAfterChDirUntilADriveIsMadeCurrent) {
    DiskFixture bench;
    bench.folder.put("partage/x.txt", "on the share");
    bench.folder.put("x.txt", "on the drive");
    bench.drives.set("\\\\serveur\\partage", bench.folder.path("partage"));

    bench.disk.ChDir("\\\\serveur\\partage");
    EXPECT_EQ(bench.read("x.txt"), "on the share");
    bench.disk.ChDrive("D");
    EXPECT_EQ(bench.read("x.txt"), "on the drive");
}

} // namespace sonarelle::test
