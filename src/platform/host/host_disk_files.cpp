#include <fcntl.h>

#include <cerrno>
#include <cstdio>

#include "platform/failure.h"
#include "platform/host/host_disk.h"
#include "platform/host/host_disk_look.h"
#include "platform/host/host_errors.h"
#include "platform/host/host_record_file.h"
#include "platform/host/machine_files.h"
#include "platform/host/safe_file.h"

namespace sonarelle {

namespace {

void flush_folder_of(const std::string& machine_path) {
    const std::string folder = machine_path.substr(0, machine_path.rfind('/') + 1);
    const FileHandle handle{::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)};
    if (handle.is_open())
        static_cast<void>(::fsync(handle.get()));
}

/// Writes a line at the end of a file. Where it doesn't fit whole, its beginning is taken back.
void append_line(const OpenFile& file, std::string_view bytes, const std::string& source) {
    std::size_t done = 0;
    while (done < bytes.size()) {
        const ssize_t count = ::write(file.handle.get(), bytes.data() + done, bytes.size() - done);
        if (count >= 0) {
            done += static_cast<std::size_t>(count);
        } else if (errno != EINTR) {
            const Failure failure = failure_from(errno, Access::writing, source);
            struct stat now {};
            const bool alone =
                ::fstat(file.handle.get(), &now) == 0 && now.st_size == file.facts.st_size + static_cast<off_t>(done);
            if (alone && done > 0)
                static_cast<void>(::ftruncate(file.handle.get(), file.facts.st_size) == 0);
            throw failure;
        }
    }
    if (::fdatasync(file.handle.get()) != 0)
        throw_errno(Access::writing, source);
}

bool is_same_file(const struct stat& a, const struct stat& b) {
    return a.st_dev == b.st_dev && a.st_ino == b.st_ino;
}

} // namespace

void HostDisk::FileCopy(std::string_view from, std::string_view to) {
    const Place from_place = existing(from, FailureNumber::file_not_found);
    OpenFile source = open_plain(from_place.path, O_RDONLY, Access::reading, from_place.source);
    const Place to_place = place_of(to);
    struct stat target {};
    if (::stat(to_place.path.c_str(), &target) == 0 && is_same_file(source.facts, target))
        throw Failure{FailureNumber::permission_refused, to_place.source};

    SafeFile copy{to_place.path, to_place.source};
    HostRecordFile reader{std::move(source.handle), facts_of(source.facts), from_place.source};
    std::vector<std::byte> block(std::size_t{1} << 20U);
    for (std::int64_t position = 0;;) {
        const std::size_t count = reader.read(position, block);
        copy.write(std::span{block}.first(count));
        position += static_cast<std::int64_t>(count);
        if (count < block.size())
            break;
    }
    copy.set_mode(source.facts.st_mode & 07777U);
    copy.commit();
}

std::unique_ptr<RecordFile> HostDisk::open(std::string_view path) {
    const std::string name = absolute(path);
    return look(name, [name](const NameLookup::Place& found) {
        check_found(found, name);
        return open_machine_file(found.path, name);
    });
}

std::unique_ptr<RecordFile> HostDisk::open_or_create(std::string_view path) {
    const std::string name = absolute(path);
    return look(name, [name](const NameLookup::Place& found) {
        if (found.outcome == Outcome::folder_missing)
            throw Failure{FailureNumber::path_not_found, name};
        struct stat facts {};
        if (::stat(found.path.c_str(), &facts) != 0 && errno == ENOENT) // a link may be there and lead to nothing
            static_cast<void>(open_plain(found.path, O_WRONLY | O_CREAT, Access::writing, name));
        return open_machine_file(found.path, name);
    });
}

std::unique_ptr<FileReplacement> HostDisk::replace(std::string_view path) {
    const Place place = place_of(path);
    return replace_machine_file(place.path, place.source);
}

std::unique_ptr<FileClaim> HostDisk::claim(std::string_view path) {
    const Place place = place_of(path);
    return claim_machine_file(place.path, place.source);
}

void HostDisk::append(std::string_view path, std::string_view bytes) {
    const Place place = place_of(path);
    const OpenFile file = open_plain(place.path, O_WRONLY | O_APPEND | O_CREAT, Access::writing, place.source);
    append_line(file, bytes, place.source);
    if (!place.exists)
        flush_folder_of(place.path);
}

} // namespace sonarelle
