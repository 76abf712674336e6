#include "desktop/reader_tail.h"

#include <algorithm>
#include <span>
#include <string_view>
#include <utility>

#include "platform/failure.h"
#include "platform/text.h"

namespace sonarelle {

namespace {

/// So many bytes tell a file from another one of the same name.
constexpr std::size_t known_bytes = 200;

std::string read_bytes(RecordFile& file, std::int64_t from, std::int64_t to) {
    std::string bytes(static_cast<std::size_t>(to - from), '\0');
    bytes.resize(file.read(from, std::as_writable_bytes(std::span{bytes})));
    return bytes;
}

std::string_view behind_first_line(std::string_view bytes) {
    return bytes.substr(bytes.find('\n') + 1);
}

std::string sentence_of(const Failure& failure) {
    return failure.number == FailureNumber::file_not_found ? "Le fichier n'existe pas, ou pas encore."
                                                           : "Le fichier ne peut pas être lu : " + failure.description;
}

} // namespace

FileTail::FileTail(Disk& disk, std::string path, std::int64_t most)
    : disk_{disk},
      path_{std::move(path)},
      most_{most} {}

TailNews FileTail::read() {
    try {
        return news();
    } catch (const Failure& failure) {
        seen_ = {.size = -1};
        position_ = -1;
        return {.text = {}, .begins_anew = true, .trouble = sentence_of(failure)};
    }
}

TailNews FileTail::news() {
    const FileFacts facts = disk_.facts(path_);
    TailNews news;
    if (facts == seen_)
        return news;
    const auto file = disk_.open(path_);
    if (!continues(*file)) {
        news.begins_anew = true;
        news.is_cut = file->length() > most_;
        position_ = std::max<std::int64_t>(0, file->length() - most_);
        last_.clear();
    }
    const std::string bytes = read_bytes(*file, position_, file->length());
    position_ += static_cast<std::int64_t>(bytes.size());
    last_ = (last_ + bytes).substr(std::max(last_.size() + bytes.size(), known_bytes) - known_bytes);
    news.text = from_windows_1252(news.is_cut ? behind_first_line(bytes) : std::string_view{bytes});
    std::erase(news.text, '\r');
    seen_ = facts;
    return news;
}

// A file that was emptied may have grown beyond its old length since.
bool FileTail::continues(RecordFile& file) {
    const std::int64_t length = file.length();
    const auto known = static_cast<std::int64_t>(last_.size());
    return position_ >= 0 && length >= position_ && length - position_ <= most_ &&
           read_bytes(file, position_ - known, position_) == last_;
}

} // namespace sonarelle
