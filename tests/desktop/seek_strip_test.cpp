// A bar on which places are chosen: by a press, by dragging, by keys, and by a screen reader.
#include <QAccessible>
#include <QTest>
#include <QToolTip>

#include "desktop/desktop_fixture.h"
#include "desktop/pixels.h"
#include "desktop/progress_strip.h"

namespace sonarelle {

namespace {

/// A strip of 200 pixels over 200 seconds on which places are chosen.
class SeekStrip : public DesktopFixture {
protected:
    SeekStrip() {
        strip.resize(200, 20);
        strip.show();
        strip.set_sound(nullptr, 200);
        strip.on_seek = [this](double share) { seconds.push_back(std::lround(share * 200)); };
        strip.refusal = [this] { return reason; };
    }
    void drag_from_50_to_120() {
        QTest::mousePress(&strip, Qt::LeftButton, {}, {50, 10});
        move_held(120);
    }
    void move_held(int x) {
        const QPointF place{static_cast<double>(x), 10};
        QMouseEvent move{QEvent::MouseMove, place, strip.mapToGlobal(place), Qt::NoButton, Qt::LeftButton, {}};
        QCoreApplication::sendEvent(&strip, &move);
    }
    [[nodiscard]] QAccessibleInterface& told() { return *QAccessible::queryAccessibleInterface(&strip); }

    /// The colour in the middle of the bar at a share of its width.
    [[nodiscard]] QColor at(double share) { return seen(strip).pixelColor(static_cast<int>(share * 200), 10); }

