#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "platform/disk.h"
#include "platform/drive_table.h"
#include "platform/host/name_lookup.h"
#include "platform/host/station_path.h"

namespace sonarelle {

/// The disks of this machine, by a drive table. A name that a path of the station can't hold (not in Windows-1252, or
/// with one of * ? < > | " \ in it) is neither found nor listed. A name that begins with a dot is hidden: a pattern
/// with * or ? finds it only when hidden ones are asked for.
///
/// A relative name resolves on the current drive, in the folder that this drive remembers. After `ChDir` to a share,
/// names resolve there until the next `ChDrive`, or `ChDir` on the current drive.
class HostDisk : public Disk {
public:
    /// The table is the caller's and outlives the disk; a change in it holds from the next call on.
    explicit HostDisk(const DriveTable& drives);

    using Disk::Dir;

    [[nodiscard]] char current_drive() const override { return current_drive_; }
    [[nodiscard]] std::string current_folder() const override;
    void ChDrive(std::string_view path) override;
    void ChDir(std::string_view folder) override;
    [[nodiscard]] std::string absolute(std::string_view path) const override;

    [[nodiscard]] std::string Dir(std::string_view pattern, FileAttributes attributes) override;
    [[nodiscard]] std::string Dir() override;
    [[nodiscard]] FileFacts facts(std::string_view path) override;

    void Kill(std::string_view path) override;
    void Name(std::string_view old_path, std::string_view new_path) override;
    void FileCopy(std::string_view from, std::string_view to) override;
    void MkDir(std::string_view folder) override;
    void RmDir(std::string_view folder) override;

    [[nodiscard]] std::unique_ptr<RecordFile> open(std::string_view path) override;
    [[nodiscard]] std::unique_ptr<RecordFile> open_or_create(std::string_view path) override;
    [[nodiscard]] std::unique_ptr<FileReplacement> replace(std::string_view path) override;
    void append(std::string_view path, std::string_view bytes) override;

    /// This machine's path of a file or folder that is there, for the libraries that open files themselves.
    /// @throws Failure as `open` does.
    [[nodiscard]] std::string machine_path(std::string_view path) const;

private:
    using Place = NameLookup::Place;

    [[nodiscard]] StationPath parsed(std::string_view path) const;
    [[nodiscard]] StationPath current() const;
    [[nodiscard]] std::string base_of(const StationPath& path) const;
    /// Where a name that is no pattern lies.
    [[nodiscard]] Place place_of(const StationPath& path) const;
    [[nodiscard]] Place existing(const StationPath& path, int number_when_missing) const;
    /// Like place_of, for a name that may be new in a folder that must be there.
    [[nodiscard]] Place creatable(const StationPath& path) const;

    [[nodiscard]] std::vector<std::string> matches(const StationPath& folder, std::string_view pattern,
                                                   FileAttributes attributes) const;

    const DriveTable& drives_;
    NameLookup lookup_;
    char current_drive_ = 'C';
    std::array<std::vector<std::string>, 26> folder_of_drive_; // the current folder of A to Z
    std::optional<StationPath> share_folder_;                  // where names resolve after ChDir to a share
    std::vector<std::string> listing_; // of the last pattern, what Dir() has yet to give, backwards
};

} // namespace sonarelle
