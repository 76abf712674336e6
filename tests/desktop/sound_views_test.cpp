// The level meter and the visual effect: what they show, and that they ask for nothing while nobody sees them.
#include <QTest>
#include <vector>

#include "desktop/desktop_fixture.h"
#include "desktop/level_meter.h"
#include "desktop/pixels.h"
#include "desktop/sound_picture.h"

namespace sonarelle {

namespace {

constexpr int some_readings = 300; // ms

/// A source of figures that counts who asks.
struct Source {
    LevelReading level{};
    float sample = 0;
    float right = 1; ///< What the right channel has of it.
    std::vector<float> bands{};
    int asked = 0;

    [[nodiscard]] SoundReading reading() {
        return {[this] {
                    ++asked;
                    return level;
                },
                [this](std::span<float> frames) {
                    ++asked;
                    for (std::size_t at = 0; at < frames.size(); ++at)
                        frames[at] = at % 2 == 0 ? sample : sample * right;
                },
                [this]() -> std::span<const float> {
                    ++asked;
                    return bands;
                }};
    }
};

class Meter : public DesktopFixture {
protected:
    Meter() {
        meter.resize(106, 100); // two bars of 50
        meter.on_loudness = [this](const QString& text) { told.push_back(text.toStdString()); };
    }
    void show_peaks(float left, float right) {
        source.level.peak = {left, right};
        meter.show();
        const int before = source.asked;
        EXPECT_TRUE(becomes([&] { return source.asked >= before + 2; }));
    }
    [[nodiscard]] QColor at(int channel, int height) {
        return seen(meter).pixelColor(channel == 0 ? 25 : 81, 99 - height);
    }
    /// How far up a bar is lit, in hundredths.
    [[nodiscard]] int lit(int channel) {
        int height = 0;
        while (height < 100 && !is_near(at(channel, height), studio::groove))
            ++height;
        return height;
    }

    Source source;
    LevelMeter meter{source.reading()};
    std::vector<std::string> told;
};

class SoundPictures : public DesktopFixture {
protected:
    SoundPictures() { view.resize(200, 100); }
    void show_running() {
        view.set_running(true);
        view.show();
        settle();
    }
    [[nodiscard]] QColor at(int x, int y) { return seen(view).pixelColor(x, y); }

