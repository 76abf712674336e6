#include "support/child_process.h"

#include <grp.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <stdexcept>

#include "platform/failure.h"

namespace sonarelle::test {

namespace {

constexpr int other_end = 255;
constexpr unsigned nobody = 65534;

int guarded(const std::function<void()>& work) {
    try {
        return static_cast<int>(failure_of(work));
    } catch (...) {
        return other_end;
    }
}

int wait_status(pid_t child) {
    int status = 0;
    while (::waitpid(child, &status, 0) < 0)
        if (errno != EINTR)
            throw std::runtime_error{"the child is gone"};
    return status;
}

void give_up_rights() {
    if (::getuid() != 0)
        return;
    if (::setgroups(0, nullptr) != 0 || ::setgid(nobody) != 0 || ::setuid(nobody) != 0)
        throw std::runtime_error{"the child keeps its rights"};
}

} // namespace

FailureNumber failure_of(const std::function<void()>& work) {
    try {
        work();
        return FailureNumber::none;
    } catch (const Failure& failure) {
        return failure.number;
    }
}

pid_t start_child(const std::function<void()>& work) {
    const pid_t child = ::fork();
    if (child < 0)
        throw std::runtime_error{"no process for the test"};
    if (child == 0)
        ::_exit(guarded(work));
    return child;
}

int end_of_child(pid_t child) {
    const int status = wait_status(child);
    return WIFEXITED(status) && WEXITSTATUS(status) != other_end ? WEXITSTATUS(status) : -1;
}

bool kill_child(pid_t child) {
    ::kill(child, SIGKILL);
    const int status = wait_status(child);
    return WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL;
}

FailureNumber failure_without_rights(const std::function<void()>& work) {
    return FailureNumber{end_of_child(start_child([&work] {
        give_up_rights();
        work();
    }))};
}

FailureNumber failure_on_full_disk(std::size_t bytes, const std::function<void()>& work) {
    return FailureNumber{end_of_child(start_child([&] {
        std::signal(SIGXFSZ, SIG_IGN);
        const rlimit limit{bytes, bytes};
        if (::setrlimit(RLIMIT_FSIZE, &limit) != 0)
            throw std::runtime_error{"no limit for the child"};
        work();
    }))};
}

} // namespace sonarelle::test
