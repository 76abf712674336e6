#pragma once

#include <sys/types.h>

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/disk.h"
#include "platform/host/file_handle.h"

namespace sonarelle {

/// A file of this machine that is written whole, beside the one that it replaces, under a hidden name. Until `commit`
/// returns, the old file stands; without a commit the hidden file goes with this object. A hidden file that a killed
/// program left behind goes when the same file is written the next time.
class SafeFile {
public:
    /// `path` is a machine's path; where it is a symbolic link, what it points to is replaced. Failures name `source`.
    /// @throws Failure 75 when the file can't be replaced (no rights, not a plain file), 76 without its folder.
    SafeFile(std::string path, std::string source);
    SafeFile(const SafeFile&) = delete;
    SafeFile& operator=(const SafeFile&) = delete;
    ~SafeFile();

    /// @throws Failure 61 on a full disk, 57 for a fault; what was written is then dropped, and nothing more is taken.
    void write(std::span<const std::byte> bytes);
    void write(std::string_view text) { write(std::as_bytes(std::span{text})); }

    /// Gives the new file these rights instead of the old one's.
    void set_mode(mode_t mode) { mode_ = mode; }

    /// The path of the file that is written, for who writes it by another way; it is there until the commit.
    [[nodiscard]] std::string hidden_path() const { return folder_path_ + "/" + hidden_; }

    /// Flushes the new file to the disk and puts it in the old one's place.
    void commit();

    /// The same, if the old file is still as it was `seen`, or missing as it was: gives the new file's facts. Another
    /// program's file stays, and the new one is dropped.
    [[nodiscard]] std::optional<FileFacts> commit_over(const std::optional<FileFacts>& seen);

private:
    void look_at_old_file();
    void create_beside();
    void flush();
    void take_over_rights();
    void finish();
    void put_in_place();
    [[nodiscard]] std::optional<FileFacts> old_file() const;
    void drop() noexcept;
    [[noreturn]] void fail();

    std::string source_;
    std::string folder_path_;
    std::string name_;   // of the file in its folder
    std::string hidden_; // empty when there is no hidden file (any more)
    FileHandle folder_;
    FileHandle file_;
    std::vector<std::byte> buffer_;
    std::optional<mode_t> mode_; // rights of the new file; nothing: those of any new file
    std::optional<uid_t> owner_;
    gid_t group_ = 0;
};

/// The hidden name under which `name` is written; `slot` tells writers at the same time apart.
[[nodiscard]] std::string hidden_name(std::string_view name, int slot);

} // namespace sonarelle
