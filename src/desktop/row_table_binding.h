#pragma once

#include "desktop/binding.h"
#include "desktop/row_table_model.h"
#include "desktop/row_table_view.h"

namespace sonarelle {

/// A table of rows. A hundred thousand of them cost no widgets: the view asks for those that it paints.
class RowTableBinding : public Binding {
public:
    RowTableBinding(RowTable& table, RowTableView& widget, const DesktopServices& services);

    [[nodiscard]] RowTableModel& model() { return model_; }

protected:
    void show_state() override;
    void paint(QPalette& palette) const override;
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    void press(int row);
    void rows_chosen(const QItemSelection& chosen);
    [[nodiscard]] std::vector<ColumnLook> wished_columns() const;
    void select(int row);
    void scroll_to(int row);

    RowTable& table_;
    RowTableView& view_;
    RowTableModel model_;
    bool selecting_ = false;
    bool chosen_by_press_ = false;
};

} // namespace sonarelle
