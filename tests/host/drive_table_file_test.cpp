#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <map>

#include "platform/failure.h"
#include "platform/host/host_drive_table.h"
#include "platform/host/machine_paths.h"
#include "support/child_process.h"
#include "support/private_folder.h"

namespace sonarelle::test {

using Entries = std::map<std::string, std::string>;

/// Where the test runs, for its time.
class InFolder {
public:
    explicit InFolder(const std::string& folder)
        : before_{std::filesystem::current_path()} {
        std::filesystem::current_path(folder);
    }
    ~InFolder() { std::filesystem::current_path(before_); }
    InFolder(const InFolder&) = delete;
    InFolder& operator=(const InFolder&) = delete;

private:
    std::filesystem::path before_;
};

TEST(DriveTableFile, GivesBackTheTableThatWasSaved) {
    PrivateFolder folder;
    set_saved_drive(folder.path("lecteurs.json"), "D", "/srv/musique/");
    set_saved_drive(folder.path("lecteurs.json"), "\\\\Serveur\\Partage", "/mnt/x");

    EXPECT_EQ(load_drive_table(folder.path("lecteurs.json")).entries(),
              (Entries{{"C", ""}, {"D", "/srv/musique"}, {"\\\\serveur\\partage", "/mnt/x"}}));
}

TEST(DriveTableFile, IsTheFirstTableWithoutAFile) {
    PrivateFolder folder;

    EXPECT_EQ(load_drive_table(folder.path("lecteurs.json")).entries(), DriveTable{}.entries());
}

TEST(DriveTableFile, DriveCMayBeAbsent) {
    PrivateFolder folder;
    remove_saved_drive(folder.path("lecteurs.json"), "C");

    EXPECT_TRUE(load_drive_table(folder.path("lecteurs.json")).entries().empty());
}

TEST(DriveTableFile, KeepsRootAsASlash) {
    PrivateFolder folder;
    set_saved_drive(folder.path("lecteurs.json"), "C", "/");

    EXPECT_EQ(folder.bytes("lecteurs.json"), "{\n    \"C\": \"/\"\n}\n");
}

TEST(DriveTableFile, RelativeFolderOfTheOperatorBecomesAbsolute) {
    PrivateFolder folder;
    folder.put_folder("musique");
    const InFolder here{folder.path()};
    set_saved_drive("lecteurs.json", "d:", "./musique/");

    EXPECT_EQ(load_drive_table("lecteurs.json").entries().at("D"), folder.path("musique"));
}

TEST(DriveTableFile, RelativeFolderInTheFileBeginsAtTheFile) {
    PrivateFolder folder;
    folder.put("lecteurs.json", R"({"D": "musique"})");

    EXPECT_EQ(load_drive_table(folder.path("lecteurs.json")).entries().at("D"), folder.path("musique"));
}

TEST(DriveTableFile, DriveOfAnotherProgramStays) {
    PrivateFolder folder;
    set_saved_drive(folder.path("lecteurs.json"), "D", "/d");
    set_saved_drive(folder.path("lecteurs.json"), "E", "/e");

    EXPECT_EQ(load_drive_table(folder.path("lecteurs.json")).entries(), (Entries{{"C", ""}, {"D", "/d"}, {"E", "/e"}}));
}

TEST(DriveTableFile, WrongDriveNameChangesNothing) {
    PrivateFolder folder;

    EXPECT_EQ(failure_of([&] { set_saved_drive(folder.path("lecteurs.json"), "DD", "/d"); }),
              FailureNumber::device_unavailable);
    EXPECT_FALSE(folder.exists("lecteurs.json"));
}

TEST(DriveTableFile, DamagedFileIsNamed) {
    PrivateFolder folder;
    for (const char* text : {"", "C=/", "[]", R"({"D": 6})", R"({"D": ""})", R"({"DD": "/d"})"}) {
        folder.put("lecteurs.json", text);
        try {
            (void)load_drive_table(folder.path("lecteurs.json"));
            ADD_FAILURE() << text;
        } catch (const Failure& failure) {
            EXPECT_EQ(failure.number, FailureNumber::device_fault) << text;
            EXPECT_EQ(failure.source, folder.path("lecteurs.json")) << text;
        }
    }
}

TEST(DriveTableFile, DamagedFileIsSetAsideBeforeADriveIsSet) {
    PrivateFolder folder;
    folder.put("lecteurs.json", "C=/");
    set_saved_drive(folder.path("lecteurs.json"), "D", "/d");

    EXPECT_EQ(folder.bytes("lecteurs.json.abime"), "C=/");
    EXPECT_EQ(load_drive_table(folder.path("lecteurs.json")).entries(), (Entries{{"C", ""}, {"D", "/d"}}));
}

TEST(DriveTableFile, DamagedFileStaysWhenNothingIsChanged) {
    PrivateFolder folder;
    folder.put("lecteurs.json", "C=/");

    EXPECT_EQ(failure_of([&] { remove_saved_drive(folder.path("lecteurs.json"), "Q"); }),
              FailureNumber::device_unavailable);
    EXPECT_EQ(folder.bytes("lecteurs.json"), "C=/");
}

TEST(DriveTableFile, DriveThatIsNotThereIsNotRemoved) {
    PrivateFolder folder;

    EXPECT_EQ(failure_of([&] { remove_saved_drive(folder.path("lecteurs.json"), "Q"); }),
              FailureNumber::device_unavailable);
    EXPECT_FALSE(folder.exists("lecteurs.json"));
}

TEST(StationPathOf, TakesTheDriveThatLiesNearest) {
    DriveTable table;
    table.set("D", "/srv/musique");

    EXPECT_EQ(station_path_of(table, "/srv/musique/Été/titre.mp3"), "D:\\Été\\titre.mp3");
    EXPECT_EQ(station_path_of(table, "/srv/autre/titre.mp3"), "C:\\srv\\autre\\titre.mp3");
}

TEST(StationPathOf, RelativePathBeginsWhereTheProgramRuns) {
    PrivateFolder folder;
    folder.put_folder("un");
    DriveTable table;
    table.set("D", folder.path());
    const InFolder here{folder.path("un")};

    EXPECT_EQ(station_path_of(table, "x.dfm"), "D:\\un\\x.dfm");
    EXPECT_EQ(station_path_of(table, ".././x.dfm"), "D:\\x.dfm");
    EXPECT_EQ(station_path_of(table, ".."), "D:\\");
}

TEST(StationPathOf, LinkInADriveStaysAPathOfThatDrive) {
    PrivateFolder folder;
    folder.put("vrai/x.mp3");
    std::filesystem::create_directory_symlink("vrai", folder.path("lien"));
    DriveTable table;
    table.set("D", folder.path("lien"));

    EXPECT_EQ(station_path_of(table, folder.path("lien/x.mp3")), "D:\\x.mp3");
}

TEST(StationPathOf, GoingUpBehindALinkLeadsWhereTheDiskSays) {
    PrivateFolder folder;
    folder.put_folder("a/b");
    std::filesystem::create_directory_symlink("a/b", folder.path("lien"));
    DriveTable table;
    table.set("D", folder.path());

    EXPECT_EQ(station_path_of(table, folder.path("lien/../x.mp3")), "D:\\a\\x.mp3");
}

struct Refusal {
    const char* name;
    const char* path;
    FailureNumber number;
    const char* description;
};

class RefusedMachinePath : public testing::TestWithParam<Refusal> {};

TEST_P(RefusedMachinePath, IsNamedWithItsReason) {
    DriveTable table;
    table.remove("C");
    table.set("D", "/srv");
    try {
        (void)station_path_of(table, GetParam().path);
        FAIL();
    } catch (const Failure& failure) {
        EXPECT_EQ(failure.number, GetParam().number);
        EXPECT_EQ(failure.source, GetParam().path);
        EXPECT_EQ(failure.description, GetParam().description);
    }
}

INSTANTIATE_TEST_SUITE_P(StationPathOf, RefusedMachinePath,
                         testing::Values(Refusal{"Foreign", "/srv/песня.mp3", FailureNumber::wrong_file_name,
                                                 "Le caractère « п » n'existe pas en Windows-1252"},
                                         Refusal{"NoUtf8", "/srv/\xE9.mp3", FailureNumber::wrong_file_name,
                                                 "Ce texte n'est pas écrit en UTF-8"},
                                         Refusal{"Forbidden", "/srv/quoi ?.mp3", FailureNumber::wrong_file_name,
                                                 "Le caractère « ? » ne va pas dans un nom de fichier"},
                                         Refusal{"Backslash", "/srv/a\\b.mp3", FailureNumber::wrong_file_name,
                                                 "Le caractère « \\ » ne va pas dans un nom de fichier"},
                                         Refusal{"NoDrive", "/home/x.mp3", FailureNumber::device_unavailable,
                                                 "Aucun lecteur n'atteint ce fichier"}),
                         [](const auto& test) { return std::string{test.param.name}; });

TEST(StationPathOf, ForeignCharacterInADrivesOwnFolderDoesNotCount) {
    DriveTable table;
    table.set("D", "/srv/Музыка");

    EXPECT_EQ(station_path_of(table, "/srv/Музыка/x.mp3"), "D:\\x.mp3");
}

} // namespace sonarelle::test
