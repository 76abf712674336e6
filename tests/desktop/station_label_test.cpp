// Texts that are drawn, and those of them that act as buttons, as pixels.
#include <QHelpEvent>
#include <QTest>
#include <QToolTip>
#include <QVBoxLayout>

#include "desktop/desktop_fixture.h"
#include "desktop/panel.h"
#include "desktop/pixels.h"
#include "desktop/station_label.h"
#include "desktop/text_bindings.h"
#include "desktop/window_view.h"

namespace sonarelle {

namespace {

constexpr StationLabel::Style framed{.framed = true, .alignment = Qt::AlignCenter};
constexpr QColor olive{79, 70, 0};
constexpr QColor deep_blue{0, 0, 255};

/// One text on a panel.
class Texts : public DesktopFixture {
protected:
    StationLabel& put(const StationLabel::Style& style, const QString& text) {
        auto* label = new StationLabel{style, &panel};
        label->set_text(text);
        label->setGeometry(20, 20, 160, 40);
        panel.resize(200, 80);
        panel.show();
        label->show();
        return *label;
    }
    static void ink(QWidget& label, const QColor& colour) {
        QPalette palette = label.palette();
        palette.setColor(QPalette::WindowText, colour);
        label.setPalette(palette);
    }
    [[nodiscard]] StationLabel& button(const QString& text) {
        StationLabel& label = put(framed, text);
        label.set_pressable(true);
        return label;
    }

    Panel panel;
};

} // namespace

TEST_F(Texts, InkThatReadsIsTheControls) {
    StationLabel& label = put({.type = Type::clock, .bold = true}, "Texte");
    ink(label, QColor{255, 255, 0});
    EXPECT_TRUE(is_near(ink_in(seen_in_window(label)), QColor(255, 255, 0)));
}

TEST_F(Texts, InkThatCantBeReadGivesWay) {
    StationLabel& label = put({.type = Type::deck_title, .bold = true}, "Texte");
    ink(label, deep_blue);
    EXPECT_TRUE(is_near(ink_in(seen_in_window(label)), Qt::white));
}

TEST_F(Texts, InkGivesWayToBlackOnALightPanel) {
    StationLabel& label = put({.type = Type::deck_title, .bold = true}, "Texte");
    ink(label, Qt::yellow);
    panel.set_plate(QColor{0xf0, 0xf0, 0xf0});
    EXPECT_TRUE(is_near(ink_in(seen_in_window(label)), Qt::black));
}

TEST_F(Texts, QuietOneIsFainterAndReads) {
    StationLabel& loud = put({.type = Type::deck_title, .bold = true}, "Texte");
    const double before = contrast_in(seen_in_window(loud));
    loud.set_style({.type = Type::deck_title, .bold = true, .quiet = true});
    const double after = contrast_in(seen_in_window(loud));
    EXPECT_LT(after, before - 1);
    EXPECT_GE(after, readable);
}

TEST_F(Texts, ButtonReadsUnderThePointerWhateverItsInk) {
    StationLabel& label = button("Affichage");
    point_at(label);
    for (const QColor& told : {olive, deep_blue, QColor{Qt::white}, QColor{Qt::black}}) {
        ink(label, told);
        EXPECT_GE(contrast_in(seen_in_window(label)), readable) << told.name().toStdString();
    }
}

TEST_F(Texts, PlateOfAButtonIsLighterUnderThePointer) {
    StationLabel& label = button("Option");
    const QColor rest = ground_in(seen_in_window(label));
    point_at(label);
    EXPECT_GT(ground_in(seen_in_window(label)).lightness(), rest.lightness() + 8);
}

TEST_F(Texts, PlateOfAButtonGoesWithThePointer) {
    StationLabel& label = button("Option");
    const QImage rest = seen_in_window(label);
    point_at(label);
    leave(label);
    EXPECT_EQ(seen_in_window(label), rest);
}

TEST_F(Texts, ButtonIsPaintedAnewWhenThePointerComesAndGoes) {
    struct Counting : StationLabel {
        using StationLabel::StationLabel;
        void paintEvent(QPaintEvent* event) override {
            ++painted;
            StationLabel::paintEvent(event);
        }
        int painted = 0;
    } label{framed};
    label.show();
    QTest::qWait(50);
    const int before = label.painted;
    point_at(label);
    QTest::qWait(50);
    EXPECT_GT(label.painted, before);
    const int over = label.painted;
    leave(label);
    QTest::qWait(50);
    EXPECT_GT(label.painted, over);
}

TEST_F(Texts, PressedPlateIsDarkerAndReads) {
    StationLabel& label = button("Fichier");
    const QColor rest = ground_in(seen_in_window(label));
    QTest::mousePress(&label, Qt::LeftButton);
    const QImage pressed = seen_in_window(label);
    EXPECT_LT(ground_in(pressed).lightness(), rest.lightness());
    EXPECT_GE(contrast_in(pressed), readable);
    QTest::mouseRelease(&label, Qt::LeftButton);
    EXPECT_EQ(ground_in(seen_in_window(label)), rest);
}

TEST_F(Texts, ButtonThatCantBeReachedDoesntLightUp) {
    StationLabel& label = button("Fichier");
    label.setEnabled(false);
    const QImage rest = seen_in_window(label);
    point_at(label);
    EXPECT_EQ(seen_in_window(label), rest);
}

TEST_F(Texts, FocusIsSeen) {
    StationLabel& label = button("Fichier");
    panel.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&panel));
    label.clearFocus();
    EXPECT_LT(count_of(seen_in_window(label), studio::focus), 20);
    label.setFocus();
    EXPECT_GT(count_of(seen_in_window(label), studio::focus), 100);
}

