#include "platform/simulated/scripted_dialogs.h"

#include <algorithm>
#include <array>
#include <span>
#include <utility>

#include "platform/clock.h"
#include "platform/text.h"
#include "platform/window.h"

namespace sonarelle {

namespace {

constexpr std::array ok_alone{Answer::ok};
constexpr std::array ok_and_cancel{Answer::ok, Answer::cancel};
constexpr std::array yes_and_no{Answer::yes, Answer::no};
constexpr std::array yes_no_and_cancel{Answer::yes, Answer::no, Answer::cancel};

std::span<const Answer> answers_of(Buttons buttons) {
    switch (buttons) {
    case Buttons::ok_cancel:
        return ok_and_cancel;
    case Buttons::yes_no:
        return yes_and_no;
    case Buttons::yes_no_cancel:
        return yes_no_and_cancel;
    default:
        return ok_alone;
    }
}

std::string_view word_of(Answer answer) {
    constexpr std::array<std::string_view, 4> words{"ok", "annuler", "oui", "non"};
    return words[static_cast<std::size_t>(answer)];
}

Question question_of(QuestionKind kind, const std::string& title, const std::string& text) {
    Question question;
    question.kind = kind;
    question.title = title;
    question.text = text;
    return question;
}

std::string shown(const Question& question) {
    constexpr std::array<std::string_view, 7> kinds{"MsgBox", "InputBox", "open_file", "save_file",
                                                    "colour", "font",     "window"};
    return std::string{kinds[static_cast<std::size_t>(question.kind)]} + " [" + question.title + "] " + question.text;
}

/// Also hidden when the question was unexpected.
class ShownWindow {
public:
    explicit ShownWindow(Window& window)
        : window_{window} {
        window_.show();
    }
    ~ShownWindow() { window_.hide(); }
    ShownWindow(const ShownWindow&) = delete;
    ShownWindow& operator=(const ShownWindow&) = delete;

private:
    Window& window_;
};

void press(Question& question, Answer answer) {
    if (std::ranges::find(answers_of(question.buttons), answer) == answers_of(question.buttons).end())
        throw UnexpectedQuestion{"no button \"" + std::string{word_of(answer)} + "\" in " + shown(question)};
    question.button = answer;
}

void answer_by_default(Question& question) {
    const auto answers = answers_of(question.buttons);
    if (question.kind != QuestionKind::box)
        question.cancelled = true;
    else
        question.button = answers[static_cast<std::size_t>(
            std::clamp(question.default_button, 1, static_cast<int>(answers.size())) - 1)];
}

/// A box is closed by Cancel, or by OK where that is its only button; one of Yes and No alone can't be.
void cancel(Question& question) {
    if (question.kind == QuestionKind::box)
        press(question, question.buttons == Buttons::ok ? Answer::ok : Answer::cancel);
    else
        question.cancelled = true;
}

void answer_in_words(Question& question, const std::string& words) {
    question.entered = words;
    if (question.kind != QuestionKind::box)
        return;
    for (const Answer answer : answers_of(question.buttons))
        if (equal_ignoring_case(words, word_of(answer)))
            return press(question, answer);
    throw UnexpectedQuestion{"no button \"" + words + "\" in " + shown(question)};
}

} // namespace

Answer ScriptedDialogs::MsgBox(const MessageBox& box) {
    Question question = question_of(QuestionKind::box, box.title, box.text);
    question.buttons = box.buttons;
    question.icon = box.icon;
    question.default_button = box.default_button;
    return ask(std::move(question)).button;
}

std::optional<std::string> ScriptedDialogs::InputBox(const sonarelle::InputBox& box) {
    Question question = question_of(QuestionKind::input, box.title, box.prompt);
    question.preset = box.preset;
    Question answered = ask(std::move(question));
    return answered.cancelled ? std::nullopt : std::optional{std::move(answered.entered)};
}

ChosenFile ScriptedDialogs::open_file(const FileDialog& dialog) {
    return choose_file(QuestionKind::open_file, dialog);
}

ChosenFile ScriptedDialogs::save_file(const FileDialog& dialog) {
    return choose_file(QuestionKind::save_file, dialog);
}

ChosenFile ScriptedDialogs::choose_file(QuestionKind kind, const FileDialog& dialog) {
    Question question = question_of(kind, dialog.title, dialog.file_name);
    question.folder = dialog.folder;
    question.filter = dialog.filter;
    const Question answered = ask(std::move(question));
    return {answered.cancelled, answered.cancelled ? dialog.file_name : answered.entered};
}

std::optional<std::int32_t> ScriptedDialogs::choose_colour(std::int32_t preset) {
    const Question answered = ask(question_of(QuestionKind::colour, {}, std::to_string(preset)));
    return answered.cancelled ? std::nullopt : std::optional{answered.colour};
}

std::optional<Font> ScriptedDialogs::choose_font(const Font& preset) {
    return ask(question_of(QuestionKind::font, {}, preset.family)).font;
}

void ScriptedDialogs::show_modal(Window& window) {
    const Question question = question_of(QuestionKind::window, window.name(), window.caption);
    const ShownWindow shown_window{window};
    const Question answered = ask(question);
    if (answered.hands)
        answered.hands();
}

void ScriptedDialogs::expect_box(std::string_view part, Answer answer, Frames delay) {
    script_.push_back({"MsgBox \"" + std::string{part} + "\"",
                       [wanted = std::string{part}](const Question& question) {
                           return question.kind == QuestionKind::box &&
                                  (question.title.find(wanted) != std::string::npos ||
                                   question.text.find(wanted) != std::string::npos);
                       },
                       [answer](Question& question) { press(question, answer); }, delay});
}

void ScriptedDialogs::expect_input(std::string_view entered, Frames delay) {
    const std::string text{entered};
    expect(
        QuestionKind::input, "InputBox", [text](Question& question) { question.entered = text; }, delay);
}

void ScriptedDialogs::expect_open(std::string_view file, Frames delay) {
    const std::string name{file};
    expect(
        QuestionKind::open_file, "open_file", [name](Question& question) { question.entered = name; }, delay);
}

void ScriptedDialogs::expect_save(std::string_view file, Frames delay) {
    const std::string name{file};
    expect(
        QuestionKind::save_file, "save_file", [name](Question& question) { question.entered = name; }, delay);
}

void ScriptedDialogs::expect_colour(std::int32_t colour, Frames delay) {
    expect(
        QuestionKind::colour, "colour", [colour](Question& question) { question.colour = colour; }, delay);
}

void ScriptedDialogs::expect_font(const Font& font, Frames delay) {
    expect(
        QuestionKind::font, "font", [font](Question& question) { question.font = font; }, delay);
}

void ScriptedDialogs::expect_window(std::string_view name, std::function<void()> hands, Frames delay) {
    script_.push_back({"window " + std::string{name},
                       [wanted = std::string{name}](const Question& question) {
                           return question.kind == QuestionKind::window && question.title == wanted;
                       },
                       [hands = std::move(hands)](Question& question) { question.hands = hands; }, delay});
}

void ScriptedDialogs::expect_cancel(Frames delay) {
    script_.push_back({"cancel", [](const Question&) { return true; }, cancel, delay});
}

void ScriptedDialogs::expect_words(std::string_view words, Frames delay) {
    const std::string text{words};
    script_.push_back({"\"" + text + "\"", [](const Question&) { return true; },
                       [text](Question& question) { answer_in_words(question, text); }, delay});
}

void ScriptedDialogs::expect(QuestionKind kind, std::string description, Answering answer, Frames delay) {
    script_.push_back({std::move(description), [kind](const Question& question) { return question.kind == kind; },
                       std::move(answer), delay});
}

std::vector<std::string> ScriptedDialogs::complaints() const {
    std::vector<std::string> all = unexpected_;
    for (const Expectation& expectation : script_)
        all.push_back("never asked: " + expectation.description);
    return all;
}

void ScriptedDialogs::forget() {
    script_.clear();
    asked_.clear();
    unexpected_.clear();
}

// A box that another timer opens while this one waits takes the next part of the script.
Question ScriptedDialogs::ask(Question question) {
    question.asked_at = clock_.now();
    const Expectation expectation = next_for(question);
    try {
        expectation.answer(question);
    } catch (const UnexpectedQuestion& wrong) {
        if (!answers_by_default_) {
            unexpected_.emplace_back(wrong.what());
            throw;
        }
        answer_by_default(question);
    }
    asked_.push_back(question);
    if (expectation.delay > Frames{})
        clock_.wait(expectation.delay);
    if (on_answered)
        on_answered(question);
    return question;
}

ScriptedDialogs::Expectation ScriptedDialogs::next_for(const Question& question) {
    const bool is_foreseen = !script_.empty() && script_.front().fits(question);
    if (!is_foreseen && answers_by_default_)
        return {{}, {}, answer_by_default, {}};
    if (!is_foreseen)
        complain(question);
    Expectation next = std::move(script_.front());
    script_.pop_front();
    return next;
}

void ScriptedDialogs::complain(const Question& question) {
    std::string text = "unexpected: " + shown(question);
    if (!script_.empty())
        text += " (the script has " + script_.front().description + ")";
    unexpected_.push_back(text);
    throw UnexpectedQuestion{text};
}

} // namespace sonarelle
