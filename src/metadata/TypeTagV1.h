#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "metadata/genre_table.h"
#include "platform/disk.h"
#include "platform/numbers.h"

namespace sonarelle {

/// The ID3v1.1 tag, the last 128 bytes of an audio file. The setters keep only what every reader of tags shows well:
/// no accents, no control characters but line breaks. The disk outlives it.
class TypeTagV1 {
public:
    explicit TypeTagV1(Disk& disk)
        : disk_{&disk} {}

    /// Returns what the file's tag says, as the setters make it. This object itself is left holding the raw fields:
    /// the text as it stands in the file, accents included. Without a tag, or when the file can't be read, both are
    /// empty, `Valide` false.
    TypeTagV1 LireTag(std::string_view fichier);

    /// Puts this tag at the end of the file, or removes the file's tag when `Valide` is false. The file is replaced
    /// whole: a full disk, a kill or a power cut leaves the music as it was.
    /// False on any fault: a file of less than 128 bytes, a track outside 0 to 255, a disk that refuses.
    [[nodiscard]] bool EcrireTag(std::string_view fichier) const;
    /// The same, for a caller who says why it failed. @throws Failure in place of false.
    void write(std::string_view fichier) const;

    [[nodiscard]] bool Valide() const { return valide_; }
    [[nodiscard]] const std::string& Artiste() const { return artiste_; }
    [[nodiscard]] const std::string& Album() const { return album_; }
    [[nodiscard]] int Piste() const { return piste_.value(); }
    [[nodiscard]] const std::string& Titre() const { return titre_; }
    [[nodiscard]] std::int32_t Genre() const { return genre_; }
    [[nodiscard]] const std::string& Annee() const { return annee_; }
    [[nodiscard]] const std::string& Commentaire() const { return commentaire_; }

    // Texts are filtered, then cut to the width that they have in the tag.
    void set_Valide(bool value) { valide_ = value; }
    void set_Artiste(std::string_view text);
    void set_Album(std::string_view text);
    void set_Piste(Integer value) { piste_ = value; }
    void set_Titre(std::string_view text);
    /// 0 to 147 and 255 are kept, anything else is no genre.
    void set_Genre(std::int32_t code);
    void set_Annee(std::string_view text);
    void set_Commentaire(std::string_view text);

    /// `longueur` characters of `bloc` from the 1-based `debut` on, cut before the first `fin`, which is the character
    /// 0 when it is empty. @throws Failure 5 for a start below 1 or a negative length.
    [[nodiscard]] static std::string ExtraireChamp(std::string_view bloc, Integer debut, std::int32_t longueur,
                                                   std::string_view fin = {});

    /// What stands behind the last character 0, without the characters below 32 or above 126; a carriage return with
    /// its line feed stays.
    [[nodiscard]] static std::string FiltrerTexte(std::string_view texte);

    /// Cut to `longueur` characters, or filled up to it with the character 0. @throws Failure 5 for a negative length.
    [[nodiscard]] static std::string CompleterChamp(std::string_view texte, Integer longueur);

private:
    void clear() { *this = TypeTagV1{*disk_}; }
    void read_raw(std::string_view fichier);
    [[nodiscard]] TypeTagV1 filtered() const;
    [[nodiscard]] std::string block() const;

    Disk* disk_;
    bool valide_ = false;
    std::string artiste_;
    std::string album_;
    Integer piste_;
    std::string titre_;
    std::int32_t genre_ = no_genre;
    std::string annee_;
    std::string commentaire_;
};

} // namespace sonarelle
