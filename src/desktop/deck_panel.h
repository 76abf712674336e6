#pragma once

#include <array>
#include <memory>
#include <optional>

#include "desktop/dresser.h"
#include "desktop/panel.h"
#include "platform/waveform.h"
#include "playout/air_view.h"
#include "windows/deck_controls.h"

class QGridLayout;

namespace sonarelle {

class VolumeBar;

/// What is seen of a deck, beside what its controls say.
struct DeckLook {
    DeckRole role = DeckRole::empty;
    bool is_next = false;                    ///< The deck that the next track waits on.
    bool is_paused = false;                  ///< It is held, and isn't the main one.
    bool is_unheard = false;                 ///< It plays, and no sound card takes it.
    bool is_refused = false;                 ///< Its file isn't there, or can't be played.
    QString file{};                          ///< The name of the file on it, without its ending; empty for none.
    QString kind{};                          ///< What its ending says, in capitals.
    QString genre{};                         ///< Of its record; empty for none.
    std::optional<int> elapsed{};            ///< Second of the file, where the deck's bar doesn't follow it.
    std::optional<int> left{};               ///< Seconds to its end, where the air is told by it.
    std::optional<double> mix_point{};       ///< Seconds.
    std::optional<double> end_point{};       ///< Seconds.
    std::shared_ptr<const Waveform> sound{}; ///< Null until it is known.
};

/// One deck of the main window.
class DeckPanel : public Panel, public Stepped {
public:
    DeckPanel(WindowView& view, DeckControls& controls, Label& slider_stand_in, int number, QWidget* parent);

    void show_look(const DeckLook& look);
    void set_step(Step step) override;

private:
    void build_labels(Dresser& dresser);
    void build_transport(Dresser& dresser);
    void build_volume(Dresser& dresser, Label& slider_stand_in);
    void name_parts();
    void lay_out();
    [[nodiscard]] QLayout* heading();
    [[nodiscard]] QLayout* figures();
    [[nodiscard]] QLayout* transport();
    [[nodiscard]] QLayout* volume();
    void show_state();
    [[nodiscard]] bool is_bare() const;
    void show_times();
    void show_volume();

    WindowView& view_;
    DeckControls& controls_;
    int number_;
    DeckLook look_;
    QGridLayout* grid_;
    Lamp* lamp_;
    StationLabel* name_;
    StationLabel* state_;
    StationLabel* kind_;
    TitleLabel* title_ = nullptr;
    StationLabel* details_; ///< Length, mix point, and that it waits.
    StationLabel* elapsed_;
    StationLabel* end_ = nullptr;
    StationLabel* left_;
    std::array<StationLabel*, 3> words_{}; ///< What the three figures are.
    ProgressStrip* progress_ = nullptr;
    std::array<StudioButton*, 8> buttons_{}; ///< Of the transport, in their order.
    StationLabel* percent_ = nullptr;
    QSlider* slider_ = nullptr;
    VolumeBar* bar_ = nullptr;
    std::array<StudioButton*, 3> volume_buttons_{}; ///< Less, more, keep.
};

} // namespace sonarelle
