#include "desktop/row_delegate.h"

#include <QPainter>
#include <array>

#include "desktop/figures.h"
#include "desktop/signs.h"
#include "desktop/text_size.h"

namespace sonarelle {

namespace {

constexpr std::array state_signs{Sign::none, Sign::play, Sign::zap, Sign::warn};

const RowTableModel& model_of(const QModelIndex& index) {
    return *static_cast<const RowTableModel*>(index.model());
}

} // namespace

void RowDelegate::set_step(Step step) {
    step_ = step;
}

int RowDelegate::sign_size() const {
    return scaled(lengths_of(step_).sign - 2);
}

QFont RowDelegate::font_of(Type type, RowState state) const {
    QFont font = studio_font(type, step_, state == RowState::air);
    if (state == RowState::next)
        font.setWeight(QFont::DemiBold);
    return font;
}

int RowDelegate::number_width(int rows) const {
    return 2 * studio::grid + sign_size() + scaled(studio::half_grid) +
           width_of_figures(font_of(Type::small, RowState::air), QString::number(std::max(rows, 1)));
}

void RowDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const {
    const RowTableModel& model = model_of(index);
    const auto state = static_cast<RowState>(index.data(RowTableModel::state_role).toInt());
    const bool selected = option.state.testFlag(QStyle::State_Selected);
    const auto look = model.colours().look(state, selected, index.row() == row_under_pointer_);
    painter->save();
    painter->fillRect(option.rect, look.ground);
    painter->fillRect(QRect{option.rect.left(), option.rect.bottom(), option.rect.width(), 1}, model.colours().line());
    painter->setPen(look.ink);
    if (index.column() == model.number_column()) {
        painter->setFont(font_of(Type::small, state));
        paint_number(*painter, option.rect, index.data().toString(), state, look.sign);
    } else {
        painter->setFont(font_of(Type::row, state));
        paint_text(*painter, option.rect, index, state == RowState::missing);
    }
    painter->restore();
}

void RowDelegate::paint_number(QPainter& painter, const QRect& area, const QString& number, RowState state,
                               const QColor& colour) const {
    const QRect room = area.adjusted(0, 0, -studio::grid, 0);
    draw_figures(painter, room, Qt::AlignRight, number);
    const int size = sign_size();
    const int left = room.right() + 1 - width_of_figures(painter.font(), number) - scaled(studio::half_grid);
    paint_sign(painter, state_signs[static_cast<std::size_t>(state)],
               QRectF(left - size, area.top(), size, area.height()), size, colour);
}

// The names of files begin alike and differ at their end, so a path that is too long loses its middle.
void RowDelegate::paint_text(QPainter& painter, const QRect& area, const QModelIndex& index, bool is_missing) const {
    const auto place = static_cast<std::size_t>(index.column());
    const QRect room = area.adjusted(studio::grid, 0, -studio::grid, 0);
    const QString text = index.data().toString();
    if (place < columns_.size() && columns_[place].figures)
        return draw_figures(painter, room, Qt::AlignRight, text);
    QFont font = painter.font();
    font.setStrikeOut(is_missing && index.column() == 0);
    painter.setFont(font);
    const auto elide = index.column() == 0 ? Qt::ElideMiddle : Qt::ElideRight;
    painter.drawText(room, Qt::AlignLeft | Qt::AlignVCenter,
                     painter.fontMetrics().elidedText(text, elide, room.width()));
}

} // namespace sonarelle
