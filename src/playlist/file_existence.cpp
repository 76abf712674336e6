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

} // namespace

void enter_folder_of(Disk& disk, std::string_view path) {
    disk.ChDrive(path);
    disk.ChDir(folder_of_path(path));
}

bool is_listed(Disk& disk, std::string_view path) {
    return equal_ignoring_case(trim(disk.Dir(path)), trim(name_of_path(path)));
}

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
    if (!finding.folder.empty() && !is_folder(disk, finding.folder)) {
        finding.state = FileState::folder_missing;
        return finding;
    }
    if (!finding.folder.empty())
        disk.ChDir(finding.folder);
    if (!is_listed(disk, name))
        finding.state = FileState::missing;
    return finding;
}

} // namespace sonarelle
