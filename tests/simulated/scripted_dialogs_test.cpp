#include "platform/simulated/scripted_dialogs.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/failure.h"
#include "platform/scheduler.h"
#include "platform/simulated/virtual_time.h"
#include "platform/timer.h"
#include "platform/window.h"

namespace sonarelle {

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

const MessageBox overwrite{"Attention le fichier : a.dfm existe\nContinuer ?", "Sonarelle", Buttons::yes_no, Icon::stop,
                           2};
const FileDialog open_list{"Ouvrir un fichier liste", "C:\\Sonarelle", "*.dfm", "fichier (*.dfm)|*.dfm"};

class Script : public testing::Test {
protected:
    Scheduler scheduler;
    VirtualTime time{scheduler};
    ScriptedDialogs dialogs{time};
};

using ScriptedBox = Script;
using ScriptedDialog = Script;
using ScriptComplaint = Script;
using ScriptedTime = Script;
using ScriptedWindow = Script;
using DefaultAnswers = Script;

TEST_F(ScriptedBox, GivesTheAnswerOfTheScript) {
    dialogs.expect_box("existe", Answer::yes);
    dialogs.expect_box("Sonarelle", Answer::no);
    EXPECT_EQ(dialogs.MsgBox(overwrite), Answer::yes);
    EXPECT_EQ(dialogs.MsgBox(overwrite), Answer::no);
    EXPECT_THAT(dialogs.complaints(), IsEmpty());
}

TEST_F(ScriptedBox, IsRememberedWithItsAnswer) {
    dialogs.expect_box(Answer::no);
    dialogs.MsgBox(overwrite);
    ASSERT_EQ(dialogs.asked().size(), 1U);
    const Question& question = dialogs.last();
    EXPECT_EQ(question.kind, QuestionKind::box);
    EXPECT_EQ(question.title, "Sonarelle");
    EXPECT_EQ(question.text, overwrite.text);
    EXPECT_EQ(question.buttons, Buttons::yes_no);
    EXPECT_EQ(question.icon, Icon::stop);
    EXPECT_EQ(question.default_button, 2);
    EXPECT_EQ(question.button, Answer::no);
}

TEST_F(ScriptedBox, HasNoOtherButtonsThanItsOwn) {
    dialogs.expect_box(Answer::cancel);
    EXPECT_THROW(dialogs.MsgBox(overwrite), UnexpectedQuestion);
    EXPECT_THAT(dialogs.complaints(), ElementsAre(HasSubstr("no button \"annuler\"")));
}

TEST_F(ScriptedBox, MayBeCancelledWhereItHasAButtonForIt) {
    dialogs.expect_cancel();
    dialogs.expect_cancel();
    EXPECT_EQ(dialogs.MsgBox({"", "", Buttons::yes_no_cancel, Icon::none, 1}), Answer::cancel);
    EXPECT_EQ(dialogs.MsgBox({"", "", Buttons::ok, Icon::none, 1}), Answer::ok);
}

TEST_F(ScriptedDialog, AnInputBoxGivesTheEnteredText) {
    dialogs.expect_input("Nouveau");
    EXPECT_EQ(dialogs.InputBox({"Entrez le nom", "Dossier", "Nouveau_dossier"}), "Nouveau");
    EXPECT_EQ(dialogs.last().text, "Entrez le nom");
    EXPECT_EQ(dialogs.last().preset, "Nouveau_dossier");
}

TEST_F(ScriptedDialog, ACancelledInputBoxGivesNothing) {
    dialogs.expect_cancel();
    EXPECT_EQ(dialogs.InputBox({"Entrez le nom", "Dossier", "Nouveau_dossier"}), std::nullopt);
    EXPECT_TRUE(dialogs.last().cancelled);
}

TEST_F(ScriptedDialog, AFileDialogGivesTheChosenFile) {
    dialogs.expect_open("C:\\a.dfm");
    dialogs.expect_save("C:\\b.dfm");
    EXPECT_EQ(dialogs.open_file(open_list).file_name, "C:\\a.dfm");
    EXPECT_EQ(dialogs.save_file(open_list).file_name, "C:\\b.dfm");
    EXPECT_EQ(dialogs.asked()[0].filter, "fichier (*.dfm)|*.dfm");
    EXPECT_EQ(dialogs.asked()[0].folder, "C:\\Sonarelle");
}

TEST_F(ScriptedDialog, ACancelledFileDialogStillHoldsItsName) {
    dialogs.expect_cancel();
    const ChosenFile chosen = dialogs.open_file(open_list);
    EXPECT_TRUE(chosen.cancelled);
    EXPECT_EQ(chosen.file_name, "*.dfm");
}

TEST_F(ScriptedDialog, ColoursAndFontsAreChosen) {
    dialogs.expect_colour(255);
    dialogs.expect_font({"Sans", 12, true, false});
    EXPECT_EQ(dialogs.choose_colour(0), 255);
    EXPECT_EQ(dialogs.choose_font({})->family, "Sans");
}

TEST_F(ScriptedDialog, ColoursAndFontsAreCancelled) {
    dialogs.expect_cancel();
    dialogs.expect_cancel();
    EXPECT_EQ(dialogs.choose_colour(0), std::nullopt);
    EXPECT_FALSE(dialogs.choose_font({}).has_value());
}

TEST_F(ScriptedDialog, WordsAnswerAnyQuestion) {
    for (const char* words : {"oui", "NON", "Jazz", "C:\\a.dfm"})
        dialogs.expect_words(words);
    EXPECT_EQ(dialogs.MsgBox(overwrite), Answer::yes);
    EXPECT_EQ(dialogs.MsgBox(overwrite), Answer::no);
    EXPECT_EQ(dialogs.InputBox({}), "Jazz");
    EXPECT_EQ(dialogs.open_file(open_list).file_name, "C:\\a.dfm");
}

TEST_F(ScriptComplaint, AQuestionBeyondTheScriptIsNoFailureOfTheMachine) {
    bool trapped = false;
    try {
        dialogs.MsgBox(overwrite);
    } catch (const Failure&) {
        trapped = true;
    } catch (const UnexpectedQuestion& question) {
        EXPECT_THAT(question.what(), HasSubstr("Attention le fichier"));
    }
    EXPECT_FALSE(trapped);
}

TEST_F(ScriptComplaint, IsRememberedWhenATrapSwallowsIt) {
    try {
        dialogs.MsgBox(overwrite);
    } catch (...) { // NOLINT: a trap of the station that swallows everything
    }
    EXPECT_THAT(dialogs.complaints(), ElementsAre(HasSubstr("Attention le fichier")));
}

TEST_F(ScriptComplaint, AnotherQuestionThanExpectedSaysBoth) {
    dialogs.expect_input("Jazz");
    EXPECT_THROW(dialogs.MsgBox(overwrite), UnexpectedQuestion);
    EXPECT_THAT(dialogs.complaints(), ElementsAre(HasSubstr("the script has InputBox"), "never asked: InputBox"));
}

TEST_F(ScriptComplaint, ATextThatIsNotInTheBoxIsAnotherQuestion) {
    dialogs.expect_box("supprimer", Answer::yes);
    EXPECT_THROW(dialogs.MsgBox(overwrite), UnexpectedQuestion);
}

TEST_F(ScriptComplaint, WhatNobodyAskedIsReported) {
    dialogs.expect_box("existe", Answer::yes);
    dialogs.expect_open("C:\\a.dfm");
    EXPECT_THAT(dialogs.complaints(), ElementsAre("never asked: MsgBox \"existe\"", "never asked: open_file"));
}

TEST_F(ScriptComplaint, ForgettingEndsIt) {
    dialogs.expect_box(Answer::yes);
    EXPECT_THROW((void)dialogs.InputBox({}), UnexpectedQuestion);
    dialogs.forget();
    EXPECT_THAT(dialogs.complaints(), IsEmpty());
    EXPECT_THAT(dialogs.asked(), IsEmpty());
}

TEST_F(ScriptComplaint, WithoutAQuestionThereIsNoLastOne) {
    EXPECT_THROW((void)dialogs.last(), std::out_of_range);
}

TEST_F(ScriptedTime, AnAnswerMayTakeTimeWhileTimersRun) {
    Timer timer{"Timer1", 1, scheduler};
    int ticks = 0;
    timer.on_tick = [&] { ++ticks; };
    timer.set_interval(1000);
    timer.enable();
    dialogs.expect_box(Answer::yes, milliseconds(3500));
    EXPECT_EQ(dialogs.MsgBox(overwrite), Answer::yes);
    EXPECT_EQ(ticks, 3);
    EXPECT_EQ(time.now(), milliseconds(3500));
    EXPECT_EQ(dialogs.last().asked_at, Frames{});
}

TEST_F(ScriptedTime, ABoxThatComesMeanwhileTakesTheNextAnswer) {
    Timer timer{"Timer1", 1, scheduler};
    Answer inner = Answer::ok;
    timer.on_tick = [&] {
        timer.disable();
        inner = dialogs.MsgBox(overwrite);
    };
    timer.set_interval(1000);
    timer.enable();
    dialogs.expect_box(Answer::yes, seconds(2));
    dialogs.expect_box(Answer::no);
    EXPECT_EQ(dialogs.MsgBox(overwrite), Answer::yes);
    EXPECT_EQ(inner, Answer::no);
}

TEST_F(ScriptedTime, TheAnsweredQuestionIsTold) {
    std::vector<std::string> told;
    dialogs.on_answered = [&](const Question& question) { told.push_back(question.title); };
    dialogs.expect_box(Answer::yes, seconds(2));
    dialogs.MsgBox(overwrite);
    EXPECT_THAT(told, ElementsAre("Sonarelle"));
}

TEST_F(ScriptedWindow, IsShownUntilTheHandsHaveDoneTheirWork) {
    Window window{"err_form"};
    bool seen = false;
    dialogs.expect_window(
        "err_form", [&] { seen = window.visible; }, seconds(2));
    dialogs.show_modal(window);
    EXPECT_TRUE(seen);
    EXPECT_FALSE(window.visible);
    EXPECT_EQ(time.now(), seconds(2));
}

TEST_F(ScriptedWindow, UnexpectedItIsAComplaint) {
    Window window{"err_form"};
    EXPECT_THROW(dialogs.show_modal(window), UnexpectedQuestion);
    EXPECT_FALSE(window.visible);
}

TEST_F(DefaultAnswers, ABoxGetsItsDefaultButton) {
    dialogs.default_answers();
    EXPECT_EQ(dialogs.MsgBox(overwrite), Answer::no);
    EXPECT_EQ(dialogs.MsgBox({"", "", Buttons::yes_no, Icon::none, 1}), Answer::yes);
    EXPECT_EQ(dialogs.MsgBox({"", "", Buttons::yes_no_cancel, Icon::none, 3}), Answer::cancel);
    EXPECT_EQ(dialogs.MsgBox({"", "", Buttons::ok_cancel, Icon::none, 2}), Answer::cancel);
    EXPECT_EQ(dialogs.MsgBox({"", "", Buttons::ok, Icon::none, 2}), Answer::ok);
}

TEST_F(DefaultAnswers, AllOthersAreCancelled) {
    Window window{"err_form"};
    dialogs.default_answers();
    EXPECT_EQ(dialogs.InputBox({"", "", "Nouveau"}), std::nullopt);
    EXPECT_TRUE(dialogs.open_file(open_list).cancelled);
    EXPECT_TRUE(dialogs.save_file(open_list).cancelled);
    EXPECT_EQ(dialogs.choose_colour(7), std::nullopt);
    EXPECT_FALSE(dialogs.choose_font({}).has_value());
    dialogs.show_modal(window);
    EXPECT_FALSE(window.visible);
    EXPECT_THAT(dialogs.complaints(), IsEmpty());
}

TEST_F(DefaultAnswers, TheScriptComesFirst) {
    dialogs.default_answers();
    dialogs.expect_words("oui");
    EXPECT_EQ(dialogs.MsgBox(overwrite), Answer::yes);
    EXPECT_EQ(dialogs.MsgBox(overwrite), Answer::no);
}

TEST_F(DefaultAnswers, WordsThatABoxHasNoButtonForGiveItsDefault) {
    dialogs.default_answers();
    dialogs.expect_words("peut-être");
    EXPECT_EQ(dialogs.MsgBox(overwrite), Answer::no);
}

} // namespace

} // namespace sonarelle
