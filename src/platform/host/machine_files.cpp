#include "platform/host/machine_files.h"

#include <fcntl.h>

#include "platform/failure.h"
#include "platform/host/host_record_file.h"
#include "platform/host/safe_file.h"

namespace sonarelle {

namespace {

class HostReplacement : public FileReplacement {
public:
    HostReplacement(const std::string& path, const std::string& source) : file_{path, source} {}

    void write(std::span<const std::byte> bytes) override { file_.write(bytes); }
    void commit() override { file_.commit(); }

private:
    SafeFile file_;
};

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
    return std::make_unique<HostRecordFile>(std::move(file.handle), file.facts.st_size, source);
}

std::unique_ptr<FileReplacement> replace_machine_file(const std::string& path, const std::string& source) {
    return std::make_unique<HostReplacement>(path, source);
}

} // namespace sonarelle
