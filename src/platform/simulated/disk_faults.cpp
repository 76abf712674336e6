#include "platform/simulated/disk_faults.h"

#include <utility>

#include "platform/clock.h"
#include "platform/failure.h"
#include "platform/text.h"

namespace sonarelle {

namespace {

/// Whether `path` is `top` or lies beneath it; both in lower case.
bool lies_at(std::string_view top, std::string_view path) {
    return path.starts_with(top) && (path.size() == top.size() || top.ends_with('\\') || path[top.size()] == '\\');
}

} // namespace

DiskFaults::Fault& DiskFaults::at(std::string_view path) {
    return faults_[lower_case(path)];
}

void DiskFaults::heal(std::string_view path) {
    faults_.erase(lower_case(path));
}

void DiskFaults::meet(std::string_view path, Clock& clock) const {
    if (faults_.empty())
        return;
    const std::string wanted = lower_case(path);
    Frames span;
    std::optional<FailureNumber> refusal;
    for (const auto& [top, fault] : faults_) {
        if (!lies_at(top, wanted))
            continue;
        span += fault.span;
        if (!refusal)
            refusal = fault.refusal;
    }
    if (span > Frames{})
        clock.wait(span);
    if (refusal)
        throw Failure{*refusal, std::string{path}};
}

bool DiskFaults::take_vanishing(std::string_view path) {
    return take(path, &Fault::vanishes);
}

bool DiskFaults::take_leaving(std::string_view folder) {
    return take(folder, &Fault::leaves);
}

bool DiskFaults::take(std::string_view path, bool Fault::*mark) {
    const auto found = faults_.find(lower_case(path));
    return found != faults_.end() && std::exchange(found->second.*mark, false);
}

void DiskFaults::check_read(std::string_view path, std::int64_t position, std::size_t count) const {
    if (faults_.empty())
        return;
    const auto found = faults_.find(lower_case(path));
    if (found == faults_.end() || !found->second.broken_byte)
        return;
    const std::int64_t byte = *found->second.broken_byte;
    if (byte >= position && byte < position + static_cast<std::int64_t>(count))
        throw Failure{FailureNumber::device_fault, std::string{path}};
}

} // namespace sonarelle
