// What the windows show while a list or the decks are followed, and where that ends.
#include <array>
#include <functional>

#include "playout/chain_fixture.h"

namespace sonarelle {

namespace {

using Paths = std::vector<std::string>;

class ShownWhileFollowing : public ChainFixture {
protected:
    void play_list_for(int seconds_played) {
        open_tracks({200, 200, 200});
        start_list();
        machine.run_for(seconds(seconds_played));
    }
    void play_decks_for(int seconds_played) {
        open_on_all({100, 100, 100});
        controls(1).play.click();
        machine.run_for(seconds(seconds_played));
    }

    Antenne_FM& window = station.main_window;
    Liste_son& list = station.list_window;
};

using ChainChoice = ShownWhileFollowing;

} // namespace

TEST_F(ShownWhileFollowing, ListNamesItsDeckAndItsMixPoint) {
    play_list_for(5);
    EXPECT_EQ(window.running_chain.caption.get(), " Mix liste : Play 1");
    EXPECT_EQ(window.chain_status.caption.get(), "Play 1 : liste mix a 194");
}

TEST_F(ShownWhileFollowing, ListTellsTheTimeOfDay) {
    play_list_for(5);
    const std::string before = list.time_of_day.caption;
    machine.run_for(seconds(3));
    EXPECT_EQ(before.size(), 8U);
    EXPECT_NE(list.time_of_day.caption.get(), before);
}

TEST_F(ShownWhileFollowing, ListCountsDownOnTheSmallPlayer) {
    play_list_for(30);
    EXPECT_EQ(station.small_player.remaining.caption.get(), "170");
}

TEST_F(ShownWhileFollowing, ListNamesTheTrackThatIsLoadedInItsWindow) {
    play_list_for(190);
    EXPECT_EQ(list.caption.get(), "titre 2");
}

TEST_F(ShownWhileFollowing, ListFreesTheZapBehindAShortItem) {
    open_tracks({20, 200});
    start_list();
    list.zap.enabled = false;
    station.small_player.next.enabled = false;
    list.zap_status.caption = "";
    machine.run_for(seconds(25));
    ASSERT_EQ(rows_started(), (std::vector<int>{1, 2}));
    EXPECT_TRUE(list.zap.enabled);
    EXPECT_TRUE(station.small_player.next.enabled);
    EXPECT_EQ(list.zap_status.caption.get(), "Zapping autorisé");
}

TEST_F(ShownWhileFollowing, ListTakesTheLoadAheadsTickAwayBehindItsMixPoint) {
    play_list_for(5);
    ASSERT_EQ(window.load_ahead.value(), 1);
    machine.run_for(seconds(190));
    ASSERT_EQ(rows_started().size(), 2U);
    EXPECT_EQ(window.load_ahead.value(), 0);
}

TEST_F(ShownWhileFollowing, StoppedListFreesTheZapAndItsEntries) {
    play_list_for(5);
    list.zap_status.caption = "";
    for (MenuItem* entry : list.entries_that_need_a_list())
        entry->enabled = false;
    list.stop_decks.click();
    EXPECT_EQ(list.zap_status.caption.get(), "Zapping autorisé");
    for (const MenuItem* entry : list.entries_that_need_a_list())
        EXPECT_TRUE(entry->enabled) << entry->name();
}

TEST_F(ShownWhileFollowing, StoppedDeckLeavesStationAndFileInTheTitle) {
    play_list_for(5);
    controls(1).stop.click();
    EXPECT_EQ(window.caption.get(), station.settings.nom_radio + track(1));
}

TEST_F(ShownWhileFollowing, DecksAreFollowedByNoneOnceAllAreStopped) {
    play_decks_for(5);
    ASSERT_EQ(window.running_chain.caption.get(), " Mix lecteur : Play 1");
    list.stop_decks.click();
    machine.run_for(seconds(2));
    EXPECT_EQ(window.running_chain.caption.get(), "Chargement rapide");
}

TEST_F(ShownWhileFollowing, DeckOnTheAirCanBeZappedFromTheLoadLeadOn) {
    play_decks_for(1);
    controls(1).zap.enabled = false;
    machine.run_for(seconds(station.settings.prechargement.value()));
    EXPECT_TRUE(controls(1).zap.enabled);
}

TEST_F(ShownWhileFollowing, FaultOfTheChainOverDecksIsJournalledWithItsDeck) {
    window.Active_journal.click();
    play_decks_for(5);
    machine.media.set_unplayable(track(2));
    machine.run_for(seconds(95));
    EXPECT_NE(journal_text().find("Mix lecteur : Play1\r\n"), std::string::npos);
}

TEST_F(ShownWhileFollowing, DeckWithAVideoIsSilentOnceAnotherOneIsStartedOverIt) {
    const std::string film = "C:\\Musique\\film.avi";
    machine.add_track(film, 100);
    open_on(1, film);
    controls(1).play.click();
    machine.run_for(seconds(5));
    machine.add_track(track(3), 100);
    open_on(3, track(3));
    controls(3).play.click();
    EXPECT_EQ(machine.media.on_air(), Paths{track(3)});
}

TEST_F(ChainChoice, ManualModeHasNoMainDeckWhateverPlayed) {
    play_decks_for(5);
    window.a_mode_manuel.click();
    EXPECT_EQ(station.chain.lecteur_en_cours, 0);
}

TEST_F(ChainChoice, OfAListOffersItsFadeBehindOneOverDecks) {
    const std::array<std::function<void()>, 3> choices{[this] { window.a_mode_predefini.click(); },
                                                       [this] { list.A_a_zapping.click(); },
                                                       [this] { window.mix_list.set_value(true); }};
    for (const auto& choose : choices) {
        window.mix_list.set_value(true);
        window.mix_titles.set_value(true);
        ASSERT_FALSE(window.Active_audio.enabled);
        choose();
        EXPECT_TRUE(window.Active_audio.enabled);
    }
}

TEST_F(ChainChoice, OfAListShowsTheOverlapThatHolds) {
    station.settings.mix_courant = 4;
    window.a_mode_predefini.click();
    EXPECT_EQ(window.overlap.text(), "4");
}

TEST_F(ChainChoice, OfAListRoundsTheOverlapThatWasTyped) {
    window.mix_titles.set_value(true);
    window.overlap.set_text("2.6");
    window.mix_list.set_value(true);
    EXPECT_EQ(window.overlap.text(), "3");
}

TEST_F(ChainChoice, ByItsLampLeavesThePreListeningWithItsMark) {
    machine.dialogs.expect_input("60");
    list.A_precoute.click();
    window.list_chain_lamp.click();
    EXPECT_TRUE(station.chain.preecoute_active.is_true());
    EXPECT_TRUE(list.A_precoute.checked);
}

TEST_F(ChainChoice, OfThePlayerModeEndsTheInsertions) {
    station.settings.valide_fichier_aleatoire = station.settings.valide_fichier_aleatoire1 = true;
    station.chain.jingles_aleatoires = true;
    list.jingles_status.caption = "Jingle On";
    list.items_status.caption = "Liste On";
    list.player_mode.click();
    EXPECT_TRUE(station.settings.valide_fichier_aleatoire.is_false());
    EXPECT_TRUE(station.settings.valide_fichier_aleatoire1.is_false());
    EXPECT_TRUE(station.chain.jingles_aleatoires.is_false());
    EXPECT_EQ(list.jingles_status.caption.get(), "Jingle Off");
    EXPECT_EQ(list.items_status.caption.get(), "Liste Off");
}

} // namespace sonarelle
