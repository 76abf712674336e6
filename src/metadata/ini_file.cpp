#include "metadata/ini_file.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "platform/failure.h"
#include "platform/text.h"

namespace sonarelle {

namespace {

std::string read_all(Disk& disk, std::string_view path) {
    const auto file = disk.open(path);
    std::string bytes(static_cast<std::size_t>(file->length()), '\0');
    bytes.resize(file->read(0, std::as_writable_bytes(std::span{bytes})));
    return bytes;
}

std::string read_all_or_nothing(Disk& disk, std::string_view path) {
    try {
        return read_all(disk, path);
    } catch (const Failure& failure) {
        if (failure.number != FailureNumber::file_not_found)
            throw;
        return {};
    }
}

/// Lines with their line ends, so that what isn't touched is written back to the byte.
std::vector<std::string> lines_of(std::string_view bytes) {
    std::vector<std::string> lines;
    while (!bytes.empty()) {
        const std::size_t end = bytes.find('\n');
        const std::string_view line = bytes.substr(0, end == std::string_view::npos ? end : end + 1);
        lines.emplace_back(line);
        bytes.remove_prefix(line.size());
    }
    return lines;
}

std::string_view without_blanks(std::string_view text) {
    constexpr std::string_view blanks = " \t\r\n";
    text = text.substr(0, text.find_last_not_of(blanks) + 1);
    return text.substr(std::min(text.find_first_not_of(blanks), text.size()));
}

std::optional<std::string_view> section_of(std::string_view line) {
    line = without_blanks(line);
    if (!line.starts_with('['))
        return std::nullopt;
    return without_blanks(line.substr(1, line.find(']') - 1));
}

std::optional<std::string_view> key_of(std::string_view line) {
    const std::size_t equals = line.find('=');
    if (equals == std::string_view::npos || without_blanks(line).starts_with(';'))
        return std::nullopt;
    return without_blanks(line.substr(0, equals));
}

bool is_same(std::optional<std::string_view> found, std::string_view wanted) {
    return found && equal_ignoring_case(from_windows_1252(*found), from_windows_1252(wanted));
}

std::string_view line_end_of(std::string_view line) {
    return line.substr(line.find_last_not_of("\r\n") + 1);
}

using Lines = std::vector<std::string>;

/// Where a section's new key goes: behind its last line that isn't blank.
Lines::iterator end_of_entries(Lines::iterator head, Lines::iterator end) {
    while (end - 1 != head && without_blanks(*(end - 1)).empty())
        --end;
    return end;
}

void insert_line(Lines& lines, Lines::iterator before, const std::string& text) {
    if (before != lines.begin() && !(before - 1)->ends_with('\n'))
        *(before - 1) += "\r\n";
    lines.insert(before, text + "\r\n");
}

void set_value(Lines& lines, const std::string& section, const std::string& key, const std::string& value) {
    const auto head =
        std::ranges::find_if(lines, [&](const std::string& line) { return is_same(section_of(line), section); });
    if (head == lines.end()) {
        insert_line(lines, lines.end(), "[" + section + "]");
        insert_line(lines, lines.end(), key + "=" + value);
        return;
    }
    const auto next = std::find_if(head + 1, lines.end(), [](const std::string& line) { return section_of(line); });
    const auto entry =
        std::find_if(head + 1, next, [&](const std::string& line) { return is_same(key_of(line), key); });
    if (entry == next)
        insert_line(lines, end_of_entries(head, next), key + "=" + value);
    else
        *entry = entry->substr(0, entry->find('=') + 1) + value + std::string{line_end_of(*entry)};
}

/// The bytes that the file will hold for this text.
std::string one_line(std::string_view text) {
    if (text.find_first_of("\r\n") != std::string_view::npos)
        throw Failure{FailureNumber::wrong_call, std::string{text}};
    return to_windows_1252(text);
}

} // namespace

void write_ini_value(Disk& disk, std::string_view path, std::string_view section, std::string_view key,
                     std::string_view value) {
    Lines lines = lines_of(read_all_or_nothing(disk, path));
    set_value(lines, one_line(section), one_line(key), one_line(value));
    const auto file = disk.replace(path);
    for (const std::string& line : lines)
        file->write(std::as_bytes(std::span{line}));
    file->commit();
}

} // namespace sonarelle
