#pragma once

#include <QAbstractButton>

#include "desktop/picture_store.h"

namespace sonarelle {

/// How a button is drawn: with a face, as its picture alone, or as a lamp that glows on what it lies on.
enum class ButtonLook { face, picture, lamp };

/// What a button means for the air.
enum class Accent { none, air, next, trouble };

/// A button that is drawn: a coloured face, a picture or a symbol, a caption.
class StudioButton : public QAbstractButton {
public:
    struct Face {
        QColor ground, ink, ground_over, ink_over, ground_down, ink_down;
        friend bool operator==(const Face&, const Face&) = default;
    };

    explicit StudioButton(QWidget* parent = nullptr);

    void set_face(const Face& face);
    void set_pictures(const PictureFaces& pictures);
    /// Shown where there is no caption; the caption still names the button.
    void set_symbol(const QString& symbol);
    void set_accent(Accent accent);
    void set_look(ButtonLook look);
    void set_least_width(int pixels);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    [[nodiscard]] bool has_face() const { return look_ == ButtonLook::face; }
    [[nodiscard]] bool has_text_beside() const;
    [[nodiscard]] QString shown_text() const { return symbol_.isEmpty() ? text() : symbol_; }
    [[nodiscard]] bool has_picture() const { return !pictures_.rest.isNull(); }
    [[nodiscard]] bool is_under_pointer() const { return isEnabled() && underMouse(); }
    [[nodiscard]] const QPixmap& shown_picture() const;
    [[nodiscard]] QColor lit(const QColor& ground) const;
    void paint_face(QPainter& painter, QColor ground) const;
    void paint_lamp(QPainter& painter) const;
    void paint_content(QPainter& painter, const QColor& ink) const;
    QRect paint_picture(QPainter& painter, const QRect& area) const;

    Face face_;
    PictureFaces pictures_;
    QString symbol_;
    Accent accent_ = Accent::none;
    ButtonLook look_ = ButtonLook::face;
    int least_width_ = 34;
};

[[nodiscard]] QColor colour_of(Accent accent);

} // namespace sonarelle
