#include "desktop/message_box.h"

#include <QLabel>
#include <algorithm>
#include <utility>

#include "desktop/qt_text.h"
#include "desktop/text_size.h"

namespace sonarelle {

namespace {

/// The answers of a box, in the order of its buttons: the last leaves things as they are.
std::vector<Answer> answers_of(Buttons buttons) {
    switch (buttons) {
    case Buttons::ok_cancel:
        return {Answer::ok, Answer::cancel};
    case Buttons::yes_no:
        return {Answer::yes, Answer::no};
    case Buttons::yes_no_cancel:
        return {Answer::yes, Answer::no, Answer::cancel};
    case Buttons::ok:
        break;
    }
    return {Answer::ok};
}

BoxView::Look look_of(Icon icon) {
    switch (icon) {
    case Icon::stop:
    case Icon::warning:
        return {.sign = Sign::warn, .is_trouble = true};
    case Icon::question:
        return {.sign = Sign::ask};
    case Icon::information:
        return {.sign = Sign::inform};
    case Icon::none:
        break;
    }
    return {};
}

QString words_of(Answer answer, const BoxWords& question) {
    switch (answer) {
    case Answer::yes:
        return question.yes;
    case Answer::no:
        return question.no;
    case Answer::cancel:
        return "Annuler";
    case Answer::ok:
        break;
    }
    return "OK";
}

} // namespace

MessageBoxView::MessageBoxView(const MessageBox& box, QWidget* over, NameOnAir name_on_air)
    : BoxView{to_qt(box.title), to_qt(box.text), look_of(box.icon), over},
      name_on_air_{std::move(name_on_air)} {
    setObjectName("MsgBox");
    BoxWords question = words_of_question(text());
    if (question.ends_the_air && name_on_air_ && !name_on_air_().isEmpty()) {
        question.no += " à l'antenne";
        add_air();
    }
    add_buttons(box, question);
}

void MessageBoxView::add_buttons(const MessageBox& box, const BoxWords& question) {
    const std::vector<Answer> answers = answers_of(box.buttons);
    const auto preset = static_cast<std::size_t>(box.default_button - 1) % answers.size();
    answer_ = answers.back();
    for (const Answer answer : answers) {
        const bool is_preset = answer == answers[preset];
        const bool acts = answer == Answer::ok || answer == Answer::yes;
        const bool destroys = answer == Answer::yes && question.destroys;
        const Accent accent = destroys ? Accent::trouble : acts && is_preset ? Accent::primary : Accent::none;
        StudioButton& button = add_button(words_of(answer, question), accent);
        connect(&button, &QAbstractButton::clicked, this, [this, answer] {
            answer_ = answer;
            accept();
        });
        buttons_.emplace_back(answer, &button);
        if (is_preset)
            set_default(button);
    }
    mark_letters();
}

void MessageBoxView::add_air() {
    air_ = add_line(" ", studio_font(Type::medium, Step::compact, true), studio::air_text);
    air_->setObjectName("air");
    connect(&second_, &QTimer::timeout, this, [this] { show_air(); });
    second_.start(std::chrono::seconds{1});
    show_air();
}

// Tracks come and go while the question waits.
void MessageBoxView::show_air() {
    const QString name = name_on_air_();
    const QString line = name.isEmpty() ? name : "À l'antenne : " + name;
    air_->setText(air_->fontMetrics().elidedText(line, Qt::ElideRight, line_width()));
    air_->setToolTip(air_->text() == line ? QString{} : line);
}

StudioButton* MessageBoxView::button(Answer answer) const {
    const auto found = std::ranges::find(buttons_, answer, [](const auto& entry) { return entry.first; });
    return found == buttons_.end() ? nullptr : found->second;
}

void tell(QWidget* over, const std::string& title, const std::string& text, Icon icon) {
    MessageBoxView{{.text = text, .title = title, .icon = icon}, over}.exec();
}

} // namespace sonarelle
