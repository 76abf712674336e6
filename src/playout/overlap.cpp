#include "playout/overlap.h"

#include <algorithm>

#include "platform/failure.h"

namespace sonarelle {

void Overlap::tick() {
    if (desk_.window.Désactive_audio.checked)
        return mix_.Pas_demix_audio();
    if (!desk_.ring.has_main_deck())
        return;
    try {
        look();
    } catch (const Failure& failure) {
        // Without its fade the list still plays on.
        desk_.window.overlap_timer.disable();
        desk_.notices.warn(std::string{failure.what()} + "\n" + digits_of(failure.number));
    }
}

void Overlap::look() {
    Deck& main = desk_.ring.main_deck();
    Deck& old = desk_.ring.before(main);
    desk_.display.elapsed(main.whole_position());
    const Integer limit = desk_.chain.position_zap + desk_.settings.mix_audio;
    if (desk_.window.Active_audio_zapping.checked || desk_.window.Active_audio.checked)
        fade(old);
    // Nothing follows a stopped chain's last track: at its end the old one would go on in its place.
    const bool is_last = desk_.chain.air == AirState::failed && main.is_at_its_end();
    if (desk_.elapsed() == limit || is_last)
        release(main, old);
}

void Overlap::fade(Deck& old) {
    constexpr int quietest = -4000;
    constexpr int step = 10;
    if (!old.has_graph() || old.graph().get_Volume().count() == quietest)
        return;
    if (faded_deck_ != old.number()) {
        faded_deck_ = old.number();
        desk_.report({.kind = OnAirEvent::Kind::fade_began, .deck = old.number()});
    }
    ErrorIndicator{}.skip([&] {
        const int volume = std::max(quietest, old.graph().get_Volume().count() - step);
        old.graph().put_Volume(Millibel{volume});
        const double share = static_cast<double>(quietest) / volume;
        old.controls.slider.show_value(to_integer(old.controls.slider.maximum / share).value());
        desk_.display.volume(old);
    });
}

void Overlap::release(Deck& main, Deck& old) {
    mix_.leave_special_mix(old);
    if (old.has_graph()) {
        old.graph().Stop();
        desk_.report({.kind = OnAirEvent::Kind::cut, .deck = old.number()});
    }
    desk_.display.overlap_over(old, main);
    desk_.window.overlap_timer.disable();
    old.controls.slider.set_value(0);
    if (!desk_.is_manual())
        old.drop_graph();
}

} // namespace sonarelle
