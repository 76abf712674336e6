#pragma once

#include <array>
#include <optional>

#include "desktop/dresser.h"
#include "desktop/panel.h"
#include "playlist/liste_son.h"

namespace sonarelle {

class CardStrip;
class Chip;
class TextRun;

/// What the list window tells of the air.
struct ListAir {
    QString title;           ///< Empty while nothing is on.
    QString left;            ///< Time to the end of play.
    QString clock;           ///< Time of day.
    QString silence{};       ///< How long a silence that is told has lasted; empty for none.
    bool is_unheard = false; ///< The sound card is lost.
};

/// The list window: what is on and how long it lasts, the modes, the rows, the list's buttons. Its step is the desk's,
/// or by its own width while it knows none, and the narrow one wherever it is.
class ListView : public WindowView {
public:
    ListView(Liste_son& window, const DesktopServices& services);

    [[nodiscard]] RowTableModel& rows() { return rows_->model(); }
    void show_air(const ListAir& air);
    /// The desk's step is another.
    void follow_step(Step of_desk);

protected:
    [[nodiscard]] QString title() const override;
    void resizeEvent(QResizeEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    void build_rows();
    [[nodiscard]] QWidget* header();
    [[nodiscard]] QLayout* header_texts();
    [[nodiscard]] QLayout* search();
    [[nodiscard]] QWidget* modes();
    [[nodiscard]] QLayout* insertion(Image& image, Label& label, int longest, const char* name);
    [[nodiscard]] QWidget* table();
    [[nodiscard]] QWidget* foot();
    void transport(QBoxLayout& row);
    [[nodiscard]] StudioButton* side_picture();
    void labels(QBoxLayout& row);
    void order_keyboard();
    void tell_air();
    [[nodiscard]] QString alarm() const;
    void tell_list();
    void tell_changes();
    [[nodiscard]] Step wanted_step() const;
    void take_step(Step step);

    Liste_son& window_;
    Dresser dresser_{*this};
    ListAir air_;
    std::optional<Step> desk_step_;
    Step step_ = Step::compact;
    CardStrip* header_ = nullptr;
    CardStrip* modes_ = nullptr;
    CardStrip* foot_ = nullptr;
    StationLabel* title_ = nullptr;
    StationLabel* remaining_ = nullptr;
    StationLabel* clock_ = nullptr;
    StationLabel* progress_ = nullptr;
    StationLabel* running_deck_ = nullptr;
    StationLabel* file_ = nullptr;
    Chip* changed_ = nullptr;
    TextRun* state_ = nullptr; ///< What the list is doing.
    StudioButton* play_ = nullptr;
    QComboBox* search_ = nullptr;
    std::array<StationLabel*, 2> headings_{}; ///< The narrow step has no room for them.
    std::vector<QWidget*> stops_;             ///< Of the keyboard, in their order.
    std::vector<QWidget*> transport_;
    RowTableBinding* rows_ = nullptr;
};

} // namespace sonarelle
