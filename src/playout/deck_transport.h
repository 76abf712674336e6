#pragma once

#include <string>

#include "playout/deck_loading.h"
#include "playout/deck_start.h"
#include "playout/deck_volume.h"
#include "playout/desk.h"
#include "playout/mix.h"

namespace sonarelle {

/// Stop, pause, seek and unload of a deck by hand.
class DeckTransport {
public:
    DeckTransport(Desk& desk, DeckLoading& loading, DeckStart& start, DeckVolume& volume, MixEngine& mix)
        : desk_{desk},
          loading_{loading},
          start_{start},
          volume_{volume},
          mix_{mix} {}

    void stop(Deck& deck);
    /// Pauses a deck that runs, resumes any other. A paused deck stops the clock tick of the window.
    void toggle_pause(Deck& deck);

    /// Seek steps of this session, in seconds; 0 stands for the default.
    double saut_avance = 0;
    double saut_retour = 0;
    /// A target behind the end, or before the beginning, does nothing.
    void forward(Deck& deck);
    void back(Deck& deck);

    /// The operator pressed the bar of a deck, at a share of it from 0 to 1. A paused deck goes on from there, and one
    /// that waits will begin there. Nothing while `why_it_stays` has a reason.
    void go_to(Deck& deck, double share);
    /// Why a press of the bar moves nothing, in the operator's words; empty where it does.
    [[nodiscard]] std::string why_it_stays(const Deck& deck) const;

    /// Takes the file off a deck that isn't the main one.
    void unload(Deck& deck);

private:
    void rewind(Deck& deck);
    void seek(Deck& deck, double target);
    void tell_what_is_left(Deck& deck);

    Desk& desk_;
    DeckLoading& loading_;
    DeckStart& start_;
    DeckVolume& volume_;
    MixEngine& mix_;
};

} // namespace sonarelle
