#pragma once

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include "platform/audio/sample_source.h"
#include "platform/waveform.h"

namespace sonarelle {

/// Makes a waveform of samples as they come, without knowing how many there will be: whenever it has too many columns,
/// each two become one. So a jingle and a day of sound come out with as many columns, and take as little memory.
class WaveformBuilder {
public:
    static constexpr std::size_t most_columns = 4096; ///< Twice as many as the widest desk has pixels for a deck.

    explicit WaveformBuilder(int rate)
        : rate_{rate} {}

    void add(PlanarBlock block);
    /// What has come so far; the last column may be shorter than the others.
    [[nodiscard]] Waveform finish() const;

private:
    void close_column();

    int rate_;
    std::size_t column_samples_ = 256;
    std::size_t in_column_ = 0; // samples of the column that isn't closed yet
    float peak_ = 0;            // of that one
    std::vector<float> peaks_;
};

/// The waveform of a whole file, read from its beginning in the file's own rate; empty for one without sound.
/// @returns nothing when `stop` became true before the end.
/// @throws Failure 57 when the disk fails.
[[nodiscard]] std::optional<Waveform> read_waveform(SampleSource& source, const std::atomic<bool>& stop);

} // namespace sonarelle
