#pragma once

#include <QPointer>
#include <QTableView>

#include "desktop/row_delegate.h"
#include "desktop/stepped.h"

namespace sonarelle {

/// Shows the rows of a table, their numbers first. Its first column takes what the others leave. Letters are commands
/// of the window, so none of them looks for a row.
class RowTableView : public QTableView, public Stepped {
public:
    explicit RowTableView(QWidget* parent = nullptr);

    void show_rows(RowTableModel& model);
    void set_columns(std::vector<ColumnLook> columns);
    void set_step(Step step) override;
    /// Takes the model's colours.
    void show_colours();

    void keyboardSearch(const QString&) override {}

    /// Whether a row can be seen whole or in part, counted from 1.
    [[nodiscard]] bool is_on_view(int row) const;
    /// The row at a place, 0 for none.
    [[nodiscard]] int row_at(QPoint place) const { return rowAt(place.y()) + 1; }
    [[nodiscard]] RowHeader& header() const { return *header_; }
    /// A line where a row that is dragged would land, above this row; 0 takes it away.
    void show_landing(int row);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    bool viewportEvent(QEvent* event) override;

private:
    void fit_columns();
    void fit_numbers();
    void point_at(int row);
    void repaint_row(int row);

    QPointer<RowTableModel> rows_;
    RowHeader* header_;
    RowDelegate* delegate_;
    std::vector<ColumnLook> columns_;
    Step step_ = Step::compact;
    int row_under_pointer_ = -1;
    int landing_ = 0;
};

} // namespace sonarelle
