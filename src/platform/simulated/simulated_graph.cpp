#include "platform/simulated/simulated_graph.h"

#include "platform/clock.h"
#include "platform/failure.h"

namespace sonarelle {

SimulatedGraph::SimulatedGraph(SimulatedMedia& media, int number)
    : media_{media},
      number_{number} {
    media_.graphs_.push_back(this);
    log(MediaAction::created);
}

SimulatedGraph::~SimulatedGraph() {
    close_span();
    std::erase(media_.graphs_, this);
    log(MediaAction::dropped);
}

void SimulatedGraph::RenderFile(std::string_view path) {
    close_span();
    file_ = media_.open(path);
    path_ = path;
    transport_.open(file_.seconds);
    log(MediaAction::rendered);
}

void SimulatedGraph::Run() {
    if (is_empty())
        return;
    close_span();
    transport_.run(now());
    log(MediaAction::run);
}

void SimulatedGraph::Pause() {
    if (is_empty())
        return;
    close_span();
    transport_.pause(now());
    log(MediaAction::paused);
}

void SimulatedGraph::Stop() {
    if (is_empty())
        return;
    close_span();
    transport_.stop(now());
    log(MediaAction::stopped);
}

double SimulatedGraph::get_CurrentPosition() const {
    return transport_.position(now());
}

void SimulatedGraph::put_CurrentPosition(double position) {
    close_span();
    transport_.put_position(position, now());
    log(MediaAction::position, position);
}

void SimulatedGraph::put_Volume(Millibel attenuation) {
    const bool in_range = attenuation <= Millibel{0} && attenuation >= Millibel{-10000};
    if (is_empty() || file_.silent || !in_range)
        throw Failure{FailureNumber::wrong_call, path_};
    volume_ = attenuation;
    log(MediaAction::volume, attenuation.count());
}

void SimulatedGraph::put_Caption(std::string_view caption) {
    log(MediaAction::caption, 0, caption);
}

bool SimulatedGraph::is_heard() const {
    return transport_.state() == MediaState::running && transport_.frame(now()) < transport_.end();
}

RunningSpans::Span SimulatedGraph::sounding_span() const {
    const RunningSpans::Span span = transport_.running_span(now());
    return file_.silent || file_.quiet ? RunningSpans::Span{span.from, span.from} : span;
}

void SimulatedGraph::close_span() {
    media_.spans_.add(sounding_span());
}

Frames SimulatedGraph::now() const {
    return media_.clock_.now();
}

void SimulatedGraph::log(MediaAction action, double value, std::string_view text) {
    media_.write({{}, number_, action, path_, value, std::string{text}});
}

} // namespace sonarelle
