#include <gtest/gtest.h>

#include <QScreen>

#include "screen/desk_fixture.h"

namespace sonarelle::test {

/// The list window beside the main one at a second start, when both have one stored place.
class ListPlaceOnScreen : public DeskFixture {
protected:
    ListPlaceOnScreen() { settings_of_a_second_start(); }

    [[nodiscard]] QRect place_of(const Window& window) const { return widget_of(window)->frameGeometry(); }
};

TEST_F(ListPlaceOnScreen, LeavesTheHeaderOfTheMainWindowFree) {
    operate("", [this] {
        wait_for_the_keyboard();
        key("F2");
        eventually("the list below", [this] {
            return is_on_screen(station().list_window) &&
                   place_of(station().list_window).top() > place_of(station().main_window).top() + 100;
        });
    });
}

TEST_F(ListPlaceOnScreen, IsOnTheScreenWithItsFrame) {
    operate("", [this] {
        wait_for_the_keyboard();
        key("F2");
        eventually("the list on the screen", [this] {
            const QWidget* list = widget_of(station().list_window);
            return list->isVisible() && list->frameGeometry().height() > list->height() &&
                   list->y() > place_of(station().main_window).top() + 100 &&
                   list->screen()->geometry().contains(list->frameGeometry());
        });
    });
}

} // namespace sonarelle::test
