#include "playout/air_watch.h"

#include <algorithm>

#include "platform/calendar_text.h"
#include "platform/clock.h"
#include "platform/media.h"
#include "platform/text.h"

namespace sonarelle {

namespace {

constexpr Frames usual_look = seconds(1);
constexpr Frames close_look = milliseconds(100);

} // namespace

AirWatch::AirWatch(Desk& desk, Journal& journal, ListRescue& rescue)
    : desk_{desk},
      journal_{journal},
      rescue_{rescue},
      timer_{"air_watch", 0, desk.platform.scheduler} {
    timer_.on_tick = [this] { look(); };
    aim({});
    timer_.enable();
}

bool AirWatch::is_wanted() const {
    const bool paused = desk_.ring.has_main_deck() && desk_.ring.main_deck().pause_lecteur.is_true();
    return desk_.chain.air != AirState::off && !paused && !desk_.is_manual() && !desk_.chain.chaine_suspendue.is_true();
}

void AirWatch::look() {
    const ProgrammeSilence heard = desk_.platform.media.silence();
    const std::optional<Frames> told = desk_.chain.silent_since;
    const bool wanted = is_wanted();
    if (told && (!wanted || heard.since > *told))
        tell_end(heard.until > *told ? heard.until : heard.known);
    if (!wanted)
        unwanted_until_ = heard.known;
    const Frames since = std::max({heard.since, desk_.chain.air_since, unwanted_until_});
    const Frames silent_for = std::max(Frames{}, heard.known - since);
    if (!desk_.chain.silent_since && wanted && silent_for >= silence_told_after)
        tell_silence(since);
    aim(silent_for);
    if (wanted)
        rescue_.look(silent_for);
}

// The next look comes when there may be something to tell or to do, to the millisecond.
void AirWatch::aim(Frames silent_for) {
    Frames next = desk_.chain.silent_since ? close_look : usual_look;
    for (const Frames moment : {silence_told_after, rescue_.patience()})
        if (silent_for > Frames{} && silent_for < moment)
            next = std::min(next, moment - silent_for);
    const std::int64_t whole = (next.count() + frames_per_millisecond - 1) / frames_per_millisecond;
    timer_.set_interval(static_cast<int>(std::max<std::int64_t>(10, whole)));
}

void AirWatch::tell_silence(Frames since) {
    desk_.chain.silent_since = since;
    desk_.report({.kind = OnAirEvent::Kind::silence, .ago = desk_.platform.clock.now() - since - silence_told_after});
    journal_.note(date_and_time(desk_.platform) + " Silence à l'antenne");
}

void AirWatch::tell_end(Frames end) {
    const Frames length = end - *desk_.chain.silent_since;
    desk_.chain.silent_since.reset();
    desk_.report({.kind = OnAirEvent::Kind::silence_over, .span = length, .ago = desk_.platform.clock.now() - end});
    journal_.note(date_and_time(desk_.platform) + " Fin du silence après " +
                  Format(in_seconds(length), "0", DecimalMark::point) + " s");
}

} // namespace sonarelle
