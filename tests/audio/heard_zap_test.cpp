// A zap at every second of a track's first minute, by key and by button, in the reading modes, as it is heard.
#include <gtest/gtest.h>

#include <cmath>
#include <tuple>

#include "air_fixture.h"
#include "platform/audio/gain.h"
#include "sound_fixture.h"

namespace sonarelle {
namespace {

enum class Door { key, button };
enum class Verdict { accepted, refused };

struct Zap {
    int option;
    Door door;
    int second;

    [[nodiscard]] Verdict verdict() const {
        return option != 1 && door == Door::key && second <= 30 ? Verdict::refused : Verdict::accepted;
    }
};

std::vector<Zap> first_minute(Verdict verdict) {
    std::vector<Zap> zaps;
    for (const int option : {1, 2, 3, 4})
        for (const Door door : {Door::key, Door::button})
            for (int second = 1; second <= 60; ++second)
                if (const Zap zap{option, door, second}; zap.verdict() == verdict)
                    zaps.push_back(zap);
    return zaps;
}

std::string name_of(const testing::TestParamInfo<Zap>& info) {
    const auto& [option, door, second] = info.param;
    return "Option" + std::to_string(option) + (door == Door::key ? "ByKeyAt" : "ByButtonAt") + std::to_string(second);
}

// Row 1 is heard on the left, row 2 on the right.
class ZapHeard : public testing::TestWithParam<Zap> {
protected:
    ZapHeard() {
        sound.heard.reserve(static_cast<std::size_t>(2 * (gesture() + seconds(15)).count()));
        air.open_tracks(3, 200);
        air.start_in_option(GetParam().option);
        sound.run_for(seconds(GetParam().second));
        sound.time.event([this] { zap(); });
    }
    ~ZapHeard() override {
        for (const std::string& complaint : air.dialogs.complaints())
            ADD_FAILURE() << complaint;
    }

    void zap() {
        if (GetParam().verdict() == Verdict::refused)
            air.dialogs.expect_box("30 secondes minimun sont demandées", Answer::ok);
        air.random.then({0.5F}); // in random order the second row of three
        if (GetParam().door == Door::key)
            air.station.main_window.key_press(U'z');
        else
            air.station.main_window.deck(1).zap.click();
    }

    [[nodiscard]] Frames gesture() const { return seconds(GetParam().second); }
    [[nodiscard]] float left(Frames frame) const { return sound.left(frame.count()); }
    [[nodiscard]] float right(Frames frame) const {
        return sound.heard.at(static_cast<std::size_t>(2 * frame.count() + 1));
    }
    // Whether the old track sounds with its own tone at this gain, on all frames from one to another.
    [[nodiscard]] testing::AssertionResult old_sounds(Frames from, Frames to, float gain) const {
        for (Frames frame = from; frame < to; frame += Frames{1})
            if (std::abs(left(frame) - ToneTracks::tone(frame.count()) * gain) > 1e-6F)
                return testing::AssertionFailure() << "frame " << frame.count() << " is " << left(frame);
        return testing::AssertionSuccess();
    }
    // The first frame from the beginning of the run on with something on the right.
    [[nodiscard]] Frames new_begins() const {
        Frames frame;
        while (frame < sound.time.now() && right(frame) == 0.0F)
            frame += Frames{1};
        return frame;
    }

    std::shared_ptr<ToneTracks> tracks = std::make_shared<ToneTracks>();
    SoundFixture sound{tracks};
    AirFixture air{sound.time, sound.scheduler, sound.media, tracks};
};

using AcceptedZap = ZapHeard;
using RefusedZap = ZapHeard;

TEST_P(AcceptedZap, BeginsTheNextTrackOnTheFrameOfTheGesture) {
    sound.run_for(seconds(1));
    ASSERT_EQ(new_begins(), gesture());
    for (Frames frame = gesture(); frame < gesture() + milliseconds(10); frame += Frames{1})
        ASSERT_EQ(right(frame), ToneTracks::tone((frame - gesture()).count())) << frame.count();
}

TEST_P(AcceptedZap, FadesTheOldTrackStepByStepAndReleasesIt) {
    sound.run_for(seconds(14));
    constexpr int last_step = 13000 / 40 - 1;
    ASSERT_TRUE(old_sounds(Frames{}, gesture() + milliseconds(40), 1.0F));
    for (int step = 1; step <= last_step; ++step) {
        const Frames begin = gesture() + milliseconds(40 * step);
        ASSERT_TRUE(old_sounds(begin + Frames{ramp_frames}, begin + milliseconds(40), gain_of(Millibel{-10 * step})));
    }
    const Frames released = gesture() + seconds(13) + Frames{ramp_frames};
    ASSERT_TRUE(old_sounds(released, sound.time.now(), 0.0F));
    EXPECT_FALSE(air.station.deck_ring.deck(1).has_graph());
}

TEST_P(RefusedZap, LeavesTheOldTrackAloneOnTheAir) {
    sound.run_for(seconds(14));
    EXPECT_TRUE(old_sounds(Frames{}, sound.time.now(), 1.0F));
    EXPECT_EQ(new_begins(), sound.time.now());
}

INSTANTIATE_TEST_SUITE_P(FirstMinute, AcceptedZap, testing::ValuesIn(first_minute(Verdict::accepted)), name_of);
INSTANTIATE_TEST_SUITE_P(FirstMinute, RefusedZap, testing::ValuesIn(first_minute(Verdict::refused)), name_of);

} // namespace
} // namespace sonarelle
