#pragma once

#include <array>

#include "desktop/air_header.h"
#include "desktop/deck_panel.h"
#include "desktop/sound_reading.h"
#include "windows/antenne_fm.h"

class QVBoxLayout;

namespace sonarelle {

class SegmentedChoice;

/// The main window: what is on and how long it lasts, three decks, the chain and the quick loads. Its type and its
/// lengths follow its size.
class MainView : public WindowView {
public:
    MainView(Antenne_FM& window, const DesktopServices& services, const SoundReading& sound);

    void show_air(const AirLook& look);
    void show_clock(const QString& time) { header_->show_clock(time); }
    void show_look(int deck, const DeckLook& look) { decks_[static_cast<std::size_t>(deck - 1)]->show_look(look); }
    /// What the window's frame names: the station and what is on the air. Empty: the window's own caption.
    void show_title(const QString& title);
    void show_output(const QString& text, bool is_trouble);
    void show_played(const QString& text) { played_->set_text(text); }

    /// The operator takes up the list again, as the header says how in a silence.
    std::function<void()> on_restart;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    [[nodiscard]] QString title() const override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void build_rows(const SoundReading& sound);
    void take_step(Step step);
    [[nodiscard]] QWidget* menu_labels();
    [[nodiscard]] QWidget* deck_row();
    [[nodiscard]] QWidget* status_line();

    Antenne_FM& window_;
    Dresser dresser_{*this};
    QVBoxLayout* rows_ = nullptr;
    QWidget* menu_strip_ = nullptr; ///< The labels that stand for the menu bar.
    AirHeader* header_ = nullptr;
    SegmentedChoice* chain_ = nullptr;
    std::array<DeckPanel*, 3> decks_{};
    QString air_title_;
    StationLabel* output_ = nullptr;
    StationLabel* silence_ = nullptr;
    StationLabel* played_ = nullptr;
    Step step_ = Step::compact;
};

} // namespace sonarelle
