// The level meter: what it shows, and that it asks for nothing while nobody sees it.
#include "desktop/level_meter.h"

#include <QPaintEvent>
#include <QScreen>
#include <QTest>
#include <vector>

#include "desktop/desktop_fixture.h"
#include "desktop/pixels.h"
#include "desktop/sound_source.h"

namespace sonarelle {

namespace {

class Meter : public DesktopFixture {
protected:
    Meter() {
        meter.resize(216, 64); // bars of 200
        meter.on_loudness = [this](const QString& text) { told.push_back(text.toStdString()); };
    }
    void show_peaks(float left, float right) {
        source.level.peak = {left, right};
        meter.show();
        const int before = source.asked;
        EXPECT_TRUE(becomes([&] { return source.asked >= before + 2; }));
    }
    /// The middle of a channel's bar at a hundredth of its length.
    [[nodiscard]] QColor at(int channel, int share) {
        return seen(meter).pixelColor(16 + 2 * share, channel == 0 ? 8 : 36);
    }
    /// How far a bar is lit, in hundredths.
    [[nodiscard]] int lit(int channel) {
        int share = 0;
        while (share < 100 && is_near(at(channel, share), studio::air))
            ++share;
        return share;
    }
    /// Where the line of the greatest peak stands, in hundredths; -1 for none.
    [[nodiscard]] int held(int channel) {
        const QImage image = seen(meter);
        for (int x = 215; x >= 16; --x)
            if (is_near(image.pixelColor(x, channel == 0 ? 8 : 36), studio::cursor))
                return (x - 16) / 2;
        return -1;
    }
    /// How long the longest upright stroke of a channel's letter is.
    [[nodiscard]] int stroke(int channel) {
        const QImage letter = seen(meter).copy(0, channel == 0 ? 0 : 28, 14, 22);
        const QColor ink = ink_in(letter);
        int longest = 0;
        for (int x = 0; x < letter.width(); ++x)
            longest = std::max(longest, count_of(letter.copy(x, 0, 1, letter.height()), ink));
        return longest;
    }
    /// How many columns of the scale are inked in so many pixels as a figure takes, from one on.
    [[nodiscard]] int width_of_figure(int left) {
        const QImage figure = seen(meter).copy(left, 52, 22, 12);
        int inked = 0;
        for (int x = 0; x < figure.width(); ++x)
            inked += count_of(figure.copy(x, 0, 1, figure.height()), ground_in(figure)) < figure.height() ? 1 : 0;
        return inked;
    }
    [[nodiscard]] bool is_overloaded(int channel) { return is_near(at(channel, 97), studio::trouble); }

