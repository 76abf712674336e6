#include "platform/host/host_disk.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>

#include "platform/failure.h"
#include "platform/host/host_disk_look.h"
#include "platform/host/host_errors.h"
#include "platform/host/machine_files.h"
#include "platform/paths.h"
#include "platform/text.h"

namespace sonarelle {

namespace {

/// Renames without ever taking the place of another file, on the disks that can promise it.
int rename_to_new(const std::string& from, const std::string& to) {
    const int result = ::renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE);
    return result != 0 && errno == EINVAL ? ::rename(from.c_str(), to.c_str()) : result;
}

/// The folder that a drive lies in is no business of the station.
bool is_root(const std::string& absolute_path) {
    return parts_of(absolute_path).names.empty();
}

std::string folder_part(const std::string& machine_path) {
    return machine_path.substr(0, machine_path.rfind('/') + 1);
}

} // namespace

HostDisk::Wanted HostDisk::wanted(const std::string& absolute_path) const {
    check_path(absolute_path);
    const PathParts parts = parts_of(absolute_path);
    std::string root = drives_.machine_path(absolute_path);
    root.resize(root.size() - (absolute_path.size() - parts.drive.size()));
    return {root.substr(0, root.find_last_not_of('/') + 1), parts.names, absolute_path};
}

HostDisk::Place HostDisk::place_of(std::string_view path) const {
    const std::string name = absolute(path);
    return look(name, [name](const NameLookup::Place& found) -> Place {
        if (found.outcome == Outcome::folder_missing)
            throw Failure{FailureNumber::path_not_found, name};
        return {name, found.path, found.outcome == Outcome::present};
    });
}

HostDisk::Place HostDisk::existing(std::string_view path, FailureNumber number_when_missing) const {
    Place place = place_of(path);
    if (!place.exists)
        throw Failure{number_when_missing, place.source};
    return place;
}

std::string HostDisk::machine_path(std::string_view path) const {
    const std::string name = absolute(path);
    return look(name, [name](const NameLookup::Place& found) {
        check_found(found, name);
        return found.path;
    });
}

void HostDisk::ChDrive(std::string_view path) {
    if (path.empty())
        return;
    const char letter = drive_letter_of(path);
    try {
        look(std::string{letter} + ":\\", [](const NameLookup::Place&) {});
    } catch (const Failure& failure) {
        throw Failure{failure.number, std::string{path}};
    }
    working_.set_drive(letter);
}

void HostDisk::ChDir(std::string_view folder) {
    const std::string name = absolute(folder);
    const bool is_folder = look(name, [](const NameLookup::Place& found) {
        struct stat kind {};
        return found.outcome == Outcome::present && ::stat(found.path.c_str(), &kind) == 0 && S_ISDIR(kind.st_mode);
    });
    if (!is_folder)
        throw Failure{FailureNumber::path_not_found, name};
    working_.set_folder(name);
}

FileFacts HostDisk::facts(std::string_view path) {
    const std::string name = absolute(path);
    return look(name, [name](const NameLookup::Place& found) -> FileFacts {
        check_found(found, name);
        struct stat facts {};
        if (::stat(found.path.c_str(), &facts) != 0)
            throw_errno(Access::reading, name);
        return facts_of(facts);
    });
}

/// A write-protected file stays, though its folder would let it go; a link goes by itself.
void HostDisk::remove_file(const Place& place) {
    struct stat facts {};
    const bool is_link = ::lstat(place.path.c_str(), &facts) == 0 && S_ISLNK(facts.st_mode);
    const bool may_write = is_link || ::faccessat(AT_FDCWD, place.path.c_str(), W_OK, AT_EACCESS) == 0;
    if (!may_write || ::unlink(place.path.c_str()) != 0)
        throw_errno(Access::writing, place.source);
}

void HostDisk::Name(std::string_view old_path, std::string_view new_path) {
    const Place to = place_of(new_path);
    const Place from = existing(old_path, FailureNumber::file_not_found);
    if (!equal_ignoring_case(parts_of(from.source).drive, parts_of(to.source).drive))
        throw Failure{FailureNumber::other_drive, to.source};
    const bool only_case_changes = to.path == from.path;
    if (to.exists && !only_case_changes)
        throw Failure{FailureNumber::file_exists, to.source};
    if (is_root(from.source) || to.path.starts_with(from.path + "/"))
        throw Failure{FailureNumber::path_access, to.source};
    const std::string new_name = folder_part(to.path) + std::string{name_of_path(to.source)};
    const int result =
        only_case_changes ? ::rename(from.path.c_str(), new_name.c_str()) : rename_to_new(from.path, new_name);
    if (result != 0)
        throw_errno(Access::writing, errno == EEXIST ? to.source : from.source);
}

void HostDisk::MkDir(std::string_view folder) {
    const Place place = place_of(folder);
    if (place.exists)
        throw Failure{FailureNumber::path_access, place.source};
    if (::mkdir(place.path.c_str(), 0777) != 0)
        throw_errno(Access::writing, place.source);
}

void HostDisk::RmDir(std::string_view folder) {
    const Place place = existing(folder, FailureNumber::path_not_found);
    if (is_root(place.source))
        throw Failure{FailureNumber::path_access, place.source};
    if (::rmdir(place.path.c_str()) != 0)
        throw_errno(Access::writing, place.source);
}

} // namespace sonarelle
