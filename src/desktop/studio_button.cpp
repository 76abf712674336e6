#include "desktop/studio_button.h"

#include <QPainter>
#include <algorithm>

#include "desktop/colours.h"
#include "desktop/text_size.h"

namespace sonarelle {

namespace {

constexpr int least_text_width = 8;
constexpr int padding = 20;
constexpr int narrow_padding = 12;
constexpr double lamp_radius = 4;
constexpr int face_inset = 2; ///< Of the words from the edge, at least.
constexpr int ring = 2;       ///< Of the focus: its width, and its distance from the face.

// A picture without its edge.
QRect inside(const QPixmap& picture) {
    const int across = picture.width() / 8;
    const int down = picture.height() / 8;
    return picture.rect().adjusted(across, down, -across, -down);
}

} // namespace

QColor colour_of(Accent accent) {
    switch (accent) {
    case Accent::air:
        return studio::air;
    case Accent::next:
        return studio::next;
    case Accent::trouble:
        return studio::trouble;
    case Accent::primary:
        return studio::primary;
    case Accent::none:
        break;
    }
    return studio::line;
}

StudioButton::StudioButton(QWidget* parent)
    : QAbstractButton{parent},
      face_{studio::control, studio::text, studio::control_over, studio::text, studio::window, studio::text} {
    setFocusPolicy(Qt::TabFocus); // a space bar after a click would press it again
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    set_step(step_);
}

void StudioButton::set_step(Step step) {
    step_ = step;
    const bool is_small = size_ == ButtonSize::small || (size_ == ButtonSize::control && step == Step::narrow);
    QFont font = studio_font(is_small ? Type::small : Type::base, step);
    font.setWeight(QFont::DemiBold);
    setFont(font);
    updateGeometry();
    update();
}

void StudioButton::set_size(ButtonSize size) {
    size_ = size;
    set_step(step_);
}

void StudioButton::set_face(const Face& face) {
    if (face == face_)
        return;
    face_ = face;
    update();
}

void StudioButton::set_pictures(const PictureFaces& pictures) {
    if (pictures.rest.isNull() == has_picture())
        updateGeometry();
    pictures_ = pictures;
    update();
}

const QPixmap& StudioButton::shown_picture() const {
    return isDown() ? pictures_.down : is_under_pointer() ? pictures_.over : pictures_.rest;
}

void StudioButton::set_sign(Sign sign, const QString& words, const QString& narrow_words) {
    sign_ = sign;
    set_words(words, narrow_words);
}

void StudioButton::set_words(const QString& words, const QString& narrow_words) {
    words_ = words;
    narrow_words_ = narrow_words.isEmpty() ? words : narrow_words;
    updateGeometry();
    update();
}

void StudioButton::set_marked(const QString& caption) {
    marked_ = caption;
    update();
}

QString StudioButton::shown_text() const {
    if (words_.isEmpty())
        return sign_ == Sign::none ? text() : QString{};
    return step_ == Step::narrow || !has_room_for(words_) ? narrow_words_ : words_;
}

// Without a picture, which leaves its words out.
bool StudioButton::has_room_for(const QString& words) const {
    const int sign = sign_ == Sign::none ? 0 : sign_size() + sign_gap();
    return QFontMetrics{shown_font()}.horizontalAdvance(words) + sign <= width() - 2 * face_inset;
}

// A word stays beside a picture; a sign of the font was there in its stead.
bool StudioButton::has_text_beside() const {
    return sign_ != Sign::none ? !shown_text().isEmpty() : has_face() && shown_text().size() > 2;
}

void StudioButton::set_accent(Accent accent) {
    if (accent == accent_)
        return;
    accent_ = accent;
    update();
}

bool StudioButton::is_lit() const {
    return accent_ != Accent::none && (isEnabled() || accent_ == Accent::air);
}

void StudioButton::set_look(ButtonLook look) {
    look_ = look;
    update();
}

void StudioButton::set_least_width(int pixels) {
    least_width_ = pixels;
    updateGeometry();
}

int StudioButton::sign_size() const {
    return size_ == ButtonSize::small ? fontMetrics().height() - 2 : scaled(lengths_of(step_).sign);
}

int StudioButton::height_of_face() const {
    const StepLengths& lengths = lengths_of(step_);
    const int height = size_ == ButtonSize::normal    ? lengths.button
                       : size_ == ButtonSize::control ? lengths.control
                                                      : lengths.small_button;
    return scaled(height);
}

QSize StudioButton::sizeHint() const {
    const QFontMetrics metrics{font()};
    const int height = height_of_face();
    if (!has_face() && has_picture())
        return (pictures_.rest.size() / 2).boundedTo({480, height});
    if (!has_face() && shown_text().isEmpty())
        return {0, 0};
    const bool is_sign_alone = sign_ != Sign::none && !has_text_beside();
    const QString wished = words_.isEmpty() || step_ == Step::narrow ? shown_text() : words_;
    int width = is_sign_alone ? 0 : !has_picture() || has_text_beside() ? metrics.horizontalAdvance(wished) : 0;
    if (has_picture())
        width += inside(pictures_.rest).width() / 2;
    else if (sign_ != Sign::none)
        width += sign_size() + (is_sign_alone ? 0 : studio::grid);
    const bool is_picture_alone = has_picture() && !has_text_beside();
    return {std::max(least_width_, width + (is_picture_alone        ? 0
                                            : step_ == Step::narrow ? narrow_padding
                                                                    : padding)),
            height};
}

QSize StudioButton::minimumSizeHint() const {
    if (!has_face())
        return sizeHint().boundedTo({24, 24});
    return {std::min(sizeHint().width(), least_width_), height_of_face()};
}

void StudioButton::enterEvent(QEnterEvent* event) {
    QAbstractButton::enterEvent(event);
    update();
}

void StudioButton::leaveEvent(QEvent* event) {
    QAbstractButton::leaveEvent(event);
    update();
}

StudioButton::Plate StudioButton::plate_at_rest() const {
    switch (is_lit() ? accent_ : Accent::none) {
    case Accent::air:
        return {studio::air_fill, studio::air, Qt::white};
    case Accent::next:
        return {studio::next, studio::next, studio::on_next};
    case Accent::trouble:
        return {studio::trouble_fill, studio::trouble, Qt::white};
    case Accent::primary:
        return {studio::primary, studio::primary, studio::on_primary};
    case Accent::none:
        break;
    }
    const bool over = is_under_pointer();
    const QColor line = over || isDown() ? studio::field_line : studio::line;
    if (has_picture()) { // whose signs are light
        const QColor ground = isDown() ? studio::window : over ? studio::control_over : studio::control;
        return {ground, line, legible(face_.ink, ground)};
    }
    if (isDown())
        return {face_.ground_down, line, face_.ink_down};
    return over ? Plate{face_.ground_over, line, face_.ink_over} : Plate{face_.ground, line, face_.ink};
}

// A lit one is a little lighter under the pointer and darker while it is down, in its own colour.
StudioButton::Plate StudioButton::plate() const {
    Plate shown = plate_at_rest();
    if (is_lit() && isEnabled() && (isDown() || underMouse()))
        shown.ground = mixed(shown.ground, isDown() ? Qt::black : Qt::white, 0.12);
    if (!isEnabled() && !is_lit()) {
        const QColor behind = palette().color(QPalette::Window);
        shown = {Qt::transparent, mixed(behind, studio::line, 0.6), legible(studio::off, behind)};
    }
    return shown;
}

void StudioButton::paintEvent(QPaintEvent*) {
    QPainter painter{this};
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    const Plate shown = plate();
    paint_face(painter, shown);
    if (look_ == ButtonLook::lamp && !has_picture())
        paint_lamp(painter);
    else
        paint_content(painter, shown.ink);
}

// The ring of the focus stands off the face, so that it is seen on any colour.
void StudioButton::paint_face(QPainter& painter, const Plate& plate) const {
    QRectF area = QRectF{rect()}.adjusted(0.5, 0.5, -0.5, -0.5);
    const int corner = size_ == ButtonSize::small ? studio::small_radius : studio::radius;
    if (hasFocus()) {
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen{studio::focus, ring});
        painter.drawRoundedRect(QRectF{rect()}.adjusted(1, 1, -1, -1), corner, corner);
        area.adjust(2 * ring, 2 * ring, -2 * ring, -2 * ring);
    }
    if (!has_face())
        return;
    painter.setBrush(plate.ground);
    painter.setPen(QPen{plate.line, 1});
    painter.drawRoundedRect(area, corner, corner);
}

