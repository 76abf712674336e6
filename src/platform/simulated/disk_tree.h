#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <string_view>

namespace sonarelle {

/// The room on a disk, in bytes.
class DiskSpace {
public:
    [[nodiscard]] std::int64_t used() const { return used_; }
    void set_capacity(std::int64_t bytes) { capacity_ = bytes; }

    /// @throws Failure 61, with nothing taken, when there is less room.
    void take(std::size_t bytes, std::string_view path);
    void give_back(std::size_t bytes) { used_ -= static_cast<std::int64_t>(bytes); }

private:
    std::int64_t capacity_ = INT64_MAX;
    std::int64_t used_ = 0;
};

/// The bytes of a file, or of one that is being written. They take room for as long as someone holds them.
class FileContent {
public:
    explicit FileContent(DiskSpace& space)
        : space_{space} {}
    ~FileContent() { space_.give_back(bytes_.size()); }
    FileContent(const FileContent&) = delete;
    FileContent& operator=(const FileContent&) = delete;

    [[nodiscard]] const std::string& bytes() const { return bytes_; }
    /// @throws Failure 61, with nothing added, when the disk is full.
    void append(std::string_view bytes, std::string_view path) {
        space_.take(bytes.size(), path);
        bytes_.append(bytes);
    }

    std::int64_t modified = 0; ///< Nanoseconds since 1970.

private:
    DiskSpace& space_;
    std::string bytes_;
};

/// A file or folder.
struct DiskEntry {
    using Entries = std::map<std::string, std::unique_ptr<DiskEntry>>; // by name in lower case

    [[nodiscard]] bool is_folder() const { return content == nullptr; }

    std::string name;                     ///< In the spelling that the disk shows.
    std::shared_ptr<FileContent> content; ///< Of a file; a folder has none.
    Entries entries;                      ///< Of a folder.
    bool read_only = false;
    bool hidden = false;
};

/// Where a path leads: an entry, or a free name in a folder. A drive's root has no folder.
struct DiskPlace {
    std::string path; ///< Absolute.
    DiskEntry* folder = nullptr;
    std::string name;
    DiskEntry* entry = nullptr;
};

/// The folders and files of all drives and shares.
class DiskTree {
public:
    void add_drive(std::string_view drive);
    void remove_drive(std::string_view drive) { (void)take_drive(drive); }
    /// Takes it out with all that it holds. Nothing when there is no such drive.
    std::unique_ptr<DiskEntry> take_drive(std::string_view drive);
    void put_drive(std::string_view drive, std::unique_ptr<DiskEntry> entry);
    [[nodiscard]] bool has_drive(std::string_view drive) const;

    /// @throws Failure 68 without such a drive, 76 without such a folder.
    [[nodiscard]] DiskPlace locate(std::string_view absolute_path) const;
    /// The entry, or nothing; a missing folder or drive is no failure here.
    [[nodiscard]] DiskEntry* find(std::string_view absolute_path) const;

    static DiskEntry& add(const DiskPlace& free_place);
    static std::unique_ptr<DiskEntry> remove(const DiskPlace& place);
    static void put(const DiskPlace& free_place, std::unique_ptr<DiskEntry> entry);
    /// Makes all folders of an absolute path, its drive too.
    DiskEntry& make_folders(std::string_view absolute_folder);

private:
    DiskEntry::Entries drives_; // `d:`, or `\\server\share` in lower case
};

} // namespace sonarelle
