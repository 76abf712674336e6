#include "platform/host/machine_files.h"

#include <fcntl.h>
#include <sys/file.h>

#include <cerrno>
#include <utility>

#include "platform/failure.h"
#include "platform/host/file_times.h"
#include "platform/host/host_record_file.h"
#include "platform/host/safe_file.h"

namespace sonarelle {

namespace {

class HostReplacement : public FileReplacement {
public:
    HostReplacement(const std::string& path, const std::string& source)
        : file_{path, source} {}

    void write(std::span<const std::byte> bytes) override { file_.write(bytes); }
    void commit() override { file_.commit(); }
    std::optional<FileFacts> commit_over(const std::optional<FileFacts>& seen) override {
        return file_.commit_over(seen);
    }

private:
    SafeFile file_;
};

/// Its hidden file goes with it, while its lock is still held: who has opened it meanwhile finds that its name is gone.
class HostClaim : public FileClaim {
public:
    HostClaim(FileHandle file, std::string name)
        : file_{std::move(file)},
          name_{std::move(name)} {}
    ~HostClaim() override { ::unlink(name_.c_str()); }

private:
    FileHandle file_;
    std::string name_;
};

/// Another user's lock file can be locked without the right to write into it.
FileHandle open_lock_file(const std::string& name, const std::string& source) {
    constexpr int flags = O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK;
    FileHandle file{::open(name.c_str(), O_RDWR | O_CREAT | flags, 0666)};
    const int refusal = errno;
    if (!file.is_open() && refusal == EACCES)
        file = FileHandle{::open(name.c_str(), O_RDONLY | flags)};
    if (!file.is_open())
        throw failure_from(refusal, Access::writing, source);
    return file;
}

bool has_name(const FileHandle& file, const std::string& name) {
    struct stat by_name {};
    struct stat by_handle {};
    return ::lstat(name.c_str(), &by_name) == 0 && ::fstat(file.get(), &by_handle) == 0 &&
           facts_of(by_name).serial == facts_of(by_handle).serial;
}

std::string claim_name(const std::string& path) {
    const auto name = path.rfind('/') + 1;
    return path.substr(0, name) + "." + path.substr(name) + ".verrou";
}

} // namespace

OpenFile open_plain(const std::string& path, int flags, Access access, const std::string& source) {
    OpenFile file{FileHandle{::open(path.c_str(), flags | O_CLOEXEC | O_NOCTTY | O_NONBLOCK, 0666)}, {}};
    if (!file.handle.is_open() || ::fstat(file.handle.get(), &file.facts) != 0)
        throw_errno(access, source);
    if (!S_ISREG(file.facts.st_mode))
        throw Failure{FailureNumber::path_access, source};
    return file;
}

std::unique_ptr<RecordFile> open_machine_file(const std::string& path, const std::string& source) {
    OpenFile file = open_plain(path, O_RDONLY, Access::reading, source);
    return std::make_unique<HostRecordFile>(std::move(file.handle), facts_of(file.facts), source);
}

std::unique_ptr<FileReplacement> replace_machine_file(const std::string& path, const std::string& source) {
    return std::make_unique<HostReplacement>(path, source);
}

std::unique_ptr<FileClaim> claim_machine_file(const std::string& path, const std::string& source) {
    const std::string name = claim_name(path);
    for (;;) {
        FileHandle file = open_lock_file(name, source);
        if (::flock(file.get(), LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK)
            return nullptr;
        if (has_name(file, name))
            return std::make_unique<HostClaim>(std::move(file), name);
    }
}

FileFacts facts_of(const struct stat& facts) {
    const bool is_folder = S_ISDIR(facts.st_mode);
    return {is_folder ? 0 : facts.st_size, nanoseconds(facts.st_mtim), is_folder,
            static_cast<std::int64_t>(facts.st_ino)};
}

} // namespace sonarelle
