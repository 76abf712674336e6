#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "platform/failure.h"
#include "platform/host/file_handle.h"

namespace sonarelle {

/// A small text file of this machine that several programs write, each whole. Failures name the file: 75 without
/// rights, 57 for a disk's fault, 61 on a full disk.

/// The whole text; nothing when there is no such file. @throws Failure 57 too for what is no plain file, or has more
/// than 16 MB.
[[nodiscard]] std::optional<std::string> read_shared_file(const std::string& path);

/// While it lives, other programs that change the same file wait. Makes the file's folder where it is missing.
/// @throws Failure 75 too when another program doesn't let go within a few seconds.
class SharedFileLock {
public:
    explicit SharedFileLock(const std::string& path);

private:
    FileHandle file_;
};

/// Writes the file whole: a reader, or a power cut, finds the old text or the new one.
void write_shared_file(const std::string& path, std::string_view text);

/// Renames a file that can't be read to the first free of `x.abime`, `x.abime-2`…, for the operator to look at.
void set_aside(const std::string& path);

/// Sets a file aside that `check` finds damaged (Failure 57), where its folder lets it. Returns what `check` threw.
[[nodiscard]] std::optional<Failure> set_aside_if_damaged(const std::string& path, const std::function<void()>& check);

} // namespace sonarelle
