#include "platform/audio/mpeg_walk.h"

#include <algorithm>
#include <cstring>

namespace sonarelle {

namespace {

constexpr int chain_length = 3;          // heads in a row that can't be chance
constexpr int chain_behind_rubbish = 16; // none of the containers that hold MPEG audio has so many side by side
constexpr std::int64_t rubbish_before_first = 64 * 1024;
constexpr std::int64_t closing_tag = 128;

} // namespace

MpegWalk::MpegWalk(RecordFile& file)
    : window_{file},
      end_{file.length()} {}

bool MpegWalk::find_first() {
    if (window_.length() > std::int64_t{UINT32_MAX})
        return false;
    const std::int64_t start = behind_tags();
    const std::uint8_t* tag = window_.length() >= closing_tag ? window_.at(end_ - closing_tag, 3) : nullptr;
    if (tag != nullptr && std::memcmp(tag, "TAG", 3) == 0)
        end_ -= closing_tag;
    std::optional<std::int64_t> found = start;
    if (!begins_chain(start, 0, chain_length))
        found = search(start, std::min(end_, start + rubbish_before_first), chain_behind_rubbish);
    if (!found)
        return false;
    const std::uint8_t* head = window_.at(*found, 4);
    first_word_ = mpeg_word(head);
    first_ = *mpeg_frame(first_word_);
    add(*found, first_);
    return true;
}

std::int64_t MpegWalk::behind_tags() {
    std::int64_t position = 0;
    while (const std::uint8_t* tag = window_.at(position, 10)) {
        if (std::memcmp(tag, "ID3", 3) != 0)
            break;
        const std::int64_t size =
            (tag[6] & 0x7F) << 21 | (tag[7] & 0x7F) << 14 | (tag[8] & 0x7F) << 7 | (tag[9] & 0x7F);
        position += 10 + size + ((tag[5] & 0x10) != 0 ? 10 : 0);
    }
    return position;
}

bool MpegWalk::reach(std::size_t index) {
    while (offsets_.size() <= index)
        if (!step())
            return false;
    return true;
}

void MpegWalk::reach_end() {
    while (step()) {
    }
}

std::span<const std::uint8_t> MpegWalk::bytes(std::size_t index) {
    const std::uint8_t* head = window_.at(offsets_[index], 4);
    const auto frame = head == nullptr ? std::nullopt : mpeg_frame(mpeg_word(head));
    if (!frame)
        return {};
    const std::uint8_t* whole = window_.at(offsets_[index], frame->bytes);
    return whole == nullptr ? std::span<const std::uint8_t>{} : std::span{whole, frame->bytes};
}

bool MpegWalk::broken_before(std::size_t index) const {
    return std::ranges::binary_search(breaks_, index);
}

void MpegWalk::add(std::int64_t position, const MpegFrame& frame) {
    offsets_.push_back(static_cast<std::uint32_t>(position));
    next_ = position + static_cast<std::int64_t>(frame.bytes);
}

bool MpegWalk::step() {
    if (at_end_ || offsets_.empty())
        return false;
    const std::uint8_t* head = next_ + 4 <= end_ ? window_.at(next_, 4) : nullptr;
    if (head != nullptr && same_mpeg_stream(mpeg_word(head), first_word_)) {
        const auto frame = mpeg_frame(mpeg_word(head));
        if (frame && next_ + static_cast<std::int64_t>(frame->bytes) <= end_) {
            add(next_, *frame);
            return true;
        }
    }
    // The frame before may have been cut short, so the search begins within it.
    const auto found = head == nullptr ? std::nullopt : search(std::int64_t{offsets_.back()} + 4, end_, chain_length);
    if (!found) {
        at_end_ = true;
        return false;
    }
    breaks_.push_back(offsets_.size());
    add(*found, *mpeg_frame(mpeg_word(window_.at(*found, 4))));
    return true;
}

std::optional<std::int64_t> MpegWalk::search(std::int64_t from, std::int64_t up_to, int links) {
    for (std::int64_t position = from; position + 4 <= up_to;) {
        const std::uint8_t* here = window_.at(position, 4);
        if (here == nullptr)
            return std::nullopt;
        const auto reach = std::min(window_.left(position), static_cast<std::size_t>(up_to - position)) - 3;
        const void* sync = std::memchr(here, 0xFF, reach);
        if (sync == nullptr) {
            position += static_cast<std::int64_t>(reach);
            continue;
        }
        position += static_cast<const std::uint8_t*>(sync) - here;
        if (begins_chain(position, first_word_, links))
            return position;
        ++position;
    }
    return std::nullopt;
}

// A short file may end before the chain is complete: then it has to end where a frame does.
bool MpegWalk::begins_chain(std::int64_t position, std::uint32_t like, int links) {
    for (int link = 0; link < links; ++link) {
        if (link > 0 && position == end_)
            return true;
        const std::uint8_t* head = position + 4 <= end_ ? window_.at(position, 4) : nullptr;
        if (head == nullptr)
            return false;
        const std::uint32_t word = mpeg_word(head);
        const auto frame = mpeg_frame(word);
        if (!frame || (like != 0 && !same_mpeg_stream(word, like)))
            return false;
        like = word;
        position += static_cast<std::int64_t>(frame->bytes);
    }
    return true;
}

} // namespace sonarelle
