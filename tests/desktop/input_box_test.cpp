#include <QLineEdit>
#include <QTimer>

#include "desktop/desktop_dialogs.h"
#include "desktop/desktop_fixture.h"
#include "desktop/input_box.h"

namespace sonarelle {

namespace {

using InputBoxOnScreen = DesktopFixture;

} // namespace

TEST_F(InputBoxOnScreen, IsWideEnoughForAPath) {
    DesktopDialogs dialogs{{}, [](Window&) { return nullptr; }};
    int width = 0;
    QTimer::singleShot(0, [&] {
        auto* box = dynamic_cast<InputBoxView*>(QApplication::activeModalWidget());
        ASSERT_NE(box, nullptr);
        width = box->width();
        box->reject();
    });
    static_cast<void>(dialogs.InputBox({"Chemin", "Définir chemin des jingles", "C:\\Jingles"}));
    EXPECT_GE(width, 500);
}

TEST_F(InputBoxOnScreen, BeginsWithItsPresetAndGivesWhatWasTyped) {
    DesktopDialogs dialogs{{}, [](Window&) { return nullptr; }};
    QString preset;
    QTimer::singleShot(0, [&] {
        auto* box = dynamic_cast<InputBoxView*>(QApplication::activeModalWidget());
        ASSERT_NE(box, nullptr);
        preset = box->field().text();
        box->field().setText("Radio été");
        box->accept();
    });
    EXPECT_EQ(dialogs.InputBox({"Nom de votre Radio", "Saisie", "Antenne_FM"}), "Radio été");
    EXPECT_EQ(preset, "Antenne_FM");
}

TEST_F(InputBoxOnScreen, AsksInTheStationsWords) {
    DesktopDialogs dialogs{{}, [](Window&) { return nullptr; }};
    QString prompt;
    QString title;
    QTimer::singleShot(0, [&] {
        auto* box = dynamic_cast<InputBoxView*>(QApplication::activeModalWidget());
        ASSERT_NE(box, nullptr);
        prompt = box->text();
        title = box->windowTitle();
        box->reject();
    });
    static_cast<void>(dialogs.InputBox({"Nom de votre Radio", "Saisie", "Antenne_FM"}));
    EXPECT_EQ(prompt, "Nom de votre Radio");
    EXPECT_EQ(title, "Saisie");
}

TEST_F(InputBoxOnScreen, GivesNothingByCancel) {
    DesktopDialogs dialogs{{}, [](Window&) { return nullptr; }};
    QTimer::singleShot(0, [] {
        if (auto* box = dynamic_cast<InputBoxView*>(QApplication::activeModalWidget()))
            box->reject();
    });
    EXPECT_EQ(dialogs.InputBox({"Nom de votre Radio", "Saisie", "Antenne_FM"}), std::nullopt);
}

TEST_F(InputBoxOnScreen, HasAllItsWordsSelectedUnderTheKeyboard) {
    DesktopDialogs dialogs{{}, [](Window&) { return nullptr; }};
    QTimer::singleShot(0, [&] {
        auto* box = dynamic_cast<InputBoxView*>(QApplication::activeModalWidget());
        ASSERT_NE(box, nullptr);
        EXPECT_EQ(box->focusWidget(), &box->field());
        EXPECT_EQ(box->field().selectedText(), "Antenne_FM");
        QTest::keyClicks(&box->field(), "Nuit");
        QTest::keyClick(&box->field(), Qt::Key_Return);
    });
    EXPECT_EQ(dialogs.InputBox({"Nom de votre Radio", "Saisie", "Antenne_FM"}), "Nuit");
}

TEST_F(InputBoxOnScreen, GivesNothingByEscape) {
    DesktopDialogs dialogs{{}, [](Window&) { return nullptr; }};
    QTimer::singleShot(0, [&] {
        if (auto* box = dynamic_cast<InputBoxView*>(QApplication::activeModalWidget()))
            QTest::keyClick(&box->field(), Qt::Key_Escape);
    });
    EXPECT_EQ(dialogs.InputBox({"Nom de votre Radio", "Saisie", "Antenne_FM"}), std::nullopt);
}

namespace {

/// A field whose words the station takes or refuses.
class AskedAgain : public DesktopFixture {
protected:
    void type(const QString& words) {
        QTimer::singleShot(0, [this, words] {
            auto* box = dynamic_cast<InputBoxView*>(QApplication::activeModalWidget());
            ASSERT_NE(box, nullptr);
            first = box->field().text();
            box->field().setText(words);
            box->accept();
        });
        static_cast<void>(dialogs.InputBox({"Début", "Lecture a :", "0.10"}));
    }
    void tell(Icon icon) {
        QTimer::singleShot(0, [] {
            if (auto* box = dynamic_cast<BoxView*>(QApplication::activeModalWidget()))
                box->accept();
        });
        dialogs.MsgBox({.text = "Type incompatible", .title = "Sonarelle", .icon = icon});
    }

    DesktopDialogs dialogs{{}, [](Window&) { return nullptr; }};
    QString first;
};

} // namespace

TEST_F(AskedAgain, HasTheWordsThatWereRefused) {
    type("trois");
    tell(Icon::stop);
    type("3");
    EXPECT_EQ(first, "trois");
    tell(Icon::information);
    type("4");
    EXPECT_EQ(first, "0.10");
}

TEST_F(AskedAgain, BeginsAnewWhereTheTroubleWasAnother) {
    type("3");
    settle();
    tell(Icon::stop);
    type("4");
    EXPECT_EQ(first, "0.10");
}

} // namespace sonarelle
