// The boxes of favourites and jingles.
#include <gmock/gmock.h>

#include "playout/chain_fixture.h"

namespace sonarelle {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::string_view favourites = "C:\\Listes\\favoris.dfm";

class QuickLoadTest : public ChainFixture {
protected:
    QuickLoadTest() {
        window.on_popup = [this](MenuItem& menu, const Control*) { opened.push_back(menu.name()); };
    }

    void put_list(std::string_view path, int tracks) {
        std::vector<enreg_liste> records;
        for (int number = 1; number <= tracks; ++number) {
            machine.add_track(track(number), 100 + number);
            records.push_back(record_of(track(number), "90.00", 80, 0.0, "Rock", "00:01:40"));
        }
        machine.disk.put_file(path, bytes_of(records));
    }
    /// A favourite that plays from its first second.
    void put_favourite(std::string_view path) {
        machine.add_track(std::string{path}, 60);
        machine.disk.put_file(favourites, bytes_of({record_of(path, "60.00", 80, 0.0)}));
        choose_favourites(favourites);
    }
    void play_list_for(int length) {
        open_tracks({200, 200, 200});
        start_list();
        machine.run_for(seconds(length));
    }
    void choose_favourites(std::string_view path) {
        machine.dialogs.expect_open(path);
        window.choose_favourites.click();
    }
    void refill(int mode) { station.desk_wiring.quick_load.Charge_combo(mode); }
    [[nodiscard]] std::string stored(std::string_view key) {
        return machine.settings.GetSetting(settings_application, "Config", key, "(absent)");
    }

    Antenne_FM& window = station.main_window;
    std::vector<std::string> opened;
};

} // namespace

TEST_F(QuickLoadTest, AtAFirstRunBothBoxesAreEmptyAndSayWhatTheyAreFor) {
    refill(3);
    refill(4);
    station.desk_wiring.quick_load.active_text_combo();
    EXPECT_THAT(window.favourites.items.get(), IsEmpty());
    EXPECT_THAT(window.jingles.items.get(), IsEmpty());
    EXPECT_EQ(window.favourites.text(), "Favoris Sonarelle");
    EXPECT_EQ(window.jingles.text(), "Jingles Sonarelle");
}

TEST_F(QuickLoadTest, FavouritesAreListedByTheirFilesNames) {
    put_list(favourites, 2);
    choose_favourites(favourites);
    EXPECT_THAT(window.favourites.items.get(), ElementsAre("titre 1.mp3", "titre 2.mp3"));
    EXPECT_EQ(window.favourites.text(), "Favoris Sonarelle");
}

TEST_F(QuickLoadTest, JinglesAreListedWithTheirDurations) {
    put_list(favourites, 1);
    machine.dialogs.expect_open(favourites);
    window.choose_jingles.click();
    EXPECT_THAT(window.jingles.items.get(), ElementsAre("00:01:40 - titre 1.mp3"));
    EXPECT_EQ(stored("Load_combo2"), favourites);
    EXPECT_EQ(station.settings.load_combo2, favourites);
    EXPECT_THAT(window.favourites.items.get(), IsEmpty());
}

TEST_F(QuickLoadTest, TheDialogBeginsInTheProgramsFolder) {
    machine.dialogs.expect_cancel();
    window.choose_favourites.click();
    const Question& question = machine.dialogs.last();
    EXPECT_EQ(question.title, "Charger un fichier (.dfm)");
    EXPECT_EQ(question.folder, "C:\\Sonarelle\\");
    EXPECT_EQ(question.text, "*.dfm");
    EXPECT_EQ(question.filter, "fichier (*.dfm)|*.dfm");
}

TEST_F(QuickLoadTest, ALoadedTrackIsNamedOnTheSmallPlayer) {
    put_favourite("C:\\Musique\\Matin.mp3");
    window.favourites.choose(0);
    window.favourite_loads()[1]->click();
    EXPECT_EQ(station.small_player.caption.get(), "Matin");
}

TEST_F(QuickLoadTest, ACancelledDialogLeavesTheBoxAsItIs) {
    put_list(favourites, 2);
    choose_favourites(favourites);
    machine.dialogs.expect_cancel();
    window.choose_favourites.click();
    EXPECT_EQ(window.favourites.items.get().size(), 2U);
    EXPECT_EQ(stored("Load_combo1"), favourites);
}

TEST_F(QuickLoadTest, AnotherListReplacesTheItems) {
    put_list(favourites, 2);
    choose_favourites(favourites);
    put_list("C:\\Listes\\autre.dfm", 3);
    choose_favourites("C:\\Listes\\autre.dfm");
    EXPECT_EQ(window.favourites.items.get().size(), 3U);
    EXPECT_EQ(stored("Load_combo1"), "C:\\Listes\\autre.dfm");
}

