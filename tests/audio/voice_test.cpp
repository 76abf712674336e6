#include <gtest/gtest.h>

#include <vector>

#include "platform/audio/gain.h"
#include "platform/audio/voice.h"

namespace sonarelle {
namespace {

TEST(Gain, OfAnAttenuation) {
    EXPECT_EQ(gain_of(Millibel{0}), 1.0F);
    EXPECT_NEAR(gain_of(Millibel{-2000}), 0.1F, 1e-6F);
    EXPECT_NEAR(gain_of(Millibel{-9999}), 1e-5F, 1e-7F);
    EXPECT_EQ(gain_of(Millibel{-10000}), 0.0F);
}

TEST(RampedGain, GoesInAStraightLineOfTenMilliseconds) {
    RampedGain gain;
    gain.go(0);
    EXPECT_EQ(gain.now(), 1.0F);
    gain.pass(120);
    EXPECT_FLOAT_EQ(gain.now(), 0.75F);
    gain.pass(360);
    EXPECT_EQ(gain.now(), 0.0F);
}

TEST(RampedGain, InterruptedGoesOnFromWhereItStood) {
    RampedGain gain;
    gain.go(0);
    gain.pass(240);
    gain.go(1);
    EXPECT_FLOAT_EQ(gain.now(), 0.5F);
    gain.pass(240);
    EXPECT_FLOAT_EQ(gain.now(), 0.75F);
    gain.pass(240);
    EXPECT_EQ(gain.now(), 1.0F);
}

TEST(RampedGain, JumpsWithoutARamp) {
    RampedGain gain;
    gain.go(0);
    gain.pass(10);
    gain.jump(0.25F);
    EXPECT_EQ(gain.now(), 0.25F);
    gain.pass(10);
    EXPECT_EQ(gain.now(), 0.25F);
}

TEST(RampedGain, IsHeardFrameByFrame) {
    RampedGain gain;
    gain.go(0);
    const std::vector<float> ones(2 * 500, 1.0F);
    std::vector<float> out(2 * 500, 0.5F);
    gain.add(ones, out.data());
    for (const int frame : {0, 1, 100, 479}) {
        const float expected = 0.5F + static_cast<float>(ramp_frames - frame) / ramp_frames;
        EXPECT_FLOAT_EQ(out[static_cast<std::size_t>(2 * frame)], expected) << frame;
        EXPECT_FLOAT_EQ(out[static_cast<std::size_t>(2 * frame + 1)], expected) << frame;
    }
    EXPECT_EQ(out[2 * 480], 0.5F);
}

/// A voice on a stream that holds what the test puts there: frame n is n thousandths on the left, one on the right.
class VoiceOnAir : public testing::Test {
protected:
    static constexpr float unit = 0.001F;

    ~VoiceOnAir() override {
        voice.drop(Frames{0}, retired);
        retired.free_all();
    }
    void put(std::size_t frames) {
        const auto room = stream->room();
        ASSERT_GE(room.size(), 2 * frames);
        for (std::size_t frame = 0; frame < frames; ++frame) {
            room[2 * frame] = unit * static_cast<float>(put_++);
            room[2 * frame + 1] = 1.0F;
        }
        stream->written(frames);
    }
    void play(Frames at, Frames position = {}) { voice.play(new StreamTicket{stream}, at, position, retired); }
    std::vector<float> hear(std::size_t frames) {
        std::vector<float> out(2 * frames);
        voice.add_to(out, now_);
        now_ += Frames{static_cast<std::int64_t>(frames)};
        return out;
    }
    [[nodiscard]] std::int64_t starved() const { return troubles->starved_frames; }

