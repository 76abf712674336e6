#include "app/outil/on_air.h"

#include <atomic>
#include <chrono>
#include <csignal>
#include <memory>
#include <ostream>

#include "app/outil/deck_watch.h"
#include "app/outil/event_writer.h"
#include "app/outil/silence_watch.h"
#include "configuration/settings_store.h"
#include "platform/audio/live_driver.h"
#include "platform/audio/live_output.h"
#include "platform/audio/sdl_devices.h"
#include "platform/audio/sound_media.h"
#include "platform/disk_patience.h"
#include "platform/failure.h"
#include "platform/host/host_disk.h"
#include "platform/host/host_settings.h"
#include "platform/host/host_shell.h"
#include "platform/host/machine_paths.h"
#include "platform/random.h"
#include "platform/simulated/simulated_dialogs.h"
#include "platform/timer.h"

namespace sonarelle {

namespace {

// A signal's handler can reach nothing else.
std::atomic<LiveDriver*> driver_to_stop{nullptr};

void stop_on_signal(int) {
    if (LiveDriver* driver = driver_to_stop.load())
        driver->stop();
}

class StopOnSignals {
public:
    explicit StopOnSignals(LiveDriver& driver) {
        driver_to_stop = &driver;
        std::signal(SIGINT, stop_on_signal);
        std::signal(SIGTERM, stop_on_signal);
    }
    ~StopOnSignals() {
        std::signal(SIGINT, SIG_DFL);
        std::signal(SIGTERM, SIG_DFL);
        driver_to_stop = nullptr;
    }
    StopOnSignals(const StopOnSignals&) = delete;
    StopOnSignals& operator=(const StopOnSignals&) = delete;
};

std::uint64_t clock_entropy() {
    return static_cast<std::uint64_t>(std::chrono::steady_clock::now().time_since_epoch().count());
}

std::string state_text(OutputState state) {
    return state == OutputState::playing ? "sortie : la carte son joue"
                                         : "sortie : aucune carte son, cadence de l'horloge";
}

/// A station on this machine's sound, disk and settings.
class LiveStation {
public:
    LiveStation(const LiveProgramme& live, HostSettings& settings, std::ostream& out)
        : live_{live}, out_{out}, disk_{live.drives, std::make_shared<DiskPatience>(station_patience)},
          settings_{settings}, events_{out} {
        write_first_settings();
        station_ = std::make_unique<Station>(Platform{clock_, scheduler_, disk_, settings_, dialogs_, media_, random_,
                                                      shell_, live.program_folder, DecimalMark::point});
        watch_ = std::make_unique<DeckWatch>(station_->desk);
        connect();
        station_->create_main_window();
        for (const Setting& setting : live.programme.settings)
            apply(setting);
        station_->main_window.Active_journal.click();
    }

    void run() {
        const StopOnSignals stop{driver_};
        // Frame 0 of the programme is that of the list: the card finds sound as soon as it is open.
        scheduler_.run_event(Frames{}, [this] { start(station_path_of(live_.drives, live_.programme.list)); });
        open_output();
        driver_.run();
        if (!ended_) // by a signal
            driver_.run_event([this] { end(); });
    }

private:
    void open_output() {
        auto devices = live_.output == "aucune" ? nullptr : std::make_unique<SdlDevices>();
        const std::string name = live_.output.value_or("");
        output_ = std::make_unique<LiveOutput>(bus_, std::move(devices), name, [this](OutputState state) {
            driver_.post([this, state] { tell_output(state); });
        });
    }

    void tell_output(OutputState state) {
        if (station_)
            station_->journal.note(date_and_time(station_->desk.platform) + " " + state_text(state));
        if (!live_.shows_journal)
            events_.write_warning(clock_.now(), state_text(state));
    }

    /// An empty store gets its first values, so that the next start is none of those.
    void write_first_settings() {
        const SettingsStore store{settings_, live_.program_folder, DecimalMark::point};
        if (settings_.all(settings_application).empty())
            store.write_column(&SettingRow::first);
    }

