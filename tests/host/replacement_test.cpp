#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <climits>
#include <filesystem>

#include "host/disk_fixture.h"
#include "platform/host/safe_file.h"
#include "support/child_process.h"

namespace sonarelle::test {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(HostReplacement, TakesThePlaceOfTheOldFileAtItsCommit) {
    DiskFixture bench;
    bench.folder.put("liste.dfm", "old");
    const auto file = bench.disk.replace("D:\\LISTE.DFM");
    file->write(std::as_bytes(std::span{"new", 3}));
    EXPECT_EQ(bench.folder.bytes("liste.dfm"), "old");
    file->commit();

    EXPECT_EQ(bench.folder.bytes("liste.dfm"), "new");
    EXPECT_THAT(bench.folder.names(), ElementsAre("liste.dfm"));
}

TEST(HostReplacement, MakesAFileThatWasNotThere) {
    DiskFixture bench;
    bench.save("D:\\Liste.dfm", "new");

    EXPECT_EQ(bench.folder.bytes("Liste.dfm"), "new");
}

TEST(HostReplacement, DroppedBeforeItsCommitLeavesTheOldFileAlone) {
    DiskFixture bench;
    bench.folder.put("liste.dfm", "old");
    bench.disk.replace("D:\\liste.dfm")->write(std::as_bytes(std::span{"new", 3}));

    EXPECT_EQ(bench.folder.bytes("liste.dfm"), "old");
    EXPECT_THAT(bench.folder.names(), ElementsAre("liste.dfm"));
}

TEST(HostReplacement, DroppedWithoutAnOldFileLeavesNothing) {
    DiskFixture bench;
    (void)bench.disk.replace("D:\\liste.dfm");

    EXPECT_THAT(bench.folder.names(), IsEmpty());
}

TEST(HostReplacement, KeepsTheRightsOfTheOldFile) {
    DiskFixture bench;
    bench.folder.put("liste.dfm", "old");
    bench.folder.set_rights("liste.dfm", 0664);
    bench.save("D:\\liste.dfm", "new");

    EXPECT_EQ(bench.folder.rights("liste.dfm"), 0664U);
}

TEST(HostReplacement, HidesWhatItWritesFromThoseWhoCouldNotReadTheOldFile) {
    DiskFixture bench;
    bench.folder.put("liste.dfm", "old");
    bench.folder.set_rights("liste.dfm", 0600);
    const auto file = bench.disk.replace("D:\\liste.dfm");

    for (const std::string& name : bench.folder.names())
        EXPECT_EQ(bench.folder.rights(name), 0600U) << name;
}

TEST(HostReplacement, GivesANewFileTheRightsOfAnyNewFile) {
    DiskFixture bench;
    const mode_t mask = ::umask(027);
    bench.save("D:\\liste.dfm", "new");
    ::umask(mask);

    EXPECT_EQ(bench.folder.rights("liste.dfm"), 0640U);
}

TEST(HostReplacement, ReplacesWhatALinkPointsTo) {
    DiskFixture bench;
    bench.folder.put("ailleurs/vraie.dfm", "old");
    std::filesystem::create_symlink("ailleurs/vraie.dfm", bench.folder.path("liste.dfm"));
    bench.save("D:\\liste.dfm", "new");

    EXPECT_TRUE(std::filesystem::is_symlink(bench.folder.path("liste.dfm")));
    EXPECT_EQ(bench.folder.bytes("ailleurs/vraie.dfm"), "new");
}

TEST(HostReplacement, MakesTheFileThatADeadLinkPointsTo) {
    DiskFixture bench;
    std::filesystem::create_symlink("vraie.dfm", bench.folder.path("liste.dfm"));
    bench.save("D:\\liste.dfm", "new");

    EXPECT_EQ(bench.folder.bytes("vraie.dfm"), "new");
}

TEST(HostReplacement, LinksThatGoRoundAreRefused) {
    DiskFixture bench;
    std::filesystem::create_symlink("b", bench.folder.path("a"));
    std::filesystem::create_symlink("a", bench.folder.path("b"));

    EXPECT_EQ(failure_of([&] { (void)bench.disk.replace("D:\\a"); }), FailureNumber::path_access);
}

TEST(HostReplacement, WorksForTheLongestNameOfTheDisk) {
    DiskFixture bench;
    const std::string name(NAME_MAX, 'n');
    bench.save("D:\\" + name, "new");

    EXPECT_THAT(bench.folder.names(), ElementsAre(name));
}

TEST(HostReplacement, WritesMoreThanItsBuffer) {
    DiskFixture bench;
    std::string bytes(2'000'003, '\0');
    for (std::size_t i = 0; i < bytes.size(); ++i)
        bytes[i] = static_cast<char>(i % 251);
    const auto file = bench.disk.replace("D:\\liste.dfm");
    for (std::size_t i = 0; i < bytes.size(); i += 418)
        file->write(std::as_bytes(std::span{bytes}).subspan(i, std::min<std::size_t>(418, bytes.size() - i)));
    file->commit();

    EXPECT_TRUE(bench.folder.bytes("liste.dfm") == bytes);
}

TEST(HostReplacement, FolderOrPipeIsNoFile) {
    DiskFixture bench;
    bench.folder.put_folder("un");
    ASSERT_EQ(::mkfifo(bench.folder.path("tube").c_str(), 0600), 0);

    EXPECT_EQ(failure_of([&] { (void)bench.disk.replace("D:\\un"); }), FailureNumber::path_access);
    EXPECT_EQ(failure_of([&] { (void)bench.disk.replace("D:\\tube"); }), FailureNumber::path_access);
    EXPECT_EQ(failure_of([&] { (void)bench.disk.replace("D:\\absent\\x"); }), FailureNumber::path_not_found);
}

TEST(HostReplacement, RemovesWhatAKilledProgramLeftOfTheSameFile) {
    DiskFixture bench;
    for (const int slot : {0, 1, 2})
        bench.folder.put(hidden_name("liste.dfm", slot), "half");
    bench.save("D:\\liste.dfm", "new");

    EXPECT_THAT(bench.folder.names(), ElementsAre("liste.dfm"));
}

TEST(HostReplacement, LeavesWhatAnotherWriterIsWritingNow) {
    DiskFixture bench;
    const auto first = bench.disk.replace("D:\\liste.dfm");
    first->write(std::as_bytes(std::span{"first", 5}));
    bench.save("D:\\liste.dfm", "second");
    EXPECT_EQ(bench.folder.bytes("liste.dfm"), "second");
    first->commit();

    EXPECT_EQ(bench.folder.bytes("liste.dfm"), "first");
    EXPECT_THAT(bench.folder.names(), ElementsAre("liste.dfm"));
}

TEST(HostReplacement, LeavesHiddenFilesOfOtherNames) {
    DiskFixture bench;
    bench.folder.put(hidden_name("autre.dfm", 0));
    bench.folder.put(".liste.dfm");
    bench.save("D:\\liste.dfm", "new");

    EXPECT_THAT(bench.folder.names(), ElementsAre(".autre.dfm.0.nouveau", ".liste.dfm", "liste.dfm"));
}

TEST(HostReplacement, IsOfNoMoreUseAfterItsCommit) {
    DiskFixture bench;
    const auto file = bench.disk.replace("D:\\liste.dfm");
    file->commit();

    EXPECT_EQ(failure_of([&] { file->write(std::as_bytes(std::span{"x", 1})); }), FailureNumber::device_fault);
    EXPECT_EQ(failure_of([&] { file->commit(); }), FailureNumber::device_fault);
}

TEST(HostAppend, AddsAtTheEndAndMakesTheFile) {
    DiskFixture bench;
    bench.disk.append("D:\\journal.doc", "un\r\n");
    bench.disk.append("D:\\JOURNAL.doc", "deux\r\n");

    EXPECT_EQ(bench.folder.bytes("journal.doc"), "un\r\ndeux\r\n");
}

TEST(HostAppend, FolderOrPipeIsNoFile) {
    DiskFixture bench;
    bench.folder.put_folder("un");
    ASSERT_EQ(::mkfifo(bench.folder.path("tube").c_str(), 0600), 0);

    EXPECT_EQ(failure_of([&] { bench.disk.append("D:\\un", "x"); }), FailureNumber::path_access);
    EXPECT_NE(failure_of([&] { bench.disk.append("D:\\tube", "x"); }), FailureNumber::none);
    EXPECT_EQ(failure_of([&] { bench.disk.append("D:\\absent\\x", "x"); }), FailureNumber::path_not_found);
}

} // namespace sonarelle::test
