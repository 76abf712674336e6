#include "desktop/row_table_view.h"

#include <QHoverEvent>
#include <QKeyEvent>
#include <QPainter>
#include <algorithm>
#include <utility>

#include "desktop/text_size.h"

namespace sonarelle {

namespace {

constexpr int edge = 2;          // pixels, of the selection and of the focus
constexpr int number_width = 56; // pixels, for as long as the numbers need no more
constexpr int number_width_large = 72;

} // namespace

RowTableView::RowTableView(QWidget* parent)
    : QTableView{parent},
      header_{new RowHeader{this}},
      delegate_{new RowDelegate{this}} {
    setHorizontalHeader(header_);
    setItemDelegate(delegate_);
    setFrameShape(QFrame::NoFrame);
    setSelectionBehavior(SelectRows);
    setSelectionMode(SingleSelection);
    setShowGrid(false);
    setWordWrap(false);
    setTabKeyNavigation(false);
    setEditTriggers(SelectedClicked);
    setVerticalScrollMode(ScrollPerItem);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setMinimumSectionSize(1);
    viewport()->setAttribute(Qt::WA_Hover);
}

void RowTableView::show_rows(RowTableModel& model) {
    rows_ = &model;
    setModel(&model);
    header_->moveSection(model.number_column(), 0);
    header_->setSectionResizeMode(QHeaderView::Fixed);
    header_->setSectionResizeMode(0, QHeaderView::Stretch);
    for (const auto change : {&QAbstractItemModel::rowsInserted, &QAbstractItemModel::rowsRemoved})
        connect(&model, change, this, [this] { fit_numbers(); });
    connect(&model, &QAbstractItemModel::modelReset, this, [this] { fit_numbers(); });
    set_step(step_);
    show_colours();
}

void RowTableView::set_columns(std::vector<ColumnLook> columns) {
    columns_ = std::move(columns);
    header_->set_columns(columns_);
    delegate_->set_columns(columns_);
    fit_columns();
}

void RowTableView::set_step(Step step) {
    step_ = step;
    header_->set_step(step);
    delegate_->set_step(step);
    setFont(studio_font(Type::row, step)); // of the field in which a path is edited
    verticalHeader()->setDefaultSectionSize(scaled(list_lengths_of(step).row));
    fit_columns();
    updateGeometries();
}

void RowTableView::show_colours() {
    header_->set_colours(rows_->colours());
    viewport()->update();
}

void RowTableView::fit_columns() {
    if (rows_.isNull())
        return;
    for (std::size_t column = 0; column < columns_.size(); ++column)
        if (const int width = columns_[column].width(step_); width > 0)
            setColumnWidth(static_cast<int>(column), width);
    fit_numbers();
}

void RowTableView::fit_numbers() {
    const int least = scaled(step_ == Step::large ? number_width_large : number_width);
    setColumnWidth(rows_->number_column(), std::max(least, delegate_->number_width(rows_->rowCount())));
}

// The selected row has an edge, which is bright while the rows have the keyboard. While no row is selected the edge is
// the table's.
void RowTableView::paintEvent(QPaintEvent* event) {
    QTableView::paintEvent(event);
    if (landing_ > 0)
        QPainter{viewport()}.fillRect(0, std::max(rowViewportPosition(landing_ - 1) - edge, 0), viewport()->width(),
                                      2 * edge, studio::focus);
    const QModelIndex selected = selectionModel() == nullptr ? QModelIndex{} : selectionModel()->currentIndex();
    if (rows_.isNull() || (!selected.isValid() && !hasFocus()))
        return;
    QRect area = viewport()->rect();
    QColor colour = rows_->colours().look(RowState::plain, false, false).edge;
    if (selected.isValid()) {
        area.setTop(rowViewportPosition(selected.row()));
        area.setHeight(rowHeight(selected.row()));
        colour = rows_->colours().look(rows_->state_of(selected.row() + 1), true, false).edge;
    }
    if (!hasFocus())
        colour.setAlphaF(0.5F);
    QPainter painter{viewport()};
    painter.setPen(QPen{colour, edge, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin});
    painter.drawRect(area.adjusted(edge / 2, edge / 2, -edge / 2, -edge / 2));
}

bool RowTableView::is_on_view(int row) const {
    const int top = rowViewportPosition(row - 1);
    return row >= 1 && top + rowHeight(row - 1) > 0 && top < viewport()->height();
}

void RowTableView::show_landing(int row) {
    if (std::exchange(landing_, row) != row)
        viewport()->update();
}

// Return, the space bar and letters are commands of the window, which has had them.
void RowTableView::keyPressEvent(QKeyEvent* event) {
    if (!event->text().isEmpty() && state() != EditingState)
        return event->ignore();
    QTableView::keyPressEvent(event);
}

bool RowTableView::viewportEvent(QEvent* event) {
    switch (event->type()) {
    case QEvent::HoverEnter:
    case QEvent::HoverMove:
        point_at(rowAt(static_cast<QHoverEvent*>(event)->position().toPoint().y()));
        break;
    case QEvent::HoverLeave:
        point_at(-1);
        break;
    default:
        break;
    }
    return QTableView::viewportEvent(event);
}

void RowTableView::point_at(int row) {
    if (row == row_under_pointer_)
        return;
    repaint_row(std::exchange(row_under_pointer_, row));
    repaint_row(row);
    delegate_->set_row_under_pointer(row);
}

void RowTableView::repaint_row(int row) {
    if (row >= 0)
        viewport()->update(0, rowViewportPosition(row), viewport()->width(), rowHeight(row));
}

} // namespace sonarelle