    Source source;
    LevelMeter meter{source.reading()};
    std::vector<std::string> told;
};

} // namespace

TEST(LevelScale, GoesFromMinus60DecibelsToFull) {
    EXPECT_EQ(share_of_scale(0), 0);
    EXPECT_EQ(share_of_scale(0.0009), 0);
    EXPECT_NEAR(share_of_scale(0.0316228), 0.5, 0.001); // -30 dB
    EXPECT_NEAR(share_of_scale(0.1), 0.6667, 0.001);
    EXPECT_EQ(share_of_scale(1), 1);
    EXPECT_EQ(share_of_scale(2), 1);
}

TEST(Loudness, IsWrittenAsStationsWriteIt) {
    EXPECT_EQ(loudness_text(-16.24), "−16,2 LUFS");
    EXPECT_EQ(loudness_text(1.0), "1,0 LUFS");
    EXPECT_EQ(loudness_text(0.0), "0,0 LUFS");
    EXPECT_EQ(loudness_text({}), "— LUFS");
}

TEST_F(Meter, IsDarkInSilence) {
    show_peaks(0, 0);
    EXPECT_EQ(lit(0), 0);
    EXPECT_EQ(lit(1), 0);
}

TEST_F(Meter, IsNamedForTheScreenReader) {
    EXPECT_EQ(meter.accessibleName(), "Niveau");
}

TEST_F(Meter, EachChannelHasItsBar) {
    show_peaks(0.0316228F, 0.01F); // -30 and -40 dB
    EXPECT_NEAR(lit(0), 50, 2);
    EXPECT_NEAR(lit(1), 33, 2);
}

TEST_F(Meter, IsPaintedWhenTheLevelChanges) {
    struct PaintCounter : QObject {
        bool eventFilter(QObject* object, QEvent* event) override {
            paints += event->type() == QEvent::Paint ? 1 : 0;
            return QObject::eventFilter(object, event);
        }
        int paints = 0;
    } counter;
    show_peaks(0, 0);
    meter.installEventFilter(&counter);
    source.level.peak = {0.5F, 0.5F};
    EXPECT_TRUE(becomes([&] { return counter.paints > 0; }));
    meter.removeEventFilter(&counter);
}

TEST_F(Meter, PaintsWhatMovedAlone) {
    struct Painted : QObject {
        bool eventFilter(QObject* object, QEvent* event) override {
            if (event->type() == QEvent::Paint)
                rects |= static_cast<QPaintEvent*>(event)->region();
            return QObject::eventFilter(object, event);
        }
        QRegion rects;
    } painted;
    show_peaks(0.0316228F, 0.0316228F); // -30 dB: 116 of 216 pixels
    settle();
    meter.installEventFilter(&painted);
    source.level.peak = {0.1F, 0.1F};
    EXPECT_TRUE(becomes([&] { return !painted.rects.isEmpty(); }));
    meter.removeEventFilter(&painted);
    EXPECT_GT(painted.rects.boundingRect().left(), 16);
    EXPECT_LT(painted.rects.boundingRect().right(), 160);
    EXPECT_FALSE(painted.rects.intersects(QRect{0, 50, 216, 14})) << "the scale";
}

TEST_F(Meter, ShowsOnTheScreenWhatItIsPaintedAs) {
    show_peaks(1, 0.1F);
    source.level.peak = {0, 0.5F};
    for (int look = 0; look < 45; ++look) {
        const int before = source.asked;
        ASSERT_TRUE(becomes([&] { return source.asked > before; }));
        settle();
        const QImage screen = meter.screen()->grabWindow(meter.winId()).toImage().convertToFormat(QImage::Format_RGB32);
        ASSERT_EQ(screen, meter.grab().toImage().convertToFormat(QImage::Format_RGB32)) << "look " << look;
    }
}

TEST_F(Meter, LineStaysWhereThePeakWas) {
    show_peaks(0.0316228F, 0.01F);
    source.level.peak = {0, 0};
    EXPECT_TRUE(becomes([&] { return lit(0) < 30; }));
    EXPECT_NEAR(held(0), 49, 2);
    EXPECT_NEAR(held(1), 32, 2);
}

TEST_F(Meter, LineFallsAfterAWhile) {
    show_peaks(0.1F, 0.1F);
    source.level.peak = {0, 0};
    EXPECT_TRUE(becomes([&] { return held(0) == -1; }));
}

TEST_F(Meter, LineGoesUpAtOnce) {
    show_peaks(0.01F, 0);
    show_peaks(0.1F, 0);
    EXPECT_NEAR(held(0), 66, 2);
    EXPECT_EQ(held(1), -1);
}

TEST_F(Meter, EndIsRedBeyondFullScaleAlone) {
    show_peaks(0.99F, 1);
    EXPECT_FALSE(is_overloaded(0));
    EXPECT_TRUE(is_overloaded(1));
    EXPECT_EQ(count_of(seen(meter).copy(0, 0, 216, 24), studio::trouble), 0);
}

TEST_F(Meter, EndIsDarkAgainAfterAWhile) {
    show_peaks(1, 1);
    source.level.peak = {0, 0};
    EXPECT_TRUE(becomes([&] { return !is_overloaded(0); }));
}

TEST_F(Meter, HasNoOtherColourThanGreen) {
    show_peaks(0.97F, 0.97F);
    EXPECT_EQ(count_of(seen(meter), studio::next), 0);
    EXPECT_EQ(count_of(seen(meter), studio::trouble), 0);
}

TEST_F(Meter, ScaleAndLettersRead) {
    show_peaks(0, 0);
    const QImage image = seen(meter);
    EXPECT_GE(contrast_in(image.copy(0, 50, 216, 14)), readable);
    EXPECT_GE(contrast_in(image.copy(0, 0, 14, 24)), readable);
}

TEST_F(Meter, ScaleBeginsAtMinus60AndEndsAtFull) {
    show_peaks(0, 0);
    EXPECT_GT(width_of_figure(16), 2 * width_of_figure(194));
}

TEST_F(Meter, EndStaysRedForAWhile) {
    show_peaks(1, 1);
    source.level.peak = {0, 0};
    const int before = source.asked;
    EXPECT_TRUE(becomes([&] { return !is_overloaded(0); }));
    EXPECT_GE(source.asked, before + 25) << "a second and a half of looks";
}

TEST_F(Meter, LeftStandsAboveRight) {
    show_peaks(0, 0);
    EXPECT_GT(stroke(1), stroke(0)) << "a D has a straight back, a G has none";
}

TEST_F(Meter, FallsSlowly) {
    show_peaks(1, 1);
    EXPECT_EQ(held(0), 99);
    source.level.peak = {0, 0};
    const int before = source.asked;
    EXPECT_TRUE(becomes([&] { return lit(0) < 80; }));
    EXPECT_GE(source.asked, before + 6) << "three hundredths a look";
    EXPECT_TRUE(becomes([&] { return lit(0) == 0; }));
}

TEST_F(Meter, TellsAnotherLoudnessOnce) {
    source.level.lufs = -20.0;
    show_peaks(0.5F, 0.5F);
    QTest::qWait(some_readings);
    source.level.lufs = -18.0;
    EXPECT_TRUE(becomes([&] { return told.size() == 2; }));
    EXPECT_EQ(told, (std::vector<std::string>{"−20,0 LUFS", "−18,0 LUFS"}));
}

TEST_F(Meter, LeavesAFigureOfTheLoudnessForAMoment) {
    source.level.lufs = -20.0;
    show_peaks(0.5F, 0.5F);
    const auto before = told.size();
    const int asked = source.asked;
    while (source.asked < asked + 24) {
        *source.level.lufs += 0.1;
        QTest::qWait(1);
    }
    EXPECT_LE(told.size(), before + 4);
    EXPECT_GE(told.size(), before + 2);
}

TEST_F(Meter, TellsSilenceAtOnce) {
    source.level.lufs = -20.0;
    show_peaks(0.5F, 0.5F);
    ASSERT_TRUE(becomes([&] { return told.size() == 1; }));
    const int asked = source.asked;
    source.level.lufs = {};
    EXPECT_TRUE(becomes([&] { return told.back() == "— LUFS"; }));
    EXPECT_LE(source.asked, asked + 3);
}

TEST_F(Meter, AsksForNothingWhileItIsHidden) {
    show_peaks(0.5F, 0.5F);
    meter.hide();
    const int before = source.asked;
    QTest::qWait(some_readings);
    EXPECT_EQ(source.asked, before);
    meter.show();
    EXPECT_TRUE(becomes([&] { return source.asked > before; }));
}

TEST_F(Meter, WithoutASourceStaysDark) {
    LevelMeter silent{SoundReading{}};
    silent.resize(216, 64);
    silent.show();
    QTest::qWait(some_readings);
    EXPECT_EQ(count_of(seen(silent), studio::air), 0);
}

} // namespace sonarelle
