#pragma once

#include <memory>
#include <string>

#include "platform/audio/output_device.h"
#include "platform/audio/output_shared.h"

namespace sonarelle {

/// Opens, watches and closes the devices of a live output, on a thread of its own that may hang as long as they do.
///
/// At any time one device at most is on the air. Another one is opened beside it, gets silence, and goes on the air
/// when it pulls; only then the old one is closed. So a device that can't be opened, or hangs, takes nothing away.
class OutputKeeper {
public:
    OutputKeeper(std::shared_ptr<OutputShared> shared, std::unique_ptr<OutputDevices> devices)
        : shared_{std::move(shared)},
          devices_{std::move(devices)} {}

    /// Until it is time to stop.
    void run();

private:
    /// One device's way to the bus. Its callback holds on to it: it may come once more while the device hangs in its
    /// end.
    struct Way {
        std::shared_ptr<OutputShared> shared;
        int number = 0;
        std::atomic<std::int64_t> asked_in_vain{0};

        void pull(float* out, std::size_t frames) noexcept;
    };

    void look_for_better_device();
    [[nodiscard]] std::string take_choice();
    bool go_over_to(const std::string& name);
    [[nodiscard]] bool begins_to_pull(const Way& way);
    void put_on_air(int number, std::string name, std::unique_ptr<OutputDevice> device);
    void rest();
    [[nodiscard]] bool device_is_gone();
    void close_device();
    void tell_names();
    [[nodiscard]] bool plays_on(const std::string& name) const { return device_ != nullptr && name_ == name; }

    std::shared_ptr<OutputShared> shared_;
    std::unique_ptr<OutputDevices> devices_;
    std::unique_ptr<OutputDevice> device_; // dropped before the devices
    std::string name_;
    int last_number_ = 0;
    std::int64_t asked_ = 0;
    std::chrono::steady_clock::time_point last_pull_;
};

} // namespace sonarelle
