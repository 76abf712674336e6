#include "desktop/row_table_binding.h"

#include <QEvent>

#include "desktop/colours.h"
#include "desktop/text_bindings.h"

namespace sonarelle {

namespace {

constexpr int twips_per_pixel = 15;

} // namespace

RowTableBinding::RowTableBinding(RowTable& table, RowTableView& widget, const DesktopServices& services)
    : Binding{table, widget, services},
      table_{table},
      view_{widget},
      model_{table, services.updates} {
    view_.show_rows(model_);
    view_.set_columns(wished_columns());
    view_.viewport()->installEventFilter(this);
    connect(view_.selectionModel(), &QItemSelectionModel::selectionChanged, this,
            [this](const QItemSelection& chosen) { rows_chosen(chosen); });
    connect(&view_, &QAbstractItemView::pressed, this, [this](const QModelIndex& index) {
        if (!chosen_by_press_)
            press(index.row() + 1);
    });
    model_.on_edited = [this](int row, const std::string& text) { run([&] { table_.edit_label(row, text); }); };
    model_.on_selected = [this](int row) { select(row); };
    model_.on_shown = [this](int row) { scroll_to(row); };
    select(table.selected());
}

void RowTableBinding::press(int row) {
    run([&] { table_.click(row); });
}

// The arrow keys choose a row as a press does. A table that merely gets the focus chooses none.
void RowTableBinding::rows_chosen(const QItemSelection& chosen) {
    if (selecting_ || chosen.isEmpty())
        return;
    chosen_by_press_ = true;
    press(chosen.first().top() + 1);
}

// A press on the row that is selected already is a press, too.
bool RowTableBinding::eventFilter(QObject* object, QEvent* event) {
    if (object == view_.viewport() && event->type() == QEvent::MouseButtonPress)
        chosen_by_press_ = false;
    return Binding::eventFilter(object, event);
}

// As wide as the station wishes, until a view knows better; the first takes what the others leave.
std::vector<ColumnLook> RowTableBinding::wished_columns() const {
    std::vector<ColumnLook> looks;
    for (const Column& column : table_.columns()) {
        const int width = looks.empty() ? 0 : column.width.count() / twips_per_pixel;
        looks.push_back({.narrow = width, .compact = width, .large = width});
    }
    return looks;
}

void RowTableBinding::show_state() {
    const QColor ground = field_ground(table_);
    model_.set_colours({ground, legible(to_qt(table_.fore_colour, readable_on(ground)), ground)});
    view_.show_colours();
}

void RowTableBinding::paint(QPalette& palette) const {
    paint_text_field(palette, control());
}

// What the station selects is no press of the operator.
void RowTableBinding::select(int row) {
    selecting_ = true;
    if (row >= 1 && row <= model_.rowCount())
        view_.selectionModel()->setCurrentIndex(model_.index(row - 1, 0),
                                                QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    else
        view_.selectionModel()->clear();
    selecting_ = false;
}

void RowTableBinding::scroll_to(int row) {
    if (row <= model_.rowCount())
        view_.scrollTo(model_.index(row - 1, 0));
}

} // namespace sonarelle
