#pragma once

#include "platform/units.h"

namespace sonarelle {

/// The calendar time of the station, local.
struct CalendarTime {
    int year = 0;
    int month = 0;
    int day = 0;
    int hour = 0;
    int minute = 0;
    int second = 0;
};

/// The station's time: a count of sample frames since start, and the calendar.
/// All calls come from the window thread.
class Clock {
public:
    virtual ~Clock() = default;

    /// During a tick its due frame, during an operator's event the frame on which its effects land.
    [[nodiscard]] virtual Frames now() const = 0;

    [[nodiscard]] virtual CalendarTime calendar() const = 0;

    /// Moves now forward to the frame on which a deck that was started late is really heard. An earlier frame does
    /// nothing.
    virtual void advance_to(Frames heard) = 0;

    /// Lets the other timers and the operator's events run until now has moved by `span`. The timer whose tick calls
    /// stands still meanwhile.
    virtual void wait(Frames span) = 0;

    /// Lets run what is due by now, the other timers and the operator's events, and comes back at once: what long work
    /// of a handler calls again and again, so that the station and its windows live on. The timer whose tick calls
    /// stands still meanwhile.
    virtual void yield() = 0;
};

} // namespace sonarelle
