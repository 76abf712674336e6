#pragma once

#include <functional>
#include <span>
#include <vector>

#include "platform/audio/programme_bus.h"
#include "platform/audio/sound_media.h"

namespace sonarelle {

/// Makes the programme without an output: a loop says how far. The media must decode inline.
class VirtualRenderer {
public:
    /// Takes the frames, two floats each, in order.
    using Sink = std::function<void(std::span<const float>)>;

    VirtualRenderer(ProgrammeBus& bus, SoundMedia& media, Sink sink)
        : bus_{bus},
          media_{media},
          sink_{std::move(sink)},
          block_(2 * SoundMedia::rendered_at_once) {}

    /// Renders all frames before this one. Frames that have been rendered already are not touched.
    void render_until(Frames frame) {
        while (bus_.rendered() < frame) {
            const auto left = static_cast<std::size_t>((frame - bus_.rendered()).count());
            const auto block = std::span{block_}.first(2 * std::min(left, SoundMedia::rendered_at_once));
            media_.feed();
            bus_.render(block.data(), block.size() / 2);
            if (sink_)
                sink_(block);
            media_.housekeep();
        }
    }

private:
    ProgrammeBus& bus_;
    SoundMedia& media_;
    Sink sink_;
    std::vector<float> block_;
};

} // namespace sonarelle
