#include "desktop/row_header.h"

#include <QMouseEvent>
#include <QPainter>

#include "desktop/text_size.h"

namespace sonarelle {

int ColumnLook::width(Step step) const {
    return scaled(step == Step::large ? large : step == Step::narrow ? narrow : compact);
}

RowHeader::RowHeader(QWidget* parent)
    : QHeaderView{Qt::Horizontal, parent},
      colours_{studio::well, studio::text} {
    setSectionsClickable(false);
    setHighlightSections(false);
    setMinimumSectionSize(1);
    set_step(step_);
}

void RowHeader::set_step(Step step) {
    step_ = step;
    setFont(studio_font(Type::small, step, true));
    setFixedHeight(scaled(list_lengths_of(step).head));
    viewport()->update();
}

void RowHeader::set_colours(const RowColours& colours) {
    colours_ = colours;
    viewport()->update();
}

QString RowHeader::heading(int section) const {
    const auto place = static_cast<std::size_t>(section);
    const bool is_short = step_ == Step::narrow && place < columns_.size() && !columns_[place].short_heading.isEmpty();
    return is_short ? columns_[place].short_heading
                    : model()->headerData(section, orientation(), Qt::DisplayRole).toString().trimmed();
}

void RowHeader::mouseReleaseEvent(QMouseEvent* event) {
    QHeaderView::mouseReleaseEvent(event);
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint()) && on_click)
        on_click();
}

void RowHeader::paintEvent(QPaintEvent* event) {
    QPainter{viewport()}.fillRect(viewport()->rect(), colours_.head());
    QHeaderView::paintEvent(event);
}

void RowHeader::paintSection(QPainter* painter, const QRect& area, int section) const {
    const auto place = static_cast<std::size_t>(section);
    const bool right = place >= columns_.size() || columns_[place].figures; // the numbers are last
    const QRect room = area.adjusted(studio::grid, 0, -studio::grid, 0);
    painter->fillRect(area, colours_.head());
    painter->setFont(font());
    painter->setPen(colours_.heading());
    const Qt::Alignment side = (right ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter;
    painter->drawText(room, static_cast<int>(side),
                      painter->fontMetrics().elidedText(heading(section), Qt::ElideRight, room.width()));
}

} // namespace sonarelle
