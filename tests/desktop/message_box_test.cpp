// The station's questions on the screen: their words, their buttons, and what each answer is.
#include "desktop/message_box.h"

#include <QClipboard>
#include <QLabel>
#include <QTimer>

#include "desktop/desktop_dialogs.h"
#include "desktop/desktop_fixture.h"

namespace sonarelle {

namespace {

constexpr std::array all_answers{Answer::ok, Answer::cancel, Answer::yes, Answer::no};

class MessageBoxOnScreen : public DesktopFixture {
protected:
    /// What the station hears when the operator does this in its box.
    Answer answer_to(const MessageBox& asked, std::function<void(MessageBoxView&)> act) {
        QTimer::singleShot(0, [this, act = std::move(act)] {
            auto* box = dynamic_cast<MessageBoxView*>(QApplication::activeModalWidget());
            came = box != nullptr;
            if (came)
                act(*box);
        });
        return dialogs.MsgBox(asked);
    }
    Answer answer_to_press(Buttons buttons, Answer pressed) {
        return answer_to({.text = "Continuer ?", .title = "Sonarelle", .buttons = buttons},
                         [pressed](MessageBoxView& box) { box.button(pressed)->click(); });
    }
    Answer answer_to_key(Buttons buttons, int default_button, Qt::Key key) {
        return answer_to({.text = "Continuer ?",
                          .title = "Sonarelle",
                          .buttons = buttons,
                          .icon = Icon::question,
                          .default_button = default_button},
                         [key](MessageBoxView& box) { QTest::keyClick(&box, key); });
    }
    /// The buttons of a question from left to right, as the operator reads them.
    QStringList buttons_of(const std::string& text, Buttons buttons) {
        QStringList words;
        answer_to({.text = text, .title = "Sonarelle", .buttons = buttons}, [&](MessageBoxView& box) {
            std::vector<StudioButton*> row;
            for (const Answer answer : all_answers)
                if (StudioButton* button = box.button(answer))
                    row.push_back(button);
            std::ranges::sort(row, {}, &QWidget::x);
            for (const StudioButton* button : row)
                words += button->text().remove('&');
            box.reject();
        });
        return words;
    }
    Accent accent_of_yes(const std::string& text) {
        Accent accent{};
        answer_to({.text = text, .title = "Sonarelle", .buttons = Buttons::yes_no, .default_button = 2},
                  [&](MessageBoxView& box) {
                      accent = box.button(Answer::yes)->accent();
                      box.reject();
                  });
        return accent;
    }

