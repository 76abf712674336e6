// The room that a drawn button takes, and what of its picture and its words stands in it.
#include <QBoxLayout>

#include "desktop/desktop_fixture.h"
#include "desktop/pixels.h"
#include "desktop/studio_button.h"

namespace sonarelle {

namespace {

class RoomOfAButton : public DesktopFixture {
protected:
    static PictureFaces picture(int width, int height, const QColor& colour = Qt::red) {
        QPixmap drawn{width, height};
        drawn.fill(colour);
        return {drawn, drawn, drawn};
    }
    [[nodiscard]] int width_of(const QString& text) { return button.fontMetrics().horizontalAdvance(text); }
    [[nodiscard]] int line() { return button.fontMetrics().height(); }
    [[nodiscard]] int red() { return count_of(seen(button), Qt::red); }

    StudioButton button;
};

} // namespace

TEST_F(RoomOfAButton, IsThatOfItsWords) {
    button.setText("Sauvegarder");
    EXPECT_GT(button.sizeHint().width(), width_of("Sauvegarder"));
    EXPECT_GT(button.sizeHint().height(), line());
}

TEST_F(RoomOfAButton, IsThatOfTheSignInsteadOfItsWords) {
    button.setText("Sauvegarder");
    button.set_words("■");
    EXPECT_LT(button.sizeHint().width(), width_of("Sauvegarder"));
}

TEST_F(RoomOfAButton, HasALeastWidth) {
    button.set_words("+");
    button.set_least_width(90);
    EXPECT_EQ(button.sizeHint().width(), 90);
    EXPECT_EQ(button.minimumSizeHint().width(), 90);
}

TEST_F(RoomOfAButton, MayBeLessThanItsWordsNeed) {
    button.setText("Sauvegarder le tout");
    EXPECT_LT(button.minimumSizeHint().width(), width_of("Sauvegarder"));
    EXPECT_GT(button.minimumSizeHint().height(), line());
}

TEST_F(RoomOfAButton, HasAPictureBesideItsWords) {
    button.setText("Zapper");
    const int words = button.sizeHint().width();
    button.set_pictures(picture(160, 40));
    EXPECT_EQ(button.sizeHint().width(), words + 60);
    EXPECT_EQ(button.minimumSizeHint().width(), 34);
}

TEST_F(RoomOfAButton, HasAPictureInsteadOfItsSign) {
    button.set_words("■");
    button.set_pictures(picture(160, 40));
    EXPECT_EQ(button.sizeHint().width(), 60);
}

TEST_F(RoomOfAButton, IsThatOfAPictureAlone) {
    button.set_look(ButtonLook::picture);
    button.setText("Sonarelle");
    button.set_pictures(picture(100, 20));
    EXPECT_EQ(button.sizeHint(), QSize(50, 10));
    EXPECT_EQ(button.minimumSizeHint(), QSize(24, 10));
    button.set_pictures(picture(4000, 400));
    EXPECT_LE(button.sizeHint().width(), 480);
    EXPECT_LE(button.sizeHint().height(), 36);
}

TEST_F(RoomOfAButton, IsNoneForAPictureThatIsMissing) {
    button.set_look(ButtonLook::picture);
    EXPECT_EQ(button.sizeHint(), QSize(0, 0));
}

TEST_F(RoomOfAButton, KeepsItsHeightInAHigherRow) {
    QWidget page;
    QHBoxLayout row{&page};
    auto* inside = new StudioButton;
    inside->setText("Zap");
    row.addWidget(inside);
    page.resize(300, 200);
    page.show();
    settle();
    EXPECT_EQ(inside->height(), inside->sizeHint().height());
    EXPECT_GT(inside->width(), 200);
}

TEST_F(RoomOfAButton, FollowsWhatItShows) {
    QWidget page;
    QHBoxLayout row{&page};
    auto* inside = new StudioButton;
    row.addWidget(inside);
    row.addStretch(1);
    page.resize(600, 60);
    page.show();
    const auto follows = [&] {
        settle();
        return inside->width() == inside->sizeHint().width();
    };
    inside->set_words("⇥ Zap (Z)");
    EXPECT_TRUE(follows());
    inside->set_pictures(picture(160, 40));
    EXPECT_TRUE(follows());
    inside->set_pictures({});
    EXPECT_TRUE(follows());
    inside->set_least_width(200);
    EXPECT_TRUE(follows());
}

TEST_F(RoomOfAButton, ShowsItsPictureWithoutTheEdge) {
    QPixmap framed{80, 80};
    framed.fill(Qt::blue);
    QPainter{&framed}.fillRect(10, 10, 60, 60, Qt::white);
    button.set_pictures({framed, framed, framed});
    button.resize(80, 80);
    const QImage picture = seen(button);
    EXPECT_GT(count_of(picture, Qt::white), 700); // half of 60 by 60, and smooth at its edge
    for (int x = 0; x < 80; ++x)
        EXPECT_LT(picture.pixelColor(x, 40).blue() - picture.pixelColor(x, 40).red(), 60) << x;
}

TEST_F(RoomOfAButton, ShowsAPictureAloneWhole) {
    button.set_look(ButtonLook::picture);
    button.set_pictures(picture(40, 20));
    button.resize(40, 20);
    EXPECT_EQ(red(), 800);
    button.resize(20, 20);
    EXPECT_EQ(red(), 200);
    button.resize(200, 200);
    EXPECT_EQ(red(), 800); // never larger than it was drawn
}

TEST_F(RoomOfAButton, ShowsNoWordsBesideAPictureWhereTheyDontFit) {
    button.setText("Zapper");
    button.set_pictures(picture(80, 40, Qt::cyan));
    const auto middle_of_picture = [this] {
        const QImage picture = seen(button);
        int sum = 0;
        int count = 0;
        for (int x = 0; x < picture.width(); ++x)
            if (const QColor pixel = picture.pixelColor(x, picture.height() / 2);
                pixel.blue() > 240 && pixel.red() < 120) {
                sum += x;
                ++count;
            }
        return count == 0 ? -1 : sum / count;
    };
    button.resize(200, 30);
    EXPECT_LT(middle_of_picture(), 40);
    const QImage wide = seen(button);
    button.setText("Autres");
    EXPECT_NE(seen(button), wide);
    button.resize(60, 30);
    EXPECT_NEAR(middle_of_picture(), 30, 3);
    const QImage narrow = seen(button);
    button.setText("Zapper");
    EXPECT_EQ(seen(button), narrow);
}

TEST_F(RoomOfAButton, PictureLiesOnAFaceThatTellsThePointer) {
    button.set_pictures(picture(16, 16, Qt::black));
    button.resize(80, 30);
    const auto face = [this] { return ground_in(seen(button)).lightness(); };
    const int rest = face();
    point_at(button);
    EXPECT_GT(face(), rest);
    button.setDown(true);
    EXPECT_LT(face(), rest);
}

} // namespace sonarelle
