// A row's properties: the shape of its sound, and the marks on it.
#include "desktop/properties_view.h"

#include <QAccessible>
#include <QLineEdit>
#include <QToolTip>
#include <QWindow>
#include <set>

#include "desktop/mark_handle.h"
#include "desktop/progress_strip.h"
#include "desktop/qt_text.h"
#include "desktop/station_views.h"

namespace sonarelle {

namespace {

constexpr double whole = 200;

class PropertiesOnView : public StationViews {
protected:
    PropertiesOnView() {
        sound->column_seconds = whole / 400;
        sound->peaks.resize(400, 255);
        services.waveform_of = [this](const std::string& path) {
            asked = path;
            return known;
        };
        window.path = "C:\\un.mp3";
        window.start_mark = 50.0;
        window.end_mark = 150.0;
        window.on_start_moved = [this](double second) { window.start_mark = moved_start = second; };
        window.on_end_moved = [this](double second) { window.end_mark = moved_end = second; };
        window.bar.maximum = static_cast<int>(whole);
        window.show();
        settle();
        view().resize(760, 560);
        settle();
    }

    [[nodiscard]] QWidget& view() { return *desktop->widget_of(window); }
    [[nodiscard]] ProgressStrip& strip() { return part<ProgressStrip>(view(), window.bar.name()); }
    [[nodiscard]] MarkHandle& start() { return part<MarkHandle>(view(), "start_grip"); }
    [[nodiscard]] MarkHandle& end() { return part<MarkHandle>(view(), "end_grip"); }
    /// The pixel of the strip at a second.
    [[nodiscard]] int x_of(double second) { return static_cast<int>(std::lround(second / whole * strip().width())); }
    [[nodiscard]] QColor at(double second, int y) { return seen(strip()).pixelColor(x_of(second) / 4 * 4 + 1, y); }
    void show_sound() {
        known = sound;
        window.notify();
        settle();
    }
    void drag(MarkHandle& handle, int pixels) {
        const QPoint middle = handle.rect().center();
        QTest::mousePress(&handle, Qt::LeftButton, {}, middle);
        const QPoint place = strip().mapFromGlobal(handle.mapToGlobal(middle)) + QPoint{pixels, 0};
        const QPointF inside = handle.mapFrom(&strip(), QPointF{place});
        QMouseEvent move{QEvent::MouseMove, inside, handle.mapToGlobal(inside), Qt::NoButton, Qt::LeftButton, {}};
        QCoreApplication::sendEvent(&handle, &move);
        settle();
        bubble = QToolTip::text();
        QTest::mouseRelease(&handle, Qt::LeftButton, {}, handle.mapFrom(&strip(), place));
    }

