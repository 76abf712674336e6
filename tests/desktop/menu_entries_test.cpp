// What an entry of a menu shows of the station's.
#include <QMenu>
#include <QTest>
#include <QWindow>

#include "desktop/desktop_fixture.h"
#include "desktop/pixels.h"
#include "desktop/qt_text.h"
#include "desktop/window_view.h"

namespace sonarelle {

namespace {

struct Carte : Window {
    Carte()
        : Window{"carte"} {
        menu_bar = {&Liste};
        Liste.hang({{&Lire, &Trier, &Vider}});
        Trier.hang({{&Nom}});
    }

    MenuItem Liste{*this, "Liste", "Liste"};
    MenuItem Lire{*this, "Lire", "Lire", "F6"};
    MenuItem Trier{*this, "Trier", "Trier"};
    MenuItem Nom{*this, "Nom", "Par nom"};
    MenuItem Vider{*this, "Vider", "Vider"};
};

class MenuEntries : public DesktopFixture {
protected:
    [[nodiscard]] QAction& shown(MenuItem& item) { return view.menus().action(item); }
    /// As the eye reads it, without the mark of its letter.
    [[nodiscard]] QString words_of(MenuItem& item) { return plain_caption(from_qt(shown(item).text())); }

    Carte carte;
    WindowView view{carte, services, {300, 200}};
};

} // namespace

TEST_F(MenuEntries, HiddenOneIsGoneAndComesBack) {
    carte.Lire.visible = false;
    settle();
    EXPECT_FALSE(shown(carte.Lire).isVisible());
    carte.Lire.visible = true;
    settle();
    EXPECT_TRUE(shown(carte.Lire).isVisible());
}

TEST_F(MenuEntries, MarkGoesAgain) {
    carte.Lire.checked = true;
    settle();
    carte.Lire.checked = false;
    settle();
    EXPECT_FALSE(shown(carte.Lire).isChecked());
}

TEST_F(MenuEntries, PressLeavesTheMarkToTheStation) {
    carte.Lire.checked = true;
    settle();
    shown(carte.Lire).trigger();
    settle();
    EXPECT_TRUE(shown(carte.Lire).isChecked());
}

TEST_F(MenuEntries, CaptionAndHintFollow) {
    carte.Vider.caption = "Vider la liste";
    carte.Vider.hint = "Toutes les lignes";
    settle();
    EXPECT_EQ(words_of(carte.Vider), "Vider la liste");
    EXPECT_EQ(shown(carte.Vider).toolTip(), "Toutes les lignes");
}

TEST_F(MenuEntries, HintIsShownInTheMenu) {
    EXPECT_TRUE(view.menus().menu(carte.Liste)->toolTipsVisible());
}

TEST_F(MenuEntries, LetGoOfTheirItems) {
    {
        Carte passing;
        {
            const WindowView closed{passing, services, {300, 200}};
            passing.Lire.caption = "Écouter"; // and the view goes before it is shown
        }
        passing.Lire.caption = "Lire encore";
        passing.popup(passing.Liste);
        settle();
    }
    EXPECT_EQ(events, 0);
}

TEST_F(MenuEntries, MenuOpensWhereThePointerIsWithoutAPartToOpenUnder) {
    carte.show();
    settle();
    Label hidden{carte, "hidden"};
    for (const Control* under : {static_cast<const Control*>(nullptr), static_cast<const Control*>(&hidden)}) {
        carte.popup(carte.Liste, under);
        QMenu& menu = *view.menus().menu(carte.Liste);
        EXPECT_TRUE(menu.isVisible());
        EXPECT_TRUE(menu.geometry().adjusted(-2, -2, 2, 2).contains(QCursor::pos()));
        menu.close();
    }
}

TEST_F(MenuEntries, EntryThatIsNoMenuOpensNothing) {
    carte.show();
    settle();
    carte.popup(carte.Lire);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
}

TEST_F(MenuEntries, ShortcutIsTheWindowsWhileTheBarIsHidden) {
    int clicks = 0;
    carte.Lire.on_click = [&] { ++clicks; };
    carte.show();
    settle();
    QApplication::setActiveWindow(&view);
    carte.Liste.visible = false;
    settle();
    QTest::keyClick(view.windowHandle(), Qt::Key_F6);
    EXPECT_EQ(clicks, 1);
}

TEST_F(MenuEntries, AreToldAgainWhenTheMenuOpens) {
    carte.Liste.on_open = [this] { carte.Vider.caption = "Vider (3)"; };
    carte.show();
    settle();
    QMenu& menu = *view.menus().menu(carte.Liste);
    menu.popup({0, 0});
    EXPECT_EQ(words_of(carte.Vider), "Vider (3)");
    EXPECT_EQ(events, 1);
    menu.close();
}

TEST_F(MenuEntries, MenuInAMenuHangsThere) {
    ASSERT_NE(view.menus().menu(carte.Trier), nullptr);
    EXPECT_EQ(view.menus().menu(carte.Trier)->actions().front(), &shown(carte.Nom));
    EXPECT_EQ(view.menus().menu(carte.Liste)->actions()[1], &shown(carte.Trier));
    EXPECT_EQ(view.menus().menu(carte.Lire), nullptr);
}

TEST_F(MenuEntries, OneThatCantBeReachedDoesNothing) {
    int clicks = 0;
    carte.Lire.on_click = [&] { ++clicks; };
    carte.Lire.enabled = false;
    settle();
    shown(carte.Lire).trigger();
    EXPECT_EQ(clicks, 0);
}

TEST_F(MenuEntries, WordsReadOnTheirMenu) {
    carte.show();
    settle();
    QMenu& menu = *view.menus().menu(carte.Liste);
    menu.popup({0, 0});
    EXPECT_GE(contrast_in(seen(menu)), readable);
    menu.close();
}

} // namespace sonarelle
