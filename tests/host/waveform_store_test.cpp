// Waveforms in the user's cache.
#include "platform/host/waveform_store.h"

#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>

#include "support/private_folder.h"

namespace sonarelle::test {

namespace {

class Store : public testing::Test {
protected:
    /// The one file that the store has.
    [[nodiscard]] std::string only_file() const { return "ondes/" + folder.names("ondes").at(0); }

    static constexpr std::string_view path = "/musique/titre.mp3";
    const std::string title{path};
    const FileFacts facts{.size = 1000, .modified = 77};
    const Waveform waveform{0.25, {0, 255, 17}};
    PrivateFolder folder;
    WaveformStore store{folder.path("ondes")};
};

} // namespace

TEST_F(Store, KnowsNothingAtFirst) {
    EXPECT_FALSE(store.find(title, facts).has_value());
    EXPECT_FALSE(folder.exists("ondes"));
}

TEST_F(Store, GivesBackWhatWasKept) {
    store.keep(title, facts, waveform);
    EXPECT_EQ(store.find(title, facts), waveform);
}

TEST_F(Store, GivesItToTheNextRunToo) {
    store.keep(title, facts, waveform);
    EXPECT_EQ(WaveformStore{folder.path("ondes")}.find(title, facts), waveform);
}

TEST_F(Store, KeepsThatAFileHasNoSound) {
    store.keep(title, facts, {});
    EXPECT_EQ(store.find(title, facts), Waveform{});
}

TEST_F(Store, ForgetsAFileThatWasChanged) {
    store.keep(title, facts, waveform);
    EXPECT_FALSE(store.find(title, {.size = 1001, .modified = 77}).has_value());
    EXPECT_FALSE(store.find(title, {.size = 1000, .modified = 78}).has_value());
}

TEST_F(Store, TellsPathsApart) {
    store.keep(title, facts, waveform);
    EXPECT_FALSE(store.find("/musique/autre.mp3", facts).has_value());
}

TEST_F(Store, NewStateOfAFileTakesThePlaceOfTheOld) {
    store.keep(title, facts, waveform);
    const FileFacts changed{.size = 2000, .modified = 80};
    store.keep(title, changed, {0.5, {1}});
    EXPECT_EQ(store.find(title, changed), (Waveform{0.5, {1}}));
    EXPECT_EQ(folder.names("ondes").size(), 1U);
}

TEST_F(Store, LeavesDamagedFilesAside) {
    store.keep(title, facts, waveform);
    const std::string whole = folder.bytes(only_file());
    for (std::size_t at = 0; at < whole.size(); ++at) {
        std::string damaged = whole;
        damaged[at] = static_cast<char>(damaged[at] ^ 0x40);
        folder.put(only_file(), damaged);
        EXPECT_FALSE(store.find(title, facts).has_value()) << "byte " << at;
    }
}

TEST_F(Store, LeavesFilesThatAPowerCutHasShortenedAside) {
    store.keep(title, facts, waveform);
    const std::string whole = folder.bytes(only_file());
    for (std::size_t size = 0; size < whole.size(); ++size) {
        folder.put(only_file(), whole.substr(0, size));
        EXPECT_FALSE(store.find(title, facts).has_value()) << size;
    }
}

TEST_F(Store, DoesWithoutAFolderThatCantBeMade) {
    folder.put("ondes", "un fichier");
    store.keep(title, facts, waveform);
    EXPECT_FALSE(store.find(title, facts).has_value());
    EXPECT_EQ(folder.bytes("ondes"), "un fichier");
}

TEST_F(Store, LeavesNothingHalfWrittenBehind) {
    store.keep(title, facts, waveform);
    for (const std::string& name : folder.names("ondes"))
        EXPECT_TRUE(name.ends_with(".onde")) << name;
}

TEST_F(Store, NeverKeepsMoreThanItsMost) {
    WaveformStore small{folder.path("ondes"), 16};
    for (int number = 0; number < 100; ++number) {
        small.keep("/musique/" + std::to_string(number), facts, waveform);
        EXPECT_LE(folder.names("ondes").size(), 16U);
    }
    EXPECT_EQ(small.find("/musique/99", facts), waveform);
    EXPECT_FALSE(small.find("/musique/0", facts).has_value());
}

TEST_F(Store, KeepsWhatIsAskedForDayAfterDay) {
    WaveformStore small{folder.path("ondes"), 16};
    small.keep("/musique/favori", facts, waveform);
    const auto yesterday = std::filesystem::file_time_type::clock::now() - std::chrono::hours{24};
    std::filesystem::last_write_time(folder.path(only_file()), yesterday);
    EXPECT_EQ(small.find("/musique/favori", facts), waveform);
    EXPECT_GT(std::filesystem::last_write_time(folder.path(only_file())), yesterday + std::chrono::hours{23});
}

TEST_F(Store, LeavesFilesOfOthersInItsFolderAlone) {
    folder.put("ondes/notes.txt", "à garder");
    WaveformStore small{folder.path("ondes"), 8};
    for (int number = 0; number < 30; ++number)
        small.keep("/musique/" + std::to_string(number), facts, waveform);
    EXPECT_EQ(folder.bytes("ondes/notes.txt"), "à garder");
}

} // namespace sonarelle::test
