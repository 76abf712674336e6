#pragma once

#include <QListWidget>
#include <QPlainTextEdit>
#include <QTextBrowser>
#include <QWindow>
#include <cstdlib>
#include <optional>

#include "desktop/desktop_fixture.h"
#include "desktop/desktop_shell.h"
#include "platform/simulated/simulated_platform.h"
#include "station/station.h"

namespace sonarelle {

/// The desk of a station in virtual time, with the readers of this desktop and the operator's own guide.
class ReaderFixture : public DesktopFixture {
protected:
    ReaderFixture() {
        station.settings.chemin_programme = "C:\\Sonarelle\\";
        desktop.emplace(station.windows(), station.desk, services, SoundReading{});
        station.main_window.show();
        settle();
        take_keyboard(*desktop->widget_of(station.main_window));
    }
    ~ReaderFixture() override {
        for (const std::string& complaint : machine.dialogs.complaints())
            ADD_FAILURE() << complaint;
        desktop.reset();
    }

    /// The window manager gives a window the keyboard.
    void take_keyboard(QWidget& view) {
        QApplication::setActiveWindow(&view);
        settle();
    }
    /// A key goes to the window that has the keyboard.
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::sendKeyEvent(QTest::Click, QApplication::activeWindow()->windowHandle(), key, QString{}, modifiers);
        settle();
    }
    void type(const QString& words) {
        for (const QChar letter : words)
            QTest::sendKeyEvent(QTest::Click, QApplication::activeWindow()->windowHandle(), Qt::Key_unknown, letter,
                                Qt::NoModifier);
        settle();
    }
    void press_help_in(Window& asker) {
        asker.show();
        settle();
        take_keyboard(*desktop->widget_of(asker));
        press(Qt::Key_F1);
    }
    void open_journal() {
        station.main_window.A_ouvre_journal.click();
        settle();
    }
    void write(const std::string& line) { machine.disk.append(journal_path, line + "\r\n"); }

    /// A reader's window; null before it is asked for.
    [[nodiscard]] static QWidget* reader(const char* name) {
        for (QWidget* top : QApplication::topLevelWidgets())
            if (top->objectName() == name)
                return top;
        return nullptr;
    }
    template <typename Kind>
    [[nodiscard]] static Kind& part(const char* of, const char* name = "") {
        return *reader(of)->findChild<Kind*>(name == std::string_view{} ? QString{} : QString{name});
    }
    [[nodiscard]] static QTextBrowser& page() { return part<QTextBrowser>("guide"); }
    [[nodiscard]] static QListWidget& contents() { return part<QListWidget>("guide"); }
    [[nodiscard]] static QPlainTextEdit& lines() { return part<QPlainTextEdit>("journal"); }
    [[nodiscard]] static QString said(const char* of) { return part<QLabel>(of, "etat").text(); }
    [[nodiscard]] static QString answer(const char* of) { return part<QLabel>(of, "reponse").text(); }
    /// The first line of the guide's text on view.
    [[nodiscard]] static QString first_on_view() { return page().cursorForPosition({20, 12}).block().text(); }

    static constexpr const char* journal_path = "C:\\Sonarelle\\journal.doc";

    SimulatedPlatform machine;
    DesktopShell shell{machine.shell, machine.disk, QString{std::getenv("SONARELLE_SOURCE_DIR")} + "/docs/guide.md"};
    Station station{Platform{machine.time, machine.scheduler, machine.disk, machine.settings, machine.dialogs,
                             machine.media, machine.random, shell, "C:\\Sonarelle"}};
    std::optional<Desktop> desktop;
};

} // namespace sonarelle
