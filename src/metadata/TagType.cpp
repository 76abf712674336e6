#include "metadata/TagType.h"

namespace sonarelle {

Flag ecrire_tag(std::string_view fichier, const TagType& tag) {
    return tag.V1.EcrireTag(fichier);
}

} // namespace sonarelle
