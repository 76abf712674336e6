#include <QTest>
#include <QWindow>

#include "desktop/desktop_fixture.h"
#include "desktop/dresser.h"
#include "desktop/window_view.h"

namespace sonarelle {

namespace {

struct Feuille : Window {
    Feuille()
        : Window{"feuille"} {
        menu_bar = {&Fichier};
        Fichier.hang({{&Ouvrir}, {&Quitter}});
    }

    MenuItem Fichier{*this, "Fichier", "Fichier"};
    MenuItem Ouvrir{*this, "Ouvrir", "Ouvrir", "F5"};
    MenuItem Quitter{*this, "Quitter", "Quitter"};
    TextBox champ{*this, "champ"};
    GraphicButton bouton{*this, "bouton", "Lecture"};
};

class View : public DesktopFixture {
protected:
    void show() {
        feuille.show();
        settle();
    }
    void type(Qt::Key key, const QString& text) {
        QKeyEvent press{QEvent::KeyPress, key, Qt::NoModifier, text};
        QCoreApplication::sendEvent(view.windowHandle(), &press);
        settle();
    }

    /// Presses the space bar and lets it go.
    void press_space() {
        for (const auto kind : {QEvent::KeyPress, QEvent::KeyRelease}) {
            QKeyEvent key{kind, Qt::Key_Space, Qt::NoModifier, " "};
            QCoreApplication::sendEvent(view.windowHandle(), &key);
        }
        settle();
    }
    /// A button that has the focus, and counts its presses.
    void focus_button(int& presses) {
        feuille.bouton.on_click = [&presses] { ++presses; };
        auto* button = Dresser{view}.button(feuille.bouton);
        show();
        button->setFocus();
    }

