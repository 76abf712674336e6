#include "playout/auto_chain.h"

namespace sonarelle {

void AutoChain::follow_list() {
    if (!desk_.window.Active_audio_jingles.checked)
        return list_chain.tick();
    run_.under_trap("T4", [this] {
        mix_.serve_special_mix();
        list_chain.show_main_deck();
    });
}

void AutoChain::begin_overlap() {
    overlap.begin();
    cursor.begin_track();
}

void AutoChain::cancel_walks() {
    load_ahead.cancel();
    list_chain.cancel();
}

} // namespace sonarelle
