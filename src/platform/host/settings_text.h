#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>
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
    /// Values by name, in the order of their first writing.
    template <typename Value>
    class Named {
    public:
        /// The value of a name, added where there is none.
        Value& operator[](std::string_view name);
        /// The value, or null when there is none.
        [[nodiscard]] const Value* find(std::string_view name) const;
        [[nodiscard]] auto begin() const { return entries_.begin(); }
        [[nodiscard]] auto end() const { return entries_.end(); }
        friend bool operator==(const Named&, const Named&) = default;

    private:
        std::vector<std::pair<std::string, Value>> entries_;
        std::unordered_map<std::string, std::size_t> places_; // by the name in lower case
    };
    using Section = Named<std::string>;
    using Application = Named<Section>;
    class Reader;

    Named<Application> applications_;
};

} // namespace sonarelle
