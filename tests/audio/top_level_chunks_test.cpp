// Whether a file of chunks has lost its end, by the sizes that it tells itself.
#include "platform/audio/top_level_chunks.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "sound_fixture.h"

namespace sonarelle {
namespace {

using namespace std::string_literals;

Completeness of(const std::string& bytes) {
    const SoundFolder folder;
    return completeness_of_chunks(*MachineFiles{}.open(folder.file("a", bytes)));
}

/// Whole as it is; cut where a byte is missing.
void expect_told(const std::string& bytes) {
    EXPECT_EQ(of(bytes), Completeness::whole);
    EXPECT_EQ(of(bytes.substr(0, bytes.size() - 1)), Completeness::cut);
}

const std::string sound(16, 's');
const std::string mp4_head = "\0\0\0\x10"
                             "ftypM4A \0\0\0\0"s;

TEST(TopLevelChunks, OfAWavTellItsSize) {
    expect_told("RIFF\x14\0\0\0WAVE"s + sound);
}

TEST(TopLevelChunks, OfAnAiffTellItsSize) {
    expect_told("FORM\0\0\0\x14"
                "AIFF"s +
                sound);
}

TEST(TopLevelChunks, OfAWmaTellTheirSizes) {
    const std::string header = "\x30\x26\xB2\x75"s + std::string(12, 'h') + "\x18\0\0\0\0\0\0\0"s;
    expect_told(header + std::string(16, 'd') + "\x28\0\0\0\0\0\0\0"s + sound);
}

TEST(TopLevelChunks, OfAnMp4TellTheirSizes) {
    expect_told(mp4_head + "\0\0\0\x18mdat"s + sound);
}

TEST(TopLevelChunks, OfAnMp4BeyondFourGigabytesTellTheirSizesBehindTheirName) {
    expect_told(mp4_head + "\0\0\0\x01mdat\0\0\0\0\0\0\0\x20"s + sound);
}

TEST(TopLevelChunks, OfAnAviFollowOneAnother) {
    expect_told("RIFF\x14\0\0\0AVI "s + sound + "RIFF\x14\0\0\0AVIX"s + sound);
}

TEST(TopLevelChunks, EndWhereSomethingElseBegins) {
    const std::string tag = "TAG" + std::string(125, 't');
    EXPECT_EQ(of("RIFF\x14\0\0\0WAVE"s + sound + tag), Completeness::whole);
    EXPECT_EQ(of("FORM\0\0\0\x14"
                 "AIFF"s +
                 sound + tag),
              Completeness::whole);
    EXPECT_EQ(of(mp4_head + std::string(8, '\0')), Completeness::whole) << "a box that goes to the end";
}

TEST(TopLevelChunks, TellTheirSizesInAllTheirBytes) {
    EXPECT_EQ(of("RIFF\x00\x00\x01\x00WAVE"s + std::string(65'536 - 4, 's')), Completeness::whole);
    EXPECT_EQ(of("RIFF\x00\x00\x01\x00WAVE"s + std::string(65'535 - 4, 's')), Completeness::cut);
    EXPECT_EQ(of("FORM\x00\x01\x00\x00"
                 "AIFF"s +
                 std::string(65'536 - 4, 's')),
              Completeness::whole);
    EXPECT_EQ(of("RIFF\xFE\xFF\xFF\xFFWAVE"s + sound), Completeness::cut);
}

TEST(TopLevelChunks, AreLookedAtUpToAThousand) {
    std::string boxes = mp4_head;
    while (boxes.size() < 1001 * 16)
        boxes += "\0\0\0\x10"
                 "free12345678"s;
    EXPECT_EQ(of(boxes), Completeness::unknown);
    EXPECT_EQ(of(boxes.substr(0, 1000 * 16)), Completeness::whole);
}

TEST(TopLevelChunks, OfAnEmptyFileAreAllThere) {
    EXPECT_EQ(of(""), Completeness::whole);
}

TEST(TopLevelChunks, OfAWriterThatCouldNotGoBackTellNothing) {
    EXPECT_EQ(of("RIFF\0\0\0\0WAVE"s + sound), Completeness::unknown);
    EXPECT_EQ(of("RIFF\xFF\xFF\xFF\xFFWAVE"s + sound), Completeness::unknown);
}

TEST(TopLevelChunks, AreNotInAnyOtherFile) {
    EXPECT_EQ(of("Ceci n'est pas une chanson."), Completeness::unknown);
}

} // namespace
} // namespace sonarelle
