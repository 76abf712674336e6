#pragma once

#include <QHeaderView>
#include <QLineEdit>
#include <QScrollBar>
#include <QTest>

#include "desktop/desktop_fixture.h"
#include "desktop/row_table_binding.h"

namespace sonarelle {

/// A table of rows on view.
class TableFixture : public DesktopFixture {
protected:
    void fill(int count) {
        for (int row = 1; row <= count; ++row)
            table.append({"D:\\titre " + std::to_string(row) + ".mp3", "0.10", "200.00", "Rock", "100", "00:03:20"});
        settle();
    }
    [[nodiscard]] std::string shown(int row, int column = 0) const {
        return widget.model()->index(row - 1, column).data().toString().toStdString();
    }

    void show() {
        widget.resize(600, 300);
        widget.show();
        QApplication::setActiveWindow(&widget);
        settle();
    }
    void press(int row, int column = 0, Qt::KeyboardModifiers keys = {}) {
        const QRect cell = widget.visualRect(widget.model()->index(row - 1, column));
        QTest::mouseClick(widget.viewport(), Qt::LeftButton, keys, cell.center());
        settle();
    }
    [[nodiscard]] QLineEdit* editor() { return widget.findChild<QLineEdit*>(); }

    RowTable table{window, "ListView1", {{"Chemin", Twips{3000}}, {"Début", Twips{900}}, {"Fin", Twips{1560}}}};
    RowTableView widget;
    RowTableBinding binding{table, widget, services};
};

} // namespace sonarelle
