#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "platform/dialogs.h"
#include "platform/units.h"

namespace sonarelle {

class Clock;

/// A question that no script foresaw. No Failure, so that no trap of the station takes it for a fault of the machine.
struct UnexpectedQuestion : std::logic_error {
    using std::logic_error::logic_error;
};

enum class QuestionKind { box, input, open_file, save_file, colour, font, window };

/// A question that was asked, and its answer.
struct Question {
    QuestionKind kind = QuestionKind::box;
    Frames asked_at;
    std::string title; ///< Of a window, its name.
    std::string text;  ///< Of a box; the prompt of an input box; the file name that a file dialog was opened with.
    Buttons buttons = Buttons::ok;
    Icon icon = Icon::none;
    int default_button = 1;
    std::string preset; ///< Of an input box.
    std::string folder; ///< Of a file dialog.
    std::string filter; ///< Of a file dialog.

    bool cancelled = false;      ///< The answer of all but a box, when it is none.
    Answer button = Answer::ok;  ///< The answer of a box.
    std::string entered;         ///< The text or file that was entered.
    std::int32_t colour = 0;     ///< The colour that was chosen.
    std::optional<Font> font;    ///< The font that was chosen.
    std::function<void()> hands; ///< What the operator does in a window before it is hidden.
};

/// Boxes that are answered by a script, in the order of asking. A question that the script doesn't foresee throws
/// UnexpectedQuestion and is remembered; so is a part of the script that was never asked for.
class ScriptedDialogs : public Dialogs {
public:
    explicit ScriptedDialogs(Clock& clock)
        : clock_{clock} {}

    Answer MsgBox(const MessageBox& box) override;
    [[nodiscard]] std::optional<std::string> InputBox(const sonarelle::InputBox& box) override;
    [[nodiscard]] ChosenFile open_file(const FileDialog& dialog) override;
    [[nodiscard]] ChosenFile save_file(const FileDialog& dialog) override;
    [[nodiscard]] std::optional<std::int32_t> choose_colour(std::int32_t preset) override;
    [[nodiscard]] std::optional<Font> choose_font(const Font& preset) override;
    void show_modal(Window& window) override;

    // The script. The answer comes after `delay`, while the other timers run.

    /// A box whose title or text holds `part`.
    void expect_box(std::string_view part, Answer answer, Frames delay = {});
    void expect_box(Answer answer, Frames delay = {}) { expect_box({}, answer, delay); }
    void expect_input(std::string_view entered, Frames delay = {});
    void expect_open(std::string_view file, Frames delay = {});
    void expect_save(std::string_view file, Frames delay = {});
    void expect_colour(std::int32_t colour, Frames delay = {});
    void expect_font(const Font& font, Frames delay = {});
    /// A window that is shown modally, by its name. After the delay `hands` are at work in it, then it is hidden.
    void expect_window(std::string_view name, std::function<void()> hands = {}, Frames delay = {});
    /// Any question, which is left without an answer; a box by its button for that.
    void expect_cancel(Frames delay = {});
    /// Any question, answered in words: `oui`, `non`, `ok` or `annuler` to a box, else the text or file to enter.
    void expect_words(std::string_view words, Frames delay = {});

    /// From now on a question that the script doesn't fit is answered as by Enter in a box and Escape in any other.
    void default_answers() { answers_by_default_ = true; }

    /// Called with each question and its answer, when it has been given.
    std::function<void(const Question&)> on_answered;

    [[nodiscard]] const std::vector<Question>& asked() const { return asked_; }
    /// The last question. @throws std::out_of_range when none was asked.
    [[nodiscard]] const Question& last() const { return asked_.at(asked_.size() - 1); }
    /// What didn't go by the script: questions that it didn't foresee, and what it foresaw and nobody asked.
    [[nodiscard]] std::vector<std::string> complaints() const;
    /// Drops the script and what was asked.
    void forget();

private:
    using Answering = std::function<void(Question&)>;
    struct Expectation {
        std::string description;
        std::function<bool(const Question&)> fits;
        Answering answer;
        Frames delay;
    };

    void expect(QuestionKind kind, std::string description, Answering answer, Frames delay);
    Question ask(Question question);
    Expectation next_for(const Question& question);
    [[noreturn]] void complain(const Question& question);
    ChosenFile choose_file(QuestionKind kind, const FileDialog& dialog);

    Clock& clock_;
    std::deque<Expectation> script_;
    std::vector<Question> asked_;
    std::vector<std::string> unexpected_;
    bool answers_by_default_ = false;
};

} // namespace sonarelle
