#include "platform/audio/sound_graph.h"

#include <algorithm>
#include <chrono>

#include "platform/failure.h"

namespace sonarelle {

std::int64_t SoundGraph::Sounding::needed(Frames at) const {
    return stream == nullptr ? 0 : (reached(at) - stream->start()).count() + ramp_frames;
}

SoundGraph::~SoundGraph() {
    clear();
}

void SoundGraph::RenderFile(std::string_view path) {
    clear();
    const auto begin = std::chrono::steady_clock::now();
    try {
        prepared_ = media_.opener_.open(media_.resolve_(path));
    } catch (const Failure& failure) { // known to the station by its own name
        throw Failure{failure.number, std::string{path}, failure.description};
    }
    if (media_.on_opened)
        media_.on_opened(std::chrono::steady_clock::now() - begin);
    path_ = path;
    transport_.open(prepared_->seconds);
    has_sound_ = prepared_->decoder->has_sound();
    has_video_ = prepared_->decoder->has_pictures();
}

// Gives everything back: sound to the bus, an unplayed file to those that are prepared.
void SoundGraph::clear() {
    if (voice_ != nullptr) {
        const Frames at = landing();
        media_.bus_.send({.kind = BusCommand::Kind::drop, .at = at, .voice = voice_});
        feeder_->close(sounding_.needed(at));
    } else if (prepared_ && prepared_->decoder != nullptr) {
        media_.opener_.keep(std::move(*prepared_));
    }
    prepared_.reset();
    transport_ = {};
    troubles_.reset();
    feeder_.reset();
    voice_ = nullptr;
    sounding_ = {};
    path_.clear();
    has_sound_ = has_video_ = false;
}

Frames SoundGraph::now() const {
    return media_.clock_.now();
}

Frames SoundGraph::landing() const {
    return std::max(now(), media_.landing());
}

MediaState SoundGraph::GetState() const {
    return transport_.state();
}

double SoundGraph::get_Duration() const {
    return transport_.duration();
}

double SoundGraph::get_CurrentPosition() const {
    return transport_.position(now());
}

void SoundGraph::Run() {
    if (is_empty() || transport_.state() == MediaState::running)
        return;
    media_.clock_.advance_to(landing());
    transport_.run(now());
    play(landing());
}

void SoundGraph::Pause() {
    if (is_empty())
        return;
    transport_.pause(now());
    halt(landing());
}

void SoundGraph::Stop() {
    if (is_empty())
        return;
    transport_.stop(now());
    halt(landing());
}

void SoundGraph::put_CurrentPosition(double position) {
    if (is_empty())
        return;
    const double duration = transport_.duration();
    transport_.put_position(position >= 0 ? std::min(position, duration) : 0, now());
    if (transport_.state() == MediaState::running)
        play(landing());
}

void SoundGraph::put_Volume(Millibel attenuation) {
    if (is_empty() || !has_sound_ || attenuation > Millibel{0} || attenuation < Millibel{-10000})
        throw Failure{FailureNumber::wrong_call, path_};
    if (attenuation == volume_)
        return;
    volume_ = attenuation;
    if (voice_ != nullptr)
        media_.bus_.send(
            {.kind = BusCommand::Kind::gain, .at = landing(), .voice = voice_, .gain = gain_of(attenuation)});
}

// The stream goes on where the bus left it, if that is where the transport stands; else there is a new one.
void SoundGraph::play(Frames at) {
    if (!has_sound_)
        return;
    const Frames position = transport_.frame(at);
    if (position >= transport_.end()) {
        halt(at);
        return;
    }
    make_voice(at);
    const bool goes_on = sounding_.stream != nullptr && sounding_.reached(at) == position;
    StreamTicket* ticket = goes_on ? nullptr : make_stream(position, at);
    media_.bus_.send(
        {.kind = BusCommand::Kind::play, .at = at, .voice = voice_, .ticket = ticket, .position = position});
    sounding_.since = at;
    sounding_.position = position;
    sounding_.sounds = true;
}

void SoundGraph::halt(Frames at) {
    if (!sounding_.sounds)
        return;
    media_.bus_.send({.kind = BusCommand::Kind::halt, .at = at, .voice = voice_});
    sounding_.position = sounding_.reached(at);
    sounding_.sounds = false;
}

void SoundGraph::make_voice(Frames at) {
    if (voice_ != nullptr)
        return;
    troubles_ = media_.watch(path_);
    feeder_ = std::make_shared<Feeder>(std::move(prepared_->decoder), std::move(prepared_->opening), troubles_);
    prepared_.reset();
    voice_ = new Voice; // the bus gives it back through its list of the retired
    media_.bus_.send({.kind = BusCommand::Kind::gain, .at = at, .voice = voice_, .gain = gain_of(volume_)});
}

StreamTicket* SoundGraph::make_stream(Frames position, Frames at) {
    const bool first = sounding_.stream == nullptr;
    const std::int64_t needed = sounding_.needed(at);
    sounding_.stream = std::make_shared<SampleStream>(position, transport_.end(), media_.stream_capacity(), troubles_);
    feeder_->play(sounding_.stream, needed);
    if (first)
        media_.start(feeder_);
    return new StreamTicket{sounding_.stream};
}

} // namespace sonarelle
