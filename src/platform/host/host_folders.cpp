#include "platform/host/host_folders.h"

#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>

#include "platform/failure.h"
#include "platform/host/machine_paths.h"

namespace sonarelle {

namespace {

std::string variable(const char* name) {
    const char* value = std::getenv(name);
    return value != nullptr ? value : "";
}

std::string home() {
    if (std::string set = variable("HOME"); !set.empty())
        return set;
    const passwd* user = ::getpwuid(::getuid());
    return user != nullptr ? user->pw_dir : "/";
}

/// A relative folder in an XDG variable doesn't count.
std::string user_folder(const char* xdg_variable, const char* below_home) {
    const std::string set = variable(xdg_variable);
    return (set.starts_with('/') ? set : home() + "/" + below_home) + "/sonarelle";
}

/// A folder that someone else made, or a link to one, could be changed behind the station's back.
bool is_own_folder(const std::string& folder) {
    struct stat facts {};
    return ::lstat(folder.c_str(), &facts) == 0 && S_ISDIR(facts.st_mode) && facts.st_uid == ::geteuid() &&
           (facts.st_mode & 0777U) == 0700;
}

} // namespace

std::string spare_folder() {
    const std::string temporary = variable("TMPDIR");
    std::string folder =
        (temporary.starts_with('/') ? temporary : "/tmp") + "/station-sonarelle-" + std::to_string(::geteuid());
    static_cast<void>(::mkdir(folder.c_str(), 0700));
    if (!is_own_folder(folder))
        throw Failure{FailureNumber::path_access, folder};
    return folder;
}

HostFolders host_folders(const std::optional<std::string>& folder) {
    const std::string program = folder ? absolute_machine_path(*folder) : user_folder("XDG_DATA_HOME", ".local/share");
    const std::string configuration = folder ? program : user_folder("XDG_CONFIG_HOME", ".config");
    const std::string cache = folder ? program : user_folder("XDG_CACHE_HOME", ".cache");
    return {program, configuration + "/reglages.json", configuration + "/lecteurs.json", configuration + "/sortie.json",
            cache + "/ondes"};
}

} // namespace sonarelle
