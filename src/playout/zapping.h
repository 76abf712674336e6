#pragma once

#include <optional>
#include <string>

#include "platform/dialogs.h"
#include "playout/auto_chain.h"
#include "playout/desk.h"
#include "playout/row_on_air.h"

namespace sonarelle {

/// The operator's move to the next deck before the mix point: the present track is cut short, the next deck takes over
/// while the old one fades.
class Zapping {
public:
    Zapping(Desk& desk, AutoChain& chain, DeckStart& start, MixEngine& mix, Journal& journal, ListDocument& document)
        : desk_{desk},
          chain_{chain},
          start_{start},
          mix_{mix},
          journal_{journal},
          document_{document} {}

    /// From the main deck, by key. A zap that is refused changes nothing.
    void zapping();
    void zap(Deck& old);
    /// The zap button of the main deck, any other does nothing: the automatic zap in the list's reading modes, else the
    /// operator's.
    void press_zap(Deck& old);

private:
    void zap_by_the_rules(Deck& old);
    void refuse_too_early();
    /// Whether a zap ends the row's record where it cuts its track.
    [[nodiscard]] bool ends_record() const;
    /// Steps to a row whose file is there and no shorter than a second; the seconds of the file, 0 for one that can't
    /// be played. Nothing when there is no such row.
    [[nodiscard]] std::optional<double> find_row();
    void zap_in_list(Deck& old);
    [[noreturn]] void refuse_unplayable(const RowCursor::Place& before);
    void load_row(Deck& next);
    void zap_over_decks(Deck& old);
    /// The record of the row that plays, with the zap as its end; none where a zap ends no record.
    /// @throws Failure when the list can't be read.
    [[nodiscard]] std::optional<RowOnAir> record_to_end(const Deck& old) const;
    void hand_over(Deck& old, const std::optional<RowOnAir>& ended);
    void choose_fade();
    void tell(const std::string& text, Icon icon);

    Desk& desk_;
    AutoChain& chain_;
    DeckStart& start_;
    MixEngine& mix_;
    Journal& journal_;
    ListDocument& document_;
};

} // namespace sonarelle
