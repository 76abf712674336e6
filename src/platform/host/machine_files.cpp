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
    HostReplacement(const std::string& path, const std::string& source) : file_{path, source} {}

    void write(std::span<const std::byte> bytes) override { file_.write(bytes); }
    void commit() override { file_.commit(); }
    std::optional<FileFacts> commit_over(const std::optional<FileFacts>& seen) override {
        return file_.commit_over(seen);
    }

private:
    SafeFile file_;
};

class HostClaim : public FileClaim {
public:
    explicit HostClaim(FileHandle file) : file_{std::move(file)} {}

private:
    FileHandle file_;
};

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
        throw Failure{failure_number::path_access, source};
    return file;
}

std::unique_ptr<RecordFile> open_machine_file(const std::string& path, const std::string& source) {
    OpenFile file = open_plain(path, O_RDONLY, Access::reading, source);
    return std::make_unique<HostRecordFile>(std::move(file.handle), facts_of(file.facts), source);
}

std::unique_ptr<FileReplacement> replace_machine_file(const std::string& path, const std::string& source) {
    return std::make_unique<HostReplacement>(path, source);
}

// Another user's lock file can be locked without the right to write into it.
std::unique_ptr<FileClaim> claim_machine_file(const std::string& path, const std::string& source) {
    const std::string name = claim_name(path);
    constexpr int flags = O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK;
    FileHandle file{::open(name.c_str(), O_RDWR | O_CREAT | flags, 0666)};
    const int refusal = errno;
    if (!file.is_open() && refusal == EACCES)
        file = FileHandle{::open(name.c_str(), O_RDONLY | flags)};
    if (!file.is_open())
        throw Failure{failure_of_errno(refusal, Access::writing), source};
    if (::flock(file.get(), LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK)
        return nullptr;
    return std::make_unique<HostClaim>(std::move(file));
}

FileFacts facts_of(const struct stat& facts) {
    const bool is_folder = S_ISDIR(facts.st_mode);
    return {is_folder ? 0 : facts.st_size, nanoseconds(facts.st_mtim), is_folder,
            static_cast<std::int64_t>(facts.st_ino)};
}

} // namespace sonarelle
