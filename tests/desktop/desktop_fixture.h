#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>
#include <functional>
#include <memory>
#include <string>

#include "desktop/desktop.h"
#include "desktop/desktop_services.h"
#include "desktop/picture_store.h"
#include "desktop/update_queue.h"
#include "platform/controls.h"

namespace sonarelle {

/// Lets the windows' loop run until it is so; false when it doesn't become so.
[[nodiscard]] inline bool becomes(const std::function<bool()>& so) {
    constexpr int longest_wait = 20'000; // ms
    return QTest::qWaitFor(so, longest_wait);
}

/// An application without a screen, and what its windows share. Every event that comes through the door is counted.
class OffscreenDesktop {
public:
    OffscreenDesktop() { dress_application(); }

    /// What the windows' loop does between two events.
    void settle() {
        for (int turn = 0; turn < 2; ++turn) { // what is shown asks for another place in the next turn
            updates.flush();
            QCoreApplication::processEvents();
        }
        updates.flush();
    }

private:
    struct Offscreen {
        Offscreen() { qputenv("QT_QPA_PLATFORM", "offscreen"); }
    };

    Offscreen offscreen_;
    int count_ = 1;
    std::string name_ = "desktop";
    char* words_[2] = {name_.data(), nullptr};
    QApplication application_{count_, words_};

public:
    int events = 0;
    UpdateQueue updates;
    PictureStore pictures{[](const std::string& name) { return name; }};
    DesktopServices services{[this](const std::function<void()>& event) {
                                 ++events;
                                 event();
                             },
                             updates, pictures};
};

/// A window of the test's own, without a screen.
class DesktopFixture : public testing::Test, protected OffscreenDesktop {
protected:
    Window window{"feuille"};
};

} // namespace sonarelle
