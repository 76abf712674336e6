#include "desktop/row_table_binding.h"

#include <QEvent>
#include <QHeaderView>
#include <QPainter>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <algorithm>

#include "desktop/colours.h"
#include "desktop/text_bindings.h"

namespace sonarelle {

namespace {

constexpr int twips_per_pixel = 15;
constexpr int widest_other = 104;

/// Leaves the row on the air and the next one their colours when they are selected: an edge shows the selection.
class MarkedRowDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        QStyleOptionViewItem shown = option;
        const bool marked = index.data(Qt::BackgroundRole).isValid();
        const bool selected = option.state.testFlag(QStyle::State_Selected);
        if (marked)
            shown.state &= ~QStyle::State_Selected;
        shown.state &= ~QStyle::State_HasFocus;
        QStyledItemDelegate::paint(painter, shown, index);
        if (!marked || !selected)
            return;
        painter->setPen(QPen{option.palette.color(QPalette::Highlight), 2});
        painter->drawLine(option.rect.topLeft(), option.rect.topRight());
        painter->drawLine(option.rect.bottomLeft(), option.rect.bottomRight());
    }
};

} // namespace

RowTableBinding::RowTableBinding(RowTable& table, QTableView& widget, const DesktopServices& services)
    : Binding{table, widget, services},
      table_{table},
      view_{widget},
      model_{table, services.updates} {
    view_.setModel(&model_);
    dress();
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

void RowTableBinding::dress() {
    view_.setSelectionBehavior(QAbstractItemView::SelectRows);
    view_.setSelectionMode(QAbstractItemView::SingleSelection);
    view_.setShowGrid(false);
    view_.setWordWrap(false);
    view_.setTabKeyNavigation(false);
    view_.setEditTriggers(QAbstractItemView::SelectedClicked);
    view_.setVerticalScrollMode(QAbstractItemView::ScrollPerItem);
    view_.verticalHeader()->hide();
    view_.verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    view_.verticalHeader()->setDefaultSectionSize(view_.fontMetrics().height() + 10);
    view_.setItemDelegate(new MarkedRowDelegate{&view_});
    embolden(*view_.horizontalHeader());
    dress_header(*view_.horizontalHeader());
}

// The first column takes what the others leave; their captions have two lines.
void RowTableBinding::dress_header(QHeaderView& header) {
    QFont font = header.font();
    font.setPixelSize(12);
    header.setFont(font);
    header.setDefaultAlignment(static_cast<Qt::Alignment>(Qt::AlignLeft | Qt::AlignVCenter | Qt::TextWordWrap));
    header.setMinimumHeight(2 * QFontMetrics{font}.height() + 8);
    header.setHighlightSections(false);
    for (std::size_t column = 0; column < table_.columns().size(); ++column)
        if (const int width = table_.columns()[column].width.count(); width > 0)
            view_.setColumnWidth(static_cast<int>(column), std::min(width / twips_per_pixel, widest_other));
    header.setSectionResizeMode(0, QHeaderView::Stretch);
}

void RowTableBinding::show_state() {
    const QColor ground = field_ground(table_);
    model_.set_colours(ground, legible(to_qt(table_.fore_colour, readable_on(ground)), ground));
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
