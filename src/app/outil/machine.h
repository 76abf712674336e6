#pragma once

#include <string>

#include "app/outil/arguments.h"
#include "platform/drive_table.h"
#include "platform/host/host_disk.h"
#include "platform/host/host_folders.h"
#include "platform/host/host_settings.h"

namespace sonarelle {

/// This machine as a call of the command line sees it: the user's drive table with the drives of the call added, the
/// disk and the settings.
class Machine {
public:
    /// @throws WrongWords for a drive that isn't given as LETTRE=DOSSIER.
    explicit Machine(const Arguments& arguments);

    [[nodiscard]] HostDisk& disk() { return disk_; }
    [[nodiscard]] HostSettings& settings() { return settings_; }
    [[nodiscard]] const DriveTable& drives() const { return drives_; }

    /// The station's form of a path as typed. @throws Failure for one that no drive reaches.
    [[nodiscard]] std::string station_path(const std::string& file) const;
    /// The program's folder, in the station's form.
    [[nodiscard]] std::string program_folder() const { return station_path(folders_.program); }

    /// Changes the user's drive table for good.
    void set_drive(const std::string& drive, const std::string& folder);
    void remove_drive(const std::string& drive);

private:
    HostFolders folders_;
    DriveTable drives_;
    HostDisk disk_{drives_};
    HostSettings settings_;
};

} // namespace sonarelle
