#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <vector>

#include "platform/failure.h"
#include "platform/host/host_settings.h"
#include "support/child_process.h"
#include "support/private_folder.h"

namespace sonarelle::test {

using testing::ElementsAre;
using testing::HasSubstr;

constexpr const char* application = "Sonarelle V6";

struct SettingsFixture {
    [[nodiscard]] std::string config(std::string_view key) {
        return settings.GetSetting(application, "Config", key, "absent");
    }
    void save(std::string_view key, std::string_view value) { settings.SaveSetting(application, "Config", key, value); }
    /// Dates the file's last writing back.
    std::filesystem::file_time_type set_age(std::chrono::nanoseconds age) {
        std::filesystem::last_write_time(folder.path("reglages.json"),
                                         std::filesystem::file_time_type::clock::now() - age);
        return std::filesystem::last_write_time(folder.path("reglages.json"));
    }
    /// Changes a text in the file, as an editor that writes in place.
    void edit(std::string_view from, std::string_view to) {
        std::string json = folder.bytes("reglages.json");
        folder.put("reglages.json", json.replace(json.find(from), from.size(), to));
    }

    PrivateFolder folder;
    HostSettings settings{folder.path("reglages.json")};
};

TEST(HostSettings, GivesBackWhatWasSaved) {
    SettingsFixture bench;
    bench.save("Nom_antenne_fm", "Radio « Été » \"98\"\\\n");

    EXPECT_EQ(bench.config("Nom_antenne_fm"), "Radio « Été » \"98\"\\\n");
    HostSettings anew{bench.folder.path("reglages.json")};
    EXPECT_EQ(anew.GetSetting(application, "Config", "Nom_antenne_fm", ""), "Radio « Été » \"98\"\\\n");
}

TEST(HostSettings, GivesTheDefaultWithoutAValueAndMakesNoFile) {
    SettingsFixture bench;

    EXPECT_EQ(bench.config("Mix"), "absent");
    EXPECT_FALSE(bench.folder.exists("reglages.json"));
}

TEST(HostSettings, EmptyValueIsAValue) {
    SettingsFixture bench;
    bench.save("Load_combo1", "");

    EXPECT_EQ(bench.config("Load_combo1"), "");
}

TEST(HostSettings, CompareNamesIgnoringTheCaseOfAccentedLettersToo) {
    SettingsFixture bench;
    bench.save("Préchargement", "7");
    bench.settings.SaveSetting("SONARELLE v6", "CONFIG", "PRÉCHARGEMENT", "8");

    EXPECT_EQ(bench.config("préchargement"), "8");
    EXPECT_THAT(bench.settings.all(application), ElementsAre(Setting{"Config", "Préchargement", "8"}));
}

TEST(HostSettings, ListBySectionAndThenInTheOrderOfFirstWriting) {
    SettingsFixture bench;
    bench.settings.SaveSetting(application, "Position", "Position_haut", "100");
    bench.save("Mix", "6");
    bench.save("Logo", "x");
    bench.save("Mix", "7");

    EXPECT_THAT(bench.settings.all(application),
                ElementsAre(Setting{"Config", "Mix", "7"}, Setting{"Config", "Logo", "x"},
                            Setting{"Position", "Position_haut", "100"}));
}

TEST(HostSettings, FileIsReadableAndInUtf8) {
    SettingsFixture bench;
    bench.save("Préchargement", "7");

    EXPECT_EQ(bench.folder.bytes("reglages.json"), "{\n"
                                                   "    \"Sonarelle V6\": {\n"
                                                   "        \"Config\": {\n"
                                                   "            \"Préchargement\": \"7\"\n"
                                                   "        }\n"
                                                   "    }\n"
                                                   "}\n");
}

TEST(HostSettings, SeeWhatAnEditorChangedAtTheNextReading) {
    SettingsFixture bench;
    bench.save("Mix", "6");
    bench.set_age(std::chrono::hours{1});
    EXPECT_EQ(bench.config("Mix"), "6");
    bench.edit("\"6\"", "\"9\"");

    EXPECT_EQ(bench.config("Mix"), "9");
}

TEST(HostSettings, SeeAChangeWithinTheSameStepOfTheDisksClock) {
    SettingsFixture bench;
    bench.save("Mix", "6");
    const auto time = bench.set_age(-std::chrono::hours{1});
    EXPECT_EQ(bench.config("Mix"), "6");
    bench.edit("\"6\"", "\"9\"");
    std::filesystem::last_write_time(bench.folder.path("reglages.json"), time);

    EXPECT_EQ(bench.config("Mix"), "9");
}

TEST(HostSettings, KeepOtherApplicationsOfTheFile) {
    SettingsFixture bench;
    bench.settings.SaveSetting("Autre", "Config", "Mix", "1");
    bench.save("Mix", "6");

    EXPECT_EQ(bench.settings.GetSetting("Autre", "Config", "Mix", ""), "1");
}

TEST(HostSettings, MakeTheirFolder) {
    PrivateFolder folder;
    HostSettings settings{folder.path("un/deux/reglages.json")};
    settings.SaveSetting(application, "Config", "Mix", "6");

    EXPECT_TRUE(folder.exists("un/deux/reglages.json"));
}

TEST(HostSettings, SaveAllOfManyOrNone) {
    SettingsFixture bench;
    const std::vector<Setting> settings{{"Config", "Mix", "6"}, {"Config", "Logo", "\xFF"}};

    EXPECT_EQ(failure_of([&] { bench.settings.save_all(application, settings); }), FailureNumber::wrong_call);
    EXPECT_EQ(bench.config("Mix"), "absent");
}

TEST(HostSettings, SavingTheSameValueDoesNotTouchTheFile) {
    SettingsFixture bench;
    bench.save("Mix", "6");
    const auto written = std::filesystem::last_write_time(bench.folder.path("reglages.json"));
    std::filesystem::last_write_time(bench.folder.path("reglages.json"), written - std::chrono::hours{1});
    bench.save("Mix", "6");

    EXPECT_EQ(std::filesystem::last_write_time(bench.folder.path("reglages.json")), written - std::chrono::hours{1});
}

struct DamagedText {
    const char* name;
    const char* text;
    const char* description;
};

class DamagedSettings : public testing::TestWithParam<DamagedText> {};

TEST_P(DamagedSettings, AreNamedToTheReader) {
    SettingsFixture bench;
    bench.folder.put("reglages.json", GetParam().text);
    try {
        (void)bench.config("Mix");
        FAIL();
    } catch (const Failure& failure) {
        EXPECT_EQ(failure.number, FailureNumber::device_fault);
        EXPECT_EQ(failure.source, bench.folder.path("reglages.json"));
        EXPECT_THAT(failure.description, HasSubstr(GetParam().description));
    }
}

TEST_P(DamagedSettings, AreSetAsideByTheWriter) {
    SettingsFixture bench;
    bench.folder.put("reglages.json", GetParam().text);
    bench.save("Mix", "6");

    EXPECT_EQ(bench.config("Mix"), "6");
    EXPECT_EQ(bench.folder.bytes("reglages.json.abime"), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(
    HostSettings, DamagedSettings,
    testing::Values(
        DamagedText{"Empty", "", "ce n'est pas du JSON"},
        DamagedText{"NoJson", "Mix=6\n", "ce n'est pas du JSON (ligne 1)"},
        DamagedText{"Cut", "{\n\"Sonarelle V6\": {\n\"Config\": {\"Mix\": \"6\"", "(ligne 3)"},
        DamagedText{"MoreBehind", "{}\n}", "(ligne 2)"},
        DamagedText{"BrokenUtf8", "{\"a\": {\"b\": {\"c\": \"\xE9\"}}}", "ce n'est pas du JSON"},
        DamagedText{"NumberAsValue", R"({"a": {"b": {"Mix": 6}}})", "« Mix » n'est pas un texte entre guillemets"},
        DamagedText{"GroupAsValue", R"({"a": {"b": {"Mix": {}}}})", "« Mix » n'est pas un texte entre guillemets"},
        DamagedText{"TextAsSection", R"({"a": {"Config": "x"}})", "« Config » n'est pas un groupe"},
        DamagedText{"ListAsApplication", R"({"a": ["x"]})", "« a » n'est pas un groupe"},
        DamagedText{"ListAsWhole", "[]", "accolade"}),
    [](const auto& test) { return std::string{test.param.name}; });

TEST(HostSettings, DamagedFilesThatWereSetAsideBeforeStay) {
    SettingsFixture bench;
    for (const char* damage : {"un", "deux", "trois"}) {
        bench.folder.put("reglages.json", damage);
        bench.save("Mix", "6");
    }

    EXPECT_EQ(bench.folder.bytes("reglages.json.abime"), "un");
    EXPECT_EQ(bench.folder.bytes("reglages.json.abime-2"), "deux");
    EXPECT_EQ(bench.folder.bytes("reglages.json.abime-3"), "trois");
}

TEST(HostSettings, TwoProgramsAtOnceLoseNoKey) {
    SettingsFixture bench;
    const auto write_keys = [&](const std::string& name) {
        HostSettings settings{bench.folder.path("reglages.json")};
        for (int i = 0; i < 200; ++i)
            settings.SaveSetting(application, "Config", name + std::to_string(i), name);
    };
    const pid_t first = start_child([&] { write_keys("un"); });
    const pid_t second = start_child([&] { write_keys("deux"); });
    ASSERT_EQ(end_of_child(first), 0);
    ASSERT_EQ(end_of_child(second), 0);

    EXPECT_EQ(bench.settings.all(application).size(), 400U);
    EXPECT_THAT(bench.folder.names(), ElementsAre(".reglages.verrou", "reglages.json"));
}

} // namespace sonarelle::test
