#include "app/outil/rehearsal.h"

#include <filesystem>
#include <memory>
#include <ostream>

#include "app/outil/air_picture.h"
#include "app/outil/deck_watch.h"
#include "app/outil/event_writer.h"
#include "app/outil/progress.h"
#include "app/outil/silence_watch.h"
#include "app/outil/working_folder.h"
#include "configuration/settings_store.h"
#include "platform/audio/silent_media.h"
#include "platform/audio/sound_media.h"
#include "platform/audio/virtual_renderer.h"
#include "platform/audio/wav_file_output.h"
#include "platform/failure.h"
#include "platform/host/host_disk.h"
#include "platform/random.h"
#include "platform/simulated/simulated_dialogs.h"
#include "platform/simulated/simulated_settings.h"
#include "platform/simulated/simulated_shell.h"
#include "platform/simulated/virtual_time.h"

namespace sonarelle {

namespace {

/// A station in virtual time on this machine's files, and those who follow it.
class RehearsedStation {
public:
    RehearsedStation(const Rehearsal& rehearsal, std::ostream& out)
        : rehearsal_{rehearsal}, folder_{rehearsal.drives}, disk_{folder_.drives()}, events_{out} {
        make_media();
        fill_settings();
        const std::string list = folder_.copy(rehearsal.programme.list);
        station_ = std::make_unique<Station>(Platform{time_, scheduler_, disk_, settings_, dialogs_, *media_, random_,
                                                      shell_, folder_.station_path(), DecimalMark::point});
        watch_ = std::make_unique<DeckWatch>(station_->desk);
        picture_ = std::make_unique<AirPicture>(*watch_);
        connect();
        station_->create_main_window();
        if (station_->settings.premier_lancement.is_true())
            throw Failure{failure_number::type_mismatch, "réglages", "une valeur n'est pas un nombre"};
        time_.event([&] { start_programme(*station_, dialogs_, rehearsal_.programme, list); });
    }

    void run() {
        for (const Gesture& gesture : rehearsal_.gestures)
            time_.at(gesture.at, [this, &gesture] { gesture.act(*station_, dialogs_); });
        const Frames length = rehearsal_.programme.length.value_or(length_of_list(*station_));
        progress_.emplace("répétition", length.count());
        time_.run_until(length);
        progress_.reset();
        silence_.end();
        if (rendering_)
            rendering_->close();
        if (rehearsal_.picture)
            picture_->save(*rehearsal_.picture, length);
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
        if (rehearsal_.rendering)
            rendering_ = std::make_unique<WavFileOutput>(*rehearsal_.rendering);
        auto sound = std::make_unique<SoundMedia>(time_, bus_, files, resolve, Decoding::inline_with_rendering);
        renderer_ = std::make_unique<VirtualRenderer>(bus_, *sound, [this](std::span<const float> frames) {
            silence_.take(frames);
            if (rendering_)
                rendering_->write(frames);
        });
        media_ = std::move(sound);
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
        station_->desk.on_warning = [this](const std::string& text) { events_.write_warning(time_.now(), text); };
        watch_->on_end_of_file = [this](Frames at, int deck) { events_.write_end_of_file(at, deck); };
        silence_.on_two_seconds = [this](Frames at) {
            events_.write_silence(at);
            silent_from_ = at - seconds(2);
        };
        silence_.on_silence_over = [this](Frames span) {
            events_.add_silence(span);
            picture_->add_silence(silent_from_, span);
        };
        time_.before_instant = [this](Frames frame) { follow_until(frame); };
    }

    void follow_until(Frames frame) {
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
    WorkingFolder folder_;
    Scheduler scheduler_;
    VirtualTime time_{scheduler_};
    HostDisk disk_;
    SimulatedSettings settings_;
    SimulatedDialogs dialogs_{time_};
    SimulatedShell shell_;
    Random random_{rehearsal_.programme.seed};
    EventWriter events_;
    SilenceWatch silence_;
    std::optional<Progress> progress_;
    std::unique_ptr<WavFileOutput> rendering_;
    ProgrammeBus bus_;
    std::unique_ptr<Media> media_;
    std::unique_ptr<VirtualRenderer> renderer_;
    std::unique_ptr<Station> station_;
    std::unique_ptr<DeckWatch> watch_;
    std::unique_ptr<AirPicture> picture_;
    Frames silent_from_;
};

} // namespace

void run_rehearsal(const Rehearsal& rehearsal, std::ostream& out) {
    RehearsedStation{rehearsal, out}.run();
}

} // namespace sonarelle
