#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>

#include "state/station_settings.h"

namespace sonarelle {

enum class SettingForm { integer, colour, position, flag, path, text };

using SettingVariable =
    std::variant<std::monostate, std::string StationSettings::*, Integer StationSettings::*, Colour StationSettings::*>;

/// One key of the store. A value may hold {dossier}, the program's folder as the platform gives it, and {chemin}, the
/// same with a backslash at its end.
struct SettingRow {
    std::string_view section;
    std::string_view key;
    SettingForm form;
    std::optional<std::string_view> load;   ///< Stands for an empty value when the settings are read.
    std::optional<std::string_view> repair; ///< Written by a load that finds the store empty or damaged.
    std::optional<std::string_view> first;  ///< Written by the whole-store rewrite of a first start.
    std::optional<std::string_view> back;   ///< Written by the return to the factory values.
    SettingVariable variable;
    /// What the variable gets from the two rewrites where that isn't the key's value.
    std::optional<std::string_view> variable_value = std::nullopt;
};

namespace setting_section {
inline constexpr std::string_view config = "Config";
inline constexpr std::string_view position = "Position";
inline constexpr std::string_view colours = "Couleur_liste";
} // namespace setting_section

/// Every key of the store, in the order in which the rewrites write them.
[[nodiscard]] std::span<const SettingRow> settings_vocabulary();

/// The row of a key, compared without regard to case; a key outside the vocabulary is a mistake of the program.
[[nodiscard]] const SettingRow& setting_row(std::string_view section, std::string_view key);

/// A value of the vocabulary with the program's folder filled in.
[[nodiscard]] std::string expand_setting(std::string_view value, std::string_view program_folder);

} // namespace sonarelle
