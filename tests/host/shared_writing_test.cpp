#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/file.h>

#include <fcntl.h>

#include <optional>

#include "host/disk_fixture.h"
#include "platform/failure.h"
#include "platform/host/file_handle.h"
#include "support/child_process.h"

namespace sonarelle::test {

using testing::ElementsAre;

namespace {

constexpr std::string_view list = "D:\\liste.dfm";

std::optional<FileFacts> save_over(Disk& disk, const std::optional<FileFacts>& seen, std::string_view text) {
    const auto file = disk.replace(list);
    file->write(std::as_bytes(std::span{text}));
    return file->commit_over(seen);
}

/// Adds a letter to the list as often as another program comes between.
void add_letter(DiskFixture& bench) {
    for (bool saved = false; !saved;) {
        const FileFacts seen = bench.disk.open(list)->facts();
        saved = save_over(bench.disk, seen, bench.read(list) + "x").has_value();
    }
}

} // namespace

TEST(HostSharedWriting, TakesThePlaceOfTheFileThatWasSeen) {
    DiskFixture bench;
    bench.folder.put("liste.dfm", "old");

    EXPECT_TRUE(save_over(bench.disk, bench.disk.facts(list), "new"));
    EXPECT_EQ(bench.folder.bytes("liste.dfm"), "new");
}

TEST(HostSharedWriting, LeavesAFileThatAnotherHasWrittenMeanwhile) {
    DiskFixture bench;
    bench.folder.put("liste.dfm", "old");
    const FileFacts seen = bench.disk.facts(list);
    bench.save(list, "his");

    EXPECT_FALSE(save_over(bench.disk, seen, "new"));
    EXPECT_EQ(bench.folder.bytes("liste.dfm"), "his");
    EXPECT_THAT(bench.folder.names(), ElementsAre("liste.dfm"));
}

TEST(HostSharedWriting, LeavesAFileThatAnotherHasWrittenInto) {
    DiskFixture bench;
    bench.folder.put("liste.dfm", "old");
    const FileFacts seen = bench.disk.facts(list);
    bench.disk.append(list, "er");

    EXPECT_FALSE(save_over(bench.disk, seen, "new"));
    EXPECT_EQ(bench.folder.bytes("liste.dfm"), "older");
}

TEST(HostSharedWriting, LeavesAFileThatAnotherHasMade) {
    DiskFixture bench;
    const auto file = bench.disk.replace(list);
    bench.folder.put("liste.dfm", "his");

    EXPECT_FALSE(file->commit_over(std::nullopt));
    EXPECT_EQ(bench.folder.bytes("liste.dfm"), "his");
}

TEST(HostSharedWriting, MakesAFileThatNobodyHasMade) {
    DiskFixture bench;

    EXPECT_TRUE(save_over(bench.disk, std::nullopt, "new"));
    EXPECT_EQ(bench.folder.bytes("liste.dfm"), "new");
}

TEST(HostSharedWriting, GoesOnFromWhatItHasWritten) {
    DiskFixture bench;
    const auto first = save_over(bench.disk, std::nullopt, "one");

    EXPECT_TRUE(save_over(bench.disk, first, "two"));
    EXPECT_EQ(bench.folder.bytes("liste.dfm"), "two");
}

TEST(HostSharedWriting, OfManyProgramsLosesNothing) {
    DiskFixture bench;
    bench.folder.put("liste.dfm");
    std::vector<pid_t> children;
    for (int child = 0; child < 4; ++child)
        children.push_back(start_child([&] {
            for (int letter = 0; letter < 25; ++letter)
                add_letter(bench);
        }));
    for (const pid_t child : children)
        EXPECT_EQ(end_of_child(child), 0);

    EXPECT_EQ(bench.folder.bytes("liste.dfm"), std::string(100, 'x'));
}

TEST(HostSharedWriting, TellsOfAProgramThatDoesNotLetGo) {
    DiskFixture bench;
    bench.folder.put("liste.dfm", "old");
    const FileHandle folder{::open(bench.folder.path().c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)};
    ASSERT_EQ(::flock(folder.get(), LOCK_EX), 0);

    EXPECT_EQ(failure_of([&] { (void)save_over(bench.disk, bench.disk.facts(list), "new"); }),
              FailureNumber::path_access);
    EXPECT_EQ(bench.folder.bytes("liste.dfm"), "old");
}

TEST(HostClaim, IsOneProgramsAlone) {
    DiskFixture bench;
    const auto claim = bench.disk.claim(list);
    ASSERT_NE(claim, nullptr);

    EXPECT_EQ(end_of_child(start_child([&] {
                  if (bench.disk.claim(list) != nullptr)
                      throw std::logic_error{"a second claim"};
              })),
              0);
    EXPECT_NE(bench.disk.claim("D:\\autre.dfm"), nullptr);
}

TEST(HostClaim, EndsWithTheProgram) {
    DiskFixture bench;
    ASSERT_EQ(end_of_child(start_child([&] { (void)bench.disk.claim(list).release(); })), 0);

    EXPECT_NE(bench.disk.claim(list), nullptr);
}

TEST(HostClaim, LeavesNothingBehind) {
    DiskFixture bench;
    (void)bench.disk.claim(list);

    EXPECT_THAT(bench.folder.names(), testing::IsEmpty());
}

TEST(HostClaim, IsRefusedInAFolderThatCanNotBeWritten) {
    DiskFixture bench;
    bench.folder.put_folder("Fermé");
    bench.folder.set_rights("Fermé", 0555);

    EXPECT_EQ(failure_without_rights([&] { (void)bench.disk.claim("D:\\Fermé\\liste.dfm"); }),
              FailureNumber::path_access);
}

} // namespace sonarelle::test