// Dark it is a ring, so that its colour isn't all that tells it from a lit one.
void StudioButton::paint_lamp(QPainter& painter) const {
    const QPointF centre = QRectF{rect()}.center();
    const double half = std::min(lamp_radius, std::min(width(), height()) / 2.0 - 1);
    if (accent_ != Accent::none) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(colour_of(accent_));
    } else {
        const QColor line = is_under_pointer() ? studio::text : studio::caption;
        painter.setPen(QPen{legible(line, palette().color(QPalette::Window)), 1.5});
        painter.setBrush(Qt::NoBrush);
    }
    painter.drawEllipse(centre, half, half);
}

void StudioButton::paint_content(QPainter& painter, const QColor& ink) const {
    const int side = has_face() ? face_inset : 0;
    QRect area = rect().adjusted(side, 0, -side, 0);
    if (sign_ != Sign::none)
        area = paint_with_sign(painter, area, ink);
    else if (has_picture())
        area = paint_picture(painter, area);
    if (area.width() >= least_text_width)
        paint_text(painter, area, ink);
}

QFont StudioButton::shown_font() const {
    QFont shown = font();
    if (is_lit())
        shown.setBold(true);
    return shown;
}

int StudioButton::words_width() const {
    const bool shows_words = sign_ != Sign::none ? has_text_beside() : !has_picture();
    return shows_words ? QFontMetrics{shown_font()}.horizontalAdvance(shown_text()) : 0;
}

