#include <gtest/gtest.h>

#include <csignal>
#include <cstddef>
#include <linux/audit.h>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include "real_time_watch.h"
#include "sound_fixture.h"

namespace sonarelle {
namespace {

// Three graphs that run, and commands of every kind in the queue, one of them a seek and one a drop.
class BusyBus {
public:
    BusyBus() {
        const auto path = bench_.folder.counting_wav("a.wav", 4);
        for (int count = 0; count < 3; ++count) {
            graphs_.push_back(bench_.graph(path));
            graphs_.back()->Run();
        }
        bench_.run_for(Frames{4800});
        bench_.time.before_instant = nullptr; // from here on the test renders
        bench_.time.run_for(Frames{100});
        graphs_[0]->put_Volume(Millibel{-500});
        graphs_[1]->put_CurrentPosition(2.0);
        graphs_[2].reset();
        bench_.time.run_for(Frames{100});
        graphs_[0]->Pause();
        bench_.media.feed();
    }
    void render() {
        for (int block = 0; block < 20; ++block)
            bench_.bus.render(out_.data(), 256);
    }
    [[nodiscard]] Frames rendered() const { return bench_.bus.rendered(); }

private:
    SoundFixture bench_;
    std::vector<std::shared_ptr<MediaGraph>> graphs_;
    std::vector<float> out_ = std::vector<float>(512);
};

TEST(RenderCallback, NeitherAllocatesNorFreesNorLocks) {
    BusyBus busy;
    const Frames before = busy.rendered();
    RealTimeWatch::begin();
    busy.render();
    const auto seen = RealTimeWatch::end();
    EXPECT_EQ(busy.rendered(), before + Frames{20 * 256});
    EXPECT_EQ(seen.allocations, 0);
    EXPECT_EQ(seen.locks, 0);
}

TEST(RenderCallback, IsWatchedByAWatchThatSees) {
    std::mutex mutex;
    RealTimeWatch::begin();
    {
        const std::lock_guard lock{mutex};
        int* volatile number = new int{1}; // volatile, or the compiler leaves it out
        delete number;
    }
    const auto seen = RealTimeWatch::end();
    EXPECT_GE(seen.allocations, 2);
    EXPECT_EQ(seen.locks, RealTimeWatch::sees_locks() ? 1 : 0);
}

// From here on the first system call of this thread but `write` and the ends of threads kills the process.
void forbid_system_calls() {
    static sock_filter filter[] = {
        BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr)),
        BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, SYS_exit_group, 0, 1),
        BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW),
        BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_KILL_PROCESS),
    };
    static const sock_fprog program{.len = static_cast<unsigned short>(std::size(filter)), .filter = filter};
    if (::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) != 0 || ::prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &program) != 0)
        ::_exit(3);
}

int status_of_child(const std::function<void()>& forbidden) {
    const pid_t child = ::fork();
    if (child == 0) {
        forbid_system_calls();
        forbidden();
        ::syscall(SYS_exit_group, 0);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    return status;
}

TEST(RenderCallback, MakesNoSystemCall) {
    BusyBus busy;
    EXPECT_EQ(status_of_child([&] { busy.render(); }), 0);
}

TEST(RenderCallback, IsTrappedByATrapThatSprings) {
    const int status = status_of_child([] { ::getppid(); });
    EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGSYS);
}

} // namespace
} // namespace sonarelle
