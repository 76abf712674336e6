#pragma once

#include "desktop/dresser.h"
#include "playout/air_view.h"
#include "windows/mini_lecteur.h"

namespace sonarelle {

/// The small player: whether the main deck sounds, what it plays, how many seconds are left, and seven buttons.
class SmallPlayerView : public WindowView {
public:
    SmallPlayerView(mini_lecteur& window, const DesktopServices& services);

    /// What the main deck is to the air, and its title.
    /// `silence`: how long one that is told has lasted; empty for none.
    void show_air(DeckRole role, const QString& title, const QString& silence = {});

private:
    [[nodiscard]] QLayout* reading();
    [[nodiscard]] QLayout* buttons();
    void show_seconds();

    mini_lecteur& window_;
    Dresser dresser_{*this};
    DeckRole role_ = DeckRole::empty;
    StationLabel* state_ = nullptr;
    StationLabel* title_ = nullptr;
    StationLabel* seconds_ = nullptr;
    StationLabel* unit_ = nullptr;
};

} // namespace sonarelle
