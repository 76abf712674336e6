#include <QTest>
#include <QVBoxLayout>

#include "desktop/desktop_fixture.h"
#include "desktop/dresser.h"
#include "desktop/qt_text.h"

namespace sonarelle {

namespace {

struct Feuille : Window {
    Feuille()
        : Window{"feuille"} {
        enreg.on_click = [this] { ++saved; };
        infos.on_click = [this] { ++asked; };
        on_key_press = [this](char32_t) { ++typed; };
    }

    Label enreg{*this, "enreg", "&Enreg.."};
    Button infos{*this, "infos", "&Infos système..."};
    int saved = 0;
    int asked = 0;
    int typed = 0;
};

class AccessKeys : public DesktopFixture {
protected:
    AccessKeys() {
        Dresser dresser{view};
        auto* column = new QVBoxLayout{&view.content()};
        column->addWidget(dresser.label(feuille.enreg));
        column->addWidget(dresser.button(feuille.infos));
        feuille.show();
        settle();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&view));
    }
    void press(Qt::Key key) {
        QTest::keyClick(view.windowHandle(), key, Qt::AltModifier);
        QTest::qWait(200); // a button that is called shows itself pressed for a moment
        settle();
    }

    Feuille feuille;
    WindowView view{feuille, services, {300, 200}};
};

} // namespace

TEST_F(AccessKeys, AltWithItsLetterPressesALabel) {
    press(Qt::Key_E);
    EXPECT_EQ(feuille.saved, 1);
}

TEST_F(AccessKeys, AltWithItsLetterPressesAButton) {
    press(Qt::Key_I);
    EXPECT_EQ(feuille.asked, 1);
}

TEST_F(AccessKeys, LetterOfAButtonIsUnderlined) {
    auto& button = *view.findChild<QWidget*>("infos");
    const QImage underlined = button.grab().toImage();
    feuille.infos.caption = "Infos système...";
    settle();
    EXPECT_NE(button.grab().toImage(), underlined);
}

TEST_F(AccessKeys, LetterOfALabelThatCantBeReachedDoesNothing) {
    feuille.enreg.enabled = false;
    settle();
    press(Qt::Key_E);
    EXPECT_EQ(feuille.saved, 0);
}

TEST_F(AccessKeys, OtherCaptionHasAnotherLetter) {
    feuille.enreg.caption = "&Sauver";
    settle();
    press(Qt::Key_S);
    EXPECT_EQ(feuille.saved, 1);
}

TEST_F(AccessKeys, AltWithALetterTypesNothing) {
    QKeyEvent event{QEvent::KeyPress, Qt::Key_P, Qt::AltModifier, "p"};
    QCoreApplication::sendEvent(view.windowHandle(), &event);
    EXPECT_EQ(feuille.typed, 0);
}

TEST_F(AccessKeys, DoubledMarkIsNone) {
    EXPECT_TRUE(access_keys("R&&B").isEmpty());
}

} // namespace sonarelle
