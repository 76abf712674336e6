#include "platform/simulated/simulated_settings.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>

#include "platform/failure.h"

namespace sonarelle {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::string_view app = "Sonarelle";

TEST(SimulatedSettings, AMissingKeyGivesTheOtherValue) {
    SimulatedSettings settings;
    EXPECT_EQ(settings.GetSetting(app, "Mix", "Mix", "6"), "6");
}

TEST(SimulatedSettings, ASavedKeyGivesItsValueEvenWhenEmpty) {
    SimulatedSettings settings;
    settings.SaveSetting(app, "Mix", "Mix", "");
    EXPECT_EQ(settings.GetSetting(app, "Mix", "Mix", "6"), "");
}

TEST(SimulatedSettings, KeysMatchIgnoringCaseOverAccents) {
    SimulatedSettings settings;
    settings.SaveSetting(app, "Options", "Préchargement", "7");
    EXPECT_EQ(settings.GetSetting("SONARELLE", "OPTIONS", "PRÉCHARGEMENT", ""), "7");
    EXPECT_EQ(settings.GetSetting(app, "Options", "Prechargement", "none"), "none");
}

TEST(SimulatedSettings, AnotherWriteKeepsTheFirstSpelling) {
    SimulatedSettings settings;
    settings.SaveSetting(app, "Mix", "Mix_audio", "13");
    settings.SaveSetting(app, "MIX", "MIX_AUDIO", "14");
    EXPECT_THAT(settings.all(app), ElementsAre(Setting{"Mix", "Mix_audio", "14"}));
}

TEST(SimulatedSettings, AllComeBySectionInTheOrderOfTheirWriting) {
    SimulatedSettings settings;
    settings.SaveSetting(app, "b", "z", "1");
    settings.SaveSetting(app, "A", "y", "2");
    settings.SaveSetting(app, "B", "x", "3");
    EXPECT_THAT(settings.all(app), ElementsAre(Setting{"A", "y", "2"}, Setting{"b", "z", "1"}, Setting{"B", "x", "3"}));
}

TEST(SimulatedSettings, ApplicationsAreApart) {
    SimulatedSettings settings;
    settings.SaveSetting(app, "Mix", "Mix", "6");
    EXPECT_THAT(settings.all("Autre"), IsEmpty());
}

TEST(SimulatedSettings, ARefusedWriteChangesNothing) {
    SimulatedSettings settings;
    settings.SaveSetting(app, "Mix", "Mix", "6");
    settings.refuse_writes();
    const std::array two{Setting{"Mix", "Mix", "7"}, Setting{"Mix", "Mix_audio", "13"}};
    try {
        settings.save_all(app, two);
        ADD_FAILURE() << "it was written";
    } catch (const Failure& failure) {
        EXPECT_EQ(failure.number, FailureNumber::path_access);
    }
    EXPECT_THAT(settings.all(app), ElementsAre(Setting{"Mix", "Mix", "6"}));
}

TEST(SimulatedSettings, ARefusalHasItsNumberAndEnds) {
    SimulatedSettings settings;
    settings.refuse_writes(FailureNumber::device_fault);
    try {
        settings.SaveSetting(app, "Mix", "Mix", "6");
        ADD_FAILURE() << "it was written";
    } catch (const Failure& failure) {
        EXPECT_EQ(failure.number, FailureNumber::device_fault);
    }
    settings.refuse_writes(FailureNumber::none);
    settings.SaveSetting(app, "Mix", "Mix", "6");
    EXPECT_EQ(settings.GetSetting(app, "Mix", "Mix", ""), "6");
}

} // namespace

} // namespace sonarelle
