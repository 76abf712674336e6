// Buttons that are drawn, as pixels: their faces, their accents, and the lamps.
#include "desktop/studio_button.h"

#include <QAccessible>
#include <QTest>

#include "desktop/button_bindings.h"
#include "desktop/desktop_fixture.h"
#include "desktop/panel.h"
#include "desktop/pixels.h"
#include "desktop/station_views.h"

namespace sonarelle {

namespace {

constexpr std::array accents{Accent::none, Accent::air, Accent::next, Accent::trouble, Accent::primary};

QColor fill_of(Accent accent, const QColor& plain) {
    switch (accent) {
    case Accent::air:
        return studio::air_fill;
    case Accent::next:
        return studio::next;
    case Accent::trouble:
        return studio::trouble_fill;
    case Accent::primary:
        return studio::primary;
    case Accent::none:
        break;
    }
    return plain;
}

class StudioButtons : public DesktopFixture {
protected:
    StudioButtons() {
        QFont font = button.font();
        font.setPixelSize(20);
        font.setBold(true);
        button.setFont(font);
        button.setText("Stopper");
        button.setFocusPolicy(Qt::NoFocus); // its bright ring would be taken for the ink
        button.setGeometry(10, 10, 140, 40);
        panel.resize(160, 60);
        panel.show();
    }
    [[nodiscard]] QImage shown() { return seen_in_window(button); }
    [[nodiscard]] QColor ground() { return ground_in(shown()); }

    Panel panel;
    StudioButton button{&panel};
};

/// A button's binding under the station's colours.
class ToldButtons : public StudioButtons {
protected:
    void tell(const Theme& theme) {
        control.fore_colour = theme.text_of_buttons;
        control.back_colour = theme.window;
        control.fore_colour_over = theme.text_of_buttons;
        control.fore_colour_down = theme.text_of_buttons;
        control.back_colour_over = theme.ground_of_list;
        control.back_colour_down = theme.ground_of_list;
        settle();
    }

    GraphicButton control{window, "AnyButton1", "Stopper"};
    ButtonBinding binding{control, button, services};
};

} // namespace

TEST_F(StudioButtons, CaptionReadsAtRestUnderThePointerAndDown) {
    EXPECT_GE(contrast_in(shown()), readable);
    point_at(button);
    EXPECT_GE(contrast_in(shown()), readable);
    button.setDown(true);
    EXPECT_GE(contrast_in(shown()), readable);
}

TEST_F(StudioButtons, FaceTellsRestPointerAndPressApart) {
    button.set_face({Qt::darkBlue, Qt::white, Qt::darkGreen, Qt::white, Qt::darkRed, Qt::white});
    EXPECT_EQ(ground(), QColor(Qt::darkBlue));
    point_at(button);
    EXPECT_EQ(ground(), QColor(Qt::darkGreen));
    button.setDown(true);
    EXPECT_EQ(ground(), QColor(Qt::darkRed));
    button.setDown(false);
    leave(button);
    EXPECT_EQ(ground(), QColor(Qt::darkBlue));
}

TEST_F(StudioButtons, AccentLightsTheFaceInItsColour) {
    const QColor plain = ground();
    for (const Accent accent : accents) {
        button.set_accent(accent);
        EXPECT_TRUE(is_near(ground(), fill_of(accent, plain), 3));
        EXPECT_GE(contrast_in(shown()), readable);
    }
}

TEST_F(StudioButtons, CaptionKeepsItsInkUntilItIsLit) {
    button.set_face({Qt::black, Qt::yellow, Qt::black, Qt::yellow, Qt::black, Qt::yellow});
    EXPECT_TRUE(is_near(ink_in(shown()), Qt::yellow, 30));
    button.set_accent(Accent::trouble);
    EXPECT_TRUE(is_near(ink_in(shown()), Qt::white, 30));
}

TEST_F(StudioButtons, AccentOfAButtonThatCantBeReachedIsDark) {
    button.setEnabled(false);
    const QImage rest = shown();
    button.set_accent(Accent::next);
    EXPECT_EQ(shown(), rest);
}

TEST_F(StudioButtons, EachAccentHasItsColour) {
    EXPECT_EQ(colour_of(Accent::air), studio::air);
    EXPECT_EQ(colour_of(Accent::next), studio::next);
    EXPECT_EQ(colour_of(Accent::trouble), studio::trouble);
    EXPECT_EQ(colour_of(Accent::none), studio::line);
}

TEST_F(StudioButtons, OneThatCantBeReachedIsFainter) {
    const double before = contrast_in(shown());
    button.setEnabled(false);
    EXPECT_LT(contrast_in(shown()), before - 3);
    const QImage rest = shown();
    point_at(button);
    EXPECT_EQ(shown(), rest);
}

TEST_F(StudioButtons, SymbolStandsForTheCaption) {
    const QImage caption = shown();
    button.set_words("■");
    const QImage symbol = shown();
    EXPECT_NE(symbol, caption);
    button.setText("Autre chose");
    EXPECT_EQ(shown(), symbol);
}

TEST_F(StudioButtons, FocusIsSeen) {
    panel.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&panel));
    button.clearFocus();
    EXPECT_LT(count_of(shown(), studio::focus), 20);
    button.setFocus();
    EXPECT_GT(count_of(shown(), studio::focus), 100);
}

