// Rows whose disk doesn't answer, or whose file is shorter than a second: the air goes on, and they stay in the list.
#include "playlist/list_rows.h"
#include "playout/chain_fixture.h"

namespace sonarelle {

namespace {

class RowsPassedOver : public ChainFixture {
protected:
    void play_for(int seconds_played) { machine.run_for(seconds(seconds_played)); }
    /// Row 2 of three lies in a folder of its own; all play so long.
    void play_list_over_another_folder(int length) {
        for (const std::string& path : {track(1), elsewhere, track(3)})
            machine.add_track(path, length);
        const std::string end = std::to_string(length);
        open_list("C:\\Sonarelle\\essai.dfm", {record_of(track(1), end, 100, 0.0), record_of(elsewhere, end, 100, 0.0),
                                               record_of(track(3), end, 100, 0.0)});
        rows().select(1);
        start_list();
    }

    const std::string elsewhere = "C:\\Ailleurs\\b.mp3";
};

} // namespace

TEST_F(RowsPassedOver, ARowWhoseDiskDoesNotAnswerIsPassedOverAndStaysInTheList) {
    open_tracks({100, 100, 100});
    start_list();
    machine.disk.refuse(track(2), FailureNumber::device_fault);
    machine.run_for(seconds(100));
    EXPECT_EQ(rows_started(), (std::vector<int>{1, 3}));
    EXPECT_EQ(rows().count(), 3);
}

TEST_F(RowsPassedOver, ARowWhoseDiskDoesNotAnswerIsJournalled) {
    station.main_window.Active_journal.click();
    open_tracks({100, 100, 100});
    start_list();
    machine.disk.refuse(track(2), FailureNumber::device_fault);
    machine.run_for(seconds(100));
    EXPECT_NE(machine.disk.bytes("C:\\Sonarelle\\journal.doc").find("Le disque ne r\xE9pond pas"), std::string::npos);
}

TEST_F(RowsPassedOver, ARowOfLessThanASecondIsPassedOverAndStaysInTheList) {
    open_tracks({100, 100, 100});
    machine.media.set_length(track(2), 0.9);
    start_list();
    play_for(100);
    EXPECT_EQ(rows_started(), (std::vector<int>{1, 3}));
    EXPECT_EQ(rows().count(), 3);
}

TEST_F(RowsPassedOver, ARowOfLessThanASecondIsJournalled) {
    station.main_window.Active_journal.click();
    open_tracks({100, 100, 100});
    machine.media.set_length(track(2), 0.9);
    start_list();
    play_for(100);
    EXPECT_NE(journal_text().find(" fichier : " + track(2) + " Plus court qu'une seconde"), std::string::npos);
}

TEST_F(RowsPassedOver, AMissingRowBehindOneOfLessThanASecondIsRemoved) {
    open_tracks({100, 100, 100, 100});
    machine.media.set_length(track(2), 0.9);
    machine.disk.Kill(track(3));
    start_list();
    play_for(100);
    EXPECT_EQ(rows_started(), (std::vector<int>{1, 3}));
    EXPECT_EQ(rows().text(3), track(4));
}

TEST_F(RowsPassedOver, AShortItemIsFollowedByTheRowBehindOneOfLessThanASecond) {
    open_tracks({2, 100, 100});
    machine.media.set_length(track(2), 0.9);
    start_list();
    play_for(10);
    EXPECT_EQ(rows_started(), (std::vector<int>{1, 3}));
    EXPECT_EQ(rows().count(), 3);
}

TEST_F(RowsPassedOver, ARowBehindOneWhoseShareDoesNotAnswerIsTaken) {
    const std::string silent = R"(\\serveur\son\a.mp3)";
    const std::string sound = R"(\\serveur\son\b.mp3)";
    machine.disk.add_drive(R"(\\serveur\son)");
    for (const std::string& path : {track(1), silent, sound})
        machine.add_track(path, 100);
    open_list("C:\\Sonarelle\\essai.dfm",
              {record_of(track(1), "100"), record_of(silent, "100"), record_of(sound, "100")});
    rows().select(1);
    start_list();
    machine.disk.refuse(silent, FailureNumber::device_fault);
    play_for(110);
    EXPECT_EQ(rows_started(), (std::vector<int>{1, 3}));
}

TEST_F(RowsPassedOver, AShortItemIsFollowedByTheRowBehindOneWhoseDiskDoesNotAnswer) {
    open_tracks({2, 100, 100});
    start_list();
    machine.disk.refuse(track(2), FailureNumber::device_fault);
    machine.run_for(seconds(10));
    EXPECT_EQ(rows_started(), (std::vector<int>{1, 3}));
}

TEST_F(RowsPassedOver, FolderThatGoesWhileTheLoadLooksForItsFileStopsTheListAndKeepsTheRow) {
    const std::string path = "C:\\Parti\\b.mp3";
    machine.add_track(track(1), 100);
    machine.add_track(path, 100);
    open_list("C:\\Sonarelle\\essai.dfm", {record_of(track(1), "100", 100, 0.0), record_of(path, "100", 100, 0.0)});
    rows().select(1);
    start_list();
    machine.disk.take(path, milliseconds(500));
    machine.time.at(seconds(87) + milliseconds(200), [&] {
        machine.disk.heal(path);
        machine.disk.Kill(path);
        machine.disk.RmDir("C:\\Parti");
    });
    play_for(90);
    EXPECT_EQ(times_of(OnAirEvent::Kind::stopped).size(), 1U);
    EXPECT_EQ(rows().count(), 2);
}

TEST_F(RowsPassedOver, FolderThatComesBackBehindAPauseStartsNothing) {
    const std::string away = "E:\\a.mp3";
    machine.disk.add_drive("E");
    machine.add_track(track(1), 40);
    machine.add_track(away, 100);
    open_list("C:\\Sonarelle\\essai.dfm", {record_of(track(1), "40", 100, 0.0), record_of(away, "100", 100, 0.0)});
    rows().select(1);
    start_list();
    play_for(30);
    machine.disk.unplug("E:");
    play_for(5);
    controls(1).pause.click();
    machine.disk.plug_again("E:");
    play_for(10);
    EXPECT_EQ(rows_started(), (std::vector<int>{1}));
}

TEST_F(RowsPassedOver, RowOfAShareWhoseFolderIsGoneStaysInTheList) {
    const std::string gone = R"(\\serveur\son\parti\a.mp3)";
    machine.disk.add_drive(R"(\\serveur\son)");
    machine.add_track(track(1), 100);
    machine.add_track(track(3), 100);
    open_list("C:\\Sonarelle\\essai.dfm",
              {record_of(track(1), "100", 100, 0.0), record_of(gone, "100"), record_of(track(3), "100")});
    rows().select(1);
    start_list();
    play_for(110);
    EXPECT_EQ(rows_started(), (std::vector<int>{1, 3}));
    EXPECT_EQ(rows().count(), 3);
}

TEST_F(RowsPassedOver, RowThatMayNotBeLookedAtIsNotLaidToASilentDisk) {
    station.main_window.Active_journal.click();
    open_tracks({100, 100, 100});
    start_list();
    machine.disk.refuse(track(2), FailureNumber::permission_refused);
    play_for(110);
    EXPECT_EQ(rows().count(), 3);
    EXPECT_EQ(journal_text().find("Le disque ne r\xE9pond pas"), std::string::npos);
}

TEST_F(RowsPassedOver, RowThatIsRemovedAtTheMixPointGivesWayToADrawnOne) {
    open_tracks(std::vector<int>(40, 100));
    start_list();
    play_for(90);
    machine.disk.Kill(track(2));
    play_for(10);
    EXPECT_EQ(rows().count(), 39);
    ASSERT_EQ(rows_started().size(), 2U);
    EXPECT_GT(rows_started().back(), 2); // not the one that took its place
}

TEST_F(RowsPassedOver, RowWhoseFolderGoesBetweenTwoLooksOfTheLoadStaysInTheList) {
    play_list_over_another_folder(100);
    machine.disk.remove_after_entering("C:\\Ailleurs");
    play_for(88);
    EXPECT_FALSE(machine.disk.exists("C:\\Ailleurs"));
    EXPECT_EQ(times_of(OnAirEvent::Kind::stopped), (Times{{87, 0}}));
    EXPECT_EQ(rows().count(), 3);
}

TEST_F(RowsPassedOver, RowWhoseFolderGoesBetweenTwoLooksOfTheMixStaysInTheList) {
    play_list_over_another_folder(3);
    machine.disk.remove_after_entering("C:\\Ailleurs");
    play_for(3);
    EXPECT_FALSE(machine.disk.exists("C:\\Ailleurs"));
    EXPECT_EQ(rows_started(), (std::vector<int>{1, 3}));
    EXPECT_EQ(rows().count(), 3);
}

TEST_F(RowsPassedOver, RowWhoseFolderGoesBetweenTwoLooksOfAZapStaysInTheList) {
    play_list_over_another_folder(100);
    play_for(40);
    machine.disk.remove_after_entering("C:\\Ailleurs");
    station.main_window.key_press(U'z');
    EXPECT_FALSE(machine.disk.exists("C:\\Ailleurs"));
    EXPECT_EQ(rows_started(), (std::vector<int>{1, 3}));
    EXPECT_EQ(rows().count(), 3);
}

namespace {

// Row 2 lies on drive D, which stops answering.
class SilentDriveTest : public RowsPassedOver {
protected:
    void open_tracks_and_start(int first_length) {
        station.main_window.Active_journal.click();
        machine.disk.add_drive("D");
        machine.add_track(silent, 100);
        machine.add_track(track(1), first_length);
        machine.add_track(track(3), 100);
        open_list("C:\\Sonarelle\\essai.dfm",
                  {record_of(track(1), std::to_string(first_length), 100, 0.0), record_of(silent, "100", 100, 0.0),
                   record_of(track(3), "100", 100, 0.0)});
        rows().select(1);
        start_list();
        machine.disk.take("D:\\", seconds(2));
        machine.disk.refuse("D:\\", FailureNumber::device_fault);
    }
    void expect_passed_over_and_kept() {
        EXPECT_EQ(rows_started(), (std::vector<int>{1, 3}));
        EXPECT_EQ(rows().count(), 3);
        EXPECT_NE(journal_text().find(" fichier : " + silent + " Le disque ne r\xE9pond pas"), std::string::npos);
    }

