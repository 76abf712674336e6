#include "platform/audio/silent_media.h"

#include "platform/failure.h"
#include "platform/graph_transport.h"

namespace sonarelle {

class SilentGraph final : public MediaGraph {
public:
    explicit SilentGraph(SilentMedia& media)
        : media_{media} {
        media_.graphs_.push_back(this);
    }
    ~SilentGraph() override {
        close_span();
        std::erase(media_.graphs_, this);
    }
    SilentGraph(const SilentGraph&) = delete;
    SilentGraph& operator=(const SilentGraph&) = delete;

    void RenderFile(std::string_view path) override {
        close_span();
        loaded_ = false;
        try {
            PreparedFile file = media_.opener_.open(media_.resolve_(path));
            has_sound_ = file.decoder->has_sound();
            has_video_ = file.decoder->has_pictures();
            transport_.open(file.seconds);
            media_.opener_.keep(std::move(file));
        } catch (const Failure& failure) {
            throw Failure{failure.number, std::string{path}, failure.description};
        }
        loaded_ = true;
    }

    void Run() override {
        if (loaded_ && GetState() != MediaState::running)
            transport_.run(now());
    }
    void Pause() override {
        close_span();
        transport_.pause(now());
    }
    void Stop() override {
        close_span();
        transport_.stop(now());
    }
    [[nodiscard]] MediaState GetState() const override { return transport_.state(); }
    [[nodiscard]] double get_Duration() const override { return transport_.duration(); }
    [[nodiscard]] double get_CurrentPosition() const override { return transport_.position(now()); }
    void put_CurrentPosition(double position) override {
        close_span();
        transport_.put_position(position, now());
    }
    [[nodiscard]] double get_StopTime() const override { return get_Duration(); }
    void put_Volume(Millibel attenuation) override {
        if (!loaded_ || !has_sound_)
            throw Failure{FailureNumber::wrong_call};
        volume_ = attenuation;
    }
    [[nodiscard]] Millibel get_Volume() const override { return volume_; }
    [[nodiscard]] bool has_video() const override { return has_video_; }
    void put_Caption(std::string_view) override {}
    [[nodiscard]] RunningSpans::Span running_span() const { return transport_.running_span(now()); }

private:
    void close_span() { media_.spans_.add(running_span()); }
    [[nodiscard]] Frames now() const { return media_.clock_.now(); }

    SilentMedia& media_;
    GraphTransport transport_;
    Millibel volume_;
    bool loaded_ = false;
    bool has_sound_ = false;
    bool has_video_ = false;
};

std::shared_ptr<MediaGraph> SilentMedia::create_graph() {
    return std::make_shared<SilentGraph>(*this);
}

ProgrammeSilence SilentMedia::silence() const {
    RunningSpans spans = spans_;
    for (const SilentGraph* graph : graphs_)
        spans.add(graph->running_span());
    return spans.at(clock_.now());
}

std::unique_ptr<LengthsAhead> SilentMedia::measure_ahead() {
    return opener_.measure_ahead(resolve_);
}

} // namespace sonarelle
