// Length and silence of MPEG files, sample by sample.
#include "platform/audio/mpeg_source.h"

#include <gtest/gtest.h>

#include "mpeg_file_fixture.h"

namespace sonarelle {
namespace {

std::unique_ptr<SampleSource> source_of(const std::string& bytes) {
    std::unique_ptr<RecordFile> file = std::make_unique<MemoryFile>(bytes);
    return open_mpeg_source(file);
}

std::int64_t rest_of(SampleSource& source) {
    std::int64_t samples = 0;
    for (PlanarBlock block = source.read(); block.samples > 0; block = source.read())
        samples += static_cast<std::int64_t>(block.samples);
    return samples;
}

/// What is measured, and what is read then.
void expect_length(const std::string& bytes, std::int64_t samples) {
    const auto source = source_of(bytes);
    EXPECT_EQ(source->length(), samples);
    source->seek(0);
    EXPECT_EQ(rest_of(*source), samples);
}

TEST(MpegSource, TakesTheFileOnlyWhenItIsOne) {
    std::unique_ptr<RecordFile> text = std::make_unique<MemoryFile>("Ceci n'est pas une chanson.");
    EXPECT_EQ(open_mpeg_source(text), nullptr);
    EXPECT_NE(text, nullptr);
    std::unique_ptr<RecordFile> sound = std::make_unique<MemoryFile>(silent_frames(10));
    EXPECT_NE(open_mpeg_source(sound), nullptr);
    EXPECT_EQ(sound, nullptr);
}

TEST(MpegSource, HasTheRateAndChannelsOfItsFrames) {
    for (const auto& [word, rate, channels] :
         {std::tuple{silent_word, 44100, 2}, {silent_word | 0xC0, 44100, 1}, {0xFFF39400, 24000, 2}}) {
        std::string bytes;
        for (int frame = 0; frame < 10; ++frame)
            bytes += mpeg_silence_of(word);
        EXPECT_EQ(source_of(bytes)->rate(), rate);
        EXPECT_EQ(source_of(bytes)->channels(), channels);
    }
}

TEST(MpegSource, WithoutALengthHeaderLastsAsLongAsItsFrames) {
    expect_length(silent_frames(50), 50 * silent_samples);
}

TEST(MpegSource, LeavesOutWhatTheEncoderAddedAtBothEnds) {
    const std::string bytes = xing_frame(50, 51 * silent_bytes, 576, 1000) + silent_frames(50);
    expect_length(bytes, 50 * silent_samples - 576 - 1000);
    EXPECT_EQ(rest_of(*source_of(bytes)), 50 * silent_samples - 576 - 1000) << "also before it is measured";
}

TEST(MpegSource, WhoseHeaderTellsOnlyItsSilenceIsWalked) {
    expect_length(xing_frame(0, 0, 576, 1000) + silent_frames(50), 50 * silent_samples - 576 - 1000);
    expect_length(xing_frame(70, 0, 576, 1000) + silent_frames(50), 50 * silent_samples - 576 - 1000);
}

TEST(MpegSource, ThatLostItsEndPlaysAllThatIsThere) {
    expect_length(xing_frame(50, 51 * silent_bytes, 576, 1000) + silent_frames(40), 40 * silent_samples - 576 - 529);
}

TEST(MpegSource, WhoseHeaderAnnouncesMoreThanItsBytesHoldPlaysAllThatIsThere) {
    expect_length(xing_frame(500, 51 * silent_bytes, 576, 1000) + silent_frames(50), 50 * silent_samples - 576 - 529);
}

TEST(MpegSource, OfSeveralFilesPlaysAllOfThem) {
    constexpr std::uint32_t announced = 51 * silent_bytes;
    const std::string head = xing_frame(50, announced, 576, 1000);
    const auto with_bytes_behind = [&](std::int64_t more) {
        return head + silent_frames(50) + std::string(static_cast<std::size_t>(more), 'x');
    };
    constexpr std::int64_t forgiven = announced / 16 + 65536; // a text or a picture behind the sound
    EXPECT_EQ(source_of(with_bytes_behind(forgiven))->length(), 50 * silent_samples - 1576);
    EXPECT_EQ(source_of(with_bytes_behind(forgiven + 1))->length(), 50 * silent_samples - 1105);
    expect_length(head + silent_frames(400), 400 * silent_samples - 1105);
}

TEST(MpegSource, ShorterThanItsPaddingLastsNoTime) {
    expect_length(xing_frame(1, 2 * silent_bytes, 2000, 2000) + silent_frames(1), 0);
}

TEST(MpegSource, ReadsFromASeekToItsAnnouncedEnd) {
    const auto source = source_of(xing_frame(50, 51 * silent_bytes, 576, 1000) + silent_frames(50));
    const std::int64_t length = 50 * silent_samples - 1576;
    ASSERT_EQ(source->length(), length);
    for (const std::int64_t from : {0L, 1L, 575L, 576L, 20'000L, length - 1}) {
        source->seek(from);
        EXPECT_EQ(rest_of(*source), length - from) << from;
    }
    for (const std::int64_t behind : {length, length + 1, length + 100'000}) {
        source->seek(behind);
        EXPECT_EQ(rest_of(*source), 0) << behind;
    }
}

TEST(MpegSource, CountsEachBreakOnceAndPlaysSilenceForADamagedFrame) {
    std::string damaged = silent_frames(10);
    damaged.replace(5 * silent_bytes + 4, 32, 32, '\xFF'); // side information that can't be
    const auto source = source_of(damaged + "xx" + silent_frames(10));
    EXPECT_EQ(source->breaks(), 0);
    EXPECT_EQ(rest_of(*source), 20 * silent_samples);
    EXPECT_EQ(source->breaks(), 2);
}

TEST(MpegSource, CountsNoBreakThatLiesBeforeASeek) {
    const auto source = source_of(silent_frames(10) + "xx" + silent_frames(30));
    source->seek(11 * silent_samples);
    EXPECT_EQ(rest_of(*source), 29 * silent_samples);
    EXPECT_EQ(source->breaks(), 0);
    source->seek(10 * silent_samples);
    EXPECT_EQ(rest_of(*source), 30 * silent_samples);
    EXPECT_EQ(source->breaks(), 1);
}

} // namespace
} // namespace sonarelle
