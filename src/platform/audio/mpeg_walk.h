#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "platform/audio/byte_window.h"
#include "platform/audio/mpeg_frame.h"

namespace sonarelle {

/// Walks over the frames of an MPEG audio file by their heads alone: where each lies, and thereby how many there are.
/// It goes as far as it is asked and never twice over the same frame.
class MpegWalk {
public:
    explicit MpegWalk(RecordFile& file);

    /// Finds the first frame, behind tags and a little rubbish. False when the file is no MPEG audio.
    [[nodiscard]] bool find_first();
    [[nodiscard]] const MpegFrame& first() const { return first_; }

    /// Walks until frame `index` is known. False when the file has no such frame.
    [[nodiscard]] bool reach(std::size_t index);
    void reach_end();
    [[nodiscard]] std::size_t known() const { return offsets_.size(); }

    [[nodiscard]] std::int64_t offset(std::size_t index) const { return offsets_[index]; }
    /// The bytes of a known frame, valid until the next call; empty when the file has shrunk meanwhile.
    [[nodiscard]] std::span<const std::uint8_t> bytes(std::size_t index);
    [[nodiscard]] std::int64_t audio_end() const { return end_; }

    /// Whether something that is no frame lies before this one.
    [[nodiscard]] bool broken_before(std::size_t index) const;

private:
    [[nodiscard]] std::int64_t behind_tags();
    [[nodiscard]] std::optional<std::int64_t> search(std::int64_t from, std::int64_t up_to, int links);
    [[nodiscard]] bool begins_chain(std::int64_t position, std::uint32_t like, int links);
    bool step();
    void add(std::int64_t position, const MpegFrame& frame);

    ByteWindow window_;
    MpegFrame first_;
    std::uint32_t first_word_ = 0;
    std::vector<std::uint32_t> offsets_; // files above 4 GB are left to others
    std::vector<std::size_t> breaks_;
    std::int64_t next_ = 0; // where the next frame should begin
    std::int64_t end_ = 0;  // where the closing tag begins
    bool at_end_ = false;
};

} // namespace sonarelle
