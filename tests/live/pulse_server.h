#pragma once

#include <string>
#include <sys/types.h>
#include <vector>

namespace sonarelle {

/// A PulseAudio server of the test's own, with one sink that leads nowhere and can be recorded. The test's process
/// talks to it and to no other.
class PulseServer {
public:
    explicit PulseServer(std::string folder);
    ~PulseServer();
    PulseServer(const PulseServer&) = delete;
    PulseServer& operator=(const PulseServer&) = delete;

    void start();
    void kill();   ///< As a crash does.
    void freeze(); ///< It hangs.
    void thaw();

    /// One sink more, while the server runs; it is listed under this name.
    void plug_in(const std::string& sink) const;

    /// Records what a sink plays, 48 kHz stereo floats, into `file` until `stop_recording`.
    void record(const std::string& file, const std::string& sink = "air");
    void stop_recording();

private:
    void wait_until_it_answers() const;

    std::string folder_;
    pid_t server_ = -1;
    pid_t recorder_ = -1;
};

[[nodiscard]] std::vector<float> recorded_floats(const std::string& file);

} // namespace sonarelle
