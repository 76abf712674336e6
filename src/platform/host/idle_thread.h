#pragma once

namespace sonarelle {

/// From here on the calling thread gets the processor and the disk only while nobody else wants them, as far as the
/// system knows how: what it does for the eye never takes from the air.
void become_idle_thread();

} // namespace sonarelle
