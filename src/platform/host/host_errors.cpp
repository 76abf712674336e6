#include "platform/host/host_errors.h"

#include <algorithm>
#include <array>
#include <cerrno>

namespace sonarelle {

namespace {

struct Meaning {
    int error;
    int number;
};

constexpr std::array meanings{
    Meaning{ENOENT, failure_number::file_not_found},
    Meaning{EEXIST, failure_number::file_exists},
    Meaning{EISDIR, failure_number::path_access},
    Meaning{ENOTDIR, failure_number::path_access},
    Meaning{ENOTEMPTY, failure_number::path_access},
    Meaning{ELOOP, failure_number::path_access},
    Meaning{ENAMETOOLONG, failure_number::wrong_file_name},
    Meaning{EINVAL, failure_number::wrong_file_name}, // names that a FAT or a network disk refuses
    Meaning{EILSEQ, failure_number::wrong_file_name},
    Meaning{ENOSPC, failure_number::disk_full},
    Meaning{EDQUOT, failure_number::disk_full},
    Meaning{EFBIG, failure_number::disk_full},
    Meaning{EMFILE, failure_number::too_many_files},
    Meaning{ENFILE, failure_number::too_many_files},
    Meaning{EROFS, failure_number::permission_refused},
    Meaning{EBUSY, failure_number::permission_refused},
    Meaning{ETXTBSY, failure_number::permission_refused},
    Meaning{EXDEV, failure_number::other_drive},
    Meaning{ENODEV, failure_number::disk_not_ready},
    Meaning{ENXIO, failure_number::disk_not_ready},
    Meaning{ENOMEDIUM, failure_number::disk_not_ready},
    Meaning{ETIMEDOUT, failure_number::disk_not_ready},
    Meaning{ENOTCONN, failure_number::disk_not_ready},
    Meaning{EHOSTDOWN, failure_number::disk_not_ready},
    Meaning{EHOSTUNREACH, failure_number::disk_not_ready},
    Meaning{ENETUNREACH, failure_number::disk_not_ready},
    Meaning{ESTALE, failure_number::disk_not_ready},
};

} // namespace

int failure_of_errno(int error, Access access) {
    if (error == EACCES || error == EPERM)
        return access == Access::reading ? failure_number::permission_refused : failure_number::path_access;
    const auto* found = std::ranges::find(meanings, error, &Meaning::error);
    return found == meanings.end() ? failure_number::device_fault : found->number;
}

Failure failure_from(int error, Access access, const std::string& source) {
    const int number = failure_of_errno(error, access);
    if (error == EFBIG) // by the system's or the user's limit, however empty the disk is
        return Failure{number, source, "Taille de fichier limitée : le fichier ne peut pas grandir"};
    return Failure{number, source};
}

void throw_errno(Access access, const std::string& source) {
    throw failure_from(errno, access, source);
}

} // namespace sonarelle
