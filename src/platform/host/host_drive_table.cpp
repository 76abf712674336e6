#include "platform/host/host_drive_table.h"

#include <filesystem>
#include <functional>
#include <nlohmann/json.hpp>

#include "platform/failure.h"
#include "platform/host/machine_paths.h"
#include "platform/host/shared_file.h"

namespace sonarelle {

namespace {

constexpr const char* damaged = "Table des lecteurs abîmée : ";

DriveTable parsed(const std::string& json, const std::string& file) {
    return parsed_drive_table(json, std::filesystem::path{file}.parent_path());
}

void change_saved_table(const std::string& file, const std::function<void(DriveTable&)>& change) {
    const SharedFileLock lock{file};
    DriveTable table;
    bool is_damaged = false;
    try {
        table = load_drive_table(file);
    } catch (const Failure& failure) {
        if (failure.number != FailureNumber::device_fault)
            throw;
        is_damaged = true;
    }
    change(table);
    const std::string text = drive_table_text(table);
    if (is_damaged)
        set_aside(file);
    write_shared_file(file, text);
}

} // namespace

DriveTable parsed_drive_table(std::string_view json, const std::string& relative_to) {
    const auto entries = nlohmann::json::parse(json, nullptr, false);
    if (!entries.is_object())
        throw Failure{FailureNumber::device_fault, {}, std::string{damaged} + "ce n'est pas un groupe JSON"};
    DriveTable table;
    table.remove("C");
    const std::filesystem::path base{relative_to};
    for (const auto& [drive, folder] : entries.items()) {
        if (!folder.is_string() || folder.get_ref<const std::string&>().empty())
            throw Failure{FailureNumber::device_fault,
                          {},
                          std::string{damaged} + "le dossier de « " + drive + " » n'est pas un texte"};
        try {
            table.set(drive, absolute_machine_path((base / folder.get<std::string>()).string()));
        } catch (const Failure&) {
            throw Failure{FailureNumber::device_fault,
                          {},
                          std::string{damaged} + "« " + drive + " » n'est ni une lettre ni un partage"};
        }
    }
    return table;
}

std::string drive_table_text(const DriveTable& table) {
    auto entries = nlohmann::ordered_json::object();
    for (const auto& [drive, folder] : table.entries())
        entries[drive] = folder.empty() ? "/" : folder;
    try {
        return entries.dump(4) + "\n";
    } catch (const nlohmann::json::exception&) {
        throw Failure{FailureNumber::wrong_call, {}, "Le nom d'un dossier n'est pas de l'UTF-8"};
    }
}

DriveTable load_drive_table(const std::string& file) {
    const auto json = read_shared_file(file);
    if (!json)
        return {};
    try {
        return parsed(*json, file);
    } catch (const Failure& failure) {
        throw Failure{failure.number, file, failure.description};
    }
}

void set_saved_drive(const std::string& file, std::string_view drive, std::string_view machine_folder) {
    const std::string folder = absolute_machine_path(machine_folder);
    change_saved_table(file, [&](DriveTable& table) { table.set(drive, folder); });
}

void remove_saved_drive(const std::string& file, std::string_view drive) {
    change_saved_table(file, [drive](DriveTable& table) {
        if (!table.remove(drive))
            throw Failure{FailureNumber::device_unavailable, std::string{drive}, "Ce lecteur n'est pas dans la table"};
    });
}

} // namespace sonarelle
