// The clipboard that the station shares with the other programs of the desktop.
#include <QClipboard>

#include "desktop/desktop_fixture.h"
#include "desktop/desktop_shell.h"
#include "platform/simulated/simulated_platform.h"

namespace sonarelle {

namespace {

class ClipboardOfTheDesktop : public DesktopFixture {
protected:
    SimulatedPlatform machine;
    DesktopShell shell{machine.shell, machine.disk, {}};
};

} // namespace

TEST_F(ClipboardOfTheDesktop, TakesTheStationsText) {
    shell.set_clipboard_text("Été à la mer");
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "Été à la mer");
}

TEST_F(ClipboardOfTheDesktop, GivesTheTextOfAnotherProgram) {
    QGuiApplication::clipboard()->setText("Œuvre");
    EXPECT_EQ(shell.clipboard_text(), "Œuvre");
}

} // namespace sonarelle
