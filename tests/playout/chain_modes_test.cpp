#include "playout/chain_modes.h"

#include "playout/chain_fixture.h"

namespace sonarelle {

namespace {

using Paths = std::vector<std::string>;

class ChainModesTest : public ChainFixture {
protected:
    Antenne_FM& window = station.main_window;
    Liste_son& list = station.list_window;

    [[nodiscard]] std::vector<bool> modes() {
        std::vector<bool> checked;
        for (const MenuItem* entry : window.chain_modes())
            checked.push_back(entry->checked);
        return checked;
    }
    [[nodiscard]] std::vector<bool> fade_rules() {
        std::vector<bool> checked;
        for (const MenuItem* entry : window.fade_rules())
            checked.push_back(entry->checked);
        return checked;
    }
    [[nodiscard]] bool is_list_mode() { return station.chain.mode_enchainement.is_true(); }
    [[nodiscard]] bool is_deck_mode() { return station.chain.mode_enchainement.is_false(); }

    /// A list of two long tracks whose records end at 100.
    void start_list_that_ends_at_a_hundred() {
        machine.add_track(track(1), 200);
        machine.add_track(track(2), 200);
        open_list("C:\\Sonarelle\\essai.dfm", {record_of(track(1), "100"), record_of(track(2), "100")});
        rows().select(1);
        start_list();
    }
};

} // namespace

TEST_F(ChainModesTest, ManualNeedsThreeLoadedDecks) {
    open_on_all({100, 100});
    machine.dialogs.expect_box("les trois lecteurs doivent etre chargés\navant de passer en mode manuel ", Answer::ok);
    window.a_mode_manuel.click();
    EXPECT_EQ(modes(), (std::vector<bool>{false, false, false}));
}

TEST_F(ChainModesTest, ManualPutsTheChainOff) {
    open_on_all({100, 100, 100});
    window.a_mode_manuel.click();
    EXPECT_EQ(modes(), (std::vector<bool>{true, false, false}));
    EXPECT_TRUE(is_deck_mode());
    EXPECT_FALSE(window.deck_chain_timer.enabled());
    EXPECT_FALSE(window.list_chain_timer.enabled());
    EXPECT_TRUE(window.mix_titles.value());
    EXPECT_EQ(window.mix_titles.caption.get(), "Mix Manuel");
    EXPECT_EQ(station.chain.lecteur_en_cours, 0);
}

TEST_F(ChainModesTest, ManualLeavesTheTickAndTheRowOfTheListAlone) {
    window.Active_journal.click();
    std::vector<std::string> lines;
    station.journal.on_line = [&lines](const std::string& line) { lines.push_back(line); };
    open_on_all({100, 100, 100});
    window.a_mode_predefini.click();
    window.load_ahead_timer.disable();
    station.list.index_en_cours = 5;
    window.a_mode_manuel.click();
    EXPECT_FALSE(window.load_ahead_timer.enabled());
    EXPECT_EQ(station.list.index_en_cours, 5);
    EXPECT_TRUE(lines.empty());
}

TEST_F(ChainModesTest, ManualFreesTheDecksAndBarsTheSpecialMixes) {
    open_on_all({100, 100, 100});
    for (DeckControls& deck : window.decks) {
        deck.play.enabled = false;
        deck.open.enabled = false;
    }
    window.a_mode_manuel.click();
    for (DeckControls& deck : window.decks) {
        EXPECT_TRUE(deck.play.enabled);
        EXPECT_TRUE(deck.open.enabled);
        EXPECT_FALSE(deck.special_mix.enabled);
    }
}

TEST_F(ChainModesTest, ManualTicksDoNothing) {
    open_tracks({100, 100});
    start_list();
    machine.run_for(seconds(10));
    station.chain.chemin_lecture2 = track(2);
    station.chain.chemin_lecture3 = track(2);
    window.a_mode_manuel.click();
    const std::string remaining = list.remaining.caption;
    machine.run_for(seconds(200));
    EXPECT_EQ(list.remaining.caption.get(), remaining);
    EXPECT_EQ(times_of(OnAirEvent::Kind::started).size(), 1U);
}

TEST_F(ChainModesTest, ManualDecksPlayTogetherAndNoneFollows) {
    open_on_all({30, 40, 50});
    window.a_mode_manuel.click();
    controls(1).play.click();
    controls(2).play.click();
    machine.run_for(seconds(10));
    EXPECT_EQ(machine.media.on_air(), (Paths{track(1), track(2)}));
    EXPECT_EQ(controls(1).progress.value, 10);
    EXPECT_EQ(window.chain_status.caption.get(), "Mode manuel");
    machine.run_for(seconds(100));
    EXPECT_TRUE(machine.media.on_air().empty());
    EXPECT_TRUE(window.a_mode_manuel.checked);
}

TEST_F(ChainModesTest, ManualZapButtonDoesNothing) {
    open_on_all({30, 40, 50});
    window.a_mode_manuel.click();
    controls(1).play.click();
    controls(1).zap.click();
    EXPECT_EQ(machine.media.on_air(), Paths{track(1)});
}

TEST_F(ChainModesTest, AutoIsTheChainOverDecks) {
    window.a_mode_auto.click();
    EXPECT_EQ(modes(), (std::vector<bool>{false, true, false}));
    EXPECT_TRUE(is_deck_mode());
    EXPECT_TRUE(window.deck_chain_timer.enabled());
    EXPECT_EQ(window.deck_chain_timer.interval(), 1000);
    EXPECT_FALSE(window.list_chain_timer.enabled());
    EXPECT_TRUE(window.load_ahead_timer.enabled());
    EXPECT_TRUE(list.player_mode.value());
    EXPECT_FALSE(list.A_a_zapping.checked);
    EXPECT_FALSE(list.A_precoute.enabled);
}

TEST_F(ChainModesTest, AutoAfterManualFreesTheSpecialMixes) {
    open_on_all({30, 40, 50});
    window.a_mode_manuel.click();
    window.a_mode_auto.click();
    EXPECT_EQ(window.mix_titles.caption.get(), "Mixer les titres");
    for (const DeckControls& deck : window.decks)
        EXPECT_TRUE(deck.special_mix.enabled);
}

TEST_F(ChainModesTest, PredefinedIsTheChainFromTheList) {
    window.a_mode_predefini.click();
    EXPECT_EQ(modes(), (std::vector<bool>{false, false, true}));
    EXPECT_TRUE(is_list_mode());
    EXPECT_FALSE(window.deck_chain_timer.enabled());
    EXPECT_TRUE(window.list_chain_timer.enabled());
    EXPECT_TRUE(window.load_ahead_timer.enabled());
    EXPECT_TRUE(window.Active_audio.checked);
    EXPECT_TRUE(window.Active_audio.enabled);
    EXPECT_TRUE(list.A_a_zapping.checked);
    EXPECT_TRUE(list.A_precoute.enabled);
    EXPECT_EQ(window.overlap.text(), "6");
    EXPECT_EQ(list.progress.caption.get(), "( - - )");
}

TEST_F(ChainModesTest, FirstOptionReadsTheWholeFileOverDecks) {
    start_list_that_ends_at_a_hundred();
    EXPECT_EQ(controls(1).counter.caption.get(), "100");
    list.player_mode.click();
    EXPECT_EQ(controls(1).counter.caption.get(), "200");
    EXPECT_TRUE(is_deck_mode());
    EXPECT_TRUE(window.deck_chain_timer.enabled());
    EXPECT_FALSE(window.list_chain_timer.enabled());
    EXPECT_EQ(fade_rules(), (std::vector<bool>{false, false, true, false}));
    EXPECT_EQ(list.jingles_status.caption.get(), "Jingle Off");
}

TEST_F(ChainModesTest, FirstOptionPutsBothInsertionsOff) {
    for (Image* button : {&list.jingles_switch, &list.items_switch})
        button->picture = "bouton_on.jpg";
    list.player_mode.click();
    EXPECT_EQ(list.items_status.caption.get(), "Liste Off");
    EXPECT_EQ(list.jingles_switch.picture.get(), "bouton_off.jpg");
    EXPECT_EQ(list.items_switch.picture.get(), "bouton_off.jpg");
}

TEST_F(ChainModesTest, ThirdOptionPutsTheInsertionOfListItemsOffAlone) {
    for (Image* button : {&list.jingles_switch, &list.items_switch})
        button->picture = "bouton_on.jpg";
    list.defined_end_mode.click();
    EXPECT_EQ(list.items_status.caption.get(), "liste Off");
    EXPECT_EQ(list.jingles_switch.picture.get(), "bouton_on.jpg");
    EXPECT_EQ(list.items_switch.picture.get(), "bouton_off.jpg");
}

TEST_F(ChainModesTest, SecondOptionReadsAtRandom) {
    list.random_mode.click();
    EXPECT_TRUE(station.chain.ordre_aleatoire.is_true());
    EXPECT_TRUE(is_list_mode());
    EXPECT_TRUE(window.list_chain_timer.enabled());
    EXPECT_FALSE(window.deck_chain_timer.enabled());
}

TEST_F(ChainModesTest, ThirdAndFourthOptionOfferThePreListenAgain) {
    for (OptionButton* option : {&list.defined_end_mode, &list.full_length_mode}) {
        window.a_mode_auto.click();
        ASSERT_FALSE(list.A_precoute.enabled);
        option->click();
        EXPECT_TRUE(list.A_precoute.enabled);
    }
}

TEST_F(ChainModesTest, ThirdOptionReadsToTheRecordsEnd) {
    start_list_that_ends_at_a_hundred();
    list.player_mode.click();
    list.defined_end_mode.click();
    EXPECT_EQ(controls(1).counter.caption.get(), "100");
    EXPECT_TRUE(station.chain.ordre_aleatoire.is_false());
    EXPECT_TRUE(is_list_mode());
    EXPECT_EQ(fade_rules(), (std::vector<bool>{false, true, false, false}));
}

TEST_F(ChainModesTest, FourthOptionReadsTheWholeFileFromTheNextLoadOn) {
    start_list_that_ends_at_a_hundred();
    list.full_length_mode.click();
    EXPECT_EQ(controls(1).counter.caption.get(), "100");
    machine.run_for(seconds(95));
    EXPECT_EQ(controls(2).counter.caption.get(), "200");
    machine.run_for(seconds(190));
    EXPECT_EQ(times_of(OnAirEvent::Kind::started), (Times{{0, 1}, {94, 2}}));
}

TEST_F(ChainModesTest, PreListenOfTheThirdOptionCutsTheDeckThatPlays) {
    start_list_that_ends_at_a_hundred();
    list.player_mode.click();
    station.chain.preecoute_active = true;
    station.chain.duree_preecoute = 20;
    list.defined_end_mode.click();
    EXPECT_EQ(controls(1).counter.caption.get(), "20");
}

TEST_F(ChainModesTest, OptionsOfTheListAreItsPicturesToo) {
    list.full_length_lamp.click();
    EXPECT_TRUE(list.full_length_mode.value());
    list.defined_end_lamp.click();
    EXPECT_TRUE(list.defined_end_mode.value());
    list.random_lamp.click();
    EXPECT_TRUE(list.random_mode.value());
    list.player_lamp.click();
    EXPECT_TRUE(list.player_mode.value());
}

TEST_F(ChainModesTest, ListMenuTogglesToTheListChain) {
    list.A_a_zapping.click();
    EXPECT_TRUE(is_list_mode());
    EXPECT_EQ(station.settings.mix_courant, 1);
    EXPECT_EQ(window.overlap.text(), "1");
    EXPECT_TRUE(window.list_chain_timer.enabled());
    EXPECT_TRUE(window.load_ahead_timer.enabled());
    EXPECT_FALSE(window.deck_chain_timer.enabled());
    EXPECT_TRUE(list.defined_end_mode.value());
    EXPECT_EQ(modes(), (std::vector<bool>{false, false, true}));
    EXPECT_EQ(fade_rules(), (std::vector<bool>{false, true, false, false}));
}

TEST_F(ChainModesTest, ListMenuTogglesBackToTheChainOverDecks) {
    list.A_a_zapping.click();
    list.A_a_zapping.click();
    EXPECT_TRUE(is_deck_mode());
    EXPECT_TRUE(window.deck_chain_timer.enabled());
    EXPECT_EQ(window.deck_chain_timer.interval(), 1000);
    EXPECT_FALSE(window.list_chain_timer.enabled());
    EXPECT_TRUE(list.player_mode.value());
    EXPECT_EQ(modes(), (std::vector<bool>{false, true, false}));
}

TEST_F(ChainModesTest, MixingTitlesPutsTheRowBackToTheFirst) {
    station.list.index_en_cours = 7;
    window.mix_titles.click();
    EXPECT_EQ(station.list.index_en_cours, 1);
    EXPECT_EQ(list.caption.get(), "Sonarelle ( Mix lecteur )");
    EXPECT_FALSE(window.Active_audio.enabled);
    EXPECT_EQ(modes(), (std::vector<bool>{false, true, false}));
}

TEST_F(ChainModesTest, MixingAListReadsTheOverlapFromItsField) {
    window.overlap.set_text("4");
    station.chain.chaine_suspendue = true;
    window.mix_list.click();
    EXPECT_EQ(station.settings.mix_courant, 4);
    EXPECT_EQ(list.caption.get(), "Sonarelle ( Mix liste )");
    EXPECT_TRUE(station.chain.chaine_suspendue.is_false());
    EXPECT_EQ(window.load_ahead.value(), 1);
    EXPECT_EQ(modes(), (std::vector<bool>{false, false, true}));
}

TEST_F(ChainModesTest, MixingAListWithAnEmptyFieldTakesTwoSeconds) {
    window.overlap.set_text("");
    window.mix_list.click();
    EXPECT_EQ(station.settings.mix_courant, 2);
    EXPECT_EQ(window.overlap.text(), "2");
}

TEST_F(ChainModesTest, MixingAListWithAFieldThatIsNoNumberSaysSo) {
    window.overlap.set_text("six");
    machine.dialogs.expect_box("Une erreur est apparue !", Answer::ok);
    window.mix_list.click();
    EXPECT_NE(machine.dialogs.last().text.find(" - 13"), std::string::npos);
}

TEST_F(ChainModesTest, LampOfTheDecksLeavesTheFadeTimerOn) {
    window.deck_chain_lamp.click();
    EXPECT_TRUE(is_deck_mode());
    EXPECT_TRUE(window.overlap_timer.enabled());
    EXPECT_FALSE(window.list_chain_timer.enabled());
    EXPECT_EQ(list.player_lamp.picture.get(), "bouton_on.jpg");
    EXPECT_EQ(list.full_length_lamp.picture.get(), "bouton_off.jpg");
    EXPECT_FALSE(list.A_precoute.enabled);
}

TEST_F(ChainModesTest, LampOfTheListChoosesTheFullLength) {
    window.list_chain_lamp.click();
    EXPECT_TRUE(is_list_mode());
    EXPECT_TRUE(list.full_length_mode.value());
    EXPECT_TRUE(window.mix_list.value());
    EXPECT_TRUE(window.list_chain_timer.enabled());
    EXPECT_TRUE(window.load_ahead_timer.enabled());
    EXPECT_FALSE(window.deck_chain_timer.enabled());
    EXPECT_EQ(window.list_chain_lamp.picture.get(), "bouton_noir_petitdoux.jpg");
    EXPECT_EQ(list.full_length_lamp.picture.get(), "bouton_on.jpg");
    EXPECT_TRUE(list.A_a_zapping.checked);
}

TEST_F(ChainModesTest, SwitchingTheFadeOffCutsTheOutgoingDeckAtOnce) {
    open_tracks({100, 100});
    start_list();
    window.Désactive_audio.click();
    EXPECT_TRUE(is_deck_mode());
    EXPECT_FALSE(window.deck_chain_timer.enabled());
    station.chain.mode_enchainement = true;
    machine.run_for(seconds(95));
    EXPECT_EQ(machine.media.on_air(), Paths{track(2)});
}

TEST_F(ChainModesTest, FadeRulesExcludeEachOther) {
    window.Active_audio.click();
    window.Active_audio_zapping.click();
    EXPECT_EQ(fade_rules(), (std::vector<bool>{false, false, true, false}));
    window.Active_audio_jingles.click();
    EXPECT_EQ(fade_rules(), (std::vector<bool>{true, false, false, false}));
}

} // namespace sonarelle
