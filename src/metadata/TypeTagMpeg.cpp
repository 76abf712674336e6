#include "metadata/TypeTagMpeg.h"

#include <limits>

#include "metadata/mpeg_frame_reader.h"
#include "metadata/read_window.h"

namespace sonarelle {

TypeTagMpeg TypeTagMpeg::LireEntete(std::string_view fichier, bool strict) {
    clear();
    const auto file = disk_->open(fichier);
    // `Taille` can't hold a longer one, so none of its frames could be taken.
    if (file->length() <= std::numeric_limits<std::int32_t>::max())
        search(*file, strict);
    return *this;
}

void TypeTagMpeg::search(RecordFile& file, bool strict) {
    const auto size = static_cast<std::int32_t>(file.length());
    ReadWindow window{file};
    std::int64_t from = 0;
    while (const auto sync = window.find(std::byte{0xFF}, from)) {
        const auto frame = window.at(*sync, MpegFrameReader::extent);
        if (frame.size() < MpegFrameReader::header_size)
            return;
        if (MpegFrameReader{*this, frame, static_cast<std::int32_t>(*sync), size}.read(strict))
            return;
        clear();
        from = *sync + 1;
    }
}

} // namespace sonarelle
