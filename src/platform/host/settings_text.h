#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/settings.h"

namespace sonarelle {

/// What a settings file holds: texts by application, section and key, in the order of their first writing. Names are
/// compared without regard to case; the spelling of the first writing stays.
class SettingsText {
public:
    /// @throws Failure 57, saying in its description what is wrong where; its source is empty.
    [[nodiscard]] static SettingsText parsed(std::string_view json);

    /// JSON as an operator can edit it.
    /// @throws Failure 5 for a text that isn't UTF-8.
    [[nodiscard]] std::string json() const;

    /// The value, or null when there is none; good until the next set.
    [[nodiscard]] const std::string* value(std::string_view application, std::string_view section,
                                           std::string_view key) const;

    /// Returns whether anything changed.
    bool set(std::string_view application, const Setting& setting);

    [[nodiscard]] std::vector<Setting> all(std::string_view application) const;

    friend bool operator==(const SettingsText&, const SettingsText&) = default;

private:
    struct Section {
        std::string name;
        std::vector<std::pair<std::string, std::string>> values;
        friend bool operator==(const Section&, const Section&) = default;
    };
    struct Application {
        std::string name;
        std::vector<Section> sections;
        friend bool operator==(const Application&, const Application&) = default;
    };
    class Reader;

    std::vector<Application> applications_;
};

} // namespace sonarelle
