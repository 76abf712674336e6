#pragma once

#include <QAbstractButton>

#include "desktop/picture_store.h"
#include "desktop/signs.h"
#include "desktop/stepped.h"

namespace sonarelle {

/// How a button is drawn: with a face, as its picture alone, or as a lamp that glows on what it lies on.
enum class ButtonLook { face, picture, lamp };

/// How high a button is.
enum class ButtonSize { normal, control, small };

/// What a button means: for the air, or as the one that a box asks to press.
enum class Accent { none, air, next, trouble, primary };

/// A button that is drawn: a coloured face, a sign or a picture, a caption.
class StudioButton : public QAbstractButton, public Stepped {
public:
    struct Face {
        QColor ground, ink, ground_over, ink_over, ground_down, ink_down;
        friend bool operator==(const Face&, const Face&) = default;
    };

    explicit StudioButton(QWidget* parent = nullptr);

    void set_face(const Face& face);
    /// Seen where the button has no sign.
    void set_pictures(const PictureFaces& pictures);
    /// A sign, alone or before words.
    void set_sign(Sign sign, const QString& words = {}, const QString& narrow_words = {});
    /// Shown where there is a caption; the caption still names the button. The narrow step may have words of its own.
    void set_words(const QString& words, const QString& narrow_words = {});
    /// Its caption with a mark before the letter that calls it, which is underlined.
    void set_marked(const QString& caption);
    /// One that can't be reached shows air all the same: it is a lamp then.
    void set_accent(Accent accent);
    [[nodiscard]] Accent accent() const { return accent_; }
    void set_look(ButtonLook look);
    void set_size(ButtonSize size);
    void set_least_width(int pixels);
    void set_step(Step step) override;

    /// Whether its words end in dots, for want of room.
    [[nodiscard]] bool is_cut() const;

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    [[nodiscard]] bool has_face() const { return look_ == ButtonLook::face; }
    [[nodiscard]] bool has_picture() const { return sign_ == Sign::none && !pictures_.rest.isNull(); }
    [[nodiscard]] bool has_text_beside() const;
    [[nodiscard]] bool is_under_pointer() const { return isEnabled() && underMouse(); }
    [[nodiscard]] bool is_lit() const;
    [[nodiscard]] QString shown_text() const;
    [[nodiscard]] bool has_room_for(const QString& words) const;
    [[nodiscard]] int sign_size() const;
    [[nodiscard]] int height_of_face() const;
    [[nodiscard]] const QPixmap& shown_picture() const;
    /// Ground, line and ink of the state that it is in.
    struct Plate {
        QColor ground, line, ink;
    };
    [[nodiscard]] Plate plate() const;
    [[nodiscard]] Plate plate_at_rest() const;
    void paint_face(QPainter& painter, const Plate& plate) const;
    void paint_lamp(QPainter& painter) const;
    void paint_content(QPainter& painter, const QColor& ink) const;
    void paint_text(QPainter& painter, const QRect& area, const QColor& ink) const;
    [[nodiscard]] QFont shown_font() const;
    [[nodiscard]] int words_width() const;
    [[nodiscard]] int sign_gap() const;
    QRect paint_with_sign(QPainter& painter, const QRect& area, const QColor& ink) const;
    QRect paint_picture(QPainter& painter, const QRect& area) const;

    Face face_;
    PictureFaces pictures_;
    Sign sign_ = Sign::none;
    QString words_;
    QString narrow_words_;
    QString marked_;
    Accent accent_ = Accent::none;
    ButtonLook look_ = ButtonLook::face;
    ButtonSize size_ = ButtonSize::normal;
    Step step_ = Step::compact;
    int least_width_ = 34;
};

/// The mark of an accent.
[[nodiscard]] QColor colour_of(Accent accent);

} // namespace sonarelle
