#pragma once

#include <QTextCursor>
#include <QTextDocument>
#include <QWidget>
#include <functional>

class QLabel;
class QLineEdit;

namespace sonarelle {

/// The text of a widget, and the place in it where the operator is.
struct SearchedText {
    std::function<QTextCursor()> place;
    std::function<void(const QTextCursor&)> show; ///< Selects what was found, and brings it on view.
};

template <typename Edit>
[[nodiscard]] SearchedText searched_text(Edit& edit) {
    return {[&edit] { return edit.textCursor(); }, [&edit](const QTextCursor& found) { edit.setTextCursor(found); }};
}

/// Looks for words in a text, round its ends, in whatever case: Return forward, with Shift back.
class ReaderSearch : public QWidget {
public:
    ReaderSearch(SearchedText text, QWidget* parent);

    /// Gives it the keyboard, to type other words.
    void take_keyboard();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void look_while_typed();
    void look(const QTextCursor& from, QTextDocument::FindFlags direction);
    void look_on(QTextDocument::FindFlags direction) { look(text_.place(), direction); }

    SearchedText text_;
    QLineEdit* words_;
    QLabel* answer_;
};

} // namespace sonarelle
