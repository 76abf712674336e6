#include <array>
#include <istream>
#include <ostream>

#include "app/common/machine.h"
#include "app/outil/commands.h"
#include "app/outil/list_json.h"
#include "app/outil/list_target.h"
#include "app/outil/printable.h"
#include "platform/failure.h"
#include "platform/host/host_disk.h"
#include "platform/paths.h"
#include "platform/text.h"
#include "playlist/file_existence.h"
#include "playlist/list_file.h"
#include "playlist/list_rows.h"

namespace sonarelle {

namespace {

constexpr const char* input_name = "entrée standard";
constexpr std::size_t longest_input = 1 << 29; // two million rows

void check_extension(const std::string& file, std::string_view extension) {
    if (extension_of(file) != extension)
        throw Failure{FailureNumber::wrong_file_name, file, "un fichier ." + std::string{extension} + " est attendu"};
}

/// All of it; the JSON reader takes a disk's fault for its own.
std::string standard_input(std::istream& in) {
    std::string text;
    for (std::array<char, 16384> block{}; in;) {
        in.read(block.data(), block.size());
        text.append(block.data(), static_cast<std::size_t>(in.gcount()));
        if (text.size() > longest_input)
            throw Failure{FailureNumber::wrong_call, input_name, "plus d'un demi-milliard d'octets"};
    }
    if (in.bad())
        throw Failure{FailureNumber::device_fault, input_name, "lecture impossible"};
    return text;
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
    std::string text = json_line(head);
    text.pop_back();
    out << text << ",\"enregistrements\":[";
    for_each_record(reader, [&out](const Record& record, std::int64_t number) {
        out << (number == 1 ? "" : ",") << json_line(json_of(record, number));
    });
    out << "]}\n";
}

template <typename Record>
void print_text(RecordReader<Record>& reader, const std::string& file, std::ostream& out) {
    out << printable(file) << " : " << reader.count() << (reader.count() > 1 ? " enregistrements" : " enregistrement");
    if (reader.rest() > 0)
        out << ", et " << reader.rest() << (reader.rest() > 1 ? " octets de reste" : " octet de reste");
    out << '\n';
    for_each_record(reader, [&out](const Record& record, std::int64_t number) {
        const RowTable::Row row = row_of(record, DecimalMark::point);
        const auto shown = [&row](std::size_t column) { return printable(row[column]); };
        out << number << "  " << shown(list_column::path) << "  " << shown(list_column::start) << " - "
            << shown(list_column::end) << " s  " << shown(list_column::genre) << "  " << shown(list_column::volume)
            << " %  " << shown(list_column::duration) << '\n';
    });
}

template <typename Record>
void print_list(const Call& call, Machine& machine, const std::string& file) {
    RecordReader<Record> reader{machine.open(file)};
    if (call.arguments.has(json_option.name))
        print_json(reader, file, call.out);
    else
        print_text(reader, file, call.out);
}

void view(const Call& call) {
    const std::string& file = call.arguments.filled_word(0, "FICHIER");
    call.arguments.expect_at_most(1);
    Machine machine{call.options};
    const std::string extension = extension_of(file);
    if (extension == "rfm")
        print_list<enreg_rfm>(call, machine, file);
    else if (extension == "dfm")
        print_list<enreg_liste>(call, machine, file);
    else
        throw Failure{FailureNumber::wrong_file_name, file, "un fichier .dfm ou .rfm est attendu"};
}

void write(const Call& call) {
    const std::string& file = call.arguments.filled_word(0, "FICHIER.dfm");
    call.arguments.expect_at_most(1);
    check_extension(file, "dfm");
    Machine machine{call.options};
    ListTarget written{machine, file};
    const ReadJson list = ReadJson::parse(standard_input(call.in), nullptr, false);
    if (list.is_discarded())
        throw Failure{FailureNumber::wrong_call, input_name, "ce n'est pas du JSON"};
    for (const enreg_liste& record : records_of(list))
        written.write(record.bytes());
    written.commit();
}

std::string_view word_of(FileState state) {
    switch (state) {
    case FileState::present:
        return "present";
    case FileState::missing:
        return "absent";
    case FileState::folder_missing:
        return "dossier absent";
    case FileState::on_network:
        return "reseau";
    }
    return {};
}

/// What can't be looked at, for want of rights, can't be played either.
FileState state_of(Disk& disk, const std::string& path) {
    FileState state = FileState::missing;
    if (!path.empty())
        ErrorIndicator{}.skip([&] { state = look_for_file(disk, path).state; });
    return state;
}

/// As the list window tests its rows, but nothing is taken out.
void verify(const Call& call) {
    const std::string& file = call.arguments.filled_word(0, "FICHIER.dfm");
    call.arguments.expect_at_most(1);
    check_extension(file, "dfm");
    Machine machine{call.options};
    HostDisk disk{machine.drives()};
    ListReader reader{machine.open(file)};
    const bool json = call.arguments.has(json_option.name);
    std::int64_t missing = 0;
    for_each_record(reader, [&](const enreg_liste& record, std::int64_t number) {
        const std::string path = record.trimmed_chemin();
        const FileState state = state_of(disk, path);
        missing += state == FileState::missing || state == FileState::folder_missing ? 1 : 0;
        if (json)
            call.out << json_line({{"numero", number}, {"chemin", path}, {"etat", word_of(state)}}) << '\n';
        else
            call.out << number << "  " << word_of(state) << "  " << printable(path) << '\n';
    });
    if (!json)
        call.out << missing << (missing > 1 ? " fichiers manquants sur " : " fichier manquant sur ") << reader.count()
                 << '\n';
}

constexpr std::array json_options{json_option};

constexpr std::array commands{
    Command{"liste voir", "FICHIER [--json]", json_options, view},
    Command{"liste ecrire", "FICHIER.dfm  (le JSON de « liste voir » sur l'entrée standard)", {}, write},
    Command{"liste verifier", "FICHIER.dfm [--json]", json_options, verify},
};

} // namespace

std::span<const Command> list_commands() {
    return commands;
}

} // namespace sonarelle
