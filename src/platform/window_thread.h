#pragma once

namespace sonarelle {

/// Whether the caller is the window thread: the one that the program began on. The station, its windows and its
/// scheduler live there alone; asserted where others would do harm.
[[nodiscard]] bool on_window_thread();

} // namespace sonarelle
