#include <gtest/gtest.h>

#include <cstdlib>
#include <ctime>
#include <optional>

#include "platform/host/host_calendar.h"
#include "platform/host/host_folders.h"
#include "support/private_folder.h"

namespace sonarelle::test {

/// A variable of the environment, for the time of a test.
class Variable {
public:
    Variable(const char* name, const std::optional<std::string>& value)
        : name_{name} {
        if (const char* old = std::getenv(name))
            old_ = old;
        put(value);
    }
    ~Variable() { put(old_); }
    Variable(const Variable&) = delete;
    Variable& operator=(const Variable&) = delete;

private:
    void put(const std::optional<std::string>& value) {
        if (value)
            ::setenv(name_, value->c_str(), 1);
        else
            ::unsetenv(name_);
    }

    const char* name_;
    std::optional<std::string> old_;
};

TEST(HostFolders, LieWhereTheXdgVariablesSay) {
    PrivateFolder folder;
    const Variable data{"XDG_DATA_HOME", folder.path("data")};
    const Variable config{"XDG_CONFIG_HOME", folder.path("config")};
    const Variable cache{"XDG_CACHE_HOME", folder.path("cache")};
    const HostFolders folders = host_folders(std::nullopt);

    EXPECT_EQ(folders.program, folder.path("data/sonarelle"));
    EXPECT_EQ(folders.settings, folder.path("config/sonarelle/reglages.json"));
    EXPECT_EQ(folders.drive_table, folder.path("config/sonarelle/lecteurs.json"));
    EXPECT_EQ(folders.output_choice, folder.path("config/sonarelle/sortie.json"));
    EXPECT_EQ(folders.waveforms, folder.path("cache/sonarelle/ondes"));
}

TEST(HostFolders, AreNotMadeByLooking) {
    PrivateFolder folder;
    const Variable data{"XDG_DATA_HOME", folder.path("data")};
    const Variable config{"XDG_CONFIG_HOME", folder.path("config")};
    (void)host_folders(std::nullopt);
    (void)host_folders(folder.path("station"));

    EXPECT_TRUE(folder.names().empty());
}

TEST(HostFolders, LieBelowTheHomeWithoutTheVariables) {
    PrivateFolder folder;
    const Variable home{"HOME", folder.path()};
    const Variable data{"XDG_DATA_HOME", std::nullopt};
    const Variable config{"XDG_CONFIG_HOME", "relative"};
    const Variable cache{"XDG_CACHE_HOME", std::nullopt};
    const HostFolders folders = host_folders(std::nullopt);

    EXPECT_EQ(folders.program, folder.path(".local/share/sonarelle"));
    EXPECT_EQ(folders.settings, folder.path(".config/sonarelle/reglages.json"));
    EXPECT_EQ(folders.waveforms, folder.path(".cache/sonarelle/ondes"));
}

TEST(HostFolders, AllLieInTheFolderThatIsNamed) {
    PrivateFolder folder;
    const HostFolders folders = host_folders(folder.path("station/"));

    EXPECT_EQ(folders.program, folder.path("station"));
    EXPECT_EQ(folders.settings, folder.path("station/reglages.json"));
    EXPECT_EQ(folders.drive_table, folder.path("station/lecteurs.json"));
    EXPECT_EQ(folders.output_choice, folder.path("station/sortie.json"));
    EXPECT_EQ(folders.waveforms, folder.path("station/ondes"));
}

TEST(HostCalendar, CountsInTheOperatorsTimeZone) {
    const Variable zone{"TZ", "XST-14"}; // 14 hours before Greenwich
    ::tzset();
    constexpr std::time_t ahead = 14 * 3600;
    const std::time_t before = std::time(nullptr) + ahead;
    const CalendarTime here = host_calendar();
    const std::time_t after = std::time(nullptr) + ahead;

    std::tm shown{};
    shown.tm_year = here.year - 1900;
    shown.tm_mon = here.month - 1;
    shown.tm_mday = here.day;
    shown.tm_hour = here.hour;
    shown.tm_min = here.minute;
    shown.tm_sec = here.second;
    EXPECT_LE(before, ::timegm(&shown));
    EXPECT_LE(::timegm(&shown), after);
}

} // namespace sonarelle::test
