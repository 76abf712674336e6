#pragma once

#include <QAbstractTableModel>
#include <functional>

#include "desktop/row_colours.h"
#include "desktop/update_queue.h"
#include "platform/row_table.h"

namespace sonarelle {

/// Which rows are on the air and next, counted from 1; 0 for none.
struct RowMarks {
    int playing = 0;
    int next = 0;
    friend bool operator==(const RowMarks&, const RowMarks&) = default;
};

/// The rows of a table, read where they are, and behind its columns one with the rows' numbers. What changes between
/// two paints is told to the view once, and many rows at a time as one new table.
class RowTableModel : public QAbstractTableModel, public Shown, private RowTableObserver {
public:
    RowTableModel(RowTable& table, UpdateQueue& updates);
    ~RowTableModel() override;
    RowTableModel(const RowTableModel&) = delete;
    RowTableModel& operator=(const RowTableModel&) = delete;

    /// The state of an index's row, as a RowState.
    static constexpr int state_role = Qt::UserRole;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : count_; }
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int number_column() const { return columnCount() - 1; }
    [[nodiscard]] const RowTable& table() const { return table_; }
    [[nodiscard]] QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;

    void show_value() override;
    /// Paints the marked rows anew if they are others.
    void set_marks(const RowMarks& marks);
    [[nodiscard]] const RowMarks& marks() const { return marks_; }
    void set_colours(const RowColours& colours) { colours_ = colours; }
    [[nodiscard]] const RowColours& colours() const { return colours_; }
    [[nodiscard]] RowState state_of(int row) const;

    /// Paints all rows anew: what `is_missing` says of them has changed.
    void repaint_all();

    /// Whether the file of a row's first cell isn't there; asked of the rows that are painted. Null: all are there.
    std::function<bool(const std::string& path)> is_missing;
    std::function<void(int row, const std::string& text)> on_edited;
    /// The table's selected row, and one that must be seen; row 0 for none.
    std::function<void(int row)> on_selected;
    std::function<void(int row)> on_shown;

private:
    enum class Change { none, cells, one_inserted, one_removed, many };

    void rows_reset() override { note(Change::many, 0); }
    void row_inserted(int row) override { note(Change::one_inserted, row); }
    void row_removed(int row) override { note(Change::one_removed, row); }
    void row_changed(int row) override { note(Change::cells, row); }
    void row_selected(int row) override;
    void row_shown(int row) override;
    void note(Change change, int row);
    void apply_change();
    void repaint_row(int row);
    [[nodiscard]] bool lacks_file(int row) const;
    [[nodiscard]] QVariant number_data(int row, int role) const;

    RowTable& table_;
    UpdateQueue& updates_;
    int count_ = 0;
    Change change_ = Change::none;
    int changed_row_ = 0;
    bool selection_waits_ = false;
    int shown_row_ = 0;
    RowMarks marks_;
    RowColours colours_;
};

} // namespace sonarelle
