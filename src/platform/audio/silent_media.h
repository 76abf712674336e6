#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/audio/file_opener.h"
#include "platform/clock.h"
#include "platform/media.h"

namespace sonarelle {

class SilentGraph;

/// Graphs that take the length of their files and make no sound: for rehearsals of which only the seconds are wanted.
/// Outlives its graphs. From the window thread.
class SilentMedia final : public Media {
public:
    /// From the station's form of a path to this machine's; throws Failure when there is none.
    using Resolve = std::function<std::string(std::string_view)>;

    SilentMedia(Clock& clock, std::shared_ptr<SoundFiles> files, Resolve resolve)
        : clock_{clock},
          opener_{std::move(files), DiskPatience{}},
          resolve_{std::move(resolve)} {}

    [[nodiscard]] std::shared_ptr<MediaGraph> create_graph() override;
    [[nodiscard]] ProgrammeSilence silence() const override;
    [[nodiscard]] std::unique_ptr<LengthsAhead> measure_ahead() override;

private:
    friend class SilentGraph;

    Clock& clock_;
    FileOpener opener_;
    Resolve resolve_;
    std::vector<const SilentGraph*> graphs_;
    RunningSpans spans_; // of commands that are over
};

} // namespace sonarelle
