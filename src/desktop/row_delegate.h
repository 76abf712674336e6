#pragma once

#include <QStyledItemDelegate>
#include <vector>

#include "desktop/row_header.h"
#include "desktop/row_table_model.h"

namespace sonarelle {

/// Draws the cells of a table: each row in the colours of its state, its sign beside its number.
class RowDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void set_columns(const std::vector<ColumnLook>& columns) { columns_ = columns; }
    void set_step(Step step);
    /// The row under the pointer, counted from 0; -1 for none.
    void set_row_under_pointer(int row) { row_under_pointer_ = row; }

    /// What the numbers' column needs for a table of so many rows.
    [[nodiscard]] int number_width(int rows) const;

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;

private:
    void paint_number(QPainter& painter, const QRect& area, const QString& number, RowState state,
                      const QColor& colour) const;
    void paint_text(QPainter& painter, const QRect& area, const QModelIndex& index, bool is_missing) const;
    [[nodiscard]] QFont font_of(Type type, RowState state) const;
    [[nodiscard]] int sign_size() const;

    std::vector<ColumnLook> columns_;
    Step step_ = Step::compact;
    int row_under_pointer_ = -1;
};

} // namespace sonarelle
