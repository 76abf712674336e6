#include "platform/working_folders.h"

#include <algorithm>

#include "platform/failure.h"
#include "platform/paths.h"
#include "platform/text.h"

namespace sonarelle {

namespace {

bool is_letter(char c) {
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

char capital(char letter) {
    return letter >= 'a' ? static_cast<char>(letter - 'a' + 'A') : letter;
}

bool has_letter(std::string_view path) {
    return path.size() >= 2 && path[1] == ':' && is_letter(path[0]);
}

[[noreturn]] void no_drive(std::string_view path) {
    throw Failure{FailureNumber::device_unavailable, std::string{path}};
}

/// Bytes of `\\serveur\partage` at the head of a path.
std::size_t length_of_share(std::string_view path) {
    const auto middle = path.starts_with("\\\\") ? path.find('\\', 2) : std::string_view::npos;
    if (middle == std::string_view::npos || middle == 2 || middle + 1 == path.size() || path[middle + 1] == '\\')
        no_drive(path);
    return std::min(path.find('\\', middle + 1), path.size());
}

std::vector<std::string> names_in(std::string_view path) {
    std::vector<std::string> names;
    for (std::size_t begin = 0; begin < path.size();) {
        const std::size_t end = std::min(path.find('\\', begin), path.size());
        const std::string_view name = path.substr(begin, end - begin);
        if (name == ".." && !names.empty())
            names.pop_back();
        else if (!name.empty() && name != "." && name != "..")
            names.emplace_back(name);
        begin = end + 1;
    }
    return names;
}

} // namespace

PathParts parts_of(std::string_view path) {
    if (has_letter(path))
        return {{capital(path[0]), ':'}, names_in(path.substr(2))};
    const std::size_t share = length_of_share(path);
    return {std::string{path.substr(0, share)}, names_in(path.substr(share))};
}

std::string drive_named(std::string_view name) {
    if (name.size() == 1)
        return {drive_letter_of(name), ':'};
    std::string drive = parts_of(name).drive;
    if (drive.size() != name.size())
        no_drive(name);
    return drive;
}

char drive_letter_of(std::string_view path) {
    if (path.empty() || !is_letter(path.front()))
        no_drive(path);
    return capital(path.front());
}

void WorkingFolders::set_drive(char letter) {
    drive_ = capital(letter);
    share_folder_.clear();
}

void WorkingFolders::set_folder(std::string_view absolute_folder) {
    if (!has_letter(absolute_folder)) {
        share_folder_ = absolute_folder;
        return;
    }
    const char letter = capital(absolute_folder[0]);
    folders_[letter] = absolute_folder;
    if (letter == drive_)
        share_folder_.clear();
}

std::string WorkingFolders::absolute(std::string_view path) const {
    std::string wanted{path};
    std::ranges::replace(wanted, '/', '\\');
    const PathParts parts = parts_of(with_drive(wanted));
    std::string result = parts.drive;
    for (const std::string& name : parts.names)
        result.append(1, '\\').append(name);
    return parts.names.empty() && parts.drive.size() == 2 ? result + '\\' : result;
}

PathPattern WorkingFolders::pattern_of(std::string_view path) const {
    const auto last = path.find_last_of("\\/");
    const std::size_t begin = last != std::string_view::npos ? last + 1 : has_letter(path) ? 2 : 0;
    PathPattern pattern{absolute(path.substr(0, begin)), std::string{path.substr(begin)}};
    const bool is_wrong = pattern.name.find_first_of(forbidden_in_patterns) != std::string::npos;
    if (is_wrong || first_foreign_character(pattern.name))
        throw Failure{FailureNumber::wrong_file_name, std::string{path}};
    return pattern;
}

std::string WorkingFolders::folder_of_drive(char letter) const {
    const auto found = folders_.find(letter);
    return found == folders_.end() ? std::string{letter} + ":\\" : found->second;
}

std::string WorkingFolders::with_drive(std::string_view path) const {
    if (path.starts_with("\\\\"))
        return std::string{path};
    if (path.starts_with('\\'))
        return parts_of(folder()).drive.append(path);
    if (!has_letter(path))
        return join_path(folder(), path);
    if (path.substr(2).starts_with('\\'))
        return std::string{path};
    return join_path(folder_of_drive(capital(path[0])), path.substr(2));
}

} // namespace sonarelle
