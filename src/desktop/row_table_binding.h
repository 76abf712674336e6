#pragma once

#include <QHeaderView>
#include <QTableView>

#include "desktop/binding.h"
#include "desktop/row_table_model.h"

namespace sonarelle {

/// A table of rows. A hundred thousand of them cost no widgets: the view asks for those that it paints.
class RowTableBinding : public Binding {
public:
    RowTableBinding(RowTable& table, QTableView& widget, const DesktopServices& services);

    [[nodiscard]] RowTableModel& model() { return model_; }

protected:
    void show_state() override;
    void paint(QPalette& palette) const override;
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    void press(int row);
    void rows_chosen(const QItemSelection& chosen);
    void dress();
    void dress_header(QHeaderView& header);
    void select(int row);
    void scroll_to(int row);

    RowTable& table_;
    QTableView& view_;
    RowTableModel model_;
    bool selecting_ = false;
    bool chosen_by_press_ = false;
};

} // namespace sonarelle
