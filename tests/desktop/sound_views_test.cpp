// The visual effect: what it shows, and that it asks for nothing while nobody sees it.
#include <QTest>

#include "desktop/desktop_fixture.h"
#include "desktop/pixels.h"
#include "desktop/sound_picture.h"
#include "desktop/sound_source.h"

namespace sonarelle {

namespace {

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
    EXPECT_TRUE(is_near(at(75, 40), studio::well));
    EXPECT_TRUE(is_near(at(125, 97), studio::well));
    EXPECT_TRUE(is_near(at(175, 97), studio::well));
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
    EXPECT_TRUE(is_near(at(50, 10), studio::well));
}

} // namespace sonarelle