TEST_F(Texts, DigitsStandInCellsOfOneWidth) {
    constexpr StationLabel::Style digits{.type = Type::air_title, .digits = true};
    StationLabel& label = put(digits, "1:00");
    const auto tail = [&] { return seen_in_window(label).copy(30, 0, 130, 40); };
    const QImage before = tail();
    label.set_text("8:00");
    EXPECT_EQ(tail(), before);
}

TEST_F(Texts, DigitsKeepToTheirSide) {
    const auto first_column = [this](Qt::Alignment side) {
        StationLabel& label =
            put({.type = Type::air_title, .digits = true, .alignment = side | Qt::AlignVCenter}, "88");
        const QImage picture = seen_in_window(label);
        const QColor ground = ground_in(picture);
        int column = 0;
        while (column < picture.width() && count_of(picture.copy(column, 0, 1, 40), ground) == 40)
            ++column;
        label.hide();
        return column;
    };
    const int left = first_column(Qt::AlignLeft);
    const int middle = first_column(Qt::AlignHCenter);
    const int right = first_column(Qt::AlignRight);
    EXPECT_LT(left, 10);
    EXPECT_GT(middle, 50);
    EXPECT_LT(middle, 80);
    EXPECT_GT(right, 110);
}

TEST_F(Texts, TooLongOneEndsInDotsInsideItsRoom) {
    StationLabel& label = put({.type = Type::deck_title}, "Un titre bien trop long pour la place qu'il a");
    const QImage cut = seen_in_window(label);
    label.set_text("Un titre bien trop long pour la place qu'il a, et encore plus long");
    EXPECT_EQ(seen_in_window(label), cut);
}

TEST_F(Texts, TooLongOneIsToldWholeUnderThePointer) {
    StationLabel& label = put({.type = Type::deck_title}, "Un titre bien trop long pour la place qu'il a");
    QHelpEvent rest{QEvent::ToolTip, QPoint{5, 5}, label.mapToGlobal(QPoint{5, 5})};
    QCoreApplication::sendEvent(&label, &rest);
    EXPECT_EQ(QToolTip::text(), label.text());
    QToolTip::hideText();
}

TEST_F(Texts, OneThatIsSeenWholeIsNotToldAgain) {
    StationLabel& label = put({.type = Type::deck_title}, "Un titre");
    QHelpEvent rest{QEvent::ToolTip, QPoint{5, 5}, label.mapToGlobal(QPoint{5, 5})};
    QCoreApplication::sendEvent(&label, &rest);
    EXPECT_EQ(QToolTip::text(), "");
}

TEST_F(Texts, WrappedOneTakesTheLinesThatItNeeds) {
    StationLabel label{{.wrapped = true}};
    label.set_text("un");
    const int one_line = label.heightForWidth(100);
    label.set_text("un deux trois quatre cinq six sept huit neuf dix");
    EXPECT_GT(label.heightForWidth(100), 2 * one_line);
    EXPECT_TRUE(label.hasHeightForWidth());
}

