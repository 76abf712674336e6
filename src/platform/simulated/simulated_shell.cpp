#include "platform/simulated/simulated_shell.h"

#include "platform/failure.h"

namespace sonarelle {

void SimulatedShell::show_guide(std::string_view window) {
    if (!has_guide)
        throw Failure{FailureNumber::file_not_found, "guide"};
    guide_shown_for.emplace_back(window);
}

void SimulatedShell::set_cd_door(bool open) {
    if (!has_cd_drive)
        throw Failure{FailureNumber::device_unavailable};
    cd_door_open = open;
}

void SimulatedShell::start(std::string_view program, std::string_view file) {
    if (!has_programs)
        throw Failure{FailureNumber::file_not_found, std::string{program.empty() ? file : program}};
    started.push_back({std::string{program}, std::string{file}});
}

} // namespace sonarelle
