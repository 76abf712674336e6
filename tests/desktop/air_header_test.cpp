// The head of the main window, when the air is silent and when the sound card is gone.
#include "desktop/air_header.h"

#include "desktop/colours.h"
#include "desktop/desktop_fixture.h"
#include "desktop/main_view.h"
#include "desktop/pixels.h"
#include "platform/scheduler.h"

namespace sonarelle {

namespace {

class AirHeaderTest : public DesktopFixture {
protected:
    AirHeaderTest() {
        main_window.show();
        settle();
        view.resize(1000, 459);
        view.show_clock("10:54:02");
        settle();
    }

    void show(const AirLook& shown) {
        look = shown;
        view.show_air(look);
        settle();
    }
    void show_role(DeckRole role, int deck = 1) {
        AirLook shown;
        shown.role = role;
        shown.deck = deck;
        shown.next = "Ensuite : x";
        show(shown);
    }
    void be_silent_for(const QString& time) {
        look.role = DeckRole::ended;
        look.silence = time;
        look.silent_since = "10:53:50";
        look.of_list = look.can_start = true;
        show(look);
    }
    void lose_the_card() {
        look.lost_for = "00:08";
        show(look);
    }
    void play(const QString& what_is_wrong = {}) {
        AirLook shown;
        shown.role = DeckRole::on_air;
        shown.deck = 2;
        shown.title = "Matin sur le port";
        shown.left = "00:02:10";
        shown.next = "Ensuite : Jingle bonjour";
        shown.notice = what_is_wrong;
        shown.station = "Sonarelle  ·  journal désactivé";
        show(shown);
    }

    [[nodiscard]] AirHeader& header() { return *view.findChild<AirHeader*>("air_header"); }
    [[nodiscard]] StationLabel& label(const char* name) { return *view.findChild<StationLabel*>(name); }

    /// The part of the header that reads as red, from 0 to 1.
    [[nodiscard]] double red_share() {
        const QImage seen = header().grab().toImage();
        int red = 0;
        for (int y = 0; y < seen.height(); ++y)
            for (int x = 0; x < seen.width(); ++x) {
                const QColor pixel = seen.pixelColor(x, y);
                red += pixel.red() > 120 && pixel.green() < 60 && pixel.blue() < 70 ? 1 : 0;
            }
        return static_cast<double>(red) / (seen.width() * seen.height());
    }

    void expect_whole(const StationLabel& label) {
        const QFontMetrics metrics{label.font()};
        EXPECT_GE(label.width(), metrics.horizontalAdvance(label.text())) << label.objectName().toStdString();
        EXPECT_GE(label.height(), metrics.capHeight()) << label.objectName().toStdString();
    }

