#include <dirent.h>

#include <algorithm>

#include "platform/failure.h"
#include "platform/host/host_disk.h"
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

bool is_pattern(std::string_view name) {
    return name.find_first_of("*?") != std::string_view::npos;
}

/// A name without a point fits *.* too.
bool fits(std::string_view name, std::string_view pattern) {
    return pattern == "*.*" || matches_pattern(name, pattern);
}

/// Sorts a folder's names as a list of files shows them.
void sort_names(std::vector<std::string>& names) {
    std::vector<std::pair<std::string, std::string>> keyed;
    keyed.reserve(names.size());
    for (std::string& name : names)
        keyed.emplace_back(lower_case(name), std::move(name));
    std::ranges::sort(keyed);
    std::ranges::transform(keyed, names.begin(), [](auto& entry) { return std::move(entry.second); });
}

std::vector<std::string> names_that_fit(const std::string& folder, std::string_view pattern, FileAttributes attributes,
                                        const std::string& source) {
    std::vector<std::string> names;
    const auto take = [&](std::string_view name, unsigned char told) {
        const bool hidden = name.starts_with('.') && !has(attributes, FileAttributes::hidden);
        if (name != "." && name != ".." && !hidden && fits(name, pattern) && can_be_named(name) &&
            is_wanted(kind_of(folder, name, told), attributes))
            names.emplace_back(name);
        return true;
    };
    if (!for_each_name(folder, take) && errno != ENOTDIR && errno != ENOENT)
        throw_errno(Access::reading, source);
    sort_names(names);
    return names;
}

} // namespace

std::vector<std::string> HostDisk::matches(const StationPath& folder, std::string_view pattern,
                                           FileAttributes attributes) const {
    if (is_pattern(pattern)) {
        if (pattern.find_first_of("<>|\"") != std::string_view::npos)
            throw Failure{failure_number::wrong_file_name, folder.text() + "\\" + std::string{pattern}};
        const Place place = place_of(folder);
        if (place.outcome != NameLookup::Outcome::present)
            return {};
        std::vector<std::string> names = names_that_fit(place.path, pattern, attributes, folder.text());
        std::ranges::reverse(names);
        return names;
    }
    StationPath path = folder;
    path.names.emplace_back(pattern);
    const Place place = place_of(path);
    if (place.outcome != NameLookup::Outcome::present || !is_wanted(kind_of(place.path), attributes))
        return {};
    return {place.path.substr(place.path.rfind('/') + 1)};
}

} // namespace sonarelle
