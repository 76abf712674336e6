#include "app/outil/on_air.h"

#include <unistd.h>

#include <chrono>
#include <memory>
#include <span>

#include "app/common/live_machine.h"
#include "app/outil/deck_watch.h"
#include "app/outil/end_signals.h"
#include "app/outil/event_writer.h"
#include "app/outil/line_output.h"
#include "app/outil/printable.h"
#include "app/outil/silence_watch.h"
#include "configuration/settings_store.h"
#include "platform/audio/tap_reader.h"
#include "platform/calendar_text.h"
#include "platform/failure.h"
#include "platform/host/host_settings.h"
#include "platform/host/machine_paths.h"
#include "platform/simulated/scripted_dialogs.h"
#include "platform/timer.h"

namespace sonarelle {

namespace {

/// A station on this machine's sound, disk and settings.
class LiveStation {
public:
    LiveStation(const LiveProgramme& live, HostSettings& settings)
        : live_{live},
          machine_{live.drives, live.programme.seed},
          settings_{settings} {
        station_ =
            std::make_unique<Station>(machine_.platform(settings_, dialogs_, machine_.shell(), live.program_folder));
        watch_ = std::make_unique<DeckWatch>(station_->deck_ring);
        connect();
        station_->create_main_window();
        for (const Setting& setting : live.programme.settings)
            apply(setting);
        station_->main_window.Active_journal.click();
        for (const std::string& sentence : live.told)
            tell(sentence);
    }

    /// How many lines nobody read.
    int run() {
        const EndSignals signals{[this] { machine_.driver().stop(); }};
        // Frame 0 of the programme is that of the list: the card finds sound as soon as it is open.
        machine_.scheduler().run_event(Frames{},
                                       [this] { start(station_path_of(live_.drives, live_.programme.list)); });
        const OutputName output = live_.output == "aucune" ? OutputName{} : live_.output.value_or("");
        machine_.open_output(
            output, [this](OutputState state) { tell_output(state); },
            [this](OutputGaps gaps) { tell(gaps_text(gaps)); });
        machine_.driver().run();
        if (!ended_) // by a signal
            machine_.driver().run_event([this] { end(); });
        return lines_.lost();
    }

private:
    void tell(const std::string& sentence) {
        note(sentence);
        if (!live_.shows_journal)
            events_.write_warning(now(), sentence);
    }

    void note(const std::string& sentence) {
        station_->journal.note(date_and_time(station_->desk.platform) + " " + sentence);
    }

    void tell_output(OutputState state) {
        tell(state_text(state));
        const std::string& chosen = live_.output.value_or("");
        if (state == OutputState::playing && !chosen.empty() && machine_.output()->playing_on() == "")
            tell("sortie : la carte « " + chosen + " » est introuvable, la carte par défaut la remplace");
    }

    /// For this run alone: the store keeps what it has.
    void apply(const Setting& setting) {
        const SettingsStore store{settings_, live_.program_folder, DecimalMark::point};
        store.assign(station_->settings, setting_row(setting.section, setting.key), setting.value);
        if (setting.key == "Mix")
            station_->settings.mix_defaut = station_->settings.mix_courant;
        if (setting.key == "Préchargement")
            station_->settings.prechargement_defaut = station_->settings.prechargement;
        if (setting.key == "Valeur_vitesse_timer")
            station_->main_window.list_chain_timer.set_interval(station_->settings.valeur_vitesse_timer);
    }

    void connect() {
        dialogs_.default_answers();
        if (live_.shows_journal) {
            station_->journal.on_line = [this](const std::string& line) { lines_.write(printable(line) + '\n'); };
        } else {
            dialogs_.on_answered = [this](const Question& question) {
                if (question.kind == QuestionKind::box || question.kind == QuestionKind::input)
                    events_.write(now(), question);
            };
            station_->desk.on_event = [this](const OnAirEvent& event) { tell(event); };
            station_->notices.on_warning = [this](const std::string& text) { events_.write_warning(now(), text); };
            watch_->on_end_of_file = [this](Frames at, int deck) { events_.write_end_of_file(at, deck); };
        }
        silence_.on_silence_over = [this](Frames, Frames span) { events_.add_silence(span); };
        machine_.media().on_opened = [this](std::chrono::nanoseconds time) {
            events_.add_load(std::chrono::duration<double, std::milli>{time}.count());
        };
        machine_.media().on_trouble = [this](const SoundReport& report) { note(trouble_text(report)); };
        look_.set_interval(100);
        look_.on_tick = [this] { look(); };
    }

    void start(const std::string& list) {
        begins_at(now());
        open_programme(*station_, dialogs_, live_.programme, list);
        start_programme(*station_, live_.programme, live_.drives);
        length_ = live_.programme.length.value_or(length_of_list(*station_));
        look_.enable();
    }

    /// Loading the first file may take a while, so the list begins once more with the first deck that starts.
    void begins_at(Frames frame) {
        events_.count_from(frame);
        began_ = frame;
    }

    void tell(const OnAirEvent& event) {
        if (event.kind == OnAirEvent::Kind::started && events_.starts() == 0)
            begins_at(now());
        events_.write(now(), event);
    }

    void end() {
        ended_ = true;
        look_.disable();
        listen();
        silence_.end();
        if (const int lost = lines_.lost())
            note("sortie standard : " + std::to_string(lost) + " lignes que personne n'a lues");
        station_->list_run.stop_decks();
        if (!live_.shows_journal)
            events_.write_account(now());
        machine_.driver().stop();
    }

    [[nodiscard]] Frames now() { return machine_.clock().now(); }

    /// What the bus has made since the last look: a deck that runs may be silent all the same.
    void listen() {
        const Frames lost_before = heard_.lost();
        const std::span<const float> frames = heard_.read();
        silence_.skip(heard_.lost() - lost_before);
        silence_.take(frames);
    }

    void look() {
        const Frames now = this->now();
        listen();
        watch_->advance(now, now + milliseconds(100));
        if (now - began_ >= length_)
            end();
    }

    const LiveProgramme& live_;
    LiveMachine machine_;
    HostSettings& settings_;
    LineOutput lines_{STDOUT_FILENO};
    EventWriter events_{[this](std::string line) { return lines_.write(std::move(line)); }};
    SilenceWatch silence_;
    TapReader heard_{machine_.bus().taps()}; // from the bus's first frame on
    ScriptedDialogs dialogs_{machine_.clock()};
    std::unique_ptr<Station> station_;
    std::unique_ptr<DeckWatch> watch_;
    Timer look_{"look", 0, machine_.scheduler()};
    Frames began_;
    Frames length_;
    bool ended_ = false;
};

} // namespace

void run_on_air(const LiveProgramme& live, HostSettings& settings) {
    if (LiveStation{live, settings}.run() > 0)
        throw Failure{FailureNumber::device_fault, "sortie standard", "des lignes n'ont pas été lues"};
}

} // namespace sonarelle