    AirLook look;
    Scheduler scheduler;
    Antenne_FM main_window{scheduler};
    SoundReading sound{[] { return LevelReading{}; }, [](std::span<float>) {}, [] { return std::span<const float>{}; }};
    MainView view{main_window, services, sound};
};

} // namespace

TEST_F(AirHeaderTest, TellsWhatComesThenWhereThereIsRoom) {
    AirLook shown;
    shown.role = DeckRole::on_air;
    shown.next = "Ensuite : Jingle horaire (00:00:03)";
    shown.then = "Nuit au phare";
    view.resize(1600, 560);
    show(shown);
    EXPECT_EQ(label("air_next").shown_text(), "Ensuite : Jingle horaire (00:00:03), puis Nuit au phare");
    view.resize(1000, 459);
    settle();
    EXPECT_EQ(label("air_next").shown_text(), "Ensuite : Jingle horaire (00:00:03)");
}

TEST_F(AirHeaderTest, SilenceIsNotedInAJournalThatIsWritten) {
    play();
    look.is_noted = true;
    be_silent_for("00:12");
    EXPECT_EQ(label("air_station").text(), "noté au journal");
    look.is_noted = false;
    show(look);
    EXPECT_EQ(label("air_station").text(), "Sonarelle  ·  journal désactivé");
}

TEST_F(AirHeaderTest, TellsNothingThatComesThenInAnAlarm) {
    AirLook shown;
    shown.next = "Ensuite : x";
    shown.then = "y";
    show(shown);
    be_silent_for("00:12");
    EXPECT_EQ(label("air_next").shown_text(), "dernier titre diffusé, arrêté à 10:53:50");
}

TEST_F(AirHeaderTest, TellsNothingBeforeAnythingIsKnown) {
    EXPECT_LT(red_share(), 0.01);
    EXPECT_FALSE(label("air_silence").isVisible());
    EXPECT_EQ(label("air_station").text(), "");
    EXPECT_TRUE(label("remaining").isVisible());
}

TEST_F(AirHeaderTest, StateHasItsInk) {
    const auto ink = [this](DeckRole role) {
        show_role(role);
        return ink_in(seen_in_window(label("air_state")));
    };
    EXPECT_TRUE(is_near(ink(DeckRole::on_air), studio::air_text, 40));
    EXPECT_TRUE(is_near(ink(DeckRole::heard), studio::air_text, 40));
    EXPECT_TRUE(is_near(ink(DeckRole::paused), studio::next_text, 40));
    EXPECT_TRUE(is_near(ink(DeckRole::empty), studio::second, 40));
    EXPECT_TRUE(is_near(ink_in(seen_in_window(label("air_next"))), studio::next_text, 40));
}

TEST_F(AirHeaderTest, SaysWhatTheMainDeckDoes) {
    const auto state = [this](DeckRole role) {
        show_role(role, 2);
        return label("air_state").text();
    };
    EXPECT_EQ(state(DeckRole::on_air), "À L'ANTENNE — Play 2");
    EXPECT_EQ(state(DeckRole::paused), "EN PAUSE — Play 2");
    EXPECT_EQ(state(DeckRole::ended), "EN ATTENTE");
    EXPECT_EQ(state(DeckRole::empty), "EN ATTENTE");
}

TEST_F(AirHeaderTest, IsRedWhileTheAirIsSilent) {
    be_silent_for("00:02");
    EXPECT_GT(red_share(), 0.6);
}

TEST_F(AirHeaderTest, CountsTheSilence) {
    be_silent_for("00:12");
    EXPECT_EQ(label("air_silence").text(), "SILENCE depuis 00:12");
    EXPECT_TRUE(label("air_silence").isVisible());
}

TEST_F(AirHeaderTest, IsRedWithoutASoundCard) {
    play();
    lose_the_card();
    EXPECT_GT(red_share(), 0.6);
}

TEST_F(AirHeaderTest, NamesTheLostCardBesideTheRemainingTime) {
    play();
    lose_the_card();
    EXPECT_EQ(label("air_title").text(), "CARTE SON PERDUE");
    EXPECT_EQ(label("air_next").text(), "depuis 00:08 : Matin sur le port joue sans sortie");
    EXPECT_TRUE(label("remaining").isVisible());
}

TEST_F(AirHeaderTest, TellsATroubleThatCantBeHeardYetInAmber) {
    play("LISTE STOPPÉE");
    EXPECT_EQ(label("air_station").text(), "LISTE STOPPÉE");
    EXPECT_LT(red_share(), 0.01);
    EXPECT_TRUE(label("remaining").isVisible());
    const QImage seen = seen_in_window(label("air_station"));
    const QColor ink = ink_in(seen);
    EXPECT_GT(ink.red(), ink.blue() + 80);
    EXPECT_GT(ink.green(), ink.blue() + 40);
    EXPECT_GE(contrast_in(seen), 4.2);
}

TEST_F(AirHeaderTest, HasRoomForItsNoticesOnTheSmallestScreen) {
    for (const char* text : {"LISTE STOPPÉE", "ENCHAÎNEMENT STOPPÉ"}) {
        play(text);
        expect_whole(label("air_station"));
        expect_whole(label("remaining"));
    }
}

TEST_F(AirHeaderTest, TellsTheSilenceBeforeTheLostCard) {
    play();
    lose_the_card();
    be_silent_for("00:02");
    EXPECT_TRUE(label("air_silence").isVisible());
    EXPECT_FALSE(label("remaining").isVisible());
    EXPECT_EQ(label("air_title").text(), "Matin sur le port");
    EXPECT_EQ(label("air_next").text(), "dernier titre diffusé, arrêté à 10:53:50");
}

TEST_F(AirHeaderTest, SaysWhatEndsTheSilence) {
    be_silent_for("00:02");
    EXPECT_TRUE(label("air_remedy").isVisible());
    play();
    EXPECT_FALSE(label("air_remedy").isVisible());
}

TEST_F(AirHeaderTest, OffersTheListOnlyWhereItCanBeTakenUp) {
    be_silent_for("00:02");
    EXPECT_EQ(label("air_state").text(), "LISTE ACTIVE, RIEN N'EST DIFFUSÉ");
    look.can_start = false;
    show(look);
    EXPECT_FALSE(label("air_remedy").isVisible()) << "it runs, and what it plays is silent";
    look.can_start = true;
    look.of_list = false;
    show(look);
    EXPECT_FALSE(label("air_remedy").isVisible()) << "the decks are chained";
    EXPECT_EQ(label("air_state").text(), "RIEN N'EST DIFFUSÉ");
}

TEST_F(AirHeaderTest, ReturnTakesUpTheListInASilence) {
    int taken_up = 0;
    view.on_restart = [&] { ++taken_up; };
    view.setFocus();
    const auto press_return = [this] { QTest::keyClick(&view, Qt::Key_Return); };
    press_return();
    EXPECT_EQ(taken_up, 0) << "nothing is silent";
    be_silent_for("00:02");
    press_return();
    EXPECT_EQ(taken_up, 1);
    view.findChild<QWidget*>("Command1")->setFocus();
    press_return();
    EXPECT_EQ(taken_up, 1) << "the part that has the keyboard is pressed";
    QWidget& overlap = *view.findChild<QWidget*>("Text1");
    overlap.setFocus();
    QTest::keyClick(&overlap, Qt::Key_Return);
    EXPECT_EQ(taken_up, 1) << "it ends what was typed";
    EXPECT_EQ(view.focusWidget(), &view);
}

TEST_F(AirHeaderTest, ChainThatIsSilentIsRed) {
    main_window.mix_list.show_value(true);
    settle();
    QWidget& segment = *view.findChild<QWidget*>("coche3")->parentWidget();
    const auto ground = [&] { return ground_in(seen_in_window(segment)); };
    EXPECT_TRUE(is_near(ground(), studio::air_fill));
    be_silent_for("00:02");
    EXPECT_TRUE(is_near(ground(), studio::trouble_fill));
    play();
    EXPECT_TRUE(is_near(ground(), studio::air_fill));
}

TEST_F(AirHeaderTest, NameForTheScreenReaderIsTheAlarm) {
    play();
    EXPECT_EQ(header().accessibleName(), "");
    lose_the_card();
    EXPECT_EQ(header().accessibleName(), "CARTE SON PERDUE");
    be_silent_for("00:02");
    EXPECT_EQ(header().accessibleName(), "SILENCE depuis 00:02");
}

TEST_F(AirHeaderTest, IsQuietOnceSoundIsBack) {
    be_silent_for("00:02");
    play();
    EXPECT_LT(red_share(), 0.01);
    EXPECT_FALSE(label("air_silence").isVisible());
    EXPECT_TRUE(label("remaining").isVisible());
}

TEST_F(AirHeaderTest, WordsHaveTheirOwnInkAgainOnceSoundIsBack) {
    play();
    const QColor before = ink_in(seen_in_window(label("remaining")));
    be_silent_for("00:02");
    play();
    settle();
    EXPECT_EQ(ink_in(seen_in_window(label("remaining"))), before);
}

TEST_F(AirHeaderTest, IsReadableInAlarm) {
    play();
    lose_the_card();
    for (const char* name : {"air_state", "air_title", "air_next", "remaining", "clock", "air_station"})
        EXPECT_GE(contrast_in(seen_in_window(label(name))), 4.2) << name;
}

TEST_F(AirHeaderTest, HasRoomForItsAlarmsOnTheSmallestScreen) {
    be_silent_for("120:02");
    expect_whole(label("air_silence"));
    expect_whole(label("clock"));
    play();
    lose_the_card();
    expect_whole(label("air_station"));
    expect_whole(label("air_title"));
    expect_whole(label("remaining"));
}

TEST_F(AirHeaderTest, HasRoomForASuspendedChainOnTheSmallestScreen) {
    play();
    look.next = "chaîne suspendue : mixage spécial";
    look.suspended = true;
    show(look);
    expect_whole(label("air_next"));
}

TEST_F(AirHeaderTest, MovesNothingBelowItInAlarm) {
    play();
    const QRect before = header().geometry();
    be_silent_for("00:02");
    EXPECT_EQ(header().geometry(), before);
    lose_the_card();
    EXPECT_EQ(header().geometry(), before);
}

TEST_F(AirHeaderTest, BannerIsGoneWhileTheAirIsSilent) {
    view.resize(1920, 672);
    const QWidget& banner = *view.findChild<QWidget*>(QString::fromStdString(main_window.banner.name()));
    be_silent_for("00:02");
    EXPECT_FALSE(banner.isVisible());
    play();
    EXPECT_TRUE(banner.isVisible());
}

TEST_F(AirHeaderTest, SaysWhichDeckIsHeardWhileTheMainOneIsSilent) {
    show_role(DeckRole::heard, 3);
    EXPECT_EQ(label("air_state").text(), "EN LECTURE — Play 3");
    const QColor ink = ink_in(seen_in_window(label("air_state")));
    EXPECT_GT(ink.green(), ink.red() + 40);
}

TEST_F(AirHeaderTest, WordsReadOnRedWhateverTheWindowsGround) {
    main_window.back_colour = 0xFFFFFF; // white, which carries black
    main_window.chain_status.fore_colour = 0x000000;
    be_silent_for("00:02");
    for (const char* name : {"air_state", "air_silence"})
        EXPECT_GE(contrast_in(seen_in_window(label(name))), 4.2) << name;
}

TEST_F(AirHeaderTest, TellsInHowLongTheNextTrackComesIn) {
    play();
    EXPECT_EQ(label("air_to_mix").text(), "");
    look.to_mix = 124;
    show(look);
    EXPECT_EQ(label("air_to_mix").text(), "·  MIX DANS 124 s");
    const QColor ink = ink_in(seen_in_window(label("air_to_mix")));
    EXPECT_GT(ink.red(), ink.blue() + 40) << "amber";
    expect_whole(label("air_to_mix"));
}

} // namespace sonarelle
