#pragma once

#include <QPointer>
#include <QWidget>

#include "desktop/reader_search.h"

class QBoxLayout;
class QLabel;

namespace sonarelle {

/// A window with something to read: the text, a search through it, and below it a line that says how it stands. Escape
/// closes it and gives the keyboard back to the window that asked for it.
class ReaderWindow : public QWidget {
public:
    ReaderWindow(const QString& title, const SearchedText& text);

    /// Comes up over the window that has the keyboard; one that is modal keeps it before itself.
    void open();

protected:
    /// Where the text is laid out, from left to right.
    [[nodiscard]] QBoxLayout& page() { return *page_; }
    /// Says a sentence below the text.
    void tell(const QString& sentence);

    void keyPressEvent(QKeyEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void stay_before(const QWidget* asker);
    void place_over(const QWidget* asker);

    QPointer<QWidget> asker_;
    ReaderSearch* search_;
    QBoxLayout* page_;
    QLabel* sentence_;
};

} // namespace sonarelle
