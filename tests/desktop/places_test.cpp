// Where windows come on the screen.
#include "desktop/desktop_bench.h"
#include "platform/desktop/window_view.h"

namespace sonarelle {

namespace {

class WindowPlaces : public DesktopBench {
protected:
    WindowView view{window, services, {300, 200}};
};

} // namespace

TEST_F(WindowPlaces, BelowTheScreenIsNotTaken) {
    window.show();
    settle();
    window.top = Twips{15 * 5000};
    settle();
    EXPECT_EQ(view.y() + view.frameGeometry().height(), view.screen()->availableGeometry().bottom() + 1);
    EXPECT_EQ(window.top.get(), Twips{15 * view.y()});
}

} // namespace sonarelle
