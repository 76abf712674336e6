// The studio's signs: each can be drawn, in the colour that is asked, and sharp on a dense screen.
#include "desktop/signs.h"

#include <QPainter>

#include "desktop/desktop_fixture.h"
#include "desktop/pixels.h"

namespace sonarelle {

namespace {

constexpr int last_sign = static_cast<int>(Sign::quit);

QImage drawn(Sign sign, double ratio = 1) {
    QImage image{QSize{32, 32} * ratio, QImage::Format_ARGB32};
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::black);
    QPainter painter{&image};
    paint_sign(painter, sign, {0, 0, 32, 32}, 24, Qt::yellow);
    return image;
}

class Signs : public DesktopFixture {};

} // namespace

TEST_F(Signs, AllAreDrawnAndNoTwoAlike) {
    for (int one = 1; one <= last_sign; ++one) {
        const QImage image = drawn(static_cast<Sign>(one));
        EXPECT_GT(count_of(image, Qt::yellow), 4) << one;
        for (int other = 0; other < one; ++other)
            EXPECT_NE(image, drawn(static_cast<Sign>(other))) << one << " / " << other;
    }
}

TEST_F(Signs, NoSignDrawsNothing) {
    EXPECT_EQ(count_of(drawn(Sign::none), Qt::black), 32 * 32);
}

TEST_F(Signs, FillTheDotsOfADenseScreen) {
    const int once = count_of(drawn(Sign::stop), Qt::yellow);
    EXPECT_GT(count_of(drawn(Sign::stop, 2), Qt::yellow), 3 * once);
}

TEST_F(Signs, StayWithinTheirArea) {
    QImage image{40, 20, QImage::Format_ARGB32};
    image.fill(Qt::black);
    QPainter painter{&image};
    paint_sign(painter, Sign::open, {10, 4, 12, 12}, 24, Qt::yellow);
    painter.end();
    EXPECT_EQ(count_of(image.copy(0, 0, 10, 20), Qt::black), 200);
    EXPECT_EQ(count_of(image.copy(23, 0, 17, 20), Qt::black), 340);
    EXPECT_LT(count_of(image, Qt::black), 800);
}

} // namespace sonarelle
