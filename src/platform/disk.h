#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace sonarelle {

/// Attributes that `Dir` asks for, as bits.
enum class FileAttributes : unsigned { normal = 0, hidden = 2, system = 4, folder = 16 };

[[nodiscard]] constexpr FileAttributes operator|(FileAttributes a, FileAttributes b) {
    return static_cast<FileAttributes>(static_cast<unsigned>(a) | static_cast<unsigned>(b));
}
[[nodiscard]] constexpr bool has(FileAttributes all, FileAttributes one) {
    return (static_cast<unsigned>(all) & static_cast<unsigned>(one)) != 0;
}

/// What tells one state of a file from another.
struct FileFacts {
    std::int64_t size = 0;
    std::int64_t modified = 0; ///< Nanoseconds since 1970.
    bool is_folder = false;
    std::int64_t serial = 0; ///< Of the file itself: another one under its name has another.
    friend bool operator==(const FileFacts&, const FileFacts&) = default;
};

/// A file opened for reading its records, or any of its bytes. Reads see the file as it was when it was opened, unless
/// someone else writes into it. Not shared between threads.
class RecordFile {
public:
    virtual ~RecordFile() = default;

    /// Length in bytes.
    [[nodiscard]] virtual std::int64_t length() const = 0;

    /// The file's state when it was opened.
    [[nodiscard]] virtual FileFacts facts() const { return {.size = length()}; }

    /// Fills `into` from byte `position` on and returns how many bytes were there.
    /// @throws Failure 57 when the disk gives none.
    virtual std::size_t read(std::int64_t position, std::span<std::byte> into) = 0;
};

/// A file that is written whole, beside the one that it will replace. Until `commit` returns, the old file stands;
/// dropping it before leaves the old file as it was. A power cut leaves the old file or the new one.
class FileReplacement {
public:
    virtual ~FileReplacement() = default;

    /// @throws Failure 61 when the disk is full, 57 and 75 for other refusals; the replacement is then of no more use.
    virtual void write(std::span<const std::byte> bytes) = 0;

    /// Flushes and puts the new file in the place of the old one, with the rights and owner that the old one had.
    virtual void commit() = 0;

    /// As `commit`, if the file is still as it was `seen` (nothing: there was none). Gives the new file's facts, or
    /// nothing when another program has written meanwhile: its file stands, and the replacement is of no more use. Of
    /// programs that write one file by this, none ever takes the place of what it hasn't seen.
    /// @throws Failure 75 too when another program keeps the file for seconds.
    [[nodiscard]] virtual std::optional<FileFacts> commit_over(const std::optional<FileFacts>& seen) = 0;
};

/// A file's name that is one program's own for as long as this lives; it ends with the program, however that ends.
class FileClaim {
public:
    FileClaim() = default;
    FileClaim(const FileClaim&) = delete;
    FileClaim& operator=(const FileClaim&) = delete;
    virtual ~FileClaim() = default;
};

/// The disk in the station's own form of paths: a drive letter and backslashes, or `\\serveur\partage`. Names match
/// ignoring case, the exact one first. A relative name resolves against the current drive and its current folder.
/// From the window thread; calls may block for as long as the disk does.
///
/// Every operation throws Failure, with the path as its source: 52 for a name with * ? < > | or a double quote (where
/// no pattern is meant), 53 no such file, 58 the target exists, 61 disk full, 68 no such drive, 70 refused, 74 a new
/// name on another drive, 75 path and file don't go together, or no right to write, 76 no such folder.
class Disk {
public:
    virtual ~Disk() = default;

    /// The drive, as a capital letter, and the folder in which relative names resolve.
    [[nodiscard]] virtual char current_drive() const = 0;
    [[nodiscard]] virtual std::string current_folder() const = 0;

    /// Makes the drive of the path's first letter the current one.
    virtual void ChDrive(std::string_view path) = 0;
    /// Sets the current folder of the folder's own drive; the current drive stays.
    virtual void ChDir(std::string_view folder) = 0;

    /// The absolute form of a name.
    [[nodiscard]] virtual std::string absolute(std::string_view path) const = 0;

    /// The name (without folder) of the first entry that fits the pattern (* and ? in the last part), in the spelling
    /// that the disk has; empty when there is none, or no such folder. Folders are found only when they are asked for.
    /// A pattern that ends in a backslash means all that the folder holds; an empty one finds nothing.
    [[nodiscard]] virtual std::string Dir(std::string_view pattern, FileAttributes attributes) = 0;
    [[nodiscard]] std::string Dir(std::string_view pattern) { return Dir(pattern, FileAttributes::normal); }
    /// The next entry of the last pattern; empty behind the last one.
    [[nodiscard]] virtual std::string Dir() = 0;

    [[nodiscard]] virtual FileFacts facts(std::string_view path) = 0;

    /// Deletes a file, or with * and ? in the last part all files that fit; Failure 53 when none does.
    virtual void Kill(std::string_view path) = 0;
    /// Renames a file or folder, into another folder of its drive too.
    virtual void Name(std::string_view old_path, std::string_view new_path) = 0;
    /// A file that is there already is written over.
    virtual void FileCopy(std::string_view from, std::string_view to) = 0;
    /// A name that is taken already is Failure 75.
    virtual void MkDir(std::string_view folder) = 0;
    /// A folder that holds something is Failure 75.
    virtual void RmDir(std::string_view folder) = 0;

    /// Opens for reading; a file that isn't there is Failure 53.
    [[nodiscard]] virtual std::unique_ptr<RecordFile> open(std::string_view path) = 0;
    /// Opens for reading; a file that isn't there is created with length 0.
    [[nodiscard]] virtual std::unique_ptr<RecordFile> open_or_create(std::string_view path) = 0;

    [[nodiscard]] virtual std::unique_ptr<FileReplacement> replace(std::string_view path) = 0;

    /// Claims a name, be the file there or not; null when another program, or another claim, has it. What is claimed
    /// can be read and written all the same: a claim binds those who ask for it.
    [[nodiscard]] virtual std::unique_ptr<FileClaim> claim(std::string_view path) = 0;

    /// Adds bytes at the end of a file, created where it is missing, and flushes them to the disk.
    virtual void append(std::string_view path, std::string_view bytes) = 0;
};

} // namespace sonarelle
