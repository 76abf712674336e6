#pragma once

#include <QWidget>
#include <optional>

#include "desktop/panel.h"
#include "desktop/station_label.h"
#include "playout/air_view.h"

class QGridLayout;

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
    QString then{};         ///< The name of what comes behind that; empty for none.
    bool suspended = false; ///< The chain waits for a special mix, which `next` says in more words than usual.
    QString notice;         ///< A trouble that leaves the air as it is; empty for none.
    QString silence;        ///< How long the air has been silent, mm:ss; empty while it is as it should be.
    QString silent_since{}; ///< The time of day at which that began.
    bool of_list = false;   ///< It is the list that is silent.
    bool can_start = false; ///< The list can be started.
    QString lost_for{};     ///< How long no sound card has played, mm:ss; empty while one does.
    bool is_noted = false;  ///< The station writes a journal, and so the silence into it.
    QString station{};      ///< The station's name, and whether it writes a journal.

    friend bool operator==(const AirLook&, const AirLook&) = default;
};

/// The head of the main window: what is on the air, how long it lasts, what follows, and the time of day. It turns red
/// when the air is silent or the sound card is gone; a trouble that can't be heard yet stands there in amber.
class AirHeader : public QWidget, public Stepped {
public:
    AirHeader(Dresser& dresser, Antenne_FM& window);

    void show_air(const AirLook& look);
    void show_clock(const QString& time) { clock_->set_text(time); }
    void set_step(Step step) override;
    /// In a silence it says that the list can be taken up again by a key.
    [[nodiscard]] bool offers_restart() const { return is_silent() && look_.of_list && look_.can_start; }
    [[nodiscard]] bool alarms() const { return !look_.lost_for.isEmpty() || is_silent(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    [[nodiscard]] bool is_silent() const { return !look_.silence.isEmpty(); }
    [[nodiscard]] QLayout* left_column(Dresser& dresser, Antenne_FM& window) const;
    [[nodiscard]] QLayout* right_column();
    [[nodiscard]] QWidget* mark(Dresser& dresser, Antenne_FM& window) const;
    void name_labels();
    void show_state();
    void show_words();
    void show_time();
    void show_banner();
    void colour_labels();

    QGridLayout* grid_;
    Lamp* lamp_;
    StationLabel* heading_;
    StationLabel* title_;
    StationLabel* next_;
    StationLabel* remaining_;
    StationLabel* left_word_; ///< What the remaining time is,
    StationLabel* to_mix_;    ///< and in how long the next track comes in.
    StationLabel* silence_;   ///< In the place of the remaining time.
    StationLabel* remedy_;    ///< What ends the silence.
    StationLabel* clock_;
    StationLabel* station_; ///< Or a trouble that can't be heard yet.
    QWidget* banner_;
    AirLook look_;
    Step step_ = Step::compact;
};

} // namespace sonarelle
