#pragma once

#include <memory>
#include <optional>
#include <string>

#include "platform/audio/prepared_files.h"
#include "platform/audio/sound_media.h"
#include "platform/graph_transport.h"
#include "platform/media.h"

namespace sonarelle {

/// A graph that is heard. What its getters answer is what was asked of it; what the bus plays is made to agree: each
/// command carries the frame on which it is heard, and the frame of the file that is heard there.
///
/// A command that comes when its frame has been rendered already lands as early as it can. A late Run moves the
/// station's now to that frame; everything else leaves now alone, and the sound is found where it would be by then.
class SoundGraph final : public MediaGraph {
public:
    explicit SoundGraph(SoundMedia& media)
        : media_{media} {}
    ~SoundGraph() override;
    SoundGraph(const SoundGraph&) = delete;
    SoundGraph& operator=(const SoundGraph&) = delete;

    void RenderFile(std::string_view path) override;
    void Run() override;
    void Pause() override;
    void Stop() override;
    [[nodiscard]] MediaState GetState() const override;
    [[nodiscard]] double get_Duration() const override;
    [[nodiscard]] double get_CurrentPosition() const override;
    void put_CurrentPosition(double position) override;
    [[nodiscard]] double get_StopTime() const override { return get_Duration(); }
    void put_Volume(Millibel attenuation) override;
    [[nodiscard]] Millibel get_Volume() const override { return volume_; }
    [[nodiscard]] bool has_video() const override { return has_video_; }
    void put_Caption(std::string_view caption) override { caption_ = caption; }

private:
    /// What the bus was last told to play.
    struct Sounding {
        std::shared_ptr<SampleStream> stream;
        Frames since;
        Frames position;
        bool sounds = false;

        /// The frame of the file that comes on bus frame `at`.
        [[nodiscard]] Frames reached(Frames at) const { return sounds ? position + (at - since) : position; }
        /// How much of the stream the bus will have used if it falls silent at `at`.
        [[nodiscard]] std::int64_t needed(Frames at) const;
    };

    [[nodiscard]] bool is_empty() const { return path_.empty(); }
    [[nodiscard]] Frames now() const;
    [[nodiscard]] Frames landing() const;
    void play(Frames at);
    void halt(Frames at);
    void make_voice(Frames at);
    [[nodiscard]] StreamTicket* make_stream(Frames position, Frames at);
    void clear();

    SoundMedia& media_;
    std::string path_;
    bool has_sound_ = false;
    bool has_video_ = false;
    std::string caption_;
    Millibel volume_;
    GraphTransport transport_;

    std::optional<PreparedFile> prepared_; // until something is played
    std::shared_ptr<SoundTroubles> troubles_;
    std::shared_ptr<Feeder> feeder_;
    Voice* voice_ = nullptr; // the bus's
    Sounding sounding_;
};

} // namespace sonarelle
