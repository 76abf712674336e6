#include <filesystem>

#include "app/common/machine.h"
#include "configuration/settings_store.h"
#include "platform/failure.h"
#include "platform/host/host_drive_table.h"
#include "platform/host/shared_file.h"
#include "platform/working_folders.h"

namespace sonarelle {

namespace {

/// One that is there and can be entered, or could be made.
bool is_usable(const std::string& folder) {
    std::error_code error;
    std::filesystem::create_directories(folder, error);
    return std::filesystem::exists(std::filesystem::path{folder} / ".", error);
}

} // namespace

std::vector<std::string> Machine::make_ready(EmptyStore empty) {
    Told told;
    mend_drives(told);
    find_program_folder(told);
    mend_settings(empty, told);
    return told;
}

void Machine::mend_drives(Told& told) {
    const auto damage = set_aside_if_damaged(folders_.drive_table,
                                             [this] { static_cast<void>(load_drive_table(folders_.drive_table)); });
    if (!damage)
        return;
    told.push_back(damage->what() + std::string{" ; seul le lecteur C: est connu"});
    drives_ = with_drives_of_the_call({});
}

void Machine::find_program_folder(Told& told) {
    if (!is_usable(folders_.program)) {
        const std::string spare = spare_folder();
        told.push_back(folders_.program + " : ce dossier n'est pas accessible, " + spare + " le remplace");
        folders_.program = spare;
    }
    const std::string drive = parts_of(program_folder()).drive;
    if (!drive.ends_with(':'))
        throw Failure{FailureNumber::device_unavailable, folders_.program,
                      "le dossier du programme est sous le partage " + drive + " ; il lui faut une lettre de lecteur"};
}

void Machine::mend_settings(EmptyStore empty, Told& told) {
    const auto damage =
        set_aside_if_damaged(folders_.settings, [this] { static_cast<void>(settings().all(settings_application)); });
    if (damage)
        told.push_back(damage->what() + std::string{" ; les premières valeurs les remplacent"});
    try {
        if (!settings().all(settings_application).empty())
            return;
        if (damage || empty == EmptyStore::is_filled)
            write_first_settings();
        else
            static_cast<void>(SharedFileLock{folders_.settings}); // fails where nothing can be written
    } catch (const Failure& fault) {
        told.push_back(fault.what() + std::string{" ; les réglages de cette fois sont dans "} + spare_folder());
        folders_.settings = spare_folder() + "/reglages.json";
        settings_ = std::make_unique<HostSettings>(folders_.settings);
        write_first_settings();
    }
}

void Machine::write_first_settings() {
    SettingsStore{settings(), program_folder(), DecimalMark::point}.write_column(&SettingRow::first);
}

} // namespace sonarelle
