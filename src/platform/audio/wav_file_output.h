#pragma once

#include <cstdint>
#include <fstream>
#include <span>
#include <string>
#include <vector>

namespace sonarelle {

/// Writes the programme into a WAV file of 48 kHz, stereo, 16 bit.
class WavFileOutput {
public:
    /// @throws Failure 75 when the file can't be created.
    explicit WavFileOutput(const std::string& path);
    ~WavFileOutput(); ///< Closes; a failure is then lost.
    WavFileOutput(const WavFileOutput&) = delete;
    WavFileOutput& operator=(const WavFileOutput&) = delete;

    /// Two floats a frame, of which 1 is full scale; what is beyond is cut.
    /// @throws Failure 61 when the disk takes no more.
    void write(std::span<const float> frames);

    /// Completes the head and closes; later calls do nothing.
    /// @throws Failure 61 when the disk takes no more.
    void close();

private:
    void write_head();
    void check();

    std::string path_;
    std::ofstream file_;
    std::vector<std::int16_t> samples_;
    std::uint32_t data_bytes_ = 0;
};

} // namespace sonarelle