    const std::string silent = "D:\\Musique\\b.mp3";
};

} // namespace

TEST_F(SilentDriveTest, PassesItsRowOverAtTheLoad) {
    open_tracks_and_start(100);
    play_for(110);
    expect_passed_over_and_kept();
}

TEST_F(SilentDriveTest, PassesItsRowOverBehindAnItemTooShortForALoad) {
    open_tracks_and_start(2);
    play_for(20);
    expect_passed_over_and_kept();
}

TEST_F(SilentDriveTest, PassesItsRowOverAtAZapByKey) {
    open_tracks_and_start(100);
    play_for(40);
    station.main_window.key_press(U'z');
    play_for(5);
    expect_passed_over_and_kept();
}

TEST_F(SilentDriveTest, PassesItsRowOverAtAZapByTheButton) {
    open_tracks_and_start(100);
    play_for(40);
    controls(1).zap.click();
    play_for(10);
    expect_passed_over_and_kept();
}

TEST_F(RowsPassedOver, AMissingRowUnderNoSavingLeavesTheTableAlone) {
    open_tracks({100, 100, 100});
    station.list_window.a_Ne_pas_Sauve.click();
    start_list();
    machine.disk.Kill(track(2));
    machine.run_for(seconds(100));
    EXPECT_EQ(rows().count(), 2);
    EXPECT_FALSE(machine.disk.exists("C:\\Sonarelle\\liste.dfm"));
}

} // namespace sonarelle
