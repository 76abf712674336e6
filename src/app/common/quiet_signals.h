#pragma once

namespace sonarelle {

/// An output that nobody reads any more, and a file that may grow no more, are then failures of the write concerned, as
/// a full disk is, and not the program's end.
void take_failures_for_signals();

} // namespace sonarelle
