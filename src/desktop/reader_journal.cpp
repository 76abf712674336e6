#include "desktop/reader_journal.h"

#include <QBoxLayout>
#include <QPlainTextEdit>
#include <QScrollBar>

#include "desktop/qt_text.h"

namespace sonarelle {

namespace {

constexpr int most_lines = 50'000; // of a window that stays open for weeks

} // namespace

JournalReader::JournalReader(Disk& disk, const std::string& path)
    : JournalReader{disk, path, new QPlainTextEdit} {}

JournalReader::JournalReader(Disk& disk, const std::string& path, QPlainTextEdit* text)
    : ReaderWindow{"Journal", searched_text(*text)},
      text_{text},
      tail_{disk, path} {
    setObjectName("journal");
    text_->setAccessibleName("Journal");
    text_->setReadOnly(true);
    text_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    text_->setUndoRedoEnabled(false);
    text_->setLineWrapMode(QPlainTextEdit::NoWrap);
    page().addWidget(text_);
    text_->setFocus();
    connect(&second_, &QTimer::timeout, this, [this] { follow(); });
    connect(text_, &QPlainTextEdit::updateRequest, this, [this] { tell_state(); }); // moves of the scroll bar, too
    second_.setInterval(1000);
}

// A window that goes takes the keyboard from its text, which is painted anew for that.
JournalReader::~JournalReader() {
    text_->disconnect(this);
}

void JournalReader::showEvent(QShowEvent* event) {
    ReaderWindow::showEvent(event);
    follow();
    second_.start();
}

void JournalReader::hideEvent(QHideEvent* event) {
    second_.stop();
    ReaderWindow::hideEvent(event);
}

void JournalReader::follow() {
    const TailNews news = tail_.read();
    trouble_ = to_qt(news.trouble);
    if (news.begins_anew) {
        was_emptied_ = !text_->document()->isEmpty() && news.trouble.empty();
        is_cut_ = news.is_cut;
        text_->clear();
    }
    add(to_qt(news.text));
    tell_state();
}

bool JournalReader::is_at_end() const {
    return text_->verticalScrollBar()->value() == text_->verticalScrollBar()->maximum();
}

// Where the operator reads further up, no line leaves above him.
void JournalReader::add(const QString& lines) {
    if (lines.isEmpty())
        return;
    const bool follows = is_at_end();
    QTextCursor end{text_->document()};
    end.movePosition(QTextCursor::End);
    end.insertText(lines);
    text_->setMaximumBlockCount(follows ? most_lines : 0);
    if (follows)
        text_->verticalScrollBar()->setValue(text_->verticalScrollBar()->maximum());
}

void JournalReader::tell_state() {
    QStringList sentences;
    if (was_emptied_)
        sentences += "Le journal a été vidé ou remplacé : il est relu depuis son début.";
    if (is_cut_)
        sentences += "Le début est laissé de côté : seul le dernier mégaoctet est montré.";
    sentences += is_at_end() ? "La suite s'affiche à mesure." : "La suite s'ajoute en bas : Ctrl+Fin pour la suivre.";
    tell(trouble_.isEmpty() ? sentences.join(' ') : trouble_);
}

} // namespace sonarelle
