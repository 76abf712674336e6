#pragma once

#include <memory>
#include <optional>
#include <string>

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

    [[nodiscard]] HostSettings& settings() { return settings_; }
    [[nodiscard]] const HostFolders& folders() const { return folders_; }
    [[nodiscard]] const DriveTable& drives();

    /// A file named on the command line: exactly this name, as the shell and its completion spell it, in the reach of a
    /// drive. Failures name it as typed.
    [[nodiscard]] std::unique_ptr<RecordFile> open(const std::string& file);
    [[nodiscard]] std::unique_ptr<FileReplacement> replace(const std::string& file);

    /// The program's folder, in the station's form. @throws Failure when no drive reaches it.
    [[nodiscard]] std::string program_folder();

    /// The same, made where it is missing.
    [[nodiscard]] std::string make_program_folder();

    /// Changes the user's drive table for good.
    void set_drive(const std::string& drive, const std::string& folder);
    void remove_drive(const std::string& drive);

private:
    const CommonOptions options_;
    const HostFolders folders_;
    std::optional<DriveTable> drives_;
    HostSettings settings_;
};

} // namespace sonarelle
