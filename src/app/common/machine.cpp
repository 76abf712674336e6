#include "app/common/machine.h"

#include <utility>

#include "platform/failure.h"
#include "platform/host/host_drive_table.h"
#include "platform/host/machine_files.h"
#include "platform/host/machine_paths.h"

namespace sonarelle {

Machine::Machine(CommonOptions options)
    : options_{std::move(options)},
      folders_{host_folders(options_.folder)},
      settings_{std::make_unique<HostSettings>(folders_.settings)} {}

const DriveTable& Machine::drives() {
    if (!drives_)
        drives_ = with_drives_of_the_call(load_drive_table(folders_.drive_table));
    return *drives_;
}

DriveTable Machine::with_drives_of_the_call(DriveTable table) const {
    for (const CommonOptions::Drive& drive : options_.drives)
        table.set(drive.name, absolute_machine_path(drive.folder));
    return table;
}

std::unique_ptr<RecordFile> Machine::open(const std::string& file) {
    static_cast<void>(station_path_of(drives(), file));
    return open_machine_file(file, file);
}

std::unique_ptr<FileReplacement> Machine::replace(const std::string& file) {
    static_cast<void>(station_path_of(drives(), file));
    return replace_machine_file(file, file);
}

std::string Machine::program_folder() {
    return station_path_of(drives(), folders_.program);
}

void Machine::set_drive(const std::string& drive, const std::string& folder) {
    set_saved_drive(folders_.drive_table, drive, folder);
}

void Machine::remove_drive(const std::string& drive) {
    remove_saved_drive(folders_.drive_table, drive);
}

} // namespace sonarelle
