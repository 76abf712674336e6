#include <gtest/gtest.h>

#include <cstdlib>
#include <string>

namespace {

std::string variable(const char* name) {
    const char* value = std::getenv(name);
    return value == nullptr ? "" : value;
}

TEST(TestEnvironment, KeepsTheUsersSettingsOutOfReach) {
    EXPECT_TRUE(variable("XDG_CONFIG_HOME").ends_with("/test-home/config"));
}

TEST(TestEnvironment, KeepsTheUsersStationOutOfReach) {
    EXPECT_TRUE(variable("XDG_DATA_HOME").ends_with("/test-home/data"));
}

TEST(TestEnvironment, KeepsTheUsersCacheOutOfReach) {
    EXPECT_TRUE(variable("XDG_CACHE_HOME").ends_with("/test-home/cache"));
}

TEST(TestEnvironment, NamesTheCommandLine) {
    EXPECT_TRUE(variable("SONARELLE_OUTIL").ends_with("/sonarelle-outil"));
}

} // namespace
