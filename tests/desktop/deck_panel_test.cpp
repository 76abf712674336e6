// What is seen of a deck: its lamp, its frame, its word, its marks and the buttons that matter to the air.
#include "desktop/deck_panel.h"

#include "desktop/station_views.h"
#include "desktop/title_label.h"
#include "desktop/volume_bar.h"

namespace sonarelle {

namespace {

class DeckPanels : public StationViews {
protected:
    DeckPanels() {
        deck().progress.maximum = 100;
        deck().progress.value = 50;
        show_windows();
    }
    void show(DeckRole role) {
        DeckLook look;
        look.role = role;
        look.is_next = true;
        look.mix_point = 60.0;
        look.end_point = 90.0;
        main_view().show_look(1, look);
    }
    static DeckLook look_of(DeckRole role, const QString& file = {}) {
        DeckLook look;
        look.role = role;
        look.file = file;
        return look;
    }
    [[nodiscard]] DeckControls& deck() { return station.main_window.deck(1); }
    [[nodiscard]] QWidget& widget(const Control& control) { return part(main_view(), control.name()); }
    [[nodiscard]] DeckPanel& panel() { return *dynamic_cast<DeckPanel*>(widget(deck().title).parentWidget()); }
    [[nodiscard]] QColor lamp() { return seen_in_window(*parts_of<Lamp>(panel()).front()).pixelColor(5, 5); }
    [[nodiscard]] bool says(const QString& word) {
        const auto labels = parts_of<StationLabel>(panel());
        return std::ranges::any_of(labels, [&](const StationLabel* label) { return label->text() == word; });
    }
    /// The colour of the bar at a second of a hundred.
    [[nodiscard]] QColor bar_at(int second) {
        QWidget& bar = widget(deck().progress);
        return seen_in_window(bar).pixelColor(second * bar.width() / 100, bar.height() / 2);
    }
    [[nodiscard]] QColor face(const Control& control) { return ground_in(seen_in_window(widget(control))); }
    [[nodiscard]] static bool is_green(const QColor& colour) {
        return colour.green() > colour.red() + 12 && colour.green() > colour.blue() + 3;
    }
    [[nodiscard]] static bool is_amber(const QColor& colour) {
        return colour.red() > colour.blue() + 20 && colour.red() > colour.green();
    }
};

} // namespace

TEST_F(DeckPanels, LampSaysWhatTheDeckIsToTheAir) {
    const std::array<std::pair<DeckRole, QColor>, 6> lamps{{{DeckRole::empty, studio::field_line},
                                                            {DeckRole::loaded, studio::next},
                                                            {DeckRole::heard, studio::air},
                                                            {DeckRole::on_air, studio::air},
                                                            {DeckRole::paused, studio::next},
                                                            {DeckRole::ended, studio::field_line}}};
    for (const auto& [role, colour] : lamps) {
        show(role);
        EXPECT_TRUE(is_near(lamp(), colour)) << static_cast<int>(role) << lamp().name().toStdString();
    }
}

TEST_F(DeckPanels, GenreStandsBesideTheKindWhereThereIsRoom) {
    DeckLook look = look_of(DeckRole::on_air, "un");
    look.kind = "MP3";
    look.genre = "Jazz";
    main_view().show_look(1, look);
    settle();
    EXPECT_TRUE(says("MP3 · Jazz"));
    look.genre = "Musique électronique de danse et de fête";
    main_view().show_look(1, look);
    settle();
    const auto labels = parts_of<StationLabel>(panel());
    EXPECT_TRUE(std::ranges::any_of(labels, [](const StationLabel* label) { return label->shown_text() == "MP3"; }));
}

TEST_F(DeckPanels, FilesAreDroppedAnywhereOnThem) {
    EXPECT_EQ(panel().acceptDrops(), widget(deck().open).acceptDrops());
    EXPECT_TRUE(panel().acceptDrops());
}

TEST_F(DeckPanels, WordSaysWhatTheDeckIsToTheAir) {
    const std::array<std::pair<DeckRole, const char*>, 4> words{{{DeckRole::loaded, "CHARGÉ, SUIVANT"},
                                                                 {DeckRole::heard, "EN LECTURE"},
                                                                 {DeckRole::on_air, "À L'ANTENNE"},
                                                                 {DeckRole::paused, "EN PAUSE"}}};
    for (const auto& [role, word] : words) {
        show(role);
        for (const auto& [other, of_other] : words)
            EXPECT_EQ(says(of_other), other == role) << word << " / " << of_other;
    }
    show(DeckRole::ended);
    EXPECT_FALSE(says("EN PAUSE"));
}

TEST_F(DeckPanels, FrameIsLitForTheAirAndForWhatComes) {
    const std::array<std::pair<DeckRole, Accent>, 6> frames{{{DeckRole::empty, Accent::none},
                                                             {DeckRole::loaded, Accent::next},
                                                             {DeckRole::heard, Accent::none},
                                                             {DeckRole::on_air, Accent::air},
                                                             {DeckRole::paused, Accent::air},
                                                             {DeckRole::ended, Accent::none}}};
    for (const auto& [role, accent] : frames) {
        show(role);
        EXPECT_EQ(panel().accent(), accent) << static_cast<int>(role);
        const QColor edge = seen_in_window(panel()).pixelColor(1, panel().height() / 2);
        EXPECT_TRUE(accent == Accent::none || is_near(edge, colour_of(accent), 40)) << edge.name().toStdString();
    }
}

TEST_F(DeckPanels, PlateIsGreenishOnTheAirOnly) {
    show(DeckRole::loaded);
    EXPECT_FALSE(is_green(ground_in(seen_in_window(panel()))));
    show(DeckRole::on_air);
    EXPECT_TRUE(is_green(ground_in(seen_in_window(panel()))));
    show(DeckRole::ended);
    EXPECT_FALSE(is_green(ground_in(seen_in_window(panel()))));
}

TEST_F(DeckPanels, PlayAndZapAreLitOnTheAirOnly) {
    deck().play.enabled = true;
    deck().zap.enabled = true;
    settle();
    for (const DeckRole role :
         {DeckRole::empty, DeckRole::loaded, DeckRole::heard, DeckRole::paused, DeckRole::ended}) {
        show(role);
        EXPECT_FALSE(is_green(face(deck().play))) << static_cast<int>(role);
        EXPECT_FALSE(is_amber(face(deck().zap))) << static_cast<int>(role);
    }
    show(DeckRole::on_air);
    EXPECT_TRUE(is_green(face(deck().play)));
    EXPECT_TRUE(is_amber(face(deck().zap)));
    EXPECT_FALSE(is_green(face(deck().stop)));
}

TEST_F(DeckPanels, PlayIsALampOnTheAirAndGivesTheKeyboardBack) {
    deck().play.enabled = true;
    show(DeckRole::loaded);
    settle();
    QWidget& play = widget(deck().play);
    EXPECT_TRUE(play.isEnabled());
    QApplication::setActiveWindow(&main_view());
    play.setFocus();
    show(DeckRole::on_air);
    EXPECT_FALSE(play.isEnabled());
    EXPECT_EQ(main_view().focusWidget(), &main_view());
    EXPECT_EQ(play.accessibleDescription(), "le lecteur est à l'antenne");
    show(DeckRole::paused);
    EXPECT_TRUE(play.isEnabled());
    EXPECT_EQ(play.accessibleDescription(), "");
}

TEST_F(DeckPanels, BareDeckIsGrey) {
    const auto ink = [this](const Control& control) { return dynamic_cast<StationLabel&>(widget(control)).ink(); };
    main_view().show_look(1, look_of(DeckRole::loaded, "Été"));
    const QColor plain = ink(deck().title);
    EXPECT_EQ(ink(deck().counter), plain);
    for (const DeckRole role : {DeckRole::empty, DeckRole::ended}) {
        main_view().show_look(1, look_of(role));
        EXPECT_EQ(ink(deck().title), studio::caption);
        EXPECT_EQ(ink(deck().counter), studio::caption);
    }
    main_view().show_look(1, look_of(DeckRole::ended, "Été"));
    EXPECT_EQ(ink(deck().title), plain);
    DeckLook refused;
    refused.is_refused = true;
    main_view().show_look(1, refused);
    EXPECT_EQ(ink(deck().title), plain);
}

TEST_F(DeckPanels, EndIsInWholeSecondsAsWhatIsElapsed) {
    deck().counter.caption = "75.00";
    settle();
    show(DeckRole::on_air);
    EXPECT_EQ(dynamic_cast<StationLabel&>(widget(deck().counter)).text(), "90") << "as the marks of the bar";
}

TEST_F(DeckPanels, BarIsGreenWhileTheDeckSoundsAndAmberOtherwise) {
    show(DeckRole::on_air);
    EXPECT_TRUE(is_near(bar_at(25), studio::air));
    show(DeckRole::heard);
    EXPECT_TRUE(is_near(bar_at(25), studio::air));
    show(DeckRole::paused);
    EXPECT_TRUE(is_near(bar_at(25), studio::next));
}

TEST_F(DeckPanels, MarksStandAtTheMixAndAtTheEnd) {
    show(DeckRole::on_air);
    EXPECT_TRUE(is_near(bar_at(60), studio::next));
    EXPECT_TRUE(is_near(bar_at(90), studio::trouble));
    EXPECT_TRUE(is_near(bar_at(75), studio::well));
}

TEST_F(DeckPanels, EndOfASecondThatTheBarLeavesOutStandsAtItsEnd) {
    DeckLook look = look_of(DeckRole::on_air);
    look.end_point = 101;
    main_view().show_look(1, look);
    const QImage bar = seen_in_window(widget(deck().progress));
    EXPECT_TRUE(is_near(bar.pixelColor(bar.width() - 2, bar.height() / 2), studio::trouble));
}

TEST_F(DeckPanels, DeckWithoutAFileHasNoMarks) {
    show(DeckRole::empty);
    EXPECT_TRUE(is_near(bar_at(60), studio::well));
    EXPECT_TRUE(is_near(bar_at(90), studio::well));
}

TEST_F(DeckPanels, BarWithoutALengthHasNoMarks) {
    deck().progress.maximum = 0;
    settle();
    show(DeckRole::on_air);
    EXPECT_EQ(count_of(seen_in_window(widget(deck().progress)), studio::next), 0);
}

TEST_F(DeckPanels, ElapsedSecondsFollowTheBar) {
    deck().progress.value = 73;
    settle();
    EXPECT_TRUE(says("73"));
    deck().progress.value = 74;
    settle();
    EXPECT_TRUE(says("74"));
    EXPECT_FALSE(says("73"));
}

TEST_F(DeckPanels, TitleIsTheNameOfItsFile) {
    deck().title.caption = "Jingle la suite - ";
    settle();
    main_view().show_look(1, look_of(DeckRole::on_air, "La rue"));
    EXPECT_EQ(part<TitleLabel>(main_view(), deck().title.name()).shown(), "La rue");
    main_view().show_look(1, look_of(DeckRole::ended));
    EXPECT_EQ(part<TitleLabel>(main_view(), deck().title.name()).shown(), "Jingle la suite");
}

TEST_F(DeckPanels, TrueSecondStandsWhereTheBarRests) {
    DeckLook look = look_of(DeckRole::on_air);
    look.elapsed = 75;
    main_view().show_look(1, look);
    EXPECT_TRUE(says("75"));
    EXPECT_TRUE(is_near(bar_at(70), studio::air));
    EXPECT_TRUE(is_near(bar_at(80), studio::well));
}

TEST_F(DeckPanels, DeckThatNobodyWaitsForIsPlain) {
    main_view().show_look(1, look_of(DeckRole::loaded, "La rue"));
    EXPECT_EQ(panel().accent(), Accent::none);
    EXPECT_TRUE(says("CHARGÉ"));
    main_view().show_look(1, look_of(DeckRole::ended, "La rue"));
    EXPECT_TRUE(says("ARRÊTÉ"));
}

TEST_F(DeckPanels, TroubleIsRedAndHasAWord) {
    for (const DeckRole role : {DeckRole::on_air, DeckRole::heard}) {
        DeckLook look = look_of(role, "La rue");
        look.is_unheard = true;
        main_view().show_look(1, look);
        EXPECT_EQ(panel().accent(), Accent::trouble);
        EXPECT_TRUE(says("JOUE SANS SORTIE"));
    }
    DeckLook look = look_of(DeckRole::empty);
    look.is_refused = true;
    main_view().show_look(1, look);
    EXPECT_EQ(panel().accent(), Accent::trouble);
    EXPECT_TRUE(says("NON TROUVÉ"));
}

TEST_F(DeckPanels, StateStandsRightBehindTheNumber) {
    main_view().show_look(1, look_of(DeckRole::on_air, "La rue"));
    for (const QSize size : {QSize{1024, 576}, QSize{1280, 479}, QSize{1920, 672}}) {
        main_view().resize(size);
        settle();
        const auto labels = parts_of<StationLabel>(panel());
        const auto place = [&](const QString& word) {
            return std::ranges::find_if(labels, [&](const StationLabel* label) { return label->text() == word; });
        };
        ASSERT_NE(place("LECTEUR 1"), labels.end());
        ASSERT_NE(place("À L'ANTENNE"), labels.end());
        EXPECT_LT((*place("À L'ANTENNE"))->x() - (*place("LECTEUR 1"))->x(), 120) << size.width();
    }
}

TEST_F(DeckPanels, DetailsAreLengthMixPointAndThatItWaits) {
    DeckLook look = look_of(DeckRole::on_air, "La rue");
    look.mix_point = 94.0;
    main_view().show_look(1, look);
    EXPECT_TRUE(says("00:01:40  ·  mix a 94 s"));
    main_view().show_look(1, look_of(DeckRole::ended, "La rue"));
    EXPECT_TRUE(says("00:01:40  ·  En attente"));
    main_view().show_look(1, look_of(DeckRole::empty));
    EXPECT_TRUE(says("00:00:00"));
}

TEST_F(DeckPanels, RestIsThatOfTheAirWhereTheAirIsToldByIt) {
    DeckLook look = look_of(DeckRole::on_air, "La rue");
    look.end_point = 90.0;
    main_view().show_look(1, look);
    EXPECT_TRUE(says("00:00:40")); // the bar is at 50
    look.left = 39;
    main_view().show_look(1, look);
    EXPECT_TRUE(says("00:00:39"));
}

TEST_F(DeckPanels, VolumeIsSeenWhileItsSliderIsHidden) {
    VolumeBar& bar = *parts_of<VolumeBar>(panel()).front();
    station.main_window.show_sliders(false);
    deck().slider.set_value(20);
    settle();
    EXPECT_TRUE(bar.isVisible());
    const int quiet = count_of(seen_in_window(bar), studio::second);
    deck().slider.set_value(0);
    settle();
    EXPECT_GT(count_of(seen_in_window(bar), studio::second), quiet + 100);
    station.main_window.show_sliders(true);
    settle();
    EXPECT_FALSE(bar.isVisible());
}

TEST_F(DeckPanels, EachDeckHasItsOwnPanel) {
    main_view().show_look(2, look_of(DeckRole::on_air));
    auto* second = dynamic_cast<DeckPanel*>(widget(station.main_window.deck(2).title).parentWidget());
    ASSERT_NE(second, nullptr);
    EXPECT_EQ(second->accent(), Accent::air);
    EXPECT_EQ(panel().accent(), Accent::none);
}

TEST_F(DeckPanels, PartsStayWhereTheyAreWhenTheMarkOfTheMainDeckComes) {
    const auto places = [this] {
        std::vector<QRect> all;
        for (const QWidget* child : panel().findChildren<QWidget*>())
            all.push_back(child->geometry());
        return all;
    };
    deck().playing_mark.visible = false;
    settle();
    const auto before = places();
    deck().playing_mark.visible = true;
    settle();
    EXPECT_EQ(places(), before);
}

TEST_F(DeckPanels, PressesReachTheirButtons) {
    std::vector<std::string> pressed;
    for (Button* button : std::initializer_list<Button*>{
             &deck().open, &deck().play, &deck().stop, &deck().pause, &deck().back, &deck().forward, &deck().zap,
             &deck().special_mix, &deck().louder, &deck().quieter, &deck().keep_volume}) {
        button->enabled = true;
        button->visible = true;
        button->on_click = [&pressed, button] { pressed.push_back(button->name()); };
        settle();
        part<QAbstractButton>(main_view(), button->name()).click();
        ASSERT_FALSE(pressed.empty());
        EXPECT_EQ(pressed.back(), button->name());
    }
    EXPECT_EQ(pressed.size(), 11U);
}

} // namespace sonarelle
