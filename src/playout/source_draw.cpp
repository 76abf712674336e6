#include "playout/source_draw.h"

#include <algorithm>
#include <utility>

#include "platform/calendar_text.h"
#include "platform/disk.h"
#include "platform/paths.h"
#include "playlist/list_file.h"
#include "playlist/list_rows.h"

namespace sonarelle {

namespace {

constexpr int most_attempts = 3; // for another file
constexpr DrawWords record_words{" - Trouvé", " - Pas Trouvé", "Oui ce morceau existe"};

} // namespace

bool names_a_source(std::string_view path) {
    return !path.empty() && path != "Aucun fichier" && extension_of(path) == "dfm";
}

void add_hits(std::vector<PassedOver>& passed_over, const Draw& draw) {
    for (const int number : draw.hits)
        if (std::ranges::find(passed_over, number, &PassedOver::number) == passed_over.end())
            passed_over.push_back({number, pass_reason::drawn_before});
}

OnAirEvent DrawnRecord::inserted_as(int row) const {
    return {.kind = OnAirEvent::Kind::inserted,
            .row = row,
            .path = record.trimmed_chemin(),
            .passed_over = passed_over,
            .number = number,
            .among = records};
}

// A list that isn't there would be made by being opened.
std::optional<DrawnRecord> SourceDraw::draw(const std::string& path, DrawSource& source, const std::string& before) {
    if (!names_a_source(path))
        return std::nullopt;
    const std::string list = list_path(desk_.platform, path);
    if (desk_.platform.disk.Dir(list).empty())
        return std::nullopt;
    ListReader reader{desk_.platform.disk, list};
    DrawnRecord drawn;
    drawn.records = static_cast<int>(reader.count());
    if (drawn.records == 0)
        return std::nullopt;
    for (int attempt = 0; attempt < most_attempts; ++attempt) {
        const std::optional<int> number = draw_number(source, drawn);
        if (!number)
            break;
        drawn.number = *number;
        reader.read(drawn.number, drawn.record);
        if (drawn.record.trimmed_chemin() != before)
            return drawn;
        drawn.passed_over.push_back({drawn.number, pass_reason::same_file});
    }
    return std::nullopt;
}

std::optional<int> SourceDraw::draw_number(DrawSource& source, DrawnRecord& drawn) {
    bar(source, source.previous, drawn.records);
    for (;;) {
        const Draw draw = source.table.draw({0, drawn.records});
        control_.log(source.lists, draw, record_words);
        add_hits(drawn.passed_over, draw);
        if (!draw.number)
            return std::nullopt;
        source.previous = *draw.number;
        if (source.previous != 0)
            return draw.number;
        drawn.passed_over.push_back({0, pass_reason::no_record});
        note_zero();
        bar(source, 0, drawn.records);
    }
}

void SourceDraw::bar(DrawSource& source, int number, int records) {
    if (source.table.bar(number, records))
        control_.begin_cycle(source.lists);
    control_.show_table(source.lists, source.table, number);
}

void SourceDraw::note_zero() {
    if (!std::exchange(zero_noted_, true))
        journal_.note(date_and_time(desk_.platform) + " Tirage du nombre 0 : aucun enregistrement, tirage refait");
}

} // namespace sonarelle
