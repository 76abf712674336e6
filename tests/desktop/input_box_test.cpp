#include <QInputDialog>
#include <QTimer>

#include "desktop/desktop_dialogs.h"
#include "desktop/desktop_fixture.h"

namespace sonarelle {

namespace {

using InputBoxOnScreen = DesktopFixture;

} // namespace

TEST_F(InputBoxOnScreen, IsWideEnoughForAPath) {
    DesktopDialogs dialogs{{}, [](Window&) { return nullptr; }};
    int width = 0;
    QTimer::singleShot(0, [&] {
        auto* box = qobject_cast<QInputDialog*>(QApplication::activeModalWidget());
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
        auto* box = qobject_cast<QInputDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(box, nullptr);
        preset = box->textValue();
        box->setTextValue("Radio été");
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
        auto* box = qobject_cast<QInputDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(box, nullptr);
        prompt = box->labelText();
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
        if (auto* box = qobject_cast<QInputDialog*>(QApplication::activeModalWidget()))
            box->reject();
    });
    EXPECT_EQ(dialogs.InputBox({"Nom de votre Radio", "Saisie", "Antenne_FM"}), std::nullopt);
}

} // namespace sonarelle
