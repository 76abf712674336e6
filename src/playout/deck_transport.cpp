#include "playout/deck_transport.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>

#include "platform/failure.h"
#include "playout/air_view.h"

namespace sonarelle {

namespace {

constexpr double default_forward = 10.0;
constexpr double default_back = 0.2;

} // namespace

void DeckTransport::stop(Deck& deck) {
    desk_.display.special_mix_offered(deck, true);
    if (deck.path.empty())
        return;
    if (desk_.ring.is_main(deck))
        desk_.set_air(AirState::off);
    desk_.display.waits(deck);
    start_.clear_display(deck);
    desk_.window.overlap_timer.disable();
    rewind(deck);
    if (desk_.window.mix_titles.value())
        desk_.display.deck_stopped_in_ring(deck);
    volume_.vol_pour_stop();
    desk_.display.stopped(deck);
    desk_.chain.index_debut_aleatoire = desk_.chain.index_debut_aleatoire1 = 0;
    desk_.display.names_file(desk_.list.chemin_fichier);
    if (desk_.chain.mode_enchainement.is_true()) {
        mix_.end_special_mix();
        desk_.window.Active_audio_jingles.checked = false;
        desk_.window.list_chain_timer.enable();
    } else {
        mix_.leave_special_mix(deck);
    }
    desk_.display.list_tells_the_time();
}

void DeckTransport::rewind(Deck& deck) {
    if (deck.has_graph())
        deck.graph().Stop();
    deck.controls.slider.set_value(0);
    if (deck.has_graph() && deck.graph().get_CurrentPosition() > 0)
        deck.graph().put_CurrentPosition(0);
    desk_.display.list_remaining("00:00:00");
}

void DeckTransport::toggle_pause(Deck& deck) {
    if (!deck.has_graph())
        return;
    const bool runs = deck.graph().GetState() == MediaState::running;
    deck.pause_lecteur = runs;
    if (runs) {
        deck.graph().Pause();
        volume_.vol_pour_stop();
    } else {
        if (const auto start = std::exchange(deck.start_by_hand, std::nullopt))
            deck.graph().put_CurrentPosition(*start);
        deck.graph().Run();
        if (desk_.ring.is_main(deck) && desk_.chain.air == AirState::off)
            desk_.set_air(AirState::on);
        if (deck.mix_en_cours != 0)
            volume_.vol_pour_mix_spc();
    }
    desk_.display.paused(deck, runs);
    desk_.window.load_ahead_timer.set_enabled(!runs);
}

void DeckTransport::forward(Deck& deck) {
    if (!deck.has_graph())
        return;
    if (saut_avance == 0)
        saut_avance = default_forward;
    const double target = deck.graph().get_CurrentPosition() + saut_avance;
    if (target <= deck.graph().get_Duration())
        seek(deck, target);
}

void DeckTransport::back(Deck& deck) {
    if (!deck.has_graph())
        return;
    if (saut_retour == 0)
        saut_retour = default_back;
    const double target = deck.graph().get_CurrentPosition() - saut_retour;
    if (target >= 0)
        seek(deck, target);
}

void DeckTransport::seek(Deck& deck, double target) {
    deck.graph().put_CurrentPosition(target);
    tell_what_is_left(deck);
}

void DeckTransport::tell_what_is_left(Deck& deck) {
    const double left = deck.graph().get_Duration() - deck.graph().get_CurrentPosition();
    ErrorIndicator{}.skip([&] { desk_.display.list_remaining(loading_.duration_text(left)); });
}

// A tenth of a second is finer than a hand, and keeps a whole second whole.
void DeckTransport::go_to(Deck& deck, double share) {
    if (!why_it_stays(deck).empty())
        return;
    const double target = std::round(share * deck.controls.progress.maximum * 10) / 10;
    const bool is_paused = deck.has_graph() && deck.graph().GetState() == MediaState::paused;
    if (!is_paused) {
        deck.start_by_hand = target;
        return;
    }
    deck.graph().put_CurrentPosition(std::min(target, deck.graph().get_Duration()));
    deck.controls.progress.value = deck.whole_position().value();
    if (desk_.ring.is_main(deck))
        tell_what_is_left(deck);
}

std::string DeckTransport::why_it_stays(const Deck& deck) const {
    switch (role_of(desk_, deck)) {
    case DeckRole::on_air:
    case DeckRole::heard:
        return "À l'antenne : le curseur ne se déplace pas";
    case DeckRole::loaded:
    case DeckRole::paused:
        return {};
    case DeckRole::ended:
        if (!deck.path.empty())
            return !deck.is_at_its_end() ? "" : "Fin du fichier : le curseur ne se déplace plus";
        break;
    case DeckRole::empty:
        break;
    }
    return "Aucun fichier sur ce lecteur";
}

void DeckTransport::unload(Deck& deck) {
    if (desk_.ring.is_main(deck))
        return;
    deck.drop_graph();
    deck.close_video();
    desk_.display.waits(deck);
    deck.path.clear();
}

} // namespace sonarelle
