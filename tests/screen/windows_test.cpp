#include <gtest/gtest.h>

#include "screen/desk_bench.h"

namespace sonarelle::test {

class WindowsOnScreen : public DeskBench {
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
    [[nodiscard]] QWidget* main_widget() { return widget_of(station().main_window); }
    void see_main_window() {
        eventually("the main window", [this] { return is_active(station().main_window); });
    }
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

TEST_F(WindowsOnScreen, TheSmallestMainWindowLosesNoControl) {
    operate("", [this] {
        see_main_window();
        operators_event([this] {
            station().main_window.aa_montrer_curseur.click();
            main_widget()->resize(1024, 600);
        });
        eventually("the smaller window", [this] { return main_widget()->height() <= 600; });
        const auto lost = [this] {
            std::string names;
            const QRect all = main_widget()->rect();
            for (const Control* control : station().main_window.controls()) {
                if (control->kind() == ControlKind::menu_item || !control->visible)
                    continue;
                const auto* widget = main_widget()->findChild<QWidget*>(QString::fromStdString(control->name()));
                const bool whole = widget != nullptr && widget->isVisible() && !widget->size().isEmpty() &&
                                   all.contains(QRect{widget->mapTo(main_widget(), QPoint{}), widget->size()});
                names += whole ? "" : control->name() + " ";
            }
            return names;
        };
        EXPECT_EQ(seen<std::string>(lost), "");
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
