#pragma once

#include <sys/types.h>

#include <string>

namespace sonarelle::test {

/// An X server of the test's own without a monitor, with a small window manager. Programs that the test's process
/// starts, and its own windows, go there.
class VirtualScreen {
public:
    VirtualScreen(int width, int height);
    ~VirtualScreen();
    VirtualScreen(const VirtualScreen&) = delete;
    VirtualScreen& operator=(const VirtualScreen&) = delete;

    /// Runs xdotool with these words, as a hand on keyboard and mouse, and waits for it. @throws std::runtime_error
    /// when it fails.
    void hand(const std::string& words) const;
    /// Its output.
    [[nodiscard]] std::string asked(const std::string& command) const;
    /// Writes what is on the screen into a PNG file.
    void picture(const std::string& file) const;

private:
    void start_server(int width, int height);
    void lay_french_keyboard();
    void start_window_manager();

    pid_t server_ = -1;
    pid_t manager_ = -1;
};

} // namespace sonarelle::test
