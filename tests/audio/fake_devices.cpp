#include "fake_devices.h"

#include <chrono>

#include "platform/failure.h"

namespace sonarelle {

namespace {

constexpr std::size_t block_frames = 480;
constexpr std::chrono::milliseconds block_time{10};

class FakeDevice final : public OutputDevice {
public:
    FakeDevice(std::shared_ptr<FakeCard> card, PullFrames pull)
        : card_{std::move(card)}, pull_{std::move(pull)}, thread_{[this] { play(); }} {
        ++card_->open;
    }
    ~FakeDevice() override {
        stopping_ = true;
        thread_.join();
        --card_->open;
    }
    [[nodiscard]] bool is_there() const override { return !card_->dead; }

private:
    void play() {
        for (auto due = std::chrono::steady_clock::now(); !stopping_; due += block_time) {
            std::this_thread::sleep_until(due);
            due += std::chrono::milliseconds{card_->falls_behind.exchange(0)};
            if (card_->dead || card_->hanging)
                continue;
            card_->pull_block(pull_);
        }
    }

    std::shared_ptr<FakeCard> card_;
    PullFrames pull_;
    std::atomic<bool> stopping_{false};
    std::thread thread_;
};

} // namespace

// The count has moved by exactly this block when the card had the turn.
void FakeCard::pull_block(const PullFrames& pull) {
    std::vector<float> block(2 * block_frames);
    const Frames before = bus_.rendered();
    pull(block.data(), block_frames);
    if (bus_.rendered() != before + Frames{block_frames})
        return;
    const std::lock_guard lock{mutex_};
    heard_.resize(2 * static_cast<std::size_t>(before.count()));
    heard_.insert(heard_.end(), block.begin(), block.end());
}

std::vector<float> FakeCard::heard() const {
    const std::lock_guard lock{mutex_};
    return heard_;
}

std::vector<std::string> FakeDevices::names() {
    std::vector<std::string> names;
    for (const auto& [name, card] : cards_)
        if (!name.empty() && !card->absent)
            names.push_back(name);
    return names;
}

std::unique_ptr<OutputDevice> FakeDevices::open(const std::string& name, PullFrames pull) {
    const auto place = cards_.find(name);
    if (place != cards_.end())
        ++place->second->asked_for;
    if (place == cards_.end() || place->second->absent)
        throw Failure{failure_number::device_unavailable, name};
    ++place->second->opened;
    return std::make_unique<FakeDevice>(place->second, std::move(pull));
}

} // namespace sonarelle
