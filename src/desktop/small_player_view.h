#pragma once

#include "desktop/dresser.h"
#include "desktop/panel.h"
#include "playout/air_view.h"
#include "windows/mini_lecteur.h"

namespace sonarelle {

/// What the small player tells of the air.
struct PlayerAir {
    DeckRole role = DeckRole::empty;
    QString title;           ///< Empty while nothing is on.
    int left = 0;            ///< Seconds to the end of play.
    QString silence{};       ///< How long a silence that is told has lasted; empty for none.
    bool is_unheard = false; ///< The sound card is lost.
};

/// The small player: whether the main deck sounds, what it plays, how many seconds are left, and seven buttons.
class SmallPlayerView : public WindowView {
public:
    SmallPlayerView(mini_lecteur& window, const DesktopServices& services);

    void show_air(const PlayerAir& air);

protected:
    /// State, title and time of the air, for who sees no more of the player than its frame.
    [[nodiscard]] QString title() const override;

private:
    [[nodiscard]] QLayout* reading();
    [[nodiscard]] QLayout* buttons();
    void show_seconds();
    [[nodiscard]] bool has_seconds() const;
    /// In words, red; empty for none.
    [[nodiscard]] QString alarm() const;

    mini_lecteur& window_;
    Dresser dresser_{*this};
    PlayerAir air_;
    Lamp* lamp_ = nullptr;
    StationLabel* state_ = nullptr;
    StationLabel* title_ = nullptr;
    StationLabel* seconds_ = nullptr;
    StationLabel* unit_ = nullptr;
    StudioButton* next_ = nullptr;
};

} // namespace sonarelle
