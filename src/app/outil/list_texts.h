#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace sonarelle {

/// The texts in which other programs keep lists. A text comes as bytes, in UTF-8 with or without its mark, or else in
/// Windows-1252.
[[nodiscard]] std::string text_of_bytes(std::string_view bytes);

/// The entries of an M3U list: its lines but for the empty ones and those that begin with #.
[[nodiscard]] std::vector<std::string> m3u_entries(std::string_view text);

/// The path of a `file://` address, its escapes undone; anything else as it is.
[[nodiscard]] std::string path_of_entry(std::string_view entry);

using CsvRow = std::vector<std::string>;

/// The rows of a CSV text. What parts the fields is a comma, or a semicolon where the first line has one and no comma.
[[nodiscard]] std::vector<CsvRow> csv_rows(std::string_view text);

/// A line of CSV with its end, by commas.
[[nodiscard]] std::string csv_line(const CsvRow& row);

} // namespace sonarelle
