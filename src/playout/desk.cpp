#include "playout/desk.h"

#include "platform/clock.h"
#include "platform/text.h"

namespace sonarelle {

void Desk::set_air(AirState state) {
    if (chain.air == AirState::off)
        chain.air_since = platform.clock.now();
    chain.air = state;
    show_list_start();
}

void Desk::show_list_start() const {
    display.list_can_start(!list_runs());
}

bool Desk::list_runs() const {
    const int row = list.ligne_en_lecture.value();
    return chain.air == AirState::on && window.list_chain_timer.enabled() && ring.has_main_deck() &&
           !ring.main_deck().rests() && row >= 1 && row <= row_count() &&
           equal_ignoring_case(list_window.rows.text(row), ring.main_deck().path);
}

void Desk::give_prepared_row_up() const {
    if (chain.choix_prepare.is_true() && list.ligne_en_lecture > 0)
        list.index_en_cours = list.ligne_en_lecture;
    chain.choix_prepare = chain.chargement_fait = false;
}

void Desk::report_loaded(const Deck& deck) const {
    report({.kind = OnAirEvent::Kind::loaded,
            .deck = deck.number(),
            .row = list.index_en_cours.value(),
            .path = deck.path,
            .end = deck.controls.counter.caption});
}

} // namespace sonarelle
