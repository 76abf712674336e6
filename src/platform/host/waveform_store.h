#pragma once

#include <cstddef>
#include <optional>
#include <string>

#include "platform/disk.h"
#include "platform/waveform.h"

namespace sonarelle {

/// The waveforms of files that were read before, in a folder of the user's cache: one small file each, which holds only
/// as long as path, size and time are the same. Whatever is wrong with the folder or with a file in it means no more
/// than that a waveform isn't found. From one thread.
class WaveformStore {
public:
    /// No more than `most` files are kept; those go first that weren't asked for the longest.
    explicit WaveformStore(std::string folder, std::size_t most = 4000);

    /// `path` is one of this machine.
    [[nodiscard]] std::optional<Waveform> find(const std::string& path, const FileFacts& facts);
    void keep(const std::string& path, const FileFacts& facts, const Waveform& waveform);

private:
    [[nodiscard]] std::string file_of(const std::string& path) const;
    void make_room();

    std::string folder_;
    std::size_t most_;
    std::size_t kept_since_room_ = 0; // files written since the folder was last looked over
    bool was_looked_over_ = false;
};

} // namespace sonarelle
