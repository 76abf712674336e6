#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <span>

#include "live/pulse_server.h"
#include "screen/desk_fixture.h"

namespace sonarelle::test {

namespace {

constexpr int hundred = 100;
constexpr std::ptrdiff_t frames_of_a_millisecond = 48;

/// The longest run of silent frames between the first and the last that sound.
std::ptrdiff_t longest_gap(std::span<const float> samples) {
    std::ptrdiff_t last = -1;
    std::ptrdiff_t longest = 0;
    for (std::size_t frame = 0; 2 * frame + 1 < samples.size(); ++frame) {
        if (std::abs(samples[2 * frame]) < 1e-5F)
            continue;
        const auto here = static_cast<std::ptrdiff_t>(frame);
        if (last >= 0)
            longest = std::max(longest, here - last - 1);
        last = here;
    }
    return longest;
}

} // namespace

class SoundBehindWindows : public DeskFixture {
protected:
    SoundBehindWindows() { settings_of_a_second_start(); }
};

TEST_F(SoundBehindWindows, StaysWholeWhileWindowsMoveAndMenusOpenInAnOverlap) {
    PulseServer server{folder().path("pulse")};
    server.start();
    const std::string list = list_of(2, 60);
    const std::string recording = folder().path("air.raw");
    operate(list, [&] {
        eventually("the first track", [this] { return station().main_window.elapsed.caption.get() == "2"; });
        server.record(recording);
        operators_event([this] { station().deck_ring.deck(1).controls.zap.click(); });
        for (int times = 0; times < hundred; ++times) {
            const std::string place = std::to_string(times) + " " + std::to_string(times);
            screen().hand("search --onlyvisible --name . windowmove " + place + " 2>/dev/null || true");
            operators_event([this] { station().main_window.popup(station().main_window.affiche); });
            key("Escape");
        }
        server.stop_recording();
        EXPECT_EQ(seen<int>([this] { return station().chain.lecteur_en_cours.value(); }), 2);
    });
    const std::vector<float> heard = recorded_floats(recording);
    ASSERT_GT(std::ranges::count_if(heard, [](float sample) { return std::abs(sample) > 0.01F; }), 48000);
    EXPECT_LE(longest_gap(heard), frames_of_a_millisecond);
}

} // namespace sonarelle::test
