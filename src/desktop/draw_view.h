#pragma once

#include "desktop/dresser.h"
#include "windows/draw_window.h"

class QBoxLayout;

namespace sonarelle {

/// The control window of the draws: beside each other what was drawn already and the draws, of the list and of the
/// jingles; below them the file that a draw has brought, and the buttons.
class DrawView : public WindowView {
public:
    DrawView(liste& window, const DesktopServices& services);

private:
    [[nodiscard]] QWidget* of_list();
    [[nodiscard]] QWidget* of_jingles();
    [[nodiscard]] QWidget* of_file();
    [[nodiscard]] QLayout* buttons();
    [[nodiscard]] QWidget* heading(Label& label);
    [[nodiscard]] QLayout* lists(ListBox& played, ListBox& draws);
    [[nodiscard]] QLayout* field(const QString& name, TextBox& box);
    [[nodiscard]] QLayout* figure(const QString& name, Label& label);
    [[nodiscard]] QWidget* text(Label& label);

    liste& window_;
    Dresser dresser_{*this};
};

} // namespace sonarelle
