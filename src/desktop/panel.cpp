#include "desktop/panel.h"

#include <QBoxLayout>
#include <QPainter>

#include "desktop/colours.h"
#include "desktop/text_size.h"

namespace sonarelle {

Panel::Panel(QWidget* parent)
    : QWidget{parent},
      plate_{studio::card} {
    setMouseTracking(true);
    tell_ground();
}

void Panel::set_plate(const QColor& plate) {
    plate_ = plate;
    tell_ground();
}

void Panel::tell_ground() {
    QPalette told = palette();
    told.setColor(QPalette::Window, card());
    setPalette(told);
}

// A light plate, under a dark ink, takes a breath of the accent.
QColor Panel::card() const {
    if (accent_ == Accent::none || plate_ != studio::card)
        return mixed(plate_, colour_of(accent_), accent_ == Accent::none ? 0 : 0.12);
    return accent_ == Accent::air    ? studio::air_card
           : accent_ == Accent::next ? studio::next_card
                                     : studio::trouble_card;
}

void Panel::set_accent(Accent accent) {
    if (accent == accent_)
        return;
    accent_ = accent;
    tell_ground();
    update();
}

void Panel::paintEvent(QPaintEvent*) {
    QPainter painter{this};
    painter.setRenderHint(QPainter::Antialiasing);
    const double line = accent_ == Accent::none ? 1 : 2;
    painter.setBrush(card());
    painter.setPen(QPen{colour_of(accent_), line});
    painter.drawRoundedRect(QRectF{rect()}.adjusted(line / 2, line / 2, -line / 2, -line / 2), studio::card_radius,
                            studio::card_radius);
}

Lamp::Lamp(QWidget* parent)
    : QWidget{parent} {
    set_step(Step::compact);
}

void Lamp::set_step(Step step) {
    const int size = scaled(step == Step::large ? 14 : 10);
    setFixedSize(size, size);
}

void Lamp::set_accent(Accent accent) {
    if (accent == accent_)
        return;
    accent_ = accent;
    update();
}

void Lamp::paintEvent(QPaintEvent*) {
    QPainter painter{this};
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    const QColor colour = accent_ == Accent::none ? studio::field_line : colour_of(accent_);
    painter.setBrush(colour);
    painter.drawEllipse(rect());
}

namespace {

QBoxLayout* box_of(QBoxLayout::Direction direction, std::initializer_list<QWidget*> widgets, int spacing) {
    auto* box = new QBoxLayout{direction};
    box->setContentsMargins(0, 0, 0, 0);
    box->setSpacing(spacing);
    for (QWidget* widget : widgets)
        if (widget == nullptr)
            box->addStretch(1);
        else
            box->addWidget(widget);
    return box;
}

} // namespace

QBoxLayout* row_of(std::initializer_list<QWidget*> widgets, int spacing) {
    return box_of(QBoxLayout::LeftToRight, widgets, spacing);
}

QBoxLayout* column_of(std::initializer_list<QWidget*> widgets, int spacing) {
    return box_of(QBoxLayout::TopToBottom, widgets, spacing);
}

} // namespace sonarelle
