#include "platform/audio/container_file.h"

#include "platform/failure.h"

namespace sonarelle {

namespace {

constexpr int buffer_size = 32 * 1024;
// Looking at what streams there are ends after so much of the file.
constexpr std::int64_t probed_bytes = 2 * 1024 * 1024;
constexpr std::int64_t probed_time = 2 * AV_TIME_BASE;

} // namespace

ContainerFile::ContainerFile(std::unique_ptr<RecordFile> file, const std::string& path)
    : file_{std::move(file)},
      path_{path} {
    av_log_set_level(AV_LOG_QUIET); // what matters is thrown or counted
    open();
}

ContainerFile::~ContainerFile() {
    close();
}

void ContainerFile::reopen() {
    close();
    open();
}

void ContainerFile::open() {
    position_ = 0;
    auto* buffer = static_cast<std::uint8_t*>(allocated(av_malloc(buffer_size)));
    bytes_ = avio_alloc_context(buffer, buffer_size, 0, this, &read_bytes, nullptr, &seek_bytes);
    format_ = avformat_alloc_context();
    if (bytes_ == nullptr || format_ == nullptr)
        throw std::bad_alloc{};
    format_->pb = bytes_;
    format_->flags |= AVFMT_FLAG_CUSTOM_IO;
    format_->probesize = probed_bytes;
    format_->max_analyze_duration = probed_time;
    format_->max_streams = 100;
    // Only what is in the file counts: lists and scripts that would open others are not for the air.
    format_->protocol_whitelist = av_strdup("none");
    // On failure the format is freed, the rest is ours.
    const bool known = avformat_open_input(&format_, nullptr, nullptr, nullptr) >= 0 &&
                       avformat_find_stream_info(format_, nullptr) >= 0;
    if (!known) {
        close();
        throw Failure{disk_failed_ ? FailureNumber::device_fault : FailureNumber::unplayable_file, path_};
    }
}

void ContainerFile::close() {
    avformat_close_input(&format_);
    if (bytes_ != nullptr)
        av_freep(&bytes_->buffer);
    avio_context_free(&bytes_);
}

AVStream* ContainerFile::stream(AVMediaType kind) const {
    const int index = av_find_best_stream(format_, kind, -1, -1, nullptr, 0);
    return index < 0 ? nullptr : format_->streams[index];
}

bool ContainerFile::read(int stream, AVPacket& packet) {
    while (av_read_frame(format_, &packet) >= 0) {
        if (packet.stream_index == stream)
            return true;
        av_packet_unref(&packet);
    }
    if (disk_failed_)
        throw Failure{FailureNumber::device_fault, path_};
    return false;
}

int ContainerFile::read_bytes(void* self, std::uint8_t* into, int size) {
    auto& file = *static_cast<ContainerFile*>(self);
    try {
        const std::size_t got = file.file_->read(
            file.position_, std::span{reinterpret_cast<std::byte*>(into), static_cast<std::size_t>(size)});
        file.position_ += static_cast<std::int64_t>(got);
        return got == 0 ? AVERROR_EOF : static_cast<int>(got);
    } catch (const std::exception&) {
        file.disk_failed_ = true;
        return AVERROR(EIO);
    }
}

std::int64_t ContainerFile::seek_bytes(void* self, std::int64_t offset, int whence) {
    auto& file = *static_cast<ContainerFile*>(self);
    const std::int64_t length = file.file_->length();
    if ((whence & AVSEEK_SIZE) != 0)
        return length;
    const int from = whence & ~AVSEEK_FORCE;
    const std::int64_t base = from == SEEK_CUR ? file.position_ : from == SEEK_END ? length : 0;
    if (base + offset < 0)
        return AVERROR(EINVAL);
    file.position_ = base + offset;
    return file.position_;
}

} // namespace sonarelle
