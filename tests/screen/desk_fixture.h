#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QTranslator>
#include <atomic>
#include <functional>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <thread>

#include "app/bureau/desk_program.h"
#include "app/bureau/french.h"
#include "screen/virtual_screen.h"
#include "support/private_folder.h"

namespace sonarelle::test {

/// The desk on a screen of its own, with a keyboard and a mouse. The windows' loop turns on the test's thread, the
/// operator's hands move on another. A failed test leaves a picture of the screen in the build folder.
class DeskFixture : public testing::Test {
protected:
    DeskFixture();
    ~DeskFixture() override;

    /// The settings of a station that has been started before.
    void settings_of_a_second_start();
    void set(std::string_view section, std::string_view key, std::string_view value);
    /// A list of tracks that last this many seconds each, tones of different levels; its path on this machine.
    [[nodiscard]] std::string list_of(int tracks, int seconds);
    /// One tone, at a level of 1 to 100; its path on this machine.
    [[nodiscard]] std::string tone(const std::string& name, int seconds, int level = 16) const;

    /// Starts the desk with a file, or none, and lets `hands` work on it. Then the desk is closed without asking, if it
    /// hasn't ended by then.
    void operate(const std::string& file, const std::function<void()>& hands);

    // For the hands.

    /// A key or a chord in xdotool's names, to the window that has the focus.
    void key(const std::string& chord);
    /// Presses the middle of the widget of a control in a window, by their names.
    void press(const std::string& window, const std::string& control, int button = 1);
    /// Waits until the main window is the only one and has the keyboard, for the window manager too.
    void wait_for_the_keyboard();
    /// Waits until it is so on the window's thread; a failure says `what` didn't come.
    void eventually(const std::string& what, const std::function<bool()>& so);
    /// What the window's thread sees of something.
    /// The same on the hands' own thread.
    static void until(const std::string& what, const std::function<bool()>& so);
    template <typename Value>
    [[nodiscard]] Value seen(const std::function<Value()>& look) {
        std::optional<Value> value;
        on_window_thread([&] { value = look(); });
        return *value;
    }
    [[nodiscard]] std::string text(const Label& label) {
        return seen<std::string>([&] { return label.caption.get(); });
    }
    /// Whether a window is there to be seen, and whether it has the keyboard. For the window's thread.
    [[nodiscard]] bool is_on_screen(const Window& window) const;
    [[nodiscard]] bool is_active(const Window& window) const;
    /// What an operator does at one instant, without the mouse.
    void operators_event(const std::function<void()>& event);
    /// Chooses the chain over decks and loads each deck with a track of a minute.
    void load_decks();
    /// The station's form of a path of this machine.
    [[nodiscard]] std::string station_form(const std::string& path) const;

    /// Waits until a box has the keyboard.
    void wait_for_box();
    /// The open message box's text; empty when there is none.
    [[nodiscard]] std::string box();
    /// Presses a button of the open message box, by its French caption.
    void answer(const std::string& caption);

    [[nodiscard]] Station& station() { return program_->station(); }
    [[nodiscard]] QWidget* widget_of(const Window& window) const { return program_->widget_of(window); }
    [[nodiscard]] bool has_ended() const { return ended_; }
    [[nodiscard]] const VirtualScreen& screen() const { return screen_; }
    [[nodiscard]] const PrivateFolder& folder() const { return folder_; }

private:
    void on_window_thread(const std::function<void()>& work);
    void click_at(const std::function<QWidget*()>& find, const std::string& name, int button);
    void keep_picture_of_failure();

    PrivateFolder folder_;
    VirtualScreen screen_{1280, 800};
    int argument_count_ = 1;
    std::string program_name_ = "sonarelle";
    char* arguments_[2] = {program_name_.data(), nullptr};
    std::unique_ptr<QApplication> application_;
    QTranslator translator_;
    std::unique_ptr<Machine> machine_;
    std::unique_ptr<DeskProgram> program_;
    std::atomic<bool> ended_{false};
};

} // namespace sonarelle::test
