#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "platform/disk.h"
#include "platform/failure.h"
#include "playlist/enreg_liste.h"

namespace sonarelle {

/// A list file opened for reading its records, numbered from 1. Held for the length of one routine, never longer.
template <typename Record>
class RecordReader {
public:
    RecordReader(Disk& disk, std::string_view path)
        : RecordReader{disk.open_or_create(path)} {}
    explicit RecordReader(std::unique_ptr<RecordFile> file)
        : file_{std::move(file)} {}

    /// Whole records; what is left behind the last one is none.
    [[nodiscard]] std::int64_t count() const { return file_->length() / record_size; }
    /// Bytes behind the last whole record.
    [[nodiscard]] std::int64_t rest() const { return file_->length() % record_size; }
    /// The file's state, by which a writer knows it again.
    [[nodiscard]] FileFacts facts() const { return file_->facts(); }

    /// @throws Failure 63 for a number below 1, 62 behind the last record.
    void read(std::int64_t number, Record& into) {
        if (number < 1)
            throw Failure{FailureNumber::wrong_record_number, std::to_string(number)};
        Record record;
        if (file_->read((number - 1) * record_size, record.bytes()) < Record::size)
            throw Failure{FailureNumber::past_end_of_file, std::to_string(number)};
        into = record;
    }

private:
    static constexpr auto record_size = static_cast<std::int64_t>(Record::size);

    std::unique_ptr<RecordFile> file_;
};

using ListReader = RecordReader<enreg_liste>;
using LegacyListReader = RecordReader<enreg_rfm>;

/// A list that is written whole. Until `commit_over`, the old list stands.
class ListWriter {
public:
    ListWriter(Disk& disk, std::string_view path)
        : file_{disk.replace(path)} {}

    void write(const enreg_liste& record) { file_->write(record.bytes()); }
    /// @see FileReplacement::commit_over
    [[nodiscard]] std::optional<FileFacts> commit_over(const std::optional<FileFacts>& seen) {
        return file_->commit_over(seen);
    }

private:
    std::unique_ptr<FileReplacement> file_;
};

/// A file before and after a change of one record.
struct Rewritten {
    FileFacts before;
    FileFacts after;
};

/// Puts one record in the place of another, and leaves the rest of the file as it is. A number one behind the last
/// record adds it. What other programs change meanwhile stays.
/// @throws Failure 63 for any other number, and where another track stands there; 52 for an old list, which is never
/// written.
Rewritten replace_record(Disk& disk, std::string_view path, std::int64_t number, const enreg_liste& record);

} // namespace sonarelle
