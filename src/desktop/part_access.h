#pragma once

namespace sonarelle {

/// Screen readers learn what the parts are that the toolkit knows too little of: texts, choices, windows. For the whole
/// application.
void tell_screen_readers_of_parts();

} // namespace sonarelle
