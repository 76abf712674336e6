#include "metadata/read_window.h"

#include <algorithm>

#include "platform/failure.h"

namespace sonarelle {

std::span<const std::byte> ReadWindow::held(std::int64_t position) const {
    const std::int64_t offset = position - start_;
    if (offset < 0 || offset >= static_cast<std::int64_t>(filled_))
        return {};
    return std::span{bytes_}.first(filled_).subspan(static_cast<std::size_t>(offset));
}

std::size_t ReadWindow::read_behind_held(std::size_t count) {
    try {
        return file_.read(start_ + static_cast<std::int64_t>(filled_), std::span{bytes_}.subspan(filled_, count));
    } catch (const Failure&) {
        return 0;
    }
}

// A block with a bad place in it gives nothing at all, though its good bytes may be enough for a frame.
void ReadWindow::move_to(std::int64_t position, std::size_t count) {
    start_ = position;
    filled_ = 0;
    if (!byte_by_byte_)
        filled_ = read_behind_held(bytes_.size());
    byte_by_byte_ = filled_ == 0;
    while (byte_by_byte_ && filled_ < count && read_behind_held(1) == 1)
        ++filled_;
}

std::span<const std::byte> ReadWindow::at(std::int64_t position, std::size_t count) {
    const bool file_goes_on = start_ + static_cast<std::int64_t>(filled_) < file_.length();
    if (held(position).size() < count && (file_goes_on || position < start_))
        move_to(position, count);
    const auto bytes = held(position);
    return bytes.first(std::min(count, bytes.size()));
}

std::optional<std::int64_t> ReadWindow::find(std::byte wanted, std::int64_t from) {
    for (auto bytes = at(from, 1); !bytes.empty(); bytes = at(from, 1)) {
        const auto rest = held(from);
        const auto found = std::ranges::find(rest, wanted);
        from += found - rest.begin();
        if (found != rest.end())
            return from;
    }
    return std::nullopt;
}

} // namespace sonarelle
