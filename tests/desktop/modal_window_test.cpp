// A window of the station that is shown above all others, until it is hidden.
#include <QTimer>

#include "desktop/desktop_dialogs.h"
#include "desktop/desktop_fixture.h"
#include "desktop/window_view.h"

namespace sonarelle {

namespace {

class ModalWindow : public DesktopFixture {
protected:
    WindowView view{window, services, {300, 200}};
};

} // namespace

TEST_F(ModalWindow, KeepsTheOthersWaitingUntilItIsHidden) {
    DesktopDialogs dialogs{{}, [this](Window&) { return &view; }};
    bool came = false;
    QTimer::singleShot(20, [&] {
        came = view.isVisible() && view.windowModality() == Qt::ApplicationModal;
        window.hide();
    });
    dialogs.show_modal(window);
    EXPECT_TRUE(came);
    EXPECT_FALSE(view.isVisible());
    EXPECT_EQ(view.windowModality(), Qt::NonModal);
}

TEST_F(ModalWindow, ThatHasNoViewIsNotWaitedFor) {
    DesktopDialogs dialogs{{}, [](Window&) { return nullptr; }};
    dialogs.show_modal(window);
    EXPECT_FALSE(window.visible);
}

} // namespace sonarelle
