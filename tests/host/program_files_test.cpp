#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

#include "platform/failure.h"
#include "platform/host/program_files.h"
#include "support/private_folder.h"

namespace sonarelle::test {

using testing::ElementsAre;

/// The files of a program, and a folder to be filled with them.
struct ProgramFiles : testing::Test {
    ProgramFiles() {
        folder.put("share/fond_noir1.jpg", "picture");
        folder.put("share/jingles topH1.jpg", std::string(200'000, 'x'));
    }

    void fill() const { fill_program_folder(folder.path("share"), folder.path("data/station")); }

    PrivateFolder folder;
};

/// A program that may be installed, and a build's own folder of pictures.
struct SuppliedFiles : testing::Test {
    SuppliedFiles() { folder.put_folder("usr/bin"); }

    [[nodiscard]] std::optional<std::string> found() const {
        return supplied_files(folder.path("usr/bin/sonarelle"), folder.path("build/pictures"));
    }

    PrivateFolder folder;
};

TEST_F(SuppliedFiles, OfAnInstalledProgramLieInTheShareBesideIt) {
    folder.put_folder("usr/share/sonarelle");
    folder.put_folder("build/pictures");
    EXPECT_EQ(found(), folder.path("usr/share/sonarelle"));
}

TEST_F(SuppliedFiles, OfAProgramThatIsNotInstalledAreTheBuilds) {
    folder.put_folder("build/pictures");
    EXPECT_EQ(found(), folder.path("build/pictures"));
}

TEST_F(SuppliedFiles, AreNoneWhereNeitherFolderIs) {
    folder.put("usr/share/sonarelle", "a file");
    EXPECT_EQ(found(), std::nullopt);
}

TEST_F(ProgramFiles, FillAFolderThatIsNotThereYet) {
    fill();

    EXPECT_THAT(folder.names("data/station"), ElementsAre("fond_noir1.jpg", "jingles topH1.jpg"));
}

TEST_F(ProgramFiles, AreCopiedToTheLastByte) {
    fill();

    EXPECT_EQ(folder.bytes("data/station/jingles topH1.jpg"), folder.bytes("share/jingles topH1.jpg"));
}

TEST_F(ProgramFiles, LeaveThePicturesOfTheOperatorAlone) {
    for (const char* own : {"data/station/fond_noir1.jpg", "data/station/jingles topH1.jpg"})
        folder.put(own, "mine");
    fill();

    for (const char* own : {"data/station/fond_noir1.jpg", "data/station/jingles topH1.jpg"})
        EXPECT_EQ(folder.bytes(own), "mine") << own;
}

TEST_F(ProgramFiles, LeaveAPictureAloneWhateverItsCase) {
    folder.put("data/station/FOND_NOIR1.JPG", "mine");
    fill();

    EXPECT_THAT(folder.names("data/station"), ElementsAre("FOND_NOIR1.JPG", "jingles topH1.jpg"));
}

TEST_F(ProgramFiles, LeaveALinkAloneThatLeadsNowhere) {
    folder.put_folder("data/station");
    std::filesystem::create_symlink(folder.path("elsewhere"), folder.path("data/station/fond_noir1.jpg"));
    fill();

    EXPECT_FALSE(folder.exists("elsewhere"));
}

TEST_F(ProgramFiles, ThatWereRemovedComeBack) {
    fill();
    std::filesystem::remove(folder.path("data/station/fond_noir1.jpg"));
    fill();

    EXPECT_EQ(folder.bytes("data/station/fond_noir1.jpg"), "picture");
}

TEST_F(ProgramFiles, AreNeitherHiddenOnesNorFolders) {
    folder.put("share/.fond.new", "half");
    folder.put("share/deeper/other.gif", "other");
    fill();

    EXPECT_THAT(folder.names("data/station"), ElementsAre("fond_noir1.jpg", "jingles topH1.jpg"));
}

TEST_F(ProgramFiles, ThatAreMissingAreAFailureThatNamesTheirFolder) {
    const std::string nowhere = folder.path("nowhere");
    try {
        fill_program_folder(nowhere, folder.path("data"));
        ADD_FAILURE() << "no failure";
    } catch (const Failure& failure) {
        EXPECT_EQ(failure.source, nowhere);
    }
}

TEST_F(ProgramFiles, IntoAFolderThatIsAFileAreAFailure) {
    folder.put("data", "a file");

    EXPECT_THROW(fill(), Failure);
}

} // namespace sonarelle::test
