#pragma once

#include "platform/audio/output_device.h"

namespace sonarelle {

/// The sound cards and servers that SDL knows: PulseAudio, PipeWire, ALSA. Used by one thread at a time, which opens,
/// drops and lists alike.
class SdlDevices final : public OutputDevices {
public:
    /// Has a sound server hold some blocks ahead, so that a busy machine's threads may be late. What the operator's
    /// environment says of it holds. It changes the environment: before there are other threads.
    static void ask_for_large_buffers();

    SdlDevices() = default;
    ~SdlDevices() override;
    SdlDevices(const SdlDevices&) = delete;
    SdlDevices& operator=(const SdlDevices&) = delete;

    [[nodiscard]] std::vector<std::string> names() override;
    [[nodiscard]] std::unique_ptr<OutputDevice> open(const std::string& name, PullFrames pull) override;

private:
    [[nodiscard]] bool connect(bool anew);

    bool connected_ = false;
    std::shared_ptr<int> open_devices_ = std::make_shared<int>(0);
};

} // namespace sonarelle
