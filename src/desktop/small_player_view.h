#pragma once

#include "desktop/dresser.h"
#include "desktop/panel.h"
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

protected:
    /// State, title and time of the air, for who sees no more of the player than its frame.
    [[nodiscard]] QString title() const override;

private:
    [[nodiscard]] QLayout* reading();
    [[nodiscard]] QLayout* buttons();
    void show_seconds();
    [[nodiscard]] bool has_seconds() const { return role_ == DeckRole::on_air || role_ == DeckRole::paused; }

    mini_lecteur& window_;
    Dresser dresser_{*this};
    DeckRole role_ = DeckRole::empty;
    Lamp* lamp_ = nullptr;
    StationLabel* state_ = nullptr;
    StationLabel* title_ = nullptr;
    StationLabel* seconds_ = nullptr;
    StationLabel* unit_ = nullptr;
    StudioButton* next_ = nullptr;
};

} // namespace sonarelle
