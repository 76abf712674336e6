#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include "playout/chain_fixture.h"

namespace sonarelle {

/// A list or deck 1 plays, and a jingle of five seconds is mixed over it.
class SpecialMixFixture : public ChainFixture {
protected:
    void play_list_with_jingle_on(int deck) {
        open_tracks({100, 100, 100});
        machine.add_track("C:\\jingle.mp3", 5);
        start_list();
        machine.run_for(seconds(5));
        station.chain.path_of_deck(deck) = "C:\\jingle.mp3";
    }
    /// A chain over decks, whose second deck holds a minute that is mixed over the first one.
    void mix_over_the_chain_of_decks() {
        open_on_all({100, 60, 100});
        window.mix_titles.click();
        controls(1).play.click();
        controls(2).special_mix.click();
        machine.run_for(seconds(3));
    }
    [[nodiscard]] bool hears_jingle() const {
        const std::vector<std::string> heard = machine.media.on_air();
        return std::ranges::find(heard, "C:\\jingle.mp3") != heard.end();
    }

    Antenne_FM& window = station.main_window;
};

} // namespace sonarelle
