#include "app/outil/rehearsal.h"

#include <atomic>
#include <memory>
#include <optional>
#include <ostream>

#include "app/outil/air_picture.h"
#include "app/outil/deck_watch.h"
#include "app/outil/end_signals.h"
#include "app/outil/event_writer.h"
#include "app/outil/output_failure.h"
#include "app/outil/progress.h"
#include "app/outil/rehearsal_outputs.h"
#include "app/outil/silence_watch.h"
#include "app/outil/working_folder.h"
#include "configuration/settings_store.h"
#include "platform/audio/silent_media.h"
#include "platform/audio/sound_media.h"
#include "platform/audio/virtual_renderer.h"
#include "platform/failure.h"
#include "platform/host/host_disk.h"
#include "platform/random.h"
#include "platform/simulated/scripted_dialogs.h"
#include "platform/simulated/simulated_settings.h"
#include "platform/simulated/simulated_shell.h"
#include "platform/simulated/virtual_time.h"
#include "playlist/list_rows.h"

namespace sonarelle {

namespace {

/// A station in virtual time on this machine's files, and those who follow it.
class RehearsedStation {
public:
    RehearsedStation(const Rehearsal& rehearsal, std::ostream& out)
        : rehearsal_{rehearsal},
          out_{out},
          folder_{rehearsal.drives},
          disk_{folder_.drives()} {
        make_media();
        fill_settings();
        const std::string list = folder_.copy(rehearsal.programme.list);
        station_ = std::make_unique<Station>(Platform{time_, scheduler_, disk_, settings_, dialogs_, *media_, random_,
                                                      shell_, folder_.station_path(), DecimalMark::point});
        watch_ = std::make_unique<DeckWatch>(station_->deck_ring);
        picture_ = std::make_unique<AirPicture>(*watch_);
        connect();
        station_->create_main_window();
        if (station_->settings.premier_lancement.is_true())
            throw Failure{FailureNumber::type_mismatch, "réglages", "une valeur n'est pas un nombre"};
        time_.event([&] { open_programme(*station_, dialogs_, rehearsal_.programme, list); });
        open_outputs();
        time_.event([&] { start_programme(*station_, rehearsal_.programme, folder_.drives()); });
    }

    void run() {
        for (const Gesture& gesture : rehearsal_.gestures)
            time_.at(gesture.at, [this, &gesture] { gesture.act(*station_, dialogs_); });
        progress_.emplace("répétition", length_.count());
        time_.run_until(length_);
        progress_.reset();
        silence_.end();
        outputs_->finish_rendering();
        if (rehearsal_.picture)
            outputs_->write_picture(picture_->svg(length_));
        events_.write_account(time_.now());
    }

private:
    void make_media() {
        const auto resolve = [this](std::string_view path) { return disk_.machine_path(path); };
        auto files = std::make_shared<MachineFiles>();
        if (rehearsal_.without_sound) {
            media_ = std::make_unique<SilentMedia>(time_, files, resolve);
            return;
        }
        auto sound = std::make_unique<SoundMedia>(time_, bus_, files, resolve, Decoding::inline_with_rendering);
        renderer_ = std::make_unique<VirtualRenderer>(bus_, *sound, [this](std::span<const float> frames) {
            silence_.take(frames);
            if (outputs_)
                outputs_->render(frames);
        });
        media_ = std::move(sound);
    }

    /// The list, loaded by then, says which files are to be spared.
    void open_outputs() {
        length_ = rehearsal_.programme.length.value_or(length_of_list(*station_));
        const OutputGuard guard{rehearsal_.rendering, rehearsal_.picture};
        guard.check(rehearsal_.programme.list, "la liste");
        for (const DrawnList* drawn : {&rehearsal_.programme.jingles, &rehearsal_.programme.items})
            if (!drawn->list.empty())
                guard.check(drawn->list, "une liste à tirer");
        const RowTable& rows = station_->list_window.rows;
        for (int row = 1; guard.has_something_to_lose() && row <= rows.count(); ++row) {
            std::string track;
            ErrorIndicator{}.skip([&] { track = disk_.machine_path(rows.sub_item(row, list_column::path)); });
            if (!track.empty())
                guard.check(track, "un titre de la liste");
        }
        outputs_.emplace(rehearsal_.rendering, rehearsal_.picture);
    }

