#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "platform/disk.h"
#include "platform/simulated/disk_faults.h"
#include "platform/simulated/disk_tree.h"
#include "platform/units.h"
#include "platform/working_folders.h"

namespace sonarelle {

class Clock;

/// A whole disk in memory, with drives, shares, and switches for all that goes wrong on a real one. It has drive C at
/// first, and holds one spelling of a name. Open files and replacements must not outlive it.
class SimulatedDisk : public Disk {
public:
    explicit SimulatedDisk(Clock& clock);

    [[nodiscard]] char current_drive() const override { return working_.drive(); }
    [[nodiscard]] std::string current_folder() const override { return working_.folder(); }
    void ChDrive(std::string_view path) override;
    void ChDir(std::string_view folder) override;
    [[nodiscard]] std::string absolute(std::string_view path) const override { return working_.absolute(path); }

    using Disk::Dir;
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

    // The hands of a test. Drives are named as `D` or `\\serveur\partage`; faults don't concern these calls.

    void add_drive(std::string_view drive) { tree_.add_drive(drive); }
    /// Unplugs it, with all that it holds.
    void remove_drive(std::string_view drive) { tree_.remove_drive(drive); }
    /// Unplugs it until `plug_again`.
    void unplug(std::string_view drive);
    void plug_again(std::string_view drive);
    /// Puts a file there, in the place of another if need be; makes its folders and its drive.
    void put_file(std::string_view path, std::string_view bytes = {});
    void put_folder(std::string_view path);
    [[nodiscard]] bool exists(std::string_view path) const;
    /// @throws Failure 53 when there is no such file.
    [[nodiscard]] std::string bytes(std::string_view path) const;

    // Switches. A refusal or a delay of a folder holds for all that lies in it.

    /// Failure 75 for writes to the file, its removal and its replacement; for a folder, of what lies in it.
    void set_read_only(std::string_view path, bool on = true);
    void set_hidden(std::string_view path, bool on = true);
    /// The room for the bytes of all files; a write that would take more is Failure 61 and adds nothing.
    void set_capacity(std::int64_t bytes) { space_.set_capacity(bytes); }
    [[nodiscard]] std::int64_t used() const { return space_.used(); }
    /// Every operation on the path fails.
    void refuse(std::string_view path, FailureNumber number) { faults_.refuse(absolute(path), number); }
    /// `Dir` and `facts` find the file; at the first other operation it is gone.
    void vanish_after_look(std::string_view path) { faults_.vanish(absolute(path)); }
    /// The folder can be entered once, and is gone behind that with all that it holds.
    void remove_after_entering(std::string_view folder) { faults_.leave(absolute(folder)); }
    /// A read of that byte, counted from 0, is Failure 57.
    void fail_read_at(std::string_view path, std::int64_t byte) { faults_.break_at(absolute(path), byte); }
    /// Every operation on the path lasts so long, while the clock's other timers run.
    void take(std::string_view path, Frames span) { faults_.delay(absolute(path), span); }
    /// Ends all faults of the path.
    void heal(std::string_view path) { faults_.heal(absolute(path)); }

private:
    friend class SimulatedReplacement;

    [[nodiscard]] DiskEntry& entry_at(std::string_view path) const;
    [[nodiscard]] DiskPlace place_of(std::string_view path);
    [[nodiscard]] DiskPlace file_at(std::string_view path);
    [[nodiscard]] PathPattern pattern_of(std::string_view path) const;
    [[nodiscard]] std::vector<DiskEntry*> matches(const PathPattern& pattern, FileAttributes attributes) const;
    DiskEntry& file_to_write(const DiskPlace& place);
    FileFacts commit(std::string_view absolute_path, std::shared_ptr<FileContent> content);
    [[nodiscard]] std::optional<FileFacts> facts_of_file(std::string_view absolute_path) const;
    [[nodiscard]] std::int64_t time_of_change();

    Clock& clock_;
    DiskSpace space_;
    DiskTree tree_;
    std::map<std::string, std::unique_ptr<DiskEntry>, std::less<>> unplugged_; // by name
    DiskFaults faults_;
    WorkingFolders working_;
    std::vector<std::string> found_; // what Dir() has still to give, the next one last
    std::int64_t last_change_ = 0;
    std::shared_ptr<std::set<std::string>> claimed_ = std::make_shared<std::set<std::string>>(); // in lower case
};

} // namespace sonarelle
