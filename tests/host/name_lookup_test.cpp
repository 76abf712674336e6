#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <filesystem>
#include <string>
#include <thread>
#include <vector>

#include "platform/host/name_lookup.h"
#include "support/private_folder.h"

namespace sonarelle::test {

using Outcome = NameLookup::Outcome;

/// A lookup that keeps all that it learns, however young the folder.
struct LookupFixture {
    [[nodiscard]] NameLookup::Place find(const std::string& name) const {
        return lookup.find(folder.path(), {name}, name);
    }

    /// Gives the folder another time of change, as if some time had gone by.
    void let_time_pass() {
        age += std::chrono::hours{1};
        std::filesystem::last_write_time(folder.path(), std::filesystem::file_time_type::clock::now() - age);
    }

    PrivateFolder folder;
    NameLookup lookup{-std::chrono::hours{24 * 365}};
    std::chrono::hours age{0};
};

TEST(NameLookup, SeesAFileThatComesIntoAFolderThatItKnows) {
    LookupFixture bench;
    EXPECT_EQ(bench.find("B.MP3").outcome, Outcome::missing);
    bench.folder.put("b.mp3");
    bench.let_time_pass();

    EXPECT_EQ(bench.find("B.MP3").path, bench.folder.path("b.mp3"));
}

TEST(NameLookup, NoLongerFindsAFileThatWentFromAFolderThatItKnows) {
    LookupFixture bench;
    bench.folder.put("a.mp3");
    EXPECT_EQ(bench.find("A.MP3").outcome, Outcome::present);
    std::filesystem::remove(bench.folder.path("a.mp3"));
    bench.let_time_pass();

    EXPECT_EQ(bench.find("A.MP3").outcome, Outcome::missing);
}

TEST(NameLookup, TakesTheFirstSpellingInByteOrderOfAFolderThatItKnows) {
    LookupFixture bench;
    for (const char* name : {"titre.mp3", "TITRE.mp3", "tiTRE.mp3"})
        bench.folder.put(name);

    EXPECT_EQ(bench.find("Titre.mp3").path, bench.folder.path("TITRE.mp3"));
    EXPECT_EQ(bench.find("tITRE.mp3").path, bench.folder.path("TITRE.mp3"));
}

TEST(NameLookup, LeavesOutWhatNoPathOfTheStationCanNameInAFolderThatItKnows) {
    LookupFixture bench;
    bench.folder.put("\xE9.mp3");

    EXPECT_EQ(bench.find("\xC9.mp3").outcome, Outcome::missing);
}

TEST(NameLookup, ServesSeveralThreadsAtOnce) {
    LookupFixture bench;
    for (int i = 0; i < 50; ++i)
        bench.folder.put(std::to_string(i) + "/titre.mp3");
    std::atomic<int> found = 0;
    const auto look = [&] {
        for (int i = 0; i < 200; ++i) {
            const std::string folder = bench.folder.path(std::to_string(i % 50));
            if (bench.lookup.find(folder, {"TITRE.MP3"}, "").path == folder + "/titre.mp3")
                ++found;
        }
    };
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i)
        threads.emplace_back(look);
    for (std::thread& thread : threads)
        thread.join();

    EXPECT_EQ(found, 800);
}

} // namespace sonarelle::test
