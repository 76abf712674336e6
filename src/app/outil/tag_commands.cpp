#include <array>
#include <iostream>
#include <nlohmann/json.hpp>
#include <ostream>

#include "app/common/machine.h"
#include "app/outil/commands.h"
#include "app/outil/printable.h"
#include "metadata/TypeTagMpeg.h"
#include "metadata/TypeTagV1.h"
#include "metadata/genre_table.h"
#include "platform/failure.h"
#include "platform/host/host_disk.h"
#include "platform/host/machine_paths.h"

namespace sonarelle {

namespace {

using Json = nlohmann::ordered_json;

constexpr Option title_option{"--titre", true};
constexpr Option artist_option{"--artiste", true};
constexpr Option album_option{"--album", true};
constexpr Option year_option{"--annee", true};
constexpr Option comment_option{"--commentaire", true};
constexpr Option genre_option{"--genre", true};
constexpr Option track_option{"--piste", true};
constexpr Option strict_option{"--strict", false};

/// A file of the command line, as the metadata readers take it.
class TaggedFile {
public:
    TaggedFile(Machine& machine, const std::string& file)
        : file_{file},
          disk_{machine.drives()},
          path_{station_path_of(machine.drives(), file)} {
        static_cast<void>(machine.open(file));
    }

    [[nodiscard]] HostDisk& disk() { return disk_; }
    [[nodiscard]] const std::string& path() const { return path_; }
    [[nodiscard]] const std::string& name() const { return file_; }

private:
    const std::string& file_;
    HostDisk disk_;
    std::string path_;
};

Json json_of(const TypeTagV1& tag) {
    return {{"artiste", tag.Artiste()},
            {"album", tag.Album()},
            {"piste", tag.Piste()},
            {"titre", tag.Titre()},
            {"genre", tag.Genre()},
            {"annee", tag.Annee()},
            {"commentaire", tag.Commentaire()}};
}

Json json_of(const TypeTagMpeg& header) {
    return {{"Valide", header.Valide()},     {"Taille", header.Taille()},     {"EntetePos", header.EntetePos()},
            {"Duree", header.Duree()},       {"Mpeg", header.Mpeg()},         {"Layer", header.Layer()},
            {"CRC", header.CRC()},           {"BitRate", header.BitRate()},   {"Frequence", header.Frequence()},
            {"Padded", header.Padded()},     {"Frames", header.Frames()},     {"PrivateBit", header.PrivateBit()},
            {"Mode", header.Mode()},         {"ModeExt", header.ModeExt()},   {"Copyright", header.Copyright()},
            {"Original", header.Original()}, {"Emphasis", header.Emphasis()}, {"Vbr", header.Vbr()}};
}

void print_fields(std::ostream& out, const Json& fields, const std::string& indent) {
    for (const auto& [key, value] : fields.items()) {
        if (value.is_object()) {
            out << indent << key << " :\n";
            print_fields(out, value, indent + "  ");
        } else {
            out << indent << key << " : " << (value.is_string() ? printable(value.get<std::string>()) : value.dump())
                << '\n';
        }
    }
}

void print(const Call& call, const std::string& file, const Json& fields) {
    if (call.arguments.has(json_option.name)) {
        call.out << json_line(fields) << '\n';
        return;
    }
    call.out << printable(file) << '\n';
    print_fields(call.out, fields, "  ");
}

/// Reads one file after the other; one that can't be read is named, and the others are read all the same.
template <typename Read>
void for_each_file(const Call& call, Read&& read) {
    static_cast<void>(call.arguments.word(0, "AUDIO"));
    Machine machine{call.options};
    bool all_read = true;
    for (const std::string& name : call.arguments.words()) {
        try {
            TaggedFile file{machine, name};
            print(call, name, read(file));
        } catch (const Failure& failure) {
            all_read = false;
            std::cerr << "sonarelle-outil : " << printable(failure.what()) << '\n';
        }
    }
    if (!all_read)
        throw AlreadyTold{};
}

void read_tags(const Call& call) {
    for_each_file(call, [](TaggedFile& file) {
        TypeTagV1 raw{file.disk()};
        const TypeTagV1 filtered = raw.LireTag(file.path());
        return Json{{"valide", filtered.Valide()}, {"brut", json_of(raw)}, {"filtre", json_of(filtered)}};
    });
}

void read_headers(const Call& call) {
    const bool strict = call.arguments.has(strict_option.name);
    for_each_file(
        call, [strict](TaggedFile& file) { return json_of(TypeTagMpeg{file.disk()}.LireEntete(file.path(), strict)); });
}

void write_tag(TaggedFile& file, const TypeTagV1& tag) {
    try {
        tag.write(file.path());
    } catch (const Failure& failure) {
        throw Failure{failure.number, file.name(), "le tag n'est pas écrit : " + failure.description};
    }
}

/// Names the word of a failing conversion, which may not know it.
template <typename Convert>
auto converted(const std::string& word, Convert&& convert) {
    try {
        return convert(word);
    } catch (const Failure& failure) {
        throw Failure{failure.number, word, failure.description};
    }
}

Integer number_of(const std::string& word) {
    return converted(word, [](const std::string& text) { return to_integer(text, DecimalMark::point); });
}

int code_of(const std::string& name) {
    return converted(name, [](const std::string& text) { return numero_du_genre(text); });
}

/// Fields that aren't named are empty.
void write(const Call& call) {
    const std::string& name = call.arguments.word(0, "AUDIO");
    call.arguments.expect_at_most(1);
    Machine machine{call.options};
    TaggedFile file{machine, name};
    TypeTagV1 tag{file.disk()};
    const Arguments& given = call.arguments;
    tag.set_Valide(true);
    tag.set_Titre(given.value(title_option.name, ""));
    tag.set_Artiste(given.value(artist_option.name, ""));
    tag.set_Album(given.value(album_option.name, ""));
    tag.set_Annee(given.value(year_option.name, ""));
    tag.set_Commentaire(given.value(comment_option.name, ""));
    tag.set_Genre(code_of(given.value(genre_option.name, "")));
    tag.set_Piste(number_of(given.value(track_option.name, "0")));
    write_tag(file, tag);
}

void remove(const Call& call) {
    const std::string& name = call.arguments.word(0, "AUDIO");
    call.arguments.expect_at_most(1);
    Machine machine{call.options};
    TaggedFile file{machine, name};
    const TypeTagV1 tag{file.disk()};
    write_tag(file, tag);
}

void name_of_genre(const Call& call) {
    const std::string& code = call.arguments.word(0, "CODE");
    call.arguments.expect_at_most(1);
    call.out << nom_du_genre(number_of(code)) << '\n';
}

void code_of_genre(const Call& call) {
    const std::string& name = call.arguments.word(0, "NOM");
    call.arguments.expect_at_most(1);
    call.out << code_of(name) << '\n';
}

constexpr std::array json_options{json_option};
constexpr std::array header_options{strict_option, json_option};
constexpr std::array write_options{title_option,   artist_option, album_option, year_option,
                                   comment_option, genre_option,  track_option};

constexpr std::array commands{
    Command{"tag lire", "AUDIO... [--json]", json_options, read_tags},
    Command{"tag ecrire",
            "AUDIO [--titre T] [--artiste A] [--album A] [--annee Y] [--commentaire C] [--genre NOM_OU_(CODE)] "
            "[--piste N]",
            write_options, write},
    Command{"tag effacer", "AUDIO", {}, remove},
    Command{"genre nom", "CODE", {}, name_of_genre},
    Command{"genre numero", "NOM", {}, code_of_genre},
    Command{"entete", "AUDIO... [--strict] [--json]", header_options, read_headers},
};

} // namespace

std::span<const Command> tag_commands() {
    return commands;
}

} // namespace sonarelle
