#include "metadata/tag_block.h"

#include <algorithm>
#include <cstddef>
#include <span>
#include <vector>

#include "platform/failure.h"
#include "platform/text.h"

namespace sonarelle::tag_block {

namespace {

constexpr std::int64_t copy_step = std::int64_t{1} << 20;

void read_whole(RecordFile& file, std::int64_t position, std::span<std::byte> into) {
    if (file.read(position, into) != into.size())
        throw Failure{FailureNumber::past_end_of_file};
}

void copy_audio(RecordFile& file, std::int64_t bytes, FileReplacement& copy) {
    std::vector<std::byte> buffer(static_cast<std::size_t>(std::min(bytes, copy_step)));
    for (std::int64_t position = 0; position < bytes; position += copy_step) {
        const auto step = std::span{buffer}.first(static_cast<std::size_t>(std::min(bytes - position, copy_step)));
        read_whole(file, position, step);
        copy.write(step);
    }
}

} // namespace

std::string read(RecordFile& file) {
    const std::int64_t start = file.length() - size;
    if (start < 0)
        throw Failure{
            FailureNumber::wrong_record_number, {}, "un fichier de moins de 128 octets ne peut pas avoir de tag"};
    std::string block(static_cast<std::size_t>(size), '\0');
    read_whole(file, start, std::as_writable_bytes(std::span{block}));
    return block;
}

bool is_tag(std::string_view block) {
    return equal_ignoring_case(block.substr(0, 3), "TAG");
}

void replace(Disk& disk, std::string_view path, RecordFile& old_file, std::int64_t audio_bytes,
             std::string_view block) {
    const auto copy = disk.replace(path);
    copy_audio(old_file, audio_bytes, *copy);
    copy->write(std::as_bytes(std::span{block}));
    copy->commit();
}

} // namespace sonarelle::tag_block
