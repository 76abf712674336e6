#include "platform/audio/voice.h"

#include <algorithm>

namespace sonarelle {

void Voice::play(StreamTicket* ticket, Frames at, Frames position, RetiredList& retired) noexcept {
    if (ticket != nullptr) {
        if (ticket_ != nullptr)
            retired.push(*ticket_);
        ticket_ = ticket;
    }
    since_ = at;
    position_ = position;
    heard_ = heard_ && sounds_;
    sounds_ = ticket_ != nullptr;
}

void Voice::halt(Frames at) noexcept {
    if (!sounds_)
        return;
    sounds_ = false;
    if (heard_)
        keep_tail(position_ + (at - since_));
}

void Voice::set_gain(float gain) noexcept {
    if (sounds_)
        gain_.go(gain);
    else
        gain_.jump(gain);
}

void Voice::drop(Frames at, RetiredList& retired) noexcept {
    halt(at);
    dropped_ = true;
    if (ticket_ != nullptr)
        retired.push(*ticket_);
    ticket_ = nullptr;
}

// Two fades within 10 ms of each other are added up.
void Voice::keep_tail(Frames position) noexcept {
    std::array<float, 2 * ramp_frames> fading{};
    const auto old = std::span{tail_}.last(2 * tail_left_);
    std::ranges::copy(old, fading.begin());
    const auto view = ticket_->stream->look(position, ramp_frames);
    RampedGain gain = gain_;
    gain.add(view.first, fading.data());
    gain.add(view.second, fading.data() + view.first.size());
    gain_.pass(ramp_frames);
    const std::size_t faded = view.frames();
    for (std::size_t frame = 0; frame < faded; ++frame) {
        const float left = 1.0F - static_cast<float>(frame + 1) / static_cast<float>(ramp_frames);
        for (std::size_t sample = 2 * frame; sample < 2 * frame + 2; ++sample) {
            const float earlier = sample < old.size() ? old[sample] : 0.0F;
            fading[sample] = earlier + (fading[sample] - earlier) * left;
        }
    }
    tail_ = fading;
    tail_left_ = ramp_frames;
}

void Voice::add_to(std::span<float> out, Frames at) noexcept {
    const std::size_t frames = out.size() / 2;
    if (tail_left_ > 0) {
        const std::size_t count = std::min(frames, tail_left_);
        const float* tail = tail_.data() + 2 * (ramp_frames - tail_left_);
        for (std::size_t sample = 0; sample < 2 * count; ++sample)
            out[sample] += tail[sample];
        tail_left_ -= count;
    }
    if (!sounds_)
        return;
    heard_ = true;
    SampleStream& stream = *ticket_->stream;
    const Frames position = position_ + (at - since_);
    const auto announced = std::max<std::int64_t>(0, (stream.end() - position).count());
    const std::size_t wanted = std::min(frames, static_cast<std::size_t>(announced));
    const bool all_there = stream.finished(); // asked first: what comes after is no more than was there then
    const auto view = stream.look(position, wanted);
    gain_.add(view.first, out.data());
    gain_.add(view.second, out.data() + view.first.size());
    gain_.pass(frames - view.frames());
    stream.pass_over(position + Frames{static_cast<std::int64_t>(view.frames())});
    if (view.frames() < wanted && !all_there)
        stream.count_starved(static_cast<std::int64_t>(wanted - view.frames()));
}

} // namespace sonarelle
