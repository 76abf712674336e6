#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace sonarelle {

struct Setting {
    std::string section;
    std::string key;
    std::string value;
    friend bool operator==(const Setting&, const Setting&) = default;
};

/// Named texts in sections under an application's name. Sections and keys are compared without regard to case. Two
/// programs may write at once: no write of another key is lost. From the window thread.
/// @throws Failure 57, 61 or 75, with the store's file as its source, when the store can't be read or written.
class Settings {
public:
    virtual ~Settings() = default;

    /// The value, or `otherwise` when the key isn't there.
    [[nodiscard]] virtual std::string GetSetting(std::string_view application, std::string_view section,
                                                 std::string_view key, std::string_view otherwise) = 0;

    virtual void SaveSetting(std::string_view application, std::string_view section, std::string_view key,
                             std::string_view value) = 0;

    /// Writes all of them or none.
    virtual void save_all(std::string_view application, std::span<const Setting> settings) = 0;

    /// All keys of an application, by section and then in the order of their first writing.
    [[nodiscard]] virtual std::vector<Setting> all(std::string_view application) = 0;
};

} // namespace sonarelle
