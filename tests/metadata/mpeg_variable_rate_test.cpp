#include <gtest/gtest.h>

#include "mpeg_bytes.h"
#include "mpeg_reading.h"

namespace sonarelle {
namespace {

constexpr std::size_t stereo = 36;

TypeTagMpeg xing(const XingBytes& block, MpegBytes file = {}, std::size_t offset = stereo) {
    file.body = up_to(offset) + block.bytes();
    return header_of(file.bytes());
}

TypeTagMpeg vbri(const VbriBytes& block, MpegBytes file = {}) {
    file.body = up_to(36) + block.bytes();
    return header_of(file.bytes());
}

/// True when the frame with this block is refused and the plain one behind it taken.
bool is_passed_over(const std::string& block) {
    const MpegBytes file{.size = 200, .body = up_to(stereo) + block};
    return header_of(file.bytes() + MpegBytes{}.bytes()).EntetePos() == 200;
}

TEST(XingBlock, MarksTheFile) {
    EXPECT_EQ(xing({}).Vbr(), "VBR");
}

TEST(XingBlock, MarkInCapitalsCounts) {
    EXPECT_EQ(xing({.mark = "XING"}).Vbr(), "VBR");
}

TEST(XingBlock, MarkInMixedLettersCounts) {
    EXPECT_EQ(xing({.mark = "xInG"}).Vbr(), "VBR");
}

TEST(XingBlock, MarkInfoIsNone) {
    EXPECT_EQ(xing({.mark = "Info"}).Vbr(), "");
}

TEST(XingBlock, FramesAreTakenFromIt) {
    EXPECT_EQ(xing({.frames = 7600}).Frames(), 7600);
}

TEST(XingBlock, RateCounts38FramesASecond) {
    // 3,200,000 bytes are 25,600 kilobits, in 7600 / 38 - 1 = 199 seconds.
    EXPECT_EQ(xing({.frames = 7600, .stream = 3'200'000}).BitRate(), 128);
}

TEST(XingBlock, DurationFollowsTheTruncatedRate) {
    EXPECT_EQ(xing({.frames = 7600, .stream = 3'200'000}).Duree(), 200);
}

TEST(XingBlock, StreamSizeIsTheFilesWhenItTellsNone) {
    // 400,000 bytes are 3200 kilobits, in 99 seconds.
    EXPECT_EQ(xing({.flags = 1, .frames = 3800}, {.size = 400'000}).BitRate(), 32);
}

TEST(XingBlock, BytesInFrontAreLeftOut) {
    const MpegBytes file{.body = up_to(stereo) + XingBytes{.frames = 7600, .stream = 3'200'000}.bytes()};
    EXPECT_EQ(header_of(std::string(100'000, 'x') + file.bytes()).BitRate(), 124);
}

TEST(XingBlock, WithoutFramesTheHeaderIsNotValidButFilledIn) {
    const TypeTagMpeg header = xing({.flags = 0});
    EXPECT_FALSE(header.Valide());
    EXPECT_EQ(header.Vbr(), "VBR");
    EXPECT_EQ(header.BitRate(), 128);
    EXPECT_EQ(header.Frames(), 10);
    EXPECT_EQ(header.Mode(), "Stereo");
}

TEST(XingBlock, From1To75FramesTheFrameIsPassedOver) {
    EXPECT_TRUE(is_passed_over(XingBytes{.frames = 1}.bytes()));
    EXPECT_TRUE(is_passed_over(XingBytes{.frames = 37}.bytes()));
    EXPECT_TRUE(is_passed_over(XingBytes{.frames = 75}.bytes()));
}

TEST(XingBlock, From76FramesOnTheFrameIsTaken) {
    EXPECT_EQ(xing({.frames = 76, .stream = 16'000}).BitRate(), 128);
}

TEST(XingBlock, NoFramesAtAllGiveANegativeRate) {
    const TypeTagMpeg header = xing({.frames = 0, .stream = 16'000});
    EXPECT_TRUE(header.Valide());
    EXPECT_EQ(header.BitRate(), -128);
    EXPECT_EQ(header.Duree(), -1);
}

TEST(XingBlock, RateAbove32767IsPassedOver) {
    EXPECT_TRUE(is_passed_over(XingBytes{.frames = 76, .stream = 4'096'000}.bytes()));
}

TEST(XingBlock, RateOf32767IsTaken) {
    EXPECT_EQ(xing({.frames = 76, .stream = 4'095'999}).BitRate(), 32'767);
}

TEST(XingBlock, RateOfZeroIsPassedOver) {
    EXPECT_TRUE(is_passed_over(XingBytes{.frames = 76'000, .stream = 1000}.bytes()));
}

TEST(XingBlock, FramesFrom2To31OnArePassedOver) {
    EXPECT_TRUE(is_passed_over(XingBytes{.frames = 0x80000000}.bytes()));
}

TEST(XingBlock, StreamFrom2To31OnIsPassedOver) {
    EXPECT_TRUE(is_passed_over(XingBytes{.stream = 0x80000000}.bytes()));
}

TEST(XingBlock, CutByTheEndOfTheFileLeavesNoFrame) {
    expect_cleared(xing({.flags = 3}, {.size = stereo + 15}));
}

TEST(XingBlock, StandsNearerInMono) {
    EXPECT_EQ(xing({}, {.mode = 3}, 21).Vbr(), "VBR");
}

TEST(XingBlock, StandsNearerInStereoOfMpeg2) {
    EXPECT_EQ(xing({}, {.version = 2}, 21).Vbr(), "VBR");
}

TEST(XingBlock, StandsNearestInMonoOfMpeg2) {
    EXPECT_EQ(xing({}, {.version = 2, .mode = 3}, 13).Vbr(), "VBR");
}

TEST(XingBlock, InMpeg1TheFrequencyStays) {
    EXPECT_EQ(xing({}, {.frequency = 1}).Frequence(), 48'000);
}

TEST(XingBlock, InMpeg2TheFrequencyIsThatOfMpeg1) {
    EXPECT_EQ(xing({}, {.version = 2}, 21).Frequence(), 44'100);
}

TEST(XingBlock, InMpeg25TheFrequencyIsHalfThatOfMpeg1) {
    EXPECT_EQ(xing({}, {.version = 0}, 21).Frequence(), 22'050);
    EXPECT_EQ(xing({}, {.version = 0, .frequency = 2}, 21).Frequence(), 16'000);
}

TEST(XingBlock, LetsStrictReadingTakeMpeg2) {
    const MpegBytes file{.version = 2, .body = up_to(21) + XingBytes{}.bytes()};
    EXPECT_TRUE(header_of(file.bytes(), true).Valide());
}

TEST(VbriBlock, MarksTheFile) {
    EXPECT_EQ(vbri({}).Vbr(), "VBRI");
}

TEST(VbriBlock, MarkInSmallLettersCounts) {
    EXPECT_EQ(vbri({.mark = "vbri"}).Vbr(), "VBRI");
}

TEST(VbriBlock, FramesAreTakenFromIt) {
    EXPECT_EQ(vbri({.frames = 3800}).Frames(), 3800);
}

TEST(VbriBlock, RateAndDurationCount38FramesASecond) {
    const TypeTagMpeg header = vbri({.stream = 3'200'000, .frames = 7600});
    EXPECT_EQ(header.BitRate(), 128);
    EXPECT_EQ(header.Duree(), 200);
}

TEST(VbriBlock, DelayIsTakenFromTheStream) {
    // 16,000 bytes less 1000 are 120 kilobits, in one second.
    EXPECT_EQ(vbri({.delay = 1000, .stream = 16'000, .frames = 76}).BitRate(), 120);
}

TEST(VbriBlock, BytesInFrontAreLeftOut) {
    // 116,000 bytes less 100,000 are 128 kilobits, in one second.
    const MpegBytes file{.body = up_to(36) + VbriBytes{.stream = 116'000, .frames = 76}.bytes()};
    EXPECT_EQ(header_of(std::string(100'000, 'x') + file.bytes()).BitRate(), 128);
}

TEST(VbriBlock, DelayFrom32768OnIsPassedOver) {
    EXPECT_TRUE(is_passed_over(VbriBytes{.delay = 0x8000}.bytes()));
}

TEST(VbriBlock, DelayOf32767IsTaken) {
    EXPECT_EQ(vbri({.delay = 0x7FFF, .stream = 48'767, .frames = 76}).BitRate(), 128);
}

TEST(VbriBlock, StandsAtTheSamePlaceInMono) {
    EXPECT_EQ(vbri({}, {.mode = 3}).Vbr(), "VBRI");
}

TEST(VbriBlock, InMpeg2TheFrequencyStays) {
    EXPECT_EQ(vbri({}, {.version = 2}).Frequence(), 22'050);
}

TEST(VbriBlock, InMpeg25TheFrequencyIsHalved) {
    EXPECT_EQ(vbri({}, {.version = 0}).Frequence(), 5512);
    EXPECT_EQ(vbri({}, {.version = 0, .frequency = 1}).Frequence(), 6000);
    EXPECT_EQ(vbri({}, {.version = 0, .frequency = 2}).Frequence(), 4000);
}

TEST(VbriBlock, From1To75FramesTheFrameIsPassedOver) {
    EXPECT_TRUE(is_passed_over(VbriBytes{.frames = 75}.bytes()));
}

TEST(VbriBlock, StreamFrom2To31OnIsPassedOver) {
    EXPECT_TRUE(is_passed_over(VbriBytes{.stream = 0x80000000}.bytes()));
}

TEST(VbriBlock, CutByTheEndOfTheFileLeavesNoFrame) {
    expect_cleared(vbri({}, {.size = 36 + 17}));
}

TEST(VbriBlock, WholeAtTheEndOfTheFileIsTaken) {
    EXPECT_EQ(vbri({}, {.size = 36 + 18}).Vbr(), "VBRI");
}

TEST(VbriBlock, LetsStrictReadingTakeMpeg2) {
    const MpegBytes file{.version = 2, .body = up_to(36) + VbriBytes{}.bytes()};
    EXPECT_TRUE(header_of(file.bytes(), true).Valide());
}

} // namespace
} // namespace sonarelle