    ProgressStrip strip;
    std::vector<long> seconds;
    QString reason;
};

} // namespace

TEST_F(SeekStrip, PressIsAPlace) {
    QTest::mouseClick(&strip, Qt::LeftButton, {}, {50, 10});
    EXPECT_EQ(seconds, std::vector{50L});
}

TEST_F(SeekStrip, OtherButtonIsNone) {
    QTest::mouseClick(&strip, Qt::RightButton, {}, {50, 10});
    EXPECT_TRUE(seconds.empty());
}

TEST_F(SeekStrip, DragShowsThePlaceAndGoesThereWhenItEnds) {
    drag_from_50_to_120();
    EXPECT_TRUE(seconds.empty());
    EXPECT_TRUE(is_near(at(0.55), studio::air)) << "the bar goes with the pointer";
    EXPECT_EQ(QToolTip::text(), "02:00");
    QTest::mouseRelease(&strip, Qt::LeftButton, {}, {120, 10});
    EXPECT_EQ(seconds, std::vector{120L});
    EXPECT_TRUE(is_near(at(0.3), studio::well)) << "until the station says where it is";
}

TEST_F(SeekStrip, DragBeyondTheBarEndsAtItsEnd) {
    drag_from_50_to_120();
    move_held(500);
    QTest::mouseRelease(&strip, Qt::LeftButton, {}, {500, 10});
    EXPECT_EQ(seconds, std::vector{200L});
}

TEST_F(SeekStrip, RefusedPressSaysWhy) {
    reason = "À l'antenne : le curseur ne se déplace pas";
    drag_from_50_to_120();
    EXPECT_EQ(QToolTip::text(), reason);
    EXPECT_TRUE(is_near(at(0.3), studio::well));
    QTest::mouseRelease(&strip, Qt::LeftButton, {}, {120, 10});
    EXPECT_TRUE(seconds.empty());
}

TEST_F(SeekStrip, DragOfADeckThatComesOnTheAirEndsWhereItWas) {
    drag_from_50_to_120();
    reason = "À l'antenne : le curseur ne se déplace pas";
    QTest::mouseRelease(&strip, Qt::LeftButton, {}, {120, 10});
    EXPECT_TRUE(seconds.empty());
    EXPECT_EQ(QToolTip::text(), reason);
}

TEST_F(SeekStrip, ArrowsGoASecondAndTenWithShift) {
    strip.set_share(0.5);
    QTest::keyClick(&strip, Qt::Key_Right);
    QTest::keyClick(&strip, Qt::Key_Left);
    QTest::keyClick(&strip, Qt::Key_Right, Qt::ShiftModifier);
    QTest::keyClick(&strip, Qt::Key_Left, Qt::ShiftModifier);
    QTest::keyClick(&strip, Qt::Key_Home);
    QTest::keyClick(&strip, Qt::Key_End);
    EXPECT_EQ(seconds, (std::vector{101L, 99L, 110L, 90L, 0L, 200L}));
}

TEST_F(SeekStrip, ArrowsStayWithinTheSound) {
    QTest::keyClick(&strip, Qt::Key_Left);
    strip.set_share(0.99);
    QTest::keyClick(&strip, Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_EQ(seconds, (std::vector{0L, 200L}));
}

TEST_F(SeekStrip, RefusedKeySaysWhy) {
    reason = "Aucun fichier sur ce lecteur";
    QTest::keyClick(&strip, Qt::Key_Right);
    EXPECT_TRUE(seconds.empty());
    EXPECT_EQ(QToolTip::text(), reason);
}

TEST_F(SeekStrip, KeyOfTheWindowGoesOnToIt) {
    QKeyEvent key{QEvent::KeyPress, Qt::Key_Right, Qt::AltModifier};
    QCoreApplication::sendEvent(&strip, &key);
    EXPECT_FALSE(key.isAccepted());
    EXPECT_TRUE(seconds.empty());
}

TEST_F(SeekStrip, TellsAScreenReaderWhereItIs) {
    strip.set_share(0.315);
    EXPECT_EQ(told().text(QAccessible::Value), "01:03 sur 03:20");
    EXPECT_EQ(told().text(QAccessible::Description), "01:03 sur 03:20");
    ASSERT_NE(told().valueInterface(), nullptr);
    EXPECT_DOUBLE_EQ(told().valueInterface()->currentValue().toDouble(), 63);
    EXPECT_DOUBLE_EQ(told().valueInterface()->maximumValue().toDouble(), 200);
    EXPECT_EQ(told().role(), QAccessible::Slider);
}

TEST_F(SeekStrip, IsMovedByAScreenReader) {
    told().valueInterface()->setCurrentValue(63);
    EXPECT_EQ(seconds, std::vector{63L});
}

TEST_F(SeekStrip, TellsHoursOfALongSound) {
    strip.set_sound(nullptr, 9 * 3600);
    strip.set_share(0.5);
    EXPECT_EQ(told().text(QAccessible::Value), "4:30:00 sur 9:00:00");
}

TEST_F(SeekStrip, ShowsThatItHasTheKeyboard) {
    strip.setFocusPolicy(Qt::TabFocus);
    strip.activateWindow();
    const int before = count_of(seen(strip), studio::focus);
    strip.setFocus();
    ASSERT_TRUE(becomes([&] { return strip.hasFocus(); }));
    EXPECT_GT(count_of(seen(strip), studio::focus), before + 300);
}

TEST_F(SeekStrip, PointerIsFollowedWithoutAButton) {
    double place = -1;
    strip.on_move = [&](double share) { place = share; };
    QMouseEvent move{QEvent::MouseMove, QPointF{50, 10}, QPointF{50, 10}, Qt::NoButton, Qt::NoButton, {}};
    QCoreApplication::sendEvent(&strip, &move);
    EXPECT_EQ(place, 0.25);
}

TEST_F(SeekStrip, PressThatNobodyWantsGoesToWhatLiesBehind) {
    strip.on_seek = nullptr;
    QMouseEvent press{QEvent::MouseButtonPress, QPointF{50, 10}, QPointF{50, 10}, Qt::LeftButton, Qt::LeftButton, {}};
    QCoreApplication::sendEvent(&strip, &press);
    EXPECT_FALSE(press.isAccepted());
}

} // namespace sonarelle
