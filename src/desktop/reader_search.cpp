#include "desktop/reader_search.h"

#include <QBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <utility>

#include "desktop/studio_button.h"

namespace sonarelle {

namespace {

constexpr int least_answer_width = 110; // so that the buttons stay where they are

StudioButton* button_of(const QString& caption, const QString& key, QWidget& parent) {
    auto* button = new StudioButton{&parent};
    button->setText(caption);
    button->set_size(ButtonSize::control);
    button->setToolTip(caption + " [" + key + "]");
    return button;
}

QTextCursor other_end(const QTextCursor& place, QTextDocument::FindFlags direction) {
    QTextCursor end = place;
    end.movePosition(direction.testFlag(QTextDocument::FindBackward) ? QTextCursor::End : QTextCursor::Start);
    return end;
}

} // namespace

ReaderSearch::ReaderSearch(SearchedText text, QWidget* parent)
    : QWidget{parent},
      text_{std::move(text)},
      words_{new QLineEdit{this}},
      answer_{new QLabel{this}} {
    setObjectName("recherche");
    words_->setPlaceholderText("Rechercher");
    words_->setAccessibleName("Rechercher dans le texte");
    words_->setToolTip("Rechercher dans le texte [Ctrl+F]");
    answer_->setObjectName("reponse");
    answer_->setMinimumWidth(least_answer_width);
    auto* previous = button_of("Précédent", "Maj+Entrée", *this);
    auto* next = button_of("Suivant", "Entrée", *this);
    auto* row = new QHBoxLayout{this};
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(studio::grid);
    row->addWidget(words_, 1);
    row->addWidget(previous);
    row->addWidget(next);
    row->addWidget(answer_);
    connect(words_, &QLineEdit::textEdited, this, [this] { look_while_typed(); });
    connect(previous, &QAbstractButton::clicked, this, [this] { look_on(QTextDocument::FindBackward); });
    connect(next, &QAbstractButton::clicked, this, [this] { look_on({}); });
}

void ReaderSearch::take_keyboard() {
    words_->setFocus(Qt::ShortcutFocusReason);
    words_->selectAll();
}

void ReaderSearch::keyPressEvent(QKeyEvent* event) {
    const bool is_return = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (!is_return || !words_->hasFocus())
        return QWidget::keyPressEvent(event);
    const bool back = event->modifiers().testFlag(Qt::ShiftModifier);
    look_on(back ? QTextDocument::FindBackward : QTextDocument::FindFlags{});
}

// One more letter may still fit what is shown already.
void ReaderSearch::look_while_typed() {
    QTextCursor from = text_.place();
    from.setPosition(from.selectionStart());
    look(from, {});
}

void ReaderSearch::look(const QTextCursor& from, QTextDocument::FindFlags direction) {
    const QTextDocument& document = *from.document();
    const QString words = words_->text();
    QTextCursor found = document.find(words, from, direction);
    const bool goes_round = found.isNull();
    if (goes_round)
        found = document.find(words, other_end(from, direction), direction);
    const bool back = direction.testFlag(QTextDocument::FindBackward);
    answer_->setText(words.isEmpty()  ? QString{}
                     : found.isNull() ? "introuvable"
                     : !goes_round    ? QString{}
                     : back           ? "repris à la fin"
                                      : "repris au début");
    if (!found.isNull())
        text_.show(found);
}

} // namespace sonarelle
