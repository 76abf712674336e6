#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/control.h"
#include "platform/units.h"

namespace sonarelle {

struct Column {
    std::string caption;
    Twips width;
};

enum class SortOrder { ascending, descending };

/// Whether a press on the selected row's text begins to edit it, or only a call of the program does.
enum class LabelEditing { automatic, manual };

/// Who shows a table's rows. Row numbers count from 1.
class RowTableObserver {
public:
    virtual ~RowTableObserver() = default;
    virtual void rows_reset() = 0;
    virtual void row_inserted(int row) = 0;
    virtual void row_removed(int row) = 0;
    virtual void row_changed(int row) = 0;
    virtual void row_selected(int row) = 0;
    virtual void row_shown(int row) = 0;
};

/// Rows of a text (column 0) and sub-items, numbered from 1: the one model of the list that they hold. Any number of
/// rows; showing them costs nothing until an observer is there.
/// @throws Failure 9 for a row that doesn't exist.
class RowTable : public Control {
public:
    static constexpr std::size_t column_count = 6;
    using Row = std::array<std::string, column_count>;

    RowTable(Window& parent, std::string name, std::vector<Column> columns)
        : Control{parent, ControlKind::row_table, std::move(name)},
          columns_{std::move(columns)} {}

    [[nodiscard]] const std::vector<Column>& columns() const { return columns_; }
    void observe_rows(RowTableObserver* observer) { row_observer_ = observer; }

    [[nodiscard]] int count() const { return static_cast<int>(rows_.size()); }
    [[nodiscard]] const Row& row(int number) const { return rows_[index_of(number)]; }
    [[nodiscard]] const std::string& text(int number) const { return row(number)[0]; }
    [[nodiscard]] const std::string& sub_item(int number, std::size_t column) const { return row(number)[column]; }

    void clear();
    /// Rows behind `number` move down; `count() + 1` adds at the end.
    void insert(int number, Row row);
    void append(Row row) { insert(count() + 1, std::move(row)); }
    void remove(int number);
    /// Puts a row in the place of another, as removing it and adding the new one there does; the selection stays.
    void replace(int number, Row row);
    void set_text(int number, std::string text) { set_sub_item(number, 0, std::move(text)); }
    void set_sub_item(int number, std::size_t column, std::string text);
    /// Sorts by the texts of a column, ignoring case; equal ones keep their order. The selection goes with its row.
    void sort_by(std::size_t column, SortOrder order = SortOrder::ascending);

    /// The selected row, 0 for none.
    [[nodiscard]] int selected() const { return selected_; }
    void select(int number);
    /// The same of a row that is only looked at: nothing goes on behind it.
    void look_at(int number);
    [[nodiscard]] bool is_looked_at() const { return looked_at_; }
    /// Scrolls a row into view.
    void ensure_visible(int number);

    /// The operator presses a row: it is selected, and the click raised. The button is down before that.
    void press();
    void click(int number);
    void double_click(int number);
    /// He presses a heading.
    void click_heading();
    /// He takes a row elsewhere: false where it can't be taken.
    [[nodiscard]] bool drag(int number);
    /// He lets it go over another row, 0 for none of them; then the drag has ended, as it has without a drop.
    void drop(int target);
    void end_drag();
    /// The operator has typed another text over that of a row. Nothing when labels are edited manually.
    void edit_label(int number, std::string text);

    Property<LabelEditing> label_editing{*this, LabelEditing::manual};
    bool has_keyboard = false;               ///< What is typed is for the rows first.
    std::function<bool(int row)> is_on_view; ///< Asked of the screen; without one every row is.
    [[nodiscard]] bool is_row_on_view(int row) const { return row > 0 && (!is_on_view || is_on_view(row)); }
    std::function<void()> on_press;
    std::function<void()> on_click;
    std::function<void()> on_double_click; ///< Of the selected row.
    std::function<void()> on_heading_click;
    std::function<bool(int row)> on_drag;
    std::function<void(int target)> on_drop;
    std::function<void()> on_drag_end;
    std::function<void()> on_label_edited;

private:
    [[nodiscard]] std::size_t index_of(int number) const;

    std::vector<Column> columns_;
    std::vector<Row> rows_;
    int selected_ = 0;
    bool looked_at_ = false; // the selected row
    RowTableObserver* row_observer_ = nullptr;
};

} // namespace sonarelle
