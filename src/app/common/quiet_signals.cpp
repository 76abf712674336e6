#include "app/common/quiet_signals.h"

#include <csignal>

namespace sonarelle {

void take_failures_for_signals() {
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGXFSZ, SIG_IGN);
}

} // namespace sonarelle
