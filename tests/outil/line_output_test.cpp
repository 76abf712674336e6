#include "app/outil/line_output.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <csignal>
#include <stdexcept>
#include <string>
#include <thread>
#include <utility>

namespace sonarelle::test {

namespace {

class Pipe {
public:
    Pipe() {
        std::signal(SIGPIPE, SIG_IGN); // as the programs do
        if (::pipe2(ends_.data(), O_CLOEXEC) != 0)
            throw std::runtime_error{"no pipe"};
    }
    ~Pipe() {
        close_reader();
        ::close(ends_[1]);
    }
    Pipe(const Pipe&) = delete;
    Pipe& operator=(const Pipe&) = delete;

    [[nodiscard]] int writer() const { return ends_[1]; }
    void close_reader() { ::close(std::exchange(ends_[0], -1)); }
    void fill() const {
        ::fcntl(writer(), F_SETFL, O_NONBLOCK);
        while (::write(writer(), "x", 1) == 1) {
        }
        ::fcntl(writer(), F_SETFL, 0);
    }
    [[nodiscard]] std::string read_all() {
        ::close(std::exchange(ends_[1], -1));
        std::string text;
        std::array<char, 4096> block{};
        for (ssize_t count = 1; count > 0;) {
            count = ::read(ends_[0], block.data(), block.size());
            text.append(block.data(), static_cast<std::size_t>(std::max<ssize_t>(count, 0)));
        }
        return text;
    }

private:
    std::array<int, 2> ends_{};
};

} // namespace

TEST(LineOutput, GivesItsReaderAllLinesInTheirOrder) {
    Pipe pipe;
    std::string expected;
    {
        LineOutput output{pipe.writer()};
        for (std::size_t i = 0; i < 100; ++i) {
            const std::string line = std::to_string(i) + std::string(i, '.') + '\n';
            expected += line;
            EXPECT_TRUE(output.write(line));
        }
    }
    EXPECT_EQ(pipe.read_all(), expected);
}

TEST(LineOutput, DropsAndCountsWhatFindsNoRoom) {
    Pipe pipe;
    pipe.fill();
    LineOutput output{pipe.writer()};
    for (int i = 0; i < 1000; ++i)
        EXPECT_TRUE(output.write("line\n"));
    EXPECT_FALSE(output.write("line\n"));
    EXPECT_FALSE(output.write("line\n"));

    EXPECT_EQ(output.lost(), 2);
    pipe.close_reader();
}

TEST(LineOutput, DropsAllOnceItsReaderHasGone) {
    Pipe pipe;
    pipe.close_reader();
    LineOutput output{pipe.writer()};
    EXPECT_TRUE(output.write("line\n"));
    while (output.lost() == 0) // until the first line has found out
        std::this_thread::yield();
    EXPECT_FALSE(output.write("line\n"));

    EXPECT_EQ(output.lost(), 2);
}

} // namespace sonarelle::test
