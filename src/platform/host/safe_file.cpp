#include "platform/host/safe_file.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <climits>
#include <filesystem>

#include "platform/failure.h"
#include "platform/host/file_lock.h"
#include "platform/host/host_errors.h"
#include "platform/host/machine_files.h"
#include "platform/host/name_hash.h"

namespace sonarelle {

namespace {

constexpr std::size_t buffer_size = 256 * 1024;
// So many hidden names are looked at for leftovers each time; more are used when more programs write at once.
constexpr int slots_looked_at = 4;
constexpr const char* access_list = "system.posix_acl_access";

/// Whether someone else may have put a link into a folder like /tmp, to have a file of ours overwritten.
bool is_planted(const std::filesystem::path& link) {
    const std::string folder = link.has_parent_path() ? link.parent_path().string() : ".";
    struct stat place {};
    struct stat planted {};
    if (::stat(folder.c_str(), &place) != 0 || ::lstat(link.c_str(), &planted) != 0)
        return false;
    const bool is_shared = (place.st_mode & S_ISVTX) != 0 && (place.st_mode & S_IWOTH) != 0;
    return is_shared && planted.st_uid != ::geteuid() && planted.st_uid != place.st_uid;
}

/// The file that a chain of symbolic links ends at, be it there or not.
std::filesystem::path end_of_links(std::filesystem::path path, const std::string& source) {
    std::error_code error;
    for (int links = 0; std::filesystem::is_symlink(path, error); ++links) {
        if (links == 40 || is_planted(path))
            throw Failure{FailureNumber::path_access, source};
        path = path.parent_path() / std::filesystem::read_symlink(path, error);
    }
    return path;
}

bool still_has_name(int folder, const std::string& name, int file) {
    struct stat by_name {};
    struct stat by_handle {};
    return ::fstatat(folder, name.c_str(), &by_name, AT_SYMLINK_NOFOLLOW) == 0 && ::fstat(file, &by_handle) == 0 &&
           by_name.st_ino == by_handle.st_ino && by_name.st_dev == by_handle.st_dev;
}

/// A writer holds the lock of its hidden file for as long as it lives, so a file whose lock is free was left behind.
/// The lock, unlike a process number, also tells on a share that several machines write to.
void remove_leftover(int folder, const std::string& hidden) {
    const FileHandle left{::openat(folder, hidden.c_str(), O_RDWR | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC)};
    if (left.is_open() && ::flock(left.get(), LOCK_EX | LOCK_NB) == 0 && still_has_name(folder, hidden, left.get()))
        ::unlinkat(folder, hidden.c_str(), 0);
}

/// Keeps the named users of a file's access list, or that it has none; else the group's bits would mean something else.
void copy_access_list(int from_folder, const std::string& name, int to) {
    const FileHandle from{::openat(from_folder, name.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC)};
    std::array<char, 4096> list{};
    const ssize_t size = from.is_open() ? ::fgetxattr(from.get(), access_list, list.data(), list.size()) : -1;
    if (size > 0)
        static_cast<void>(::fsetxattr(to, access_list, list.data(), static_cast<std::size_t>(size), 0));
    else
        static_cast<void>(::fremovexattr(to, access_list));
}

} // namespace

std::string hidden_name(std::string_view name, int slot) {
    const std::string end = "." + std::to_string(slot) + ".nouveau";
    std::string hidden = "." + std::string{name} + end;
    return hidden.size() <= NAME_MAX ? hidden : "." + in_hexadecimal(hash_of(name)) + end;
}

SafeFile::SafeFile(std::string path, std::string source)
    : source_{std::move(source)} {
    const std::filesystem::path target = end_of_links(std::move(path), source_);
    name_ = target.filename();
    folder_path_ = target.has_parent_path() ? target.parent_path().string() : ".";
    folder_ = FileHandle{::open(folder_path_.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC)};
    if (!folder_.is_open() && (errno == ENOENT || errno == ENOTDIR))
        throw Failure{FailureNumber::path_not_found, source_};
    if (!folder_.is_open())
        throw_errno(Access::writing, source_);
    look_at_old_file();
    create_beside();
}

SafeFile::~SafeFile() {
    drop();
}

void SafeFile::look_at_old_file() {
    struct stat old {};
    if (::fstatat(folder_.get(), name_.c_str(), &old, AT_SYMLINK_NOFOLLOW) != 0) {
        if (errno != ENOENT)
            throw_errno(Access::writing, source_);
        return;
    }
    if (!S_ISREG(old.st_mode))
        throw Failure{FailureNumber::path_access, source_};
    // A write-protected file stays, though its folder would let it be replaced.
    if (::faccessat(folder_.get(), name_.c_str(), W_OK, AT_EACCESS) != 0)
        throw_errno(Access::writing, source_);
    mode_ = old.st_mode & 07777U;
    owner_ = old.st_uid;
    group_ = old.st_gid;
}

void SafeFile::create_beside() {
    for (int slot = 0; slot < slots_looked_at; ++slot)
        remove_leftover(folder_.get(), hidden_name(name_, slot));
    // A new file gets the rights that any new file gets; one that replaces is the owner's alone until it has the old's.
    const mode_t mode = mode_ ? 0600 : 0666;
    for (int slot = 0; hidden_.empty(); ++slot) {
        const std::string hidden = hidden_name(name_, slot);
        remove_leftover(folder_.get(), hidden);
        FileHandle file{::openat(folder_.get(), hidden.c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, mode)};
        if (!file.is_open() && errno != EEXIST)
            throw_errno(Access::writing, source_);
        if (!file.is_open())
            continue;
        // Another program may have taken the file for a leftover before it was locked.
        const bool taken = ::flock(file.get(), LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
        if (taken || !still_has_name(folder_.get(), hidden, file.get()))
            continue;
        file_ = std::move(file);
        hidden_ = hidden;
    }
    buffer_.reserve(buffer_size);
}

void SafeFile::write(std::span<const std::byte> bytes) {
    if (hidden_.empty())
        throw Failure{FailureNumber::device_fault, source_};
    while (!bytes.empty()) {
        const std::size_t part = std::min(bytes.size(), buffer_size - buffer_.size());
        buffer_.insert(buffer_.end(), bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(part));
        bytes = bytes.subspan(part);
        if (buffer_.size() == buffer_size)
            flush();
    }
}

void SafeFile::flush() {
    for (std::span<const std::byte> rest = buffer_; !rest.empty();) {
        const ssize_t written = ::write(file_.get(), rest.data(), rest.size());
        if (written >= 0)
            rest = rest.subspan(static_cast<std::size_t>(written));
        else if (errno != EINTR)
            fail();
    }
    buffer_.clear();
}

void SafeFile::commit() {
    finish();
    put_in_place();
}

// The look and the renaming are one step to all who write by this: they hold the folder's lock meanwhile, which leaves
// no lock file behind and holds whatever the list's own file is replaced by.
std::optional<FileFacts> SafeFile::commit_over(const std::optional<FileFacts>& seen) {
    finish();
    const FileHandle folder{::openat(folder_.get(), ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC)};
    if (folder.is_open())
        wait_for_lock(folder, source_);
    if (old_file() != seen) {
        drop();
        return std::nullopt;
    }
    struct stat facts {};
    if (::fstat(file_.get(), &facts) != 0)
        fail();
    put_in_place();
    return facts_of(facts);
}

std::optional<FileFacts> SafeFile::old_file() const {
    struct stat facts {};
    if (::fstatat(folder_.get(), name_.c_str(), &facts, AT_SYMLINK_NOFOLLOW) != 0)
        return std::nullopt;
    return facts_of(facts);
}

/// All bytes are on the disk, under the hidden name.
void SafeFile::finish() {
    if (hidden_.empty())
        throw Failure{FailureNumber::device_fault, source_};
    flush();
    take_over_rights();
    if (::fsync(file_.get()) != 0)
        fail();
}

void SafeFile::put_in_place() {
    if (::renameat(folder_.get(), hidden_.c_str(), folder_.get(), name_.c_str()) != 0)
        fail();
    hidden_.clear();
    // The new file stands; a folder that can't be flushed only leaves open which of the two a power cut would leave.
    const FileHandle folder{::openat(folder_.get(), ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC)};
    if (folder.is_open())
        static_cast<void>(::fsync(folder.get()));
    file_ = {};
}

// The owner comes first, since a change of owner clears bits of the mode. Only an administrator may give a file away;
// for others the file becomes theirs, which can't be helped.
void SafeFile::take_over_rights() {
    if (owner_) {
        if (::fchown(file_.get(), *owner_, group_) != 0)
            static_cast<void>(::fchown(file_.get(), static_cast<uid_t>(-1), group_) == 0);
        copy_access_list(folder_.get(), name_, file_.get());
    }
    if (mode_ && ::fchmod(file_.get(), *mode_) != 0 && errno != EPERM && errno != ENOTSUP)
        fail();
}

void SafeFile::drop() noexcept {
    if (!hidden_.empty())
        ::unlinkat(folder_.get(), hidden_.c_str(), 0);
    hidden_.clear();
}

void SafeFile::fail() {
    const Failure failure = failure_from(errno, Access::writing, source_);
    drop();
    throw failure;
}

} // namespace sonarelle
