// A deck's bar: how far the sound is, where the next one begins and where this one ends.
#include "desktop/progress_strip.h"

#include <QPainter>
#include <QTest>

#include "desktop/desktop_fixture.h"
#include "desktop/pixels.h"

namespace sonarelle {

namespace {

class Strip : public DesktopFixture {
protected:
    Strip() {
        strip.resize(200, 20);
        strip.show();
    }
    /// The colour in the middle of the bar at a share of its width.
    [[nodiscard]] QColor at(double share) { return seen(strip).pixelColor(static_cast<int>(share * 200), 10); }
    [[nodiscard]] bool has_mark(double share, const QColor& colour) { return is_near(at(share), colour); }

    ProgressStrip strip;
};

/// A strip of 400 pixels over 40 seconds: ten loud, ten silent, twenty at half.
class SoundStrip : public Strip {
protected:
    SoundStrip() {
        sound->peaks.resize(40, 128);
        std::fill_n(sound->peaks.begin(), 10, 255);
        std::fill_n(sound->peaks.begin() + 10, 10, 0);
        strip.resize(400, 60);
        strip.set_sound(sound, 40);
    }
    /// In the middle of the bar of the shape that stands nearest to a share of the width.
    [[nodiscard]] QColor middle_at(double share) {
        return seen(strip).pixelColor(static_cast<int>(share * 100) * 4 + 1, 30);
    }
    /// How high that bar is.
    [[nodiscard]] int height_at(double share) {
        const QImage image = seen(strip);
        int height = 0;
        for (int y = 0; y < image.height(); ++y)
            height += is_near(image.pixelColor(static_cast<int>(share * 100) * 4 + 1, y), studio::wave) ? 1 : 0;
        return height;
    }
    [[nodiscard]] int whole_height() const { return strip.height() - 8; }

