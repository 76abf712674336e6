#include <vector>

#include <gtest/gtest.h>

#include "mpeg_bytes.h"
#include "mpeg_reading.h"

namespace sonarelle {
namespace {

TEST(MpegHeader, PlainStereoFrameIsRead) {
    const TypeTagMpeg header = header_of(MpegBytes{});
    EXPECT_TRUE(header.Valide());
    EXPECT_EQ(header.Taille(), 4170);
    EXPECT_EQ(header.EntetePos(), 0);
    EXPECT_EQ(header.Mpeg(), "1.0");
    EXPECT_EQ(header.Layer(), "III");
    EXPECT_EQ(header.BitRate(), 128);
    EXPECT_EQ(header.Frequence(), 44100);
    EXPECT_EQ(header.Mode(), "Stereo");
    EXPECT_EQ(header.ModeExt(), "");
    EXPECT_EQ(header.Emphasis(), "Aucun");
    EXPECT_EQ(header.Vbr(), "");
}

TEST(MpegHeader, FlagsThatAreOffAreFalse) {
    const TypeTagMpeg header = header_of(MpegBytes{});
    EXPECT_FALSE(header.CRC() || header.Padded() || header.PrivateBit() || header.Copyright() || header.Original());
}

TEST(MpegHeader, CrcIsAClearedProtectionBit) {
    EXPECT_TRUE(header_of(MpegBytes{.crc = true}).CRC());
}

TEST(MpegHeader, PaddingIsRead) {
    EXPECT_TRUE(header_of(MpegBytes{.padded = true}).Padded());
}

TEST(MpegHeader, PrivateBitIsRead) {
    EXPECT_TRUE(header_of(MpegBytes{.private_bit = true}).PrivateBit());
}

TEST(MpegHeader, CopyrightIsRead) {
    EXPECT_TRUE(header_of(MpegBytes{.copyright = true}).Copyright());
}

TEST(MpegHeader, OriginalIsRead) {
    EXPECT_TRUE(header_of(MpegBytes{.original = true}).Original());
}

TEST(MpegHeader, EmphasisHasFourTexts) {
    EXPECT_EQ(header_of(MpegBytes{.emphasis = 1}).Emphasis(), "50/15 ms");
    EXPECT_EQ(header_of(MpegBytes{.emphasis = 2}).Emphasis(), "Réservé");
    EXPECT_EQ(header_of(MpegBytes{.emphasis = 3}).Emphasis(), "CCIT J.17");
}

TEST(MpegHeader, ModesHaveFourTexts) {
    EXPECT_EQ(header_of(MpegBytes{.mode = 1}).Mode(), "Joint Stereo");
    EXPECT_EQ(header_of(MpegBytes{.mode = 2}).Mode(), "Double Cha");
    EXPECT_EQ(header_of(MpegBytes{.mode = 3}).Mode(), "Mono");
}

TEST(MpegHeader, JointStereoOfLayerIIITellsMsAndIntensity) {
    const auto extension = [](unsigned bits) {
        return header_of(MpegBytes{.mode = 1, .mode_extension = bits}).ModeExt();
    };
    EXPECT_EQ(extension(0), "Stereo : OFF - MS Stereo : OFF");
    EXPECT_EQ(extension(1), "Stereo : ON - MS Stereo : OFF");
    EXPECT_EQ(extension(2), "Stereo : OFF - MS Stereo : ON");
    EXPECT_EQ(extension(3), "Stereo : ON - MS Stereo : ON");
}

TEST(MpegHeader, JointStereoOfLayerIITellsItsBands) {
    const auto extension = [](unsigned bits) {
        return header_of(MpegBytes{.layer = 2, .mode = 1, .mode_extension = bits}).ModeExt();
    };
    EXPECT_EQ(extension(0), "Bands 4 to 31");
    EXPECT_EQ(extension(1), "Bands 8 to 31");
    EXPECT_EQ(extension(2), "Bands 12 to 31");
    EXPECT_EQ(extension(3), "Bands 16 to 31");
}

TEST(MpegHeader, JointStereoOfLayerITellsItsBands) {
    EXPECT_EQ(header_of(MpegBytes{.layer = 3, .mode = 1}).ModeExt(), "Bands 4 to 31");
}

TEST(MpegHeader, OtherModesHaveNoExtension) {
    EXPECT_EQ(header_of(MpegBytes{.mode = 3, .mode_extension = 2}).ModeExt(), "");
}

struct Rates {
    unsigned version;
    unsigned layer;
    std::vector<int> kilobits; // by index from 1 to 14
};

class RateTable : public testing::TestWithParam<Rates> {};

TEST_P(RateTable, HoldsTheRatesOfTheStandard) {
    std::vector<int> found;
    for (unsigned index = 1; index <= 14; ++index)
        found.push_back(
            header_of(MpegBytes{.version = GetParam().version, .layer = GetParam().layer, .rate = index}).BitRate());
    EXPECT_EQ(found, GetParam().kilobits);
}

const std::vector<int> low_rates{8, 16, 24, 32, 40, 48, 56, 64, 80, 96, 112, 128, 144, 160};
const std::vector<int> low_layer_i_rates{32, 48, 56, 64, 80, 96, 112, 128, 144, 160, 176, 192, 224, 256};
INSTANTIATE_TEST_SUITE_P(
    MpegHeader, RateTable,
    testing::Values(Rates{3, 1, {32, 40, 48, 56, 64, 80, 96, 112, 128, 160, 192, 224, 256, 320}},
                    Rates{3, 2, {32, 48, 56, 64, 80, 96, 112, 128, 160, 192, 224, 256, 320, 384}},
                    Rates{3, 3, {32, 64, 96, 128, 160, 192, 224, 256, 288, 320, 352, 384, 416, 448}},
                    Rates{2, 1, low_rates}, Rates{2, 2, low_rates}, Rates{2, 3, low_layer_i_rates},
                    Rates{0, 1, low_rates}, Rates{0, 2, low_rates}, Rates{0, 3, low_layer_i_rates}));

TEST(MpegHeader, FrequenciesFollowTheVersion) {
    const auto hertz = [](unsigned version, unsigned column) {
        return header_of(MpegBytes{.version = version, .frequency = column}).Frequence();
    };
    EXPECT_EQ((std::vector{hertz(3, 0), hertz(3, 1), hertz(3, 2)}), (std::vector{44100, 48000, 32000}));
    EXPECT_EQ((std::vector{hertz(2, 0), hertz(2, 1), hertz(2, 2)}), (std::vector{22050, 24000, 16000}));
    EXPECT_EQ((std::vector{hertz(0, 0), hertz(0, 1), hertz(0, 2)}), (std::vector{11025, 12000, 8000}));
}

TEST(MpegHeader, VersionsAndLayersHaveTheirTexts) {
    EXPECT_EQ(header_of(MpegBytes{.version = 0}).Mpeg(), "2.5");
    EXPECT_EQ(header_of(MpegBytes{.version = 2}).Mpeg(), "2.0");
    EXPECT_EQ(header_of(MpegBytes{.layer = 2}).Layer(), "II");
    EXPECT_EQ(header_of(MpegBytes{.layer = 3}).Layer(), "I");
}

TEST(MpegHeader, FramesCountWholeBytesAFrame) {
    EXPECT_EQ(header_of(MpegBytes{.size = 2084}).Frames(), 4);
    EXPECT_EQ(header_of(MpegBytes{.size = 2085}).Frames(), 5);
}

TEST(MpegHeader, PaddingCountsOnceAFile) {
    EXPECT_EQ(header_of(MpegBytes{.padded = true, .size = 2085}).Frames(), 6);
}

TEST(MpegHeader, FramesOfLayerICountSlotsNotBytes) {
    // 288 kbit/s * 12 / 44.1 kHz is 78.3.
    EXPECT_EQ(header_of(MpegBytes{.layer = 3, .size = 780}).Frames(), 10);
}

TEST(MpegHeader, FramesCountTheBytesInFrontToo) {
    EXPECT_EQ(header_of(std::string(417, 'x') + MpegBytes{.size = 417}.bytes()).Frames(), 2);
}

TEST(MpegHeader, DurationIsWholeSeconds) {
    EXPECT_EQ(header_of(MpegBytes{.size = 47'999}).Duree(), 2);
    EXPECT_EQ(header_of(MpegBytes{.size = 48'000}).Duree(), 3);
}

TEST(MpegHeader, DurationLeavesOutTheBytesInFront) {
    EXPECT_EQ(header_of(std::string(1000, 'x') + MpegBytes{.size = 16'000}.bytes()).Duree(), 1);
}

TEST(MpegHeader, StrictReadingTakesLayerIII) {
    EXPECT_TRUE(header_of(MpegBytes{}, true).Valide());
}

TEST(MpegHeader, StrictReadingTakesLayerII) {
    EXPECT_TRUE(header_of(MpegBytes{.layer = 2}, true).Valide());
}

TEST(MpegHeader, StrictReadingTakesMpeg25) {
    EXPECT_TRUE(header_of(MpegBytes{.version = 0}, true).Valide());
}

TEST(MpegHeader, StrictReadingRefusesLayerI) {
    expect_cleared(header_of(MpegBytes{.layer = 3}, true));
}

TEST(MpegHeader, StrictReadingRefusesMpeg2OfConstantRate) {
    std::string frames;
    for (int i = 0; i < 200; ++i)
        frames += MpegBytes{.version = 2, .size = 417}.bytes();
    expect_cleared(header_of(frames, true));
}

TEST(MpegHeader, PlainReadingTakesLayerI) {
    EXPECT_TRUE(header_of(MpegBytes{.layer = 3}).Valide());
}

TEST(MpegHeader, PlainReadingTakesMpeg2OfConstantRate) {
    EXPECT_TRUE(header_of(MpegBytes{.version = 2}).Valide());
}

} // namespace
} // namespace sonarelle
