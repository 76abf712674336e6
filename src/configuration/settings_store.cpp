#include "configuration/settings_store.h"

#include <vector>

#include "platform/dialogs.h"
#include "platform/failure.h"

namespace sonarelle {

namespace {

bool belongs(const SettingRow& row, std::string_view section) {
    return section.empty() || row.section == section;
}

/// Converts a text to a variable of the settings by the variable's type.
struct Assignment {
    StationSettings& settings;
    std::string_view value;
    DecimalMark mark;

    void operator()(std::monostate) const {}
    void operator()(std::string StationSettings::*variable) const { settings.*variable = value; }
    void operator()(Integer StationSettings::*variable) const { settings.*variable = to_integer(value, mark); }
    void operator()(Colour StationSettings::*variable) const { settings.*variable = to_long(value, mark); }
};

} // namespace

std::string SettingsStore::read(std::string_view section, std::string_view key) const {
    return settings_.GetSetting(settings_application, section, key, "");
}

void SettingsStore::write(std::string_view section, std::string_view key, std::string_view value) const {
    settings_.SaveSetting(settings_application, section, key, value);
}

void SettingsStore::write_column(Value column, std::string_view section) const {
    std::vector<Setting> written;
    for (const SettingRow& row : settings_vocabulary())
        if (belongs(row, section) && row.*column)
            written.push_back(
                {std::string{row.section}, std::string{row.key}, expand_setting(*(row.*column), program_folder_)});
    settings_.save_all(settings_application, written);
}

void SettingsStore::assign(StationSettings& variables, const SettingRow& row, std::string_view value) const {
    std::visit(Assignment{variables, value, mark_}, row.variable);
}

void SettingsStore::assign_column(StationSettings& variables, Value column, std::string_view section) const {
    for (const SettingRow& row : settings_vocabulary()) {
        const auto value = row.variable_value ? row.variable_value : row.*column;
        if (belongs(row, section) && value)
            assign(variables, row, expand_setting(*value, program_folder_));
    }
}

void remember(const Platform& platform, std::string_view key, std::string_view value) {
    const SettingsStore store{platform.settings, platform.program_folder, platform.decimal_mark};
    try {
        store.write(setting_section::config, key, value);
    } catch (const Failure& failure) {
        show_box(platform.dialogs, failure.what(), Icon::stop);
    }
}

} // namespace sonarelle
