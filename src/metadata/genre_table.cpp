#include "metadata/genre_table.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>

#include "platform/text.h"

namespace sonarelle {

namespace {

// In the order of the codes, five a row.
// clang-format off
constexpr std::array<std::string_view, genre_count> names{
    "Divers", "Classic Rock", "Country", "Dance", "Disco",
    "Funk", "Jingles", "Hip-Hop", "Jazz", "Metal",
    "Ambiance", "Blues", "Autre", "Pop", "R&B",
    "Rap", "Reggae", "Rock", "Techno", "Industrial",
    "Alternative", "Ska", "Death Metal", "Pranks", "Soundtrack",
    "Euro-Techno", "Ambient", "Trip-Hop", "Vocal", "Jazz+Funk",
    "Fusion", "Trance", "Classical", "Instrumental", "Acid",
    "House", "Game", "Sound Clip", "Gospel", "Noise",
    "Alternative Rock", "Bass", "Soul", "Punk", "Space",
    "Meditative", "Instrumental Pop", "Instrumental Rock", "Ethnic", "Gothic",
    "Darkwave", "Techno-Industrial", "Electronic", "Pop-Folk", "Eurodance",
    "Dream", "Southern Rock", "Comedy", "Cult", "Gangsta",
    "Top 40", "Christian Rap", "Pop/Funk", "Jungle", "Native US",
    "Cabaret", "New Wave", "Psychadelic", "Rave", "Showtunes",
    "Trailer", "Lo-Fi", "Tribal", "Acid Punk", "Acid Jazz",
    "Polka", "Retro", "Musical", "Rock & Roll", "Hard Rock",
    "Folk", "Folk-Rock", "National Folk", "Swing", "Fast Fusion",
    "Bebob", "Latin", "Revival", "Celtic", "Bluegrass",
    "Avantgarde", "Gothic Rock", "Progressive Rock", "Psychedelic Rock", "Symphonic Rock",
    "Slow Rock", "Big Band", "Chorus", "Easy Listening", "Acoustic",
    "Humour", "Speech", "Chanson", "Opera", "Chamber Music",
    "Sonata", "Symphony", "Booty Bass", "Primus", "Porn Groove",
    "Satire", "Slow Jam", "Club", "Tango", "Samba",
    "Folklore", "Ballad", "Power Ballad", "Rhytmic Soul", "Freestyle",
    "Duet", "Punk Rock", "Drum Solo", "Acapella", "Euro-House",
    "Dance Hall", "Goa", "Drum & Bass", "Club-House", "Hardcore",
    "Terror", "Indie", "BritPop", "Negerpunk", "Polsk Punk",
    "Beat", "Christian Gangsta", "Heavy Metal", "Black Metal", "Crossover",
    "Contemporary C", "Christian Rock", "Merengue", "Salsa", "Thrash Metal",
    "Anime", "JPop", "Divers_autres",
};
// clang-format on

struct NamedCode {
    std::string_view name;
    int code;
};

// Where the code of a name isn't the one that shows it. The tags of the stations' collections were written with these
// codes, so they stay. Soul has none.
constexpr std::array<NamedCode, 14> differing{{{"Soul", no_genre},
                                               {"Punk", 42},
                                               {"Space", 43},
                                               {"Meditative", 44},
                                               {"Instrumental Pop", 45},
                                               {"Instrumental Rock", 46},
                                               {"Ethnic", 47},
                                               {"Gothic", 48},
                                               {"Darkwave", 49},
                                               {"Techno-Industrial", 50},
                                               {"Electronic", 51},
                                               {"Pop-Folk", 52},
                                               {"Eurodance", 53},
                                               {"Drum Solo", 121}}};

constexpr std::array<NamedCode, genre_count> make_codes() {
    std::array<NamedCode, genre_count> rows{};
    for (std::size_t code = 0; code < names.size(); ++code) {
        const auto* other = std::ranges::find(differing, names[code], &NamedCode::name);
        rows[code] = other == differing.end() ? NamedCode{names[code], static_cast<int>(code)} : *other;
    }
    return rows;
}

constexpr std::array<NamedCode, genre_count> codes = make_codes();

std::optional<int> code_of_row(std::string_view name) {
    const auto* row =
        std::ranges::find_if(codes, [name](const NamedCode& one) { return equal_ignoring_case(one.name, name); });
    return row == codes.end() ? std::nullopt : std::optional{row->code};
}

/// 147 has a name but, written as a number, no code.
int code_of_digits(std::string_view text) {
    constexpr double end = genre_count - 1;
    if (text.empty() || text.front() < '0' || text.front() > '9' || Val(text) >= end)
        return no_genre;
    return to_integer(Val(text)).value();
}

} // namespace

std::string_view nom_du_genre(Integer code) {
    const bool named = code >= 0 && code < genre_count;
    return named ? names[static_cast<std::size_t>(code.value())] : std::string_view{};
}

int numero_du_genre(std::string_view nom) {
    if (nom.starts_with("(("))
        return no_genre;
    if (nom.starts_with("("))
        return to_integer(Val(nom.substr(1))).value();
    const std::optional<int> code = code_of_row(nom);
    return code ? *code : code_of_digits(nom);
}

} // namespace sonarelle
