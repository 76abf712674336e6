#pragma once

#include <QWidget>
#include <optional>

#include "desktop/station_label.h"
#include "playout/air_view.h"

namespace sonarelle {

class Dresser;
struct Antenne_FM;

/// What is read of the air at a glance.
struct AirLook {
    DeckRole role = DeckRole::empty; ///< That of the deck that the air is told by.
    int deck = 0;                    ///< Its number.
    QString title;
    QString left;                ///< Time to the end of play.
    std::optional<int> to_mix{}; ///< Seconds until the next track comes in; nothing where none does.
    QString next;
    bool suspended = false; ///< The chain waits for a special mix, which `next` says in more words than usual.
    QString notice;         ///< A trouble that leaves the air as it is; empty for none.
    QString silence;        ///< How long the air has been silent, mm:ss; empty while it is as it should be.

    friend bool operator==(const AirLook&, const AirLook&) = default;
};

/// The head of the main window: what is on the air, how long it lasts, what follows, and the time of day. It turns red
/// when the air is silent or the sound card is gone; a trouble that can't be heard yet stands there in amber.
class AirHeader : public QWidget {
public:
    AirHeader(Dresser& dresser, Antenne_FM& window);

    void show_air(const AirLook& look);
    void show_clock(const QString& time) { clock_->set_text(time); }
    void show_card_lost(bool lost);
    [[nodiscard]] bool alarms() const { return card_lost_ || !look_.silence.isEmpty(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    [[nodiscard]] QWidget* mark(Dresser& dresser, Antenne_FM& window) const;
    void name_labels();
    void show_heading();
    void show_alarm();
    void colour_labels();

    StationLabel* heading_;
    StationLabel* title_;
    StationLabel* next_;
    StationLabel* remaining_;
    StationLabel* left_word_; ///< What the remaining time is,
    StationLabel* to_mix_;    ///< and in how long the next track comes in.
    QWidget* time_;           ///< These three.
    StationLabel* silence_;   ///< In the place of the remaining time and of the banner.
    StationLabel* notice_;    ///< A lost card, or what the look tells, in the banner's place.
    StationLabel* clock_;
    QWidget* banner_;
    AirLook look_;
    bool card_lost_ = false;
};

} // namespace sonarelle
