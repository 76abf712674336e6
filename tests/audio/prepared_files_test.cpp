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

} // namespace
} // namespace sonarelle
