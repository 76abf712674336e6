// The keyboard of a station's window.
#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QTextEdit>
#include <QWindow>
#include <algorithm>

#include "desktop/qt_text.h"
#include "desktop/window_view.h"
#include "platform/controls.h"

namespace sonarelle {

namespace {

// Its letters are its own.
bool menu_is_open() {
    return qobject_cast<QMenu*>(QApplication::activePopupWidget()) != nullptr;
}

} // namespace

// Characters reach the window before the part that has the focus, each once: on the way into the native window.
void WindowView::watch_keys() {
    if (watches_keys_ || windowHandle() == nullptr)
        return;
    windowHandle()->installEventFilter(this);
    watches_keys_ = true;
}

bool WindowView::eventFilter(QObject* object, QEvent* event) {
    if (event->type() == QEvent::KeyPress && object == windowHandle()) {
        const auto* key = static_cast<QKeyEvent*>(event);
        // Alt or Ctrl with a letter calls a menu or a button, and types nothing.
        const bool calls = (key->modifiers() & (Qt::AltModifier | Qt::ControlModifier)) != Qt::NoModifier;
        if (key->isAutoRepeat() && !accepts_text() && !key->text().isEmpty() &&
            window_.keys_once.find(from_qt(key->text())) != std::string::npos)
            return true;
        if (!calls && !keys_go_elsewhere() && !presses_button(*key) && !menu_is_open() && !key->text().isEmpty() &&
            (!accepts_text() || key->key() == Qt::Key_Escape)) {
            pass_characters(key->text());
            // The key that opens a menu chooses nothing in it.
            if (menu_is_open() || (window_.answers_space && key->key() == Qt::Key_Space))
                return true;
        }
    }
    return QWidget::eventFilter(object, event);
}

// A path that is edited in its row, and a list that is open below a field, have the keyboard to themselves: Escape ends
// them, and nothing more.
bool WindowView::keys_go_elsewhere() const {
    const QWidget* focus = focusWidget();
    const QWidget* around = focus == nullptr ? nullptr : focus->parentWidget();
    const bool in_rows = around != nullptr && qobject_cast<const QAbstractItemView*>(around->parentWidget()) != nullptr;
    return QApplication::activePopupWidget() != nullptr ||
           (in_rows && qobject_cast<const QLineEdit*>(focus) != nullptr);
}

// A button that the operator went to takes the return key for itself.
bool WindowView::presses_button(const QKeyEvent& key) const {
    return (key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter) &&
           qobject_cast<const QAbstractButton*>(focusWidget()) != nullptr;
}

// What is typed into a field is for the field alone.
bool WindowView::accepts_text() const {
    const QWidget* focus = focusWidget();
    const auto* line = qobject_cast<const QLineEdit*>(focus);
    const auto* combo = qobject_cast<const QComboBox*>(focus);
    return (line != nullptr && !line->isReadOnly()) || (combo != nullptr && combo->isEditable()) ||
           qobject_cast<const QTextEdit*>(focus) != nullptr;
}

void WindowView::pass_characters(const QString& text) {
    for (const char32_t character : text.toUcs4())
        services_.run_event([this, character] { window_.key_press(character); });
}

// Buttons and menus are there without a mouse, too.
void WindowView::keyPressEvent(QKeyEvent* event) {
    const bool presses = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (presses && !event->isAutoRepeat() && press_button())
        return;
    if (event->key() == Qt::Key_F10 && event->modifiers() == Qt::NoModifier)
        show_first_menu();
    else if (event->key() == Qt::Key_F1 && event->modifiers() == Qt::NoModifier)
        ask_for_help();
    else
        QWidget::keyPressEvent(event);
}

void WindowView::ask_for_help() {
    services_.run_event([this] { window_.ask_for_help(); });
}

// The one that has the focus, or the window's own.
bool WindowView::press_button() {
    if (auto* button = qobject_cast<QAbstractButton*>(focusWidget()))
        button->click();
    else if (window_.default_button != nullptr)
        services_.run_event([this] { window_.default_button->click(); });
    else
        return false;
    return true;
}

void WindowView::show_first_menu() {
    const auto menus = bar_->actions();
    const auto first = [&] { return std::ranges::find_if(menus, &QAction::isVisible); };
    if (first() == menus.end()) {
        services_.run_event([this] { window_.call_menus(); });
        services_.updates.flush();
    }
    if (first() != menus.end())
        bar_->setActiveAction(*first());
}

} // namespace sonarelle
