#include <gtest/gtest.h>

#include <cstdlib>

#include "desktop/station_label.h"
#include "screen/desk_fixture.h"

namespace sonarelle::test {

/// How the main window tells what the sound card does. The driver "pulseaudio" finds no server here.
class OutputOnScreen : public DeskFixture {
protected:
    OutputOnScreen() { settings_of_a_second_start(); }
    ~OutputOnScreen() override { ::unsetenv("SDL_AUDIODRIVER"); }
    OutputOnScreen(const OutputOnScreen&) = delete;
    OutputOnScreen& operator=(const OutputOnScreen&) = delete;

    void tells(const char* driver, const std::string& text, bool in_red) {
        ::setenv("SDL_AUDIODRIVER", driver, 1);
        operate("", [&] {
            wait_for_the_keyboard();
            eventually(text, [&] { return label().text().toStdString() == text; });
            EXPECT_EQ(seen<bool>([this] { return is_red(); }), in_red);
        });
    }

private:
    [[nodiscard]] const StationLabel& label() {
        return *widget_of(station().main_window)->findChild<StationLabel*>("output");
    }
    [[nodiscard]] bool is_red() {
        const QColor ink = label().palette().color(QPalette::WindowText);
        return ink.red() > 2 * ink.green() - 60 && ink.red() > ink.blue() + 60;
    }
};

TEST_F(OutputOnScreen, IsRedWithoutASoundCard) {
    tells("pulseaudio", "sortie : aucune carte son, cadence de l'horloge", true);
}

TEST_F(OutputOnScreen, IsQuietWithOne) {
    tells("dummy", "sortie : la carte son joue", false);
}

} // namespace sonarelle::test
