#pragma once

#include <QDialog>
#include <QPointer>

#include "desktop/signs.h"
#include "desktop/studio_button.h"

class QHBoxLayout;
class QLabel;
class QVBoxLayout;

namespace sonarelle {

/// A box of the station: its title, a sign, words, a row of buttons of which the last one leaves things as they are.
/// It opens over the middle of a window, below that one's header, so that what is on the air is never covered, and
/// wholly on the screen. Return presses the button that has the keyboard, else the default one; Escape is the last.
/// A key that was held down before the box came does nothing. Ctrl+C takes title and text, F1 is the window's.
class BoxView : public QDialog {
public:
    struct Look {
        Sign sign = Sign::none;
        bool is_trouble = false;
    };

    /// `text` is shown with its first line as the heading, and its long paths cut; `over` may be null.
    BoxView(const QString& title, const QString& text, const Look& look, QWidget* over);

    /// Title and text as they were told.
    [[nodiscard]] const QString& text() const { return text_; }
    [[nodiscard]] const Look& look() const { return look_; }

protected:
    /// From left to right.
    StudioButton& add_button(const QString& words, Accent accent);
    void set_default(StudioButton& button) { default_ = &button; }
    /// The words' column, for what stands below them.
    [[nodiscard]] QVBoxLayout& column() { return *column_; }
    /// A line of one's own in it, as wide as the words.
    QLabel* add_line(const QString& text, const QFont& font, const QColor& ink);
    [[nodiscard]] int line_width() const;
    /// The letters of the buttons, once all are there.
    void mark_letters();

    void showEvent(QShowEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void build(QWidget& body);
    void add_words();
    void fit_to_screen();
    [[nodiscard]] QRect room() const;
    void press_button();
    void ask_for_help() const;

    QString text_;
    Look look_;
    QPointer<QWidget> over_;
    QWidget* body_ = nullptr;
    QVBoxLayout* column_ = nullptr;
    QHBoxLayout* buttons_ = nullptr;
    QList<StudioButton*> row_;
    StudioButton* default_ = nullptr;
};

/// The window of the station over which a box opens: the active one, else the largest that can be seen.
[[nodiscard]] QWidget* window_below_a_box();

} // namespace sonarelle
