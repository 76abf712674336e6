// Where the frames of an MPEG file are found, whatever lies around them.
#include "platform/audio/mpeg_walk.h"

#include <gtest/gtest.h>

#include "mpeg_file_fixture.h"

namespace sonarelle {
namespace {

/// What a walk over a whole file finds.
struct Found {
    bool is_mpeg = false;
    std::vector<std::int64_t> offsets;
    std::vector<std::size_t> breaks;
    std::int64_t end = 0;
};

Found walk_over(const std::string& bytes) {
    MemoryFile file{bytes};
    MpegWalk walk{file};
    Found found{.is_mpeg = walk.find_first(), .offsets = {}, .breaks = {}};
    if (!found.is_mpeg)
        return found;
    walk.reach_end();
    for (std::size_t frame = 0; frame < walk.known(); ++frame) {
        found.offsets.push_back(walk.offset(frame));
        if (walk.broken_before(frame))
            found.breaks.push_back(frame);
    }
    found.end = walk.audio_end();
    return found;
}

/// So many frames from a place on, side by side.
std::vector<std::int64_t> row(std::int64_t from, int count) {
    std::vector<std::int64_t> offsets;
    for (int frame = 0; frame < count; ++frame)
        offsets.push_back(from + frame * silent_bytes);
    return offsets;
}

std::vector<std::int64_t> operator+(std::vector<std::int64_t> first, const std::vector<std::int64_t>& second) {
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

std::string id3(std::size_t size, char flags = 0) {
    std::string tag = "ID3\4";
    tag += '\0';
    tag += flags;
    for (const int shift : {21, 14, 7, 0})
        tag += static_cast<char>(size >> shift & 0x7F);
    return tag + std::string(size, 'x');
}

const std::string closing_tag = "TAG" + std::string(125, 'y');

TEST(MpegWalk, FindsFramesSideBySideFromTheFirstByteOn) {
    const Found found = walk_over(silent_frames(1000));
    EXPECT_EQ(found.offsets, row(0, 1000));
    EXPECT_EQ(found.end, 1000 * silent_bytes);
    EXPECT_TRUE(found.breaks.empty());
}

TEST(MpegWalk, TellsTheStreamByItsFirstFrame) {
    MemoryFile file{silent_frames(3)};
    MpegWalk walk{file};
    ASSERT_TRUE(walk.find_first());
    EXPECT_EQ(walk.first().rate, 44100);
    EXPECT_EQ(walk.first().bytes, 417U);
}

TEST(MpegWalk, GoesNoFurtherThanItIsAsked) {
    MemoryFile file{silent_frames(100)};
    MpegWalk walk{file};
    ASSERT_TRUE(walk.find_first());
    EXPECT_EQ(walk.known(), 1U);
    EXPECT_TRUE(walk.reach(9));
    EXPECT_EQ(walk.known(), 10U);
    EXPECT_TRUE(walk.reach(99));
    EXPECT_FALSE(walk.reach(100));
    EXPECT_EQ(walk.known(), 100U);
}

TEST(MpegWalk, GivesTheBytesOfEachFrame) {
    std::string bytes = silent_frames(2) + mpeg_silence_of(silent_word | 1U << 9) + silent_frames(1);
    bytes[500] = 'b';
    MemoryFile file{bytes};
    MpegWalk walk{file};
    ASSERT_TRUE(walk.find_first());
    walk.reach_end();
    ASSERT_EQ(walk.known(), 4U);
    const auto second = walk.bytes(1);
    EXPECT_EQ(second.size(), 417U);
    EXPECT_EQ(second[500 - 417], 'b');
    EXPECT_EQ(walk.bytes(2).size(), 418U) << "with its padding";
    EXPECT_EQ(walk.offset(3), 2 * 417 + 418);
}

TEST(MpegWalk, PassesOverTagsBeforeTheSound) {
    EXPECT_EQ(walk_over(id3(300'000) + silent_frames(5)).offsets, row(300'010, 5));
    EXPECT_EQ(walk_over(id3(200) + id3(77) + silent_frames(5)).offsets, row(297, 5));
    EXPECT_EQ(walk_over(id3(200, 0x10) + std::string(10, 'f') + silent_frames(5)).offsets, row(220, 5))
        << "with a footer";
}

TEST(MpegWalk, EndsBeforeTheClosingTag) {
    const std::string sound = silent_frames(5);
    EXPECT_EQ(walk_over(sound + closing_tag).end, 5 * silent_bytes);
    EXPECT_EQ(walk_over(sound + closing_tag).offsets, row(0, 5));
    EXPECT_EQ(walk_over(sound + "y" + closing_tag.substr(1)).end, 5 * silent_bytes + 128);
}

TEST(MpegWalk, TakesALastFrameThatLacksItsEndForNone) {
    const std::string bytes = silent_frames(5);
    EXPECT_EQ(walk_over(bytes.substr(0, bytes.size() - 1)).offsets, row(0, 4));
    EXPECT_EQ(walk_over(bytes + bytes.substr(0, 4)).offsets, row(0, 5));
}

TEST(MpegWalk, IsSureOfThreeFramesInARow) {
    EXPECT_TRUE(walk_over(silent_frames(3) + std::string(1000, 'x')).is_mpeg);
    EXPECT_FALSE(walk_over(silent_frames(2) + std::string(1000, 'x')).is_mpeg);
}

TEST(MpegWalk, IsSureOfFewerWhereTheyAreTheWholeFile) {
    EXPECT_EQ(walk_over(silent_frames(1)).offsets, row(0, 1));
    EXPECT_EQ(walk_over(silent_frames(2) + closing_tag).offsets, row(0, 2));
    EXPECT_FALSE(walk_over("").is_mpeg);
    EXPECT_FALSE(walk_over(std::string(1, '\xFF')).is_mpeg);
}

TEST(MpegWalk, BehindRubbishIsSureOfSixteenFrames) {
    const std::string rubbish(1000, 'x');
    EXPECT_EQ(walk_over(rubbish + silent_frames(16) + rubbish).offsets, row(1000, 16));
    EXPECT_FALSE(walk_over(rubbish + silent_frames(15) + rubbish).is_mpeg);
    EXPECT_EQ(walk_over(rubbish + silent_frames(4)).offsets, row(1000, 4)) << "to the end of the file";
}

TEST(MpegWalk, LooksForTheFirstFrameWithin64Kilobytes) {
    constexpr std::int64_t most = 64 * 1024 - 4; // with the head of the frame
    EXPECT_EQ(walk_over(std::string(most, 'x') + silent_frames(20)).offsets, row(most, 20));
    EXPECT_FALSE(walk_over(std::string(most + 1, 'x') + silent_frames(20)).is_mpeg);
    EXPECT_EQ(walk_over(id3(5000) + std::string(most, 'x') + silent_frames(20)).offsets, row(5010 + most, 20));
}

TEST(MpegWalk, IsNotMisledByWhatLooksLikeAHeadInRubbish) {
    const std::string rubbish = std::string(50, '\xFF') + big_endian(silent_word, 4) + std::string(46, '\xFF');
    EXPECT_EQ(walk_over(rubbish + silent_frames(20)).offsets, row(100, 20));
}

TEST(MpegWalk, MarksWhatIsNoFrameBeforeTheNextOne) {
    const Found found = walk_over(silent_frames(4) + std::string(33, 'x') + silent_frames(4) + "xx" + silent_frames(3));
    EXPECT_EQ(found.offsets, row(0, 4) + row(4 * 417 + 33, 4) + row(8 * 417 + 35, 3));
    EXPECT_EQ(found.breaks, (std::vector<std::size_t>{4, 8}));
}

TEST(MpegWalk, GoesOnWithThreeFramesInARowBehindABreak) {
    const std::string broken = silent_frames(4) + std::string(50, 'x');
    EXPECT_EQ(walk_over(broken + silent_frames(2) + std::string(50, 'x')).offsets, row(0, 4));
    EXPECT_EQ(walk_over(broken + silent_frames(3) + std::string(50, 'x')).offsets, row(0, 4) + row(4 * 417 + 50, 3));
    EXPECT_EQ(walk_over(broken + silent_frames(1)).offsets, row(0, 4) + row(4 * 417 + 50, 1)) << "the end of the file";
}

TEST(MpegWalk, FindsTheFramesBehindOneThatWasCutShort) {
    const Found found = walk_over(silent_frames(3) + silent_frames(1).substr(0, 100) + silent_frames(3));
    EXPECT_EQ(found.offsets, row(0, 4) + row(3 * 417 + 100, 3));
    EXPECT_EQ(found.breaks, std::vector<std::size_t>{4});
}

TEST(MpegWalk, PassesOverFramesOfAnotherStream) {
    const std::string other = mpeg_silence_of(0xFFFB9400); // 48 kHz
    const Found found = walk_over(silent_frames(4) + other + other + silent_frames(4));
    EXPECT_EQ(found.offsets, row(0, 4) + row(4 * 417 + 2 * 384, 4));
    EXPECT_EQ(found.breaks, std::vector<std::size_t>{4});
}

TEST(MpegWalk, BeginsWithTheFirstFramesOfOneStream) {
    const std::string other = mpeg_silence_of(0xFFFB9400); // 48 kHz
    EXPECT_EQ(walk_over(silent_frames(1) + other + silent_frames(2)).offsets, row(417 + 384, 2));
}

TEST(MpegWalk, FindsABreakThatIsLongerThanItReadsAtOnce) {
    const std::int64_t noise = 300'000;
    const Found found = walk_over(silent_frames(400) + std::string(noise, 'x') + silent_frames(400));
    EXPECT_EQ(found.offsets, row(0, 400) + row(400 * 417 + noise, 400));
}

/// A file whose end is lost while it is open.
class ShrinkingFile final : public RecordFile {
public:
    [[nodiscard]] std::int64_t length() const override { return whole_.length(); }
    std::size_t read(std::int64_t position, std::span<std::byte> into) override {
        const std::int64_t left = std::clamp<std::int64_t>(held - position, 0, std::ssize(into));
        return whole_.read(position, into.first(static_cast<std::size_t>(left)));
    }
    std::int64_t held = 1000 * silent_bytes;

private:
    MemoryFile whole_{silent_frames(1000)};
};

TEST(MpegWalk, HasNoBytesOfWhatTheFileLostMeanwhile) {
    ShrinkingFile file;
    MpegWalk walk{file};
    ASSERT_TRUE(walk.find_first());
    ASSERT_TRUE(walk.reach(900));
    file.held = 400 * silent_bytes + 300;
    EXPECT_EQ(walk.bytes(10).size(), 417U);
    EXPECT_EQ(walk.bytes(399).size(), 417U);
    EXPECT_TRUE(walk.bytes(400).empty());
    EXPECT_TRUE(walk.bytes(700).empty());
}

} // namespace
} // namespace sonarelle
