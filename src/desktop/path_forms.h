#pragma once

#include <functional>
#include <string>

namespace sonarelle {

/// How paths of the station and of this machine turn into each other.
struct PathForms {
    std::function<std::string(const std::string&)> to_machine;
    /// @throws Failure, naming what is wrong, for a path that the station can't hold or reach.
    std::function<std::string(const std::string&)> to_station;
};

} // namespace sonarelle
