#include "platform/simulated/simulated_disk.h"

#include <algorithm>
#include <chrono>
#include <utility>

#include "platform/clock.h"
#include "platform/failure.h"
#include "platform/paths.h"
#include "platform/simulated/simulated_file.h"
#include "platform/text.h"

namespace sonarelle {

namespace {

[[noreturn]] void fail(FailureNumber number, std::string_view path) {
    throw Failure{number, std::string{path}};
}

/// For what changes the list of names in the entry's folder.
void check_folder(const DiskPlace& place) {
    if (place.folder == nullptr || place.folder->read_only)
        fail(FailureNumber::path_access, place.path);
}

/// For what changes or removes the entry itself too.
void check_writable(const DiskPlace& place) {
    check_folder(place);
    if (place.entry != nullptr && place.entry->read_only)
        fail(FailureNumber::path_access, place.path);
}

void check_is_file(const DiskPlace& place) {
    if (place.entry->is_folder())
        fail(FailureNumber::path_access, place.path);
}

bool is_asked_for(const DiskEntry& entry, FileAttributes attributes) {
    return (!entry.is_folder() || has(attributes, FileAttributes::folder)) &&
           (!entry.hidden || has(attributes, FileAttributes::hidden));
}

FileFacts facts_of(const DiskEntry& entry) {
    if (entry.is_folder())
        return {0, 0, true};
    return {static_cast<std::int64_t>(entry.content->bytes().size()), entry.content->modified, false};
}

class SimulatedClaim : public FileClaim {
public:
    SimulatedClaim(std::shared_ptr<std::set<std::string>> claimed, std::string name)
        : claimed_{std::move(claimed)},
          name_{std::move(name)} {}
    ~SimulatedClaim() override { claimed_->erase(name_); }

private:
    std::shared_ptr<std::set<std::string>> claimed_;
    std::string name_;
};

} // namespace

SimulatedDisk::SimulatedDisk(Clock& clock)
    : clock_{clock} {
    tree_.add_drive("C");
}

void SimulatedDisk::ChDrive(std::string_view path) {
    if (path.empty())
        return;
    const char letter = drive_letter_of(path);
    if (!tree_.has_drive({&letter, 1}))
        fail(FailureNumber::device_unavailable, path);
    faults_.meet(std::string{letter} + ":\\", clock_);
    working_.set_drive(letter);
}

void SimulatedDisk::ChDir(std::string_view folder) {
    const std::string target = absolute(folder);
    check_path(target);
    faults_.meet(target, clock_);
    const DiskPlace place = tree_.locate(target);
    if (place.entry == nullptr || !place.entry->is_folder())
        fail(FailureNumber::path_not_found, target);
    working_.set_folder(target);
    if (faults_.take_leaving(target))
        (void)DiskTree::remove(place);
}

std::string SimulatedDisk::Dir(std::string_view pattern, FileAttributes attributes) {
    found_.clear();
    if (pattern.empty())
        return {};
    faults_.meet(absolute(pattern), clock_);
    PathPattern wanted = pattern_of(pattern);
    if (!tree_.has_drive(wanted.folder))
        fail(FailureNumber::device_unavailable, wanted.folder);
    if (wanted.name.empty())
        wanted.name += '*';
    for (const DiskEntry* entry : matches(wanted, attributes))
        found_.push_back(entry->name);
    std::ranges::reverse(found_);
    return Dir();
}

std::string SimulatedDisk::Dir() {
    if (found_.empty())
        return {};
    std::string name = std::move(found_.back());
    found_.pop_back();
    return name;
}

FileFacts SimulatedDisk::facts(std::string_view path) {
    const std::string target = absolute(path);
    check_path(target);
    faults_.meet(target, clock_);
    const DiskEntry* entry = tree_.locate(target).entry;
    if (entry == nullptr)
        fail(FailureNumber::file_not_found, target);
    return facts_of(*entry);
}

void SimulatedDisk::Kill(std::string_view path) {
    const PathPattern wanted = pattern_of(path);
    std::vector<std::string> names{wanted.name};
    if (!wanted.is_one_name()) {
        if (!tree_.has_drive(wanted.folder))
            fail(FailureNumber::device_unavailable, wanted.folder);
        names.clear();
        for (const DiskEntry* file : matches(wanted, FileAttributes::normal))
            names.push_back(file->name);
    }
    if (names.empty())
        fail(FailureNumber::file_not_found, absolute(path));
    for (const std::string& name : names) {
        const DiskPlace place = file_at(join_path(wanted.folder, name));
        check_writable(place);
        (void)DiskTree::remove(place);
    }
}

void SimulatedDisk::Name(std::string_view old_path, std::string_view new_path) {
    const std::string target = absolute(new_path);
    (void)place_of(target);
    const DiskPlace from = place_of(old_path);
    const DiskPlace to = tree_.locate(target);
    if (from.entry == nullptr)
        fail(FailureNumber::file_not_found, from.path);
    if (!equal_ignoring_case(parts_of(from.path).drive, parts_of(target).drive))
        fail(FailureNumber::other_drive, target);
    if (to.entry != nullptr && to.entry != from.entry)
        fail(FailureNumber::file_exists, target);
    if (lower_case(target).starts_with(lower_case(from.path) + '\\'))
        fail(FailureNumber::path_access, target);
    check_folder(from);
    check_folder(to);
    DiskTree::put(to, DiskTree::remove(from));
}

void SimulatedDisk::FileCopy(std::string_view from, std::string_view to) {
    const DiskPlace source = file_at(from);
    const auto content = source.entry->content;
    const DiskEntry* target = tree_.find(absolute(to));
    if (target != nullptr && target->content == content)
        fail(FailureNumber::permission_refused, absolute(to));
    const auto copy = replace(to);
    copy->write(std::as_bytes(std::span{content->bytes()}));
    copy->commit();
}

void SimulatedDisk::MkDir(std::string_view folder) {
    const DiskPlace place = place_of(folder);
    if (place.entry != nullptr)
        fail(FailureNumber::path_access, place.path);
    check_writable(place);
    DiskTree::add(place);
}

void SimulatedDisk::RmDir(std::string_view folder) {
    const DiskPlace place = place_of(folder);
    if (place.entry == nullptr)
        fail(FailureNumber::path_not_found, place.path);
    if (!place.entry->is_folder() || !place.entry->entries.empty())
        fail(FailureNumber::path_access, place.path);
    check_writable(place);
    (void)DiskTree::remove(place);
}

std::unique_ptr<RecordFile> SimulatedDisk::open(std::string_view path) {
    const DiskPlace place = file_at(path);
    return std::make_unique<SimulatedFile>(faults_, place.path, place.entry->content);
}

std::unique_ptr<RecordFile> SimulatedDisk::open_or_create(std::string_view path) {
    const DiskPlace place = place_of(path);
    if (place.entry != nullptr)
        check_is_file(place);
    const DiskEntry& file = place.entry != nullptr ? *place.entry : file_to_write(place);
    return std::make_unique<SimulatedFile>(faults_, place.path, file.content);
}

std::unique_ptr<FileReplacement> SimulatedDisk::replace(std::string_view path) {
    const DiskPlace place = place_of(path);
    if (place.entry != nullptr)
        check_is_file(place);
    check_writable(place);
    return std::make_unique<SimulatedReplacement>(*this, place.path, std::make_shared<FileContent>(space_));
}

void SimulatedDisk::append(std::string_view path, std::string_view bytes) {
    const DiskPlace place = place_of(path);
    DiskEntry& file = file_to_write(place);
    file.content->append(bytes, place.path);
    file.content->modified = time_of_change();
}

std::unique_ptr<FileClaim> SimulatedDisk::claim(std::string_view path) {
    const DiskPlace place = place_of(path);
    check_folder(place);
    std::string name = lower_case(place.path);
    if (!claimed_->insert(name).second)
        return nullptr;
    return std::make_unique<SimulatedClaim>(claimed_, std::move(name));
}

FileFacts SimulatedDisk::commit(std::string_view path, std::shared_ptr<FileContent> content) {
    DiskEntry& file = file_to_write(place_of(path));
    file.content = std::move(content);
    file.content->modified = time_of_change();
    return facts_of(file);
}

std::optional<FileFacts> SimulatedDisk::facts_of_file(std::string_view absolute_path) const {
    const DiskEntry* entry = tree_.find(absolute_path);
    return entry == nullptr ? std::nullopt : std::optional{facts_of(*entry)};
}

void SimulatedDisk::put_file(std::string_view path, std::string_view bytes) {
    const std::string target = absolute(path);
    (void)tree_.make_folders(folder_of_path(target));
    const DiskPlace place = tree_.locate(target);
    DiskEntry& file = place.entry == nullptr ? DiskTree::add(place) : *place.entry;
    file.content = std::make_shared<FileContent>(space_);
    file.content->append(bytes, target);
    file.content->modified = time_of_change();
}

void SimulatedDisk::unplug(std::string_view drive) {
    unplugged_[std::string{drive}] = tree_.take_drive(drive);
}

void SimulatedDisk::plug_again(std::string_view drive) {
    if (auto taken = unplugged_.extract(std::string{drive}); taken && taken.mapped())
        tree_.put_drive(drive, std::move(taken.mapped()));
}

void SimulatedDisk::put_folder(std::string_view path) {
    (void)tree_.make_folders(absolute(path));
}

bool SimulatedDisk::exists(std::string_view path) const {
    return tree_.find(absolute(path)) != nullptr;
}

std::string SimulatedDisk::bytes(std::string_view path) const {
    const DiskEntry& entry = entry_at(path);
    if (entry.is_folder())
        fail(FailureNumber::file_not_found, path);
    return entry.content->bytes();
}

void SimulatedDisk::set_read_only(std::string_view path, bool on) {
    entry_at(path).read_only = on;
}

void SimulatedDisk::set_hidden(std::string_view path, bool on) {
    entry_at(path).hidden = on;
}

DiskEntry& SimulatedDisk::entry_at(std::string_view path) const {
    DiskEntry* entry = tree_.find(absolute(path));
    if (entry == nullptr)
        fail(FailureNumber::file_not_found, path);
    return *entry;
}

/// Where a name that is no pattern lies, once its faults are met.
DiskPlace SimulatedDisk::place_of(std::string_view path) {
    const std::string target = absolute(path);
    check_path(target);
    faults_.meet(target, clock_);
    DiskPlace place = tree_.locate(target);
    if (place.entry != nullptr && place.folder != nullptr && faults_.take_vanishing(target)) {
        (void)DiskTree::remove(place);
        place.entry = nullptr;
    }
    return place;
}

DiskPlace SimulatedDisk::file_at(std::string_view path) {
    DiskPlace place = place_of(path);
    if (place.entry == nullptr)
        fail(FailureNumber::file_not_found, place.path);
    check_is_file(place);
    return place;
}

/// The file of the place, made where it is missing.
DiskEntry& SimulatedDisk::file_to_write(const DiskPlace& place) {
    check_writable(place);
    if (place.entry != nullptr) {
        check_is_file(place);
        return *place.entry;
    }
    DiskEntry& file = DiskTree::add(place);
    file.content = std::make_shared<FileContent>(space_);
    file.content->modified = time_of_change();
    return file;
}

PathPattern SimulatedDisk::pattern_of(std::string_view path) const {
    PathPattern pattern = working_.pattern_of(path);
    check_path(pattern.folder);
    return pattern;
}

std::vector<DiskEntry*> SimulatedDisk::matches(const PathPattern& pattern, FileAttributes attributes) const {
    const DiskEntry* folder = tree_.find(pattern.folder);
    std::vector<DiskEntry*> found;
    if (folder == nullptr)
        return found;
    if (pattern.is_one_name()) {
        const auto one = folder->entries.find(lower_case(pattern.name));
        if (one != folder->entries.end() && is_asked_for(*one->second, attributes))
            found.push_back(one->second.get());
        return found;
    }
    for (const auto& [key, entry] : folder->entries)
        if (is_asked_for(*entry, attributes) && matches_pattern(entry->name, pattern.name))
            found.push_back(entry.get());
    return found;
}

/// Two changes never have the same time, however little time passes.
std::int64_t SimulatedDisk::time_of_change() {
    using namespace std::chrono;
    const CalendarTime today = clock_.calendar();
    const sys_days day{year{today.year} / today.month / today.day};
    const auto time = day + hours{today.hour} + minutes{today.minute} + std::chrono::seconds{today.second};
    const std::int64_t now = duration_cast<nanoseconds>(time.time_since_epoch()).count();
    last_change_ = std::max(last_change_ + 1, now);
    return last_change_;
}

} // namespace sonarelle
