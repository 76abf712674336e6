#include "desktop/row_colours.h"

#include "desktop/colours.h"

namespace sonarelle {

namespace {

constexpr double seen_edge = 2; // contrast of a line of two pixels
constexpr double pointer_share = 0.08;

} // namespace

RowColours::RowColours(const QColor& ground, const QColor& ink)
    : ground_{ground},
      ink_{ink},
      dark_{readable_on(ground) == Qt::white} {}

QColor RowColours::shaded(double on_light, double on_dark) const {
    return dark_ ? mixed(ground_, Qt::white, on_dark) : mixed(ground_, Qt::black, on_light);
}

QColor RowColours::heading() const {
    return legible(ink_, head());
}

QColor RowColours::ground_of(RowState state, bool selected) const {
    switch (state) {
    case RowState::air:
        return dark_ ? studio::air_fill : studio::air_row;
    case RowState::next:
        return dark_ ? studio::next_row_dark : studio::next_row;
    case RowState::missing:
        return dark_ ? studio::missing_row_dark : studio::missing_row;
    case RowState::plain:
        break;
    }
    if (selected)
        return dark_ ? studio::selection : studio::selected_row;
    return ground_;
}

QColor RowColours::ink_of(RowState state, bool selected) const {
    if (state == RowState::missing)
        return dark_ ? studio::trouble_text : studio::on_missing_row;
    return state == RowState::plain && selected ? QColor{Qt::white} : ink_;
}

RowColours::Look RowColours::look(RowState state, bool selected, bool under_pointer) const {
    QColor ground = ground_of(state, selected);
    if (under_pointer)
        ground = mixed(ground, dark_ || selected ? Qt::white : Qt::black, pointer_share);
    const QColor ink = legible(ink_of(state, selected), ground);
    const QColor sign = !dark_                    ? ink
                        : state == RowState::air  ? studio::air
                        : state == RowState::next ? studio::next
                                                  : ink;
    return {ground, ink, sign, contrast(studio::focus, ground) >= seen_edge ? studio::focus : studio::window};
}

} // namespace sonarelle
