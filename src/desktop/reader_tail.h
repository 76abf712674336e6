#pragma once

#include <cstdint>
#include <string>

#include "platform/disk.h"

namespace sonarelle {

/// What a growing file has to say since it was last asked.
struct TailNews {
    std::string text;         ///< UTF-8, in lines that end in a line feed.
    bool begins_anew = false; ///< What was read before is gone: `text` is all that there is to show.
    bool is_cut = false;      ///< Of a file that begins anew: its beginning is left out.
    std::string trouble{};    ///< French; the file can't be read, and what was read before is gone.
};

/// The end of a text file to which lines are added: each read gives what is new. The file may be emptied, replaced or
/// missing at any time; when it is there again it begins anew. Calls block as the disk does.
class FileTail {
public:
    /// `path` is absolute. Of a larger file no more than its last `most` bytes are read. The disk outlives the tail.
    FileTail(Disk& disk, std::string path, std::int64_t most = 1'000'000);

    [[nodiscard]] TailNews read();

private:
    [[nodiscard]] TailNews news();
    [[nodiscard]] bool continues(RecordFile& file);

    Disk& disk_;
    const std::string path_;
    const std::int64_t most_;
    FileFacts seen_{.size = -1};
    std::int64_t position_ = -1; ///< Behind what was read; before the first read nothing fits.
    std::string last_;           ///< The bytes before it.
};

} // namespace sonarelle