    std::shared_ptr<SoundTroubles> troubles = std::make_shared<SoundTroubles>();
    std::shared_ptr<SampleStream> stream =
        std::make_shared<SampleStream>(Frames{0}, Frames{10000}, std::size_t{4096}, troubles);
    RetiredList retired;
    Voice voice;

private:
    int put_ = 0;
    Frames now_;
};

TEST_F(VoiceOnAir, PassesOverWhatComesTooLateAndCountsIt) {
    put(100);
    play(Frames{0});
    (void)hear(300);
    EXPECT_EQ(starved(), 200);
    put(400);
    EXPECT_FLOAT_EQ(hear(1)[0], unit * 300);
    EXPECT_EQ(starved(), 200);
}

TEST_F(VoiceOnAir, CountsNothingBehindTheEndOfWhatWasDecoded) {
    put(100);
    stream->finish();
    play(Frames{0});
    (void)hear(300);
    EXPECT_EQ(starved(), 0);
}

TEST_F(VoiceOnAir, ChangesItsVolumeOverMissingSamplesToo) {
    put(240);
    play(Frames{0});
    (void)hear(1);
    voice.set_gain(0);
    (void)hear(600); // 361 of them are missing
    put(1000);
    EXPECT_EQ(hear(1)[1], 0.0F);
}

TEST_F(VoiceOnAir, BeginsAtOnceWithTheVolumeThatWasSetWhileItWasSilent) {
    put(100);
    voice.set_gain(0.5F);
    play(Frames{0});
    EXPECT_EQ(hear(1)[1], 0.5F);
}

TEST_F(VoiceOnAir, GivesBackTheRoomOfWhatItPlayed) {
    put(1000);
    play(Frames{0});
    (void)hear(600);
    EXPECT_EQ(stream->buffered(), 400);
}

TEST_F(VoiceOnAir, HaltedFadesWhatWouldHaveComeNextInTenMilliseconds) {
    put(2000);
    play(Frames{0});
    (void)hear(100);
    voice.halt(Frames{100});
    const auto tail = hear(600);
    EXPECT_FLOAT_EQ(tail[0], unit * 100 * 479 / 480);
    EXPECT_FLOAT_EQ(tail[2 * 239 + 1], 0.5F);
    EXPECT_EQ(tail[2 * 479 + 1], 0.0F);
    EXPECT_EQ(tail[2 * 480 + 1], 0.0F);
}

TEST_F(VoiceOnAir, HaltedBeforeItWasHeardIsSilentAtOnce) {
    put(1000);
    play(Frames{0});
    voice.halt(Frames{0});
    EXPECT_EQ(hear(10)[1], 0.0F);
}

TEST_F(VoiceOnAir, HaltedBeforeItWasHeardAgainIsSilentAtOnce) {
    put(2000);
    play(Frames{0});
    (void)hear(100);
    voice.halt(Frames{100});
    (void)hear(480);
    voice.play(nullptr, Frames{580}, Frames{100}, retired);
    voice.halt(Frames{580});
    EXPECT_EQ(hear(10)[1], 0.0F);
}

TEST_F(VoiceOnAir, HaltedTwiceWithinTenMillisecondsFadesBoth) {
    put(2000);
    play(Frames{0});
    (void)hear(100);
    voice.halt(Frames{100});
    (void)hear(200);
    voice.play(nullptr, Frames{300}, Frames{100}, retired);
    (void)hear(40);
    voice.halt(Frames{340});
    EXPECT_NEAR(hear(1)[1], 239.0F / 480 + 479.0F / 480, 0.001F);
}

TEST_F(VoiceOnAir, TakesItsNextVolumeAtOnceBehindAHalt) {
    put(2000);
    play(Frames{0});
    (void)hear(100);
    voice.halt(Frames{100});
    (void)hear(480);
    voice.set_gain(0.5F);
    voice.play(nullptr, Frames{580}, Frames{100}, retired);
    EXPECT_EQ(hear(1)[1], 0.5F);
}

TEST_F(VoiceOnAir, DroppedIsDoneOnceItHasFaded) {
    put(1000);
    play(Frames{0});
    (void)hear(100);
    voice.drop(Frames{100}, retired);
    EXPECT_FALSE(voice.is_done());
    (void)hear(480);
    EXPECT_TRUE(voice.is_done());
}

TEST_F(VoiceOnAir, GoesOnWithTheSameStreamFromAnotherFrameOfTheBus) {
    put(1000);
    play(Frames{0});
    (void)hear(100);
    voice.halt(Frames{100});
    (void)hear(500);
    voice.play(nullptr, Frames{600}, Frames{100}, retired);
    EXPECT_FLOAT_EQ(hear(1)[0], unit * 100);
}

} // namespace
} // namespace sonarelle
