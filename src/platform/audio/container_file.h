#pragma once

#include "platform/audio/ffmpeg_handles.h"
#include "platform/disk.h"

namespace sonarelle {

/// FFmpeg's demuxer over one of our files. A read that fails ends the file for FFmpeg and is remembered.
class ContainerFile {
public:
    /// @throws Failure 1001 when FFmpeg doesn't know what it is.
    ContainerFile(std::unique_ptr<RecordFile> file, const std::string& path);
    ~ContainerFile();
    ContainerFile(const ContainerFile&) = delete;
    ContainerFile& operator=(const ContainerFile&) = delete;

    /// Begins anew, as if the file had just been opened: the only way back to the start that loses nothing of what some
    /// formats say there. Streams are other objects afterwards, at the same places.
    void reopen();

    [[nodiscard]] AVFormatContext& format() const { return *format_; }
    /// The bytes that all this is read from.
    [[nodiscard]] RecordFile& bytes() const { return *file_; }
    /// The chief stream of this kind; null when there is none.
    [[nodiscard]] AVStream* stream(AVMediaType kind) const;

    /// The next packet of this stream into `packet`; false at the end.
    /// @throws Failure 57 when the end is that of the disk's patience.
    [[nodiscard]] bool read(int stream, AVPacket& packet);

private:
    void open();
    void close();
    static int read_bytes(void* self, std::uint8_t* into, int size);
    static std::int64_t seek_bytes(void* self, std::int64_t offset, int whence);

    std::unique_ptr<RecordFile> file_;
    std::string path_;
    AVIOContext* bytes_ = nullptr;
    AVFormatContext* format_ = nullptr;
    std::int64_t position_ = 0;
    bool disk_failed_ = false;
};

} // namespace sonarelle
