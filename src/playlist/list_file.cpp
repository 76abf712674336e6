#include "playlist/list_file.h"

#include <algorithm>
#include <span>
#include <vector>

#include "platform/paths.h"

namespace sonarelle {

namespace {

/// Copies bytes `from` to `to` of a file into its replacement.
void copy_bytes(RecordFile& source, FileReplacement& target, std::int64_t from, std::int64_t to) {
    constexpr std::int64_t block = 1 << 16;
    std::vector<std::byte> buffer(static_cast<std::size_t>(std::clamp<std::int64_t>(to - from, 0, block)));
    while (from < to) {
        const auto wanted = static_cast<std::size_t>(std::min(block, to - from));
        const std::size_t count = source.read(from, std::span{buffer}.first(wanted));
        if (count == 0)
            throw Failure{FailureNumber::past_end_of_file};
        target.write(std::span{buffer}.first(count));
        from += static_cast<std::int64_t>(count);
    }
}

/// Another program may have moved the rows since the record was read.
void check_track(RecordFile& list, std::int64_t number, const enreg_liste& record) {
    enreg_liste there;
    constexpr auto size = static_cast<std::int64_t>(enreg_liste::size);
    if (list.read((number - 1) * size, there.bytes()) == enreg_liste::size &&
        there.trimmed_chemin() != record.trimmed_chemin())
        throw Failure{FailureNumber::wrong_record_number, std::to_string(number),
                      "Un autre programme a modifié cette liste"};
}

/// Nothing when another program has written the list meanwhile.
std::optional<Rewritten> try_to_replace_record(Disk& disk, std::string_view path, std::int64_t number,
                                               const enreg_liste& record) {
    const auto old = disk.open(path);
    constexpr auto size = static_cast<std::int64_t>(enreg_liste::size);
    const std::int64_t begin = (number - 1) * size;
    if (number < 1 || number > old->length() / size + 1)
        throw Failure{FailureNumber::wrong_record_number, std::to_string(number)};
    check_track(*old, number, record);
    const auto changed = disk.replace(path);
    copy_bytes(*old, *changed, 0, begin);
    changed->write(record.bytes());
    copy_bytes(*old, *changed, begin + size, old->length());
    const auto after = changed->commit_over(old->facts());
    return after ? std::optional{Rewritten{old->facts(), *after}} : std::nullopt;
}

} // namespace

Rewritten replace_record(Disk& disk, std::string_view path, std::int64_t number, const enreg_liste& record) {
    if (extension_of(path) == "rfm")
        throw Failure{FailureNumber::wrong_file_name, std::string{path},
                      "Sauvegarder dans format .dfm avant traitement !"};
    for (;;)
        if (const auto rewritten = try_to_replace_record(disk, path, number, record))
            return *rewritten;
}

} // namespace sonarelle
