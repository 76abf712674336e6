#pragma once

#include <string>
#include <string_view>

namespace sonarelle {

inline constexpr std::string_view application_title = "Sonarelle";
/// The name under which the settings lie in the store.
inline constexpr std::string_view settings_application = "Sonarelle V6";

/// The version of the program, and the company field of its version block.
struct ApplicationVersion {
    int major;
    int minor;
    int revision;
    std::string_view company;
};
inline constexpr ApplicationVersion application_version{6, 1, 3, "-"};

/// As "6.1.3".
[[nodiscard]] inline std::string version_text() {
    return std::to_string(application_version.major) + "." + std::to_string(application_version.minor) + "." +
           std::to_string(application_version.revision);
}

/// The maker's addresses, which the about windows open.
namespace maker {
inline constexpr std::string_view site = "https://sonarelle.example/";
inline constexpr std::string_view download_page = "https://sonarelle.example/telechargement";
inline constexpr std::string_view mail = "contact@sonarelle.example";
} // namespace maker

} // namespace sonarelle
