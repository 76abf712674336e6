// Reading a tag: any file gives fields that fit the tag, the raw ones byte for byte, the filtered ones in plain ASCII.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "fuzz_check.h"
#include "fuzz_disk.h"
#include "metadata/TypeTagV1.h"
#include "platform/text.h"

namespace sonarelle {
namespace {

bool has_tag(std::string_view file) {
    if (file.size() < 128)
        return false;
    const std::string_view mark = file.substr(file.size() - 128, 3);
    return equal_ignoring_case(mark, "TAG");
}

void check_empty(const TypeTagV1& tag) {
    const std::string texts = tag.Titre() + tag.Artiste() + tag.Album() + tag.Annee() + tag.Commentaire();
    check(!tag.Valide() && texts.empty() && tag.Piste() == 0 && tag.Genre() == 255, "no tag, no fields");
}

void check_field(std::string_view block, std::size_t offset, std::size_t width, const std::string& raw,
                 const std::string& filtered) {
    const std::string_view field = block.substr(offset, width);
    check(to_windows_1252(raw) == field.substr(0, field.find('\0')), "raw text is what the file holds");
    check(filtered.size() <= width, "filtered text fits the tag");
    check(TypeTagV1::FiltrerTexte(filtered) == filtered, "filtered text passes the filter");
    const bool plain =
        std::ranges::all_of(filtered, [](char c) { return c == '\r' || c == '\n' || (c >= 32 && c <= 126); });
    check(plain, "filtered text is plain");
}

void check_fields(std::string_view block, const TypeTagV1& raw, const TypeTagV1& filtered) {
    check_field(block, 3, 30, raw.Titre(), filtered.Titre());
    check_field(block, 33, 30, raw.Artiste(), filtered.Artiste());
    check_field(block, 63, 30, raw.Album(), filtered.Album());
    check_field(block, 93, 4, raw.Annee(), filtered.Annee());
    check_field(block, 97, 28, raw.Commentaire(), filtered.Commentaire());
    const int track = static_cast<unsigned char>(block[126]);
    const int genre = static_cast<unsigned char>(block[127]);
    check(raw.Piste() == track && filtered.Piste() == track, "the track's byte is the track");
    check(raw.Genre() == (genre < 147 ? genre : 255) && raw.Genre() == filtered.Genre(), "genres end below 147");
}

} // namespace
} // namespace sonarelle

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace sonarelle;
    const std::string file{reinterpret_cast<const char*>(data), size};
    FuzzDisk on_disk{file};
    TypeTagV1 raw{on_disk.disk};
    const TypeTagV1 filtered = raw.LireTag(fuzzed_file);
    check(raw.Valide() == has_tag(file) && filtered.Valide() == raw.Valide(), "a mark makes a tag");
    if (raw.Valide()) {
        check_fields(std::string_view{file}.substr(file.size() - 128), raw, filtered);
    } else {
        check_empty(raw);
        check_empty(filtered);
    }
    return 0;
}
