#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>

#include "platform/disk.h"

namespace sonarelle {

/// A run of samples, one array a channel. Mono has the same array twice.
struct PlanarBlock {
    std::array<const float*, 2> channel{};
    std::size_t samples = 0;

    void drop(std::size_t count) {
        channel[0] += count;
        channel[1] += count;
        samples -= count;
    }
};

/// The sound of one open file in its own sampling rate: what each format implements (a synthesizer for MIDI would be
/// one more). Used by one thread at a time. Samples are counted from the first that is heard.
class SampleSource {
public:
    virtual ~SampleSource() = default;

    [[nodiscard]] virtual int rate() const = 0;
    /// 1 or 2; 0 for a file without sound. What has more is brought down to 2.
    [[nodiscard]] virtual int channels() const = 0;
    [[nodiscard]] virtual bool has_pictures() const { return false; }

    /// The length in samples of `rate`, exact where the format allows: the announced one where the file holds that
    /// much, else that of the sound that is there. May have to read the whole file.
    /// @throws Failure 57 when the disk fails.
    [[nodiscard]] virtual std::int64_t length() = 0;

    /// The next read begins exactly at this sample, with what decoding from the start has there.
    virtual void seek(std::int64_t sample) = 0;

    /// The next run of samples, valid until the next call; empty at the end. Damaged parts are silence in their place,
    /// as far as the format tells how long they are.
    /// @throws Failure 57 when the disk fails.
    [[nodiscard]] virtual PlanarBlock read() = 0;

    /// How many damaged places have been met so far.
    [[nodiscard]] virtual int breaks() const = 0;
};

/// Opens the sound of a file by what is in it, whatever its name.
/// @throws Failure 1001 when nothing in it can be played, with `path` as the source.
[[nodiscard]] std::unique_ptr<SampleSource> open_sample_source(std::unique_ptr<RecordFile> file,
                                                               const std::string& path);

} // namespace sonarelle
