#include <gtest/gtest.h>

#include <fstream>

#include "platform/audio/feeder.h"
#include "sound_fixture.h"

namespace sonarelle {
namespace {

class FedStream : public testing::Test {
protected:
    void feed(const std::string& path, Frames start, Frames end, std::vector<float> opening = {}) {
        feeder = std::make_unique<Feeder>(decoder_of(path), std::move(opening), troubles);
        stream = std::make_shared<SampleStream>(start, end, std::size_t{65536}, troubles);
        feeder->play(stream, 0);
    }
    void work() {
        while (feeder->step()) {
        }
    }
    [[nodiscard]] float left(std::int64_t frame) { return stream->look(Frames{frame}, 1).first[0]; }

    SoundFolder folder;
    std::shared_ptr<SoundTroubles> troubles = std::make_shared<SoundTroubles>();
    std::unique_ptr<Feeder> feeder;
    std::shared_ptr<SampleStream> stream;
};

TEST_F(FedStream, IsFullAndThenWaits) {
    feed(folder.counting_wav("a.wav", 3), Frames{0}, seconds(3));
    work();
    EXPECT_EQ(stream->buffered(), 65536);
    EXPECT_FALSE(stream->finished());
    EXPECT_EQ(left(5000), counted(5000));
}

TEST_F(FedStream, BeginsInTheMidstOfTheFile) {
    feed(folder.counting_wav("a.wav", 1), Frames{7000}, seconds(1));
    work();
    EXPECT_EQ(left(7000), counted(7000));
    EXPECT_EQ(stream->produced(), 41000);
    EXPECT_TRUE(stream->finished());
}

TEST_F(FedStream, SoundsAtOnceWithWhatWasDecodedAtTheOpening) {
    feed(folder.counting_wav("a.wav", 1), Frames{100}, seconds(1), std::vector<float>(2 * 2400, 0.75F));
    EXPECT_EQ(stream->produced(), 2300);
    EXPECT_EQ(left(100), 0.75F);
    work();
    EXPECT_EQ(left(2400), counted(2400)) << "behind it comes the file";
}

TEST_F(FedStream, ThatBeginsBehindTheOpeningUsesNothingOfIt) {
    feed(folder.counting_wav("a.wav", 1), Frames{2400}, seconds(1), std::vector<float>(2 * 2400, 0.75F));
    EXPECT_EQ(stream->produced(), 0);
}

TEST_F(FedStream, CountsEachBreakOnce) {
    const auto path = folder.encoded("a.mp3", 8, "-b:a 128k");
    std::fstream file{path, std::ios::binary | std::ios::in | std::ios::out};
    file.seekp(20000);
    file.write(std::string(2000, 'x').data(), 2000);
    file.close();
    const auto decoder = decoder_of(path);
    std::vector<float> all(2 * 8 * 48000);
    const std::size_t frames = decoder->read(all);
    ASSERT_GE(decoder->breaks(), 1);
    feed(path, Frames{0}, Frames{static_cast<std::int64_t>(frames)});
    while (!stream->finished()) {
        work();
        stream->pass_over(Frames{stream->produced()});
    }
    EXPECT_EQ(troubles->breaks, decoder->breaks());
}

TEST_F(FedStream, CountsAnEndThatComesTooEarly) {
    feed(folder.counting_wav("a.wav", 1), Frames{0}, seconds(1) + milliseconds(101));
    work();
    EXPECT_TRUE(stream->finished());
    EXPECT_EQ(troubles->breaks, 1);
}

TEST_F(FedStream, ForgivesAnEndThatIsRoundedUp) {
    feed(folder.counting_wav("a.wav", 1), Frames{0}, seconds(1) + milliseconds(100));
    work();
    EXPECT_TRUE(stream->finished());
    EXPECT_EQ(troubles->breaks, 0);
}

TEST_F(FedStream, IsFilledAsFarAsItIsNeededBeforeTheNextOne) {
    feed(folder.counting_wav("a.wav", 3), Frames{0}, seconds(3));
    const auto next = std::make_shared<SampleStream>(seconds(2), seconds(3), std::size_t{1000}, troubles);
    feeder->play(next, 20000);
    work();
    EXPECT_GE(stream->produced(), 20000);
    EXPECT_LT(stream->produced(), 65536);
    EXPECT_EQ(next->look(seconds(2), 1).first[0], counted(96000));
}

TEST_F(FedStream, ClosedIsDoneWhenTheLastOneHasWhatItNeeds) {
    feed(folder.counting_wav("a.wav", 3), Frames{0}, seconds(3));
    EXPECT_FALSE(feeder->is_done());
    feeder->close(20000);
    EXPECT_FALSE(feeder->is_done());
    work();
    EXPECT_TRUE(feeder->is_done());
    EXPECT_GE(stream->produced(), 20000);
}

} // namespace
} // namespace sonarelle
