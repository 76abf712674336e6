// The journal in a window of the desk, while the station writes it.
#include "desktop/pixels.h"
#include "desktop/reader_fixture.h"

namespace sonarelle {

namespace {

class JournalOnView : public ReaderFixture {
protected:
    /// As many lines as don't fit into the window.
    void write_many() {
        std::string text;
        for (int line = 1; line <= 200; ++line)
            text += "05/01/2026 - 06:00:00 Lecture de C:\\titre " + std::to_string(line) + ".mp3\r\n";
        machine.disk.put_file(journal_path, text);
    }
    [[nodiscard]] static bool shows(const QString& text) { return lines().toPlainText().contains(text); }
    [[nodiscard]] static bool is_at_end() {
        return lines().verticalScrollBar()->value() == lines().verticalScrollBar()->maximum();
    }
    [[nodiscard]] static int top_line() { return lines().verticalScrollBar()->value(); }
};

} // namespace

TEST_F(JournalOnView, ComesByItsEntryAtItsEnd) {
    write_many();
    open_journal();
    EXPECT_TRUE(shows("titre 1.mp3"));
    EXPECT_TRUE(shows("titre 200.mp3"));
    EXPECT_TRUE(is_at_end());
    EXPECT_GT(top_line(), 0);
    EXPECT_TRUE(machine.shell.started.empty());
}

TEST_F(JournalOnView, FollowsWhatTheStationWrites) {
    write_many();
    open_journal();
    station.main_window.Active_journal.click();
    station.journal.note("06:00:07 Arrêt de l'émission");
    EXPECT_TRUE(becomes([] { return shows("06:00:07 Arrêt de l'émission"); }));
    EXPECT_TRUE(is_at_end());
}

TEST_F(JournalOnView, StaysWhereTheOperatorReads) {
    write_many();
    open_journal();
    press(Qt::Key_PageUp);
    press(Qt::Key_PageUp);
    const int before = top_line();
    ASSERT_FALSE(is_at_end());
    write("une ligne de plus");
    EXPECT_TRUE(becomes([] { return shows("une ligne de plus"); }));
    EXPECT_EQ(top_line(), before);
    EXPECT_TRUE(said("journal").contains("Ctrl+Fin"));
    press(Qt::Key_End, Qt::ControlModifier);
    EXPECT_TRUE(is_at_end());
    EXPECT_FALSE(said("journal").contains("Ctrl+Fin"));
}

TEST_F(JournalOnView, OfManyMegabytesComesAtOnceAsItsLastOne) {
    machine.disk.put_file(journal_path, std::string(5'000'000, '\n') + "la fin\n");
    machine.disk.fail_read_at(journal_path, 2'500'000);
    open_journal();
    EXPECT_TRUE(shows("la fin"));
    EXPECT_TRUE(said("journal").contains("seul le dernier mégaoctet est montré"));
}

TEST_F(JournalOnView, ThatIsMissingSaysSoAndIsShownWhenItComes) {
    open_journal();
    EXPECT_EQ(said("journal"), "Le fichier n'existe pas, ou pas encore.");
    write("ligne une");
    EXPECT_TRUE(becomes([] { return shows("ligne une"); }));
    EXPECT_FALSE(said("journal").contains("n'existe pas"));
}

TEST_F(JournalOnView, ThatIsPurgedIsEmpty) {
    write_many();
    open_journal();
    machine.dialogs.expect_box("Ok journal supprimé", Answer::ok);
    station.main_window.A_purger_journal.click();
    EXPECT_TRUE(becomes([] { return said("journal").contains("n'existe pas"); }));
    EXPECT_FALSE(shows("titre"));
}

TEST_F(JournalOnView, ThatBeginsAnewSaysSo) {
    write_many();
    open_journal();
    machine.disk.put_file(journal_path, "nouveau\r\n");
    EXPECT_TRUE(becomes([] { return shows("nouveau"); }));
    EXPECT_FALSE(shows("titre"));
    EXPECT_TRUE(said("journal").contains("vidé ou remplacé"));
}

TEST_F(JournalOnView, IsSearchedLikeTheGuide) {
    write_many();
    open_journal();
    press(Qt::Key_F, Qt::ControlModifier);
    type("titre 3");
    EXPECT_EQ(lines().textCursor().block().text(), "05/01/2026 - 06:00:00 Lecture de C:\\titre 3.mp3");
    press(Qt::Key_Return);
    EXPECT_EQ(lines().textCursor().block().text(), "05/01/2026 - 06:00:00 Lecture de C:\\titre 30.mp3");
    type("99");
    EXPECT_EQ(answer("journal"), "introuvable");
}

TEST_F(JournalOnView, GivesTheKeyboardBackAndIsUpToDateWhenItComesAgain) {
    write_many();
    open_journal();
    press(Qt::Key_Escape);
    EXPECT_FALSE(reader("journal")->isVisible());
    EXPECT_EQ(QApplication::activeWindow(), desktop->widget_of(station.main_window));
    write("pendant ce temps");
    open_journal();
    EXPECT_TRUE(shows("pendant ce temps"));
}

TEST_F(JournalOnView, IsReadable) {
    write_many();
    open_journal();
    EXPECT_GE(contrast_in(seen_in_window(*lines().viewport())), readable);
    EXPECT_GE(contrast_in(seen_in_window(part<QLabel>("journal", "etat"))), readable);
}

} // namespace sonarelle
