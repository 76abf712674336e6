#include <algorithm>
#include <array>
#include <cmath>
#include <filesystem>

#include "app/common/machine.h"
#include "app/outil/audio_files.h"
#include "app/outil/commands.h"
#include "app/outil/list_json.h"
#include "app/outil/list_target.h"
#include "app/outil/list_texts.h"
#include "app/outil/measured_row.h"
#include "platform/host/machine_paths.h"
#include "platform/paths.h"
#include "platform/text.h"
#include "playlist/list_file.h"
#include "playlist/list_rows.h"

namespace sonarelle {

namespace {

/// The rows of a list of another kind, and whether none had to be left out.
struct ReadRows {
    std::vector<enreg_liste> rows;
    bool complete = true;
};

constexpr std::string_view path_field = "chemin";
constexpr std::string_view end_field = "fin_lecture";
constexpr std::int16_t full_volume = 100;
constexpr std::int64_t longest_text = 1 << 28;

std::string text_of_file(Machine& machine, const std::string& file) {
    const auto opened = machine.open(file);
    if (opened->length() > longest_text)
        throw Failure{FailureNumber::wrong_call, file, "ce fichier est trop grand pour une liste"};
    std::string bytes(static_cast<std::size_t>(opened->length()), '\0');
    bytes.resize(opened->read(0, std::as_writable_bytes(std::span{bytes})));
    return text_of_bytes(bytes);
}

/// Of any length, unlike a list's.
std::string ending_of(const std::string& file) {
    const auto point = file.rfind('.');
    return point == std::string::npos ? std::string{} : lower_case(file.substr(point + 1));
}

bool is_station_path(std::string_view path) {
    return path.starts_with("\\\\") || (path.size() > 2 && path[1] == ':' && (path[2] == '\\' || path[2] == '/'));
}

/// An entry of a list of this machine, or of any station; a relative one begins at the list's own folder.
std::string file_of_entry(const HostDisk& disk, const std::string& list, const std::string& entry) {
    std::string path = path_of_entry(entry);
    if (path.find("://") != std::string::npos)
        throw Failure{FailureNumber::wrong_file_name, path, "une adresse n'est pas un fichier"};
    if (is_station_path(path))
        return disk.machine_path(path);
    std::ranges::replace(path, '\\', '/');
    return path.starts_with('/') ? path : (std::filesystem::path{list}.parent_path() / path).string();
}

ReadRows measured_rows(Machine& machine, const std::string& list, const std::vector<std::string>& entries) {
    Measuring measuring{machine};
    const HostDisk disk{machine.drives()};
    ReadRows read;
    read.complete = for_each_file(entries, [&](const std::string& entry) {
        read.rows.push_back(measured_row(measuring, file_of_entry(disk, list, entry), std::nullopt, full_volume));
    });
    return read;
}

ReadRows rows_of_m3u(Machine& machine, const std::string& file) {
    return measured_rows(machine, file, m3u_entries(text_of_file(machine, file)));
}

/// A number where there is one, as in the JSON of a list.
ReadJson json_of_field(const std::string& text) {
    const ReadJson number = ReadJson::parse(text, nullptr, false);
    return number.is_number() ? number : ReadJson(text);
}

/// A list whose head names paths alone is measured; else a row has all its fields.
ReadRows rows_of_csv(Machine& machine, const std::string& file) {
    const std::vector<CsvRow> rows = csv_rows(text_of_file(machine, file));
    const CsvRow head = rows.empty() ? CsvRow{} : rows.front();
    const auto path_place = static_cast<std::size_t>(std::ranges::find(head, path_field) - head.begin());
    if (path_place == head.size())
        throw Failure{FailureNumber::wrong_call, file, "la première ligne ne nomme pas le champ « chemin »"};
    std::vector<std::string> paths;
    ReadJson list = ReadJson::array();
    for (auto row = rows.begin() + 1; row != rows.end(); ++row) {
        ReadJson& fields = list.emplace_back(ReadJson::object());
        for (std::size_t place = 0; place < std::min(head.size(), row->size()); ++place)
            fields[head[place]] = head[place] == "debut_lecture" || head[place] == "volume"
                                      ? json_of_field((*row)[place])
                                      : ReadJson((*row)[place]);
        paths.push_back(path_place < row->size() ? (*row)[path_place] : std::string{});
    }
    if (std::ranges::find(head, end_field) == head.end())
        return measured_rows(machine, file, paths);
    return {records_of(list), true};
}

/// As the list window reads an old list and its save dialog writes the rows.
ReadRows rows_of_old_list(Machine& machine, const std::string& file) {
    LegacyListReader reader{machine.open(file)};
    ReadRows read;
    enreg_rfm old_record;
    for (std::int64_t number = 1; number <= reader.count(); ++number) {
        reader.read(number, old_record);
        RowTable::Row row = row_of(old_record, DecimalMark::point);
        if (row[list_column::duration].empty())
            row[list_column::duration] = unknown_duration;
        fill_record(read.rows.emplace_back(), row, DecimalMark::point, [](auto&& statement) { statement(); });
    }
    return read;
}

std::string csv_of(ListReader& reader) {
    enreg_liste record;
    CsvRow names;
    const Json any_row = json_of(record, 0);
    for (const auto& [name, value] : any_row.items())
        names.push_back(name);
    std::string text = csv_line(names);
    for (std::int64_t number = 1; number <= reader.count(); ++number) {
        reader.read(number, record);
        CsvRow fields;
        for (const Json row = json_of(record, number); const Json& value : row)
            fields.push_back(value.is_string() ? value.get<std::string>() : value.dump());
        text += csv_line(fields);
    }
    return text;
}

/// The path on this machine, be there a file or not; a drive that isn't known stays as it is.
std::string entry_of_path(const DriveTable& drives, const std::string& path) {
    std::string entry = path;
    ErrorIndicator{}.skip([&] { entry = drives.machine_path(path); });
    ErrorIndicator{}.skip([&] { entry = HostDisk{drives}.machine_path(path); });
    return entry;
}

std::string m3u_of(ListReader& reader, const DriveTable& drives) {
    std::string text = "#EXTM3U\n";
    enreg_liste record;
    for (std::int64_t number = 1; number <= reader.count(); ++number) {
        reader.read(number, record);
        const std::string path = record.trimmed_chemin();
        double end = -1; // an unknown length
        ErrorIndicator{}.skip([&] { end = end_point_to_double(record.fin_lecture()); });
        text += "#EXTINF:" + std::to_string(std::lrint(end)) + "," + printable(name_of_path(path)) + "\n" +
                entry_of_path(drives, path) + "\n";
    }
    return text;
}

void write_rows(ListTarget& target, const ReadRows& read) {
    if (read.complete || !read.rows.empty()) {
        for (const enreg_liste& row : read.rows)
            target.write(row.bytes());
        target.commit();
    }
    if (!read.complete)
        throw AlreadyTold{};
}

struct Reading {
    std::string_view extension;
    ReadRows (*rows)(Machine& machine, const std::string& file);
};

constexpr std::array readings{Reading{"rfm", rows_of_old_list}, Reading{"m3u", rows_of_m3u},
                              Reading{"m3u8", rows_of_m3u}, Reading{"csv", rows_of_csv}};

void write_text(ListTarget& target, ListReader& reader, const std::string& extension, const DriveTable& drives) {
    if (extension == "csv")
        target.write(csv_of(reader));
    else
        target.write(extension == "m3u" ? to_windows_1252(m3u_of(reader, drives)) : m3u_of(reader, drives));
    target.commit();
}

void convert(const Call& call) {
    const std::string& old_file = call.arguments.filled_word(0, "VIEUX");
    const std::string& new_file = call.arguments.filled_word(1, "NEUF");
    call.arguments.expect_at_most(2);
    const std::string from = ending_of(old_file);
    const std::string to = ending_of(new_file);
    const auto* reading = std::ranges::find(readings, from, &Reading::extension);
    const bool writes_text = from == "dfm" && (to == "m3u" || to == "m3u8" || to == "csv");
    if (!writes_text && (reading == readings.end() || to != "dfm"))
        throw Failure{FailureNumber::wrong_file_name, to == "dfm" || from == "dfm" ? new_file : old_file,
                      "de " + from + " vers " + to + " il n'y a pas de conversion"};
    Machine machine{call.options};
    ListTarget target{machine, new_file};
    if (!writes_text)
        return write_rows(target, reading->rows(machine, old_file));
    ListReader reader{machine.open(old_file)};
    write_text(target, reader, to, machine.drives());
}

constexpr std::array commands{
    Command{"liste convertir", "VIEUX.rfm|m3u|m3u8|csv NEUF.dfm | VIEUX.dfm NEUF.m3u|m3u8|csv", {}, convert},
};

} // namespace

std::span<const Command> conversion_commands() {
    return commands;
}

} // namespace sonarelle