    Source source;
    SoundPictureView view{source.reading()};
};

} // namespace

TEST(LevelScale, GoesFromMinus48DecibelsToFull) {
    EXPECT_EQ(share_of_scale(0), 0);
    EXPECT_EQ(share_of_scale(0.001), 0);
    EXPECT_NEAR(share_of_scale(0.0631), 0.5, 0.001); // -24 dB
    EXPECT_NEAR(share_of_scale(0.5), 0.8746, 0.001);
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
    show_peaks(0.0631F, 0.01F); // -24 and -40 dB
    EXPECT_NEAR(lit(0), 50, 2);
    EXPECT_NEAR(lit(1), 17, 2);
    EXPECT_TRUE(is_near(at(0, 20), studio::air));
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

TEST_F(Meter, IsRedAtTheTopOnly) {
    show_peaks(1, 0.5F);
    EXPECT_TRUE(is_near(at(0, 99), studio::trouble));
    EXPECT_TRUE(is_near(at(0, 70), studio::air));
    EXPECT_EQ(count_of(seen(meter).copy(56, 0, 50, 100), studio::trouble), 0);
}

TEST_F(Meter, FallsSlowly) {
    show_peaks(1, 1);
    EXPECT_EQ(lit(0), 100);
    source.level.peak = {0, 0};
    const int before = source.asked;
    EXPECT_TRUE(becomes([&] { return source.asked >= before + 2; }));
    EXPECT_GT(lit(0), 10);
    EXPECT_LT(lit(0), 99);
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
    silent.resize(106, 100);
    silent.show();
    QTest::qWait(some_readings);
    EXPECT_EQ(count_of(seen(silent), studio::air), 0);
}

TEST_F(SoundPictures, WaveLiesInTheMiddleInSilence) {
    show_running();
    EXPECT_GT(count_of(seen(view).copy(0, 48, 200, 4), studio::air), 100);
    EXPECT_EQ(count_of(seen(view).copy(0, 0, 200, 40), studio::air), 0);
}

TEST_F(SoundPictures, WaveGoesUpWithTheSound) {
    source.sample = 0.5F;
    show_running();
    EXPECT_GT(count_of(seen(view).copy(0, 18, 200, 4), studio::air), 100); // 1.2 * 0.5 of the half
}

TEST_F(SoundPictures, WaveIsTheMeanOfBothChannels) {
    source.sample = 0.5F;
    source.right = -1;
    show_running();
    EXPECT_GT(count_of(seen(view).copy(0, 48, 200, 4), studio::air), 100);
}

TEST_F(SoundPictures, WaveStaysInsideItsPlace) {
    source.sample = -3;
    show_running();
    EXPECT_GT(count_of(seen(view).copy(0, 97, 200, 3), studio::air), 50);
}

TEST_F(SoundPictures, SpectrumHasABarABand) {
    source.bands = {0, -36, -72, -100};
    view.set_picture(SoundPicture::spectrum);
    show_running();
    EXPECT_TRUE(is_near(at(25, 2), studio::air));
    EXPECT_TRUE(is_near(at(75, 60), studio::air));
    EXPECT_TRUE(is_near(at(75, 40), studio::groove));
    EXPECT_TRUE(is_near(at(125, 97), studio::groove));
    EXPECT_TRUE(is_near(at(175, 97), studio::groove));
}

TEST_F(SoundPictures, AreDrawnAnewWhileTheyRun) {
    show_running();
    const int before = source.asked;
    EXPECT_TRUE(becomes([&] { return source.asked >= before + 3; }));
}

TEST_F(SoundPictures, AsksForNothingWhileItIsOffOrHidden) {
    view.show();
    QTest::qWait(some_readings);
    EXPECT_EQ(source.asked, 0);
    view.set_running(true);
    EXPECT_TRUE(becomes([&] { return source.asked > 0; }));
    view.hide();
    const int before = source.asked;
    QTest::qWait(some_readings);
    EXPECT_EQ(source.asked, before);
    EXPECT_FALSE(view.is_drawing());
    view.show();
    EXPECT_TRUE(becomes([&] { return source.asked > before; }));
}

TEST_F(SoundPictures, OneThatIsPutOffGoesDark) {
    show_running();
    view.set_running(false);
    EXPECT_EQ(count_of(seen(view), studio::air), 0);
}

TEST_F(SoundPictures, FollowTheControl) {
    SoundDisplay display{window, "sound_display"};
    QWidget parent;
    auto* shown = new SoundPictureView{source.reading(), &parent};
    const SoundDisplayBinding binding{display, *shown, services};
    parent.show();
    settle();
    EXPECT_FALSE(shown->is_drawing());
    display.InStart();
    settle();
    EXPECT_TRUE(shown->is_drawing());
    display.visible = false;
    settle();
    EXPECT_FALSE(shown->is_drawing());
    display.visible = true;
    display.InStop();
    settle();
    EXPECT_FALSE(shown->is_drawing());
}

TEST_F(SoundPictures, ControlChoosesThePicture) {
    SoundDisplay display{window, "sound_display"};
    const SoundDisplayBinding binding{display, view, services};
    source.bands = {0, 0};
    display.InStart();
    display.Affichage = SoundPicture::spectrum;
    settle();
    EXPECT_TRUE(is_near(at(50, 10), studio::air));
    display.Affichage = SoundPicture::oscilloscope;
    settle();
    EXPECT_TRUE(is_near(at(50, 10), studio::groove));
}

} // namespace sonarelle
