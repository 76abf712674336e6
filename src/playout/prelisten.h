#pragma once

#include "playout/desk.h"

namespace sonarelle {

/// The pre-listen: every track of the list is cut after so many seconds.
class Prelisten {
public:
    explicit Prelisten(Desk& desk)
        : desk_{desk} {}

    /// Switches it on, for a time that it asks for, or off. A cancel, and a text that is no number, change nothing.
    void A_precoute();

private:
    void begin(Integer seconds);
    void end();

    Desk& desk_;
};

} // namespace sonarelle