    QString on_air;
    DesktopDialogs dialogs{{}, [](Window&) { return nullptr; }, [this] { return on_air; }};
    bool came = false;
};

const std::string question_at_the_end = "Confirmer la fermeture de Sonarelle";

} // namespace

TEST_F(MessageBoxOnScreen, HasTheWordsOfTheStationAsTheyAre) {
    QString text;
    QString title;
    QString heading;
    answer_to({.text = "<b>a</b> & b", .title = "Attention"}, [&](MessageBoxView& box) {
        text = box.text();
        title = box.windowTitle();
        for (const auto* label : box.findChildren<QLabel*>())
            heading += label->text();
        box.accept();
    });
    ASSERT_TRUE(came);
    EXPECT_EQ(text, "<b>a</b> & b");
    EXPECT_EQ(heading, "<b>a</b> & b");
    EXPECT_EQ(title, "Attention");
}

TEST_F(MessageBoxOnScreen, HasItsSign) {
    for (const auto& [icon, shown, is_trouble] :
         {std::tuple{Icon::stop, Sign::warn, true}, std::tuple{Icon::question, Sign::ask, false},
          std::tuple{Icon::warning, Sign::warn, true}, std::tuple{Icon::information, Sign::inform, false},
          std::tuple{Icon::none, Sign::none, false}}) {
        BoxView::Look seen;
        answer_to({.text = "a", .title = "b", .icon = icon}, [&](MessageBoxView& box) {
            seen = box.look();
            box.accept();
        });
        EXPECT_EQ(seen.sign, shown);
        EXPECT_EQ(seen.is_trouble, is_trouble);
    }
}

TEST_F(MessageBoxOnScreen, EachButtonIsItsAnswer) {
    EXPECT_EQ(answer_to_press(Buttons::ok, Answer::ok), Answer::ok);
    EXPECT_EQ(answer_to_press(Buttons::ok_cancel, Answer::cancel), Answer::cancel);
    EXPECT_EQ(answer_to_press(Buttons::yes_no, Answer::yes), Answer::yes);
    EXPECT_EQ(answer_to_press(Buttons::yes_no, Answer::no), Answer::no);
    EXPECT_EQ(answer_to_press(Buttons::yes_no_cancel, Answer::no), Answer::no);
    EXPECT_EQ(answer_to_press(Buttons::yes_no_cancel, Answer::cancel), Answer::cancel);
}

TEST_F(MessageBoxOnScreen, ReturnIsTheButtonThatTheStationProposes) {
    EXPECT_EQ(answer_to_key(Buttons::yes_no, 1, Qt::Key_Return), Answer::yes);
    EXPECT_EQ(answer_to_key(Buttons::yes_no, 2, Qt::Key_Return), Answer::no);
    EXPECT_EQ(answer_to_key(Buttons::yes_no, 2, Qt::Key_Enter), Answer::no);
    EXPECT_EQ(answer_to_key(Buttons::yes_no_cancel, 3, Qt::Key_Return), Answer::cancel);
}

TEST_F(MessageBoxOnScreen, ReturnIsTheButtonToWhichTheOperatorHasGone) {
    const Answer answer =
        answer_to({.text = "Continuer ?", .title = "a", .buttons = Buttons::yes_no, .default_button = 2},
                  [](MessageBoxView& box) {
                      EXPECT_EQ(box.focusWidget(), box.button(Answer::no));
                      QTest::keyClick(&box, Qt::Key_Tab);
                      EXPECT_EQ(box.focusWidget(), box.button(Answer::yes));
                      QTest::keyClick(&box, Qt::Key_Return);
                  });
    EXPECT_EQ(answer, Answer::yes);
}

TEST_F(MessageBoxOnScreen, EscapeLeavesThingsAsTheyAre) {
    EXPECT_EQ(answer_to_key(Buttons::ok, 1, Qt::Key_Escape), Answer::ok);
    EXPECT_EQ(answer_to_key(Buttons::ok_cancel, 1, Qt::Key_Escape), Answer::cancel);
    EXPECT_EQ(answer_to_key(Buttons::yes_no, 1, Qt::Key_Escape), Answer::no);
    EXPECT_EQ(answer_to_key(Buttons::yes_no_cancel, 1, Qt::Key_Escape), Answer::cancel);
}

// The key that was held before the box came is none of its answers.
TEST_F(MessageBoxOnScreen, StaysUnderAKeyThatIsHeld) {
    for (const Qt::Key held : {Qt::Key_Return, Qt::Key_Escape})
        answer_to({.text = "Continuer ?", .title = "a", .buttons = Buttons::yes_no}, [held](MessageBoxView& box) {
            QKeyEvent event{QEvent::KeyPress, held, Qt::NoModifier, {}, true};
            QCoreApplication::sendEvent(&box, &event);
            EXPECT_TRUE(box.isVisible());
            box.reject();
        });
    EXPECT_TRUE(came);
}

TEST_F(MessageBoxOnScreen, AnswersByTheLetterOfAButton) {
    const Answer answer =
        answer_to({.text = "Continuer ?", .title = "a", .buttons = Buttons::yes_no, .default_button = 2},
                  [](MessageBoxView& box) {
                      QApplication::setActiveWindow(&box);
                      QTest::keyClick(&box, Qt::Key_O, Qt::AltModifier);
                  });
    EXPECT_EQ(answer, Answer::yes);
}

TEST_F(MessageBoxOnScreen, SaysWhatEachAnswerDoes) {
    EXPECT_EQ(buttons_of("Continuer ?", Buttons::yes_no), (QStringList{"Oui", "Non"}));
    EXPECT_EQ(buttons_of("Continuer ?", Buttons::yes_no_cancel), (QStringList{"Oui", "Non", "Annuler"}));
    EXPECT_EQ(buttons_of("Ok", Buttons::ok_cancel), (QStringList{"OK", "Annuler"}));
    EXPECT_EQ(buttons_of(question_at_the_end, Buttons::yes_no), (QStringList{"Oui, quitter", "Non, rester"}));
    EXPECT_EQ(buttons_of("Attention le fichier : C:\\a.dfm existe \n va ètre écrasé !\nContinuer ?", Buttons::yes_no),
              (QStringList{"Oui, écraser", "Non, garder le fichier"}));
    EXPECT_EQ(buttons_of("a est à l'antenne\nCouper le lecteur 1 pour y ouvrir un autre fichier ?", Buttons::yes_no),
              (QStringList{"Oui, couper", "Non, laisser jouer"}));
}

TEST_F(MessageBoxOnScreen, YesThatLosesSomethingIsRed) {
    EXPECT_EQ(accent_of_yes("Attention le fichier : a existe \n va ètre écrasé !"), Accent::trouble);
    EXPECT_EQ(accent_of_yes(question_at_the_end), Accent::none);
    EXPECT_EQ(accent_of_yes("Continuer ?"), Accent::none);
}

TEST_F(MessageBoxOnScreen, CanBeCopied) {
    answer_to({.text = "Ligne 1\nC:\\a.mp3", .title = "Attention"}, [](MessageBoxView& box) {
        QTest::keyClick(&box, Qt::Key_C, Qt::ControlModifier);
        box.accept();
    });
    EXPECT_EQ(QApplication::clipboard()->text(), "Attention\nLigne 1\nC:\\a.mp3");
}

TEST_F(MessageBoxOnScreen, QuestionAtTheEndFollowsWhatIsOnTheAir) {
    on_air = "Carnet de voyage";
    QStringList lines;
    QString stays;
    answer_to({.text = question_at_the_end, .title = "Sonarelle", .buttons = Buttons::yes_no, .default_button = 2},
              [&](MessageBoxView& box) {
                  const auto* air = box.findChild<QLabel*>("air");
                  ASSERT_NE(air, nullptr);
                  lines += air->text();
                  stays = box.button(Answer::no)->text().remove('&');
                  on_air = "Nuit au phare";
                  EXPECT_TRUE(becomes([&] { return air->text() != lines.front(); }));
                  lines += air->text();
                  box.reject();
              });
    EXPECT_EQ(lines, (QStringList{"À l'antenne : Carnet de voyage", "À l'antenne : Nuit au phare"}));
    EXPECT_EQ(stays, "Non, rester à l'antenne");
}

TEST_F(MessageBoxOnScreen, OtherQuestionsSayNothingOfTheAir) {
    on_air = "Carnet de voyage";
    answer_to({.text = "Continuer ?", .title = "a", .buttons = Buttons::yes_no}, [](MessageBoxView& box) {
        EXPECT_EQ(box.findChild<QLabel*>("air"), nullptr);
        box.reject();
    });
    EXPECT_TRUE(came);
}

} // namespace sonarelle
