#include "platform/drive_table.h"

#include <algorithm>

#include "platform/failure.h"
#include "platform/text.h"
#include "platform/working_folders.h"

namespace sonarelle {

namespace {

/// A capital letter, or a share in lower case.
std::string key_of(std::string_view drive) {
    const std::string name = drive_named(drive);
    return name.ends_with(':') ? name.substr(0, 1) : lower_case(name);
}

std::string without_final_slash(std::string_view folder) {
    return std::string{folder.substr(0, folder.find_last_not_of('/') + 1)};
}

std::string exchanged(std::string_view text, char from, char to) {
    std::string result{text};
    std::ranges::replace(result, from, to);
    return result;
}

} // namespace

DriveTable::DriveTable()
    : folders_{{"C", ""}} {}

void DriveTable::set(std::string_view drive, std::string_view machine_folder) {
    folders_[key_of(drive)] = without_final_slash(machine_folder);
}

bool DriveTable::remove(std::string_view drive) {
    return folders_.erase(key_of(drive)) > 0;
}

std::string DriveTable::machine_path(std::string_view path) const {
    const std::string drive = parts_of(path).drive;
    const auto found = folders_.find(key_of(drive));
    if (found == folders_.end())
        throw Failure{FailureNumber::device_unavailable, std::string{path}};
    const std::string rest = exchanged(path.substr(drive.size()), '\\', '/');
    return found->second + (rest.starts_with('/') ? rest : "/" + rest);
}

std::optional<std::string> DriveTable::station_path(std::string_view machine_path) const {
    const std::pair<const std::string, std::string>* best = nullptr;
    for (const auto& entry : folders_) {
        const std::string& folder = entry.second;
        const bool holds = machine_path.starts_with(folder) &&
                           (machine_path.size() == folder.size() || machine_path[folder.size()] == '/');
        if (holds && (best == nullptr || folder.size() > best->second.size()))
            best = &entry;
    }
    // A backslash in a machine's file name would read as a folder.
    if (best == nullptr || machine_path.find('\\') != std::string_view::npos)
        return std::nullopt;
    const std::string rest = exchanged(machine_path.substr(best->second.size()), '/', '\\');
    const std::string drive = best->first.size() == 1 ? best->first + ":" : best->first;
    return drive + (rest.empty() && best->first.size() == 1 ? "\\" : rest);
}

} // namespace sonarelle
