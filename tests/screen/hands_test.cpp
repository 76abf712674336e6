// What hands do to a desk that is on the air, with a window manager between.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>

#include "configuration/settings_vocabulary.h"
#include "configuration/window_place.h"
#include "screen/desk_fixture.h"

namespace sonarelle::test {

namespace {

constexpr int most_turns = 400; ///< Of a quarter of a second: far more than three transitions take.

class HandsOnScreen : public DeskFixture {
protected:
    HandsOnScreen() { settings_of_a_second_start(); }

    [[nodiscard]] bool is_on_the_air() {
        return seen<bool>([this] {
            return std::ranges::any_of(station().deck_ring.decks, [](const Deck& deck) { return deck.sounds(); });
        });
    }
    [[nodiscard]] int transitions() {
        return seen<int>([this] { return station().chain.nb_fichiers_ecoutes.value(); });
    }
    /// The window manager's own button of a window's title bar.
    void reduce_main_window() {
        const auto id = seen<WId>([this] { return widget_of(station().main_window)->winId(); });
        screen().hand("windowminimize " + std::to_string(id));
    }
};

} // namespace

TEST_F(HandsOnScreen, SpaceReturnAndEscapeNeverCutTheAir) {
    operate(list_of(5, 8), [this] {
        eventually("the air", [this] { return station().deck_ring.deck(1).sounds(); });
        operators_event([this] { station().main_window.Affiche_Fenetre_P.click(); });
        eventually("the keyboard", [this] { return is_active(station().main_window); });
        constexpr std::array keys{"space", "Return", "Escape"};
        for (std::size_t turn = 0; turn < most_turns && transitions() < 3 && !HasFailure(); ++turn) {
            key(keys[turn % keys.size()]);
            std::this_thread::sleep_for(std::chrono::milliseconds{250});
            EXPECT_TRUE(is_on_the_air()) << "turn " << turn;
        }
        EXPECT_FALSE(has_ended());
        EXPECT_EQ(transitions(), 3);
    });
}

TEST_F(HandsOnScreen, LettersAreCommandsAfterAQuickLoad) {
    set("Config", "Load_combo1", station_form(list_of(2, 8)));
    operate("", [this] {
        wait_for_the_keyboard();
        press("Antenne_FM", "Combo1");
        eventually("the entries", [] { return QApplication::activePopupWidget() != nullptr; });
        for (const char* chord : {"Down", "Return"})
            key(chord);
        eventually("the menu of the decks", [] {
            const QWidget* menu = QApplication::activePopupWidget();
            return menu != nullptr && menu->objectName() == "cha";
        });
        for (const char* chord : {"Down", "Return"})
            key(chord);
        eventually("the load", [this] {
            return std::ranges::any_of(station().deck_ring.decks, [](const Deck& deck) { return !deck.path.empty(); });
        });
        key("m");
        eventually("the small player", [this] { return is_on_screen(station().small_player); });
    });
}

TEST_F(HandsOnScreen, MainWindowOfAScreenThatIsGoneOpensOnTheOneThatIsThere) {
    set(setting_section::position, main_window_place.left, "25000");
    operate("", [this] {
        wait_for_the_keyboard();
        eventually("the whole window on the screen", [this] {
            const QRect frame = widget_of(station().main_window)->frameGeometry();
            return frame.left() >= 0 && frame.right() < 1280;
        });
    });
}

TEST_F(HandsOnScreen, ReducingTheMainWindowByItsTitleBarShowsTheSmallPlayer) {
    operate("", [this] {
        wait_for_the_keyboard();
        key("F2");
        eventually("the list", [this] { return is_on_screen(station().list_window); });
        reduce_main_window();
        eventually("the small player alone", [this] {
            return is_on_screen(station().small_player) && !is_on_screen(station().main_window) &&
                   !is_on_screen(station().list_window);
        });
        eventually("its keyboard", [this] { return is_active(station().small_player); });
        key("l");
        eventually("the main window", [this] { return is_on_screen(station().main_window); });
    });
}

TEST_F(HandsOnScreen, SavingOverAListAsksTheStationsQuestionFirst) {
    operate(list_of(2, 60), [this] {
        eventually("the list", [this] { return is_on_screen(station().list_window); });
        press("Liste_son", "Label8");
        wait_for_box();
        EXPECT_EQ(box(), "");
        key("Return");
        until("the question", [this] { return !box().empty(); });
        EXPECT_EQ(box().find("Attention le fichier"), 0U);
        answer("Non");
    });
}

} // namespace sonarelle::test
