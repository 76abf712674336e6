#pragma once

#include <array>
#include <cstdint>
#include <fstream>
#include <span>
#include <string>
#include <vector>

namespace sonarelle {

/// What stands before so many bytes of sound of 48 kHz, stereo, 16 bit: WAV, or RF64 from 4 GiB on, in the same room.
using WavHead = std::array<char, 80>;
[[nodiscard]] WavHead wav_head(std::uint64_t data_bytes);

/// Writes the programme into a WAV file of 48 kHz, stereo, 16 bit; one that grows beyond 4 GiB (6 h 12 min) becomes
/// RF64.
class WavFileOutput {
public:
    /// @throws Failure 75 when the file can't be created.
    explicit WavFileOutput(const std::string& path);
    ~WavFileOutput(); ///< Closes; a failure is then lost.
    WavFileOutput(const WavFileOutput&) = delete;
    WavFileOutput& operator=(const WavFileOutput&) = delete;

    /// Two floats a frame, of which 1 is full scale; what is beyond is cut. None is greater than 64.
    /// @throws Failure 61 when the disk takes no more.
    void write(std::span<const float> frames);

    /// Completes the head and closes; later calls do nothing.
    /// @throws Failure 61 when the disk takes no more.
    void close();

private:
    void write_gathered();
    void check();

    std::string path_;
    std::ofstream file_;
    std::vector<std::int16_t> gathered_; // what comes next in the file, its head first: the disk gets whole pages
    std::size_t filled_ = 0;
    std::uint64_t data_bytes_ = 0;
};

} // namespace sonarelle
