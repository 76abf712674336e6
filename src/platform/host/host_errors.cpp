#include "platform/host/host_errors.h"

#include <algorithm>
#include <array>
#include <cerrno>

namespace sonarelle {

namespace {

struct Meaning {
    int error;
    FailureNumber number;
};

constexpr std::array meanings{
    Meaning{ENOENT, FailureNumber::file_not_found},
    Meaning{EEXIST, FailureNumber::file_exists},
    Meaning{EISDIR, FailureNumber::path_access},
    Meaning{ENOTDIR, FailureNumber::path_access},
    Meaning{ENOTEMPTY, FailureNumber::path_access},
    Meaning{ELOOP, FailureNumber::path_access},
    Meaning{ENAMETOOLONG, FailureNumber::wrong_file_name},
    Meaning{EINVAL, FailureNumber::wrong_file_name}, // names that a FAT or a network disk refuses
    Meaning{EILSEQ, FailureNumber::wrong_file_name},
    Meaning{ENOSPC, FailureNumber::disk_full},
    Meaning{EDQUOT, FailureNumber::disk_full},
    Meaning{EFBIG, FailureNumber::disk_full},
    Meaning{EMFILE, FailureNumber::too_many_files},
    Meaning{ENFILE, FailureNumber::too_many_files},
    Meaning{EROFS, FailureNumber::permission_refused},
    Meaning{EBUSY, FailureNumber::permission_refused},
    Meaning{ETXTBSY, FailureNumber::permission_refused},
    Meaning{EXDEV, FailureNumber::other_drive},
    Meaning{ENODEV, FailureNumber::disk_not_ready},
    Meaning{ENXIO, FailureNumber::disk_not_ready},
    Meaning{ENOMEDIUM, FailureNumber::disk_not_ready},
    Meaning{ETIMEDOUT, FailureNumber::disk_not_ready},
    Meaning{ENOTCONN, FailureNumber::disk_not_ready},
    Meaning{EHOSTDOWN, FailureNumber::disk_not_ready},
    Meaning{EHOSTUNREACH, FailureNumber::disk_not_ready},
    Meaning{ENETUNREACH, FailureNumber::disk_not_ready},
    Meaning{ESTALE, FailureNumber::disk_not_ready},
};

} // namespace

FailureNumber failure_of_errno(int error, Access access) {
    if (error == EACCES || error == EPERM)
        return access == Access::reading ? FailureNumber::permission_refused : FailureNumber::path_access;
    const auto* found = std::ranges::find(meanings, error, &Meaning::error);
    return found == meanings.end() ? FailureNumber::device_fault : found->number;
}

Failure failure_from(int error, Access access, const std::string& source) {
    const FailureNumber number = failure_of_errno(error, access);
    if (error == EFBIG) // by the system's or the user's limit, however empty the disk is
        return Failure{number, source, "Taille de fichier limitée : le fichier ne peut pas grandir"};
    return Failure{number, source};
}

void throw_errno(Access access, const std::string& source) {
    throw failure_from(errno, access, source);
}

} // namespace sonarelle
