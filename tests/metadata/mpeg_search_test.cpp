#include <gtest/gtest.h>

#include "mpeg_bytes.h"
#include "mpeg_reading.h"
#include "platform/failure.h"

namespace sonarelle {
namespace {

/// A candidate that is passed over, with a sound frame behind it.
void expect_passed_over(const std::string& candidate, bool strict = false) {
    const TypeTagMpeg header = header_of(candidate + MpegBytes{}.bytes(), strict);
    EXPECT_TRUE(header.Valide());
    EXPECT_EQ(header.EntetePos(), static_cast<std::int32_t>(candidate.size()));
}

std::string candidate(unsigned h0, unsigned h1) {
    return std::string{'\xFF', MpegBytes::byte(h0), MpegBytes::byte(h1), '\0'};
}

TEST(MpegSearch, EmptyFileHasNoFrame) {
    expect_cleared(header_of(""));
}

TEST(MpegSearch, FileOfOneByteHasNoFrame) {
    expect_cleared(header_of("\xFF"));
}

TEST(MpegSearch, FileWithoutAnFfHasNoFrame) {
    expect_cleared(header_of(std::string(100'000, 'x')));
}

TEST(MpegSearch, HeaderCutByTheEndOfTheFileIsRefused) {
    expect_cleared(header_of(MpegBytes{.size = 3}.bytes()));
}

TEST(MpegSearch, FrameTooShortForABlockOfVariableRateIsRefused) {
    expect_cleared(header_of(MpegBytes{.size = 39}.bytes()));
}

TEST(MpegSearch, FrameOf40BytesIsTaken) {
    EXPECT_TRUE(header_of(MpegBytes{.size = 40}.bytes()).Valide());
}

TEST(MpegSearch, MonoFrameIsLookedAtAsFarAsAStereoOne) {
    expect_cleared(header_of(MpegBytes{.mode = 3, .size = 39}.bytes()));
}

TEST(MpegSearch, MissingFileIsAFailureOfTheCaller) {
    MusicDisk on_disk;
    try {
        (void)TypeTagMpeg{on_disk.disk}.LireEntete(song);
        FAIL() << "no failure";
    } catch (const Failure& failure) {
        EXPECT_EQ(failure.number, FailureNumber::path_not_found);
    }
}

TEST(MpegSearch, FailedOpeningLeavesTheRecordCleared) {
    MusicDisk on_disk{MpegBytes{}.bytes()};
    TypeTagMpeg header{on_disk.disk};
    (void)header.LireEntete(song);
    on_disk.disk.Kill(song);
    EXPECT_THROW((void)header.LireEntete(song), Failure);
    expect_cleared(header);
}

TEST(MpegSearch, RecordHoldsTheSameAsTheResult) {
    MusicDisk on_disk{MpegBytes{}.bytes()};
    TypeTagMpeg header{on_disk.disk};
    const TypeTagMpeg result = header.LireEntete(song);
    EXPECT_EQ(header.Taille(), result.Taille());
    EXPECT_EQ(header.Frames(), result.Frames());
    EXPECT_EQ(header.Mode(), result.Mode());
}

TEST(MpegSearch, NothingOfAnEarlierFileStays) {
    MusicDisk on_disk{MpegBytes{}.bytes()};
    TypeTagMpeg header{on_disk.disk};
    (void)header.LireEntete(song);
    on_disk.disk.put_file(song, "xxxx");
    expect_cleared(header.LireEntete(song));
}

TEST(MpegSearch, Ff00IsNoCandidate) {
    expect_passed_over(candidate(0x00, 0x90));
}

TEST(MpegSearch, ReservedLayerIsPassedOver) {
    expect_passed_over(candidate(0x01, 0x90));
}

TEST(MpegSearch, ReservedVersionIsPassedOver) {
    expect_passed_over(candidate(0xEB, 0x90));
}

TEST(MpegSearch, HighBitsOfTheSyncDoNotMatter) {
    std::string bytes = MpegBytes{}.bytes();
    bytes[1] = MpegBytes::byte(0x1B);
    EXPECT_EQ(header_of(bytes).Layer(), "III");
}

TEST(MpegSearch, FreeFormatIsPassedOver) {
    expect_passed_over(candidate(0xFB, 0x00));
}

TEST(MpegSearch, RateIndex15IsPassedOver) {
    expect_passed_over(candidate(0xFB, 0xF0));
}

TEST(MpegSearch, FrequencyIndex3IsPassedOver) {
    expect_passed_over(candidate(0xFB, 0x9C));
}

TEST(MpegSearch, FrequencyIndex3OfLayerIIsPassedOver) {
    expect_passed_over(candidate(0xFF, 0x9C));
}

TEST(MpegSearch, LayerIIsPassedOverWhenStrict) {
    expect_passed_over(MpegBytes{.layer = 3, .size = 100}.bytes(), true);
}

TEST(MpegSearch, ByteRightBehindARefusedFfIsLookedAt) {
    expect_passed_over("\xFF");
}

TEST(MpegSearch, RunOfFfEndsAtTheFrame) {
    expect_passed_over(std::string(40'000, '\xFF'));
}

TEST(MpegSearch, SizeIsThatOfTheWholeFile) {
    EXPECT_EQ(header_of(std::string(1000, 'x') + MpegBytes{.size = 500}.bytes()).Taille(), 1500);
}

// The search looks through the file in pieces; a frame may lie across their border.
class FrameBehindJunk : public testing::TestWithParam<std::size_t> {};

TEST_P(FrameBehindJunk, IsFound) {
    EXPECT_EQ(header_of(std::string(GetParam(), 'x') + MpegBytes{}.bytes()).EntetePos(),
              static_cast<std::int32_t>(GetParam()));
}

TEST_P(FrameBehindJunk, HasItsBlockOfVariableRate) {
    const MpegBytes file{.body = up_to(36) + XingBytes{}.bytes()};
    EXPECT_EQ(header_of(std::string(GetParam(), 'x') + file.bytes()).Vbr(), "VBR");
}

INSTANTIATE_TEST_SUITE_P(MpegSearch, FrameBehindJunk,
                         testing::Values(16'380, 16'381, 16'382, 16'383, 16'384, 16'385, 16'340, 32'767, 200'000));

TEST(MpegSearch, BadPlaceBehindTheHeaderDoesNotMatter) {
    MusicDisk on_disk{MpegBytes{}.bytes()};
    on_disk.disk.fail_read_at(song, 40);
    EXPECT_TRUE(TypeTagMpeg{on_disk.disk}.LireEntete(song).Valide());
}

TEST(MpegSearch, BadPlaceInTheHeaderLeavesNoFrame) {
    MusicDisk on_disk{MpegBytes{}.bytes()};
    on_disk.disk.fail_read_at(song, 39);
    expect_cleared(TypeTagMpeg{on_disk.disk}.LireEntete(song));
}

TEST(MpegSearch, SearchEndsAtABadPlace) {
    MusicDisk on_disk{std::string(50'000, 'x') + MpegBytes{}.bytes()};
    on_disk.disk.fail_read_at(song, 20'000);
    expect_cleared(TypeTagMpeg{on_disk.disk}.LireEntete(song));
}

} // namespace
} // namespace sonarelle
