#include "desktop/flow_layout.h"

#include <algorithm>

namespace sonarelle {

namespace {
constexpr int gap = 6;
} // namespace

FlowLayout::FlowLayout(QWidget* parent)
    : QLayout{parent} {
    setContentsMargins(0, 0, 0, 0);
}

FlowLayout::~FlowLayout() {
    for (QLayoutItem* item : items_)
        delete item;
}

QLayoutItem* FlowLayout::itemAt(int index) const {
    return index >= 0 && index < count() ? items_[static_cast<std::size_t>(index)] : nullptr;
}

QLayoutItem* FlowLayout::takeAt(int index) {
    QLayoutItem* item = itemAt(index);
    if (item != nullptr)
        items_.erase(items_.begin() + index);
    return item;
}

QSize FlowLayout::minimumSize() const {
    QSize size;
    for (const QLayoutItem* item : items_)
        if (!item->isEmpty())
            size = size.expandedTo(item->minimumSize());
    return size;
}

void FlowLayout::setGeometry(const QRect& area) {
    QLayout::setGeometry(area);
    arrange(area, true);
}

// Returns the height.
int FlowLayout::arrange(const QRect& area, bool place) const {
    int x = area.x();
    int y = area.y();
    int line_height = 0;
    for (QLayoutItem* item : items_) {
        if (item->isEmpty())
            continue;
        const QSize size = item->sizeHint();
        if (x + size.width() > area.right() + 1 && line_height > 0) {
            x = area.x();
            y += line_height + gap;
            line_height = 0;
        }
        if (place)
            item->setGeometry({QPoint{x, y}, size});
        x += size.width() + gap;
        line_height = std::max(line_height, size.height());
    }
    return y + line_height - area.y();
}

} // namespace sonarelle
