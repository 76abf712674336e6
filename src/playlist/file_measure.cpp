#include "playlist/file_measure.h"

#include "metadata/TypeTagV1.h"
#include "metadata/genre_table.h"
#include "platform/failure.h"
#include "platform/media.h"
#include "playout/duration_text.h"

namespace sonarelle {

void FileMeasure::met_ajour() {
    const bool measured = ErrorIndicator{}.skip([this] {
        const auto graph = platform_.media.create_graph();
        graph->RenderFile(list_.nom_fichier_maj);
        chain_.duree_mesuree = graph->get_Duration();
        chain_.duree_piste_texte = format_heure(chain_.duree_mesuree, platform_.decimal_mark);
        TypeTagV1 tag{platform_.disk};
        list_.genre_lu = nom_du_genre(tag.LireTag(list_.nom_fichier_maj).Genre());
    });
    if (!measured)
        list_.mesure_echouee = true;
}

} // namespace sonarelle
