// What changes is drawn at once: no part waits for the pointer to pass over it.
#include "desktop/desktop_fixture.h"
#include "desktop/panel.h"
#include "desktop/pixels.h"
#include "desktop/progress_strip.h"
#include "desktop/sound_picture.h"
#include "desktop/station_label.h"
#include "desktop/studio_button.h"
#include "desktop/title_label.h"

namespace sonarelle {

namespace {

class PaintedAtOnce : public DesktopFixture {
protected:
    /// Whether a widget on view is painted because of a change, and isn't for the same change again.
    void expect_painted(QWidget& widget, const char* what, const std::function<void()>& change,
                        bool is_told_twice = false) {
        widget.show();
        paint_out();
        PaintCounter counter;
        widget.installEventFilter(&counter);
        change();
        EXPECT_TRUE(becomes([&] { return counter.paints > 0; })) << what;
        paint_out();
        const int before = counter.paints;
        change();
        paint_out();
        EXPECT_EQ(counter.paints > before, is_told_twice) << what;
        widget.removeEventFilter(&counter);
    }

private:
    struct PaintCounter : QObject {
        bool eventFilter(QObject* object, QEvent* event) override {
            paints += event->type() == QEvent::Paint ? 1 : 0;
            return QObject::eventFilter(object, event);
        }
        int paints = 0;
    };

    /// Until nothing waits to be painted.
    static void paint_out() { QTest::qWait(20); }
};

} // namespace

TEST_F(PaintedAtOnce, IsAButton) {
    StudioButton button;
    button.resize(100, 40);
    QPixmap picture{20, 20};
    picture.fill(Qt::red);
    expect_painted(button, "face", [&] {
        button.set_face({Qt::darkBlue, Qt::white, Qt::darkGreen, Qt::white, Qt::darkRed, Qt::white});
    });
    expect_painted(button, "accent", [&] { button.set_accent(Accent::air); });
    expect_painted(
        button, "sign", [&] { button.set_words("■"); }, true);
    expect_painted(
        button, "look", [&] { button.set_look(ButtonLook::lamp); }, true);
    expect_painted(
        button, "picture",
        [&] {
            button.set_pictures({picture, picture, picture});
        },
        true);
    expect_painted(
        button, "pointer", [&] { point_at(button); }, true);
    expect_painted(
        button, "no pointer", [&] { leave(button); }, true);
}

TEST_F(PaintedAtOnce, IsAPanelAndItsLamp) {
    Panel panel;
    panel.resize(100, 40);
    expect_painted(panel, "frame", [&] { panel.set_accent(Accent::next); });
    expect_painted(panel, "plate", [&] { panel.set_plate(Qt::darkBlue); });
    Lamp lamp;
    expect_painted(lamp, "lamp", [&] { lamp.set_accent(Accent::air); });
}

TEST_F(PaintedAtOnce, IsAText) {
    StationLabel label{{.type = Type::medium}};
    label.resize(200, 30);
    label.set_pressable(true);
    expect_painted(label, "text", [&] { label.set_text("Texte"); });
    expect_painted(
        label, "press", [&] { QTest::mousePress(&label, Qt::LeftButton); }, true);
    expect_painted(
        label, "release", [&] { QTest::mouseRelease(&label, Qt::LeftButton); }, true);
    StationLabel wrapped{{.type = Type::medium, .wrapped = true}};
    wrapped.resize(200, 60);
    expect_painted(wrapped, "wrapped text", [&] { wrapped.set_text("Texte"); });
}

TEST_F(PaintedAtOnce, IsATitle) {
    TitleLabel title{{.type = Type::medium}};
    title.resize(300, 30);
    expect_painted(title, "title", [&] { title.set_text("Matin - "); });
    expect_painted(title, "heard", [&] { title.set_file("Soir"); });
}

TEST_F(PaintedAtOnce, IsAPictureOfTheSound) {
    SoundPictureView picture{SoundReading{}};
    picture.resize(100, 40);
    expect_painted(
        picture, "picture", [&] { picture.set_picture(SoundPicture::spectrum); }, true);
    expect_painted(
        picture, "running", [&] { picture.set_running(true); }, true);
}

} // namespace sonarelle
