#include "platform/host/name_lookup.h"

#include <dirent.h>

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <memory>

#include "platform/failure.h"
#include "platform/host/host_errors.h"
#include "platform/paths.h"
#include "platform/text.h"

namespace sonarelle {

namespace {

constexpr std::size_t most_names_kept = 200'000;

struct DirectoryClose {
    void operator()(DIR* directory) const { ::closedir(directory); }
};

std::chrono::nanoseconds age_of(const struct stat& folder) {
    const std::int64_t last_change = std::max(nanoseconds(folder.st_mtim), nanoseconds(folder.st_ctim));
    return std::chrono::nanoseconds{nanoseconds_now() - last_change};
}

bool is_unchanged(const struct stat& a, const struct stat& b) {
    return a.st_ino == b.st_ino && a.st_dev == b.st_dev && nanoseconds(a.st_mtim) == nanoseconds(b.st_mtim) &&
           nanoseconds(a.st_ctim) == nanoseconds(b.st_ctim);
}

bool is_folder(const std::string& path) {
    struct stat facts {};
    return ::stat(path.c_str(), &facts) == 0 && S_ISDIR(facts.st_mode);
}

enum class Exact { yes, no };

/// Whether a path is there under exactly this name.
Exact look_for(const std::string& path, const std::string& source) {
    struct stat facts {};
    if (::lstat(path.c_str(), &facts) == 0)
        return Exact::yes;
    if (errno != ENOENT && errno != ENOTDIR)
        throw_errno(Access::reading, source);
    return Exact::no;
}

std::string joined(const std::string& base, const std::vector<std::string>& names) {
    std::string result = base;
    for (const std::string& name : names)
        result.append("/").append(name);
    return result.empty() ? "/" : result;
}

/// The first in byte order of the names that differ from `name` by case alone.
std::optional<std::string> spelling_by_walk(const std::string& folder, const std::string& name) {
    std::optional<std::string> best;
    for_each_name(folder, [&](std::string_view found, unsigned char) {
        if (equal_ignoring_case(found, name) && can_be_named(found) && (!best || found < *best))
            best = found;
        return true;
    });
    return best;
}

} // namespace

bool can_be_named(std::string_view name) {
    return !first_foreign_character(name) && !has_forbidden_character(name) &&
           name.find('\\') == std::string_view::npos;
}

bool for_each_name(const std::string& folder, const std::function<bool(std::string_view, unsigned char)>& use) {
    const std::unique_ptr<DIR, DirectoryClose> directory{::opendir(folder.c_str())};
    if (!directory)
        return false;
    errno = 0;
    while (const dirent* entry = ::readdir(directory.get()))
        if (!use(entry->d_name, entry->d_type))
            return true;
    return errno == 0;
}

NameLookup::Place NameLookup::find(const std::string& base, const std::vector<std::string>& names,
                                   const std::string& source) const {
    Place place{joined(base, names), Outcome::present};
    if (look_for(place.path, source) == Exact::yes)
        return place;
    if (!is_folder(base.empty() ? "/" : base))
        throw Failure{FailureNumber::device_unavailable, source};

    place.path = base;
    for (std::size_t i = 0; i < names.size(); ++i) {
        const bool is_last = i + 1 == names.size();
        std::string next = place.path + "/" + names[i];
        if (place.outcome == Outcome::present && look_for(next, source) == Exact::no) {
            if (const auto found = spelling(place.path.empty() ? "/" : place.path, names[i]))
                next = place.path + "/" + *found;
            else
                place.outcome = is_last ? Outcome::missing : Outcome::folder_missing;
        }
        place.path = std::move(next);
        if (place.outcome == Outcome::present && !is_last && !is_folder(place.path))
            place.outcome = Outcome::folder_missing;
    }
    return place;
}

std::optional<std::string> NameLookup::spelling(const std::string& folder, const std::string& name) const {
    struct stat facts {};
    if (::stat(folder.c_str(), &facts) != 0)
        return std::nullopt;
    if (age_of(facts) <= settled_after_)
        return spelling_by_walk(folder, name);

    bool known = false;
    if (auto kept = kept_spelling(folder, facts, name, known); known)
        return kept;
    Folder learnt{facts, {}};
    const bool read_whole = for_each_name(folder, [&learnt](std::string_view found, unsigned char) {
        if (!can_be_named(found))
            return true;
        std::string& spelling_there = learnt.spellings[lower_case(found)];
        if (spelling_there.empty() || found < spelling_there)
            spelling_there = found;
        return true;
    });
    const auto found = learnt.spellings.find(lower_case(name));
    std::optional<std::string> result;
    if (found != learnt.spellings.end())
        result = found->second;
    if (read_whole)
        keep(folder, std::move(learnt));
    return result;
}

std::optional<std::string> NameLookup::kept_spelling(const std::string& folder, const struct stat& facts,
                                                     const std::string& name, bool& known) const {
    const MutexLock lock{mutex_};
    const auto kept = folders_.find(folder);
    known = kept != folders_.end() && is_unchanged(kept->second.facts, facts);
    if (!known)
        return std::nullopt;
    const auto found = kept->second.spellings.find(lower_case(name));
    return found == kept->second.spellings.end() ? std::nullopt : std::optional{found->second};
}

void NameLookup::keep(const std::string& folder, Folder learnt) const {
    const MutexLock lock{mutex_};
    names_kept_ += learnt.spellings.size();
    if (names_kept_ > most_names_kept) {
        folders_.clear();
        names_kept_ = learnt.spellings.size();
    }
    folders_.insert_or_assign(folder, std::move(learnt));
}

} // namespace sonarelle
