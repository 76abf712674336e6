#pragma once

#include <sys/stat.h>

#include <memory>
#include <string>

#include "platform/disk.h"
#include "platform/host/file_handle.h"
#include "platform/host/host_errors.h"

namespace sonarelle {

/// Files by exactly their path on this machine, case and all. Failures name `source`.

struct OpenFile {
    FileHandle handle;
    struct stat facts {};
};

/// Opens a plain file with the flags of open(2); a pipe or a device, which would hold the station up, is Failure 75.
[[nodiscard]] OpenFile open_plain(const std::string& path, int flags, Access access, const std::string& source);

/// @throws Failure 53 for a file that isn't there, 75 for a folder, 70 without rights.
[[nodiscard]] std::unique_ptr<RecordFile> open_machine_file(const std::string& path, const std::string& source);

/// @throws Failure 76 without its folder, 75 when it can't be written.
[[nodiscard]] std::unique_ptr<FileReplacement> replace_machine_file(const std::string& path, const std::string& source);

/// Null when another program has it. A claim is a lock on a hidden file beside.
/// @throws Failure 76 without its folder, 75 when nothing can be written there.
[[nodiscard]] std::unique_ptr<FileClaim> claim_machine_file(const std::string& path, const std::string& source);

[[nodiscard]] FileFacts facts_of(const struct stat& facts);

} // namespace sonarelle
