#include "platform/row_table.h"

#include <algorithm>
#include <utility>

#include "platform/failure.h"
#include "platform/text.h"

namespace sonarelle {

std::size_t RowTable::index_of(int number) const {
    if (number < 1 || number > count())
        throw Failure{FailureNumber::not_in_selection, name() + " " + std::to_string(number)};
    return static_cast<std::size_t>(number) - 1;
}

void RowTable::clear() {
    rows_.clear();
    selected_ = 0;
    if (row_observer_ != nullptr)
        row_observer_->rows_reset();
}

void RowTable::insert(int number, Row row) {
    if (number != count() + 1)
        (void)index_of(number);
    rows_.insert(rows_.begin() + (number - 1), std::move(row));
    if (selected_ >= number)
        ++selected_;
    if (row_observer_ != nullptr)
        row_observer_->row_inserted(number);
}

// The selection stays on the row that it was on; when that one goes, on the one that takes its place.
void RowTable::remove(int number) {
    rows_.erase(rows_.begin() + static_cast<std::ptrdiff_t>(index_of(number)));
    if (selected_ > number || selected_ > count())
        --selected_;
    if (row_observer_ != nullptr)
        row_observer_->row_removed(number);
}

void RowTable::replace(int number, Row row) {
    rows_[index_of(number)] = std::move(row);
    if (row_observer_ != nullptr)
        row_observer_->row_changed(number);
}

void RowTable::press() {
    raise_by_hand(on_press);
}

void RowTable::double_click(int number) {
    if (!is_reachable())
        return;
    select(number);
    raise(on_double_click);
}

void RowTable::click_heading() {
    raise_by_hand(on_heading_click);
}

bool RowTable::drag(int number) {
    return is_reachable() && on_drag && on_drag(number);
}

void RowTable::drop(int target) {
    if (on_drop)
        on_drop(target);
    end_drag();
}

void RowTable::end_drag() {
    raise(on_drag_end);
}

void RowTable::click(int number) {
    if (!is_reachable())
        return;
    select(number);
    raise(on_click);
}

void RowTable::edit_label(int number, std::string text) {
    if (!is_reachable() || label_editing != LabelEditing::automatic)
        return;
    set_text(number, std::move(text));
    raise(on_label_edited);
}

void RowTable::set_sub_item(int number, std::size_t column, std::string text) {
    std::string& cell = rows_[index_of(number)][column];
    if (cell == text)
        return;
    cell = std::move(text);
    if (row_observer_ != nullptr)
        row_observer_->row_changed(number);
}

void RowTable::sort_by(std::size_t column, SortOrder order) {
    std::vector<std::pair<std::string, std::size_t>> keys;
    keys.reserve(rows_.size());
    for (std::size_t i = 0; i < rows_.size(); ++i)
        keys.emplace_back(lower_case(rows_[i][column]), i);
    std::ranges::stable_sort(keys, [order](const auto& a, const auto& b) {
        return order == SortOrder::ascending ? a.first < b.first : b.first < a.first;
    });
    std::vector<Row> sorted;
    sorted.reserve(rows_.size());
    int selected = 0;
    for (const auto& [key, index] : keys) {
        sorted.push_back(std::move(rows_[index]));
        if (static_cast<int>(index) + 1 == selected_)
            selected = static_cast<int>(sorted.size());
    }
    rows_ = std::move(sorted);
    selected_ = selected;
    if (row_observer_ != nullptr)
        row_observer_->rows_reset();
}

void RowTable::select(int number) {
    (void)index_of(number);
    selected_ = number;
    looked_at_ = false;
    if (row_observer_ != nullptr)
        row_observer_->row_selected(number);
}

void RowTable::look_at(int number) {
    select(number);
    looked_at_ = true;
}

void RowTable::ensure_visible(int number) {
    (void)index_of(number);
    if (row_observer_ != nullptr)
        row_observer_->row_shown(number);
}

} // namespace sonarelle
