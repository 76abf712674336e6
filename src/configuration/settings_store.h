#pragma once

#include <string>
#include <string_view>
#include <utility>

#include "configuration/settings_vocabulary.h"
#include "platform/platform.h"
#include "platform/settings.h"
#include "state/station_settings.h"

namespace sonarelle {

/// The store of the settings by the rows of its vocabulary. A value that the store can't give or take is a Failure.
class SettingsStore {
public:
    SettingsStore(Settings& settings, std::string program_folder, DecimalMark mark)
        : settings_{settings},
          program_folder_{std::move(program_folder)},
          mark_{mark} {}
    /// The store of a station.
    explicit SettingsStore(const Platform& platform)
        : SettingsStore{platform.settings, platform.program_folder, platform.decimal_mark} {}

    [[nodiscard]] std::string read(std::string_view section, std::string_view key) const;
    void write(std::string_view section, std::string_view key, std::string_view value) const;

    using Value = std::optional<std::string_view> SettingRow::*;

    /// Writes the given column of every row of a section that has a value there; all sections for an empty one.
    void write_column(Value column, std::string_view section = {}) const;

    /// Gives a variable the value that a text converts to.
    /// @throws Failure 13 or 6 for a text that doesn't convert; the variable is then as it was.
    void assign(StationSettings& variables, const SettingRow& row, std::string_view value) const;

    /// Gives every variable of a section what the column's value makes of it, or what the row has for it instead.
    void assign_column(StationSettings& variables, Value column, std::string_view section = {}) const;

private:
    Settings& settings_;
    std::string program_folder_;
    DecimalMark mark_;
};

/// Keeps a setting of section "Config" that the operator has changed. A store that refuses it says so: the running
/// station has the value all the same, the next start won't.
void remember(const Platform& platform, std::string_view key, std::string_view value);

} // namespace sonarelle
