#include "platform/audio/prepared_files.h"

#include <gtest/gtest.h>

namespace sonarelle {
namespace {

PreparedFile prepared(const std::string& path) {
    return {.path = path, .facts = {}, .seconds = 0, .decoder = {}, .opening = {}};
}

TEST(PreparedFiles, GivesAFileOnce) {
    PreparedFiles files;
    files.keep(prepared("a"));
    EXPECT_TRUE(files.take("a").has_value());
    EXPECT_FALSE(files.take("a").has_value());
}

TEST(PreparedFiles, KeepsWhatWasJustGivenUp) {
    PreparedFiles files;
    files.keep(prepared("a"));
    files.forget_old();
    EXPECT_TRUE(files.take("a").has_value());
}

TEST(PreparedFiles, KeepsTheLastFourAndForgetsTheOldest) {
    PreparedFiles files;
    for (const char* path : {"a", "b", "c", "d", "e"})
        files.keep(prepared(path));
    EXPECT_FALSE(files.take("a").has_value());
    for (const char* path : {"b", "c", "d", "e"})
        EXPECT_TRUE(files.take(path).has_value()) << path;
}

TEST(PreparedFiles, HaveNoPlaceForAFileThatWasTaken) {
    PreparedFiles files;
    for (const char* path : {"a", "b", "c", "d"})
        files.keep(prepared(path));
    EXPECT_TRUE(files.take("d").has_value());
    files.keep(prepared("e"));
    EXPECT_TRUE(files.take("a").has_value());
}

TEST(PreparedFiles, AreForgottenAfterTenSeconds) {
    using namespace std::chrono_literals;
    constexpr PreparedFiles::Instant now{1h};
    PreparedFiles files;
    files.keep(prepared("a"), now);
    files.keep(prepared("b"), now + 1ns);
    files.forget_old(now + 10s);
    files.forget_old(now + 10s + 1ns);
    EXPECT_FALSE(files.take("a").has_value());
    EXPECT_TRUE(files.take("b").has_value());
}

TEST(PreparedFiles, GiveTheNewestOfOnePath) {
    PreparedFiles files;
    for (const double seconds : {1.0, 2.0}) {
        PreparedFile file = prepared("a");
        file.seconds = seconds;
        files.keep(std::move(file));
    }
    EXPECT_EQ(files.take("a")->seconds, 2);
    EXPECT_EQ(files.take("a")->seconds, 1);
}

} // namespace
} // namespace sonarelle
