// The station's beat in the windows' loop.
#include "desktop/pulse.h"

#include <sys/eventfd.h>
#include <unistd.h>

#include "desktop/desktop_fixture.h"

namespace sonarelle {

namespace {

using namespace std::chrono_literals;

constexpr int some_beats = 200; // ms

class PulseOfTheStation : public DesktopFixture {
protected:
    ~PulseOfTheStation() override { ::close(wake_); }

    void post() const { ::eventfd_write(wake_, 1); }
    static void soon(std::function<void()> act, std::chrono::milliseconds wait = 0ms) {
        QTimer::singleShot(wait, std::move(act));
    }

    int beats = 0;
    Pulse::Nanoseconds next = 1h;
    std::function<void()> on_beat;

private:
    int wake_ = ::eventfd(0, EFD_NONBLOCK | EFD_CLOEXEC);

protected:
    Pulse pulse{wake_, [this] {
                    eventfd_t posted = 0;
                    ::eventfd_read(wake_, &posted);
                    ++beats;
                    if (on_beat)
                        on_beat();
                    return next;
                }};
};

} // namespace

TEST_F(PulseOfTheStation, BeatsWhenTheNextThingIsDue) {
    next = 1ms;
    pulse.beat();
    EXPECT_EQ(beats, 1);
    EXPECT_TRUE(becomes([&] { return beats >= 4; }));
}

TEST_F(PulseOfTheStation, BeatsAtOnceWhenSomethingIsPosted) {
    pulse.beat();
    post();
    EXPECT_TRUE(becomes([&] { return beats == 2; }));
}

TEST_F(PulseOfTheStation, ForgetsTheTimeThatAPostedThingHasPutOff) {
    next = 50ms;
    pulse.beat();
    next = 1h;
    pulse.beat();
    QTest::qWait(some_beats);
    EXPECT_EQ(beats, 2);
}

// The loop of a box that a beat opens beats, too.
TEST_F(PulseOfTheStation, KeepsTheEarlierTimeOfABeatWithinABeat) {
    on_beat = [this] {
        on_beat = nullptr;
        next = 5ms;
        pulse.beat();
        next = 1h;
    };
    pulse.beat();
    EXPECT_TRUE(becomes([&] { return beats >= 3; }));
}

TEST_F(PulseOfTheStation, TakesTheEarlierTimeOfTheBeatAroundABeat) {
    on_beat = [this] {
        on_beat = nullptr;
        pulse.beat();
        next = 5ms;
    };
    pulse.beat();
    EXPECT_TRUE(becomes([&] { return beats >= 3; }));
}

TEST_F(PulseOfTheStation, ServesTheWindowsForAWhile) {
    bool served = false;
    soon([&] { served = true; });
    pulse.serve(30ms);
    EXPECT_TRUE(served);
    EXPECT_EQ(beats, 0);
}

TEST_F(PulseOfTheStation, ServesTheWindowsUntilSomethingIsPosted) {
    bool posted = false;
    soon(
        [&] {
            posted = true;
            post();
        },
        20ms);
    pulse.serve(1h);
    EXPECT_TRUE(posted);
    EXPECT_EQ(beats, 0);
}

TEST_F(PulseOfTheStation, ServesWhatWaitsInNoTime) {
    bool served = false;
    QMetaObject::invokeMethod(
        &pulse, [&] { served = true; }, Qt::QueuedConnection);
    pulse.serve(0ms);
    EXPECT_TRUE(served);
}

TEST_F(PulseOfTheStation, BeatsOnPostedThingsAgainOnceItHasServed) {
    pulse.serve(1ms);
    post();
    EXPECT_TRUE(becomes([&] { return beats == 1; }));
}

TEST_F(PulseOfTheStation, EndsTheInnermostOfTwoServicesFirst) {
    bool inner_ended = false;
    soon([&] {
        soon([&] { post(); });
        pulse.serve(1h);
        inner_ended = true;
        pulse.beat(); // takes what was posted
        soon([&] { post(); });
    });
    pulse.serve(1h);
    EXPECT_TRUE(inner_ended);
}

} // namespace sonarelle
