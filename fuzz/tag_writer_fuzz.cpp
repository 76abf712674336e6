// Writing a tag: the audio stays to the byte, the fields read back, and a write that fails changes nothing.

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include <fuzzer/FuzzedDataProvider.h>

#include "fuzz_check.h"
#include "fuzz_disk.h"
#include "metadata/TypeTagV1.h"
#include "platform/text.h"

namespace sonarelle {
namespace {

TypeTagV1 random_tag(Disk& disk, FuzzedDataProvider& input) {
    const auto text = [&input] { return from_windows_1252(input.ConsumeRandomLengthString(40)); };
    TypeTagV1 tag{disk};
    tag.set_Valide(true);
    tag.set_Titre(text());
    tag.set_Artiste(text());
    tag.set_Album(text());
    tag.set_Annee(text());
    tag.set_Commentaire(text());
    tag.set_Piste(input.ConsumeIntegral<std::int16_t>());
    tag.set_Genre(input.ConsumeIntegral<std::int32_t>() % 300);
    return tag;
}

std::string_view audio_of(std::string_view file) {
    const bool tagged = file.size() >= 128 && equal_ignoring_case(file.substr(file.size() - 128, 3), "TAG");
    return tagged ? file.substr(0, file.size() - 128) : file;
}

void check_read_back(const TypeTagV1& written, const TypeTagV1& read) {
    check(read.Valide() && read.Titre() == written.Titre() && read.Artiste() == written.Artiste() &&
              read.Album() == written.Album() && read.Annee() == written.Annee() &&
              read.Commentaire() == written.Commentaire() && read.Piste() == written.Piste(),
          "the fields read back");
    check(read.Genre() == (written.Genre() == 147 ? 255 : written.Genre()), "the genre reads back");
}

void check_written(SimulatedDisk& disk, std::string_view before, const TypeTagV1& tag) {
    const std::string after = disk.bytes(fuzzed_file);
    check(after.size() == audio_of(before).size() + 128, "one tag behind the audio");
    check(after.starts_with(audio_of(before)), "the audio stays to the byte");
    TypeTagV1 raw{disk}; // Filtered once more, a text that was cut inside a line break would lose its end.
    (void)raw.LireTag(fuzzed_file);
    check_read_back(tag, raw);
    check(TypeTagV1{disk}.EcrireTag(fuzzed_file), "the tag can be removed");
    check(disk.bytes(fuzzed_file) == audio_of(before), "the audio is left");
}

} // namespace
} // namespace sonarelle

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace sonarelle;
    FuzzedDataProvider input{data, size};
    const std::int64_t room = input.ConsumeIntegralInRange<std::int64_t>(0, 4096);
    const bool full = input.ConsumeBool();
    FuzzDisk on_disk{{}};
    const TypeTagV1 tag = random_tag(on_disk.disk, input);
    const std::string before = input.ConsumeRemainingBytesAsString();
    on_disk.disk.put_file(fuzzed_file, before);
    if (full)
        on_disk.disk.set_capacity(on_disk.disk.used() + room);

    const bool fits = !full || static_cast<std::int64_t>(audio_of(before).size()) + 128 <= room;
    const bool possible = before.size() >= 128 && tag.Piste() >= 0 && tag.Piste() <= 255 && fits;
    check(tag.EcrireTag(fuzzed_file) == possible, "a tag is written where one can be");
    if (possible)
        check_written(on_disk.disk, before, tag);
    else
        check(on_disk.disk.bytes(fuzzed_file) == before, "a write that fails changes nothing");
    return 0;
}
