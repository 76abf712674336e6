// The ring between who decodes and the bus.
#include "platform/audio/sample_stream.h"

#include <gtest/gtest.h>

#include <vector>

namespace sonarelle {
namespace {

/// A stream of ten frames from frame 100 to frame 140 of a file, whose samples are the file's frame and its negative.
class Ring : public testing::Test {
protected:
    std::size_t room() { return stream.room().size() / 2; }
    void put(std::size_t frames) {
        const auto place = stream.room();
        for (std::size_t sample = 0; sample < 2 * frames; ++sample)
            place[sample] = static_cast<float>(next_ + sample / 2) * (sample % 2 == 0 ? 1.0F : -1.0F);
        stream.written(frames);
        next_ += frames;
    }
    static std::vector<float> all_of(const SampleStream::View& view) {
        std::vector<float> samples{view.first.begin(), view.first.end()};
        samples.insert(samples.end(), view.second.begin(), view.second.end());
        return samples;
    }
    static std::vector<float> counting(int from, int to) {
        std::vector<float> samples;
        for (int frame = from; frame < to; ++frame)
            samples.insert(samples.end(), {static_cast<float>(frame), -static_cast<float>(frame)});
        return samples;
    }

    std::shared_ptr<SoundTroubles> troubles = std::make_shared<SoundTroubles>();
    SampleStream stream{Frames{100}, Frames{140}, std::size_t{10}, troubles};

private:
    std::size_t next_ = 100;
};

TEST_F(Ring, KnowsItsPlaceInTheFile) {
    EXPECT_EQ(stream.start(), Frames{100});
    EXPECT_EQ(stream.end(), Frames{140});
    EXPECT_EQ(stream.capacity(), 10U);
    EXPECT_FALSE(stream.finished());
    stream.finish();
    EXPECT_TRUE(stream.finished());
}

TEST_F(Ring, HasRoomForWhatItHolds) {
    EXPECT_EQ(room(), 10U);
    put(7);
    EXPECT_EQ(room(), 3U);
    put(3);
    EXPECT_EQ(room(), 0U);
    EXPECT_EQ(stream.buffered(), 10);
    EXPECT_EQ(stream.produced(), 10);
}

TEST_F(Ring, GivesItsRoomInOnePieceUpToWhereItBeginsAgain) {
    put(8);
    stream.pass_over(Frames{105});
    EXPECT_EQ(room(), 2U);
    put(2);
    EXPECT_EQ(room(), 5U);
    put(5);
    EXPECT_EQ(room(), 0U);
    EXPECT_EQ(stream.buffered(), 10);
    EXPECT_EQ(stream.produced(), 15);
}

TEST_F(Ring, GivesItsFramesInOrderAcrossItsEnd) {
    put(8);
    stream.pass_over(Frames{105});
    put(2);
    put(5);
    const auto view = stream.look(Frames{106}, 8);
    EXPECT_EQ(view.first.size(), 2U * 4);
    EXPECT_EQ(view.frames(), 8U);
    EXPECT_EQ(all_of(view), counting(106, 114));
}

TEST_F(Ring, GivesNoMoreThanIsThere) {
    put(4);
    EXPECT_EQ(all_of(stream.look(Frames{101}, 20)), counting(101, 104));
    EXPECT_EQ(stream.look(Frames{104}, 5).frames(), 0U);
    EXPECT_EQ(stream.look(Frames{110}, 5).frames(), 0U);
    EXPECT_EQ(stream.look(Frames{99}, 5).frames(), 0U) << "before its beginning";
}

TEST_F(Ring, PassesOverWhatLiesBeforeTheFrameThatIsLookedAt) {
    put(10);
    EXPECT_EQ(all_of(stream.look(Frames{104}, 2)), counting(104, 106));
    EXPECT_EQ(stream.buffered(), 6) << "what was looked at stays";
    EXPECT_EQ(all_of(stream.look(Frames{104}, 2)), counting(104, 106));
}

TEST_F(Ring, GivesNoRoomBackTwice) {
    put(10);
    stream.pass_over(Frames{106});
    stream.pass_over(Frames{103});
    EXPECT_EQ(stream.buffered(), 4);
    stream.pass_over(Frames{130});
    EXPECT_EQ(stream.buffered(), 0) << "what hasn't come can't be passed over";
    EXPECT_EQ(room(), 10U);
}

TEST_F(Ring, HasNoRoomBehindTheAnnouncedEnd) {
    for (std::int64_t frame = 100; frame < 130; frame += 10) {
        put(10);
        stream.pass_over(Frames{frame + 10});
    }
    put(7);
    EXPECT_EQ(room(), 3U);
    put(3);
    stream.pass_over(Frames{140});
    EXPECT_EQ(room(), 0U);
}

TEST_F(Ring, AddsUpWhatCameTooLate) {
    stream.count_starved(3);
    stream.count_starved(4);
    EXPECT_EQ(troubles->starved_frames, 7);
}

} // namespace
} // namespace sonarelle
