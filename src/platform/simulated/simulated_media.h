#pragma once

#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/media.h"
#include "platform/units.h"

namespace sonarelle {

class Clock;
class Disk;
class SimulatedGraph;

enum class MediaAction { created, rendered, run, paused, stopped, position, volume, caption, dropped };

/// A command to a graph, and when it came.
struct MediaCommand {
    Frames at;
    int graph = 0; ///< Counted from 1 in the order of creation.
    MediaAction action = MediaAction::created;
    std::string path; ///< The file that the graph holds; empty before it has one.
    double value = 0; ///< Seconds of a position, hundredths of a decibel of a volume.
    std::string text; ///< The caption.
};

/// Graphs without sound, on the station's clock. A file plays when the disk has it and its length is set here.
/// Graphs must not outlive it.
class SimulatedMedia : public Media {
public:
    SimulatedMedia(Clock& clock, Disk& disk)
        : clock_{clock},
          disk_{disk} {}

    [[nodiscard]] std::shared_ptr<MediaGraph> create_graph() override;
    [[nodiscard]] ProgrammeSilence silence() const override;

    void set_length(std::string_view path, double seconds) { facts_of(path).seconds = seconds; }
    /// The file has pictures.
    void set_video(std::string_view path) { facts_of(path).video = true; }
    /// The file has no sound: its volume can't be set.
    void set_silent(std::string_view path) { facts_of(path).silent = true; }
    /// The file sounds below -60 dBFS.
    void set_quiet(std::string_view path) { facts_of(path).quiet = true; }
    void set_unplayable(std::string_view path) { facts_of(path).seconds = -1; }

    /// All commands, in order.
    [[nodiscard]] const std::vector<MediaCommand>& log() const { return log_; }
    void clear_log() { log_.clear(); }
    /// The files that are heard now: their graphs run and haven't reached the end. In the order of the graphs'
    /// creation.
    [[nodiscard]] std::vector<std::string> on_air() const;
    /// The graphs that exist.
    [[nodiscard]] std::size_t graphs() const { return graphs_.size(); }

private:
    friend class SimulatedGraph;

    struct File {
        double seconds = -1; ///< Below 0: can't be played.
        bool video = false;
        bool silent = false;
        bool quiet = false;
    };

    File& facts_of(std::string_view path);
    /// @throws Failure 53 or 1001.
    const File& open(std::string_view path);
    void write(MediaCommand command);

    Clock& clock_;
    Disk& disk_;
    std::map<std::string, File> files_; // absolute path in lower case
    std::vector<MediaCommand> log_;
    std::vector<const SimulatedGraph*> graphs_;
    RunningSpans spans_; // of commands that are over
    int created_ = 0;
};

} // namespace sonarelle