TEST_F(StudioButtons, LampIsARingWhileItIsDark) {
    button.set_look(ButtonLook::lamp);
    const QRect middle{68, 18, 4, 4};
    EXPECT_EQ(count_of(shown().copy(middle), ground()), 16);
    EXPECT_NE(ink_in(shown()), ground());
}

TEST_F(StudioButtons, LampGlowsInItsColour) {
    button.set_look(ButtonLook::lamp);
    button.set_accent(Accent::air);
    EXPECT_EQ(count_of(shown().copy(68, 18, 4, 4), studio::air), 16);
    button.set_accent(Accent::none);
    EXPECT_EQ(count_of(shown(), studio::air), 0);
}

TEST_F(StudioButtons, OnlyALitCaptionIsBold) {
    QFont font = button.font();
    font.setBold(false);
    button.setFont(font);
    const auto width_of_caption = [this] {
        const QImage face = shown().copy(4, 4, 132, 32);
        const QColor ground = ground_in(face);
        int first = face.width();
        int last = 0;
        for (int x = 0; x < face.width(); ++x)
            if (count_of(face.copy(x, 0, 1, face.height()), ground) < face.height()) {
                first = std::min(first, x);
                last = x;
            }
        return last - first;
    };
    const int plain = width_of_caption();
    button.set_accent(Accent::next);
    EXPECT_GT(width_of_caption(), plain + 2);
    button.set_accent(Accent::none);
    EXPECT_EQ(width_of_caption(), plain);
}

TEST_F(StudioButtons, AreNamedByTheirCaptionUnderASign) {
    button.set_words("■");
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&button)->text(QAccessible::Name), "Stopper");
}

TEST_F(ToldButtons, CaptionReadsInEveryTheme) {
    for (const Theme& theme : themes) {
        tell(theme);
        EXPECT_GE(contrast_in(shown()), readable) << theme.name;
        point_at(button);
        EXPECT_GE(contrast_in(shown()), readable) << theme.name << ", pointer";
        button.setDown(true);
        EXPECT_GE(contrast_in(shown()), readable) << theme.name << ", down";
        button.setDown(false);
        leave(button);
    }
}

TEST_F(ToldButtons, CaptionBesideAPictureReadsInEveryTheme) {
    QPixmap picture{40, 40};
    picture.fill(Qt::black);
    button.set_pictures({picture, picture, picture});
    for (const Theme& theme : themes) {
        tell(theme);
        button.set_pictures({picture, picture, picture});
        EXPECT_GE(contrast_in(shown()), readable) << theme.name;
        point_at(button);
        EXPECT_GE(contrast_in(shown()), readable) << theme.name << ", pointer";
        button.setDown(true);
        EXPECT_GE(contrast_in(shown()), readable) << theme.name << ", down";
        button.setDown(false);
        leave(button);
    }
}

TEST_F(ToldButtons, InkOfAPaleFaceGivesWayBesideAPicture) {
    control.fore_colour = 0x000000;
    control.back_colour = 0x80FFFF;
    settle();
    QPixmap picture{40, 40};
    picture.fill(Qt::black);
    button.set_pictures({picture, picture, picture});
    EXPECT_TRUE(is_near(ink_in(shown()), Qt::white, 20));
}

TEST_F(ToldButtons, GroundThatCarriesItsInkIsTaken) {
    control.fore_colour = 0x000000;
    control.back_colour = 0x80FFFF;
    settle();
    EXPECT_EQ(ground(), QColor(0xff, 0xff, 0x80));
}

TEST_F(ToldButtons, PointerAndPressHaveTheirToldGrounds) {
    control.fore_colour = 0x000000;
    control.fore_colour_over = 0x000000;
    control.fore_colour_down = 0xFFFFFF;
    control.back_colour = 0x80FFFF;
    control.back_colour_over = 0xFFFF80;
    control.back_colour_down = 0x600000;
    settle();
    point_at(button);
    EXPECT_EQ(ground(), mixed(QColor{0x80, 0xff, 0xff}, Qt::white, 0.10));
    EXPECT_TRUE(is_near(ink_in(shown()), Qt::black, 40));
    button.setDown(true);
    EXPECT_EQ(ground(), mixed(QColor{0, 0, 0x60}, Qt::black, 0.35));
    EXPECT_TRUE(is_near(ink_in(shown()), Qt::white, 40));
}

TEST_F(StudioButtons, PlainOneIsLighterUnderThePointerAndDarkerWhileItIsDown) {
    Button plain{window, "b", "Stopper"};
    const ButtonBinding binding{plain, button, services};
    settle();
    const int rest = ground().lightness();
    point_at(button);
    EXPECT_GT(ground().lightness(), rest);
    button.setDown(true);
    EXPECT_LT(ground().lightness(), rest);
}

} // namespace sonarelle
