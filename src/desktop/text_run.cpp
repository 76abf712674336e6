#include "desktop/text_run.h"

#include <QPainter>
#include <algorithm>

#include "desktop/station_label.h"

namespace sonarelle {

namespace {

constexpr int joint = 18; // pixels between two texts

} // namespace

TextRunLayout::TextRunLayout(QWidget* parent)
    : QLayout{parent} {
    setContentsMargins(0, 0, 0, 0);
}

TextRunLayout::~TextRunLayout() {
    for (QLayoutItem* item : items_)
        delete item;
}

QLayoutItem* TextRunLayout::itemAt(int index) const {
    return index >= 0 && index < count() ? items_[static_cast<std::size_t>(index)] : nullptr;
}

QLayoutItem* TextRunLayout::takeAt(int index) {
    QLayoutItem* item = itemAt(index);
    if (item != nullptr)
        items_.erase(items_.begin() + index);
    return item;
}

QSize TextRunLayout::minimumSize() const {
    int height = 0;
    for (const QLayoutItem* item : items_)
        height = std::max(height, item->widget()->sizeHint().height());
    return {0, height};
}

void TextRunLayout::setGeometry(const QRect& area) {
    QLayout::setGeometry(area);
    joints_.clear();
    int end = area.left();
    for (const QLayoutItem* item : items_) {
        auto* text = static_cast<StationLabel*>(item->widget());
        if (item->isEmpty() || text->text().isEmpty())
            continue;
        const int start = end == area.left() ? end : end + joint;
        const int width = std::clamp(area.right() + 1 - start, 0, text->width_of_text());
        if (width > 0 && start > area.left())
            joints_.push_back(end + joint / 2);
        text->setGeometry({start, area.top(), width, area.height()});
        end = start + width;
    }
}

TextRun::TextRun(const std::vector<StationLabel*>& texts)
    : texts_{texts},
      layout_{new TextRunLayout{this}} {
    for (StationLabel* text : texts)
        layout_->addWidget(text);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

void TextRun::arrange() {
    for (StationLabel* text : texts_)
        if (text->text().isEmpty())
            text->hide();
    layout_->setGeometry(rect());
    update();
}

void TextRun::paintEvent(QPaintEvent*) {
    QPainter painter{this};
    painter.setFont(texts_.front()->font());
    painter.setPen(texts_.front()->ink());
    for (const int middle : layout_->joints())
        painter.drawText(QRect{middle - joint / 2, 0, joint, height()}, Qt::AlignCenter, "·");
}

} // namespace sonarelle
