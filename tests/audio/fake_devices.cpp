#include "fake_devices.h"

#include "platform/failure.h"

namespace sonarelle {

namespace {

class FakeDevice final : public OutputDevice {
public:
    FakeDevice(std::shared_ptr<FakeCard> card, PullFrames pull)
        : card_{std::move(card)},
          pull_{std::move(pull)},
          thread_{[this] { play(); }} {
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
        for (auto due = std::chrono::steady_clock::now(); !stopping_; due += card_->burst_time()) {
            std::this_thread::sleep_until(due);
            due += std::chrono::milliseconds{card_->falls_behind.exchange(0)};
            if (card_->dead || card_->hanging)
                continue;
            for (int block = 0; block < card_->blocks_at_once; ++block)
                card_->pull_block(pull_);
        }
    }

    std::shared_ptr<FakeCard> card_;
    PullFrames pull_;
    std::atomic<bool> stopping_{false};
    std::thread thread_;
};

} // namespace

std::chrono::nanoseconds FakeCard::burst_time() const {
    const std::int64_t frames = blocks_at_once * static_cast<std::int64_t>(block_frames.load());
    return std::chrono::nanoseconds{frames * 62500 / 3}; // 1e9 / 48000
}

// The count has moved by exactly this block when the card had the turn.
void FakeCard::pull_block(const PullFrames& pull) {
    const std::size_t frames = block_frames;
    std::vector<float> block(2 * frames);
    const Frames before = bus_.rendered();
    pull(block.data(), frames);
    if (bus_.rendered() != before + Frames{static_cast<std::int64_t>(frames)})
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
        throw Failure{FailureNumber::device_unavailable, name};
    ++place->second->opened;
    return std::make_unique<FakeDevice>(place->second, std::move(pull));
}

} // namespace sonarelle
