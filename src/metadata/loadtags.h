#pragma once

#include <string_view>

#include "platform/controls.h"
#include "platform/disk.h"

namespace sonarelle {

/// The fields of the file manager that show a file's tag.
struct TagFields {
    TextBox& txtv1Titre;
    TextBox& txtv1Artiste;
    TextBox& txtv1Album;
    TextBox& txtv1Annee;
    TextBox& txtv1Piste;
    TextBox& txtv1Commentaire;
    ComboBox& genre; ///< The genre's name.
};

/// Shows the file's tag as it stands in the file, accents included; a file without one empties the fields. A fault in
/// one field leaves the others to be filled, and none comes out.
void loadtags(Disk& disk, std::string_view fichier, const TagFields& fields);

} // namespace sonarelle
