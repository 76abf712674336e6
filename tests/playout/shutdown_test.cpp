// The ways out of the program.
#include <gmock/gmock.h>

#include "playout/desk_fixture.h"

namespace sonarelle {

namespace {

class ShutdownTest : public DeskFixture {
protected:
    ShutdownTest() {
        start();
        machine.dialogs.forget();
    }
    void expect_question(Answer answer) { machine.dialogs.expect_box("Confirmer la fermeture de Sonarelle", answer); }
    void play() {
        machine.add_track("C:\\Musique\\titre.mp3", 100);
        machine.dialogs.expect_open("C:\\Musique\\titre.mp3");
        window.deck(1).open.click();
        window.deck(1).play.click();
    }
};

} // namespace

TEST_F(ShutdownTest, AsksWithNoAsTheDefault) {
    expect_question(Answer::no);
    window.Quitter_.click();
    const Question& question = machine.dialogs.last();
    EXPECT_EQ(question.buttons, Buttons::yes_no);
    EXPECT_EQ(question.icon, Icon::question);
    EXPECT_EQ(question.default_button, 2);
    EXPECT_EQ(question.title, "Sonarelle");
}

TEST_F(ShutdownTest, NoLeavesEverythingRunning) {
    play();
    window.topmost = true;
    expect_question(Answer::no);
    window.Quitter_.click();
    EXPECT_FALSE(station.ended());
    EXPECT_TRUE(window.visible);
    EXPECT_FALSE(window.topmost);
    EXPECT_EQ(machine.media.on_air().size(), 1U);
}

TEST_F(ShutdownTest, YesSilencesTheDecksAndEnds) {
    play();
    station.list_window.show();
    expect_question(Answer::yes);
    window.Quitter_.click();
    EXPECT_TRUE(station.ended());
    EXPECT_TRUE(machine.media.on_air().empty());
    EXPECT_EQ(machine.media.graphs(), 0U);
    for (const Window* open : station.windows())
        EXPECT_FALSE(open->visible) << open->name();
}

TEST_F(ShutdownTest, LeavesNoWindowOnTheScreen) {
    const std::array<Window*, 10> all{&station.splash,          &station.main_window,       &station.list_window,
                                      &station.options_window,  &station.small_player,      &station.warning_window,
                                      &station.progress_window, &station.properties_window, &station.about_window,
                                      &station.update_window};
    for (Window* window_on_screen : all)
        window_on_screen->show();
    expect_question(Answer::yes);
    window.Quitter_.click();
    for (const Window* closed : all)
        EXPECT_FALSE(closed->visible) << closed->name();
}

TEST_F(ShutdownTest, TellsTheLoopOnce) {
    int ends = 0;
    station.on_end = [&] { ++ends; };
    expect_question(Answer::yes);
    window.Quitter_.click();
    window.Quitter_.click();
    EXPECT_EQ(ends, 1);
}

TEST_F(ShutdownTest, EscapeAndQAskToo) {
    for (const char32_t key : {U'\x1b', U'q', U'Q'}) {
        expect_question(Answer::no);
        window.key_press(key);
    }
    EXPECT_EQ(machine.dialogs.asked().size(), 3U);
}

TEST_F(ShutdownTest, AJournalThatIsOffLeavesNoFile) {
    expect_question(Answer::yes);
    window.Quitter_.click();
    EXPECT_FALSE(has_journal());
}

TEST_F(ShutdownTest, AJournalThatIsOffTakesTheFileOfAnEarlierRunWithIt) {
    machine.disk.put_file("C:\\Sonarelle\\journal.doc", "hier\r\n");
    expect_question(Answer::yes);
    window.Quitter_.click();
    EXPECT_FALSE(has_journal());
}

TEST_F(ShutdownTest, AJournalThatIsKeptOnlyAtTheEndKeepsWhatStoodInIt) {
    machine.disk.put_file("C:\\Sonarelle\\journal.doc", "hier\r\n");
    window.Active_journal.click();
    expect_question(Answer::yes);
    window.Quitter_.click();
    EXPECT_THAT(journal_text(), testing::StartsWith("hier\r\n"));
}

TEST_F(ShutdownTest, AJournalThatIsNotKeptLeavesNoFile) {
    window.Active_journal1.click();
    expect_question(Answer::yes);
    window.Quitter_.click();
    EXPECT_FALSE(has_journal());
}

TEST_F(ShutdownTest, AJournalThatIsKeptEndsWithTheClosing) {
    window.Active_journal.click();
    expect_question(Answer::yes);
    machine.run_for(seconds(61));
    window.Quitter_.click();
    EXPECT_THAT(journal_text(), testing::EndsWith("\r\n05/01/2026 - 06:01:01 Fermeture de Sonarelle\r\n"));
}

TEST_F(ShutdownTest, TheClosingIsWrittenWithTheJournalOff) {
    check_only(window.journal_choices(), window.Active_journal); // so that the file is kept
    ASSERT_FALSE(station.chain.journal_actif.is_true());
    expect_question(Answer::yes);
    window.Quitter_.click();
    EXPECT_THAT(journal_text(), testing::EndsWith(" Fermeture de Sonarelle\r\n"));
}

TEST_F(ShutdownTest, ByTheMenuStoresTheMainWindowsPlaceWhenItIsConfirmed) {
    window.left = Twips{4500};
    window.top = Twips{150};
    expect_question(Answer::no);
    window.Quitter_.click();
    EXPECT_EQ(stored("Position_gauche", "Position"), "100");
    expect_question(Answer::yes);
    window.Quitter_.click();
    EXPECT_EQ(stored("Position_gauche", "Position"), "4500");
    EXPECT_EQ(stored("Position_haut", "Position"), "150");
}

TEST_F(ShutdownTest, ByTheWindowsCloseButtonStoresItsPlaceEvenWhenTheAnswerIsNo) {
    window.left = Twips{4500};
    window.top = Twips{150};
    expect_question(Answer::no);
    window.ask_to_close();
    EXPECT_EQ(stored("Position_gauche", "Position"), "4500");
    EXPECT_EQ(stored("Position_haut", "Position"), "150");
    EXPECT_TRUE(window.visible);
    EXPECT_FALSE(station.ended());
}

TEST_F(ShutdownTest, ByTheWindowsCloseButtonEndsOnYes) {
    expect_question(Answer::yes);
    window.ask_to_close();
    EXPECT_TRUE(station.ended());
}

TEST_F(ShutdownTest, GoesOnOverAStoreThatCantBeWritten) {
    machine.settings.refuse_writes();
    expect_question(Answer::yes);
    window.ask_to_close();
    EXPECT_TRUE(station.ended());
}

TEST_F(ShutdownTest, DuringAFirstStartEndsWithoutAsking) {
    station.settings.premier_lancement = true;
    window.Quitter_.click();
    EXPECT_TRUE(station.ended());
}

TEST_F(ShutdownTest, ALabelStandsForTheQuitEntryWhileTheMenusAreHidden) {
    window.click();
    expect_question(Answer::yes);
    window.quit_label.click();
    EXPECT_TRUE(station.ended());
}

} // namespace sonarelle
