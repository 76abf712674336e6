#include <array>
#include <istream>
#include <ostream>

#include "app/outil/commands.h"
#include "app/outil/list_json.h"
#include "app/outil/machine.h"
#include "platform/failure.h"
#include "platform/paths.h"
#include "platform/text.h"
#include "playlist/list_file.h"
#include "playlist/list_rows.h"

namespace sonarelle {

namespace {

void check_extension(const std::string& file, std::string_view extension) {
    if (extension_of(file) != extension)
        throw Failure{failure_number::wrong_file_name, file, "un fichier ." + std::string{extension} + " est attendu"};
}

template <typename Record, typename Use>
void for_each_record(RecordReader<Record>& reader, Use&& use) {
    Record record;
    for (std::int64_t number = 1; number <= reader.count(); ++number) {
        reader.read(number, record);
        use(record, number);
    }
}

template <typename Record>
void print_json(RecordReader<Record>& reader, const std::string& file, std::ostream& out) {
    const Json head{{"fichier", file},
                    {"taille", reader.count() * static_cast<std::int64_t>(Record::size) + reader.rest()},
                    {"reste", reader.rest()}};
    std::string text = head.dump();
    text.pop_back();
    out << text << ",\"enregistrements\":[";
    for_each_record(reader, [&out](const Record& record, std::int64_t number) {
        out << (number == 1 ? "" : ",") << json_of(record, number).dump();
    });
    out << "]}\n";
}

template <typename Record>
void print_text(RecordReader<Record>& reader, const std::string& file, std::ostream& out) {
    out << file << " : " << reader.count() << (reader.count() > 1 ? " enregistrements" : " enregistrement");
    if (reader.rest() > 0)
        out << ", et " << reader.rest() << " octets de reste";
    out << '\n';
    for_each_record(reader, [&out](const Record& record, std::int64_t number) {
        const RowTable::Row row = row_of(record, DecimalMark::point);
        out << number << "  " << row[list_column::path] << "  " << row[list_column::start] << " - "
            << row[list_column::end] << " s  " << row[list_column::genre] << "  " << row[list_column::volume] << " %  "
            << row[list_column::duration] << '\n';
    });
}

template <typename Record>
void print_list(const Call& call, Machine& machine, const std::string& file) {
    RecordReader<Record> reader{machine.disk().open(machine.station_path(file))};
    if (call.arguments.has(json_option.name))
        print_json(reader, file, call.out);
    else
        print_text(reader, file, call.out);
}

void view(const Call& call) {
    const std::string& file = call.arguments.word(0, "FICHIER");
    call.arguments.expect_at_most(1);
    Machine machine{call.arguments};
    if (extension_of(file) == "rfm")
        return print_list<enreg_rfm>(call, machine, file);
    check_extension(file, "dfm");
    print_list<enreg_liste>(call, machine, file);
}

void write(const Call& call) {
    const std::string& file = call.arguments.word(0, "FICHIER.dfm");
    call.arguments.expect_at_most(1);
    check_extension(file, "dfm");
    Machine machine{call.arguments};
    const Json list = Json::parse(call.in, nullptr, false);
    if (list.is_discarded())
        throw Failure{failure_number::wrong_call, "entrée standard", "ce n'est pas du JSON"};
    const auto records = records_of(list);
    ListWriter writer{machine.disk(), machine.station_path(file)};
    for (const enreg_liste& record : records)
        writer.write(record);
    writer.commit();
}

/// As the list window reads an old list and its save dialog writes the rows.
void convert(const Call& call) {
    const std::string& old_file = call.arguments.word(0, "VIEUX.rfm");
    const std::string& new_file = call.arguments.word(1, "NEUF.dfm");
    call.arguments.expect_at_most(2);
    check_extension(old_file, "rfm");
    check_extension(new_file, "dfm");
    Machine machine{call.arguments};
    LegacyListReader reader{machine.disk().open(machine.station_path(old_file))};
    ListWriter writer{machine.disk(), machine.station_path(new_file)};
    for_each_record(reader, [&writer](const enreg_rfm& old_record, std::int64_t) {
        RowTable::Row row = row_of(old_record, DecimalMark::point);
        if (row[list_column::duration].empty())
            row[list_column::duration] = unknown_duration;
        enreg_liste record;
        fill_record(record, row, DecimalMark::point, [](auto&& statement) { statement(); });
        writer.write(record);
    });
    writer.commit();
}

constexpr std::array json_options{json_option};

constexpr std::array commands{
    Command{"liste voir", "FICHIER [--json]", json_options, view},
    Command{"liste ecrire", "FICHIER.dfm  (le JSON de « liste voir » sur l'entrée standard)", {}, write},
    Command{"liste convertir", "VIEUX.rfm NEUF.dfm", {}, convert},
};

} // namespace

std::span<const Command> list_commands() {
    return commands;
}

} // namespace sonarelle
