#include "desktop/row_table_model.h"

#include <array>

#include "desktop/qt_text.h"
#include "desktop/tokens.h"

namespace sonarelle {

RowTableModel::RowTableModel(RowTable& table, UpdateQueue& updates)
    : table_{table},
      updates_{updates},
      count_{table.count()},
      colours_{studio::well, studio::text} {
    table_.observe_rows(this);
}

RowTableModel::~RowTableModel() {
    table_.observe_rows(nullptr);
    updates_.forget(*this);
}

int RowTableModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(table_.columns().size()) + 1;
}

QVariant RowTableModel::data(const QModelIndex& index, int role) const {
    const int row = index.row() + 1;
    if (!index.isValid() || row > table_.count())
        return {};
    if (role == state_role)
        return static_cast<int>(state_of(row));
    if (index.column() == number_column())
        return number_data(row, role);
    const std::string& text = table_.sub_item(row, static_cast<std::size_t>(index.column()));
    const bool is_text = role == Qt::DisplayRole || role == Qt::EditRole || role == Qt::ToolTipRole;
    return is_text ? QVariant{to_qt(text)} : QVariant{};
}

// The state is a sign and a colour on the screen, and words to who hears it.
QVariant RowTableModel::number_data(int row, int role) const {
    static constexpr std::array states{"", ", à l'antenne", ", suivant", ", fichier absent"};
    const QString number = QString::number(row);
    if (role == Qt::AccessibleTextRole)
        return number + states[static_cast<std::size_t>(state_of(row))];
    return role == Qt::DisplayRole ? QVariant{number} : QVariant{};
}

RowState RowTableModel::state_of(int row) const {
    if (row == marks_.playing)
        return RowState::air;
    if (row == marks_.next)
        return RowState::next;
    return lacks_file(row) ? RowState::missing : RowState::plain;
}

bool RowTableModel::lacks_file(int row) const {
    return is_missing && is_missing(table_.text(row));
}

QVariant RowTableModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || (role != Qt::DisplayRole && role != Qt::ToolTipRole))
        return {};
    return section == number_column() ? "N°" : to_qt(table_.columns()[static_cast<std::size_t>(section)].caption);
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
