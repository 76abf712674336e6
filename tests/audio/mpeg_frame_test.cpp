// What the heads of MPEG frames and of their length headers say.
#include "platform/audio/mpeg_frame.h"

#include <gtest/gtest.h>

#include <string>

#include "memory_file.h"

namespace sonarelle {
namespace {

/// A head by the numbers of the standard's own tables.
struct Head {
    std::uint32_t version = 3;
    std::uint32_t layer = 1;
    std::uint32_t bit_rate = 9;
    std::uint32_t rate = 0;
    std::uint32_t padding = 0;
    std::uint32_t mode = 0;

    [[nodiscard]] std::uint32_t word() const {
        return 0x7FFU << 21 | version << 19 | layer << 17 | 1U << 16 | bit_rate << 12 | rate << 10 | padding << 9 |
               mode << 6;
    }
};

/// What a pair of version and layer has: ISO 11172-3, ISO 13818-3 and the half rates below them.
struct Kind {
    std::uint32_t version_code;
    std::uint32_t layer_code;
    int version;
    int layer;
    std::array<int, 3> rates;
    std::size_t samples;
    std::size_t slot_bytes;
    std::array<std::size_t, 2> side_info; ///< Of two channels and of one.
    std::array<int, 14> kilobits;
};

constexpr std::array<int, 14> slow_layer_one{32, 48, 56, 64, 80, 96, 112, 128, 144, 160, 176, 192, 224, 256};
constexpr std::array<int, 14> slow_others{8, 16, 24, 32, 40, 48, 56, 64, 80, 96, 112, 128, 144, 160};
constexpr std::array<int, 3> full{44100, 48000, 32000};
constexpr std::array<int, 3> half{22050, 24000, 16000};
constexpr std::array<int, 3> quarter{11025, 12000, 8000};

constexpr std::array<Kind, 9> kinds{{
    {3, 3, 1, 1, full, 384, 4, {0, 0}, {32, 64, 96, 128, 160, 192, 224, 256, 288, 320, 352, 384, 416, 448}},
    {3, 2, 1, 2, full, 1152, 1, {0, 0}, {32, 48, 56, 64, 80, 96, 112, 128, 160, 192, 224, 256, 320, 384}},
    {3, 1, 1, 3, full, 1152, 1, {32, 17}, {32, 40, 48, 56, 64, 80, 96, 112, 128, 160, 192, 224, 256, 320}},
    {2, 3, 2, 1, half, 384, 4, {0, 0}, slow_layer_one},
    {2, 2, 2, 2, half, 1152, 1, {0, 0}, slow_others},
    {2, 1, 2, 3, half, 576, 1, {17, 9}, slow_others},
    {0, 3, 25, 1, quarter, 384, 4, {0, 0}, slow_layer_one},
    {0, 2, 25, 2, quarter, 1152, 1, {0, 0}, slow_others},
    {0, 1, 25, 3, quarter, 576, 1, {17, 9}, slow_others},
}};

/// As many whole slots as the bit rate gives in the time of the frame's samples, and the one of padding.
std::size_t bytes_of(const Kind& kind, std::size_t bit_rate, std::size_t rate, std::size_t padding) {
    const std::size_t bits = kind.samples * static_cast<std::size_t>(kind.kilobits[bit_rate - 1]) * 1000;
    return (bits / (static_cast<std::size_t>(kind.rates[rate]) * 8 * kind.slot_bytes) + padding) * kind.slot_bytes;
}

TEST(MpegFrame, OfEveryVersionLayerAndRateIsAsTheStandardHasIt) {
    for (const Kind& kind : kinds)
        for (std::uint32_t bit_rate = 1; bit_rate <= 14; ++bit_rate)
            for (const std::uint32_t rate : {0U, 1U, 2U})
                for (const std::uint32_t padding : {0U, 1U}) {
                    const Head head{kind.version_code, kind.layer_code, bit_rate, rate, padding};
                    const auto frame = mpeg_frame(head.word());
                    ASSERT_TRUE(frame) << std::hex << head.word();
                    EXPECT_EQ(frame->version, kind.version);
                    EXPECT_EQ(frame->layer, kind.layer);
                    EXPECT_EQ(frame->rate, kind.rates[rate]);
                    EXPECT_EQ(frame->samples, kind.samples);
                    EXPECT_EQ(frame->bytes, bytes_of(kind, bit_rate, rate, padding)) << std::hex << head.word();
                }
}

TEST(MpegFrame, HasOneChannelInTheLastModeAlone) {
    for (const Kind& kind : kinds)
        for (const std::uint32_t mode : {0U, 1U, 2U, 3U}) {
            const auto frame = mpeg_frame(Head{kind.version_code, kind.layer_code, 9, 0, 0, mode}.word());
            ASSERT_TRUE(frame);
            EXPECT_EQ(frame->channels, mode == 3 ? 1 : 2);
            EXPECT_EQ(frame->side_info, kind.side_info[mode == 3 ? 1 : 0]);
        }
}

TEST(MpegFrame, IsNothingWithoutItsSyncOrWithAReservedNumber) {
    const std::uint32_t good = Head{}.word();
    ASSERT_TRUE(mpeg_frame(good));
    EXPECT_FALSE(mpeg_frame(good & ~(1U << 31)));
    EXPECT_FALSE(mpeg_frame(good & ~(1U << 21)));
    EXPECT_FALSE(mpeg_frame(Head{.version = 1}.word()));
    EXPECT_FALSE(mpeg_frame(Head{.layer = 0}.word()));
    EXPECT_FALSE(mpeg_frame(Head{.rate = 3}.word()));
    EXPECT_FALSE(mpeg_frame(Head{.bit_rate = 15}.word()));
    EXPECT_FALSE(mpeg_frame(Head{.bit_rate = 0}.word())) << "the free format";
}

TEST(MpegFrame, IsOfOneStreamWithAnotherBitRatePaddingOrMode) {
    const std::uint32_t word = Head{}.word();
    EXPECT_TRUE(same_mpeg_stream(word, Head{.bit_rate = 3}.word()));
    EXPECT_TRUE(same_mpeg_stream(word, Head{.padding = 1}.word()));
    EXPECT_TRUE(same_mpeg_stream(word, Head{.mode = 3}.word()));
    EXPECT_TRUE(same_mpeg_stream(word, word & ~(1U << 16))) << "with a checksum";
    EXPECT_FALSE(same_mpeg_stream(word, Head{.version = 2}.word()));
    EXPECT_FALSE(same_mpeg_stream(word, Head{.layer = 2}.word()));
    EXPECT_FALSE(same_mpeg_stream(word, Head{.rate = 1}.word()));
    EXPECT_FALSE(same_mpeg_stream(word, word & ~(1U << 21)));
}

TEST(MpegFrame, TakesLeastAtItsLowestBitRateWithoutPadding) {
    EXPECT_EQ(least_mpeg_bytes(Head{.bit_rate = 14, .padding = 1}.word(), 1000), 104'000); // 32 kbit/s at 44.1 kHz
    EXPECT_EQ(least_mpeg_bytes(Head{.version = 2, .bit_rate = 14}.word(), 3), 3 * 26);     // 8 kbit/s at 22.05 kHz
    EXPECT_EQ(least_mpeg_bytes(Head{.rate = 3}.word(), 1000), 0);
}

/// A first frame with something in the place of its main data.
class LengthHeader : public testing::Test {
protected:
    [[nodiscard]] std::optional<MpegLengthHeader> read(const std::string& content) const {
        std::string bytes(frame.bytes, '\0');
        bytes.replace(4 + frame.side_info, content.size(), content);
        return mpeg_length_header(frame, reinterpret_cast<const std::uint8_t*>(bytes.data()));
    }
    /// The end of a Xing header: the encoder, 20 bytes of other things in all, and the gaps.
    [[nodiscard]] static std::string encoder(const std::string& name, std::uint32_t start, std::uint32_t end) {
        return name + std::string(17, '\xEE') + big_endian(start << 12 | end, 3);
    }
    void expect(const std::optional<MpegLengthHeader>& header, const MpegLengthHeader& expected) const {
        ASSERT_TRUE(header);
        EXPECT_EQ(header->frames, expected.frames);
        EXPECT_EQ(header->bytes, expected.bytes);
        EXPECT_EQ(header->start_skip, expected.start_skip);
        EXPECT_EQ(header->end_padding, expected.end_padding);
    }

    MpegFrame frame = mpeg_frame(Head{}.word()).value();
};

const std::string frames_of_7 = big_endian(7, 4);
const std::string bytes_of_9000 = big_endian(9000, 4);
const std::string contents(100, '\xAA');
const std::string quality = big_endian(80, 4);

TEST_F(LengthHeader, TellsFramesBytesAndTheSilenceOfTheEncoder) {
    const std::string all = big_endian(15, 4) + frames_of_7 + bytes_of_9000 + contents + quality;
    for (const char* word : {"Xing", "Info"})
        for (const char* name : {"LAME3", "Lavf5", "Lavc6"})
            expect(read(word + all + encoder(std::string{name}.substr(0, 4), 576, 1105)), {7, 9000, 576 + 529, 576});
}

TEST_F(LengthHeader, TellsEachOfItsFieldsByItsOwnFlag) {
    const std::string gaps = encoder("LAME", 100, 600);
    expect(read("Xing" + big_endian(0, 4) + gaps), {0, 0, 629, 71});
    expect(read("Xing" + big_endian(1, 4) + frames_of_7 + gaps), {7, 0, 629, 71});
    expect(read("Xing" + big_endian(2, 4) + bytes_of_9000 + gaps), {0, 9000, 629, 71});
    expect(read("Xing" + big_endian(4, 4) + contents + gaps), {0, 0, 629, 71});
    expect(read("Xing" + big_endian(8, 4) + quality + gaps), {0, 0, 629, 71});
}

TEST_F(LengthHeader, TellsNoSilenceOfAnUnknownEncoder) {
    expect(read("Xing" + big_endian(3, 4) + frames_of_7 + bytes_of_9000 + encoder("GOGO", 576, 1105)), {7, 9000, 0, 0});
}

TEST_F(LengthHeader, TellsNoPaddingThatTheDecodersOwnDelayUsesUp) {
    expect(read("Xing" + big_endian(0, 4) + encoder("LAME", 0, 528)), {0, 0, 529, 0});
    expect(read("Xing" + big_endian(0, 4) + encoder("LAME", 4095, 4095)), {0, 0, 4095 + 529, 4095 - 529});
}

TEST_F(LengthHeader, OfTheOtherKindLiesAtItsOwnPlace) {
    frame = mpeg_frame(Head{.mode = 3}.word()).value(); // where Xing's place would be another one
    const std::string before(32 - frame.side_info, '\0');
    expect(read(before + "VBRI" + std::string(6, '\xEE') + bytes_of_9000 + frames_of_7), {7, 9000, 0, 0});
}

TEST_F(LengthHeader, LiesBehindTheSideInformationOfItsVersion) {
    for (const Head& head : {Head{.mode = 3}, Head{.version = 2}, Head{.version = 2, .mode = 3}}) {
        frame = mpeg_frame(head.word()).value();
        expect(read("Info" + big_endian(1, 4) + frames_of_7), {7, 0, 0, 0});
    }
}

TEST_F(LengthHeader, IsOnlyInLayerThree) {
    frame = mpeg_frame(Head{.layer = 2}.word()).value();
    EXPECT_FALSE(read("Xing" + big_endian(1, 4) + frames_of_7));
}

TEST_F(LengthHeader, IsNothingWithoutItsWord) {
    EXPECT_FALSE(read("Xinf" + big_endian(1, 4) + frames_of_7));
}

/// A header of which the end of the frame cuts something off.
class CutLengthHeader : public LengthHeader {
protected:
    // The rest of the file behind the frame, which a header must not read.
    [[nodiscard]] std::optional<MpegLengthHeader> read_cut(const std::string& content, std::size_t kept,
                                                           std::size_t place) {
        std::string bytes(place, '\0');
        bytes += content + std::string(200, '\x11');
        frame.bytes = place + kept;
        return mpeg_length_header(frame, reinterpret_cast<const std::uint8_t*>(bytes.data()));
    }
    const std::size_t xing = 4 + 32;
};

TEST_F(CutLengthHeader, IsReadAsFarAsTheFrameGoes) {
    const std::string header = "Xing" + big_endian(3, 4) + frames_of_7 + bytes_of_9000;
    EXPECT_FALSE(read_cut(header, 7, xing));
    expect(read_cut(header, 8, xing), {0, 0, 0, 0});
    expect(read_cut(header, 11, xing), {0, 0, 0, 0});
    expect(read_cut(header, 12, xing), {7, 0, 0, 0});
    expect(read_cut(header, 16, xing), {7, 9000, 0, 0});
}

TEST_F(CutLengthHeader, TellsItsSilenceOnlyWhole) {
    const std::string header = "Xing" + big_endian(0, 4) + encoder("LAME", 100, 600);
    expect(read_cut(header, header.size() - 1, xing), {0, 0, 0, 0});
    expect(read_cut(header, header.size(), xing), {0, 0, 629, 71});
}

TEST_F(CutLengthHeader, OfTheOtherKindIsReadWhole) {
    const std::string header = "VBRI" + std::string(6, '\xEE') + bytes_of_9000 + frames_of_7;
    EXPECT_FALSE(read_cut(header, header.size() - 1, xing));
    expect(read_cut(header, header.size(), xing), {7, 9000, 0, 0});
}

} // namespace
} // namespace sonarelle
