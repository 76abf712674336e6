#pragma once

#include "playlist/list_document.h"
#include "playout/desk.h"

namespace sonarelle {

/// One scale joins slider, percent and attenuation of a deck: slider value v is 100 - 5 v percent and -200 v hundredths
/// of a decibel.
class DeckVolume {
public:
    DeckVolume(Desk& desk, ListDocument& document)
        : desk_{desk},
          document_{document} {}

    /// Slider to texts, and to the graph where there is one. A file without sound is passed over.
    void adjust(Deck& deck);

    /// The attenuation of a record to slider and graph; nothing in a mix over decks. Volume 0 is full, and leaves the
    /// slider where it is.
    void apply_record(Deck& deck, Integer volume);

    /// How loud a deck begins: as its record says, else as its slider stands.
    void apply_start(Deck& deck);

    /// Gives the main deck's slider back the value that it had before a special mix.
    void vol_pour_stop();
    /// Lowers the main deck for a special mix.
    void vol_pour_mix_spc();

    /// Keeps the volume of the main deck in the record of the row that plays.
    void keep_in_record(Deck& deck);

    /// Moves a deck's slider by a step; beyond its ends it stays.
    void step(Deck& deck, int steps);

private:
    void A_sauve(Deck& deck);

    Desk& desk_;
    ListDocument& document_;
};

} // namespace sonarelle
