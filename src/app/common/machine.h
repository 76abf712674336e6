#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "app/common/common_options.h"
#include "platform/disk.h"
#include "platform/drive_table.h"
#include "platform/host/host_folders.h"
#include "platform/host/host_settings.h"

namespace sonarelle {

/// This machine as a call of the command line sees it: its files, the settings, and the user's drive table with the
/// drives of the call added. The table is read when a path first needs it, so that a damaged one can be mended.
class Machine {
public:
    explicit Machine(CommonOptions options);

    [[nodiscard]] HostSettings& settings() { return *settings_; }
    [[nodiscard]] const HostFolders& folders() const { return folders_; }
    [[nodiscard]] const DriveTable& drives();

    /// A file named on the command line: exactly this name, as the shell and its completion spell it, in the reach of a
    /// drive. Failures name it as typed.
    [[nodiscard]] std::unique_ptr<RecordFile> open(const std::string& file);
    [[nodiscard]] std::unique_ptr<FileReplacement> replace(const std::string& file);

    /// The program's folder, in the station's form. @throws Failure when no drive reaches it.
    [[nodiscard]] std::string program_folder();

    /// What an empty store means at a start: a station without a desk gets its first values, at the desk the operator
    /// is told of a first start.
    enum class EmptyStore { is_filled, is_first_start };

    /// Makes the machine ready for the air, whatever state its files are in: what is damaged is set aside and stands at
    /// its first values, and for a folder that can't be had there is another. Returns what the operator is to be told.
    /// @throws Failure 68 for a program's folder under a share, which can't be a current drive, and when no folder at
    /// all can be had.
    [[nodiscard]] std::vector<std::string> make_ready(EmptyStore empty);

    /// Changes the user's drive table for good.
    void set_drive(const std::string& drive, const std::string& folder);
    void remove_drive(const std::string& drive);

private:
    using Told = std::vector<std::string>;

    [[nodiscard]] DriveTable with_drives_of_the_call(DriveTable table) const;
    void mend_drives(Told& told);
    void find_program_folder(Told& told);
    void mend_settings(EmptyStore empty, Told& told);
    void write_first_settings();

    const CommonOptions options_;
    HostFolders folders_;
    std::optional<DriveTable> drives_;
    std::unique_ptr<HostSettings> settings_;
};

} // namespace sonarelle
