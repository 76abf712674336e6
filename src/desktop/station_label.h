#pragma once

#include <QWidget>
#include <functional>

#include "desktop/stepped.h"

namespace sonarelle {

/// A text that changes often and never moves what stands beside it: its size depends on its style alone, but where it
/// is fitted.
/// What it has no room for is told whole where the pointer rests on it.
/// Digits stand in cells of one width where the style asks for it. It can be pressed, by mouse and keyboard.
class StationLabel : public QWidget, public Stepped {
public:
    struct Style {
        Type type = Type::medium;
        bool bold = false;
        bool quiet = false;      ///< A heading or an aside.
        bool capitals = false;   ///< Wide-spaced ones, as headings have.
        bool digits = false;     ///< In cells of one width, as high as digits are.
        bool shrinking = false;  ///< Digits that grow smaller rather than lose one.
        bool framed = false;     ///< Drawn as a button.
        bool flat = false;       ///< A button whose plate is seen under the pointer alone.
        bool underlined = false; ///< The letter behind a mark in the text.
        bool wrapped = false;    ///< As many lines as it takes.
        bool fitted = false;     ///< As wide as its text: for words that don't change while others stand beside them.
        bool name = false;       ///< A name of any length, which may end in dots.
        int characters = 12;     ///< The width that it asks for otherwise.
        Qt::Alignment alignment = Qt::AlignLeft | Qt::AlignVCenter;
    };

    explicit StationLabel(QWidget* parent = nullptr)
        : StationLabel{Style{}, parent} {}
    explicit StationLabel(const Style& style, QWidget* parent = nullptr);

    virtual void set_text(const QString& text);
    [[nodiscard]] const QString& text() const { return text_; }
    /// What stands there in the narrow step, and wherever the other has no room.
    void set_narrow_text(const QString& text);
    void set_style(const Style& style);
    void set_step(Step step) override;
    /// An ink that stands before the told one, wherever it reads; an invalid colour takes it back.
    void set_ink(const QColor& ink);
    /// A ground of its own; an invalid colour takes it back.
    void set_fill(const QColor& fill);
    /// Makes it a button for mouse and keyboard.
    void set_pressable(bool pressable);
    [[nodiscard]] bool is_pressable() const { return pressable_; }

    std::function<void()> on_press;

    /// The text that is drawn: the narrow one where the other has no room.
    [[nodiscard]] QString shown_text() const;
    /// What that needs to stand whole.
    [[nodiscard]] int width_of_text() const;
    /// The ink that its text has where it stands.
    [[nodiscard]] QColor ink() const;
    /// Whether its text ends in dots, for want of room.
    [[nodiscard]] bool is_cut() const;
    [[nodiscard]] bool holds_a_name() const { return style_.name; }
    /// What a screen reader says: its text, behind what the text is of.
    [[nodiscard]] virtual QString spoken() const;

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;
    [[nodiscard]] bool hasHeightForWidth() const override { return style_.wrapped; }
    [[nodiscard]] int heightForWidth(int width) const override;

protected:
    /// Draws the text into the room that the frame leaves, in the painter's pen.
    virtual void paint_text(QPainter& painter, const QRect& area) const;
    [[nodiscard]] int margin() const { return style_.framed ? 8 : 2; }
    /// What stands there where there is room, for its tip.
    [[nodiscard]] virtual QString whole() const { return text_; }
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void set_type();
    [[nodiscard]] int width_of(const QString& text) const;
    [[nodiscard]] int line_height() const;
    [[nodiscard]] QFont font_that_fits(int width) const;
    [[nodiscard]] QColor ground() const;
    void paint_frame(QPainter& painter) const;
    void paint_line(QPainter& painter, const QRect& area) const;

    Style style_;
    Step step_ = Step::compact;
    QString text_;
    QString narrow_text_;
    bool pressable_ = false;
    QColor ink_;
    QColor fill_;
    bool down_ = false;
};

} // namespace sonarelle
