// The main window's menu bar without a mouse, and the size of the window while it comes and goes.
#include <QMenu>
#include <QMenuBar>

#include "desktop/mnemonics.h"
#include "desktop/whole_desk_fixture.h"

namespace sonarelle {

namespace {

class BarOfTheDesk : public WholeDesk {
protected:
    void press_ground() {
        QTest::mouseClick(&main_view(), Qt::LeftButton, {}, {2, main_view().height() - 2});
        settle();
    }
    void press_ground_twice() {
        QTest::mouseDClick(&main_view(), Qt::LeftButton, {}, {2, main_view().height() - 2});
        settle();
    }
    void press_with_alt(Qt::Key letter) {
        QTest::keyClick(main_view().windowHandle(), letter, Qt::AltModifier);
        settle();
    }
    [[nodiscard]] static std::string open_menu() {
        QWidget* menu = QApplication::activePopupWidget();
        const std::string name = menu == nullptr ? "" : menu->objectName().toStdString();
        if (menu != nullptr)
            menu->close();
        return name;
    }
    [[nodiscard]] bool bar_is_seen() { return static_cast<WindowView&>(main_view()).menu_bar().isVisible(); }
};

struct Letter {
    Qt::Key key;
    const char* menu;
};

class BarLetters : public BarOfTheDesk, public testing::WithParamInterface<Letter> {};

} // namespace

TEST_P(BarLetters, OpenTheirMenuInTheBar) {
    press_with_alt(GetParam().key);
    EXPECT_EQ(open_menu(), GetParam().menu);
}

TEST_P(BarLetters, OpenTheirMenuWhereTheBarIsHidden) {
    press_ground();
    press_with_alt(GetParam().key);
    EXPECT_EQ(open_menu(), GetParam().menu);
}

INSTANTIATE_TEST_SUITE_P(Menus, BarLetters,
                         testing::Values(Letter{Qt::Key_F, "Fichier"}, Letter{Qt::Key_P, "lire_play"},
                                         Letter{Qt::Key_L, "liste"}, Letter{Qt::Key_A, "affiche"},
                                         Letter{Qt::Key_O, "Option_"}, Letter{Qt::Key_I, "aide"},
                                         Letter{Qt::Key_R, "A_Propos"}));

TEST_F(BarOfTheDesk, ComesBackByF10WithItsFirstMenuOpen) {
    press_ground();
    ASSERT_FALSE(bar_is_seen());
    key(Qt::Key_F10);
    EXPECT_TRUE(bar_is_seen());
    EXPECT_EQ(open_menu(), "Fichier");
}

// The hand that goes over to another program by Alt and Tab.
TEST_F(BarOfTheDesk, TakesNoLetterByAltAlone) {
    std::u32string seen;
    window.on_key_press = [&](char32_t c) { seen += c; };
    key(Qt::Key_Alt);
    type(u"p");
    EXPECT_EQ(seen, U"p");
    EXPECT_EQ(open_menu(), "");
}

TEST_F(BarOfTheDesk, MenuOfAWordThatStandsForItOpensUnderTheWord) {
    press_ground();
    QWidget& word = part(window.list_label);
    press(word);
    QWidget* menu = QApplication::activePopupWidget();
    ASSERT_NE(menu, nullptr);
    EXPECT_EQ(menu->pos(), word.mapToGlobal(word.rect().bottomLeft()));
    menu->close();
}

TEST_F(BarOfTheDesk, PressOnTheGroundLeavesTheSizeThatTheOperatorGave) {
    main_view().resize(1200, 720);
    settle();
    press_ground();
    EXPECT_EQ(main_view().size(), QSize(1200, 720));
}

TEST_F(BarOfTheDesk, DoublePressOnTheGroundLeavesTheSizeThatTheOperatorGave) {
    main_view().resize(1200, 720);
    settle();
    press_ground();
    press_ground_twice();
    EXPECT_EQ(main_view().size(), QSize(1200, 720));
}

TEST(Mnemonics, AreTheFirstLettersThatAreFree) {
    EXPECT_EQ(with_mnemonics({"Affichage", "Aide", "À propos", "Id"}),
              (QStringList{"&Affichage", "A&ide", "À &propos", "I&d"}));
}

TEST(Mnemonics, BeginAWordWhereTheyCan) {
    EXPECT_EQ(with_mnemonics({"Liste", "Lire toutes"}), (QStringList{"&Liste", "Lire &toutes"}));
}

TEST(Mnemonics, LeaveACaptionWithoutAFreeLetterAsItIs) {
    EXPECT_EQ(with_mnemonics({"a", "A", "12"}), (QStringList{"&a", "A", "12"}));
}

} // namespace sonarelle
