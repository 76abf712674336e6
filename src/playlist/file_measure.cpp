#include "playlist/file_measure.h"

#include "metadata/TypeTagV1.h"
#include "metadata/genre_table.h"
#include "platform/duration_text.h"
#include "platform/media.h"

namespace sonarelle {

MeasuredFile FileMeasure::met_ajour(const std::string& path) const {
    try {
        const auto graph = platform_.media.create_graph();
        graph->RenderFile(path);
        return facts_of(path, graph->get_Duration());
    } catch (const Failure& failure) {
        return failure;
    }
}

MeasuredFile FileMeasure::met_ajour(const std::string& path, const MeasuredLength& length) const {
    if (length.failure)
        return *length.failure;
    try {
        return facts_of(path, length.seconds);
    } catch (const Failure& failure) {
        return failure;
    }
}

TrackFacts FileMeasure::facts_of(const std::string& path, double seconds) const {
    TypeTagV1 tag{platform_.disk};
    return {seconds, format_heure(seconds, platform_.decimal_mark),
            std::string{nom_du_genre(tag.LireTag(path).Genre())}};
}

} // namespace sonarelle
