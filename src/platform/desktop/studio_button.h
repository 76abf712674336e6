#pragma once

#include <QAbstractButton>
#include <QPixmap>

namespace sonarelle {

/// What a button means for the air.
enum class Accent { none, air, next, trouble };

/// A button that is drawn: a face of the colour it was given, a picture or a symbol, a caption.
class StudioButton : public QAbstractButton {
public:
    struct Face {
        QColor ground, ink, ground_over, ink_over, ground_down, ink_down;
        friend bool operator==(const Face&, const Face&) = default;
    };

    explicit StudioButton(QWidget* parent = nullptr);

    void set_face(const Face& face);
    void set_picture(const QPixmap& picture);
    /// Shown where there is no caption; the caption still names the button.
    void set_symbol(const QString& symbol);
    void set_accent(Accent accent);
    /// A picture alone, without a face.
    void set_flat(bool flat);
    void set_least_width(int pixels);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    [[nodiscard]] QString shown_text() const { return symbol_.isEmpty() ? text() : symbol_; }
    void paint_face(QPainter& painter, QColor ground) const;
    void paint_content(QPainter& painter, const QColor& ink) const;

    Face face_;
    QPixmap picture_;
    QString symbol_;
    Accent accent_ = Accent::none;
    bool flat_ = false;
    int least_width_ = 34;
};

[[nodiscard]] QColor colour_of(Accent accent);

} // namespace sonarelle
