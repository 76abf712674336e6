#pragma once

#include <optional>

#include "desktop/binding.h"
#include "desktop/row_table_model.h"
#include "desktop/row_table_view.h"

namespace sonarelle {

/// A table of rows. A hundred thousand of them cost no widgets: the view asks for those that it paints.
class RowTableBinding : public Binding {
public:
    RowTableBinding(RowTable& table, RowTableView& widget, const DesktopServices& services);
    ~RowTableBinding() override;
    RowTableBinding(const RowTableBinding&) = delete;
    RowTableBinding& operator=(const RowTableBinding&) = delete;

    [[nodiscard]] RowTableModel& model() { return model_; }

protected:
    void show_state() override;
    void paint(QPalette& palette) const override;
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    void press(int row);
    bool answer_mouse(const QMouseEvent& event);
    bool follow_drag(QEvent& event);
    void start_drag(int row);
    void end_drag();
    void rows_chosen(const QItemSelection& chosen);
    [[nodiscard]] std::vector<ColumnLook> wished_columns() const;
    void select(int row);
    void scroll_to(int row);

    RowTable& table_;
    RowTableView& view_;
    RowTableModel model_;
    bool selecting_ = false;
    int pressed_row_ = 0;
    bool under_hand_ = false;          // a row is being pressed
    std::optional<QPoint> pressed_at_; // with the left button, on a row
    bool drags_ = false;               // the hand is on its way
    int dragged_ = 0;                  // row that it takes along; 0 where none may be taken
};

} // namespace sonarelle
