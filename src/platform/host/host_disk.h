#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "platform/disk.h"
#include "platform/disk_patience.h"
#include "platform/drive_table.h"
#include "platform/host/name_lookup.h"
#include "platform/working_folders.h"

namespace sonarelle {

/// The disks of this machine, by a drive table. A name that a path of the station can't hold (not in Windows-1252, or
/// with one of * ? < > | " \ in it) is neither found nor listed. A name that begins with a dot is hidden: a pattern
/// with * or ? finds it only when hidden ones are asked for.
class HostDisk : public Disk {
public:
    /// The table is the caller's and outlives the disk; a change in it holds from the next call on. Looks (`ChDrive`,
    /// `ChDir`, `Dir`, `facts`, `machine_path`) and openings for reading wait as long as the patience says, then they
    /// are Failure 57; at first, and for what changes a disk, they wait for ever.
    explicit HostDisk(const DriveTable& drives,
                      std::shared_ptr<DiskPatience> patience = std::make_shared<DiskPatience>())
        : drives_{drives},
          patience_{std::move(patience)} {}

    using Disk::Dir;

    [[nodiscard]] char current_drive() const override { return working_.drive(); }
    [[nodiscard]] std::string current_folder() const override { return working_.folder(); }
    void ChDrive(std::string_view path) override;
    void ChDir(std::string_view folder) override;
    [[nodiscard]] std::string absolute(std::string_view path) const override { return working_.absolute(path); }

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
    [[nodiscard]] std::unique_ptr<FileClaim> claim(std::string_view path) override;
    void append(std::string_view path, std::string_view bytes) override;

    /// This machine's path of a file or folder that is there, for the libraries that open files themselves.
    /// @throws Failure as `open` does.
    [[nodiscard]] std::string machine_path(std::string_view path) const;

private:
    using Outcome = NameLookup::Outcome;

    /// Where an absolute path lies on this machine.
    struct Place {
        std::string source; ///< The path as the station knows it.
        std::string path;   ///< As this machine knows it, in the disk's spelling.
        bool exists = false;
    };

    /// What a look asks for, apart from the disk: a look that isn't answered outlives it.
    struct Wanted {
        std::string base; ///< The drive's folder on this machine.
        std::vector<std::string> names;
        std::string source;
    };

    [[nodiscard]] Wanted wanted(const std::string& absolute_path) const;
    /// Looks for the path, and gives what `use` makes of the place found.
    template <typename Use>
    auto look(const std::string& absolute_path, Use use) const;

    /// For a name that may be new, in a folder that must be there.
    [[nodiscard]] Place place_of(std::string_view path) const;
    [[nodiscard]] Place existing(std::string_view path, FailureNumber number_when_missing) const;

    [[nodiscard]] std::vector<std::string> matches(const PathPattern& pattern, FileAttributes attributes) const;
    static void remove_file(const Place& place);

    const DriveTable& drives_;
    std::shared_ptr<DiskPatience> patience_;
    std::shared_ptr<const NameLookup> lookup_ = std::make_shared<NameLookup>();
    WorkingFolders working_;
    std::vector<std::string> listing_; // what Dir() has yet to give, the next one last
};

} // namespace sonarelle
