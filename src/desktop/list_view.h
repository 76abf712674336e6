#pragma once

#include <functional>

#include "desktop/dresser.h"
#include "desktop/panel.h"
#include "playlist/liste_son.h"

namespace sonarelle {

/// What the list window tells of the air.
struct ListAir {
    QString title;     ///< Empty while nothing is on.
    QString left;      ///< Time to the end of play.
    QString clock;     ///< Time of day.
    QString silence{}; ///< How long a silence that is told has lasted; empty for none.
};

/// The list window: the rows, what is on and how long it lasts, the list's buttons.
class ListView : public WindowView {
public:
    ListView(Liste_son& window, const DesktopServices& services);

    [[nodiscard]] RowTableModel& rows() { return rows_->model(); }
    void show_air(const ListAir& air);

protected:
    [[nodiscard]] QString title() const override;

private:
    void build_rows();
    [[nodiscard]] QLayout* header();
    void tell_air();
    [[nodiscard]] QLayout* table_row();
    [[nodiscard]] QWidget* side_column();
    [[nodiscard]] StudioButton* lamp(Image& image, const char* name);
    [[nodiscard]] QLayout* button_row();
    [[nodiscard]] QLayout* status_row();
    [[nodiscard]] StudioButton* menu_button();
    void fill_menu(QMenu& menu);
    void show_row_menu();

    Liste_son& window_;
    Dresser dresser_{*this};
    ListAir air_;
    StationLabel* title_ = nullptr;
    StationLabel* remaining_ = nullptr;
    StationLabel* clock_ = nullptr;
    RowTableBinding* rows_ = nullptr;
    QMenu* all_entries_ = nullptr;
};

} // namespace sonarelle
