// The words of the windows that aren't the station's, and the pictures that are only looked at.
#include "desktop/station_views.h"
#include "desktop/title_label.h"

namespace sonarelle {

namespace {

class WordsOfTheDesk : public StationViews {
protected:
    WordsOfTheDesk() { show_windows(); }

    /// How often a text stands on view in a window.
    [[nodiscard]] static auto count(QWidget& view, const QString& text) {
        return std::ranges::count_if(parts_of<StationLabel>(view), [&](const StationLabel* label) {
            return label->text() == text && label->isVisible();
        });
    }
    void expect_no_stop(QWidget& view, const Control& control) {
        EXPECT_EQ(part(view, control.name()).focusPolicy(), Qt::NoFocus) << control.name();
    }
};

} // namespace

TEST_F(WordsOfTheDesk, NameThePartsOfTheMainWindow) {
    station.main_window.sound_display.visible = true;
    settle();
    for (const char* text : {"LECTEUR 1", "LECTEUR 2", "LECTEUR 3", "ENCHAÎNEMENT", "EFFET VISUEL",
                             "espace : choisir le lecteur", "s de superposition", "— LUFS"})
        EXPECT_EQ(count(main_view(), text), 1) << text;
    EXPECT_EQ(count(main_view(), "écoulé"), 3);
    EXPECT_EQ(count(main_view(), "fin"), 3);
    EXPECT_EQ(count(main_view(), "reste"), 3);
}

TEST_F(WordsOfTheDesk, NameTheChainThatRunsAndNoPanelTwice) {
    station.main_window.running_chain.caption = "Mixer une liste";
    settle();
    const auto shown = count(main_view(), "Mixer une liste");
    station.main_window.running_chain.caption = "Chargement rapide";
    settle();
    EXPECT_EQ(shown, 1);
    EXPECT_EQ(count(main_view(), "Chargement rapide"), 0);
    EXPECT_EQ(count(main_view(), "CHARGEMENT RAPIDE"), 1);
}

TEST_F(WordsOfTheDesk, NameThePartsOfTheList) {
    list_view().resize(1280, 293);
    settle();
    EXPECT_EQ(count(list_view(), "MODE DE LECTURE"), 1);
    EXPECT_EQ(count(list_view(), "INSERTION"), 1);
}

TEST_F(WordsOfTheDesk, StandOnTheDecksWhateverIsElapsed) {
    for (int number = 1; number <= 3; ++number) {
        auto& title = part<TitleLabel>(main_view(), station.main_window.deck(number).title.name());
        EXPECT_GE(count(*title.parentWidget(), "0"), 1) << number;
    }
}

TEST_F(WordsOfTheDesk, TellTheDecksApartForTheScreenReader) {
    for (int number = 1; number <= 3; ++number) {
        const DeckControls& deck = station.main_window.deck(number);
        const QString end = ", lecteur " + QString::number(number);
        for (const auto& [control, name] : std::initializer_list<std::pair<const Control*, QString>>{
                 {&deck.open, "Ouvrir"},
                 {&deck.play, "Lecture"},
                 {&deck.stop, "Stopper"},
                 {&deck.pause, "Pause"},
                 {&deck.back, "Reculer"},
                 {&deck.forward, "Avancer"},
                 {&deck.zap, "Zapper sur Play" + QString::number(number % 3 + 1)},
                 {&deck.special_mix, "Mixage spécial"},
                 {&deck.progress, "Position"},
                 {&deck.slider, "Volume"},
                 {&deck.quieter, "Moins fort"},
                 {&deck.louder, "Plus fort"},
                 {&deck.keep_volume, "Garder le volume dans la liste"}})
            EXPECT_EQ(part(main_view(), control->name()).accessibleName(), name + end);
    }
    EXPECT_EQ(part(main_view(), station.main_window.overlap.name()).accessibleName(), "Superposition en secondes");
    EXPECT_EQ(part(main_view(), station.main_window.favourites.name()).accessibleName(), "Favoris");
    EXPECT_EQ(part(main_view(), station.main_window.jingles.name()).accessibleName(), "Jingles");
    EXPECT_EQ(part(main_view(), "remaining").accessibleName(), "Temps restant");
}

TEST_F(WordsOfTheDesk, TellTheModesApartForTheScreenReader) {
    EXPECT_EQ(part(main_view(), station.main_window.list_chain_lamp.name()).accessibleName(), "Mixer une liste");
    EXPECT_EQ(part(list_view(), station.list_window.random_lamp.name()).accessibleName(), "Lecture aléatoire");
    EXPECT_EQ(part(list_view(), station.list_window.remaining.name()).accessibleName(), "Temps restant");
    EXPECT_EQ(part(list_view(), station.list_window.jingles_switch.name()).accessibleName(), "Insertion de jingles");
}

TEST_F(WordsOfTheDesk, PicturesThatAreOnlyLookedAtAreNoStopOfTheKeyboard) {
    expect_no_stop(main_view(), station.main_window.background_picture);
    expect_no_stop(main_view(), station.main_window.deck_chain_lamp);
    expect_no_stop(main_view(), station.main_window.list_chain_lamp);
    for (const DeckControls& deck : station.main_window.decks)
        expect_no_stop(main_view(), deck.playing_mark);
    expect_no_stop(list_view(), station.list_window.side_picture);
    expect_no_stop(*desktop->widget_of(station.splash), station.splash.picture);
}

TEST_F(WordsOfTheDesk, TellTheLoudness) {
    LevelReading level;
    level.lufs = -16.2;
    desktop.reset();
    desktop.emplace(station.windows(), station.desk, services, SoundReading{[level] { return level; }, {}, {}});
    settle();
    EXPECT_TRUE(becomes([this] { return count(main_view(), "−16,2 LUFS") == 1; }));
}

TEST_F(WordsOfTheDesk, TellNoLoudnessThatNobodyHears) {
    SoundReading sound;
    sound.level = [] { return LevelReading{.peak = {0.5F, 0.5F}, .lufs = -16.2}; };
    desktop.reset();
    desktop.emplace(station.windows(), station.desk, services, sound);
    show_windows();
    ASSERT_TRUE(becomes([this] { return count(main_view(), "−16,2 LUFS") == 1; }));
    desktop->show_output("sortie : aucune carte son, cadence de l'horloge", true);
    EXPECT_TRUE(becomes([this] { return count(main_view(), "— LUFS") == 1; }));
    desktop->show_output("sortie : la carte son joue", false);
    EXPECT_TRUE(becomes([this] { return count(main_view(), "−16,2 LUFS") == 1; }));
}

TEST_F(WordsOfTheDesk, FallOnNoWindowThatIsMissing) {
    desktop.reset();
    desktop.emplace(std::vector<Window*>{&station.options_window}, station.desk, services, SoundReading{});
    desktop->show_output("sortie : aucune carte son", true);
    desktop->mark_missing({});
    desktop->offer_outputs({});
    settle();
    EXPECT_EQ(desktop->widget_of(station.main_window), nullptr);
    EXPECT_NE(desktop->widget_of(station.options_window), nullptr);
}

} // namespace sonarelle