int StudioButton::sign_gap() const {
    return step_ == Step::narrow ? studio::half_grid : studio::grid;
}

bool StudioButton::is_cut() const {
    return has_face() && words_width() > 0 && !has_room_for(shown_text());
}

void StudioButton::paint_text(QPainter& painter, const QRect& area, const QColor& ink) const {
    const QFont shown = shown_font();
    painter.setFont(shown);
    painter.setPen(ink);
    const Qt::Alignment place = sign_ != Sign::none ? Qt::AlignLeft | Qt::AlignVCenter : Qt::AlignCenter;
    const int marks = marked_.isEmpty() ? 0 : Qt::TextShowMnemonic;
    const QString text = marked_.isEmpty() ? shown_text() : marked_;
    painter.drawText(area, static_cast<int>(place) | marks,
                     QFontMetrics{shown}.elidedText(text, Qt::ElideRight, area.width(), marks));
}

// Sign and words stand in the middle together. Returns the room of the words.
QRect StudioButton::paint_with_sign(QPainter& painter, const QRect& area, const QColor& ink) const {
    const int sign = std::min(sign_size(), area.width());
    const int words = words_width();
    const int gap = words == 0 ? 0 : sign_gap();
    const int left = area.left() + std::max(0, (area.width() - sign - gap - words) / 2);
    paint_sign(painter, sign_, QRectF(left, area.top(), sign, area.height()), sign, ink);
    const int after = left + sign + gap;
    return words == 0 ? QRect{} : QRect{after, area.top(), area.right() + 1 - after, area.height()};
}

// Pictures are drawn at twice their size and have a face of their own, whose edge is left out: the button draws its
// own. Returns the room that is left for text, which is none where there is no text for it.
QRect StudioButton::paint_picture(QPainter& painter, const QRect& area) const {
    const QPixmap& picture = shown_picture();
    const QRect source = !has_face() ? picture.rect() : inside(picture);
    const QSize size = !has_face()
                           ? picture.size().scaled(area.size(), Qt::KeepAspectRatio).boundedTo(picture.size())
                           : (source.size() / 2).scaled(area.size(), Qt::KeepAspectRatio).boundedTo(source.size() / 2);
    const int left = area.width() - size.width();
    const bool text = has_text_beside() && QFontMetrics{font()}.horizontalAdvance(shown_text()) < left - 4;
    QRect place{area.topLeft(), size};
    place.moveCenter({text ? area.left() + size.width() / 2 : area.center().x(), area.center().y()});
    // Of the picture's own face nothing shows where the button is lit.
    if (look_ != ButtonLook::picture)
        painter.setCompositionMode(QPainter::CompositionMode_Lighten);
    if (!isEnabled())
        painter.setOpacity(0.5);
    painter.drawPixmap(place, picture, source);
    painter.setOpacity(1);
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    return text ? QRect{place.right(), area.top(), area.right() - place.right(), area.height()} : QRect{};
}

} // namespace sonarelle
