// The station's questions on the screen: their words, their buttons, and what each answer is.
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include "desktop/desktop_dialogs.h"
#include "desktop/desktop_fixture.h"

namespace sonarelle {

namespace {

using Standard = QMessageBox::StandardButton;

class MessageBoxOnScreen : public DesktopFixture {
protected:
    /// What the station hears when the operator does this in its box.
    Answer answer_to(const MessageBox& asked, std::function<void(QMessageBox&)> act) {
        QTimer::singleShot(0, [this, act = std::move(act)] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            came = box != nullptr;
            if (came)
                act(*box);
        });
        return dialogs.MsgBox(asked);
    }
    Answer answer_to_press(Buttons buttons, Standard pressed) {
        return answer_to({.text = "Continuer ?", .title = "Sonarelle", .buttons = buttons},
                         [pressed](QMessageBox& box) { box.button(pressed)->click(); });
    }
    Answer answer_to_key(Buttons buttons, int default_button, Qt::Key key) {
        return answer_to({.text = "Continuer ?",
                          .title = "Sonarelle",
                          .buttons = buttons,
                          .icon = Icon::question,
                          .default_button = default_button},
                         [key](QMessageBox& box) { QTest::keyClick(&box, key); });
    }

    DesktopDialogs dialogs{{}, [](Window&) { return nullptr; }};
    bool came = false;
};

} // namespace

TEST_F(MessageBoxOnScreen, HasTheWordsOfTheStationAsTheyAre) {
    QString text;
    QString title;
    answer_to({.text = "<b>a</b> & b", .title = "Attention"}, [&](QMessageBox& box) {
        text = box.text();
        title = box.windowTitle();
        EXPECT_EQ(box.textFormat(), Qt::PlainText);
        box.accept();
    });
    ASSERT_TRUE(came);
    EXPECT_EQ(text, "<b>a</b> & b");
    EXPECT_EQ(title, "Attention");
}

TEST_F(MessageBoxOnScreen, HasItsIcon) {
    for (const auto& [icon, shown] : {std::pair{Icon::stop, QMessageBox::Critical},
                                      {Icon::question, QMessageBox::Question},
                                      {Icon::warning, QMessageBox::Warning},
                                      {Icon::information, QMessageBox::Information},
                                      {Icon::none, QMessageBox::NoIcon}}) {
        QMessageBox::Icon seen = QMessageBox::NoIcon;
        answer_to({.text = "a", .title = "b", .icon = icon}, [&](QMessageBox& box) {
            seen = box.icon();
            box.accept();
        });
        EXPECT_EQ(seen, shown);
    }
}

TEST_F(MessageBoxOnScreen, EachButtonIsItsAnswer) {
    EXPECT_EQ(answer_to_press(Buttons::ok, QMessageBox::Ok), Answer::ok);
    EXPECT_EQ(answer_to_press(Buttons::ok_cancel, QMessageBox::Cancel), Answer::cancel);
    EXPECT_EQ(answer_to_press(Buttons::yes_no, QMessageBox::Yes), Answer::yes);
    EXPECT_EQ(answer_to_press(Buttons::yes_no, QMessageBox::No), Answer::no);
    EXPECT_EQ(answer_to_press(Buttons::yes_no_cancel, QMessageBox::No), Answer::no);
    EXPECT_EQ(answer_to_press(Buttons::yes_no_cancel, QMessageBox::Cancel), Answer::cancel);
}

TEST_F(MessageBoxOnScreen, ReturnIsTheButtonThatTheStationProposes) {
    EXPECT_EQ(answer_to_key(Buttons::yes_no, 1, Qt::Key_Return), Answer::yes);
    EXPECT_EQ(answer_to_key(Buttons::yes_no, 2, Qt::Key_Return), Answer::no);
    EXPECT_EQ(answer_to_key(Buttons::yes_no_cancel, 3, Qt::Key_Return), Answer::cancel);
}

TEST_F(MessageBoxOnScreen, EscapeLeavesThingsAsTheyAre) {
    EXPECT_EQ(answer_to_key(Buttons::ok, 1, Qt::Key_Escape), Answer::ok);
    EXPECT_EQ(answer_to_key(Buttons::ok_cancel, 1, Qt::Key_Escape), Answer::cancel);
    EXPECT_EQ(answer_to_key(Buttons::yes_no, 1, Qt::Key_Escape), Answer::no);
    EXPECT_EQ(answer_to_key(Buttons::yes_no_cancel, 1, Qt::Key_Escape), Answer::cancel);
}

} // namespace sonarelle
