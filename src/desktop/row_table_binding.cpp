#include "desktop/row_table_binding.h"

#include <QApplication>
#include <QEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <algorithm>
#include <utility>

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
        under_hand_ = false;
        run([&] { pressed_at_ ? table_.press() : table_.look_at(index.row() + 1); });
    });
    model_.on_edited = [this](int row, const std::string& text) { run([&] { table_.edit_label(row, text); }); };
    model_.on_selected = [this](int row) { select(row); };
    model_.on_shown = [this](int row) { scroll_to(row); };
    select(table.selected());
    view_.header().on_click = [this] { run([this] { table_.click_heading(); }); };
    table_.is_on_view = [this](int row) { return view_.is_on_view(row); };
    take_drops_on(*view_.viewport());
}

RowTableBinding::~RowTableBinding() {
    table_.is_on_view = nullptr;
}

void RowTableBinding::press(int row) {
    run([&] { table_.click(row); });
}

// The arrow keys choose a row as a click does. A table that merely gets the focus chooses none.
void RowTableBinding::rows_chosen(const QItemSelection& chosen) {
    if (!selecting_ && !under_hand_ && !chosen.isEmpty())
        press(chosen.first().top() + 1);
}

bool RowTableBinding::eventFilter(QObject* object, QEvent* event) {
    if (object == &view_ && (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut))
        table_.has_keyboard = event->type() == QEvent::FocusIn;
    if (object == &view_ && drags_ && event->type() == QEvent::KeyPress &&
        static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
        end_drag();
        run([this] { table_.end_drag(); });
        return true;
    }
    if (object == view_.viewport()) {
        if (drags_ && follow_drag(*event))
            return true;
        const bool is_mouse = event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseMove ||
                              event->type() == QEvent::MouseButtonRelease ||
                              event->type() == QEvent::MouseButtonDblClick;
        if (is_mouse && answer_mouse(*static_cast<QMouseEvent*>(event)))
            return true;
    }
    return Binding::eventFilter(object, event);
}

// A row is clicked when the hand lets it go, also one that is selected already; where the hand has left the place
// before that, it is dragged, and the list goes on where it did. The right button selects alone.
bool RowTableBinding::answer_mouse(const QMouseEvent& event) {
    const int row = view_.row_at(event.position().toPoint());
    switch (event.type()) {
    case QEvent::MouseButtonPress:
        under_hand_ = row > 0;
        pressed_at_.reset();
        if (event.button() == Qt::LeftButton && row > 0)
            pressed_at_ = event.position().toPoint();
        pressed_row_ = row;
        return false;
    case QEvent::MouseButtonDblClick:
        if (event.button() == Qt::LeftButton && row > 0)
            run([&] { table_.double_click(row); });
        return true;
    case QEvent::MouseMove:
        if (!pressed_at_ || !event.buttons().testFlag(Qt::LeftButton))
            return false;
        if ((event.position().toPoint() - *pressed_at_).manhattanLength() >= QApplication::startDragDistance())
            start_drag(pressed_row_);
        return true; // no row is chosen on the way
    default:
        if (std::exchange(pressed_at_, std::nullopt)) {
            run([this] { table_.end_drag(); });
            if (pressed_row_ <= table_.count())
                press(pressed_row_);
        }
        return false;
    }
}

void RowTableBinding::start_drag(int row) {
    pressed_at_.reset();
    drags_ = true;
    run([&] { dragged_ = table_.drag(row) ? row : 0; });
    view_.viewport()->setCursor(dragged_ > 0 ? Qt::DragMoveCursor : Qt::ForbiddenCursor);
}

// The line shows before which row it lands; at the edges the rows scroll along, and Escape ends it.
bool RowTableBinding::follow_drag(QEvent& event) {
    const bool is_move = event.type() == QEvent::MouseMove;
    // A box that came up has had the release.
    if (event.type() == QEvent::MouseButtonPress ||
        (is_move && !static_cast<QMouseEvent&>(event).buttons().testFlag(Qt::LeftButton))) {
        end_drag();
        run([this] { table_.end_drag(); });
        return false;
    }
    if (is_move) {
        const QPoint place = static_cast<QMouseEvent&>(event).position().toPoint();
        const int row = view_.row_at(place);
        if (dragged_ == 0)
            return true;
        view_.show_landing(row);
        if (place.y() < view_.rowHeight(0))
            view_.scrollTo(model_.index(std::max(row - 2, 0), 0));
        else if (place.y() > view_.viewport()->height() - view_.rowHeight(0) && row > 0)
            view_.scrollTo(model_.index(std::min(row, model_.rowCount() - 1), 0));
        return true;
    }
    if (event.type() != QEvent::MouseButtonRelease || static_cast<QMouseEvent&>(event).button() != Qt::LeftButton)
        return false;
    const QPoint place = static_cast<QMouseEvent&>(event).position().toPoint();
    const int target = dragged_ > 0 && view_.viewport()->rect().contains(place) ? view_.row_at(place) : 0;
    end_drag();
    run([&] { table_.drop(target); });
    return true;
}

void RowTableBinding::end_drag() {
    drags_ = false;
    dragged_ = 0;
    view_.show_landing(0);
    view_.viewport()->unsetCursor();
    select(table_.selected());
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
