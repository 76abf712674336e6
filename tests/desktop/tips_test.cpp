// What the pointer is told where it rests.
#include "desktop/tips.h"

#include <QScreen>
#include <QStyle>
#include <QToolTip>

#include "desktop/pixels.h"
#include "desktop/remaining_time.h"
#include "desktop/whole_desk_fixture.h"

namespace sonarelle {

namespace {

QWidget* tip_on_view() {
    for (QWidget* top : QApplication::topLevelWidgets())
        if (top->inherits("QTipLabel") && top->isVisible())
            return top;
    return nullptr;
}

QRect area(const QWidget& part) {
    return {part.mapToGlobal(QPoint{}), part.size()};
}

class TipsOfTheDesk : public WholeDesk {
protected:
    ~TipsOfTheDesk() override { delete tip_on_view(); }

    /// The pointer rests on a part.
    static void rest_on(QWidget& part, QPoint place = {5, 5}) {
        QHelpEvent rest{QEvent::ToolTip, place, part.mapToGlobal(place)};
        QCoreApplication::sendEvent(&part, &rest);
    }
    QString tip_of_part(const Control& control) {
        QToolTip::hideText();
        rest_on(part(control));
        return QToolTip::text();
    }
    void play_deck(int deck) {
        const std::string path = "C:\\Musique\\titre " + std::to_string(deck) + ".mp3";
        machine.add_track(path, 100);
        machine.dialogs.expect_open(path);
        window.deck(deck).open.click();
        window.deck(deck).play.click();
        settle();
    }
};

} // namespace

TEST(Tip, HasTheKeyBehindTheWords) {
    const QString tip = tip_of("Zapper sur Play2", "Z");
    EXPECT_LT(tip.indexOf("Zapper sur Play2"), tip.indexOf(">Z<"));
    EXPECT_TRUE(tip.contains("border"));
}

TEST(Tip, NamesNoKeyTwice) {
    EXPECT_EQ(tip_of("Mixage spécial (F8) avec : ", "F8"), "Mixage spécial (F8) avec : ");
}

TEST(Tip, HasTheWordsAsTheyAre) {
    EXPECT_EQ(tip_of("Reculer", ""), "Reculer");
    EXPECT_TRUE(tip_of("<b>a</b>", "").contains("&lt;b&gt;"));
    EXPECT_TRUE(tip_of("a < b", "Z").contains("a &lt; b"));
}

TEST_F(TipsOfTheDesk, EveryPartThatCanBeWorkedHasOne) {
    for (Control* control : window.controls()) {
        auto* widget = main_view().findChild<QWidget*>(QString::fromStdString(control->name()));
        if (widget != nullptr && widget->focusPolicy() != Qt::NoFocus && widget->isVisible() &&
            control->kind() != ControlKind::progress_bar) {
            EXPECT_NE(widget->toolTip(), "") << control->name();
        }
    }
}

TEST_F(TipsOfTheDesk, NameTheKeyOfTheDeckOnTheAirAlone) {
    play_deck(1);
    EXPECT_TRUE(tip_of_part(window.deck(1).zap).contains(">Z<"));
    EXPECT_FALSE(tip_of_part(window.deck(2).zap).contains(">Z<"));
    play_deck(2);
    EXPECT_FALSE(tip_of_part(window.deck(1).zap).contains(">Z<"));
    EXPECT_TRUE(tip_of_part(window.deck(2).zap).contains(">Z<"));
}

TEST_F(TipsOfTheDesk, AreDarkOnWhite) {
    rest_on(part(window.deck(1).play));
    ASSERT_NE(tip_on_view(), nullptr);
    const QImage tip = seen(*tip_on_view());
    EXPECT_TRUE(is_near(ground_in(tip), studio::tip));
    EXPECT_GE(contrast_in(tip), readable);
}

TEST_F(TipsOfTheDesk, ComeAfterHalfASecond) {
    EXPECT_EQ(QApplication::style()->styleHint(QStyle::SH_ToolTip_WakeUpDelay), 500);
}

TEST_F(TipsOfTheDesk, NeverLieOverTheRemainingTime) {
    main_view().move(0, 200);
    settle();
    const QWidget* time = remaining_time_of(main_view());
    ASSERT_NE(time, nullptr);
    for (const QPoint& place :
         {area(*time).center(), area(*time).topLeft() - QPoint{0, 10}, area(*time).bottomLeft() - QPoint{30, 4}}) {
        QToolTip::hideText();
        QToolTip::showText(place, "Un titre qui est assez long pour aller par-dessus le temps", &main_view());
        settle();
        ASSERT_NE(tip_on_view(), nullptr);
        EXPECT_FALSE(area(*tip_on_view()).intersects(area(*time)));
    }
}

TEST_F(TipsOfTheDesk, StandAboveTheRemainingTimeAtTheFootOfTheScreen) {
    const QRect screen = main_view().screen()->availableGeometry();
    const QWidget* time = remaining_time_of(main_view());
    ASSERT_NE(time, nullptr);
    main_view().move(0, screen.bottom() - time->mapTo(&main_view(), QPoint{0, time->height()}).y());
    settle();
    QToolTip::showText(area(*time).center(), "Un titre", &main_view());
    settle();
    ASSERT_NE(tip_on_view(), nullptr);
    EXPECT_TRUE(screen.contains(area(*tip_on_view())));
    EXPECT_LT(area(*tip_on_view()).bottom(), area(*time).top());
}

} // namespace sonarelle
