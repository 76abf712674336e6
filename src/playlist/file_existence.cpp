#include "playlist/file_existence.h"

#include "platform/failure.h"
#include "platform/paths.h"
#include "platform/text.h"

namespace sonarelle {

namespace {

bool means_missing(FailureNumber failure) {
    return failure == FailureNumber::file_not_found || failure == FailureNumber::path_not_found ||
           failure == FailureNumber::device_unavailable;
}

/// False for a drive that can't be had. One that doesn't answer may hold all its files.
bool enter_drive(Disk& disk, std::string_view path) {
    ErrorIndicator errors;
    errors.skip([&] { disk.ChDrive(path); });
    if (errors.number() == FailureNumber::device_fault)
        throw Failure{FailureNumber::device_fault, std::string{path}};
    return !errors.is_set();
}

bool is_folder(Disk& disk, std::string_view folder) {
    try {
        return disk.facts(folder).is_folder;
    } catch (const Failure& failure) {
        if (means_missing(failure.number))
            return false;
        throw;
    }
}

/// As the disk lists it; a name with a wild card is found as another's.
bool is_file_of(Disk& disk, std::string_view folder, std::string_view name) {
    disk.ChDir(folder);
    return equal_ignoring_case(disk.Dir(name), name);
}

} // namespace

FileFinding look_for_file(Disk& disk, std::string_view path) {
    const std::string_view name = name_of_path(path);
    FileFinding finding;
    finding.folder = path.substr(0, path.size() - name.size());
    if (is_network_path(path)) {
        finding.state = FileState::on_network;
        return finding;
    }
    if (!path.empty() && !enter_drive(disk, path)) {
        finding.state = FileState::missing;
        return finding;
    }
    if (name.empty())
        return finding;
    if (!finding.folder.empty() && !is_folder(disk, finding.folder))
        finding.state = FileState::folder_missing;
    else if (!is_file_of(disk, finding.folder.empty() ? disk.current_folder() : finding.folder, name))
        finding.state = FileState::missing;
    return finding;
}

} // namespace sonarelle
