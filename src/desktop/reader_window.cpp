#include "desktop/reader_window.h"

#include <QAbstractButton>
#include <QApplication>
#include <QBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QScreen>
#include <QShortcut>
#include <QWindow>
#include <algorithm>

#include "desktop/reader_look.h"
#include "desktop/tokens.h"

namespace sonarelle {

namespace {

constexpr QSize usual_size{960, 540}; // with its frame on a screen of 1024 by 600
constexpr int least_height = 360;

} // namespace

ReaderWindow::ReaderWindow(const QString& title, const SearchedText& text)
    : search_{new ReaderSearch{text, this}},
      page_{new QHBoxLayout},
      sentence_{new QLabel{this}} {
    setWindowTitle(title);
    setFont(reader_font());
    setStyleSheet(reader_style());
    sentence_->setObjectName("etat");
    auto* column = new QVBoxLayout{this};
    column->setContentsMargins(studio::grid, studio::grid, studio::grid, studio::grid);
    column->setSpacing(studio::grid);
    column->addWidget(search_);
    column->addLayout(page_, 1);
    column->addWidget(sentence_);
    page_->setSpacing(studio::grid);
    setMinimumHeight(least_height);
    resize(usual_size);
    connect(new QShortcut{Qt::Key_Escape, this}, &QShortcut::activated, this, [this] { close(); });
    connect(new QShortcut{QKeySequence::Find, this}, &QShortcut::activated, this, [this] { search_->take_keyboard(); });
}

void ReaderWindow::open() {
    if (QWidget* asker = QApplication::activeWindow(); asker != this)
        asker_ = asker;
    stay_before(asker_);
    if (!isVisible() && !testAttribute(Qt::WA_Moved))
        place_over(asker_);
    show();
    raise();
    activateWindow();
}

// A modal window leaves the keyboard to those alone that stand before it, and sees who does when they come up.
void ReaderWindow::stay_before(const QWidget* asker) {
    create();
    QWindow* held_by = asker != nullptr && asker->isModal() ? asker->windowHandle() : nullptr;
    if (windowHandle()->transientParent() == held_by)
        return;
    hide();
    windowHandle()->setTransientParent(held_by);
}

// What is on the air stays on view, as far as the screen has room below it.
void ReaderWindow::place_over(const QWidget* asker) {
    if (asker == nullptr)
        return;
    const QRect room = asker->screen()->availableGeometry();
    const QSize frame = asker->frameSize() - asker->size();
    const int top = asker->pos().y() + asker->height() / 3;
    const QSize space{room.width() - frame.width(), room.bottom() + 1 - top - frame.height()};
    resize(usual_size.boundedTo(space).expandedTo(minimumSize()));
    const QSize whole = size() + frame;
    const int left = asker->geometry().center().x() - whole.width() / 2;
    move(std::max(room.left(), std::min(left, room.right() + 1 - whole.width())),
         std::max(room.top(), std::min(top, room.bottom() + 1 - whole.height())));
}

void ReaderWindow::tell(const QString& sentence) {
    sentence_->setText(sentence);
}

void ReaderWindow::keyPressEvent(QKeyEvent* event) {
    auto* button = qobject_cast<QAbstractButton*>(focusWidget());
    if (button != nullptr && (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter))
        button->click();
    else
        QWidget::keyPressEvent(event);
}

void ReaderWindow::hideEvent(QHideEvent* event) {
    QWidget::hideEvent(event);
    if (!event->spontaneous() && !asker_.isNull() && asker_->isVisible())
        asker_->activateWindow();
}

} // namespace sonarelle
