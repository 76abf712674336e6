#include "platform/audio/programme_bus.h"

#include <algorithm>
#include <cmath>

namespace sonarelle {

// The output has gone, so this thread may do the callback's part.
ProgrammeBus::~ProgrammeBus() {
    commands_.flush();
    while (const BusCommand* command = commands_.front()) {
        obey(*command);
        commands_.pop();
        commands_.flush();
    }
    while (Voice* voice = real_time_.first) {
        real_time_.first = voice->next;
        voice->drop(real_time_.position, retired_);
        retired_.push(*voice);
    }
}

void ProgrammeBus::render(float* out, std::size_t frames) noexcept {
    const auto block = static_cast<std::int64_t>(frames);
    if (block > greatest_block_.load(std::memory_order_relaxed))
        greatest_block_.store(block, std::memory_order_relaxed);
    std::span rest{out, 2 * frames};
    while (!rest.empty()) {
        obey_due_commands();
        const BusCommand* next = commands_.front();
        std::size_t count = rest.size() / 2;
        if (next != nullptr)
            count = std::min(count, static_cast<std::size_t>((next->at - real_time_.position).count()));
        mix(rest.first(2 * count));
        rest = rest.subspan(2 * count);
    }
    unlist_done_voices();
    rendered_.store(real_time_.position.count(), std::memory_order_release);
}

void ProgrammeBus::housekeep() {
    commands_.flush();
    retired_.free_all();
}

void ProgrammeBus::obey_due_commands() noexcept {
    for (const BusCommand* command = commands_.front(); command != nullptr && command->at <= real_time_.position;
         command = commands_.front()) {
        if (command->at < real_time_.position)
            late_.fetch_add(1, std::memory_order_relaxed);
        obey(*command);
        commands_.pop();
    }
}

// A late play keeps its own frame as its origin: sound and position stay together, its beginning is lost.
void ProgrammeBus::obey(const BusCommand& command) noexcept {
    Voice& voice = *command.voice;
    list(voice);
    switch (command.kind) {
    case BusCommand::Kind::play:
        voice.play(command.ticket, command.at, command.position, retired_);
        break;
    case BusCommand::Kind::halt:
        voice.halt(real_time_.position);
        break;
    case BusCommand::Kind::gain:
        voice.set_gain(command.gain);
        break;
    case BusCommand::Kind::drop:
        voice.drop(real_time_.position, retired_);
        break;
    }
}

// At the end, so that the order of the sum is that of the commands.
void ProgrammeBus::list(Voice& voice) noexcept {
    if (voice.listed)
        return;
    voice.listed = true;
    Voice** place = &real_time_.first;
    while (*place != nullptr)
        place = &(*place)->next;
    *place = &voice;
}

void ProgrammeBus::mix(std::span<float> out) noexcept {
    std::ranges::fill(out, 0.0F);
    for (Voice* voice = real_time_.first; voice != nullptr; voice = voice->next)
        voice->add_to(out, real_time_.position);
    const Level level{real_time_.limiter.apply(out)};
    taps_.take(out, level, real_time_.position);
    note_sound(out);
    real_time_.position += Frames{static_cast<std::int64_t>(out.size() / 2)};
}

// Looked for from the end: while there is sound, the first look finds it.
void ProgrammeBus::note_sound(std::span<const float> out) noexcept {
    const auto sounds = [](float sample) { return std::fabs(sample) >= silence_level; };
    const auto last = std::find_if(out.rbegin(), out.rend(), sounds);
    if (last == out.rend())
        return;
    const std::int64_t begin = real_time_.position.count();
    if (begin - silent_since_.load(std::memory_order_relaxed) >= silence_told_after.count())
        silent_until_.store(begin + (std::ranges::find_if(out, sounds) - out.begin()) / 2, std::memory_order_relaxed);
    silent_since_.store(begin + (out.rend() - last + 1) / 2, std::memory_order_relaxed);
}

ProgrammeSilence ProgrammeBus::silence() const {
    const Frames known = rendered(); // whose block has been noted by then
    return {Frames{silent_since_.load(std::memory_order_relaxed)},
            Frames{silent_until_.load(std::memory_order_relaxed)}, known};
}

void ProgrammeBus::unlist_done_voices() noexcept {
    Voice** place = &real_time_.first;
    while (Voice* voice = *place) {
        if (voice->is_done()) {
            *place = voice->next;
            retired_.push(*voice);
        } else {
            place = &voice->next;
        }
    }
}

} // namespace sonarelle
