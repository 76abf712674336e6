#pragma once

#include <QContextMenuEvent>
#include <QMenu>
#include <QTest>

#include "desktop/chip.h"
#include "desktop/list_view.h"
#include "desktop/station_views.h"
#include "desktop/toggle.h"

namespace sonarelle {

/// The list window on view, beside the desk.
class ListWindow : public StationViews {
protected:
    ListWindow() { show_windows(); }

    [[nodiscard]] Liste_son& list() { return station.list_window; }
    [[nodiscard]] StationLabel& label(const Label& told) { return part<StationLabel>(list_view(), told.name()); }
    /// Where a text of the station ends, in its line.
    [[nodiscard]] int right_of(const Label& told) { return label(told).geometry().right(); }
    [[nodiscard]] RowTableView& table() { return part<RowTableView>(list_view(), "ListView1"); }
    [[nodiscard]] QModelIndex cell(int row, int column = 0) { return table().model()->index(row - 1, column); }
    [[nodiscard]] RowState state(int row) { return list_view().rows().state_of(row); }

    /// The right button over the rows; the menu that it opens.
    QMenu* right_click() {
        const QPoint place = table().visualRect(cell(1)).center();
        QContextMenuEvent click{QContextMenuEvent::Mouse, place, table().viewport()->mapToGlobal(place)};
        QCoreApplication::sendEvent(table().viewport(), &click);
        settle();
        return qobject_cast<QMenu*>(QApplication::activePopupWidget());
    }
    /// What one of the foot's labels opens.
    QMenu* press_label(const Label& label) {
        static_cast<QAbstractButton&>(part(list_view(), label.name().c_str())).click();
        return qobject_cast<QMenu*>(QApplication::activePopupWidget());
    }
    /// How often a menu has an entry, with or without the dots of one that opens a box.
    [[nodiscard]] static auto count_of_entry(QMenu& menu, const QString& entry) {
        return std::ranges::count_if(menu.actions(), [&](const QAction* action) {
            const QString words = action->text().remove('&');
            return words == entry || words == entry + "…";
        });
    }
    [[nodiscard]] static bool offers(QMenu& menu, const QString& entry) { return count_of_entry(menu, entry) > 0; }
};

} // namespace sonarelle
