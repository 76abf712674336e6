// What lies behind a window's parts, and what stands on it.
#include <QTemporaryDir>

#include "desktop/desktop_fixture.h"
#include "desktop/dresser.h"
#include "desktop/panel.h"
#include "desktop/pixels.h"
#include "desktop/window_view.h"

namespace sonarelle {

namespace {

class GroundOfAWindow : public DesktopFixture {
protected:
    GroundOfAWindow() {
        words->setParent(&view.content());
        words->setGeometry(20, 20, 200, 60);
        panel.setGeometry(20, 100, 200, 60);
        window.show();
        settle();
    }
    /// The name of a picture of one colour.
    [[nodiscard]] std::string picture_of(const QColor& colour) {
        const QString path = folder.filePath(colour.name() + ".png");
        QPixmap picture{8, 8};
        picture.fill(colour);
        picture.save(path);
        return path.toStdString();
    }
    [[nodiscard]] QColor corner() { return seen(view).pixelColor(3, 3); }
    [[nodiscard]] QColor ink() { return ink_in(seen_in_window(*words)); }

    QTemporaryDir folder;
    Label label{window, "label", "Texte"};
    WindowView view{window, services, {300, 200}};
    StationLabel* words = Dresser{view}.label(label, {.type = Type::clock, .bold = true});
    Panel panel{&view.content()};
};

} // namespace

TEST_F(GroundOfAWindow, IsItsPicture) {
    window.picture = picture_of(Qt::red);
    settle();
    EXPECT_EQ(corner(), QColor(Qt::red));
    window.picture = picture_of(Qt::blue);
    settle();
    EXPECT_EQ(corner(), QColor(Qt::blue));
}

TEST_F(GroundOfAWindow, FillsTheWindow) {
    window.picture = picture_of(Qt::red);
    settle();
    EXPECT_EQ(seen(view).pixelColor(297, 197), QColor(Qt::red));
}

TEST_F(GroundOfAWindow, IsTheStudiosAgainWithoutItsPicture) {
    window.picture = picture_of(Qt::red);
    settle();
    window.picture = "";
    settle();
    EXPECT_EQ(corner(), studio::window);
}

TEST_F(GroundOfAWindow, IsReadableWhateverThePicture) {
    for (const QColor& colour : {QColor{Qt::white}, QColor{Qt::black}, QColor{Qt::yellow}, QColor{Qt::darkBlue}}) {
        window.picture = picture_of(colour);
        settle();
        EXPECT_GE(contrast_in(seen_in_window(*words)), readable) << colour.name().toStdString();
    }
}

TEST_F(GroundOfAWindow, IsReadableInTheColourThatIsTold) {
    label.fore_colour = 0x000000;
    window.back_colour = 0xFFFFFF;
    settle();
    EXPECT_EQ(corner(), QColor(Qt::white));
    EXPECT_TRUE(is_near(ink(), Qt::black));
}

TEST_F(GroundOfAWindow, GivesWayToALightCardUnderADarkInk) {
    const auto card = [this] { return seen_in_window(panel).pixelColor(100, 30); };
    EXPECT_EQ(card(), studio::card);
    label.fore_colour = 0x000000;
    window.back_colour = 0xC0C0C0;
    settle();
    EXPECT_EQ(card(), studio::tip);
}

} // namespace sonarelle
