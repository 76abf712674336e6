#include "playlist/file_measure.h"

#include "metadata/TypeTagV1.h"
#include "metadata/genre_table.h"
#include "platform/duration_text.h"
#include "platform/failure.h"
#include "platform/media.h"

namespace sonarelle {

void FileMeasure::met_ajour() {
    try {
        const auto graph = platform_.media.create_graph();
        graph->RenderFile(list_.nom_fichier_maj);
        take(graph->get_Duration());
    } catch (const Failure& failure) {
        report(failure);
    }
}

void FileMeasure::met_ajour(const MeasuredLength& length) {
    if (length.failure)
        return report(*length.failure);
    try {
        take(length.seconds);
    } catch (const Failure& failure) {
        report(failure);
    }
}

void FileMeasure::take(double seconds) {
    chain_.duree_mesuree = seconds;
    chain_.duree_piste_texte = format_heure(seconds, platform_.decimal_mark);
    TypeTagV1 tag{platform_.disk};
    list_.genre_lu = nom_du_genre(tag.LireTag(list_.nom_fichier_maj).Genre());
}

void FileMeasure::report(const Failure& failure) {
    reason_ = failure.what();
    list_.mesure_echouee = true;
}

} // namespace sonarelle
