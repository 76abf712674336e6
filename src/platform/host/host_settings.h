#pragma once

#include <cstdint>
#include <string>

#include "platform/host/settings_text.h"
#include "platform/settings.h"

namespace sonarelle {

/// Settings in one JSON file: {"application": {"section": {"key": "value"}}}, in UTF-8, to be edited by hand too. A
/// value that another program or a text editor wrote is seen at the next reading.
///
/// A file that is damaged (no JSON, another shape, a value that is no text) is Failure 57 for a reader. A writer first
/// sets it aside under the name `reglages.json.abime`, beside the new one.
class HostSettings : public Settings {
public:
    /// `file` is a path of this machine; its folder is made at the first writing.
    explicit HostSettings(std::string file);

    [[nodiscard]] std::string GetSetting(std::string_view application, std::string_view section, std::string_view key,
                                         std::string_view otherwise) override;
    void SaveSetting(std::string_view application, std::string_view section, std::string_view key,
                     std::string_view value) override;
    void save_all(std::string_view application, std::span<const Setting> settings) override;
    [[nodiscard]] std::vector<Setting> all(std::string_view application) override;

private:
    /// What tells whether the file is still the one that was read.
    struct Stamp {
        bool exists = false;
        std::uint64_t device = 0;
        std::uint64_t number = 0;
        std::int64_t size = 0;
        std::int64_t modified = 0;
        friend bool operator==(const Stamp&, const Stamp&) = default;
    };

    [[nodiscard]] Stamp stamp() const;
    [[nodiscard]] SettingsText read() const;
    [[nodiscard]] const SettingsText& current();

    std::string file_;
    SettingsText known_;
    Stamp known_stamp_;
    bool is_known_ = false;
};

} // namespace sonarelle
