#include "platform/audio/sound_files.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/failure.h"

namespace sonarelle {

namespace {

Failure failure_of(int error, const std::string& path) {
    switch (error) {
    case ENOENT:
    case ENOTDIR:
        return Failure{FailureNumber::file_not_found, path};
    case EACCES:
    case EPERM:
        return Failure{FailureNumber::permission_refused, path};
    case EMFILE:
    case ENFILE:
        return Failure{FailureNumber::too_many_files, path};
    default:
        return Failure{FailureNumber::device_fault, path};
    }
}

class MachineFile final : public RecordFile {
public:
    explicit MachineFile(const std::string& path)
        : path_{path},
          descriptor_{::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NOCTTY | O_NONBLOCK)} {
        if (descriptor_ < 0)
            throw failure_of(errno, path_);
        struct stat facts {};
        if (::fstat(descriptor_, &facts) == 0)
            length_ = facts.st_size;
    }
    ~MachineFile() override { ::close(descriptor_); }
    MachineFile(const MachineFile&) = delete;
    MachineFile& operator=(const MachineFile&) = delete;

    [[nodiscard]] std::int64_t length() const override { return length_; }

    std::size_t read(std::int64_t position, std::span<std::byte> into) override {
        std::size_t done = 0;
        while (done < into.size()) {
            const ssize_t count = ::pread(descriptor_, into.data() + done, into.size() - done,
                                          position + static_cast<std::int64_t>(done));
            if (count < 0 && errno == EINTR)
                continue;
            if (count < 0)
                throw Failure{FailureNumber::device_fault, path_};
            if (count == 0)
                break;
            done += static_cast<std::size_t>(count);
        }
        return done;
    }

private:
    std::string path_;
    int descriptor_;
    std::int64_t length_ = 0;
};

} // namespace

FileFacts MachineFiles::facts(const std::string& path) {
    struct stat facts {};
    if (::stat(path.c_str(), &facts) != 0)
        throw failure_of(errno, path);
    return {.size = facts.st_size,
            .modified = std::int64_t{facts.st_mtim.tv_sec} * 1'000'000'000 + facts.st_mtim.tv_nsec,
            .is_folder = !S_ISREG(facts.st_mode)};
}

std::unique_ptr<RecordFile> MachineFiles::open(const std::string& path) {
    return std::make_unique<MachineFile>(path);
}

} // namespace sonarelle
