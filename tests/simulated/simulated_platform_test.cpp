#include "platform/simulated/simulated_platform.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/failure.h"

namespace sonarelle {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Start = SimulatedShell::Start;

TEST(SimulatedPlatform, ItsFolderIsThereAndCurrent) {
    const SimulatedPlatform machine;
    EXPECT_EQ(machine.platform.program_folder, "C:\\Sonarelle");
    EXPECT_EQ(machine.platform.disk.current_folder(), "C:\\Sonarelle");
    EXPECT_EQ(machine.platform.disk.current_drive(), 'C');
}

TEST(SimulatedPlatform, ItsFolderMayLieElsewhere) {
    const SimulatedPlatform machine{"E:\\Radio\\Sonarelle"};
    EXPECT_EQ(machine.platform.disk.current_folder(), "E:\\Radio\\Sonarelle");
}

TEST(SimulatedPlatform, TwoOfOneSeedDrawTheSame) {
    SimulatedPlatform one;
    SimulatedPlatform other;
    one.platform.random.Randomize();
    EXPECT_EQ(one.platform.random.Rnd(), other.platform.random.Rnd());
}

TEST(SimulatedPlatform, AnotherSeedDrawsOtherwise) {
    SimulatedPlatform one{"C:\\Sonarelle", 1};
    SimulatedPlatform other{"C:\\Sonarelle", 2};
    EXPECT_NE(one.random.Rnd(), other.random.Rnd());
}

TEST(SimulatedPlatform, ATrackCanBePlayed) {
    SimulatedPlatform machine;
    machine.add_track("D:\\Musique\\a.mp3", 12.5);
    const auto graph = machine.platform.media.create_graph();
    graph->RenderFile("D:\\Musique\\a.mp3");
    EXPECT_EQ(graph->get_Duration(), 12.5);
}

TEST(SimulatedPlatform, ItsMarkIsAPointUntilItIsSet) {
    SimulatedPlatform machine;
    EXPECT_EQ(machine.platform.decimal_mark, DecimalMark::point);
    machine.platform.decimal_mark = DecimalMark::comma;
    EXPECT_EQ(machine.platform.decimal_mark, DecimalMark::comma);
}

TEST(SimulatedPlatform, ItsClockFollowsItsScheduler) {
    SimulatedPlatform machine;
    machine.run_for(seconds(90));
    EXPECT_EQ(machine.platform.clock.now(), seconds(90));
    EXPECT_EQ(machine.platform.clock.calendar().minute, 1);
}

TEST(SimulatedShell, RemembersWhatItWasAskedToStart) {
    SimulatedShell shell;
    shell.open_document("C:\\Sonarelle\\aide.htm");
    shell.start_program("C:\\editeur.exe", "D:\\a.wav");
    EXPECT_THAT(shell.started,
                ElementsAre(Start{"", "C:\\Sonarelle\\aide.htm"}, Start{"C:\\editeur.exe", "D:\\a.wav"}));
}

TEST(SimulatedShell, WithoutProgramsNothingStarts) {
    SimulatedShell shell;
    shell.has_programs = false;
    for (const auto& start : std::vector<std::function<void()>>{[&] { shell.open_document("aide.htm"); },
                                                                [&] { shell.start_program("editeur.exe", "a.wav"); }})
        try {
            start();
            ADD_FAILURE() << "it started";
        } catch (const Failure& failure) {
            EXPECT_EQ(failure.number, FailureNumber::file_not_found);
        }
    EXPECT_THAT(shell.started, IsEmpty());
}

TEST(SimulatedShell, TheDoorOpensAndCloses) {
    SimulatedShell shell;
    shell.set_cd_door(true);
    EXPECT_TRUE(shell.cd_door_open);
    shell.set_cd_door(false);
    EXPECT_FALSE(shell.cd_door_open);
}

TEST(SimulatedShell, WithoutADriveThereIsNoDoor) {
    SimulatedShell shell;
    shell.has_cd_drive = false;
    try {
        shell.set_cd_door(true);
        ADD_FAILURE() << "a door opened";
    } catch (const Failure& failure) {
        EXPECT_EQ(failure.number, FailureNumber::device_unavailable);
    }
}

TEST(SimulatedShell, IsOnlineUntilItIsNot) {
    SimulatedShell shell;
    EXPECT_TRUE(shell.InternetGetConnectedState());
    shell.online = false;
    EXPECT_FALSE(shell.InternetGetConnectedState());
}

TEST(SimulatedShell, KeepsTheClipboard) {
    SimulatedShell shell;
    shell.set_clipboard_text("D:\\a.mp3");
    EXPECT_EQ(shell.clipboard_text(), "D:\\a.mp3");
}

} // namespace

} // namespace sonarelle
