#include <dirent.h>

#include <algorithm>
#include <cerrno>

#include "platform/failure.h"
#include "platform/host/host_disk.h"
#include "platform/host/host_disk_look.h"
#include "platform/host/host_errors.h"
#include "platform/paths.h"
#include "platform/text.h"

namespace sonarelle {

namespace {

enum class Kind { file, folder, other };

Kind kind_of(const std::string& machine_path) {
    struct stat facts {};
    if (::stat(machine_path.c_str(), &facts) != 0)
        return Kind::other;
    if (S_ISDIR(facts.st_mode))
        return Kind::folder;
    return S_ISREG(facts.st_mode) ? Kind::file : Kind::other;
}

/// The kind that the folder tells already, so that a long folder isn't asked file by file.
Kind kind_of(const std::string& folder, std::string_view name, unsigned char told) {
    if (told == DT_REG)
        return Kind::file;
    if (told == DT_DIR)
        return Kind::folder;
    return kind_of(folder + "/" + std::string{name});
}

bool is_wanted(Kind kind, FileAttributes attributes) {
    return kind == Kind::file || (kind == Kind::folder && has(attributes, FileAttributes::folder));
}

/// Sorts a folder's names as a list of files shows them, the last one first.
void sort_backwards(std::vector<std::string>& names) {
    std::vector<std::pair<std::string, std::string>> keyed;
    keyed.reserve(names.size());
    for (std::string& name : names)
        keyed.emplace_back(lower_case(name), std::move(name));
    std::ranges::sort(keyed, std::ranges::greater{});
    std::ranges::transform(keyed, names.begin(), [](auto& entry) { return std::move(entry.second); });
}

/// What a folder holds that fits the pattern.
std::vector<std::string> listed(const NameLookup::Place& folder, const PathPattern& pattern,
                                FileAttributes attributes) {
    std::vector<std::string> names;
    if (folder.outcome != NameLookup::Outcome::present)
        return names;
    const auto take = [&](std::string_view name, unsigned char told) {
        const bool hidden = name.starts_with('.') && !has(attributes, FileAttributes::hidden);
        if (name != "." && name != ".." && !hidden && matches_pattern(name, pattern.name) && can_be_named(name) &&
            is_wanted(kind_of(folder.path, name, told), attributes))
            names.emplace_back(name);
        return true;
    };
    if (!for_each_name(folder.path, take) && errno != ENOTDIR && errno != ENOENT)
        throw_errno(Access::reading, pattern.folder);
    sort_backwards(names);
    return names;
}

} // namespace

std::string HostDisk::Dir(std::string_view pattern, FileAttributes attributes) {
    listing_.clear();
    if (pattern.empty())
        return {};
    PathPattern wanted = working_.pattern_of(pattern);
    if (wanted.name.empty())
        wanted.name = "*";
    listing_ = matches(wanted, attributes);
    return Dir();
}

std::string HostDisk::Dir() {
    if (listing_.empty())
        return {};
    std::string name = std::move(listing_.back());
    listing_.pop_back();
    return name;
}

std::vector<std::string> HostDisk::matches(const PathPattern& pattern, FileAttributes attributes) const {
    const bool leads_elsewhere = pattern.name == "." || pattern.name == "..";
    if (!pattern.is_one_name() || leads_elsewhere)
        return look(pattern.folder, [pattern, attributes](const NameLookup::Place& folder) {
            return listed(folder, pattern, attributes);
        });
    return look(join_path(pattern.folder, pattern.name), [attributes](const NameLookup::Place& place) {
        std::vector<std::string> names;
        if (place.outcome == Outcome::present && is_wanted(kind_of(place.path), attributes))
            names.push_back(place.path.substr(place.path.rfind('/') + 1));
        return names;
    });
}

void HostDisk::Kill(std::string_view path) {
    const PathPattern pattern = working_.pattern_of(path);
    if (pattern.is_one_name()) {
        remove_file(existing(path, FailureNumber::file_not_found));
        return;
    }
    const std::vector<std::string> names = matches(pattern, FileAttributes::normal);
    if (names.empty())
        throw Failure{FailureNumber::file_not_found, absolute(path)};
    for (const std::string& name : names)
        remove_file(existing(join_path(pattern.folder, name), FailureNumber::file_not_found));
}

} // namespace sonarelle
