#include <gtest/gtest.h>

#include <QMenu>
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

    /// The output's menu; null until the desk has it.
    [[nodiscard]] static QMenu* menu_of_outputs() {
        for (QWidget* widget : QApplication::allWidgets())
            if (auto* menu = qobject_cast<QMenu*>(widget); menu != nullptr && menu->objectName() == "Sortie_audio")
                return menu;
        return nullptr;
    }
    /// The one that is always there.
    static bool choose_the_default_output() {
        QMenu* menu = menu_of_outputs();
        if (menu == nullptr)
            return false;
        emit menu->aboutToShow();
        menu->actions().front()->trigger();
        return true;
    }

    static constexpr std::string_view kept_choice = "config/sonarelle/sortie.json";

private:
    [[nodiscard]] StationLabel& label() {
        return *widget_of(station().main_window)->findChild<StationLabel*>("output");
    }
    [[nodiscard]] bool is_red() {
        const QColor ground = label().grab().toImage().pixelColor(1, 1);
        return ground.red() > ground.green() + 100 && ground.red() > ground.blue() + 100;
    }
};

TEST_F(OutputOnScreen, IsRedWithoutASoundCard) {
    tells("pulseaudio", "sortie : aucune carte son, cadence de l'horloge", true);
}

TEST_F(OutputOnScreen, IsQuietWithOne) {
    tells("dummy", "sortie : la carte son joue", false);
}

TEST_F(OutputOnScreen, ChosenFromTheMenuIsRememberedForTheNextStart) {
    ::setenv("SDL_AUDIODRIVER", "dummy", 1);
    operate("", [this] {
        wait_for_the_keyboard();
        EXPECT_FALSE(folder().exists(kept_choice));
        EXPECT_TRUE(seen<bool>([] { return choose_the_default_output(); }));
        until("the choice on the disk", [this] { return folder().exists(kept_choice); });
    });
    EXPECT_NE(folder().bytes(kept_choice).find("\"sortie\": \"\""), std::string::npos);
}

} // namespace sonarelle::test
