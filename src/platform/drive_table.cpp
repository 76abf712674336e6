#include "platform/drive_table.h"

#include <algorithm>

#include "platform/failure.h"
#include "platform/text.h"

namespace sonarelle {

namespace {

bool is_letter(std::string_view drive) {
    return drive.size() == 1 && ((drive[0] >= 'A' && drive[0] <= 'Z') || (drive[0] >= 'a' && drive[0] <= 'z'));
}

/// A share is `\\server\share`, two names and no more.
bool is_share(std::string_view drive) {
    if (!drive.starts_with("\\\\"))
        return false;
    const auto middle = drive.find('\\', 2);
    return middle != std::string_view::npos && middle > 2 && middle + 1 < drive.size() &&
           drive.find('\\', middle + 1) == std::string_view::npos;
}

std::string key_of(std::string_view drive) {
    if (drive.size() == 2 && drive[1] == ':')
        drive.remove_suffix(1);
    if (is_letter(drive))
        return upper_case(drive);
    if (is_share(drive))
        return lower_case(drive);
    throw Failure{failure_number::device_unavailable, std::string{drive}};
}

/// The part of an absolute path that names its drive.
std::string_view drive_part(std::string_view path) {
    if (path.size() >= 2 && path[1] == ':')
        return path.substr(0, 2);
    const auto share = path.starts_with("\\\\") ? path.find('\\', 2) : std::string_view::npos;
    if (share == std::string_view::npos)
        throw Failure{failure_number::device_unavailable, std::string{path}};
    return path.substr(0, path.find('\\', share + 1));
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

DriveTable::DriveTable() : folders_{{"C", ""}} {}

void DriveTable::set(std::string_view drive, std::string_view machine_folder) {
    folders_[key_of(drive)] = without_final_slash(machine_folder);
}

bool DriveTable::remove(std::string_view drive) {
    return folders_.erase(key_of(drive)) > 0;
}

std::string DriveTable::machine_path(std::string_view path) const {
    const std::string_view drive = drive_part(path);
    const auto found = folders_.find(key_of(drive));
    if (found == folders_.end())
        throw Failure{failure_number::device_unavailable, std::string{path}};
    const std::string rest = exchanged(path.substr(drive.size()), '\\', '/');
    const std::string joined = found->second + (rest.starts_with('/') ? rest : "/" + rest);
    return joined;
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