TEST_F(Texts, GreaterStyleIsGreater) {
    EXPECT_GT((StationLabel{{.type = Type::clock}}.sizeHint().height()),
              (StationLabel{{.type = Type::small}}.sizeHint().height()) + 15);
    EXPECT_GT((StationLabel{{.characters = 30}}.sizeHint().width()),
              2 * (StationLabel{{.characters = 12}}.sizeHint().width()));
}

TEST_F(Texts, PressThatEndsElsewhereIsNone) {
    StationLabel& label = button("Fichier");
    int presses = 0;
    label.on_press = [&] { ++presses; };
    QTest::mousePress(&label, Qt::LeftButton);
    QTest::mouseRelease(&label, Qt::LeftButton, {}, {300, 300});
    EXPECT_EQ(presses, 0);
    QTest::mouseClick(&label, Qt::RightButton);
    EXPECT_EQ(presses, 0);
    QTest::mouseClick(&label, Qt::LeftButton);
    EXPECT_EQ(presses, 1);
}

TEST_F(Texts, SpaceAndReturnPressAButtonAndOtherKeysDont) {
    StationLabel& label = button("Fichier");
    int presses = 0;
    label.on_press = [&] { ++presses; };
    QTest::keyClick(&label, Qt::Key_Space);
    QTest::keyClick(&label, Qt::Key_Return);
    QTest::keyClick(&label, Qt::Key_A);
    EXPECT_EQ(presses, 2);
}

TEST_F(Texts, ButtonIsReachedByTheKeyboardAndShowsTheHand) {
    StationLabel& label = button("Fichier");
    EXPECT_EQ(label.focusPolicy(), Qt::TabFocus);
    EXPECT_EQ(label.cursor().shape(), Qt::PointingHandCursor);
    label.set_pressable(false);
    EXPECT_EQ(label.focusPolicy(), Qt::NoFocus);
    EXPECT_EQ(label.cursor().shape(), Qt::ArrowCursor);
}

TEST_F(Texts, PlainOneMayBeCutAndFiguresAndButtonsMayNot) {
    const auto least = [](const StationLabel::Style& style) { return StationLabel{style}.minimumSizeHint().width(); };
    const auto wished = [](const StationLabel::Style& style) { return StationLabel{style}.sizeHint().width(); };
    EXPECT_LT(least({.characters = 20}), wished({.characters = 20}) / 2);
    EXPECT_EQ(least({.digits = true, .characters = 20}), wished({.digits = true, .characters = 20}));
    EXPECT_EQ(least({.framed = true, .characters = 20}), wished({.framed = true, .characters = 20}));
}

TEST_F(Texts, ReleaseWithoutAPressOfItsOwnLeavesTheOtherButtonsAlone) {
    StationLabel& label = button("Fichier");
    const QImage rest = seen_in_window(label);
    QTest::mousePress(&label, Qt::RightButton);
    EXPECT_EQ(seen_in_window(label), rest);
    QTest::mouseRelease(&label, Qt::RightButton);
}

TEST_F(Texts, OneWithAHintOfItsOwnTellsThat) {
    StationLabel& label = put({.type = Type::deck_title}, "Un titre bien trop long pour la place qu'il a");
    label.setToolTip("La piste");
    QHelpEvent rest{QEvent::ToolTip, QPoint{5, 5}, label.mapToGlobal(QPoint{5, 5})};
    QCoreApplication::sendEvent(&label, &rest);
    EXPECT_EQ(QToolTip::text(), "La piste");
    QToolTip::hideText();
}

TEST_F(Texts, FocusOfAPlainTextIsSeen) {
    StationLabel& label = put({.type = Type::medium}, "Texte");
    label.set_pressable(true);
    QApplication::setActiveWindow(&panel);
    label.setFocus();
    EXPECT_GT(count_of(seen_in_window(label), studio::focus), 100);
}

TEST_F(Texts, PlainTextTakesNeitherPressNorFocus) {
    StationLabel& label = put({}, "Texte");
    int presses = 0;
    label.on_press = [&] { ++presses; };
    QTest::mouseClick(&label, Qt::LeftButton);
    QTest::keyClick(&label, Qt::Key_Space);
    EXPECT_EQ(presses, 0);
    EXPECT_EQ(label.focusPolicy(), Qt::NoFocus);
}

} // namespace sonarelle
