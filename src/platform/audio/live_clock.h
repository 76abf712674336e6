#pragma once

#include <functional>

#include "platform/audio/programme_bus.h"
#include "platform/clock.h"
#include "platform/scheduler.h"

namespace sonarelle {

/// The station's time while the bus is pulled in real time.
class LiveClock final : public Clock {
public:
    LiveClock(Scheduler& scheduler, const ProgrammeBus& bus)
        : scheduler_{scheduler},
          bus_{bus} {}

    [[nodiscard]] Frames now() const override { return scheduler_.now(); }
    /// What the clock on the wall will show, or showed, when now is heard.
    [[nodiscard]] CalendarTime calendar() const override;
    void advance_to(Frames heard) override { scheduler_.advance_to(heard); }
    void wait(Frames span) override;
    void yield() override;

    /// Runs ticks and events until now has come to a frame; the driver's.
    std::function<void(Frames)> run_until;
    /// Runs what is due and comes back at once; the driver's.
    std::function<void()> run_pending;

private:
    Scheduler& scheduler_;
    const ProgrammeBus& bus_;
};

} // namespace sonarelle
