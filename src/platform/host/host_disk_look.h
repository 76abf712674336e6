#pragma once

#include <string>
#include <utility>

#include "platform/failure.h"
#include "platform/host/host_disk.h"

namespace sonarelle {

template <typename Use>
auto HostDisk::look(const std::string& absolute_path, Use use) const {
    Wanted name = wanted(absolute_path);
    std::string machine_path = name.base;
    for (const std::string& part : name.names)
        machine_path.append("/").append(part);
    return patience_->run(machine_path, name.source, [lookup = lookup_, name, use = std::move(use)] {
        return use(lookup->find(name.base, name.names, name.source));
    });
}

/// @throws Failure 76 without the folder, 53 without the file.
inline void check_found(const NameLookup::Place& found, const std::string& source) {
    if (found.outcome == NameLookup::Outcome::folder_missing)
        throw Failure{FailureNumber::path_not_found, source};
    if (found.outcome == NameLookup::Outcome::missing)
        throw Failure{FailureNumber::file_not_found, source};
}

} // namespace sonarelle
