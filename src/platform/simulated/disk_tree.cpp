#include "platform/simulated/disk_tree.h"

#include <utility>

#include "platform/failure.h"
#include "platform/text.h"
#include "platform/working_folders.h"

namespace sonarelle {

namespace {

DiskEntry* entry_in(const DiskEntry::Entries& entries, std::string_view name) {
    const auto found = entries.find(lower_case(name));
    return found == entries.end() ? nullptr : found->second.get();
}

DiskEntry& folder_in(DiskEntry::Entries& entries, std::string_view name) {
    auto& entry = entries[lower_case(name)];
    if (entry == nullptr) {
        entry = std::make_unique<DiskEntry>();
        entry->name = name;
    }
    return *entry;
}

/// `D`, `D:` and `d:\` are one drive.
std::string drive_of(std::string_view drive) {
    return drive.size() == 1 ? parts_of(std::string{drive} + ':').drive : parts_of(drive).drive;
}

} // namespace

void DiskSpace::take(std::size_t bytes, std::string_view path) {
    const auto wanted = static_cast<std::int64_t>(bytes);
    if (wanted > capacity_ - used_)
        throw Failure{FailureNumber::disk_full, std::string{path}};
    used_ += wanted;
}

void DiskTree::add_drive(std::string_view drive) {
    folder_in(drives_, drive_of(drive));
}

std::unique_ptr<DiskEntry> DiskTree::take_drive(std::string_view drive) {
    auto taken = drives_.extract(lower_case(drive_of(drive)));
    return taken ? std::move(taken.mapped()) : nullptr;
}

void DiskTree::put_drive(std::string_view drive, std::unique_ptr<DiskEntry> entry) {
    drives_[lower_case(drive_of(drive))] = std::move(entry);
}

bool DiskTree::has_drive(std::string_view drive) const {
    return entry_in(drives_, drive_of(drive)) != nullptr;
}

DiskPlace DiskTree::locate(std::string_view absolute_path) const {
    const PathParts parts = parts_of(absolute_path);
    DiskPlace place{std::string{absolute_path}, nullptr, parts.drive, entry_in(drives_, parts.drive)};
    if (place.entry == nullptr)
        throw Failure{FailureNumber::device_unavailable, place.path};
    for (const std::string& name : parts.names) {
        if (place.entry == nullptr || !place.entry->is_folder())
            throw Failure{FailureNumber::path_not_found, place.path};
        place.folder = place.entry;
        place.name = name;
        place.entry = entry_in(place.folder->entries, name);
    }
    return place;
}

DiskEntry* DiskTree::find(std::string_view absolute_path) const {
    try {
        return locate(absolute_path).entry;
    } catch (const Failure&) {
        return nullptr;
    }
}

DiskEntry& DiskTree::add(const DiskPlace& free_place) {
    return folder_in(free_place.folder->entries, free_place.name);
}

std::unique_ptr<DiskEntry> DiskTree::remove(const DiskPlace& place) {
    return std::move(place.folder->entries.extract(lower_case(place.name)).mapped());
}

void DiskTree::put(const DiskPlace& free_place, std::unique_ptr<DiskEntry> entry) {
    entry->name = free_place.name;
    free_place.folder->entries[lower_case(free_place.name)] = std::move(entry);
}

DiskEntry& DiskTree::make_folders(std::string_view absolute_folder) {
    const PathParts parts = parts_of(absolute_folder);
    DiskEntry* folder = &folder_in(drives_, parts.drive);
    for (const std::string& name : parts.names)
        folder = &folder_in(folder->entries, name);
    return *folder;
}

} // namespace sonarelle