TEST_F(QuickLoadTest, AListThatCantBeReadLeavesTheOldKey) {
    put_list(favourites, 2);
    choose_favourites(favourites);
    choose_favourites("X:\\perdu.dfm");
    EXPECT_THAT(window.favourites.items.get(), IsEmpty());
    EXPECT_EQ(stored("Load_combo1"), favourites);
    EXPECT_EQ(station.settings.load_combo1, favourites);
}

TEST_F(QuickLoadTest, ARememberedListFillsTheBoxAndWritesNothing) {
    put_list(favourites, 2);
    station.settings.load_combo1 = favourites;
    refill(3);
    EXPECT_EQ(window.favourites.items.get().size(), 2U);
    EXPECT_EQ(stored("Load_combo1"), "");
}

TEST_F(QuickLoadTest, ARememberedListIsAddedToWhatTheBoxHolds) {
    put_list(favourites, 2);
    station.settings.load_combo1 = favourites;
    refill(3);
    refill(3);
    EXPECT_EQ(window.favourites.items.get().size(), 4U);
}

TEST_F(QuickLoadTest, ARememberedListThatWasDeletedIsMadeAnewAndEmpty) {
    station.settings.load_combo1 = favourites;
    machine.disk.put_folder("C:\\Listes");
    refill(3);
    EXPECT_THAT(window.favourites.items.get(), IsEmpty());
    EXPECT_EQ(machine.disk.Dir(favourites), "favoris.dfm");
    EXPECT_EQ(machine.disk.bytes(favourites), "");
}

TEST_F(QuickLoadTest, ChoosingAnItemReadsItsRecordAndOpensTheMenuOfTheDecks) {
    put_list(favourites, 3);
    choose_favourites(favourites);
    window.favourites.choose(1);
    EXPECT_THAT(opened, ElementsAre("cha"));
    window.lect1.click();
    EXPECT_EQ(station.deck_ring.deck(1).path, track(2));
}

TEST_F(QuickLoadTest, TheSpaceKeyOpensTheMenuWithoutReadingARecord) {
    window.favourites.key_press(U' ');
    window.jingles.key_press(U' ');
    window.favourites.key_press(U'x');
    EXPECT_THAT(opened, ElementsAre("cha", "char_F"));
    machine.dialogs.expect_box("n'existe pas ou plus", Answer::ok);
    window.lect1.click();
    EXPECT_EQ(station.deck_ring.deck(1).path, "");
}

TEST_F(QuickLoadTest, TheMenuPutsTheTrackOnItsDeck) {
    put_list(favourites, 3);
    choose_favourites(favourites);
    window.favourites.choose(2);
    controls(2).play.enabled = false;
    window.lect2.click();
    EXPECT_EQ(controls(2).title.caption.get(), "00:01:43 ( titre 3 )");
    EXPECT_EQ(controls(2).counter.caption.get(), "103");
    EXPECT_TRUE(controls(2).play.enabled);
    EXPECT_EQ(station.deck_ring.deck(2).path, track(3));
}

TEST_F(QuickLoadTest, ATrackOfABoxHasNotTheEndOfTheRowBeforeItOnTheDeck) {
    machine.add_track("C:\\favori.mp3", 60);
    machine.disk.put_file(favourites, bytes_of(record_of("C:\\favori.mp3", "60")));
    choose_favourites(favourites);
    open_tracks({200, 200});
    start_list();
    machine.dialogs.expect_box("titre 1 est à l'antenne", Answer::yes);
    window.favourites.choose(0);
    window.lect1.click();
    station.list_window.defined_end_mode.click();
    EXPECT_EQ(controls(1).counter.caption.get(), "60");
}

TEST_F(QuickLoadTest, ATrackOfABoxBeginsAtItsOwnStartWhateverIsReadMeanwhile) {
    machine.add_track(track(1), 100);
    const std::vector records{record_of(track(1), "90", 100, 2.0), record_of(track(1), "90", 100, 30.0)};
    machine.disk.put_file(favourites, bytes_of(records));
    choose_favourites(favourites);
    window.favourites.choose(0);
    window.lect2.click();
    window.favourites.choose(1);
    controls(2).play.click();
    EXPECT_EQ(station.deck_ring.deck(2).graph().get_CurrentPosition(), 2.0);
}

TEST_F(QuickLoadTest, ATrackOfABoxWithoutAnEndHasItsOwnStartAndVolume) {
    machine.add_track(track(1), 100);
    const std::vector records{record_of(track(1), "90", 50, 30.0), record_of(track(1), "", 80, 2.0)};
    machine.disk.put_file(favourites, bytes_of(records));
    choose_favourites(favourites);
    window.favourites.choose(0);
    window.favourites.choose(1);
    window.lect2.click();
    EXPECT_EQ(station.deck_ring.deck(2).debut_piste, 2.0);
    EXPECT_EQ(station.deck_ring.deck(2).volume_piste, Integer{-800});
}

