#include "screen/virtual_screen.h"

#include <fcntl.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <stdexcept>
#include <thread>
#include <vector>

namespace sonarelle::test {

namespace {

using namespace std::chrono_literals;

pid_t start(const std::vector<std::string>& words) {
    std::vector<char*> arguments;
    for (const std::string& word : words)
        arguments.push_back(const_cast<char*>(word.c_str()));
    arguments.push_back(nullptr);
    const pid_t child = ::fork();
    if (child == 0) {
        const int nowhere = ::open("/dev/null", O_WRONLY);
        ::dup2(nowhere, STDOUT_FILENO);
        ::dup2(nowhere, STDERR_FILENO);
        ::execvp(arguments.front(), arguments.data());
        ::_exit(127);
    }
    return child;
}

void end(pid_t child) {
    if (child <= 0)
        return;
    ::kill(child, SIGTERM);
    ::waitpid(child, nullptr, 0);
}

} // namespace

VirtualScreen::VirtualScreen(int width, int height) {
    start_server(width, height);
    lay_french_keyboard();
    start_window_manager();
}

VirtualScreen::~VirtualScreen() {
    end(manager_);
    end(server_);
}

// The server chooses a free display and writes its number when it is ready. It mustn't begin anew when its last client
// leaves: a question that ends before the window manager has come would throw that one out.
void VirtualScreen::start_server(int width, int height) {
    std::array<int, 2> ends{};
    if (::pipe(ends.data()) != 0)
        throw std::runtime_error{"pipe"};
    const std::string size = std::to_string(width) + "x" + std::to_string(height) + "x24";
    server_ =
        start({"Xvfb", "-displayfd", std::to_string(ends[1]), "-screen", "0", size, "-nolisten", "tcp", "-noreset"});
    ::close(ends[1]);
    std::string number;
    for (char digit = 0; ::read(ends[0], &digit, 1) == 1 && digit != '\n';)
        number += digit;
    ::close(ends[0]);
    if (number.empty())
        throw std::runtime_error{"Xvfb did not start"};
    ::setenv("DISPLAY", (":" + number).c_str(), 1);
}

// The keyboard of the desk has keys for ² and é. A character without a key makes xdotool lend it one for an instant,
// and a busy program reads what that key means when the instant has passed. The first key of xdotool makes the server
// announce a new keyboard; a window manager lets go of its keys then for an instant, so that one is pressed before.
void VirtualScreen::lay_french_keyboard() {
    if (std::system("setxkbmap fr") != 0)
        throw std::runtime_error{"setxkbmap fr"};
    hand("key shift");
}

void VirtualScreen::start_window_manager() {
    manager_ = start({"openbox", "--sm-disable"});
    for (int tries = 0; tries < 200; ++tries) {
        if (asked("xprop -root _NET_SUPPORTING_WM_CHECK").find("window id") != std::string::npos)
            return;
        std::this_thread::sleep_for(50ms);
    }
    throw std::runtime_error{"openbox did not start"};
}

void VirtualScreen::hand(const std::string& words) const {
    if (std::system(("xdotool " + words).c_str()) != 0)
        throw std::runtime_error{"xdotool " + words};
}

std::string VirtualScreen::asked(const std::string& command) const {
    std::FILE* pipe = ::popen(command.c_str(), "r");
    if (pipe == nullptr)
        throw std::runtime_error{command};
    std::string output;
    std::array<char, 4096> part{};
    for (std::size_t count = 0; (count = std::fread(part.data(), 1, part.size(), pipe)) > 0;)
        output.append(part.data(), count);
    ::pclose(pipe);
    return output;
}

void VirtualScreen::picture(const std::string& file) const {
    static_cast<void>(asked("import -window root '" + file + "'"));
}

} // namespace sonarelle::test
