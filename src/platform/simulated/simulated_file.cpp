#include "platform/simulated/simulated_file.h"

#include <algorithm>
#include <cstring>

#include "platform/failure.h"
#include "platform/simulated/simulated_disk.h"

namespace sonarelle {

std::size_t SimulatedFile::read(std::int64_t position, std::span<std::byte> into) {
    if (position < 0)
        throw Failure{FailureNumber::wrong_record_number, path_};
    const std::string& bytes = content_->bytes();
    const auto begin = std::min(static_cast<std::size_t>(position), bytes.size());
    const std::size_t count = std::min(into.size(), bytes.size() - begin);
    faults_.check_read(path_, position, count);
    if (count > 0)
        std::memcpy(into.data(), bytes.data() + begin, count);
    return count;
}

void SimulatedReplacement::write(std::span<const std::byte> bytes) {
    check_usable();
    try {
        content_->append({reinterpret_cast<const char*>(bytes.data()), bytes.size()}, path_);
    } catch (const Failure&) {
        content_.reset();
        throw;
    }
}

void SimulatedReplacement::commit() {
    check_usable();
    disk_.commit(path_, std::exchange(content_, nullptr));
}

std::optional<FileFacts> SimulatedReplacement::commit_over(const std::optional<FileFacts>& seen) {
    check_usable();
    auto content = std::exchange(content_, nullptr);
    if (disk_.facts_of_file(path_) != seen)
        return std::nullopt;
    return disk_.commit(path_, std::move(content));
}

void SimulatedReplacement::check_usable() const {
    if (content_ == nullptr)
        throw Failure{FailureNumber::device_fault, path_};
}

} // namespace sonarelle
