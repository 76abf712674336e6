#include <gtest/gtest.h>

#include <algorithm>
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

TEST_F(VoiceOnAir, GoesOnWithItsVolumeInAFade) {
    put(3000);
    play(Frames{0});
    (void)hear(100);
    voice.set_gain(0);
    voice.halt(Frames{100});
    const auto tail = hear(480);
    for (std::size_t frame = 0; frame < 480; ++frame) {
        const double gain = 1 - static_cast<double>(frame) / 480;
        const double fade = 1 - static_cast<double>(frame + 1) / 480;
        ASSERT_NEAR(tail[2 * frame + 1], gain * fade, 1e-6) << frame;
    }
    voice.play(nullptr, Frames{580}, Frames{100}, retired);
    EXPECT_EQ(hear(1)[1], 0.0F);
}

TEST_F(VoiceOnAir, PlaysAndFadesAcrossTheEndOfItsRing) {
    put(4096);
    play(Frames{0});
    (void)hear(4000);
    put(1000);
    const auto across = hear(200);
    for (std::size_t frame = 0; frame < 200; ++frame)
        ASSERT_FLOAT_EQ(across[2 * frame], unit * static_cast<float>(4000 + frame)) << frame;
    put(3000);
    put(96);
    (void)hear(3800); // 192 frames before the end of the ring's second round
    put(1000);
    voice.halt(Frames{8000});
    const auto tail = hear(500);
    for (std::size_t frame = 0; frame < 500; ++frame) {
        const double fade = std::max(0.0, 1 - static_cast<double>(frame + 1) / 480);
        ASSERT_NEAR(tail[2 * frame], fade * unit * static_cast<float>(8000 + frame), 1e-5) << frame;
    }
}

TEST_F(VoiceOnAir, FadesWhatIsThereOfAnEnd) {
    put(300);
    stream->finish();
    play(Frames{0});
    (void)hear(100);
    voice.halt(Frames{100});
    const auto tail = hear(480);
    EXPECT_FLOAT_EQ(tail[2 * 199 + 1], 280.0F / 480);
    for (std::size_t frame = 200; frame < 480; ++frame)
        ASSERT_EQ(tail[2 * frame + 1], 0.0F) << frame;
    EXPECT_EQ(starved(), 0);
}

TEST_F(VoiceOnAir, AddsToWhatOthersPlay) {
    put(1000);
    play(Frames{0});
    std::vector<float> out(2 * 10, 0.5F);
    voice.add_to(out, Frames{0});
    EXPECT_EQ(out[2 * 9 + 1], 1.5F);
    voice.halt(Frames{10});
    std::ranges::fill(out, 0.5F);
    voice.add_to(out, Frames{10});
    EXPECT_FLOAT_EQ(out[1], 0.5F + 479.0F / 480);
}

TEST_F(VoiceOnAir, TakesAnotherStreamAndGivesTheOldOneBack) {
    put(1000);
    play(Frames{0});
    (void)hear(100);
    const auto other = std::make_shared<SampleStream>(Frames{500}, Frames{1000}, std::size_t{100}, troubles);
    std::ranges::fill(other->room(), 0.25F);
    other->written(100);
    voice.play(new StreamTicket{other}, Frames{100}, Frames{500}, retired);
    retired.free_all();
    EXPECT_EQ(stream.use_count(), 1);
    const auto heard = hear(150);
    EXPECT_EQ(heard[0], 0.25F);
    EXPECT_EQ(heard[2 * 99], 0.25F);
    EXPECT_EQ(heard[2 * 100], 0.0F);
    EXPECT_EQ(starved(), 50);
}

TEST_F(VoiceOnAir, EndsWithTheAnnouncedEndOfItsStream) {
    put(4096);
    play(Frames{0}, Frames{9900});
    (void)hear(300);
    EXPECT_EQ(starved(), 100) << "behind the end nothing is missing";
}

TEST_F(VoiceOnAir, IsDoneOnlyOnceItIsDropped) {
    put(1000);
    play(Frames{0});
    EXPECT_FALSE(voice.is_done());
    voice.halt(Frames{0});
    EXPECT_FALSE(voice.is_done());
    voice.drop(Frames{0}, retired);
    EXPECT_TRUE(voice.is_done()) << "it was never heard";
    retired.free_all();
    EXPECT_EQ(stream.use_count(), 1);
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
