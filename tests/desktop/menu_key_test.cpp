// The menus without a mouse.
#include <QTest>

#include "desktop/desktop_fixture.h"
#include "desktop/window_view.h"

namespace sonarelle {

namespace {

struct Feuille : Window {
    Feuille()
        : Window{"feuille"} {
        menu_bar = {&Fichier, &Aide};
        Fichier.hang({{&Ouvrir}});
        Aide.hang({{&Info}});
    }

    MenuItem Fichier{*this, "Fichier", "Fichier"};
    MenuItem Aide{*this, "Aide", "Aide"};
    MenuItem Ouvrir{*this, "Ouvrir", "Ouvrir"};
    MenuItem Info{*this, "Info", "Info"};
};

class Keyboard : public DesktopFixture {
protected:
    void show() {
        feuille.show();
        settle();
    }
    [[nodiscard]] QMenu& menu_of(MenuItem& item) { return *view.menus().menu(item); }

    Feuille feuille;
    WindowView view{feuille, services, {300, 200}};
};

} // namespace

TEST_F(Keyboard, F10OpensTheFirstMenu) {
    show();
    QTest::keyClick(&view, Qt::Key_F10);
    EXPECT_TRUE(menu_of(feuille.Fichier).isVisible());
    menu_of(feuille.Fichier).hide();
}

TEST_F(Keyboard, F10PassesAHiddenMenuOver) {
    show();
    feuille.Fichier.visible = false;
    settle();
    QTest::keyClick(&view, Qt::Key_F10);
    EXPECT_TRUE(menu_of(feuille.Aide).isVisible());
    menu_of(feuille.Aide).hide();
}

TEST_F(Keyboard, F10OpensNothingWhereAllMenusAreHidden) {
    show();
    feuille.Fichier.visible = false;
    feuille.Aide.visible = false;
    settle();
    QTest::keyClick(&view, Qt::Key_F10);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
}

TEST_F(Keyboard, LettersOfAnOpenMenuAreNoCommands) {
    std::u32string seen;
    int chosen = 0;
    feuille.on_key_press = [&](char32_t c) { seen += c; };
    feuille.Ouvrir.on_click = [&] { ++chosen; };
    show();
    QApplication::setActiveWindow(&view);
    feuille.popup(feuille.Fichier);
    settle();
    QTest::sendKeyEvent(QTest::Click, view.windowHandle(), Qt::Key_O, "o", Qt::NoModifier);
    settle();
    EXPECT_EQ(seen, U"");
    EXPECT_EQ(chosen, 1);
}

TEST_F(Keyboard, KeyThatOpensAMenuChoosesNothingInIt) {
    int chosen = 0;
    feuille.on_key_press = [&](char32_t) { feuille.popup(feuille.Fichier); };
    feuille.Ouvrir.on_click = [&] { ++chosen; };
    show();
    QApplication::setActiveWindow(&view);
    QTest::sendKeyEvent(QTest::Click, view.windowHandle(), Qt::Key_O, "o", Qt::NoModifier);
    settle();
    EXPECT_EQ(chosen, 0);
    EXPECT_TRUE(menu_of(feuille.Fichier).isVisible());
    menu_of(feuille.Fichier).hide();
}

} // namespace sonarelle
