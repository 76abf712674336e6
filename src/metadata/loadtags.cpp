#include "metadata/loadtags.h"

#include <string>

#include "metadata/TypeTagV1.h"
#include "platform/failure.h"

namespace sonarelle {

void loadtags(Disk& disk, std::string_view fichier, const TagFields& fields) {
    ErrorIndicator fault;
    TypeTagV1 tag{disk};
    fault.skip([&] { (void)tag.LireTag(fichier); }); // The raw fields are shown, not what the setters make of them.
    fault.skip([&] { fields.txtv1Titre.set_text(tag.Titre()); });
    fault.skip([&] { fields.txtv1Annee.set_text(tag.Annee()); });
    fault.skip([&] { fields.txtv1Piste.set_text(std::to_string(tag.Piste())); });
    fault.skip([&] {
        if (fields.txtv1Piste.text() == "0")
            fields.txtv1Piste.set_text("");
    });
    fault.skip([&] { fields.txtv1Artiste.set_text(tag.Artiste()); });
    fault.skip([&] { fields.txtv1Album.set_text(tag.Album()); });
    fault.skip([&] { fields.genre.set_text(std::string{nom_du_genre(tag.Genre())}); });
    fault.skip([&] { fields.txtv1Commentaire.set_text(tag.Commentaire()); });
}

} // namespace sonarelle