    std::shared_ptr<Waveform> sound = std::make_shared<Waveform>();
    std::shared_ptr<const Waveform> known;
    std::string asked;
    QString bubble; ///< Of the last drag, before the hand let go.
    double moved_start = -1;
    double moved_end = -1;
    Propriete& window = station.properties_window;
};

} // namespace

TEST_F(PropertiesOnView, ShowTheShapeOfTheSoundLarge) {
    EXPECT_GE(strip().height(), 120);
    const QSize before = strip().size();
    show_sound();
    EXPECT_EQ(asked, "C:\\un.mp3");
    EXPECT_EQ(strip().size(), before) << "nothing moves when it is known";
    EXPECT_TRUE(is_near(at(100, strip().height() / 2), studio::wave));
}

TEST_F(PropertiesOnView, AskForTheShapeUntilItIsKnown) {
    known = sound;
    EXPECT_TRUE(becomes([&] { return is_near(at(100, strip().height() / 2), studio::wave); }));
}

TEST_F(PropertiesOnView, AskForNothingWhileTheyAreHidden) {
    window.hide();
    settle();
    asked.clear();
    window.notify();
    settle();
    EXPECT_EQ(asked, "");
}

TEST_F(PropertiesOnView, DarkenWhatIsNotHeard) {
    show_sound();
    const int middle = strip().height() / 2;
    EXPECT_TRUE(is_near(at(20, middle), studio::wave_unheard));
    EXPECT_TRUE(is_near(at(60, middle), studio::wave));
    EXPECT_TRUE(is_near(at(180, middle), studio::wave_unheard));
}

TEST_F(PropertiesOnView, MarksStandAtTheirSeconds) {
    const QImage image = seen(strip());
    const int foot = strip().height() - 2;
    EXPECT_TRUE(is_near(image.pixelColor(x_of(50), foot), studio::text));
    EXPECT_TRUE(is_near(image.pixelColor(x_of(150), foot), studio::trouble));
    EXPECT_LE(start().geometry().left(), x_of(50));
    EXPECT_GE(start().geometry().right(), x_of(50) - 1);
    EXPECT_GE(end().geometry().right(), x_of(150));
    EXPECT_LE(end().geometry().left(), x_of(150));
}

TEST_F(PropertiesOnView, GripsAreWideEnoughToGrabAndSayWhatTheyDo) {
    for (MarkHandle* handle : {&start(), &end()}) {
        EXPECT_EQ(handle->width(), 10);
        EXPECT_EQ(handle->height(), strip().height());
        EXPECT_EQ(handle->cursor().shape(), Qt::SizeHorCursor);
    }
    EXPECT_EQ(start().accessibleName(), "Début lecture piste");
    EXPECT_EQ(end().accessibleName(), "Fin de piste");
}

TEST_F(PropertiesOnView, MarkIsDragged) {
    drag(start(), 30);
    EXPECT_NEAR(moved_start, 50 + 30 * whole / strip().width(), 0.01) << "from where it stood, wherever it was grabbed";
    EXPECT_EQ(moved_end, -1);
    drag(end(), -40);
    EXPECT_NEAR(moved_end, 150 - 40 * whole / strip().width(), 0.2);
}

TEST_F(PropertiesOnView, BubbleTellsWhereTheDraggedMarkStands) {
    drag(start(), 30);
    EXPECT_EQ(bubble, place_text(moved_start));
    drag(end(), -40);
    EXPECT_EQ(bubble, place_text(moved_end));
}

TEST_F(PropertiesOnView, MarkIsNotDraggedBeyondTheFile) {
    drag(end(), 2000);
    EXPECT_EQ(moved_end, whole);
    drag(start(), -2000);
    EXPECT_EQ(moved_start, 0);
}

TEST_F(PropertiesOnView, MarkMovesByTheArrowKeys) {
    QTest::keyClick(&start(), Qt::Key_Right);
    EXPECT_NEAR(moved_start, 50.1, 1e-9);
    settle();
    QTest::keyClick(&start(), Qt::Key_Left, Qt::ShiftModifier);
    settle();
    EXPECT_NEAR(moved_start, 49.1, 1e-9);
    QTest::keyClick(&end(), Qt::Key_Left);
    EXPECT_NEAR(moved_end, 149.9, 1e-9);
    QTest::keyClick(&end(), Qt::Key_End);
    EXPECT_EQ(moved_end, whole);
    QTest::keyClick(&start(), Qt::Key_Home);
    EXPECT_EQ(moved_start, 0);
}

TEST_F(PropertiesOnView, MarkTellsAScreenReaderItsPlace) {
    QAccessibleInterface* told = QAccessible::queryAccessibleInterface(&start());
    EXPECT_EQ(told->text(QAccessible::Name), "Début lecture piste");
    EXPECT_EQ(told->text(QAccessible::Value), "00:50 sur 03:20");
}

TEST_F(PropertiesOnView, FieldWithoutANumberHasNoGrip) {
    window.start_mark = std::nullopt;
    settle();
    EXPECT_FALSE(start().isVisible());
    EXPECT_TRUE(end().isVisible());
}

TEST_F(PropertiesOnView, SoundOfNoLengthHasNoGrips) {
    window.bar.maximum = 0;
    settle();
    EXPECT_FALSE(start().isVisible());
    EXPECT_FALSE(end().isVisible());
    EXPECT_EQ(count_of(seen(strip()), studio::trouble), 0);
}

TEST_F(PropertiesOnView, LengthOfTheRowIsTheScaleBeforeItIsPlayed) {
    window.bar.maximum = 0;
    window.length.set_text("00:03:20");
    settle();
    EXPECT_NEAR(start().geometry().right(), x_of(50), 2);
}

TEST_F(PropertiesOnView, MarkBehindTheFileStandsAtItsEnd) {
    window.end_mark = 500.0;
    settle();
    EXPECT_EQ(end().geometry().right(), strip().width() - 1);
}

TEST_F(PropertiesOnView, BothGripsOfOnePlaceCanBeGrabbed) {
    for (const double place : {0.0, 100.0, whole}) {
        window.start_mark = place;
        window.end_mark = place;
        settle();
        MarkHandle& free = place == whole ? start() : end();
        EXPECT_EQ(strip().childAt(free.geometry().center()), &free) << place;
    }
}

TEST_F(PropertiesOnView, MarksOfNineHoursStandAtTheirSeconds) {
    window.bar.maximum = 9 * 3600;
    window.start_mark = 4.5 * 3600;
    window.end_mark = 9.0 * 3600;
    settle();
    EXPECT_NEAR(start().geometry().right(), strip().width() / 2, 2);
    QTest::keyClick(&start(), Qt::Key_Right);
    EXPECT_NEAR(moved_start, 4.5 * 3600 + 0.1, 1e-6);
}

TEST_F(PropertiesOnView, PressElsewhereSeeks) {
    int place = -1;
    window.bar.refusal = nullptr;
    window.bar.on_click_at = [&](int x) { place = x; };
    QTest::mouseClick(&strip(), Qt::LeftButton, {}, {strip().width() / 2, 40});
    EXPECT_NEAR(place, Propriete::bar_units / 2, 1);
}

TEST_F(PropertiesOnView, SayThatNothingPlaysYet) {
    QTest::mouseClick(&strip(), Qt::LeftButton, {}, {strip().width() / 2, 40});
    EXPECT_EQ(QToolTip::text(), "Lancer d'abord la lecture");
}

TEST_F(PropertiesOnView, TellWhatIsNotSavedBesideTheButtonThatSaves) {
    auto& modified = part(view(), window.modified.name());
    EXPECT_FALSE(modified.isVisible());
    window.modified.visible = true;
    settle();
    const auto& save = part(view(), window.save.name());
    ASSERT_TRUE(modified.isVisible());
    EXPECT_LT(modified.geometry().right(), save.geometry().left());
    EXPECT_LT(save.geometry().left() - modified.geometry().right(), 20);
}

TEST_F(PropertiesOnView, ActionsArePressedByTabReturnAndSpace) {
    for (Label* label : window.actions()) {
        int presses = 0;
        label->visible = true;
        label->on_click = [&presses] { ++presses; };
        settle();
        auto& button = part<StudioButton>(view(), label->name());
        EXPECT_EQ(button.text(), to_qt(label->caption));
        button.setFocus(Qt::TabFocusReason);
        QTest::sendKeyEvent(QTest::Click, view().windowHandle(), Qt::Key_Return, "\r", Qt::NoModifier);
        EXPECT_EQ(presses, 1) << label->name();
        QTest::sendKeyEvent(QTest::Click, view().windowHandle(), Qt::Key_Space, " ", Qt::NoModifier);
        EXPECT_EQ(presses, 2) << label->name();
        QTest::mouseClick(&button, Qt::LeftButton);
        EXPECT_EQ(presses, 3) << label->name();
    }
}

TEST_F(PropertiesOnView, TabKeyGoesOverTheActionsLineByLine) {
    for (Label* label : window.actions())
        label->visible = true;
    settle();
    const std::vector<const Control*> expected{
        &window.play,       &window.stop, &window.start,    &window.start_back,  &window.start_forward,
        &window.mark_start, &window.end,  &window.end_back, &window.end_forward, &window.mark_end};
    part(view(), window.play.name()).setFocus(Qt::TabFocusReason);
    for (const Control* control : expected) {
        ASSERT_NE(view().focusWidget(), nullptr);
        EXPECT_EQ(view().focusWidget()->objectName(), to_qt(control->name()));
        QTest::keyClick(view().focusWidget(), Qt::Key_Tab);
    }
}

TEST_F(PropertiesOnView, ScreenReaderTellsTheActionsOfTheLinesApart) {
    std::set<QString> names;
    for (Label* label : window.actions()) {
        QAccessibleInterface* told = QAccessible::queryAccessibleInterface(&part(view(), label->name()));
        EXPECT_EQ(told->role(), QAccessible::Button) << label->name();
        names.insert(told->text(QAccessible::Name));
    }
    EXPECT_EQ(names.size(), window.actions().size());
    EXPECT_TRUE(names.contains("Fin de piste : Reculer"));
}

TEST_F(PropertiesOnView, NumbersStandAtTheRight) {
    for (const TextBox* field : {&window.start, &window.end, &window.volume, &window.length})
        EXPECT_TRUE(part<QLineEdit>(view(), field->name()).alignment() & Qt::AlignRight) << field->name();
}

} // namespace sonarelle
