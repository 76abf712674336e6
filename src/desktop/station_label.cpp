#include "desktop/station_label.h"

#include <QAccessible>
#include <QEnterEvent>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>
#include <algorithm>
#include <cmath>

#include "desktop/colours.h"
#include "desktop/figures.h"
#include "desktop/text_size.h"

namespace sonarelle {

namespace {

constexpr double capital_spacing = 107; // percent
constexpr int fitted_slack = 4;         // pixels: wide-spaced letters are measured a little short

} // namespace

StationLabel::StationLabel(const Style& style, QWidget* parent)
    : QWidget{parent} {
    set_style(style);
}

void StationLabel::set_style(const Style& style) {
    style_ = style;
    set_type();
    setSizePolicy(style.wrapped ? QSizePolicy::Expanding : QSizePolicy::Preferred,
                  style.wrapped ? QSizePolicy::MinimumExpanding : QSizePolicy::Fixed);
    updateGeometry();
}

void StationLabel::set_step(Step step) {
    step_ = step;
    set_type();
    updateGeometry();
}

void StationLabel::set_type() {
    QFont font = studio_font(style_.type, step_, style_.bold);
    if (style_.capitals) {
        font.setWeight(QFont::DemiBold);
        font.setLetterSpacing(QFont::PercentageSpacing, capital_spacing);
    }
    setFont(font);
}

void StationLabel::set_ink(const QColor& ink) {
    if (ink == ink_)
        return;
    ink_ = ink;
    update();
}

void StationLabel::set_text(const QString& text) {
    if (text == text_)
        return;
    const QString before = QAccessible::isActive() ? spoken() : QString{};
    text_ = text;
    if (style_.wrapped || style_.fitted)
        updateGeometry();
    update();
    if (QAccessible::isActive() && spoken() != before) {
        QAccessibleEvent renamed{this, QAccessible::NameChanged};
        QAccessible::updateAccessibility(&renamed);
    }
}

QString StationLabel::spoken() const {
    QString words = text_;
    if (style_.underlined)
        words.remove('&');
    if (accessibleName().isEmpty() || accessibleName() == words)
        return words;
    return pressable_ ? accessibleName() : accessibleName() + " : " + words;
}

void StationLabel::set_narrow_text(const QString& text) {
    if (text == narrow_text_)
        return;
    narrow_text_ = text;
    updateGeometry();
    update();
}

QString StationLabel::shown_text() const {
    if (narrow_text_.isEmpty())
        return whole();
    const bool has_room = step_ != Step::narrow && width_of(text_) <= width() - 2 * margin();
    return has_room ? text_ : narrow_text_;
}

void StationLabel::set_pressable(bool pressable) {
    pressable_ = pressable;
    setFocusPolicy(pressable ? Qt::TabFocus : Qt::NoFocus);
    setCursor(pressable ? Qt::PointingHandCursor : Qt::ArrowCursor);
}

void StationLabel::set_fill(const QColor& fill) {
    if (fill == fill_)
        return;
    fill_ = fill;
    update();
}

// The mark of a letter isn't drawn.
int StationLabel::width_of(const QString& text) const {
    QString drawn = text;
    if (style_.underlined)
        drawn.remove('&');
    return static_cast<int>(std::ceil(QFontMetricsF{font()}.horizontalAdvance(drawn)));
}

// Digits reach neither above capitals nor below the line.
int StationLabel::line_height() const {
    return style_.digits ? font().pixelSize() * 92 / 100 : fontMetrics().height() + 2;
}

QSize StationLabel::sizeHint() const {
    const int words =
        style_.fitted ? width_of(text_) + fitted_slack : fontMetrics().horizontalAdvance('0') * style_.characters;
    const int width = words + 2 * margin();
    return {width, style_.wrapped ? heightForWidth(width) : line_height() + (style_.framed ? 10 : 0)};
}

QSize StationLabel::minimumSizeHint() const {
    const int height = style_.digits ? line_height() : fontMetrics().height();
    if (!narrow_text_.isEmpty() && !style_.name)
        return {width_of(narrow_text_) + fitted_slack + 2 * margin(), height};
    const bool is_fixed = style_.digits || style_.framed || style_.fitted;
    return {is_fixed ? sizeHint().width() : fontMetrics().horizontalAdvance("000"), height};
}

int StationLabel::heightForWidth(int width) const {
    const QRect room{0, 0, width - 2 * margin(), 10000};
    return QFontMetrics{font()}.boundingRect(room, Qt::TextWordWrap, text_).height() + 8;
}

int StationLabel::width_of_text() const {
    return (style_.digits ? width_of_figures(font(), shown_text()) : width_of(shown_text())) + 2 * margin();
}

bool StationLabel::is_cut() const {
    return !style_.wrapped && !style_.shrinking && width_of_text() > width();
}

bool StationLabel::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip || !toolTip().isEmpty() || !is_cut())
        return QWidget::event(event);
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), whole(), this);
    return true;
}

