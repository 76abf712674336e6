#include "platform/host/host_disk.h"

#include <algorithm>

#include "platform/failure.h"
#include "platform/paths.h"
#include "platform/text.h"

namespace sonarelle {

namespace {

std::size_t index_of(char letter) {
    return static_cast<std::size_t>(letter - 'A');
}

/// Refuses what no file can be called, so that a wrong name never reads as a missing file.
void check_names(const StationPath& path) {
    for (const std::string& name : path.names) {
        if (has_forbidden_character(name) || name.find('\0') != std::string::npos)
            throw Failure{failure_number::wrong_file_name, path.text()};
        if (const auto foreign = first_foreign_character(name))
            throw Failure{failure_number::wrong_file_name, path.text(),
                          "Le caractère « " + *foreign + " » n'existe pas en Windows-1252"};
    }
}

} // namespace

HostDisk::HostDisk(const DriveTable& drives) : drives_{drives} {}

StationPath HostDisk::current() const {
    if (share_folder_)
        return *share_folder_;
    return {std::string{current_drive_}, folder_of_drive_[index_of(current_drive_)]};
}

StationPath HostDisk::parsed(std::string_view path) const {
    if (names_a_share(path))
        return share_path(path);
    StationPath result = current();
    if (const char letter = drive_letter_of(path)) {
        result = {std::string{letter}, folder_of_drive_[index_of(letter)]};
        path.remove_prefix(2);
    }
    if (path.starts_with('\\') || path.starts_with('/'))
        result.names.clear();
    append_names(result, path);
    return result;
}

std::string HostDisk::base_of(const StationPath& path) const {
    std::string folder = drives_.machine_path(StationPath{path.drive, {}}.text());
    return folder.substr(0, folder.find_last_not_of('/') + 1);
}

HostDisk::Place HostDisk::place_of(const StationPath& path) const {
    check_names(path);
    return lookup_.find(base_of(path), path);
}

HostDisk::Place HostDisk::existing(const StationPath& path, int number_when_missing) const {
    Place place = place_of(path);
    if (place.outcome == NameLookup::Outcome::folder_missing)
        throw Failure{failure_number::path_not_found, path.text()};
    if (place.outcome == NameLookup::Outcome::missing)
        throw Failure{number_when_missing, path.text()};
    return place;
}

HostDisk::Place HostDisk::creatable(const StationPath& path) const {
    Place place = place_of(path);
    if (place.outcome == NameLookup::Outcome::folder_missing)
        throw Failure{failure_number::path_not_found, path.text()};
    return place;
}

std::string HostDisk::current_folder() const {
    return current().text();
}

std::string HostDisk::absolute(std::string_view path) const {
    return parsed(path).text();
}

std::string HostDisk::machine_path(std::string_view path) const {
    return existing(parsed(path), failure_number::file_not_found).path;
}

void HostDisk::ChDrive(std::string_view path) {
    if (path.empty())
        return;
    const char letter = drive_letter_of(std::string{path.front()} + ":");
    if (letter == 0)
        throw Failure{failure_number::device_unavailable, std::string{path}};
    static_cast<void>(place_of({std::string{letter}, {}}));
    current_drive_ = letter;
    share_folder_.reset();
}

void HostDisk::ChDir(std::string_view folder) {
    const StationPath path = parsed(folder);
    const Place place = existing(path, failure_number::path_not_found);
    struct stat kind {};
    if (::stat(place.path.c_str(), &kind) != 0 || !S_ISDIR(kind.st_mode))
        throw Failure{failure_number::path_not_found, path.text()};
    if (path.is_share()) {
        share_folder_ = path;
        return;
    }
    folder_of_drive_[index_of(path.drive[0])] = path.names;
    if (path.drive[0] == current_drive_)
        share_folder_.reset();
}

std::string HostDisk::Dir(std::string_view pattern, FileAttributes attributes) {
    listing_.clear();
    if (pattern.empty())
        return {};
    StationPath folder = parsed(pattern);
    std::string last = "*";
    const bool is_whole_folder = pattern.find_last_of("\\/:") == pattern.size() - 1;
    if (!is_whole_folder && !folder.names.empty()) {
        last = std::move(folder.names.back());
        folder.names.pop_back();
    }
    listing_ = matches(folder, last, attributes);
    return Dir();
}

std::string HostDisk::Dir() {
    if (listing_.empty())
        return {};
    std::string name = std::move(listing_.back());
    listing_.pop_back();
    return name;
}

} // namespace sonarelle