    Feuille feuille;
    WindowView view{feuille, services, {300, 200}};
};

using MenuBinding = View;

TEST_F(View, ShowsAndHidesWithTheWindow) {
    show();
    EXPECT_TRUE(view.isVisible());
    feuille.hide();
    settle();
    EXPECT_FALSE(view.isVisible());
}

TEST_F(View, CaptionIsTheTitle) {
    feuille.caption = "Sonarelle V 6.1.3 - -";
    settle();
    EXPECT_EQ(view.windowTitle(), "Sonarelle V 6.1.3 - -");
}

TEST_F(View, ClosingAsksTheStationAndClosesNothing) {
    int asked = 0;
    feuille.on_unload_request = [&] { ++asked; };
    show();
    view.close();
    settle();
    EXPECT_EQ(asked, 1);
    EXPECT_TRUE(view.isVisible());
}

TEST_F(View, WindowWithoutAnOpinionIsHiddenByClosingIt) {
    show();
    view.close();
    settle();
    EXPECT_FALSE(feuille.visible);
}

TEST_F(View, TypedCharactersReachTheWindowOnce) {
    std::u32string keys;
    feuille.on_key_press = [&](char32_t key) { keys += key; };
    show();
    type(Qt::Key_twosuperior, "²");
    type(Qt::Key_Escape, "\x1b");
    EXPECT_EQ(keys, U"²\x1b");
}

TEST_F(View, WhatIsTypedIntoAFieldIsForTheFieldAlone) {
    std::u32string keys;
    feuille.on_key_press = [&](char32_t key) { keys += key; };
    QLineEdit* field = Dresser{view}.text_box(feuille.champ);
    show();
    field->setFocus();
    type(Qt::Key_2, "2");
    EXPECT_EQ(keys, U"");
    EXPECT_EQ(feuille.champ.text(), "2");
}

TEST_F(View, EscapeReachesTheWindowFromAFieldToo) {
    std::u32string keys;
    feuille.on_key_press = [&](char32_t key) { keys += key; };
    QLineEdit* field = Dresser{view}.text_box(feuille.champ);
    show();
    field->setFocus();
    type(Qt::Key_Escape, "\x1b");
    EXPECT_EQ(keys, U"\x1b");
}

TEST_F(View, SpaceBarPressesTheButtonThatHasTheFocus) {
    int presses = 0;
    focus_button(presses);
    press_space();
    EXPECT_EQ(presses, 1);
}

TEST_F(View, SpaceBarThatIsTheWindowsOwnPressesNoButton) {
    std::u32string keys;
    feuille.on_key_press = [&](char32_t key) { keys += key; };
    feuille.answers_space = true;
    int presses = 0;
    focus_button(presses);
    press_space();
    EXPECT_EQ(presses, 0);
    EXPECT_EQ(keys, U" ");
}

TEST_F(View, PressesOnTheBackgroundAreTheWindows) {
    std::string seen;
    feuille.on_click = [&] { seen += "clic "; };
    feuille.on_right_click = [&] { seen += "droit "; };
    feuille.on_double_click = [&] { seen += "double "; };
    show();
    QTest::mouseClick(&view, Qt::LeftButton);
    QTest::mouseClick(&view, Qt::RightButton);
    QTest::mouseDClick(&view, Qt::LeftButton);
    EXPECT_NE(seen.find("droit "), std::string::npos);
    EXPECT_NE(seen.find("double "), std::string::npos);
    EXPECT_EQ(seen.substr(0, 5), "clic ");
}

TEST_F(View, MovesWhereTheStationPutsIt) {
    show();
    feuille.left = Twips{1500};
    feuille.top = Twips{750};
    settle();
    EXPECT_EQ(view.pos(), QPoint(100, 50));
}

TEST_F(View, CornerOfTheScreenIsAPlaceToo) {
    feuille.left = Twips{};
    feuille.top = Twips{};
    show();
    EXPECT_TRUE(view.testAttribute(Qt::WA_Moved));
}

TEST_F(View, WithoutAPlaceIsTheScreensToPlace) {
    show();
    EXPECT_FALSE(view.testAttribute(Qt::WA_Moved));
}

TEST_F(View, KeepsTheScreensSizeWhileItIsMaximised) {
    show();
    view.showMaximized();
    settle();
    const QRect whole = view.geometry();
    feuille.caption = "Radio Port";
    feuille.height = Twips{6885};
    settle();
    EXPECT_EQ(view.geometry(), whole);
}

TEST_F(View, StationKnowsWhereTheOperatorPutIt) {
    show();
    view.move(40, 30);
    settle();
    EXPECT_EQ(feuille.left.get(), Twips{600});
    EXPECT_EQ(feuille.top.get(), Twips{450});
}

TEST_F(View, SizeBelowTheLeastIsNotTaken) {
    show();
    feuille.height = Twips{1500};
    settle();
    EXPECT_EQ(view.height(), 200);
    EXPECT_EQ(feuille.height.get(), Twips{3000});
}

TEST_F(View, MinimisedStateIsShown) {
    show();
    feuille.state = WindowState::minimised;
    settle();
    EXPECT_TRUE(view.isMinimized());
}

TEST_F(View, ReducingByHandIsTold) {
    int reduced = 0;
    feuille.on_reduce = [&] { ++reduced; };
    show();
    view.showMinimized();
    settle();
    EXPECT_EQ(reduced, 1);
    EXPECT_EQ(feuille.state, WindowState::minimised);
}

TEST_F(View, BecomesActiveWhenItIsShown) {
    int activations = 0;
    feuille.on_activate = [&] { ++activations; };
    show();
    QCoreApplication::processEvents();
    EXPECT_GE(activations, 1);
}

TEST_F(View, BecomesActiveEachTimeTheOperatorComesBackToIt) {
    int activations = 0;
    show();
    QApplication::setActiveWindow(&view);
    settle();
    feuille.on_activate = [&] { ++activations; };
    QApplication::setActiveWindow(nullptr);
    settle();
    EXPECT_EQ(activations, 0);
    QApplication::setActiveWindow(&view);
    settle();
    EXPECT_EQ(activations, 1);
}

TEST_F(View, IsNotActiveOnceItIsHiddenAgain) {
    int activations = 0;
    feuille.on_activate = [&] { ++activations; };
    feuille.show();
    updates.flush();
    activations = 0;
    feuille.hide();
    settle();
    EXPECT_EQ(activations, 0);
}

TEST_F(View, ShownAgainIsNoOtherPlaceOrSize) {
    show();
    view.move(40, 30);
    view.resize(640, 480);
    settle();
    feuille.hide();
    settle();
    show();
    EXPECT_EQ(view.geometry().size(), QSize(640, 480));
    EXPECT_EQ(view.pos(), QPoint(40, 30));
}

TEST_F(View, RightAndLeftPressesAreToldApart) {
    std::string seen;
    feuille.on_click = [&] { seen += "clic "; };
    feuille.on_right_click = [&] { seen += "droit "; };
    feuille.on_double_click = [&] { seen += "double "; };
    show();
    QTest::mouseClick(&view, Qt::RightButton);
    EXPECT_EQ(seen, "droit ");
    QTest::mouseClick(&view, Qt::MiddleButton);
    EXPECT_EQ(seen, "droit ");
    QMouseEvent twice{QEvent::MouseButtonDblClick, QPointF{5, 5}, QPointF{5, 5}, Qt::RightButton, Qt::RightButton, {}};
    QCoreApplication::sendEvent(&view, &twice);
    EXPECT_EQ(seen, "droit ");
}

TEST_F(MenuBinding, EntriesHangUnderTheirMenuWithALineBetweenGroups) {
    const auto actions = view.menus().menu(feuille.Fichier)->actions();
    ASSERT_EQ(actions.size(), 3);
    EXPECT_EQ(actions[0]->text(), "&Ouvrir");
    EXPECT_TRUE(actions[1]->isSeparator());
    EXPECT_EQ(actions[2]->text(), "&Quitter");
}

TEST_F(MenuBinding, ChoosingAnEntryIsItsClick) {
    int clicks = 0;
    feuille.Ouvrir.on_click = [&] { ++clicks; };
    view.menus().action(feuille.Ouvrir).trigger();
    EXPECT_EQ(clicks, 1);
    EXPECT_EQ(events, 1);
}

TEST_F(MenuBinding, CheckMarkAndEnablingAreShown) {
    feuille.Ouvrir.checked = true;
    feuille.Quitter.enabled = false;
    settle();
    EXPECT_TRUE(view.menus().action(feuille.Ouvrir).isChecked());
    EXPECT_FALSE(view.menus().action(feuille.Quitter).isEnabled());
}

TEST_F(MenuBinding, ShortcutIsTheActions) {
    EXPECT_EQ(view.menus().action(feuille.Ouvrir).shortcut(), QKeySequence{Qt::Key_F5});
}

TEST_F(MenuBinding, OpeningTellsTheStationFirst) {
    feuille.Fichier.on_open = [&] { feuille.Ouvrir.enabled = false; };
    emit view.menus().menu(feuille.Fichier)->aboutToShow();
    EXPECT_FALSE(view.menus().action(feuille.Ouvrir).isEnabled());
}

TEST_F(MenuBinding, PopsUpWithoutWaiting) {
    show();
    feuille.popup(feuille.Fichier);
    EXPECT_TRUE(view.menus().menu(feuille.Fichier)->isVisible());
    view.menus().menu(feuille.Fichier)->hide();
}

TEST_F(MenuBinding, BarGoesWhenItsMenusAreHidden) {
    show();
    feuille.Fichier.visible = false;
    settle();
    EXPECT_FALSE(view.menu_bar().isVisible());
}

} // namespace

} // namespace sonarelle
