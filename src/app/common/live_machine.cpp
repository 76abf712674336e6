#include "app/common/live_machine.h"

#include "platform/audio/sdl_devices.h"
#include "platform/disk_patience.h"
#include "platform/numbers.h"

namespace sonarelle {

namespace {

std::uint64_t clock_entropy() {
    return static_cast<std::uint64_t>(std::chrono::steady_clock::now().time_since_epoch().count());
}

} // namespace

LiveMachine::LiveMachine(DriveTable drives, std::uint64_t seed)
    : drives_{std::move(drives)},
      disk_{drives_, std::make_shared<DiskPatience>(station_patience)},
      media_{clock_, bus_, std::make_shared<MachineFiles>(),
             [this](std::string_view path) { return disk_.machine_path(path); }, Decoding::by_threads},
      random_{seed, clock_entropy} {
    SdlDevices::ask_for_large_buffers();
}

Platform LiveMachine::platform(Settings& settings, Dialogs& dialogs, Shell& shell, const std::string& program_folder) {
    return {clock_, scheduler_, disk_, settings, dialogs, media_, random_, shell, program_folder, DecimalMark::point};
}

void LiveMachine::open_output(const OutputName& name, std::function<void(OutputState)> on_change,
                              std::function<void(OutputGaps)> on_gaps) {
    auto devices = name ? std::make_unique<SdlDevices>() : nullptr;
    output_ = std::make_unique<LiveOutput>(
        bus_, std::move(devices), name.value_or(""),
        [this, on_change = std::move(on_change)](OutputState state) {
            driver_.post([on_change, state] { on_change(state); });
        },
        [this, on_gaps = std::move(on_gaps)](OutputGaps gaps) { driver_.post([on_gaps, gaps] { on_gaps(gaps); }); });
}

std::string state_text(OutputState state) {
    return state == OutputState::playing ? "sortie : la carte son joue"
                                         : "sortie : aucune carte son, cadence de l'horloge";
}

std::string gaps_text(OutputGaps gaps) {
    return "sortie : son arrivé trop tard " + std::to_string(gaps.count) + " fois, " +
           Format(in_seconds(gaps.lost), "0.00", DecimalMark::point) + " s de silence depuis le lancement";
}

std::string trouble_text(const SoundReport& report) {
    return report.path + " : " + std::to_string(report.breaks) + " coupures, " +
           Format(in_seconds(report.starved), "0.00", DecimalMark::point) + " s de retard";
}

} // namespace sonarelle
