#pragma once

#include <string>
#include <string_view>

#include "platform/graph_transport.h"
#include "platform/media.h"
#include "platform/simulated/simulated_media.h"

namespace sonarelle {

/// A graph that keeps time and makes no sound.
class SimulatedGraph : public MediaGraph {
public:
    SimulatedGraph(SimulatedMedia& media, int number);
    ~SimulatedGraph() override;
    SimulatedGraph(const SimulatedGraph&) = delete;
    SimulatedGraph& operator=(const SimulatedGraph&) = delete;

    void RenderFile(std::string_view path) override;
    void Run() override;
    void Pause() override;
    void Stop() override;
    [[nodiscard]] MediaState GetState() const override { return transport_.state(); }
    [[nodiscard]] double get_Duration() const override { return transport_.duration(); }
    [[nodiscard]] double get_CurrentPosition() const override;
    void put_CurrentPosition(double position) override;
    [[nodiscard]] double get_StopTime() const override { return transport_.duration(); }
    void put_Volume(Millibel attenuation) override;
    [[nodiscard]] Millibel get_Volume() const override { return volume_; }
    [[nodiscard]] bool has_video() const override { return file_.video; }
    void put_Caption(std::string_view caption) override;

    [[nodiscard]] const std::string& path() const { return path_; }
    [[nodiscard]] bool is_heard() const;
    /// When it has sounded since its last command.
    [[nodiscard]] RunningSpans::Span sounding_span() const;

private:
    [[nodiscard]] bool is_empty() const { return path_.empty(); }
    [[nodiscard]] Frames now() const;
    void close_span();
    void log(MediaAction action, double value = 0, std::string_view text = {});

    SimulatedMedia& media_;
    int number_;
    std::string path_;
    SimulatedMedia::File file_;
    GraphTransport transport_;
    Millibel volume_;
};

} // namespace sonarelle
