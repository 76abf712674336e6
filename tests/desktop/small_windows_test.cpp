// Where windows that have no place of their own come up.
#include <QScreen>
#include <QWindow>

#include "desktop/station_views.h"

namespace sonarelle {

namespace {

class SmallWindows : public StationViews {
protected:
    void show_desk_at(int left, int top) {
        main_view().move(left, top);
        station.main_window.show();
        settle();
        main_view().move(left, top);
    }
    [[nodiscard]] QWidget& warn() {
        station.notices.warn("Ce fichier est NON TROUVE !");
        settle();
        return *desktop->widget_of(station.warning_window);
    }
};

} // namespace

TEST_F(SmallWindows, ComeUpOverTheDeskBelowItsHeader) {
    show_desk_at(120, 40);
    const QRect warning = warn().geometry();
    const QRect desk = main_view().geometry();
    EXPECT_NEAR(warning.center().x(), desk.center().x(), 2);
    EXPECT_GT(warning.top(), desk.top() + 150);
    EXPECT_LT(warning.top(), desk.center().y());
}

TEST_F(SmallWindows, StayBeforeTheDesk) {
    show_desk_at(0, 0);
    EXPECT_EQ(warn().windowHandle()->transientParent(), main_view().windowHandle());
}

TEST_F(SmallWindows, ComeUpWhereTheOperatorLeftThem) {
    show_desk_at(0, 0);
    QWidget& warning = warn();
    warning.move(20, 30);
    settle();
    station.warning_window.hide();
    settle();
    EXPECT_EQ(warn().pos(), QPoint(20, 30));
}

TEST_F(SmallWindows, ComeUpWhereTheStationPutThem) {
    show_desk_at(120, 40);
    station.warning_window.left = Twips{15 * 20};
    station.warning_window.top = Twips{15 * 30};
    settle();
    EXPECT_EQ(warn().pos(), QPoint(20, 30));
}

TEST_F(SmallWindows, StayOnTheScreenBelowALowDesk) {
    show_desk_at(120, 40);
    main_view().move(120, main_view().screen()->availableGeometry().bottom() - 200);
    settle();
    QWidget& warning = warn();
    EXPECT_LE(warning.frameGeometry().bottom(), warning.screen()->availableGeometry().bottom());
}

TEST_F(SmallWindows, DontWaitForADeskThatIsHidden) {
    EXPECT_TRUE(warn().isVisible());
}

TEST_F(SmallWindows, ListIsNobodysSmallWindow) {
    show_windows();
    EXPECT_EQ(list_view().windowHandle()->transientParent(), nullptr);
}

} // namespace sonarelle
