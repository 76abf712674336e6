#pragma once

#include <string>

#include "platform/drive_table.h"
#include "platform/host/file_handle.h"

namespace sonarelle {

/// A program's folder for one rehearsal, on a drive of its own that the user's table doesn't have. It goes with the
/// object; what a killed rehearsal left behind goes with the next one.
class WorkingFolder {
public:
    explicit WorkingFolder(const DriveTable& user_drives);
    ~WorkingFolder();
    WorkingFolder(const WorkingFolder&) = delete;
    WorkingFolder& operator=(const WorkingFolder&) = delete;

    /// The user's drives and this one.
    [[nodiscard]] const DriveTable& drives() const { return drives_; }
    [[nodiscard]] std::string station_path() const { return drive_ + ":\\"; }

    /// Copies a file of this machine into the folder and returns the copy's name, in the station's form.
    /// @throws Failure 53 for a file that isn't there, 61, naming the folder, on a full disk.
    [[nodiscard]] std::string copy(const std::string& file) const;

private:
    std::string folder_;
    FileHandle lock_;
    std::string drive_;
    DriveTable drives_;
};

} // namespace sonarelle
