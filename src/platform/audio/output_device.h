#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace sonarelle {

/// Asks for the next frames of the programme, two floats each. Called on the device's own thread; it never waits.
using PullFrames = std::function<void(float* out, std::size_t frames)>;

/// A sound card that is open and pulls. Dropping it closes the card; that may hang for as long as a sound server does.
class OutputDevice {
public:
    virtual ~OutputDevice() = default;

    /// False once the device has gone for good. One that merely hangs still counts as there.
    [[nodiscard]] virtual bool is_there() const = 0;
};

/// The sound cards of a machine. Its calls may hang as a sound server does, so they come from a thread that may wait.
class OutputDevices {
public:
    virtual ~OutputDevices() = default;

    [[nodiscard]] virtual std::vector<std::string> names() = 0;

    /// Opens a device by name, or the default one for an empty name, and begins to pull. Others that are open play on.
    /// @throws Failure 68 when there is none that works.
    [[nodiscard]] virtual std::unique_ptr<OutputDevice> open(const std::string& name, PullFrames pull) = 0;
};

} // namespace sonarelle
