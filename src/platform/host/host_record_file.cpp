#include "platform/host/host_record_file.h"

#include <algorithm>
#include <cerrno>

#include "platform/failure.h"
#include "platform/host/host_errors.h"

namespace sonarelle {

namespace {

// A draw of single records from a long list reads little around each; a walk through the list reads far ahead.
constexpr std::size_t single_read = 8 * 1024;
constexpr std::size_t walking_read = 512 * 1024;

} // namespace

HostRecordFile::HostRecordFile(FileHandle file, const FileFacts& facts, std::string source)
    : file_{std::move(file)},
      facts_{facts},
      source_{std::move(source)} {}

std::size_t HostRecordFile::read(std::int64_t position, std::span<std::byte> into) {
    if (position < 0)
        throw Failure{FailureNumber::wrong_record_number, source_};
    into = into.first(bytes_left(position, into.size())); // The file is as long as it was when it was opened.
    std::size_t done = copy_from_buffer(position, into);
    if (done == into.size())
        return done;
    const auto rest = into.subspan(done);
    const auto rest_position = position + static_cast<std::int64_t>(done);
    if (rest.size() >= walking_read)
        return done + read_disk(rest_position, rest);
    fill_buffer(rest_position, rest.size());
    return done + copy_from_buffer(rest_position, rest);
}

std::size_t HostRecordFile::bytes_left(std::int64_t position, std::size_t at_most) const {
    const std::int64_t left = std::max<std::int64_t>(0, length() - position);
    return static_cast<std::size_t>(std::min(left, static_cast<std::int64_t>(at_most)));
}

std::size_t HostRecordFile::copy_from_buffer(std::int64_t position, std::span<std::byte> into) const {
    const std::int64_t end = buffer_begin_ + static_cast<std::int64_t>(buffer_.size());
    if (position < buffer_begin_ || position >= end)
        return 0;
    const std::size_t count = std::min(into.size(), static_cast<std::size_t>(end - position));
    std::copy_n(buffer_.begin() + (position - buffer_begin_), count, into.begin());
    return count;
}

void HostRecordFile::fill_buffer(std::int64_t position, std::size_t wanted) {
    const bool walks_on = !buffer_.empty() && position == buffer_begin_ + static_cast<std::int64_t>(buffer_.size());
    buffer_.resize(bytes_left(position, walks_on ? walking_read : std::max(wanted, single_read)));
    buffer_begin_ = position;
    buffer_.resize(read_disk(position, buffer_));
}

std::size_t HostRecordFile::read_disk(std::int64_t position, std::span<std::byte> into) {
    std::size_t done = 0;
    while (done < into.size()) {
        const auto rest = into.subspan(done);
        const ssize_t count = ::pread(file_.get(), rest.data(), rest.size(), position + static_cast<off_t>(done));
        if (count == 0)
            break;
        if (count > 0)
            done += static_cast<std::size_t>(count);
        else if (errno != EINTR)
            throw_errno(Access::reading, source_);
    }
    return done;
}

} // namespace sonarelle
