#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <cstring>
#include <functional>
#include <random>
#include <thread>

#include "platform/drive_table.h"
#include "platform/host/host_disk.h"
#include "platform/host/host_settings.h"
#include "support/child_process.h"
#include "support/private_folder.h"

namespace sonarelle::test {

using namespace std::chrono;
using testing::ElementsAre;

constexpr std::size_t record_size = 418;
constexpr std::size_t records = 2000;
constexpr int kills = 500;

/// A list whose every record holds the number of its writing.
std::string generation_bytes(std::uint32_t generation) {
    std::string bytes(records * record_size, ' ');
    for (std::size_t record = 0; record < records; ++record)
        std::memcpy(bytes.data() + record * record_size, &generation, sizeof generation);
    return bytes;
}

std::uint32_t generation_of(std::string_view bytes) {
    std::uint32_t generation = 0;
    if (bytes.size() >= sizeof generation)
        std::memcpy(&generation, bytes.data(), sizeof generation);
    return generation;
}

void save_generation(Disk& disk, std::uint32_t generation) {
    const std::string bytes = generation_bytes(generation);
    const auto file = disk.replace("D:\\liste.dfm");
    for (std::size_t record = 0; record < records; ++record)
        file->write(std::as_bytes(std::span{bytes}).subspan(record * record_size, record_size));
    file->commit();
}

struct KillFixture {
    KillFixture() { drives.set("D", folder.path()); }

    /// Lets the work run for a part of `span` drawn by lot, and kills it in its midst.
    void kill_within(microseconds span, const std::function<void()>& work) {
        const pid_t child = start_child(work);
        std::this_thread::sleep_for(microseconds{static_cast<int>(draw() % static_cast<unsigned>(span.count() + 1))});
        ASSERT_TRUE(kill_child(child));
    }

    PrivateFolder folder;
    DriveTable drives;
    HostDisk disk{drives};
    std::mt19937 draw{20260101};
};

/// How long the work takes when nobody kills it, so that the kills fall in all its parts on any machine.
microseconds span_of(const std::function<void()>& work) {
    const auto begin = steady_clock::now();
    work();
    return duration_cast<microseconds>(steady_clock::now() - begin);
}

TEST(Kill, ListIsAlwaysAWholeGeneration) {
    KillFixture bench;
    const auto span = span_of([&] { save_generation(bench.disk, 1); });
    std::uint32_t generation = 1;
    for (int i = 0; i < kills; ++i) {
        bench.kill_within(span + span / 2, [&] {
            for (std::uint32_t next = generation + 1;; ++next)
                save_generation(bench.disk, next);
        });
        const std::string bytes = bench.folder.bytes("liste.dfm");
        ASSERT_GE(generation_of(bytes), generation) << "kill " << i;
        generation = generation_of(bytes);
        ASSERT_TRUE(bytes == generation_bytes(generation)) << "kill " << i;
    }
    EXPECT_GT(generation, 1U);

    save_generation(bench.disk, generation + 1);
    EXPECT_THAT(bench.folder.names(), ElementsAre("liste.dfm"));
}

TEST(Kill, SettingsAreAlwaysWholeAndNeverLocked) {
    KillFixture bench;
    const std::string file = bench.folder.path("reglages.json");
    HostSettings settings{file};
    const auto save = [&](int number) {
        HostSettings theirs{file};
        const std::string value = std::to_string(number);
        theirs.save_all("Sonarelle", std::vector<Setting>{{"Config", "Mix", value}, {"Position", "haut", value}});
    };
    const auto span = span_of([&] { save(0); });
    for (int i = 0; i < kills / 5; ++i) {
        bench.kill_within(4 * span, [&] {
            for (int number = 0;; ++number)
                save(number);
        });
        ASSERT_EQ(settings.GetSetting("Sonarelle", "Config", "Mix", "none"),
                  settings.GetSetting("Sonarelle", "Position", "haut", "other"))
            << "kill " << i;
    }
    save(-1);
    EXPECT_EQ(settings.GetSetting("Sonarelle", "Config", "Mix", ""), "-1");
    EXPECT_THAT(bench.folder.names(), ElementsAre(".reglages.verrou", "reglages.json"));
}

} // namespace sonarelle::test
