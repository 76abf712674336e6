#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <utility>

#include <gtest/gtest.h>

#include "metadata/TypeTagMpeg.h"
#include "mpeg_bytes.h"
#include "mpeg_reading.h"
#include "music_disk.h"

namespace sonarelle {
namespace {

/// A file of any length: some bytes, and zeros behind them. It counts its reads.
class SparseFile : public RecordFile {
public:
    SparseFile(std::string head, std::int64_t length, int& reads)
        : head_{std::move(head)},
          length_{length},
          reads_{reads} {}

    [[nodiscard]] std::int64_t length() const override { return length_; }

    std::size_t read(std::int64_t position, std::span<std::byte> into) override {
        ++reads_;
        const auto count = std::min(static_cast<std::int64_t>(into.size()), length_ - position);
        for (std::int64_t i = 0; i < count; ++i) {
            const auto at = static_cast<std::size_t>(position + i);
            into[static_cast<std::size_t>(i)] = at < head_.size() ? static_cast<std::byte>(head_[at]) : std::byte{0};
        }
        return static_cast<std::size_t>(count);
    }

private:
    std::string head_;
    std::int64_t length_;
    int& reads_;
};

/// A disk on which every file is the same one.
class SparseDisk : public SimulatedDisk {
public:
    SparseDisk(Clock& clock, std::string head, std::int64_t length)
        : SimulatedDisk{clock},
          head_{std::move(head)},
          length_{length} {}

    [[nodiscard]] std::unique_ptr<RecordFile> open(std::string_view) override {
        return std::make_unique<SparseFile>(head_, length_, reads);
    }

    int reads = 0;

private:
    std::string head_;
    std::int64_t length_;
};

struct MpegLongFile : testing::Test {
    TypeTagMpeg read(std::int64_t length, const std::string& head = MpegBytes{}.bytes()) {
        SparseDisk disk{on_disk.clock, head, length};
        TypeTagMpeg header = TypeTagMpeg{disk}.LireEntete(song);
        reads = disk.reads;
        return header;
    }

    MusicDisk on_disk;
    int reads = 0;
};

TEST_F(MpegLongFile, SizeOf31BitsIsTaken) {
    EXPECT_EQ(read(0x7FFFFFFF).Taille(), 0x7FFFFFFF);
}

TEST_F(MpegLongFile, SizeOf32BitsLeavesNoFrame) {
    expect_cleared(read(0x80000000));
}

TEST_F(MpegLongFile, FrameAtTheStartCostsOneRead) {
    (void)read(100'000'000);
    EXPECT_EQ(reads, 1);
}

TEST_F(MpegLongFile, SmallFileWithoutAFrameCostsOneRead) {
    (void)read(4000, "");
    EXPECT_EQ(reads, 1);
}

TEST_F(MpegLongFile, FileWithoutAFrameCostsOneReadPer16KiB) {
    (void)read(std::int64_t{1} << 20, "");
    EXPECT_EQ(reads, 64);
}

TEST_F(MpegLongFile, FalseCandidatesCostNoReads) {
    (void)read(std::int64_t{1} << 20, std::string(std::size_t{1} << 20, '\xFF'));
    EXPECT_LE(reads, 66);
}

} // namespace
} // namespace sonarelle