TEST_F(QuickLoadTest, AJingleGoesOnEachDeck) {
    put_list(favourites, 1);
    machine.dialogs.expect_open(favourites);
    window.choose_jingles.click();
    window.jingles.choose(0);
    EXPECT_THAT(opened, ElementsAre("char_F"));
    for (MenuItem* entry : window.jingle_loads())
        entry->click();
    for (int deck = 1; deck <= 3; ++deck)
        EXPECT_EQ(controls(deck).title.caption.get(), "00:01:41 ( titre 1 )");
}

TEST_F(QuickLoadTest, LoadingADeckStopsTheListChainSoftly) {
    put_list(favourites, 1);
    choose_favourites(favourites);
    open_tracks({200, 200});
    start_list();
    machine.run_for(seconds(5));
    window.favourites.choose(0);
    window.lect3.click();
    EXPECT_TRUE(window.mix_titles.value());
    EXPECT_EQ(window.deck_chain_lamp.picture.get(), "bouton_noir_petitdoux.jpg");
    EXPECT_EQ(window.running_chain.caption.get(), "Chargement rapide");
    EXPECT_EQ(machine.media.on_air(), std::vector<std::string>{track(1)});
}

TEST_F(QuickLoadTest, ADeckGetsTheChosenItemThoughTheChainHasReadARowMeanwhile) {
    put_favourite("C:\\Musique\\favori.mp3");
    play_list_for(180);
    window.favourites.choose(0);
    machine.run_for(seconds(9)); // over the load step
    window.lect3.click();
    EXPECT_EQ(station.chain.chemin_lecture3, "C:\\Musique\\favori.mp3");
}

TEST_F(QuickLoadTest, OnADeckThatSoundsAsksFirstAndANoChangesNothing) {
    put_favourite("C:\\Musique\\favori.mp3");
    play_list_for(100);
    window.favourites.choose(0);
    machine.dialogs.expect_box("titre 1 est à l'antenne", Answer::no);
    window.lect1.click();
    EXPECT_EQ(machine.dialogs.last().default_button, 2);
    machine.run_for(seconds(100));
    EXPECT_EQ(rows_started(), (std::vector<int>{1, 2}));
}

TEST_F(QuickLoadTest, OnADeckThatSoundsIsTakenAfterAYes) {
    put_favourite("C:\\Musique\\favori.mp3");
    play_list_for(100);
    window.favourites.choose(0);
    machine.dialogs.expect_box("titre 1 est à l'antenne", Answer::yes);
    window.lect1.click();
    EXPECT_EQ(station.chain.chemin_lecture, "C:\\Musique\\favori.mp3");
    EXPECT_TRUE(window.mix_titles.value());
}

TEST_F(QuickLoadTest, OnTheDeckOfAListBesideMixedTitlesLetsItBeStarted) {
    put_favourite("C:\\Musique\\favori.mp3");
    play_list_for(20);
    window.mix_titles.click();
    station.list_window.defined_end_mode.click();
    ASSERT_FALSE(station.list_window.play_list.enabled);
    window.favourites.choose(0);
    machine.dialogs.expect_box("titre 1 est à l'antenne", Answer::yes);
    window.lect1.click();
    EXPECT_TRUE(station.list_window.play_list.enabled);
}

TEST_F(QuickLoadTest, JingleOnADeckThatFadesAsksFirst) {
    put_favourite("C:\\Musique\\favori.mp3");
    machine.dialogs.expect_open(favourites);
    window.choose_jingles.click();
    play_list_for(197);
    window.jingles.choose(0);
    machine.dialogs.expect_box("titre 1 est à l'antenne", Answer::no);
    window.lect1_F.click();
    EXPECT_EQ(machine.media.on_air(), (std::vector<std::string>{track(1), track(2)}));
}

TEST_F(QuickLoadTest, TheSpaceKeysMenuLoadsWhatWasChosenBefore) {
    put_favourite("C:\\Musique\\favori.mp3");
    play_list_for(180);
    window.favourites.choose(0);
    machine.run_for(seconds(9));
    window.favourites.key_press(U' ');
    window.lect3.click();
    EXPECT_EQ(station.chain.chemin_lecture3, "C:\\Musique\\favori.mp3");
}

TEST_F(QuickLoadTest, TheBoxesTellTheirKey) {
    EXPECT_EQ(window.favourites.hint.get(), "Appuyer sur barre d'espacement puis sélection du lecteur");
    EXPECT_EQ(window.jingles.hint.get(), window.favourites.hint.get());
}

} // namespace sonarelle
