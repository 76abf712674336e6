#include "app/outil/output_failure.h"

#include <cerrno>

#include "platform/host/host_errors.h"

namespace sonarelle {

namespace {

constexpr const char* output_name = "sortie standard";

} // namespace

Failure output_failure() {
    return errno == ENOSPC || errno == EFBIG ? failure_from(errno, Access::writing, output_name)
                                             : Failure{FailureNumber::device_fault, output_name, "écriture impossible"};
}

std::string sentence_of_errno(int error) {
    if (error == EAGAIN || error == ENOMEM)
        return "mémoire insuffisante";
    return std::string{failure_description(failure_of_errno(error, Access::reading))};
}

} // namespace sonarelle
