#pragma once

#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "platform/audio/sound_files.h"
#include "platform/media.h"
#include "platform/scheduler.h"
#include "platform/simulated/scripted_dialogs.h"
#include "platform/simulated/scripted_random.h"
#include "platform/simulated/simulated_disk.h"
#include "platform/simulated/simulated_settings.h"
#include "platform/simulated/simulated_shell.h"
#include "station/station.h"

namespace sonarelle {

/// Whole tracks of a tone, whose bytes are made while they are read: minutes of sound cost neither a disk nor a
/// decoder. 48 kHz, stereo, 16 bit, on one of the channels only, so that it can be told which track sounds. The tone is
/// a square wave: no frame of it is silent. All tracks are added before the first one is opened.
class ToneTracks final : public SoundFiles {
public:
    enum class Side { left, right };
    static constexpr float level = 0.25F;

    void add(const std::string& path, int seconds, Side side) { tracks_[path] = {seconds, side}; }

    [[nodiscard]] FileFacts facts(const std::string& path) override;
    [[nodiscard]] std::unique_ptr<RecordFile> open(const std::string& path) override;

    /// The tone at a frame of the track, on its side.
    [[nodiscard]] static float tone(std::int64_t frame);

private:
    struct Track {
        int seconds = 0;
        Side side = Side::left;
    };
    [[nodiscard]] const Track& track(const std::string& path) const;

    std::map<std::string, Track> tracks_;
};

/// A whole station with sound: its list lies on a simulated disk, its tracks are tones, odd rows on the left, even ones
/// on the right. Clock and media are those of a rehearsal or of a live run.
class AirFixture {
public:
    AirFixture(Clock& clock, Scheduler& scheduler, Media& media, std::shared_ptr<ToneTracks> tracks);

    [[nodiscard]] static std::string track(int number) {
        return "C:\\Musique\\titre " + std::to_string(number) + ".wav";
    }

    /// Opens a list of so many tracks of this length that are played to their end, and chooses the first row.
    void open_tracks(int count, int seconds, double start = 0.0);
    /// Starts the list in one of the reading modes, 1 to 4.
    void start_in_option(int option);

    /// The frames on which tracks started, the first one included.
    [[nodiscard]] std::vector<Frames> starts() const;

    SimulatedDisk disk;
    SimulatedSettings settings;
    ScriptedDialogs dialogs;
    SimulatedShell shell;
    ScriptedRandom random{1};
    std::vector<std::pair<Frames, OnAirEvent>> events;

private:
    std::shared_ptr<ToneTracks> tracks_;

public:
    Station station;
};

} // namespace sonarelle
