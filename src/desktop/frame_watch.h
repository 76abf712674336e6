#pragma once

#include <functional>

class QWidget;

namespace sonarelle {

/// Calls `look` some times a second until the desktop has put its frame round a window, which it does some time after
/// that has come and tells nobody; for two seconds at most, since not every desktop has frames.
void watch_for_frame(QWidget& window, std::function<void()> look);

} // namespace sonarelle
