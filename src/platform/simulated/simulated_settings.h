#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "platform/failure.h"
#include "platform/settings.h"

namespace sonarelle {

/// The settings in memory, with a switch for a store that can't be written.
class SimulatedSettings : public Settings {
public:
    [[nodiscard]] std::string GetSetting(std::string_view application, std::string_view section, std::string_view key,
                                         std::string_view otherwise) override;
    void SaveSetting(std::string_view application, std::string_view section, std::string_view key,
                     std::string_view value) override;
    void save_all(std::string_view application, std::span<const Setting> settings) override;
    [[nodiscard]] std::vector<Setting> all(std::string_view application) override;

    /// Every write is this failure from now on; `none` ends it.
    void refuse_writes(FailureNumber number = FailureNumber::path_access) { refusal_ = number; }

private:
    using Values = std::vector<Setting>;

    static Setting* find(Values& values, std::string_view section, std::string_view key);
    static void put(Values& values, const Setting& setting);
    void check_writable() const;

    std::map<std::string, Values> applications_; // by name in lower case, values in the order of their first writing
    FailureNumber refusal_ = FailureNumber::none;
};

} // namespace sonarelle
