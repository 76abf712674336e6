#pragma once

#include <QTest>
#include <QWindow>

#include "desktop/desktop_fixture.h"
#include "desktop/window_view.h"
#include "playout/desk_fixture.h"

namespace sonarelle {

/// The whole desk without a screen: a station in virtual time, and its windows.
class WholeDesk : public DeskFixture, protected OffscreenDesktop {
protected:
    WholeDesk() {
        start();
        settle();
        take_keyboard();
    }

    [[nodiscard]] QWidget& widget_of(const Window& of) { return *desktop.widget_of(of); }
    [[nodiscard]] QWidget& main_view() { return widget_of(window); }
    template <typename Kind = QWidget>
    [[nodiscard]] Kind& part(const Control& control) {
        return *main_view().findChild<Kind*>(QString::fromStdString(control.name()));
    }
    /// The window manager gives a window the keyboard.
    void take_keyboard(QWidget* view = nullptr) {
        QApplication::setActiveWindow(view == nullptr ? &main_view() : view);
        settle();
    }
    void press(QWidget& widget) {
        QTest::mouseClick(&widget, Qt::LeftButton);
        settle();
    }
    /// A key goes to the window, as the screen hands it over.
    static void key(const QWidget& view, Qt::Key code, const QString& text = {}) {
        QTest::sendKeyEvent(QTest::Click, view.windowHandle(), code, text, Qt::NoModifier);
    }
    void key(Qt::Key code, const QString& text = {}) {
        key(main_view(), code, text);
        settle();
    }
    void type(QStringView text) {
        for (const QChar c : text)
            key(main_view(),
                c.unicode() < 0x80 ? QTest::asciiToKey(c.toLatin1()) : static_cast<Qt::Key>(c.toUpper().unicode()), c);
        settle();
    }
    void press_space() { key(Qt::Key_Space, " "); }
    void press_return() { key(Qt::Key_Return, "\r"); }
    /// Whether the keyboard is with the window itself.
    [[nodiscard]] bool window_has_keyboard() { return main_view().focusWidget() == &main_view(); }

    Desktop desktop{
        station.windows(), station.desk, services,
        SoundReading{[] { return LevelReading{}; }, [](std::span<float>) {}, [] { return std::span<const float>{}; }}};
};

} // namespace sonarelle
