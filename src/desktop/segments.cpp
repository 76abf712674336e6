#include "desktop/segments.h"

#include <QBoxLayout>
#include <QMouseEvent>
#include <QPainter>
#include <QRadioButton>
#include <utility>

#include "desktop/colours.h"
#include "desktop/studio_button.h"
#include "desktop/text_size.h"

namespace sonarelle {

namespace {

constexpr int frame = 3; // pixels: the line round the choice, and what parts it from its segments
constexpr int lamp_height = 18;

} // namespace

Segment::Segment(StudioButton& lamp, QRadioButton& words)
    : lamp_{lamp},
      words_{words} {
    setMouseTracking(true);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    lamp_.setFixedSize(0, lamp_height);
    auto* row = new QHBoxLayout{this};
    row->setSpacing(0);
    row->addStretch(1);
    row->addWidget(&lamp_);
    row->addWidget(&words_);
    row->addStretch(1);
    tell_ground();
}

void Segment::set_step(Step step) {
    const bool is_narrow = step == Step::narrow;
    QFont font = studio_font(is_narrow ? Type::small : Type::base, step);
    font.setWeight(QFont::DemiBold);
    words_.setFont(font);
    lamp_width_ = is_narrow ? 12 : lamp_height;
    const int side = is_narrow ? 2 : 8;
    layout()->setContentsMargins(side, 0, side, 0);
    show_choice();
}

void Segment::show_choice() {
    lit_ = words_.isChecked();
    lamp_.set_accent(!lit_ ? Accent::none : alarm_ ? Accent::primary : Accent::air);
    lamp_.setFixedSize(lit_ ? lamp_width_ : 0, lamp_height);
    layout()->activate(); // at once: nothing moves later
    tell_ground();
    update();
}

void Segment::set_alarm(bool alarm) {
    if (std::exchange(alarm_, alarm) != alarm)
        show_choice();
}

QColor Segment::ground() const {
    if (lit_)
        return alarm_ ? studio::trouble_fill : studio::air_fill;
    return underMouse() && isEnabled() ? studio::control : studio::well;
}

void Segment::tell_ground() {
    QPalette told = palette();
    told.setColor(QPalette::Window, ground());
    setPalette(told);
}

void Segment::enterEvent(QEnterEvent*) {
    tell_ground();
    update();
}

void Segment::leaveEvent(QEvent*) {
    tell_ground();
    update();
}

void Segment::mousePressEvent(QMouseEvent* event) {
    event->setAccepted(event->button() == Qt::LeftButton);
}

void Segment::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && rect().contains(event->pos()))
        words_.click();
}

void Segment::paintEvent(QPaintEvent*) {
    if (ground() == studio::well)
        return;
    QPainter painter{this};
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(ground());
    painter.drawRoundedRect(rect(), studio::small_radius, studio::small_radius);
}

SegmentedChoice::SegmentedChoice(const std::vector<Segment*>& segments)
    : segments_{segments} {
    auto* row = new QHBoxLayout{this};
    row->setContentsMargins(frame, frame, frame, frame);
    row->setSpacing(2);
    for (Segment* segment : segments)
        row->addWidget(segment);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    set_step(Step::compact);
}

void SegmentedChoice::set_alarm(bool alarm) {
    for (Segment* segment : segments_)
        segment->set_alarm(alarm);
}

void SegmentedChoice::set_step(Step step) {
    setFixedHeight(scaled(lengths_of(step).control));
}

void SegmentedChoice::paintEvent(QPaintEvent*) {
    QPainter painter{this};
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen{studio::line, 1});
    painter.setBrush(studio::well);
    painter.drawRoundedRect(QRectF{rect()}.adjusted(0.5, 0.5, -0.5, -0.5), studio::radius, studio::radius);
}

} // namespace sonarelle
