#include "app/outil/machine.h"

#include <optional>

#include "app/outil/commands.h"
#include "platform/failure.h"
#include "platform/host/host_drive_table.h"
#include "platform/host/machine_paths.h"

namespace sonarelle {

namespace {

HostFolders folders_of(const Arguments& arguments) {
    const std::string folder = arguments.value(folder_option.name, "");
    return host_folders(folder.empty() ? std::nullopt : std::optional{folder});
}

void add_drives(DriveTable& drives, const Arguments& arguments) {
    for (const std::string& drive : arguments.values(drive_option.name)) {
        const auto equals = drive.find('=');
        if (equals == std::string::npos || equals + 1 == drive.size())
            throw WrongWords{"--lecteur attend LETTRE=DOSSIER : " + drive};
        drives.set(drive.substr(0, equals), absolute_machine_path(drive.substr(equals + 1)));
    }
}

} // namespace

Machine::Machine(const Arguments& arguments)
    : folders_{folders_of(arguments)}, drives_{load_drive_table(folders_.drive_table)}, settings_{folders_.settings} {
    add_drives(drives_, arguments);
}

std::string Machine::station_path(const std::string& file) const {
    return station_path_of(drives_, file);
}

void Machine::set_drive(const std::string& drive, const std::string& folder) {
    set_saved_drive(folders_.drive_table, drive, folder);
}

void Machine::remove_drive(const std::string& drive) {
    remove_saved_drive(folders_.drive_table, drive);
}

} // namespace sonarelle
