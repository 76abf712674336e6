#include <fcntl.h>

#include <cerrno>
#include <cstdio>

#include "platform/failure.h"
#include "platform/host/host_disk.h"
#include "platform/host/host_errors.h"
#include "platform/host/host_record_file.h"
#include "platform/host/safe_file.h"

namespace sonarelle {

namespace {

class HostReplacement : public FileReplacement {
public:
    HostReplacement(std::string machine_path, std::string source) : file_{std::move(machine_path), std::move(source)} {}

    void write(std::span<const std::byte> bytes) override { file_.write(bytes); }
    void commit() override { file_.commit(); }

private:
    SafeFile file_;
};

struct OpenFile {
    FileHandle handle;
    struct stat facts {};
};

/// Opens a plain file; a pipe or a device would hold the station up.
OpenFile open_plain(const std::string& machine_path, int flags, Access access, const std::string& source) {
    OpenFile file{FileHandle{::open(machine_path.c_str(), flags | O_CLOEXEC | O_NOCTTY | O_NONBLOCK, 0666)}, {}};
    if (!file.handle.is_open() || ::fstat(file.handle.get(), &file.facts) != 0)
        throw_errno(access, source);
    if (!S_ISREG(file.facts.st_mode))
        throw Failure{failure_number::path_access, source};
    return file;
}

std::unique_ptr<RecordFile> opened(const std::string& machine_path, const std::string& source) {
    OpenFile file = open_plain(machine_path, O_RDONLY, Access::reading, source);
    return std::make_unique<HostRecordFile>(std::move(file.handle), file.facts.st_size, source);
}

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
            const int number = failure_of_errno(errno, Access::writing);
            struct stat now {};
            const bool alone =
                ::fstat(file.handle.get(), &now) == 0 && now.st_size == file.facts.st_size + static_cast<off_t>(done);
            if (alone && done > 0)
                static_cast<void>(::ftruncate(file.handle.get(), file.facts.st_size) == 0);
            throw Failure{number, source};
        }
    }
    if (::fdatasync(file.handle.get()) != 0)
        throw_errno(Access::writing, source);
}

bool is_same_file(const struct stat& a, const struct stat& b) {
    return a.st_dev == b.st_dev && a.st_ino == b.st_ino;
}

/// Renames without ever taking the place of another file, on the disks that can promise it.
int rename_to_new(const std::string& from, const std::string& to) {
    const int result = ::renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE);
    return result != 0 && errno == EINVAL ? ::rename(from.c_str(), to.c_str()) : result;
}

std::string with_last_name(const std::string& machine_path, const std::string& name) {
    return machine_path.substr(0, machine_path.rfind('/') + 1) + name;
}

/// A place without a file name, the root of a drive, can't be removed, renamed or written over.
void check_is_no_root(const StationPath& path) {
    if (path.names.empty())
        throw Failure{failure_number::path_access, path.text()};
}

} // namespace

FileFacts HostDisk::facts(std::string_view path) {
    const StationPath wanted = parsed(path);
    const Place place = existing(wanted, failure_number::file_not_found);
    struct stat facts {};
    if (::stat(place.path.c_str(), &facts) != 0)
        throw_errno(Access::reading, wanted.text());
    const bool is_folder = S_ISDIR(facts.st_mode);
    return {is_folder ? 0 : facts.st_size, std::int64_t{facts.st_mtim.tv_sec} * 1'000'000'000 + facts.st_mtim.tv_nsec,
            is_folder};
}

void HostDisk::Kill(std::string_view path) {
    const StationPath wanted = parsed(path);
    check_is_no_root(wanted);
    const Place place = existing(wanted, failure_number::file_not_found);
    // A write-protected file stays, though its folder would let it go; a link goes by itself.
    struct stat facts {};
    if (::lstat(place.path.c_str(), &facts) == 0 && !S_ISLNK(facts.st_mode) &&
        ::faccessat(AT_FDCWD, place.path.c_str(), W_OK, AT_EACCESS) != 0)
        throw_errno(Access::writing, wanted.text());
    if (::unlink(place.path.c_str()) != 0)
        throw_errno(Access::writing, wanted.text());
}

void HostDisk::Name(std::string_view old_path, std::string_view new_path) {
    const StationPath from = parsed(old_path);
    const StationPath to = parsed(new_path);
    check_is_no_root(from);
    check_is_no_root(to);
    const Place source = existing(from, failure_number::file_not_found);
    const Place target = creatable(to);
    const bool only_case_changes = target.path == source.path;
    if (target.outcome == NameLookup::Outcome::present && !only_case_changes)
        throw Failure{failure_number::file_exists, to.text()};
    const std::string new_name = with_last_name(target.path, to.names.back());
    if ((only_case_changes ? ::rename(source.path.c_str(), new_name.c_str()) : rename_to_new(source.path, new_name)) !=
        0)
        throw_errno(Access::writing, errno == EEXIST ? to.text() : from.text());
}

void HostDisk::FileCopy(std::string_view from, std::string_view to) {
    const StationPath from_path = parsed(from);
    const StationPath to_path = parsed(to);
    const Place from_place = existing(from_path, failure_number::file_not_found);
    const Place to_place = creatable(to_path);
    OpenFile source = open_plain(from_place.path, O_RDONLY, Access::reading, from_path.text());
    struct stat target {};
    if (::stat(to_place.path.c_str(), &target) == 0 && is_same_file(source.facts, target))
        throw Failure{failure_number::permission_refused, to_path.text()};

    SafeFile copy{to_place.path, to_path.text()};
    HostRecordFile reader{std::move(source.handle), source.facts.st_size, from_path.text()};
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

void HostDisk::MkDir(std::string_view folder) {
    const StationPath path = parsed(folder);
    const Place place = creatable(path);
    if (place.outcome == NameLookup::Outcome::present)
        throw Failure{failure_number::path_access, path.text()};
    if (::mkdir(place.path.c_str(), 0777) != 0)
        throw_errno(Access::writing, path.text());
}

void HostDisk::RmDir(std::string_view folder) {
    const StationPath path = parsed(folder);
    check_is_no_root(path);
    const Place place = existing(path, failure_number::path_not_found);
    if (::rmdir(place.path.c_str()) != 0)
        throw_errno(Access::writing, path.text());
}

std::unique_ptr<RecordFile> HostDisk::open(std::string_view path) {
    const StationPath wanted = parsed(path);
    return opened(existing(wanted, failure_number::file_not_found).path, wanted.text());
}

std::unique_ptr<RecordFile> HostDisk::open_or_create(std::string_view path) {
    const StationPath wanted = parsed(path);
    const Place place = creatable(wanted);
    if (place.outcome == NameLookup::Outcome::missing)
        static_cast<void>(open_plain(place.path, O_WRONLY | O_CREAT, Access::writing, wanted.text()));
    return opened(place.path, wanted.text());
}

std::unique_ptr<FileReplacement> HostDisk::replace(std::string_view path) {
    const StationPath wanted = parsed(path);
    check_is_no_root(wanted);
    return std::make_unique<HostReplacement>(creatable(wanted).path, wanted.text());
}

void HostDisk::append(std::string_view path, std::string_view bytes) {
    const StationPath wanted = parsed(path);
    const Place place = creatable(wanted);
    const bool is_new = place.outcome == NameLookup::Outcome::missing;
    const OpenFile file = open_plain(place.path, O_WRONLY | O_APPEND | O_CREAT, Access::writing, wanted.text());
    append_line(file, bytes, wanted.text());
    if (is_new)
        flush_folder_of(place.path);
}

} // namespace sonarelle
