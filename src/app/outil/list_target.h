#pragma once

#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "app/common/machine.h"

namespace sonarelle {

/// The file on this machine as it was named; null for one that isn't there.
[[nodiscard]] std::unique_ptr<RecordFile> open_if_there(Machine& machine, const std::string& file);

/// A list that a command writes whole, in the place of the one that it saw at its beginning.
class ListTarget {
public:
    /// @throws Failure for a file that can't be replaced.
    ListTarget(Machine& machine, std::string file);

    void write(std::span<const std::byte> bytes) { replacement_->write(bytes); }
    void write(std::string_view text) { write(std::as_bytes(std::span{text})); }
    /// @throws Failure 75 when another program has written the list meanwhile; its list stands.
    void commit();

private:
    std::string file_;
    std::optional<FileFacts> seen_;
    std::unique_ptr<FileReplacement> replacement_;
};

} // namespace sonarelle