    bool write(const std::string& line) {
        if (!(out_ << line << std::flush) && !unwritten_)
            unwritten_ = output_failure();
        return true;
    }

    /// Who interrupts a run, or reads no more of it, doesn't wait for its end.
    void check_is_wanted() const {
        if (interrupted_)
            throw Failure{FailureNumber::wrong_call, rehearsal_.programme.list, "répétition interrompue"};
        if (unwritten_)
            throw Failure{*unwritten_};
    }

    /// What the store doesn't have comes from the factory.
    void fill_settings() {
        SettingsStore{settings_, folder_.station_path(), DecimalMark::point}.write_column(&SettingRow::repair);
        settings_.save_all(settings_application, rehearsal_.stored_settings);
        settings_.save_all(settings_application, rehearsal_.programme.settings);
    }

    void connect() {
        dialogs_.default_answers();
        dialogs_.on_answered = [this](const Question& question) {
            if (question.kind == QuestionKind::box || question.kind == QuestionKind::input)
                events_.write(time_.now(), question);
        };
        station_->desk.on_event = [this](const OnAirEvent& event) {
            events_.write(time_.now(), event);
            picture_->take(time_.now(), event);
        };
        station_->notices.on_warning = [this](const std::string& text) { events_.write_warning(time_.now(), text); };
        watch_->on_end_of_file = [this](Frames at, int deck) { events_.write_end_of_file(at, deck); };
        silence_.on_silence_over = [this](Frames from, Frames span) {
            events_.add_silence(span);
            picture_->add_silence(from, span);
        };
        time_.before_instant = [this](Frames frame) { follow_until(frame); };
    }

    void follow_until(Frames frame) {
        check_is_wanted();
        if (progress_)
            progress_->reach(frame.count());
        watch_->advance(time_.now(), frame);
        picture_->advance(time_.now(), frame);
        if (renderer_)
            renderer_->render_until(frame);
        else
            watch_silence_until(frame);
    }

    /// Without sound, air is silent while no deck runs.
    void watch_silence_until(Frames frame) {
        const Frames now = time_.now();
        const Frames sounding_end = std::min(frame, watch_->sounds_until(now).value_or(now));
        if (sounding_end > now)
            silence_.sounding();
        if (sounding_end < frame)
            silence_.silent(sounding_end, frame);
    }

    const Rehearsal& rehearsal_;
    std::ostream& out_;
    std::optional<Failure> unwritten_;
    std::atomic<bool> interrupted_{false};
    EndSignals signals_{[this] { interrupted_ = true; }};
    WorkingFolder folder_;
    Scheduler scheduler_;
    VirtualTime time_{scheduler_};
    HostDisk disk_;
    SimulatedSettings settings_;
    ScriptedDialogs dialogs_{time_};
    SimulatedShell shell_;
    Random random_{rehearsal_.programme.seed};
    EventWriter events_{[this](const std::string& line) { return write(line); }};
    SilenceWatch silence_;
    std::optional<Progress> progress_;
    std::optional<RehearsalOutputs> outputs_;
    ProgrammeBus bus_;
    std::unique_ptr<Media> media_;
    std::unique_ptr<VirtualRenderer> renderer_;
    std::unique_ptr<Station> station_;
    std::unique_ptr<DeckWatch> watch_;
    std::unique_ptr<AirPicture> picture_;
    Frames length_;
};

} // namespace

void run_rehearsal(const Rehearsal& rehearsal, std::ostream& out) {
    RehearsedStation{rehearsal, out}.run();
}

} // namespace sonarelle