    /// For this run alone: the store keeps what it has.
    void apply(const Setting& setting) {
        const SettingsStore store{settings_, live_.program_folder, DecimalMark::point};
        store.assign(station_->settings, setting_row(setting.section, setting.key), setting.value);
        if (setting.key == "Mix")
            station_->settings.mix_defaut = station_->settings.mix_courant;
        if (setting.key == "Préchargement")
            station_->settings.prechargement_defaut = station_->settings.prechargement;
    }

    void connect() {
        dialogs_.default_answers();
        if (live_.shows_journal) {
            station_->journal.on_line = [this](const std::string& line) { out_ << line << std::endl; };
        } else {
            dialogs_.on_answered = [this](const Question& question) {
                if (question.kind == QuestionKind::box || question.kind == QuestionKind::input)
                    events_.write(clock_.now(), question);
            };
            station_->desk.on_event = [this](const OnAirEvent& event) { tell(event); };
            station_->desk.on_warning = [this](const std::string& text) { events_.write_warning(clock_.now(), text); };
            watch_->on_end_of_file = [this](Frames at, int deck) { events_.write_end_of_file(at, deck); };
            silence_.on_two_seconds = [this](Frames at) { events_.write_silence(at); };
        }
        silence_.on_silence_over = [this](Frames span) { events_.add_silence(span); };
        media_.on_opened = [this](std::chrono::nanoseconds time) {
            events_.add_load(std::chrono::duration<double, std::milli>{time}.count());
        };
        media_.on_trouble = [this](const SoundReport& report) {
            station_->journal.note(date_and_time(station_->desk.platform) + " " + report.path + " : " +
                                   std::to_string(report.breaks) + " coupures, " +
                                   Format(in_seconds(report.starved), "0.00", DecimalMark::point) + " s de retard");
        };
        look_.set_interval(100);
        look_.on_tick = [this] { look(); };
    }

    void start(const std::string& list) {
        begins_at(clock_.now());
        start_programme(*station_, dialogs_, live_.programme, list);
        length_ = live_.programme.length.value_or(length_of_list(*station_));
        look_.enable();
    }

    /// Loading the first file may take a while, so the list begins once more with the first deck that starts.
    void begins_at(Frames frame) {
        events_.count_from(frame);
        began_ = last_ = frame;
    }

    void tell(const OnAirEvent& event) {
        if (event.kind == OnAirEvent::Kind::started && events_.starts() == 0)
            begins_at(clock_.now());
        events_.write(clock_.now(), event);
    }

    void end() {
        ended_ = true;
        look_.disable();
        silence_.end();
        station_->list_run.Image3_Click();
        if (!live_.shows_journal)
            events_.write_account(clock_.now());
        driver_.stop();
    }

    void look() {
        const Frames now = clock_.now();
        if (watch_->sounds_until(now))
            silence_.sounding();
        else
            silence_.silent(last_, now);
        watch_->advance(now, now + milliseconds(100));
        last_ = now;
        if (now - began_ >= length_)
            end();
    }

    const LiveProgramme& live_;
    std::ostream& out_;
    HostDisk disk_;
    HostSettings& settings_;
    EventWriter events_;
    SilenceWatch silence_;
    Scheduler scheduler_;
    ProgrammeBus bus_;
    LiveClock clock_{scheduler_, bus_};
    SoundMedia media_{clock_, bus_, std::make_shared<MachineFiles>(),
                      [this](std::string_view path) { return disk_.machine_path(path); }, Decoding::by_threads};
    LiveDriver driver_{scheduler_, clock_, bus_, media_};
    SimulatedDialogs dialogs_{clock_};
    HostShell shell_{disk_};
    Random random_{live_.programme.seed, clock_entropy};
    std::unique_ptr<LiveOutput> output_;
    std::unique_ptr<Station> station_;
    std::unique_ptr<DeckWatch> watch_;
    Timer look_{"look", 0, scheduler_};
    Frames began_;
    Frames length_;
    Frames last_;
    bool ended_ = false;
};

} // namespace

void run_on_air(const LiveProgramme& live, HostSettings& settings, std::ostream& out) {
    LiveStation{live, settings, out}.run();
}

} // namespace sonarelle
