#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <random>

#include "host/disk_fixture.h"
#include "support/child_process.h"

namespace sonarelle::test {

constexpr std::size_t record_size = 418;

std::string counted_bytes(std::size_t count) {
    std::string bytes(count, '\0');
    for (std::size_t i = 0; i < count; ++i)
        bytes[i] = static_cast<char>((i * 2654435761U) >> 13U);
    return bytes;
}

std::string part_of(RecordFile& file, std::int64_t position, std::size_t count) {
    std::string bytes(count, '\0');
    bytes.resize(file.read(position, std::as_writable_bytes(std::span{bytes})));
    return bytes;
}

TEST(HostRecordFile, GivesEveryRecordOfALongListInOrder) {
    DiskFixture bench;
    const std::string bytes = counted_bytes(5000 * record_size + 17);
    bench.folder.put("liste.dfm", bytes);
    const auto file = bench.disk.open("D:\\liste.dfm");

    std::string read;
    for (std::int64_t position = 0; position < file->length(); position += record_size)
        read += part_of(*file, position, record_size);

    EXPECT_TRUE(read == bytes);
}

TEST(HostRecordFile, GivesAnyPartInAnyOrder) {
    DiskFixture bench;
    const std::string bytes = counted_bytes(3'000'000);
    bench.folder.put("liste.dfm", bytes);
    const auto file = bench.disk.open("D:\\liste.dfm");

    std::mt19937 draw{1};
    for (int i = 0; i < 500; ++i) {
        const std::size_t position = draw() % bytes.size();
        const std::size_t count = draw() % (i % 10 == 0 ? 1'500'000 : 2000);
        ASSERT_TRUE(part_of(*file, static_cast<std::int64_t>(position), count) == bytes.substr(position, count));
    }
}

TEST(HostRecordFile, ReadsNothingBehindTheEnd) {
    DiskFixture bench;
    bench.folder.put("liste.dfm", "abc");
    const auto file = bench.disk.open("D:\\liste.dfm");

    EXPECT_EQ(part_of(*file, 2, 10), "c");
    EXPECT_EQ(part_of(*file, 3, 10), "");
}

TEST(HostRecordFile, PositionBeforeTheBeginningIsAWrongRecord) {
    DiskFixture bench;
    bench.folder.put("liste.dfm", "abc");
    const auto file = bench.disk.open("D:\\liste.dfm");

    EXPECT_EQ(failure_of([&] { (void)part_of(*file, -418, 10); }), FailureNumber::wrong_record_number);
}

TEST(HostRecordFile, SeesTheFileAsItWasWhenItWasOpened) {
    DiskFixture bench;
    bench.folder.put("liste.dfm", "old");
    const auto file = bench.disk.open("D:\\liste.dfm");
    bench.save("D:\\liste.dfm", "newer");

    EXPECT_EQ(file->length(), 3);
    EXPECT_EQ(part_of(*file, 0, 10), "old");
}

TEST(HostRecordFile, EndsWhereItEndedWhenItWasOpened) {
    DiskFixture bench;
    bench.folder.put("liste.dfm", "abc");
    const auto file = bench.disk.open("D:\\liste.dfm");
    bench.disk.append("D:\\liste.dfm", "def");

    EXPECT_EQ(part_of(*file, 1, 10), "bc");
    EXPECT_EQ(part_of(*file, 3, 10), "");
}

TEST(HostRecordFile, OpeningAMissingFileToReadLeavesNone) {
    DiskFixture bench;

    EXPECT_EQ(failure_of([&] { (void)bench.disk.open("D:\\liste.dfm"); }), FailureNumber::file_not_found);
    EXPECT_FALSE(bench.folder.exists("liste.dfm"));
}

TEST(HostRecordFile, OpenOrCreateLeavesAFileOfLength0) {
    DiskFixture bench;

    EXPECT_EQ(bench.disk.open_or_create("D:\\liste.dfm")->length(), 0);
    EXPECT_EQ(bench.folder.bytes("liste.dfm"), "");
}

TEST(HostRecordFile, OpenOrCreateOpensTheFileThatIsThereIgnoringCase) {
    DiskFixture bench;
    bench.folder.put("Liste.DFM", "abc");

    EXPECT_EQ(bench.disk.open_or_create("D:\\liste.dfm")->length(), 3);
    EXPECT_FALSE(bench.folder.exists("liste.dfm"));
}

TEST(HostRecordFile, DeadLinkGetsTheFileThatItPointsTo) {
    DiskFixture bench;
    std::filesystem::create_symlink("vraie.dfm", bench.folder.path("liste.dfm"));

    EXPECT_EQ(bench.disk.open_or_create("D:\\liste.dfm")->length(), 0);
    EXPECT_EQ(bench.folder.bytes("vraie.dfm"), "");
}

TEST(HostRecordFile, FolderOrPipeIsNoFile) {
    DiskFixture bench;
    bench.folder.put_folder("un");
    ASSERT_EQ(::mkfifo(bench.folder.path("tube").c_str(), 0600), 0);

    EXPECT_EQ(failure_of([&] { (void)bench.disk.open("D:\\un"); }), FailureNumber::path_access);
    EXPECT_EQ(failure_of([&] { (void)bench.disk.open("D:\\tube"); }), FailureNumber::path_access);
}

} // namespace sonarelle::test
