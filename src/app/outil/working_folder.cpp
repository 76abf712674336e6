#include "app/outil/working_folder.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <string_view>
#include <vector>

#include "platform/failure.h"
#include "platform/host/host_errors.h"

namespace sonarelle {

namespace {

constexpr std::string_view name_pattern = "sonarelle-XXXXXX";
constexpr std::string_view name_head = "sonarelle-";

std::string temporary_folder() {
    std::error_code error;
    const auto folder = std::filesystem::temp_directory_path(error);
    if (!error)
        return folder.string();
    const char* named = std::getenv("TMPDIR");
    throw Failure{FailureNumber::path_not_found, named != nullptr ? named : "/tmp"};
}

FileHandle locked_folder(const std::string& folder) {
    FileHandle handle{::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC)};
    if (handle.is_open() && ::flock(handle.get(), LOCK_EX | LOCK_NB) != 0)
        handle = {};
    return handle;
}

bool is_old_and_own(const FileHandle& folder) {
    struct stat facts {};
    return ::fstat(folder.get(), &facts) == 0 && facts.st_uid == ::geteuid() && facts.st_mtime + 60 < ::time(nullptr);
}

/// A rehearsal holds the lock of its folder for as long as it lives, so a folder whose lock is free was left behind by
/// one that was killed. A young one may not have its lock yet.
void remove_leftovers(const std::string& temporary) {
    std::error_code error;
    std::vector<std::filesystem::path> found;
    for (std::filesystem::directory_iterator entry{temporary, error}, end; !error && entry != end;
         entry.increment(error))
        if (const std::string name = entry->path().filename();
            name.size() == name_pattern.size() && name.starts_with(name_head))
            found.push_back(entry->path());
    for (const auto& folder : found)
        if (const FileHandle lock = locked_folder(folder); lock.is_open() && is_old_and_own(lock))
            std::filesystem::remove_all(folder, error);
}

std::string make_folder() {
    const std::string temporary = temporary_folder();
    remove_leftovers(temporary);
    std::string pattern = temporary + "/" + std::string{name_pattern};
    if (mkdtemp(pattern.data()) == nullptr)
        throw_errno(Access::writing, temporary);
    return pattern;
}

/// Where the station of the run works: the lock of the folder around it is the run's, that of this one is for those who
/// write in it.
std::string station_folder(const std::string& folder) {
    return folder + "/station";
}

std::string free_letter(const DriveTable& drives) {
    for (char letter = 'Z'; letter > 'A'; --letter)
        if (!drives.entries().contains(std::string(1, letter)))
            return std::string(1, letter);
    throw Failure{FailureNumber::device_unavailable, "A: à Z:", "toutes les lettres de lecteur sont prises"};
}

} // namespace

WorkingFolder::WorkingFolder(const DriveTable& user_drives)
    : folder_{make_folder()},
      lock_{locked_folder(folder_)},
      drive_{free_letter(user_drives)},
      drives_{user_drives} {
    const std::string inner = station_folder(folder_);
    if (::mkdir(inner.c_str(), 0700) != 0)
        throw_errno(Access::writing, inner);
    drives_.set(drive_, inner);
}

WorkingFolder::~WorkingFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(folder_, ignored);
}

std::string WorkingFolder::copy(const std::string& file) const {
    std::error_code error;
    std::filesystem::copy_file(file, station_folder(folder_) + "/programme.dfm", error);
    if (error == std::errc::no_such_file_or_directory)
        throw Failure{FailureNumber::file_not_found, file};
    if (error == std::errc::no_space_on_device)
        throw Failure{FailureNumber::disk_full, folder_};
    if (error)
        throw failure_from(error.value(), Access::reading, file);
    return station_path() + "programme.dfm";
}

} // namespace sonarelle
