#include "platform/host/waveform_store.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <utility>
#include <vector>

#include "platform/host/name_hash.h"

namespace sonarelle {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view ending = ".onde";

/// The beginning of a file; path and peaks follow it. It never leaves the machine, whose order of bytes it has.
struct Head {
    std::array<char, 8> kind{'o', 'n', 'd', 'e', ' ', '1', '\n', '\0'};
    std::int64_t size = 0;
    std::int64_t modified = 0;
    double column_seconds = 0;
    std::uint32_t path_bytes = 0;
    std::uint32_t columns = 0;
    std::uint64_t checksum = 0; ///< Of all else: a file that a power cut has left half is none.
};
static_assert(sizeof(Head) == 48);

std::string bytes_of(const Head& head) {
    std::string bytes(sizeof head, '\0');
    std::memcpy(bytes.data(), &head, sizeof head);
    return bytes;
}

std::uint64_t checksum_of(Head head, std::string_view rest) {
    head.checksum = 0;
    return hash_of(bytes_of(head).append(rest));
}

std::string bytes_of_file(const std::string& name) {
    std::ifstream file{name, std::ios::binary};
    return {std::istreambuf_iterator<char>{file}, {}};
}

std::optional<Waveform> parsed(const std::string& bytes, const std::string& path, const FileFacts& facts) {
    Head head;
    const Head expected;
    if (bytes.size() < sizeof head)
        return std::nullopt;
    std::memcpy(&head, bytes.data(), sizeof head);
    const std::string_view rest = std::string_view{bytes}.substr(sizeof head);
    const bool holds = head.kind == expected.kind && head.size == facts.size && head.modified == facts.modified &&
                       head.path_bytes == path.size() && rest.size() == path.size() + head.columns &&
                       rest.starts_with(path) && head.checksum == checksum_of(head, rest);
    if (!holds)
        return std::nullopt;
    const std::string_view peaks = rest.substr(path.size());
    return Waveform{head.column_seconds, {peaks.begin(), peaks.end()}};
}

std::string bytes_of(const std::string& path, const FileFacts& facts, const Waveform& waveform) {
    std::string rest = path;
    rest.append(waveform.peaks.begin(), waveform.peaks.end());
    Head head;
    head.size = facts.size;
    head.modified = facts.modified;
    head.column_seconds = waveform.column_seconds;
    head.path_bytes = static_cast<std::uint32_t>(path.size());
    head.columns = static_cast<std::uint32_t>(waveform.peaks.size());
    head.checksum = checksum_of(head, rest);
    return bytes_of(head) + rest;
}

/// What is asked for day after day stays. The deck on the air asks again and again.
void mark_as_used(const fs::path& file) {
    std::error_code error;
    const auto now = fs::file_time_type::clock::now();
    if (now - fs::last_write_time(file, error) > std::chrono::hours{1})
        fs::last_write_time(file, now, error);
}

} // namespace

WaveformStore::WaveformStore(std::string folder, std::size_t most)
    : folder_{std::move(folder)},
      most_{most} {}

std::string WaveformStore::file_of(const std::string& path) const {
    return folder_ + "/" + in_hexadecimal(hash_of(path)) + std::string{ending};
}

std::optional<Waveform> WaveformStore::find(const std::string& path, const FileFacts& facts) {
    const std::string name = file_of(path);
    std::optional<Waveform> waveform = parsed(bytes_of_file(name), path, facts);
    if (waveform)
        mark_as_used(name);
    return waveform;
}

void WaveformStore::keep(const std::string& path, const FileFacts& facts, const Waveform& waveform) {
    std::error_code error;
    fs::create_directories(folder_, error);
    const std::string name = file_of(path);
    const std::string beside = name + ".nouveau";
    {
        std::ofstream file{beside, std::ios::binary | std::ios::trunc};
        file << bytes_of(path, facts, waveform);
        if (!file.flush()) {
            file.close();
            fs::remove(beside, error);
            return;
        }
    }
    fs::rename(beside, name, error);
    if (!std::exchange(was_looked_over_, true) || ++kept_since_room_ >= most_ / 8)
        make_room();
}

void WaveformStore::make_room() {
    kept_since_room_ = 0;
    std::error_code error;
    std::vector<std::pair<fs::file_time_type, fs::path>> files;
    for (auto entry = fs::directory_iterator{folder_, error}; !error && entry != fs::directory_iterator{};
         entry.increment(error))
        if (entry->path().extension() == ending) {
            std::error_code gone;
            files.emplace_back(entry->last_write_time(gone), entry->path());
        }
    // Room for as many as come until the next look.
    const std::size_t stays = most_ - most_ / 8;
    if (files.size() <= stays)
        return;
    std::ranges::sort(files);
    for (std::size_t oldest = 0; oldest < files.size() - stays; ++oldest)
        fs::remove(files[oldest].second, error);
}

} // namespace sonarelle
