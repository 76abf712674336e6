#include "platform/host/host_shell.h"

#include <fcntl.h>
#include <linux/cdrom.h>
#include <spawn.h>
#include <sys/ioctl.h>
#include <sys/wait.h>

#include <algorithm>
#include <array>
#include <csignal>
#include <fstream>
#include <sstream>

#include "platform/failure.h"
#include "platform/host/file_handle.h"
#include "platform/host/known_programs.h"

namespace sonarelle {

namespace {

bool is_address(std::string_view text) {
    return text.find("://") != std::string_view::npos || text.starts_with("mailto:");
}

/// How a program begins: in a session of its own, so that it outlives the station's terminal, with all signals as
/// usual.
class ProgramAttributes {
public:
    ProgramAttributes() {
        ::posix_spawnattr_init(&attributes_);
        sigset_t signals;
        ::sigemptyset(&signals);
        ::posix_spawnattr_setsigmask(&attributes_, &signals);
        ::sigfillset(&signals);
        ::posix_spawnattr_setsigdefault(&attributes_, &signals);
        ::posix_spawnattr_setflags(&attributes_, POSIX_SPAWN_SETSID | POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF);
    }
    ~ProgramAttributes() { ::posix_spawnattr_destroy(&attributes_); }
    ProgramAttributes(const ProgramAttributes&) = delete;
    ProgramAttributes& operator=(const ProgramAttributes&) = delete;

    [[nodiscard]] const posix_spawnattr_t* get() const { return &attributes_; }

private:
    posix_spawnattr_t attributes_{};
};

} // namespace

bool has_default_route(const std::string& table) {
    std::istringstream lines{table};
    std::string line;
    std::getline(lines, line); // the headings
    while (std::getline(lines, line)) {
        std::istringstream words{line};
        std::string interface;
        std::string destination;
        if (words >> interface >> destination && destination == "00000000")
            return true;
    }
    return false;
}

HostShell::HostShell(const HostDisk& disk)
    : disk_{disk} {}

HostShell::~HostShell() {
    forget_ended_programs();
}

bool HostShell::InternetGetConnectedState() {
    std::ifstream routes{"/proc/net/route"};
    std::ostringstream table;
    table << routes.rdbuf();
    return has_default_route(table.str());
}

void HostShell::open_document(std::string_view path_or_address) {
    start("xdg-open", is_address(path_or_address) ? std::string{path_or_address} : disk_.machine_path(path_or_address),
          path_or_address);
}

void HostShell::start_program(std::string_view program, std::string_view file) {
    if (const KnownProgram* known = known_program(program))
        return start_instead(*known, program, file);
    const bool is_bare_name = program.find_first_of("\\/:") == std::string_view::npos;
    start(is_bare_name ? std::string{program} : disk_.machine_path(program),
          file.empty() ? std::string{} : disk_.machine_path(file), program);
}

void HostShell::start_instead(const KnownProgram& known, std::string_view program, std::string_view file) {
    for (const std::string_view candidate : known.instead) {
        const auto blank = candidate.find(' ');
        std::string argument{blank == std::string_view::npos ? std::string_view{} : candidate.substr(blank + 1)};
        if (!file.empty())
            argument = disk_.machine_path(file);
        const bool started =
            ErrorIndicator{}.skip([&] { start(std::string{candidate.substr(0, blank)}, argument, program); });
        if (started)
            return;
    }
    throw Failure{FailureNumber::file_not_found, std::string{program}};
}

// posix_spawn copies no memory, so that starting an editor doesn't hold up the sound.
void HostShell::start(const std::string& program, const std::string& argument, std::string_view named) {
    forget_ended_programs();
    std::array<std::string, 2> words{program, argument};
    std::array<char*, 3> arguments{words[0].data(), argument.empty() ? nullptr : words[1].data(), nullptr};
    const ProgramAttributes attributes;
    pid_t started = 0;
    if (::posix_spawnp(&started, program.c_str(), nullptr, attributes.get(), arguments.data(), environ) != 0)
        throw Failure{FailureNumber::file_not_found, std::string{named}};
    programs_.push_back(started);
}

void HostShell::forget_ended_programs() {
    std::erase_if(programs_, [](pid_t program) { return ::waitpid(program, nullptr, WNOHANG) != 0; });
}

void HostShell::show_guide(std::string_view window) {
    throw Failure{FailureNumber::file_not_found, std::string{window}};
}

void HostShell::show_journal(std::string_view path) {
    throw Failure{FailureNumber::file_not_found, std::string{path}};
}

void HostShell::set_cd_door(bool open) {
    for (const char* device : {"/dev/cdrom", "/dev/sr0"}) {
        const FileHandle drive{::open(device, O_RDONLY | O_NONBLOCK | O_CLOEXEC)};
        if (drive.is_open() && ::ioctl(drive.get(), open ? CDROMEJECT : CDROMCLOSETRAY) == 0)
            return;
    }
    throw Failure{FailureNumber::device_unavailable, "CD"};
}

} // namespace sonarelle
