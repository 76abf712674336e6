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
        view.resize(1000, 560);
        settle();
    }

    void be_silent_for(const QString& time) {
        view.show_air({.role = DeckRole::ended,
                       .deck = 1,
                       .title = {},
                       .left = "00:00:00",
                       .next = {},
                       .notice = {},
                       .silence = time});
        settle();
    }
    void lose_the_card() {
        view.show_output("sortie : aucune carte son, cadence de l'horloge", true);
        settle();
    }
    void play() {
        view.show_air({.role = DeckRole::on_air,
                       .deck = 2,
                       .title = "Matin sur le port",
                       .left = "00:02:10",
                       .next = "Ensuite : Jingle bonjour",
                       .notice = {},
                       .silence = {}});
        settle();
    }

    void notice(const char* text) {
        view.show_air({.role = DeckRole::on_air,
                       .deck = 1,
                       .title = "Matin sur le port",
                       .left = "00:02:10",
                       .next = "Ensuite : rien",
                       .notice = text,
                       .silence = {}});
        settle();
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
        EXPECT_GE(label.height(), metrics.height()) << label.objectName().toStdString();
    }

    Scheduler scheduler;
    Antenne_FM main_window{scheduler};
    SoundReading sound{[] { return LevelReading{}; }, [](std::span<float>) {}, [] { return std::span<const float>{}; }};
    MainView view{main_window, services, sound};
};

} // namespace

TEST_F(AirHeaderTest, TellsNothingBeforeAnythingIsKnown) {
    EXPECT_LT(red_share(), 0.01);
    EXPECT_FALSE(label("air_silence").isVisible());
    EXPECT_FALSE(label("air_notice").isVisible());
    EXPECT_TRUE(label("remaining").isVisible());
    EXPECT_EQ(label("remaining").text(), "00:00:00");
}

TEST_F(AirHeaderTest, StateHasItsInk) {
    const auto ink = [this](DeckRole role) {
        view.show_air(
            {.role = role, .deck = 1, .title = {}, .left = {}, .next = "Ensuite : x", .notice = {}, .silence = {}});
        settle();
        return label("air_state").palette().color(QPalette::WindowText);
    };
    EXPECT_EQ(ink(DeckRole::on_air), mixed(studio::air, Qt::white, 0.25));
    EXPECT_EQ(ink(DeckRole::heard), mixed(studio::air, Qt::white, 0.25));
    EXPECT_EQ(ink(DeckRole::paused), mixed(studio::next, Qt::white, 0.25));
    EXPECT_EQ(ink(DeckRole::empty), mixed(studio::text, Qt::white, 0.25));
    EXPECT_EQ(label("air_next").palette().color(QPalette::WindowText), mixed(studio::next, Qt::white, 0.25));
}

TEST_F(AirHeaderTest, SaysWhatTheMainDeckDoes) {
    const auto state = [this](DeckRole role) {
        view.show_air({.role = role, .deck = 2, .title = {}, .left = {}, .next = {}, .notice = {}, .silence = {}});
        return label("air_state").text();
    };
    EXPECT_EQ(state(DeckRole::on_air), "● À L'ANTENNE — Play 2");
    EXPECT_EQ(state(DeckRole::paused), "EN PAUSE — Play 2");
    EXPECT_EQ(state(DeckRole::ended), "EN ATTENTE");
    EXPECT_EQ(state(DeckRole::loaded), "EN ATTENTE");
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
    EXPECT_TRUE(label("air_notice").isVisible());
    EXPECT_TRUE(label("remaining").isVisible());
}

TEST_F(AirHeaderTest, TellsATroubleThatCantBeHeardYetInAmber) {
    notice("LISTE STOPPÉE");
    EXPECT_LT(red_share(), 0.01);
    EXPECT_TRUE(label("remaining").isVisible());
    const QImage seen = seen_in_window(label("air_notice"));
    const QColor ink = ink_in(seen);
    EXPECT_GT(ink.red(), ink.blue() + 80);
    EXPECT_GT(ink.green(), ink.blue() + 40);
    EXPECT_GE(contrast_in(seen), 4.2);
}

TEST_F(AirHeaderTest, HasRoomForItsNoticesOnTheSmallestScreen) {
    for (const char* text : {"LISTE STOPPÉE", "ENCHAÎNEMENT STOPPÉ"}) {
        notice(text);
        expect_whole(label("air_notice"));
        expect_whole(label("remaining"));
    }
}

TEST_F(AirHeaderTest, TellsTheLostCardBeforeANotice) {
    notice("LISTE STOPPÉE");
    lose_the_card();
    EXPECT_EQ(label("air_notice").text(), "CARTE SON PERDUE");
    EXPECT_GT(red_share(), 0.6);
}

TEST_F(AirHeaderTest, TellsTheSilenceBeforeTheLostCard) {
    lose_the_card();
    be_silent_for("00:02");
    EXPECT_TRUE(label("air_silence").isVisible());
    EXPECT_FALSE(label("air_notice").isVisible());
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
    for (const StationLabel* text : header().findChildren<StationLabel*>())
        EXPECT_GE(contrast(text->palette().color(QPalette::WindowText), QColor(0xb0, 0x14, 0x1e)), 4.5)
            << text->objectName().toStdString();
}

TEST_F(AirHeaderTest, HasRoomForItsAlarmsOnTheSmallestScreen) {
    be_silent_for("120:02");
    expect_whole(label("air_silence"));
    expect_whole(label("clock"));
    play();
    lose_the_card();
    expect_whole(label("air_notice"));
    expect_whole(label("remaining"));
}

TEST_F(AirHeaderTest, HasRoomForASuspendedChainOnTheSmallestScreen) {
    view.show_air({.role = DeckRole::on_air,
                   .deck = 1,
                   .title = "Matin sur le port",
                   .left = "00:02:10",
                   .next = "chaîne suspendue : mixage spécial",
                   .suspended = true,
                   .notice = {},
                   .silence = {}});
    settle();
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

TEST_F(AirHeaderTest, SaysWhichDeckIsHeardWhileTheMainOneIsSilent) {
    view.show_air({.role = DeckRole::heard,
                   .deck = 3,
                   .title = "Matin",
                   .left = "00:00:03",
                   .next = {},
                   .notice = {},
                   .silence = {}});
    settle();
    EXPECT_EQ(label("air_state").text(), "● EN LECTURE — Play 3");
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
    view.show_air({.role = DeckRole::on_air,
                   .deck = 2,
                   .title = "Matin sur le port",
                   .left = "00:02:10",
                   .to_mix = 124,
                   .next = "Ensuite : Jingle bonjour",
                   .notice = {},
                   .silence = {}});
    settle();
    EXPECT_EQ(label("air_to_mix").text(), "· MIX DANS 124 s");
    const QColor ink = ink_in(seen_in_window(label("air_to_mix")));
    EXPECT_GT(ink.red(), ink.blue() + 40) << "amber";
    expect_whole(label("air_to_mix"));
}

} // namespace sonarelle
