#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "host/disk_fixture.h"
#include "platform/failure.h"
#include "platform/host/host_settings.h"
#include "support/child_process.h"

namespace sonarelle::test {

using testing::ElementsAre;

constexpr std::size_t save_size = 418;

TEST(FullDisk, SaveThatStopsAtAnyByteLeavesTheOldFile) {
    DiskFixture bench;
    bench.folder.put("liste.dfm", "old");
    const std::string records(save_size, 'n');

    for (std::size_t room = 0; room < save_size; ++room) {
        ASSERT_EQ(failure_on_full_disk(room, [&] { bench.save("D:\\liste.dfm", records); }), FailureNumber::disk_full)
            << room;
        ASSERT_EQ(bench.folder.bytes("liste.dfm"), "old") << room;
        ASSERT_THAT(bench.folder.names(), ElementsAre("liste.dfm")) << room;
    }
}

TEST(FullDisk, SaveThatJustFitsIsDone) {
    DiskFixture bench;
    bench.folder.put("liste.dfm", "old");
    const std::string records(save_size, 'n');

    EXPECT_EQ(failure_on_full_disk(save_size, [&] { bench.save("D:\\liste.dfm", records); }), FailureNumber::none);
    EXPECT_EQ(bench.folder.bytes("liste.dfm"), records);
}

TEST(FullDisk, SaveBeyondAFileSizeLimitNamesTheLimit) {
    DiskFixture bench;
    const auto save = [&] {
        try {
            bench.save("D:\\liste.dfm", std::string(save_size, 'n'));
        } catch (const Failure& failure) {
            const bool is_named = failure.description.starts_with("Taille de fichier limitée");
            throw Failure{is_named ? failure.number : FailureNumber::none};
        }
    };
    EXPECT_EQ(failure_on_full_disk(10, save), FailureNumber::disk_full);
}

TEST(FullDisk, LongSaveThatStopsInTheMiddleTakesNothingMore) {
    DiskFixture bench;
    bench.folder.put("liste.dfm", "old");

    EXPECT_EQ(failure_on_full_disk(1'000'000,
                                   [&] {
                                       const auto file = bench.disk.replace("D:\\liste.dfm");
                                       const std::string block(300'000, 'n');
                                       const auto write = [&] { file->write(std::as_bytes(std::span{block})); };
                                       int refused = 0;
                                       for (int i = 0; i < 10; ++i)
                                           refused += failure_of(write) != FailureNumber::none ? 1 : 0;
                                       if (refused != 7)
                                           throw std::logic_error{"other writes were refused"};
                                       file->commit();
                                   }),
              FailureNumber::device_fault);
    EXPECT_EQ(bench.folder.bytes("liste.dfm"), "old");
}

TEST(FullDisk, CopyThatDoesNotFitLeavesTheOldFile) {
    DiskFixture bench;
    bench.folder.put("a.mp3", std::string(100'000, 'a'));
    bench.folder.put("b.mp3", "old");

    EXPECT_EQ(failure_on_full_disk(50'000, [&] { bench.disk.FileCopy("D:\\a.mp3", "D:\\b.mp3"); }),
              FailureNumber::disk_full);
    EXPECT_EQ(bench.folder.bytes("b.mp3"), "old");
    EXPECT_THAT(bench.folder.names(), ElementsAre("a.mp3", "b.mp3"));
}

TEST(FullDisk, LineThatDoesNotFitLeavesNoHalfLineInTheJournal) {
    DiskFixture bench;
    const std::string first = "premiere ligne\r\n";
    const std::string second = "seconde ligne\r\n";
    bench.folder.put("journal.doc", first);

    for (std::size_t room = first.size(); room < first.size() + second.size(); ++room) {
        ASSERT_EQ(failure_on_full_disk(room, [&] { bench.disk.append("D:\\journal.doc", second); }),
                  FailureNumber::disk_full)
            << room;
        ASSERT_EQ(bench.folder.bytes("journal.doc"), first) << room;
    }
}

TEST(FullDisk, SettingsThatDoNotFitLeaveTheOldOnes) {
    PrivateFolder folder;
    HostSettings settings{folder.path("reglages.json")};
    settings.SaveSetting("Sonarelle", "Config", "Mix", "6");

    EXPECT_EQ(failure_on_full_disk(10, [&] { settings.SaveSetting("Sonarelle", "Config", "Mix", "7"); }),
              FailureNumber::disk_full);
    EXPECT_EQ(settings.GetSetting("Sonarelle", "Config", "Mix", ""), "6");
}

} // namespace sonarelle::test
