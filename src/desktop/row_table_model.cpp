#include "desktop/row_table_model.h"

#include "desktop/colours.h"
#include "desktop/qt_text.h"

namespace sonarelle {

namespace {

bool is_number(const std::string& text) {
    return !text.empty() && text.find_first_not_of("0123456789.,: ") == std::string::npos;
}

} // namespace

RowTableModel::RowTableModel(RowTable& table, UpdateQueue& updates)
    : table_{table},
      updates_{updates},
      count_{table.count()},
      ground_{studio::well},
      ink_{studio::text} {
    table_.observe_rows(this);
}

RowTableModel::~RowTableModel() {
    table_.observe_rows(nullptr);
    updates_.forget(*this);
}

int RowTableModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(table_.columns().size());
}

QVariant RowTableModel::data(const QModelIndex& index, int role) const {
    const int row = index.row() + 1;
    if (!index.isValid() || row > table_.count())
        return {};
    const std::string& text = table_.sub_item(row, static_cast<std::size_t>(index.column()));
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
    case Qt::ToolTipRole:
        return to_qt(text);
    case Qt::BackgroundRole:
        return background(row);
    case Qt::ForegroundRole:
        return ink_of(row);
    case Qt::TextAlignmentRole:
        return static_cast<int>((is_number(text) ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
    case Qt::FontRole:
        return font_of(row, text);
    default:
        return {};
    }
}

QVariant RowTableModel::background(int row) const {
    if (row == marks_.playing)
        return mixed(ground_, studio::air, 0.55);
    if (row == marks_.next)
        return mixed(ground_, studio::next, 0.50);
    if (lacks_file(row))
        return mixed(ground_, studio::trouble, 0.45);
    return {};
}

bool RowTableModel::lacks_file(int row) const {
    return row != marks_.playing && is_missing && is_missing(table_.text(row));
}

// A missing file is struck out as well, so that its colour doesn't speak alone.
QFont RowTableModel::font_of(int row, const std::string& text) const {
    QFont font;
    font.setBold(row == marks_.playing);
    font.setStrikeOut(lacks_file(row));
    if (is_number(text))
        font.setFamily("DejaVu Sans"); // figures of one width
    return font;
}

QVariant RowTableModel::ink_of(int row) const {
    const QVariant ground = background(row);
    return ground.isValid() ? QVariant{legible(ink_, ground.value<QColor>())} : QVariant{};
}

QVariant RowTableModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation == Qt::Horizontal && role == Qt::DisplayRole)
        return to_qt(table_.columns()[static_cast<std::size_t>(section)].caption);
    return {};
}

Qt::ItemFlags RowTableModel::flags(const QModelIndex& index) const {
    const Qt::ItemFlags plain = QAbstractTableModel::flags(index);
    const bool edited = index.column() == 0 && table_.label_editing == LabelEditing::automatic;
    return edited ? plain | Qt::ItemIsEditable : plain;
}

bool RowTableModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (role != Qt::EditRole || !on_edited)
        return false;
    on_edited(index.row() + 1, from_qt(value.toString()));
    return true;
}

void RowTableModel::note(Change change, int row) {
    const bool same_cells = change_ == Change::cells && change == Change::cells && changed_row_ == row;
    if (change_ != Change::none && !same_cells)
        change = Change::many;
    change_ = change;
    changed_row_ = row;
    updates_.mark(*this);
}

void RowTableModel::row_selected(int) {
    selection_waits_ = true;
    updates_.mark(*this);
}

void RowTableModel::row_shown(int row) {
    shown_row_ = row;
    updates_.mark(*this);
}

void RowTableModel::show_value() {
    apply_change();
    if (std::exchange(selection_waits_, false) && on_selected)
        on_selected(table_.selected());
    if (const int row = std::exchange(shown_row_, 0); row > 0 && on_shown)
        on_shown(row);
}

void RowTableModel::apply_change() {
    const int row = changed_row_ - 1;
    switch (std::exchange(change_, Change::none)) {
    case Change::none:
        return;
    case Change::cells:
        return repaint_row(changed_row_);
    case Change::one_inserted:
        beginInsertRows({}, row, row);
        count_ = table_.count();
        return endInsertRows();
    case Change::one_removed:
        beginRemoveRows({}, row, row);
        count_ = table_.count();
        return endRemoveRows();
    case Change::many:
        beginResetModel();
        count_ = table_.count();
        endResetModel();
        selection_waits_ = true;
    }
}

void RowTableModel::set_colours(const QColor& ground, const QColor& ink) {
    ground_ = ground;
    ink_ = ink;
}

void RowTableModel::set_marks(const RowMarks& marks) {
    if (marks == marks_)
        return;
    const RowMarks old = std::exchange(marks_, marks);
    for (const int row : {old.playing, old.next, marks.playing, marks.next})
        repaint_row(row);
}

void RowTableModel::repaint_all() {
    if (count_ > 0)
        emit dataChanged(index(0, 0), index(count_ - 1, columnCount() - 1));
}

void RowTableModel::repaint_row(int row) {
    if (row >= 1 && row <= count_)
        emit dataChanged(index(row - 1, 0), index(row - 1, columnCount() - 1));
}

} // namespace sonarelle
