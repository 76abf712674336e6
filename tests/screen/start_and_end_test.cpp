#include <gtest/gtest.h>
#include <unistd.h>

#include <csignal>

#include "screen/desk_fixture.h"

namespace sonarelle::test {

using StartAndEnd = DeskFixture;

TEST_F(StartAndEnd, AFirstStartTellsWhatItWroteAndEnds) {
    operate("", [this] {
        wait_for_box();
        EXPECT_NE(box().find("Vous pouvez relancer Sonarelle"), std::string::npos);
        key("Return");
        until("the end", [this] { return has_ended(); });
    });
}

TEST_F(StartAndEnd, ASecondStartShowsTheMainWindow) {
    settings_of_a_second_start();
    operate("", [this] { eventually("the main window", [this] { return is_on_screen(station().main_window); }); });
}

TEST_F(StartAndEnd, WindowsCarryTheStationsSign) {
    settings_of_a_second_start();
    operate("", [this] {
        eventually("the main window", [this] { return is_on_screen(station().main_window); });
        EXPECT_FALSE(seen<bool>([] { return QApplication::windowIcon().pixmap(32).isNull(); }));
    });
}

TEST_F(StartAndEnd, AListOnTheCommandLineIsOnTheAir) {
    settings_of_a_second_start();
    operate(list_of(2, 40), [this] {
        eventually("the first track", [this] { return station().main_window.elapsed.caption.get() == "2"; });
        EXPECT_EQ(text(station().list_window.track_name), "piste1");
    });
}

TEST_F(StartAndEnd, AFileOnTheCommandLinePlaysOnTheSmallPlayerAlone) {
    settings_of_a_second_start();
    const std::string file = tone("seul.wav", 20);
    operate(file, [this] {
        eventually("the small player", [this] { return is_on_screen(station().small_player); });
        EXPECT_FALSE(seen<bool>([this] { return is_on_screen(station().main_window); }));
    });
}

TEST_F(StartAndEnd, QuittingWithNoGoesOn) {
    settings_of_a_second_start();
    operate("", [this] {
        wait_for_the_keyboard();
        key("q");
        answer("Non");
        eventually("the box gone", [] { return QApplication::activeModalWidget() == nullptr; });
        EXPECT_FALSE(has_ended());
    });
}

TEST_F(StartAndEnd, QuittingWithYesEnds) {
    settings_of_a_second_start();
    operate("", [this] {
        wait_for_the_keyboard();
        key("Escape");
        answer("Oui");
        until("the end", [this] { return has_ended(); });
    });
}

TEST_F(StartAndEnd, TheCrossOfTheMainWindowAsks) {
    settings_of_a_second_start();
    operate("", [this] {
        wait_for_the_keyboard();
        key("alt+F4");
        wait_for_box();
        EXPECT_EQ(box(), "Confirmer la fermeture de Sonarelle");
    });
}

TEST_F(StartAndEnd, AClosedTerminalEndsWithoutAsking) {
    settings_of_a_second_start();
    operate("", [this] {
        wait_for_the_keyboard();
        ::kill(::getpid(), SIGHUP);
        until("the end", [this] { return has_ended(); });
    });
}

TEST_F(StartAndEnd, ADamagedDriveTableIsToldAndTheListIsOnTheAirBehindIt) {
    settings_of_a_second_start();
    const std::string list = list_of(2, 40);
    folder().put("config/sonarelle/lecteurs.json", "{\"D\":5}");
    operate(list, [this] {
        wait_for_box();
        EXPECT_NE(box().find("Table des lecteurs abîmée"), std::string::npos);
        eventually("the first track", [this] { return station().main_window.elapsed.caption.get() == "2"; });
    });
}

} // namespace sonarelle::test
