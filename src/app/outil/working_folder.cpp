#include "app/outil/working_folder.h"

#include <cstdlib>
#include <filesystem>

#include "platform/failure.h"

namespace sonarelle {

namespace {

std::string make_folder() {
    std::string pattern = (std::filesystem::temp_directory_path() / "sonarelle-XXXXXX").string();
    if (mkdtemp(pattern.data()) == nullptr)
        throw Failure{failure_number::path_access, pattern};
    return pattern;
}

std::string free_letter(const DriveTable& drives) {
    for (char letter = 'Z'; letter > 'A'; --letter)
        if (!drives.entries().contains(std::string(1, letter)))
            return std::string(1, letter);
    throw Failure{failure_number::device_unavailable, "A: à Z:", "toutes les lettres de lecteur sont prises"};
}

} // namespace

WorkingFolder::WorkingFolder(const DriveTable& user_drives)
    : folder_{make_folder()}, drive_{free_letter(user_drives)}, drives_{user_drives} {
    drives_.set(drive_, folder_);
}

WorkingFolder::~WorkingFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(folder_, ignored);
}

std::string WorkingFolder::copy(const std::string& file) const {
    std::error_code error;
    std::filesystem::copy_file(file, folder_ + "/programme.dfm", error);
    if (error == std::errc::no_such_file_or_directory)
        throw Failure{failure_number::file_not_found, file};
    if (error)
        throw Failure{failure_number::path_access, file};
    return station_path() + "programme.dfm";
}

} // namespace sonarelle
