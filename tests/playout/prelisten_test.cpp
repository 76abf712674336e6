// Tracks that are cut after some seconds.
#include "playout/prelisten.h"

#include "playout/random_order_fixture.h"

namespace sonarelle {

namespace {

class PrelistenTest : public RandomOrderFixture {
protected:
    PrelistenTest() {
        open_tracks({200, 200, 40});
        list().defined_end_mode.click();
    }
    void press(std::string_view entered) {
        machine.dialogs.expect_input(entered);
        list().A_precoute.click();
    }
    [[nodiscard]] bool is_on() const { return station.chain.preecoute_active.is_true(); }
};

} // namespace

TEST_F(PrelistenTest, AsksForItsSeconds) {
    press("60");
    EXPECT_EQ(machine.dialogs.last().title, "Lecture pré-écoute");
    EXPECT_EQ(machine.dialogs.last().preset, "60");
    EXPECT_NE(machine.dialogs.last().text.find("valeur_max_jingles en cours : 30"), std::string::npos);
    EXPECT_TRUE(is_on());
    EXPECT_TRUE(list().A_precoute.checked);
    EXPECT_EQ(station.chain.duree_preecoute, 60);
}

TEST_F(PrelistenTest, CutsEachTrackOfTheList) {
    press("60");
    list().play_list.click();
    machine.run_for(seconds(54 * 2));
    EXPECT_EQ(rows_started(), (std::vector<int>{1, 2, 3}));
}

TEST_F(PrelistenTest, LeavesAShorterTrackWhole) {
    press("60");
    list().play_list.click();
    machine.run_for(seconds(54 * 2 + 34));
    EXPECT_EQ(rows_started(), (std::vector<int>{1, 2, 3, 1}));
}

TEST_F(PrelistenTest, OfNoMoreThanAJingleIsOneSecondMore) {
    for (const char* seconds : {"30", "0", "-5"}) {
        press(seconds);
        EXPECT_EQ(station.chain.duree_preecoute, 31);
        list().A_precoute.click();
    }
}

TEST_F(PrelistenTest, CancelledOrWithoutANumberChangesNothing) {
    machine.dialogs.expect_cancel();
    list().A_precoute.click();
    EXPECT_FALSE(is_on());
    EXPECT_FALSE(list().A_precoute.checked);
    press("soixante");
    EXPECT_FALSE(is_on());
    press("");
    EXPECT_FALSE(is_on());
}

TEST_F(PrelistenTest, SwitchedOffTakesTheStoredOverlapBackWithoutAQuestion) {
    press("60");
    station.settings.mix_courant = station.settings.mix_defaut = 1;
    list().A_precoute.click();
    EXPECT_FALSE(is_on());
    EXPECT_FALSE(list().A_precoute.checked);
    EXPECT_EQ(station.settings.mix_courant, 6);
    EXPECT_EQ(station.settings.mix_defaut, 6);
    EXPECT_EQ(station.main_window.overlap.text(), "6");
}

TEST_F(PrelistenTest, EndsWithTheReadingModeOfTheDecks) {
    press("60");
    list().player_mode.click();
    EXPECT_FALSE(is_on());
    EXPECT_FALSE(list().A_precoute.checked);
}

TEST_F(PrelistenTest, SwitchedOffShowsTheStoredOverlapInItsField) {
    press("60");
    station.main_window.overlap.set_text("1");
    list().A_precoute.click();
    EXPECT_EQ(station.main_window.overlap.text(), "6");
}

TEST_F(PrelistenTest, SwitchedOffKeepsTheOverlapWhereTheStoreHasNone) {
    press("60");
    const SettingsStore store{machine.settings, "C:\\Sonarelle", DecimalMark::point};
    for (const char* damaged : {"", "six"}) {
        store.write(setting_section::config, "Mix", damaged);
        station.settings.mix_defaut = 4;
        list().A_precoute.click();
        EXPECT_EQ(station.settings.mix_courant, 4) << damaged;
        press("60");
    }
}

} // namespace sonarelle
