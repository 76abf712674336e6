#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <sstream>

#include "configuration/settings_vocabulary.h"
#include "configuration/window_place.h"
#include "desktop/binding.h"
#include "desktop/station_label.h"
#include "screen/desk_fixture.h"

namespace sonarelle::test {

class WindowsOnScreen : public DeskFixture {
protected:
    WindowsOnScreen() { settings_of_a_second_start(); }

    /// What the window manager says of the main window.
    [[nodiscard]] std::string manager_state() {
        const auto number = seen<unsigned long long>([this] { return main_widget()->winId(); });
        return screen().asked("xprop -id " + std::to_string(number) + " _NET_WM_STATE");
    }
    void expect_state(const std::string& what, const std::function<bool(const std::string&)>& holds) {
        for (int tries = 0; tries < 200; ++tries) {
            if (holds(manager_state()))
                return;
            std::this_thread::sleep_for(std::chrono::milliseconds{20});
        }
        throw std::runtime_error{"it did not come: " + what};
    }
    void expect_uppermost(const Window& window) {
        const auto number = seen<unsigned long long>([&] { return widget_of(window)->winId(); });
        std::ostringstream last;
        last << "0x" << std::hex << number << "\n";
        for (int tries = 0; tries < 200; ++tries) {
            if (screen().asked("xprop -root _NET_CLIENT_LIST_STACKING").ends_with(last.str()))
                return;
            std::this_thread::sleep_for(std::chrono::milliseconds{20});
        }
        throw std::runtime_error{window.name() + " did not come to the front"};
    }
    [[nodiscard]] QWidget* main_widget() { return widget_of(station().main_window); }
    /// As on a screen of 1024 by 600.
    static void make_small(QWidget& widget) { widget.resize(1000, 560); }
    [[nodiscard]] static bool is_small(const QWidget& widget) {
        return widget.width() <= 1000 && widget.height() <= 560;
    }
    /// The parts of a window that can't be seen whole, by name.
    [[nodiscard]] std::string lost_in(const Window& window) const {
        std::string names;
        const QWidget* shown = widget_of(window);
        for (const Control* control : window.controls()) {
            if (control->kind() == ControlKind::menu_item || !control->visible)
                continue;
            const auto* widget = shown->findChild<QWidget*>(QString::fromStdString(control->name()));
            if (widget != nullptr && widget->sizeHint() == QSize{0, 0}) // a picture that no file fills
                continue;
            if (dynamic_cast<const UnseenPart*>(widget) != nullptr || gives_way(*control))
                continue;
            const bool whole = widget != nullptr && widget->isVisible() && !widget->size().isEmpty() &&
                               shown->rect().contains(QRect{widget->mapTo(shown, QPoint{}), widget->size()});
            names += whole ? "" : control->name() + " ";
        }
        return names;
    }
    /// What leaves its room to others: the banner in a small window, and labels that say what others say.
    [[nodiscard]] static bool gives_way(const Control& control) {
        constexpr std::array<std::string_view, 3> labels{"Label3", "Label10", "Label16"};
        return control.kind() == ControlKind::movie || std::ranges::find(labels, control.name()) != labels.end();
    }
    void see_main_window() { wait_for_the_keyboard(); }
};

TEST_F(WindowsOnScreen, AlwaysOnTopIsAboveAllOthers) {
    operate("", [this] {
        see_main_window();
        operators_event([this] { station().main_window.affiche_toujour.click(); });
        expect_state("above", [](const std::string& state) { return state.find("ABOVE") != std::string::npos; });
    });
}

TEST_F(WindowsOnScreen, LeavesTheTopWhenAllWindowsAreShown) {
    operate("", [this] {
        see_main_window();
        operators_event([this] { station().main_window.affiche_toujour.click(); });
        expect_state("above", [](const std::string& state) { return state.find("ABOVE") != std::string::npos; });
        operators_event([this] { station().main_window.affiche_tout.click(); });
        expect_state("below", [](const std::string& state) { return state.find("ABOVE") == std::string::npos; });
    });
}

TEST_F(WindowsOnScreen, ReducingMinimisesTheMainWindow) {
    operate("", [this] {
        see_main_window();
        operators_event([this] { station().main_window.Affiche_barre.click(); });
        expect_state("hidden", [](const std::string& state) { return state.find("HIDDEN") != std::string::npos; });
    });
}

TEST_F(WindowsOnScreen, TheListComesBeforeTheMainWindowByItsKey) {
    operate("", [this] {
        see_main_window();
        operators_event([this] { station().list_window.show(); });
        eventually("the list", [this] { return is_on_screen(station().list_window); });
        operators_event([this] { station().main_window.show(); });
        expect_uppermost(station().main_window);
        operators_event([this] { station().main_window.ouvrir_liste.click(); });
        expect_uppermost(station().list_window);
    });
}

TEST_F(WindowsOnScreen, AMaximisedMainWindowStaysSoWhenItsCaptionChanges) {
    operate("", [this] {
        see_main_window();
        const auto fills_the_screen = [this] { return main_widget()->width() == 1280; };
        operators_event([this] { main_widget()->showMaximized(); });
        eventually("the whole screen", fills_the_screen);
        operators_event([this] { station().main_window.caption = "Radio Port : piste"; });
        eventually("the caption", [this] { return main_widget()->windowTitle() == "Radio Port : piste"; });
        EXPECT_TRUE(seen<bool>(fills_the_screen));
    });
}

TEST_F(WindowsOnScreen, InTheScreensCornerItComesBackThere) {
    for (const std::string_view key : {main_window_place.top, main_window_place.left})
        set(setting_section::position, key, "0");
    operate("", [this] {
        see_main_window();
        EXPECT_EQ(seen<int>([this] { return main_widget()->x(); }), 0);
        EXPECT_EQ(seen<int>([this] { return main_widget()->y(); }), 0);
    });
}

/// With a card that plays: the loss of one is told in the banner's place.
class WindowsWithACard : public WindowsOnScreen {
protected:
    WindowsWithACard() { ::setenv("SDL_AUDIODRIVER", "dummy", 1); }
    ~WindowsWithACard() override { ::unsetenv("SDL_AUDIODRIVER"); }
    WindowsWithACard(const WindowsWithACard&) = delete;
    WindowsWithACard& operator=(const WindowsWithACard&) = delete;
};

TEST_F(WindowsWithACard, TheSmallestMainWindowLosesNoControl) {
    operate("", [this] {
        see_main_window();
        eventually("the card", [this] {
            return main_widget()->findChild<StationLabel*>("output")->text() == "sortie : la carte son joue";
        });
        operators_event([this] {
            station().main_window.aa_montrer_curseur.click();
            make_small(*main_widget());
        });
        eventually("the smaller window", [this] { return is_small(*main_widget()); });
        EXPECT_EQ(seen<std::string>([this] { return lost_in(station().main_window); }), "");
    });
}

TEST_F(WindowsOnScreen, TheSmallestListWindowLosesNoControl) {
    operate(list_of(2, 60), [this] {
        eventually("the list", [this] { return is_on_screen(station().list_window); });
        operators_event([this] { make_small(*widget_of(station().list_window)); });
        eventually("the smaller window", [this] { return is_small(*widget_of(station().list_window)); });
        // The clock is the desk's, in a small list.
        EXPECT_EQ(seen<std::string>([this] { return lost_in(station().list_window); }), "Label13 ");
    });
}

TEST_F(WindowsOnScreen, TheSmallestListWindowHasTheWordsOfItsButtons) {
    operate(list_of(2, 60), [this] {
        eventually("the list", [this] { return is_on_screen(station().list_window); });
        operators_event([this] { make_small(*widget_of(station().list_window)); });
        eventually("the words", [this] {
            const QWidget* list = widget_of(station().list_window);
            const auto* play = list->findChild<QWidget*>("Image1");
            return is_small(*list) && play->width() >= play->sizeHint().width();
        });
    });
}

TEST_F(WindowsOnScreen, TheRightButtonOpensTheDisplayMenu) {
    operate("", [this] {
        see_main_window();
        press("Antenne_FM", "Label7", 3);
        eventually("the menu", [] {
            const QWidget* menu = QApplication::activePopupWidget();
            return menu != nullptr && menu->objectName() == "affiche";
        });
        key("Escape");
    });
}

} // namespace sonarelle::test
