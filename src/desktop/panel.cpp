#include "desktop/panel.h"

#include <QBoxLayout>
#include <QPainter>

#include "desktop/colours.h"

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
    told.setColor(QPalette::Window, accent_ == Accent::air ? mixed(plate_, studio::air, 0.10) : plate_);
    setPalette(told);
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
    QColor plate = palette().color(QPalette::Window);
    plate.setAlphaF(0.94F);
    painter.setBrush(plate);
    painter.setPen(
        QPen{accent_ == Accent::none ? studio::line : colour_of(accent_), accent_ == Accent::none ? 1.0 : 2.0});
    painter.drawRoundedRect(QRectF{rect()}.adjusted(1, 1, -1, -1), 8, 8);
}

Lamp::Lamp(QWidget* parent)
    : QWidget{parent} {
    setFixedSize(14, 14);
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
    const QColor colour = colour_of(accent_);
    if (accent_ != Accent::none) {
        QColor glow = colour;
        glow.setAlphaF(0.3F);
        painter.setBrush(glow);
        painter.drawEllipse(rect());
    }
    painter.setBrush(colour);
    painter.drawEllipse(rect().adjusted(2, 2, -2, -2));
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
