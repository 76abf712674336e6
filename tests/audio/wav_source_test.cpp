// Plain samples of every depth, and which WAV files are left to others.
#include "platform/audio/wav_source.h"

#include <gtest/gtest.h>

#include <cmath>

#include "memory_file.h"

namespace sonarelle {
namespace {

using namespace std::string_literals;

/// The format chunk of a WAV file, with what its fields should be unless a test says otherwise.
struct WavFormat {
    std::uint32_t format = 1;
    std::uint32_t channels = 1;
    std::uint32_t rate = 44100;
    std::uint32_t bits = 16;
    std::uint32_t frame_bytes = channels * bits / 8;

    [[nodiscard]] std::string chunk() const {
        return "fmt " + little_endian(16, 4) + little_endian(format, 2) + little_endian(channels, 2) +
               little_endian(rate, 4) + little_endian(rate * frame_bytes, 4) + little_endian(frame_bytes, 2) +
               little_endian(bits, 2);
    }
    /// The longer chunk, in which the format proper stands behind.
    [[nodiscard]] std::string extensible_chunk(std::uint32_t size = 40) const {
        const WavFormat outer{.format = 0xFFFE, .channels = channels, .rate = rate, .bits = bits};
        std::string chunk = outer.chunk() + little_endian(22, 2) + little_endian(bits, 2) + little_endian(0, 4) +
                            little_endian(format, 2) + std::string(14, '\x55');
        return chunk.replace(4, 4, little_endian(size, 4));
    }
};

std::string data_chunk(const std::string& sound) {
    return "data" + little_endian(sound.size(), 4) + sound;
}

std::string wav(const std::string& chunks) {
    return "RIFF" + little_endian(4 + chunks.size(), 4) + "WAVE" + chunks;
}

std::unique_ptr<SampleSource> source_of(const std::string& bytes) {
    std::unique_ptr<RecordFile> file = std::make_unique<MemoryFile>(bytes);
    auto source = open_wav_source(file);
    EXPECT_EQ(file == nullptr, source != nullptr) << "the file is taken only when it is one";
    return source;
}

std::array<std::vector<float>, 2> samples_of(SampleSource& source) {
    std::array<std::vector<float>, 2> samples;
    for (PlanarBlock block = source.read(); block.samples > 0; block = source.read())
        for (std::size_t channel = 0; channel < 2; ++channel)
            samples[channel].insert(samples[channel].end(), block.channel[channel],
                                    block.channel[channel] + block.samples);
    return samples;
}

std::vector<float> mono(const WavFormat& format, const std::string& sound) {
    const auto source = source_of(wav(format.chunk() + data_chunk(sound)));
    return source == nullptr ? std::vector<float>{} : samples_of(*source)[0];
}

std::string in_bytes(auto value) {
    return {reinterpret_cast<const char*>(&value), sizeof value};
}

TEST(WavSource, OfEveryDepthGivesItsSamplesBetweenMinusOneAndOne) {
    const std::vector<float> expected{0.0F, 0.5F, -0.5F, -1.0F, 0.25F};
    EXPECT_EQ(mono({.bits = 8}, "\x80\xC0\x40"s + '\0' + "\xA0"), expected);
    std::string deep, deeper, deepest, real, longer;
    for (const float sample : expected) {
        deep += little_endian(static_cast<std::uint64_t>(std::lrint(sample * 32768)), 2);
        deeper += little_endian(static_cast<std::uint64_t>(std::lrint(sample * 8388608)), 3);
        deepest += little_endian(static_cast<std::uint64_t>(std::llrint(sample * 2147483648.0)), 4);
        real += in_bytes(sample);
        longer += in_bytes(double{sample});
    }
    EXPECT_EQ(mono({.bits = 16}, deep), expected);
    EXPECT_EQ(mono({.bits = 24}, deeper), expected);
    EXPECT_EQ(mono({.bits = 32}, deepest), expected);
    EXPECT_EQ(mono({.format = 3, .bits = 32}, real), expected);
    EXPECT_EQ(mono({.format = 3, .bits = 64}, longer), expected);
}

TEST(WavSource, GivesTheSmallestStepOfEachDepth) {
    EXPECT_EQ(mono({.bits = 8}, "\x81"), std::vector<float>{1.0F / 128});
    EXPECT_EQ(mono({.bits = 16}, little_endian(1, 2)), std::vector<float>{1.0F / 32768});
    EXPECT_EQ(mono({.bits = 24}, little_endian(0xFFFFFF, 3)), std::vector<float>{-1.0F / 8388608});
    EXPECT_EQ(mono({.bits = 32}, little_endian(1, 4)), std::vector<float>{1.0F / 2147483648.0F});
}

TEST(WavSource, GivesEachChannelItsSamples) {
    for (const std::uint32_t bits : {16U, 24U}) {
        std::string sound;
        std::array<std::vector<float>, 2> expected;
        for (int frame = 0; frame < 10'000; ++frame) {
            sound += little_endian(0, bits / 8 - 2) + little_endian(static_cast<std::uint64_t>(frame), 2);
            sound += little_endian(0, bits / 8 - 2) + little_endian(static_cast<std::uint64_t>(-frame), 2);
            expected[0].push_back(static_cast<float>(frame) / 32768);
            expected[1].push_back(static_cast<float>(-frame) / 32768);
        }
        const auto source = source_of(wav(WavFormat{.channels = 2, .bits = bits}.chunk() + data_chunk(sound)));
        ASSERT_NE(source, nullptr);
        EXPECT_EQ(source->channels(), 2);
        EXPECT_EQ(source->length(), 10'000);
        EXPECT_EQ(samples_of(*source), expected);
    }
}

TEST(WavSource, OfOneChannelHasItTwice) {
    const auto source = source_of(wav(WavFormat{}.chunk() + data_chunk(little_endian(16384, 2))));
    EXPECT_EQ(source->channels(), 1);
    const auto samples = samples_of(*source);
    EXPECT_EQ(samples[0], std::vector<float>{0.5F});
    EXPECT_EQ(samples[1], samples[0]);
}

TEST(WavSource, ReadsFromTheSampleThatWasSought) {
    std::string sound;
    for (std::uint64_t sample = 0; sample < 9000; ++sample)
        sound += little_endian(sample, 2);
    const auto source = source_of(wav(WavFormat{}.chunk() + data_chunk(sound)));
    for (const std::int64_t from : {8999, 1, 5000, 0}) {
        source->seek(from);
        const auto samples = samples_of(*source)[0];
        EXPECT_EQ(samples.size(), static_cast<std::size_t>(9000 - from));
        EXPECT_EQ(samples.front(), static_cast<float>(from) / 32768);
    }
    source->seek(20'000);
    EXPECT_EQ(source->read().samples, 0U);
    source->seek(-5);
    EXPECT_EQ(samples_of(*source)[0].size(), 9000U);
    EXPECT_EQ(source->breaks(), 0);
}

const std::string one_second = std::string(std::size_t{44100} * 2, 's');

std::int64_t length_of(const std::string& bytes) {
    const auto source = source_of(bytes);
    return source == nullptr ? -1 : source->length();
}

TEST(WavSource, PassesOverOtherChunksByTheirEvenLength) {
    const std::string odd = "LIST" + little_endian(5, 4) + "12345" + '\0';
    const std::string even = "junk" + little_endian(600, 4) + std::string(600, 'd');
    EXPECT_EQ(length_of(wav(odd + even + WavFormat{}.chunk() + odd + data_chunk(one_second) + even)), 44100);
    EXPECT_EQ(length_of(wav(std::string(8, '\0') + WavFormat{}.chunk() + data_chunk(one_second))), 44100);
}

TEST(WavSource, LastsNoLongerThanWhatItHolds) {
    const std::string whole = wav(WavFormat{.channels = 2}.chunk() + data_chunk(one_second));
    EXPECT_EQ(length_of(whole), 22050);
    EXPECT_EQ(length_of(whole.substr(0, whole.size() - 1)), 22049);
    EXPECT_EQ(length_of(whole.substr(0, whole.size() - 4)), 22049);
    EXPECT_EQ(length_of(whole.substr(0, whole.size() - one_second.size())), 0);
}

TEST(WavSource, OfTheLongFormHasTheLengthThatStandsInItsFirstChunk) {
    const auto long_form = [](std::uint64_t data_bytes, std::uint32_t short_size) {
        const std::string sizes =
            "ds64" + little_endian(28, 4) + little_endian(0, 8) + little_endian(data_bytes, 8) + little_endian(0, 12);
        return "RF64" + std::string(4, '\xFF') + "WAVE" + sizes + WavFormat{}.chunk() + "data" +
               little_endian(short_size, 4) + one_second;
    };
    EXPECT_EQ(length_of(long_form(20'000, UINT32_MAX)), 10'000);
    EXPECT_EQ(length_of(long_form(20'000, 6000)), 3000);
    EXPECT_EQ(length_of(long_form((1ULL << 32) + 20'000, UINT32_MAX)), 44100) << "all that is there";
    EXPECT_EQ(length_of(long_form(0, UINT32_MAX)), 44100);
}

TEST(WavSource, OfTheExtensibleFormHasTheFormatThatStandsBehind) {
    const auto with = [](const std::string& format) { return wav(format + data_chunk(one_second)); };
    EXPECT_EQ(length_of(with(WavFormat{}.extensible_chunk())), 44100);
    EXPECT_EQ(length_of(with(WavFormat{.format = 3, .bits = 32}.extensible_chunk())), 22050);
    EXPECT_EQ(length_of(with(WavFormat{.format = 6}.extensible_chunk())), -1);
    const std::string short_one = WavFormat{}.extensible_chunk(38);
    EXPECT_EQ(length_of(with(short_one.substr(0, short_one.size() - 2))), -1);
}

TEST(WavSource, LeavesToOthersWhatHasNoPlainSamples) {
    const auto is_plain = [](const WavFormat& format) {
        return length_of(wav(format.chunk() + data_chunk(one_second))) >= 0;
    };
    EXPECT_TRUE(is_plain({}));
    for (const std::uint32_t format : {0U, 2U, 6U, 7U, 0x55U, 0xFFFEU})
        EXPECT_FALSE(is_plain({.format = format})) << format;
    for (const std::uint32_t bits : {0U, 4U, 12U, 20U, 40U, 64U})
        EXPECT_FALSE(is_plain({.bits = bits})) << bits;
    for (const std::uint32_t bits : {8U, 16U, 24U, 48U})
        EXPECT_FALSE(is_plain({.format = 3, .bits = bits})) << bits;
    for (const std::uint32_t channels : {0U, 3U, 6U})
        EXPECT_FALSE(is_plain({.channels = channels})) << channels;
    for (const std::uint32_t rate : {0U, 999U, 384'001U, 1'000'001U, 0xFFFFFFFFU})
        EXPECT_FALSE(is_plain({.rate = rate})) << rate;
    for (const std::uint32_t rate : {1000U, 384'000U})
        EXPECT_TRUE(is_plain({.rate = rate})) << rate;
    EXPECT_FALSE(is_plain({.frame_bytes = 3}));
}

TEST(WavSource, LeavesToOthersWhatIsNoWholeWav) {
    const std::string good = wav(WavFormat{}.chunk() + data_chunk(one_second));
    EXPECT_EQ(length_of(good), 44100);
    EXPECT_EQ(length_of(std::string{good}.replace(0, 4, "RIFX")), -1);
    EXPECT_EQ(length_of(std::string{good}.replace(8, 4, "AVI ")), -1);
    EXPECT_EQ(length_of(good.substr(0, 11)), -1);
    EXPECT_EQ(length_of(good.substr(0, 12)), -1);
    EXPECT_EQ(length_of(good.substr(0, 40)), -1) << "without its sound";
    EXPECT_EQ(length_of(wav(data_chunk(one_second) + WavFormat{}.chunk())), -1) << "without its format before";
    EXPECT_EQ(length_of(wav(WavFormat{}.chunk().replace(4, 4, little_endian(15, 4)) + data_chunk(one_second))), -1);
}

TEST(WavSource, TellsItsRate) {
    for (const std::uint32_t rate : {8000U, 44100U, 96000U})
        EXPECT_EQ(source_of(wav(WavFormat{.rate = rate}.chunk() + data_chunk(one_second)))->rate(), int(rate));
}

} // namespace
} // namespace sonarelle
