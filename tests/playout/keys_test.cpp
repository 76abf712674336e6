// The letters and menu entries of the main window.
#include "playout/chain_fixture.h"

namespace sonarelle {

namespace {

using Paths = std::vector<std::string>;

class KeysTest : public ChainFixture {
protected:
    Antenne_FM& window = station.main_window;

    void press(std::u32string_view keys) {
        for (const char32_t key : keys)
            window.key_press(key);
    }
    void play_list_for(int seconds_played) {
        open_tracks({200, 200, 200});
        start_list();
        machine.run_for(seconds(seconds_played));
    }
    [[nodiscard]] double position_of(int deck) { return station.deck_ring.deck(deck).graph().get_CurrentPosition(); }
};

} // namespace

TEST_F(KeysTest, OfTheDigitsStepBackOnTheirDecks) {
    open_on_all({100, 100, 100});
    for (int deck = 1; deck <= 3; ++deck)
        station.deck_ring.deck(deck).graph().put_CurrentPosition(50);
    press(U"&1");
    press(U"é2é");
    press(U"\"");
    EXPECT_NEAR(position_of(1), 49.6, 1e-4);
    EXPECT_NEAR(position_of(2), 49.4, 1e-4);
    EXPECT_NEAR(position_of(3), 49.8, 1e-4);
}

TEST_F(KeysTest, OfTheVolumeMoveTheMainDeck) {
    play_list_for(5);
    press(U"bBb");
    EXPECT_EQ(controls(1).slider.value(), 3);
    press(U"hH");
    EXPECT_EQ(controls(1).slider.value(), 1);
}

TEST_F(KeysTest, OfTheVolumeWithoutAMainDeckDoNothing) {
    press(U"bh");
    EXPECT_EQ(controls(1).slider.value(), 0);
}

TEST_F(KeysTest, POfTheMainDeckPausesAndResumes) {
    play_list_for(5);
    press(U"p");
    EXPECT_TRUE(machine.media.on_air().empty());
    press(U"P");
    EXPECT_EQ(machine.media.on_air(), Paths{track(1)});
}

TEST_F(KeysTest, PWithoutAMainDeckSaysSo) {
    machine.dialogs.expect_box("Aucun lecteur en cours", Answer::ok);
    press(U"p");
}

TEST_F(KeysTest, ZZapsTheMainDeck) {
    play_list_for(40);
    press(U"z");
    EXPECT_EQ(rows_started(), (std::vector<int>{1, 2}));
}

TEST_F(KeysTest, ZWithoutAMainDeckSaysSo) {
    machine.dialogs.expect_box("Aucune lecture en cours", Answer::ok);
    press(U"Z");
}

TEST_F(KeysTest, LChoosesTheListChain) {
    press(U"l");
    EXPECT_TRUE(window.mix_list.value());
}

TEST_F(KeysTest, LInManualModeSaysSoAndStaysWithTheDecks) {
    open_on_all({100, 100, 100});
    window.a_mode_manuel.click();
    machine.dialogs.expect_box("Vous ètes en mode manuel\nModifiez cette option pour une lecture de liste", Answer::ok);
    press(U"L");
    EXPECT_EQ(machine.dialogs.last().icon, Icon::information);
    EXPECT_TRUE(window.mix_titles.value());
    EXPECT_EQ(window.deck_chain_lamp.picture.get(), "bouton_noir_petitdoux.jpg");
}

TEST_F(KeysTest, WithoutAMeaningDoNothing) {
    play_list_for(5);
    press(U"kK4ùx");
    EXPECT_EQ(machine.media.on_air(), Paths{track(1)});
    EXPECT_EQ(machine.dialogs.asked().size(), 1U);
}

TEST_F(KeysTest, PlayMenuStartsTheDecks) {
    open_on_all({100, 100, 100});
    window.mix_titles.click();
    window.lire_2.click();
    EXPECT_EQ(machine.media.on_air(), Paths{track(2)});
}

TEST_F(KeysTest, PlayMenuGreysTheEntriesOfTheMainDeck) {
    play_list_for(5);
    window.lire_play.open();
    EXPECT_FALSE(window.lire_1.enabled);
    EXPECT_FALSE(window.Mix1.enabled);
    EXPECT_TRUE(window.lire_2.enabled);
    EXPECT_TRUE(window.Mix3.enabled);
    machine.run_for(seconds(195));
    window.lire_play.open();
    EXPECT_TRUE(window.lire_1.enabled);
    EXPECT_FALSE(window.lire_2.enabled);
    EXPECT_FALSE(window.Mix2.enabled);
}

TEST_F(KeysTest, PlayMenuHasTheFunctionKeys) {
    EXPECT_EQ(window.lire_1.shortcut.get(), "F5");
    EXPECT_EQ(window.lire_3.shortcut.get(), "F7");
    EXPECT_EQ(window.Mix1.shortcut.get(), "F8");
    EXPECT_EQ(window.Mix2.shortcut.get(), "F9");
    EXPECT_EQ(window.Mix3.shortcut.get(), "F11");
    EXPECT_EQ(window.Active_audio.shortcut.get(), "Ctrl+Y");
    EXPECT_EQ(window.Active_audio_zapping.shortcut.get(), "Ctrl+Z");
}

} // namespace sonarelle
