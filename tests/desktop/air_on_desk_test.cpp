// Both windows tell one truth of the air, while a list runs.
#include "desktop/progress_strip.h"

#include <QToolTip>

#include "desktop/station_views.h"
#include "desktop/title_label.h"
#include "platform/failure.h"
#include "playlist/enreg_liste.h"

namespace sonarelle {

namespace {

class AirOnDesk : public StationViews {
protected:
    AirOnDesk() { show_windows(); }

    /// A list of tracks of 100 s that begin at a second of their files, on the air from its first row.
    void play_list(double start = 0) {
        std::string bytes;
        for (const char* name : {"un", "deux", "trois"}) {
            const std::string path = "C:\\Musique\\" + std::string{name} + ".mp3";
            machine.add_track(path, 100);
            enreg_liste record;
            record.set_chemin(path);
            record.set_fin_lecture("100.00");
            record.set_volume(100);
            record.set_debut_lecture(start);
            record.set_duree_piste("00:01:40");
            bytes.append(reinterpret_cast<const char*>(record.bytes().data()), enreg_liste::size);
        }
        machine.disk.put_file("C:\\Sonarelle\\essai.dfm", bytes);
        machine.dialogs.expect_open("C:\\Sonarelle\\essai.dfm");
        list().A_liste.click();
        list().rows.select(1);
        list().defined_end_mode.click();
        list().play_list.click();
    }
    /// Which row of the list is marked as the next one.
    [[nodiscard]] int amber_row() {
        for (int row = 1; row <= list().rows.count(); ++row) {
            if (list_view().rows().state_of(row) == RowState::next)
                return row;
        }
        return 0;
    }
    void run_for(int whole_seconds) {
        machine.run_for(seconds(whole_seconds));
        settle();
    }
    [[nodiscard]] Liste_son& list() { return station.list_window; }
    [[nodiscard]] std::string desk_says(const char* name) {
        return part<StationLabel>(main_view(), name).text().toStdString();
    }
    [[nodiscard]] std::string list_says(const Label& label) {
        return part<StationLabel>(list_view(), label.name()).text().toStdString();
    }
    /// Whether a text stands on a deck.
    [[nodiscard]] bool deck_says(int deck, const QString& text) {
        QWidget& bar = part(main_view(), station.main_window.deck(deck).progress.name());
        const auto labels = parts_of<StationLabel>(*bar.parentWidget());
        return std::ranges::find(labels, text, &StationLabel::text) != labels.end();
    }
    [[nodiscard]] std::string title_of(int deck) {
        const std::string name = station.main_window.deck(deck).title.name();
        return part<TitleLabel>(main_view(), name).shown().toStdString();
    }
};

} // namespace

TEST_F(AirOnDesk, OneTitleAndOneRemainderWhileTheNextTrackIsLoaded) {
    play_list();
    run_for(90);
    EXPECT_EQ(desk_says("air_title"), "un");
    EXPECT_EQ(list_says(list().track_name), "un");
    EXPECT_EQ(desk_says("remaining"), "00:00:10");
    EXPECT_EQ(list_says(list().remaining), "00:00:10");
}

TEST_F(AirOnDesk, OneRemainderForATrackThatBeginsLate) {
    play_list(20);
    run_for(30);
    EXPECT_EQ(desk_says("remaining"), "00:00:50");
    EXPECT_EQ(list_says(list().remaining), "00:00:50");
}

TEST_F(AirOnDesk, FramesNameWhatIsOnTheAir) {
    play_list();
    run_for(90);
    EXPECT_EQ(main_view().windowTitle().toStdString(), station.settings.nom_radio + " : un");
    EXPECT_EQ(list_view().windowTitle().toStdString(), "un");
}

TEST_F(AirOnDesk, DecksNameWhatIsHeardOnThem) {
    play_list();
    run_for(97);
    EXPECT_EQ(title_of(1), "un");
    EXPECT_EQ(title_of(2), "deux");
}

TEST_F(AirOnDesk, PlayOfTheDeckOnTheAirIsALampFromItsFirstMoment) {
    play_list();
    settle();
    auto& play = station.main_window.deck(1).play;
    ASSERT_TRUE(play.enabled);
    EXPECT_FALSE(part(main_view(), play.name()).isEnabled());
    play.enabled = false;
    settle();
    play.enabled = true;
    settle();
    EXPECT_FALSE(part(main_view(), play.name()).isEnabled()) << "whatever the station says of it meanwhile";
}

TEST_F(AirOnDesk, DeckThatFadesShowsWhereItIs) {
    play_list();
    run_for(97);
    auto& deck = station.main_window.deck(1);
    const auto& bar = part<ProgressStrip>(main_view(), deck.progress.name());
    ASSERT_TRUE(station.deck_ring.deck(1).sounds());
    EXPECT_NEAR(bar.share(), 0.97, 0.011);
    EXPECT_EQ(part<StationLabel>(main_view(), deck.counter.name()).text(), "100");
    EXPECT_TRUE(deck_says(1, "97"));
    EXPECT_TRUE(deck_says(1, "00:00:03"));
}

TEST_F(AirOnDesk, DeckThatIsHeldBesideTheMainOneSaysSo) {
    play_list();
    machine.add_track("C:\\Musique\\jingle.mp3", 60);
    machine.dialogs.expect_open("C:\\Musique\\jingle.mp3");
    station.main_window.deck(3).open.click();
    station.main_window.deck(3).special_mix.click();
    run_for(20);
    station.main_window.deck(3).pause.click();
    run_for(5);
    EXPECT_TRUE(deck_says(3, "EN PAUSE"));
    EXPECT_TRUE(deck_says(3, "20"));
}

TEST_F(AirOnDesk, DeckIsTheNextOneWhereTheHeaderSaysSo) {
    play_list();
    machine.add_track("C:\\Musique\\à la main.mp3", 60);
    machine.dialogs.expect_open("C:\\Musique\\à la main.mp3");
    station.main_window.deck(2).open.click();
    run_for(1);
    ASSERT_EQ(desk_says("air_next"), "Ensuite : deux, puis trois");
    EXPECT_TRUE(deck_says(2, "CHARGÉ"));
    station.main_window.load_ahead.click(); // which a file that is opened by hand leaves off
    run_for(90);
    ASSERT_EQ(desk_says("air_next"), "Ensuite : deux (00:01:40), puis trois");
    EXPECT_TRUE(deck_says(2, "CHARGÉ, SUIVANT"));
}

TEST_F(AirOnDesk, SilenceNamesWhatWasTheLastOnTheAir) {
    play_list();
    run_for(50);
    machine.disk.refuse("C:\\Musique", FailureNumber::path_not_found);
    run_for(70);
    ASSERT_NE(silence_text(station.desk), "");
    EXPECT_EQ(desk_says("air_title"), "un");
    EXPECT_EQ(main_view().windowTitle().toStdString(), station.main_window.caption.get()) << "nothing is on the air";
}

TEST_F(AirOnDesk, ReturnInASilenceTakesUpTheList) {
    play_list();
    run_for(50);
    machine.disk.refuse("C:\\Musique", FailureNumber::path_not_found);
    run_for(70);
    machine.disk.heal("C:\\Musique");
    main_view().setFocus();
    const int before = events;
    QTest::keyClick(&main_view(), Qt::Key_Return);
    EXPECT_EQ(events, before + 1);
    run_for(2);
    EXPECT_EQ(silence_text(station.desk), "");
    EXPECT_EQ(desk_says("air_state"), "À L'ANTENNE — Play 1");
}

TEST_F(AirOnDesk, TheNextRowIsMarkedRightBehindAStart) {
    play_list();
    run_for(97);
    ASSERT_EQ(desk_says("air_title"), "deux");
    EXPECT_EQ(amber_row(), 3);
}

TEST_F(AirOnDesk, NoRowIsTheNextOnceTheListIsFollowedNoMore) {
    play_list();
    run_for(93);
    ASSERT_EQ(amber_row(), 2);
    list().player_mode.click();
    run_for(1);
    ASSERT_TRUE(station.chain.chargement_fait.is_true());
    EXPECT_EQ(amber_row(), 0);
}

TEST_F(AirOnDesk, SpecialMixIsToldAndTheAirGoesOnBelowIt) {
    play_list();
    machine.add_track("C:\\Musique\\jingle.mp3", 60);
    machine.dialogs.expect_open("C:\\Musique\\jingle.mp3");
    run_for(20);
    station.main_window.deck(3).open.click();
    station.main_window.deck(3).special_mix.click();
    run_for(20);
    ASSERT_TRUE(waits_for_special_mix(station.desk));
    EXPECT_EQ(desk_says("air_next"), "chaîne suspendue : mixage spécial");
    EXPECT_EQ(desk_says("air_title"), "un");
    EXPECT_EQ(desk_says("remaining"), "00:01:00");
    EXPECT_EQ(main_view().windowTitle().toStdString(), station.settings.nom_radio + " : un");
    const auto& bar = part<ProgressStrip>(main_view(), station.main_window.deck(1).progress.name());
    EXPECT_NEAR(bar.share(), 0.40, 0.011);
}

TEST_F(AirOnDesk, SecondOfADeckIsThatOfItsBarWhileTheChainRuns) {
    play_list();
    machine.run_for(Frames{48000 * 30 + 20000});
    settle();
    auto& deck = station.main_window.deck(1);
    auto& bar = part<ProgressStrip>(main_view(), deck.progress.name());
    const auto labels = parts_of<StationLabel>(*bar.parentWidget());
    const auto count = [&](const QString& text) { return std::ranges::count(labels, text, &StationLabel::text); };
    EXPECT_GE(count(QString::number(deck.progress.value.get())), 1);
    EXPECT_DOUBLE_EQ(bar.share(), deck.progress.value / 100.0);
}

TEST_F(AirOnDesk, DeckThatWaitsShowsAtOnceWhereItWillBegin) {
    play_list(3.2);
    run_for(90);
    auto& bar = part<ProgressStrip>(main_view(), station.main_window.deck(2).progress.name());
    EXPECT_NEAR(bar.share(), 0.03, 1e-6) << "at the start of play of its row";
    const int before = events;
    QTest::mouseClick(&bar, Qt::LeftButton, {}, {bar.width() / 2, bar.height() / 2});
    settle();
    EXPECT_NEAR(bar.share(), 0.5, 0.02);
    EXPECT_EQ(events, before + 1);
}

TEST_F(AirOnDesk, DeckThatWasStoppedShowsWhereItWillBegin) {
    play_list(20);
    run_for(30);
    station.main_window.deck(1).stop.click();
    settle();
    const auto& bar = part<ProgressStrip>(main_view(), station.main_window.deck(1).progress.name());
    EXPECT_NEAR(bar.share(), 0.20, 1e-6);
    const auto labels = parts_of<StationLabel>(*bar.parentWidget());
    EXPECT_GE(std::ranges::count(labels, "20", &StationLabel::text), 1);
}

TEST_F(AirOnDesk, KindOfADecksFileIsToldInCapitals) {
    play_list();
    run_for(1);
    const auto& title = part<TitleLabel>(main_view(), station.main_window.deck(1).title.name());
    const auto labels = parts_of<StationLabel>(*title.parentWidget());
    EXPECT_EQ(std::ranges::count(labels, "MP3", &StationLabel::text), 1);
}

TEST_F(AirOnDesk, LossOfTheCardIsCountedFromItsBeginningHoweverOftenItIsTold) {
    play_list();
    run_for(20);
    EXPECT_TRUE(becomes([this] {
        desktop->show_output("sortie : aucune carte son", true);
        return !desk_says("air_next").starts_with("depuis 00:00");
    }));
    EXPECT_EQ(desk_says("air_title"), "CARTE SON PERDUE");
    desktop->show_output("sortie : carte", false);
    EXPECT_EQ(desk_says("air_title"), "un");
    desktop->show_output("sortie : aucune carte son", true);
    EXPECT_EQ(desk_says("air_next"), "depuis 00:00 : un joue sans sortie");
}

TEST_F(AirOnDesk, BarOnTheAirSaysWhyItStays) {
    play_list();
    run_for(20);
    auto& bar = part<ProgressStrip>(main_view(), station.main_window.deck(1).progress.name());
    const int before = events;
    QTest::mouseClick(&bar, Qt::LeftButton, {}, {bar.width() / 2, bar.height() / 2});
    settle();
    EXPECT_EQ(QToolTip::text(), "À l'antenne : le curseur ne se déplace pas");
    EXPECT_EQ(events, before);
    EXPECT_DOUBLE_EQ(bar.share(), 0.2);
    EXPECT_EQ(bar.accessibleName(), "Position, lecteur 1");
}

TEST_F(AirOnDesk, SoundThatGoesOnAfterAStopIsTold) {
    play_list();
    run_for(97);
    station.main_window.deck(2).stop.click();
    settle();
    EXPECT_EQ(desk_says("air_state"), "EN LECTURE — Play 1");
    EXPECT_EQ(desk_says("air_title"), "un");
    EXPECT_EQ(desk_says("remaining"), "00:00:03");
}

TEST_F(AirOnDesk, WhatFollowsIsTheFirstRowWhoseFileIsThere) {
    desktop->mark_missing({[](const std::string& path) { return path == "C:\\Musique\\deux.mp3"; }, {}});
    play_list();
    run_for(1);
    EXPECT_EQ(desk_says("air_next"), "Ensuite : trois, puis un");
}

TEST_F(AirOnDesk, WhatFollowsIsToldAsMissingWhereNoFileIsThere) {
    desktop->mark_missing({[](const std::string&) { return true; }, {}});
    play_list();
    run_for(1);
    EXPECT_EQ(desk_says("air_next"), "Ensuite : deux (fichier absent)");
}

TEST_F(AirOnDesk, ListThatAFaultHasStoppedIsToldWhileItsTrackPlaysOn) {
    play_list();
    run_for(50);
    machine.disk.refuse("C:\\Musique", FailureNumber::path_not_found);
    run_for(38);
    EXPECT_EQ(desk_says("air_state"), "À L'ANTENNE — Play 1");
    EXPECT_EQ(desk_says("air_station"), "LISTE STOPPÉE");
    EXPECT_EQ(desk_says("air_next"), "Ensuite : rien");
}

TEST_F(AirOnDesk, DecksThatAFaultHasStoppedAreNoList) {
    for (const int deck : {1, 2}) {
        const std::string path = "C:\\Musique\\" + std::to_string(deck) + ".mp3";
        machine.add_track(path, 100);
        machine.dialogs.expect_open(path);
        station.main_window.deck(deck).open.click();
    }
    station.main_window.mix_titles.click();
    station.main_window.deck(1).play.click();
    machine.disk.Kill("C:\\Musique\\2.mp3");
    run_for(97);
    EXPECT_EQ(desk_says("air_station"), "ENCHAÎNEMENT STOPPÉ");
}

TEST_F(AirOnDesk, DeskAtRestTellsNothing) {
    run_for(5);
    EXPECT_EQ(desk_says("air_state"), "EN ATTENTE");
    EXPECT_EQ(desk_says("air_title"), "");
    EXPECT_EQ(desk_says("remaining"), "00:00:00");
    EXPECT_EQ(list_says(list().remaining), "00:00:00");
}

TEST_F(AirOnDesk, RowsFollowTheAir) {
    play_list();
    run_for(90);
    EXPECT_EQ(list_view().rows().state_of(1), RowState::air);
    EXPECT_EQ(list_view().rows().state_of(2), RowState::next);
    run_for(10);
    EXPECT_EQ(list_view().rows().state_of(2), RowState::air);
}

TEST_F(AirOnDesk, DrawnRowIsTheNextOne) {
    play_list();
    list().random_mode.click();
    run_for(90);
    ASSERT_NE(amber_row(), 0);
    EXPECT_EQ(list().rows.text(amber_row()), station.deck_ring.deck(2).path);
}

} // namespace sonarelle
