#pragma once

#include <functional>
#include <string>

#include "playlist/list_document.h"
#include "playout/desk.h"
#include "playout/draw_control.h"
#include "playout/source_draw.h"

namespace sonarelle {

/// What one of the two insertions goes by: jingles after so many tracks, list items at each start in random order.
struct InsertionRule {
    Flag StationSettings::*on;
    Integer StationSettings::*spacing; ///< Tracks between two; below 1 nothing is inserted.
    std::string StationSettings::*source;
    Integer ChainState::*counter; ///< Tracks started since the last one.
    Timer Antenne_FM::*timer;
    Label Liste_son::*label; ///< Its switch: a text that flashes, and a lamp.
    Image Liste_son::*lamp;
    std::string_view caption_on;
    std::string_view caption_off;
    bool counts; ///< Inserts when enough tracks have started; the other one at each start.

    std::string_view heading; ///< In the draws' control window; and how often one comes, before the number.
    std::string_view every;
    std::string_view missing_title; ///< Of the box where no list is named.
    std::string_view missing_lines;
};

/// Grows the list while it runs: a record that is drawn from another list comes as a row behind the selected one, and
/// stays in the list. Window thread.
class Insertion {
public:
    Insertion(const InsertionRule& rule, Desk& desk, ListDocument& document, SourceDraw& draws, DrawControl& control,
              DrawSource source);

    /// Its switch was pressed. One without a list tells the operator how to make one.
    void press_switch();
    void set_on(bool on);
    /// Each second while it is on.
    void tick();

    /// The operator is to say after how many tracks.
    std::function<void()> ask_for_spacing;
    /// Behind each switch.
    std::function<void(bool on)> on_switched;

private:
    [[nodiscard]] bool rests() const;
    [[nodiscard]] bool is_on() const { return (desk_.settings.*rule_.on).is_true(); }
    [[nodiscard]] bool is_due() const;
    [[nodiscard]] bool is_source_there() const;
    void flash();
    void end_flash();
    void try_to_insert();
    void insert_one();
    void show(const DrawnRecord& drawn);
    void tell_trouble(const std::string& reason);

    const InsertionRule& rule_;
    Desk& desk_;
    ListDocument& document_;
    SourceDraw& draws_;
    DrawControl& control_;
    DrawSource source_;
    bool clignote_ = false;
    std::string told_; // why nothing was inserted; a list that can be drawn from again may be told anew
};

/// The two of the station.
extern const InsertionRule jingle_rule;
extern const InsertionRule item_rule;

} // namespace sonarelle
