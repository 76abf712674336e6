#include "app/outil/measured_row.h"

#include "platform/failure.h"
#include "playlist/list_rows.h"

namespace sonarelle {

namespace {

constexpr double shortest_row = 1.0;

} // namespace

enreg_liste measured_row(Measuring& measuring, const std::string& file, const std::optional<std::string>& genre,
                         std::int16_t volume) {
    const Measure measure = measuring.measure(file);
    if (measure.seconds <= 0)
        throw Failure{FailureNumber::unplayable_file, file, "le fichier n'a pas de durée"};
    if (measure.seconds < shortest_row)
        throw Failure{FailureNumber::unplayable_file, file, "le fichier dure moins d'une seconde"};
    enreg_liste record;
    record.set_chemin(measure.station_path);
    if (record.trimmed_chemin() != measure.station_path)
        throw Failure{FailureNumber::wrong_file_name, file, "le chemin ne tient pas dans 200 caractères"};
    const std::string named = genre ? *genre : measuring.genre_of(file);
    record.set_debut_lecture(to_double(default_start, DecimalMark::point));
    record.set_fin_lecture(Format(measure.whole_seconds.value(), start_pattern, DecimalMark::point));
    record.set_genre(named.empty() ? "divers" : named);
    record.set_volume(volume);
    record.set_duree_piste(measure.manager_text);
    return record;
}

} // namespace sonarelle
