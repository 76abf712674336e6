#include <gtest/gtest.h>

#include "desktop/station_label.h"
#include "screen/desk_fixture.h"

namespace sonarelle::test {

/// What the main window tells of the air in large letters.
class HeaderOnScreen : public DeskFixture {
protected:
    HeaderOnScreen() {
        ::setenv("SDL_AUDIODRIVER", "dummy", 1); // without a card the header would tell that alone
        settings_of_a_second_start();
    }
    ~HeaderOnScreen() override { ::unsetenv("SDL_AUDIODRIVER"); }
    HeaderOnScreen(const HeaderOnScreen&) = delete;
    HeaderOnScreen& operator=(const HeaderOnScreen&) = delete;

    void reads(const char* label, const std::string& text) {
        eventually(std::string{label} + " \"" + text + "\"", [&] { return shown(label) == text; });
    }
    [[nodiscard]] std::string shown(const char* label) {
        return widget_of(station().main_window)->findChild<StationLabel*>(label)->text().toStdString();
    }
};

TEST_F(HeaderOnScreen, ClockGoesBeforeAnythingPlays) {
    operate("", [this] {
        wait_for_the_keyboard();
        const auto clock = seen<std::string>([this] { return shown("clock"); });
        EXPECT_EQ(clock.size(), std::string_view{"hh:mm:ss"}.size());
        eventually("the next second", [&] { return shown("clock") != clock; });
    });
}

TEST_F(HeaderOnScreen, NamesWhatIsHeardAndWhatComesNext) {
    operate(list_of(2, 40), [this] {
        reads("air_state", "À L'ANTENNE — Play 1");
        reads("air_title", "piste1");
        reads("air_next", "Ensuite : piste2, puis piste1");
        reads("remaining", "00:00:38");
    });
}

TEST_F(HeaderOnScreen, TellsAPause) {
    operate("", [this] {
        load_decks();
        key("F5");
        reads("air_state", "À L'ANTENNE — Play 1");
        key("p");
        reads("air_state", "EN PAUSE — Play 1");
    });
}

TEST_F(HeaderOnScreen, TellsNothingOfLoadedDecksThatWait) {
    operate("", [this] {
        load_decks();
        reads("air_state", "EN ATTENTE");
        reads("air_title", "");
        reads("remaining", "00:00:00");
    });
}

} // namespace sonarelle::test