void StationLabel::enterEvent(QEnterEvent* event) {
    QWidget::enterEvent(event);
    update();
}

void StationLabel::leaveEvent(QEvent* event) {
    QWidget::leaveEvent(event);
    update();
}

// A framed text lies on a plate of its own, which is lighter under the pointer and darker while it is pressed.
QColor StationLabel::ground() const {
    const QColor around = palette().color(QPalette::Window);
    if (fill_.isValid())
        return fill_;
    const bool is_plain = style_.flat && !down_ && !underMouse();
    if (!style_.framed || is_plain)
        return around;
    if (down_)
        return mixed(around, Qt::black, 0.35);
    return mixed(around, readable_on(around), underMouse() && isEnabled() ? 0.18 : 0.08);
}

QColor StationLabel::ink() const {
    const QColor told = palette().color(QPalette::WindowText);
    const QColor below = ground();
    if (ink_.isValid())
        return legible(ink_, below);
    return isEnabled() ? legible(style_.quiet ? mixed(told, below, 0.25) : told, below) : told;
}

void StationLabel::paint_frame(QPainter& painter) const {
    const QPen focus{studio::focus, 2};
    if (fill_.isValid())
        painter.fillRect(rect(), fill_);
    if (style_.framed) {
        painter.setPen(hasFocus() ? focus : style_.flat ? QPen{Qt::NoPen} : QPen{studio::line, 1});
        painter.setBrush(ground());
        painter.drawRoundedRect(QRectF{rect()}.adjusted(1, 1, -1, -1), 6, 6);
    } else if (hasFocus()) {
        painter.setPen(focus);
        painter.drawRoundedRect(QRectF{rect()}.adjusted(1, 1, -1, -1), 3, 3);
    }
}

void StationLabel::paintEvent(QPaintEvent*) {
    QPainter painter{this};
    painter.setRenderHint(QPainter::Antialiasing);
    paint_frame(painter);
    painter.setPen(ink());
    paint_text(painter, rect().adjusted(margin(), 0, -margin(), 0));
}

void StationLabel::paint_text(QPainter& painter, const QRect& area) const {
    if (style_.wrapped)
        painter.drawText(area, static_cast<int>(style_.alignment) | Qt::TextWordWrap, text_);
    else if (style_.digits) {
        painter.setFont(font_that_fits(area.width()));
        draw_figures(painter, area, style_.alignment, text_);
    } else
        paint_line(painter, area);
}

void StationLabel::paint_line(QPainter& painter, const QRect& area) const {
    const int marks = style_.underlined ? Qt::TextShowMnemonic : 0;
    painter.drawText(area, static_cast<int>(style_.alignment) | Qt::TextSingleLine | marks,
                     fontMetrics().elidedText(shown_text(), Qt::ElideRight, area.width(), marks));
}

QFont StationLabel::font_that_fits(int width) const {
    QFont font = this->font();
    if (const int total = width_of_figures(font, text_); style_.shrinking && total > width)
        font.setPixelSize(std::max(1, font.pixelSize() * width / total));
    return font;
}

// The background of the window takes the presses on a text that is no button.
void StationLabel::mousePressEvent(QMouseEvent* event) {
    event->setAccepted(pressable_ && event->button() == Qt::LeftButton);
    down_ = event->isAccepted();
    update();
}

void StationLabel::mouseReleaseEvent(QMouseEvent* event) {
    const bool pressed = pressable_ && event->button() == Qt::LeftButton && rect().contains(event->pos());
    event->setAccepted(pressed);
    down_ = false;
    update();
    if (pressed && on_press)
        on_press();
}

void StationLabel::keyPressEvent(QKeyEvent* event) {
    const bool pressed = pressable_ && (event->key() == Qt::Key_Space || event->key() == Qt::Key_Return);
    if (pressed && on_press)
        on_press();
    else
        QWidget::keyPressEvent(event);
}

} // namespace sonarelle
