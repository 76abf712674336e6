// The window of bytes that moves over a file.
#include "platform/audio/byte_window.h"

#include <gtest/gtest.h>

#include "memory_file.h"

namespace sonarelle {
namespace {

constexpr std::int64_t length = 500'000;

/// A byte that tells its place well enough.
char byte_at(std::int64_t position) {
    return static_cast<char>(position % 251);
}

std::string counting_bytes() {
    std::string bytes;
    for (std::int64_t position = 0; position < length; ++position)
        bytes += byte_at(position);
    return bytes;
}

/// A file that counts how often it is read.
class CountedFile final : public RecordFile {
public:
    [[nodiscard]] std::int64_t length() const override { return file_.length(); }
    std::size_t read(std::int64_t position, std::span<std::byte> into) override {
        ++reads;
        return file_.read(position, into);
    }
    int reads = 0;

private:
    MemoryFile file_{counting_bytes()};
};

class Window : public testing::Test {
protected:
    void expect_bytes(std::int64_t position, std::size_t count) {
        const std::uint8_t* bytes = window.at(position, count);
        ASSERT_NE(bytes, nullptr) << position;
        for (std::size_t byte = 0; byte < count; ++byte)
            ASSERT_EQ(static_cast<char>(bytes[byte]), byte_at(position + static_cast<std::int64_t>(byte))) << position;
    }

    CountedFile file;
    ByteWindow window{file};
};

TEST_F(Window, GivesTheBytesOfAnyPlace) {
    EXPECT_EQ(window.length(), length);
    for (const std::int64_t position : {0L, 17L, 100'000L, 99'999L, 30'000L, 467'232L, 0L, length - 32'768})
        expect_bytes(position, ByteWindow::capacity / 4);
    expect_bytes(length - 1, 1);
    expect_bytes(length, 0);
}

TEST_F(Window, GivesNothingOutsideTheFile) {
    EXPECT_EQ(window.at(-1, 1), nullptr);
    EXPECT_EQ(window.at(length, 1), nullptr);
    EXPECT_EQ(window.at(length - 10, 11), nullptr);
}

TEST_F(Window, ReadsOnceForManyNearPlaces) {
    for (std::int64_t position = 1000; position < 120'000; position += 100)
        expect_bytes(position, 100);
    EXPECT_EQ(file.reads, 1);
    expect_bytes(1000 + std::int64_t{ByteWindow::capacity}, 1);
    EXPECT_EQ(file.reads, 2);
    expect_bytes(999, 1);
    EXPECT_EQ(file.reads, 3);
}

TEST_F(Window, ReadsAQuarterForAFirstLook) {
    expect_bytes(0, 4);
    EXPECT_EQ(window.left(0), ByteWindow::capacity / 4);
    expect_bytes(ByteWindow::capacity / 4 - 4, 4);
    EXPECT_EQ(file.reads, 1);
}

TEST_F(Window, TellsHowMuchOfItLiesBehindAPlace) {
    EXPECT_EQ(window.left(0), 0U);
    expect_bytes(1000, 1);
    EXPECT_EQ(window.left(999), 0U);
    EXPECT_EQ(window.left(1000), ByteWindow::capacity);
    EXPECT_EQ(window.left(1001), ByteWindow::capacity - 1);
    EXPECT_EQ(window.left(999 + std::int64_t{ByteWindow::capacity}), 1U);
    EXPECT_EQ(window.left(1000 + std::int64_t{ByteWindow::capacity}), 0U);
    expect_bytes(length - 5, 5);
    EXPECT_EQ(window.left(length - 5), 5U);
}

} // namespace
} // namespace sonarelle
