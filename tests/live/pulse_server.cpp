#include "pulse_server.h"

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace sonarelle {

namespace {

// One that never takes back what it has played: so a recording has all of it, from the first frame on.
const std::string null_sink = "module-null-sink norewinds=1 format=float32le rate=48000 channels=2 sink_name=";

pid_t run(const std::vector<std::string>& words, const std::string& output) {
    std::vector<char*> arguments;
    for (const std::string& word : words)
        arguments.push_back(const_cast<char*>(word.c_str()));
    arguments.push_back(nullptr);
    const pid_t child = ::fork();
    if (child != 0)
        return child;
    if (std::freopen(output.c_str(), "wb", stdout) != nullptr && std::freopen("/dev/null", "wb", stderr) != nullptr)
        ::execvp(arguments[0], arguments.data());
    ::_exit(127);
}

void end(pid_t& child, int signal) {
    if (child <= 0)
        return;
    ::kill(child, signal);
    ::kill(child, SIGCONT);
    ::waitpid(child, nullptr, 0);
    child = -1;
}

} // namespace

PulseServer::PulseServer(std::string folder)
    : folder_{std::move(folder)} {
    std::filesystem::create_directories(folder_);
    ::setenv("XDG_RUNTIME_DIR", folder_.c_str(), 1);
    ::setenv("XDG_CONFIG_HOME", folder_.c_str(), 1);
    ::setenv("HOME", folder_.c_str(), 1);
    ::setenv("PULSE_SERVER", ("unix:" + folder_ + "/native").c_str(), 1);
    ::setenv("SDL_AUDIODRIVER", "pulseaudio", 1);
}

PulseServer::~PulseServer() {
    stop_recording();
    end(server_, SIGKILL);
}

void PulseServer::start() {
    std::filesystem::remove(folder_ + "/native");
    server_ = run(
        {"pulseaudio", "-n", "--daemonize=no", "--exit-idle-time=-1", "--use-pid-file=no", "--high-priority=no", "-L",
         "module-native-protocol-unix auth-anonymous=1 socket=" + folder_ + "/native", "-L", null_sink + "air"},
        "/dev/null");
    wait_until_it_answers();
}

void PulseServer::wait_until_it_answers() const {
    for (int attempt = 0; attempt < 400; ++attempt) {
        const int status = std::system("pactl info >/dev/null 2>&1");
        if (status == 0)
            return;
        std::this_thread::sleep_for(std::chrono::milliseconds{50});
    }
    throw std::runtime_error{"the sound server doesn't start"};
}

void PulseServer::kill() {
    end(server_, SIGKILL);
}

void PulseServer::freeze() {
    ::kill(server_, SIGSTOP);
}

void PulseServer::thaw() {
    ::kill(server_, SIGCONT);
}

void PulseServer::plug_in(const std::string& sink) const {
    const std::string command =
        "pactl load-module " + null_sink + sink + " sink_properties=device.description=" + sink + " >/dev/null 2>&1";
    if (std::system(command.c_str()) != 0)
        throw std::runtime_error{"the sound server takes no more sinks"};
}

void PulseServer::record(const std::string& file, const std::string& sink) {
    recorder_ = run({"parec", "-d", sink + ".monitor", "--format=float32le", "--rate=48000", "--channels=2", "--raw",
                     "--latency-msec=200"},
                    file);
    while (std::filesystem::exists(file) ? std::filesystem::file_size(file) == 0 : true)
        std::this_thread::sleep_for(std::chrono::milliseconds{20});
}

void PulseServer::stop_recording() {
    end(recorder_, SIGTERM);
}

std::vector<float> recorded_floats(const std::string& file) {
    std::ifstream stream{file, std::ios::binary};
    std::vector<float> floats(std::filesystem::file_size(file) / sizeof(float));
    stream.read(reinterpret_cast<char*>(floats.data()), static_cast<std::streamsize>(floats.size() * sizeof(float)));
    return floats;
}

} // namespace sonarelle