    std::shared_ptr<Waveform> sound = std::make_shared<Waveform>(Waveform{1, {}});
};

} // namespace

TEST_F(Strip, IsFilledAsFarAsTheSoundIs) {
    strip.set_share(0.5);
    EXPECT_TRUE(is_near(at(0.25), studio::air));
    EXPECT_TRUE(is_near(at(0.48), studio::air));
    EXPECT_TRUE(is_near(at(0.52), studio::well));
    EXPECT_TRUE(is_near(at(0.75), studio::well));
}

TEST_F(Strip, IsEmptyAtFirst) {
    EXPECT_TRUE(is_near(at(0.02), studio::well));
}

TEST_F(Strip, ShareStaysBetweenNothingAndTheWhole) {
    strip.set_share(1.5);
    EXPECT_EQ(strip.share(), 1);
    strip.set_share(-0.5);
    EXPECT_EQ(strip.share(), 0);
}

TEST_F(Strip, FillTakesAnotherColour) {
    strip.set_share(0.5);
    strip.set_fill(studio::next);
    EXPECT_TRUE(is_near(at(0.25), studio::next));
}

TEST_F(Strip, MarksStandWhereTheNextBeginsAndThisEnds) {
    strip.set_marks(0.6, 0.9);
    EXPECT_TRUE(has_mark(0.6, studio::next));
    EXPECT_TRUE(has_mark(0.9, studio::trouble));
    EXPECT_TRUE(has_mark(0.75, studio::well));
}

TEST_F(Strip, MarkOfTheNextMovesAlone) {
    strip.set_marks(0.6, 0.9);
    strip.set_marks(0.4, 0.9);
    EXPECT_TRUE(has_mark(0.4, studio::next));
    EXPECT_TRUE(has_mark(0.6, studio::well));
    EXPECT_TRUE(has_mark(0.9, studio::trouble));
}

TEST_F(Strip, MarkOfTheEndMovesAlone) {
    strip.set_marks(0.4, 0.9);
    strip.set_marks(0.4, 0.7);
    EXPECT_TRUE(has_mark(0.4, studio::next));
    EXPECT_TRUE(has_mark(0.7, studio::trouble));
    EXPECT_TRUE(has_mark(0.9, studio::well));
}

TEST_F(Strip, MarksGo) {
    strip.set_marks(0.4, 0.9);
    strip.set_marks({}, {});
    EXPECT_TRUE(has_mark(0.4, studio::well));
    EXPECT_TRUE(has_mark(0.9, studio::well));
}

TEST_F(Strip, MarkBesideTheBarIsNotDrawn) {
    strip.set_marks(-0.1, 1.1);
    EXPECT_EQ(count_of(seen(strip), studio::next), 0);
    EXPECT_EQ(count_of(seen(strip), studio::trouble), 0);
}

TEST_F(Strip, MarksAtBothEndsAreSeenWhole) {
    strip.set_marks(0.0, 1.0);
    EXPECT_GE(count_of(seen(strip), studio::next), 2 * 18);
    EXPECT_GE(count_of(seen(strip), studio::trouble), 2 * 18);
}

TEST_F(Strip, EachChangeIsPaintedAtOnce) {
    struct Counting : ProgressStrip {
        void paintEvent(QPaintEvent* event) override {
            ++painted;
            ProgressStrip::paintEvent(event);
        }
        int painted = 0;
    } counted;
    counted.show();
    const auto is_painted_after = [&](const std::function<void()>& change) {
        QTest::qWait(20);
        const int before = counted.painted;
        change();
        QTest::qWait(50);
        return counted.painted > before;
    };
    EXPECT_TRUE(is_painted_after([&] { counted.set_share(0.3); }));
    EXPECT_FALSE(is_painted_after([&] { counted.set_share(0.3); }));
    EXPECT_TRUE(is_painted_after([&] { counted.set_marks(0.5, 0.9); }));
    EXPECT_TRUE(is_painted_after([&] { counted.set_marks(0.4, 0.9); }));
    EXPECT_TRUE(is_painted_after([&] { counted.set_marks(0.4, 0.8); }));
    EXPECT_FALSE(is_painted_after([&] { counted.set_marks(0.4, 0.8); }));
    EXPECT_TRUE(is_painted_after([&] { counted.set_text("Mixage"); }));
    EXPECT_TRUE(is_painted_after([&] { counted.set_fill(studio::next); }));
}

TEST_F(Strip, TextIsWrittenOverTheBarAndReads) {
    const QImage bare = seen(strip);
    strip.set_text("Mixage spécial en cours (40 S)");
    EXPECT_NE(seen(strip), bare);
    EXPECT_GE(contrast_in(seen(strip)), readable);
    strip.set_share(1);
    EXPECT_GE(contrast_in(seen(strip)), readable);
}

TEST_F(SoundStrip, IsTheShapeOfTheSound) {
    EXPECT_EQ(height_at(0.1), whole_height());
    EXPECT_EQ(height_at(0.4), 2) << "silence is a line";
    EXPECT_NEAR(height_at(0.6), 0.66 * whole_height(), 2) << "half of full scale";
}

TEST_F(SoundStrip, ShowsWhatWasPlayedInItsColour) {
    strip.set_share(0.12);
    EXPECT_TRUE(is_near(middle_at(0.06), studio::air));
    EXPECT_TRUE(is_near(middle_at(0.18), studio::wave));
}

TEST_F(SoundStrip, HasACursorWhereItPlays) {
    EXPECT_EQ(count_of(seen(strip), studio::cursor), 0);
    strip.set_share(0.5);
    EXPECT_TRUE(is_near(seen(strip).pixelColor(200, 5), studio::cursor));
}

TEST_F(SoundStrip, IsDarkerBehindItsEnd) {
    strip.set_marks({}, 0.7);
    EXPECT_TRUE(is_near(middle_at(0.6), studio::wave));
    EXPECT_TRUE(is_near(middle_at(0.9), studio::wave_unheard));
}

TEST_F(SoundStrip, StandsForAsManySecondsAsTheBar) {
    strip.set_sound(sound, 80); // twice as long as the shape, which then ends in the middle
    EXPECT_EQ(height_at(0.05), whole_height());
    EXPECT_EQ(height_at(0.9), 2);
}

TEST_F(SoundStrip, IsASlimBarWithoutTheSound) {
    strip.set_sound(nullptr, 40);
    strip.set_share(0.5);
    EXPECT_TRUE(is_near(seen(strip).pixelColor(100, 30), studio::air));
    EXPECT_TRUE(is_near(seen(strip).pixelColor(100, 4), studio::well));
    EXPECT_TRUE(is_near(seen(strip).pixelColor(300, 30), studio::well));
}

TEST_F(Strip, HasTheSameRoomForASoundThatIsKnownAndForOneThatIsNot) {
    strip.set_sound(nullptr, 40);
    const QSize unknown = strip.sizeHint();
    strip.set_sound(std::make_shared<Waveform>(Waveform{1, {255}}), 40);
    EXPECT_EQ(strip.sizeHint(), unknown);
    EXPECT_EQ(unknown.height(), 40);
}

TEST_F(Strip, LiesInAWellOfRoundCorners) {
    strip.setAutoFillBackground(true);
    strip.setPalette(QPalette{Qt::white});
    EXPECT_TRUE(is_near(seen(strip).pixelColor(100, 0), studio::well));
    EXPECT_FALSE(is_near(seen(strip).pixelColor(0, 0), studio::well));
}

TEST_F(SoundStrip, NextOneHasAFlag) {
    strip.set_marks(0.25, {});
    const QImage image = seen(strip);
    EXPECT_TRUE(is_near(image.pixelColor(96, 1), studio::next));
    EXPECT_TRUE(is_near(image.pixelColor(103, 1), studio::next));
    EXPECT_FALSE(is_near(image.pixelColor(96, 9), studio::next));
    EXPECT_TRUE(is_near(image.pixelColor(100, 58), studio::next)) << "the line goes on below it";
}

TEST_F(SoundStrip, EndIsALineOfThreePixels) {
    strip.set_marks({}, 0.25);
    const QImage image = seen(strip);
    for (int x = 98; x <= 102; ++x)
        EXPECT_EQ(is_near(image.pixelColor(x, 2), studio::trouble), x >= 99 && x <= 101) << x;
}

TEST_F(SoundStrip, WhatNoOutputPlaysIsGrey) {
    strip.set_share(0.12);
    strip.set_output(false);
    EXPECT_TRUE(is_near(middle_at(0.06), studio::second));
    strip.set_output(true);
    EXPECT_TRUE(is_near(middle_at(0.06), studio::air));
}

TEST_F(SoundStrip, IsDarkerBeforeItsStart) {
    strip.set_start(0.1);
    EXPECT_TRUE(is_near(middle_at(0.06), studio::wave_unheard));
    EXPECT_TRUE(is_near(middle_at(0.15), studio::wave));
}

TEST_F(SoundStrip, TextReadsOverThePlayedShape) {
    sound->peaks.assign(40, 255);
    strip.set_share(1);
    const QImage bare = seen(strip);
    strip.set_text("Mixage spécial en cours (40 S)");
    EXPECT_GE(contrast_in(seen(strip).copy(120, 22, 160, 16)), readable);
    EXPECT_NE(seen(strip), bare);
}

TEST_F(SoundStrip, OfNoLengthIsAnEmptyWell) {
    strip.set_sound(sound, 0);
    strip.on_seek = [](double) { ADD_FAILURE() << "there is no place in it"; };
    strip.setFocusPolicy(Qt::TabFocus);
    QTest::keyClick(&strip, Qt::Key_Right);
    EXPECT_EQ(count_of(seen(strip), studio::wave), 0);
}

TEST_F(SoundStrip, OfADayIsItsWholeShape) {
    constexpr double nine_hours = 9 * 3600;
    sound->column_seconds = nine_hours / 40;
    strip.set_sound(sound, nine_hours);
    EXPECT_EQ(height_at(0.1), whole_height());
    EXPECT_EQ(height_at(0.4), 2);
}

TEST_F(SoundStrip, IsSharpOnAScreenOfTwiceThePixels) {
    strip.set_marks(0.25, {});
    QImage fine{strip.size() * 2, QImage::Format_RGB32};
    fine.setDevicePixelRatio(2);
    QPainter painter{&fine};
    strip.render(&painter);
    painter.end();
    for (int x = 0; x < 6; ++x) // the bar that stands at 8: three points wide
        EXPECT_TRUE(is_near(fine.pixelColor(16 + x, 60), studio::wave)) << x;
    EXPECT_TRUE(is_near(fine.pixelColor(16 + 6, 60), studio::well));
    for (int x = 198; x < 202; ++x)
        EXPECT_TRUE(is_near(fine.pixelColor(x, 110), studio::next)) << x;
}

} // namespace sonarelle
