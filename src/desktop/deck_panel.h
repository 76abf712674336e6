#pragma once

#include <memory>
#include <optional>

#include "desktop/dresser.h"
#include "desktop/panel.h"
#include "platform/waveform.h"
#include "playout/air_view.h"
#include "windows/deck_controls.h"

namespace sonarelle {

/// What is seen of a deck, beside what its controls say.
struct DeckLook {
    DeckRole role = DeckRole::empty;
    QString heard;                           ///< The name of the file that is heard; empty for none.
    std::optional<int> elapsed;              ///< Second of the file, where the deck's bar doesn't follow it.
    std::optional<double> mix_point;         ///< Seconds.
    std::optional<double> end_point;         ///< Seconds.
    std::shared_ptr<const Waveform> sound{}; ///< Null until it is known.
};

/// One deck of the main window.
class DeckPanel : public Panel {
public:
    DeckPanel(WindowView& view, DeckControls& controls, Label& slider_stand_in, int number, QWidget* parent);

    void show_look(const DeckLook& look);

private:
    [[nodiscard]] QLayout* heading(int number);
    [[nodiscard]] QLayout* figures(Dresser& dresser);
    [[nodiscard]] QLayout* transport(Dresser& dresser, int number);
    [[nodiscard]] QLayout* volume(Dresser& dresser, Label& slider_stand_in);
    void show_elapsed();

    WindowView& view_;
    DeckControls& controls_;
    Lamp* lamp_;
    TitleLabel* title_ = nullptr;
    StationLabel* state_;
    StationLabel* elapsed_;
    StudioButton* play_ = nullptr;
    StudioButton* zap_ = nullptr;
    ProgressStrip* progress_ = nullptr;
};

} // namespace sonarelle
