#pragma once

#include <functional>
#include <string>

#include "platform/numbers.h"
#include "platform/screen.h"

namespace sonarelle {

class Clock;
class Dialogs;
class Disk;
class Media;
class Random;
class Scheduler;
class Settings;
class Shell;

/// The machine as a station sees it. Whoever makes it owns the parts; they outlive the station.
struct Platform {
    Clock& clock;
    Scheduler& scheduler;
    Disk& disk;
    Settings& settings;
    Dialogs& dialogs;
    Media& media;
    Random& random;
    Shell& shell;
    std::string program_folder; ///< Where the pictures and the default list lie, in the station's form of paths.
    DecimalMark decimal_mark = DecimalMark::point;
    std::function<ScreenArea()> screen = [] { return ScreenArea{}; }; ///< As it is when it is asked.
};

} // namespace sonarelle
