#include "metadata/TypeTagV1.h"

#include "metadata/tag_block.h"
#include "platform/failure.h"
#include "platform/text.h"

namespace sonarelle {

namespace {

// Widths of the fields in the tag, in characters.
constexpr int line_width = 30;
constexpr int year_width = 4;
constexpr int comment_width = 28;

constexpr std::string_view mark = "TAG";
constexpr std::string_view zero{"\0", 1};

constexpr std::size_t track_offset = 126;
constexpr std::size_t genre_offset = 127;
// One below the last code that can be written: a tag with code 147 reads as one without a genre.
constexpr int last_code_read = genre_count - 2;

int number_at(std::string_view block, std::size_t offset) {
    return static_cast<unsigned char>(block[offset]);
}

std::string setter_text(std::string_view text, int width) {
    return std::string{left(TypeTagV1::FiltrerTexte(text), static_cast<std::size_t>(width))};
}

std::size_t checked_count(std::int32_t count) {
    if (count < 0)
        throw Failure{FailureNumber::wrong_call};
    return static_cast<std::size_t>(count);
}

} // namespace

TypeTagV1 TypeTagV1::LireTag(std::string_view fichier) {
    clear();
    try {
        read_raw(fichier);
    } catch (const Failure&) {
        clear();
    }
    return filtered();
}

void TypeTagV1::read_raw(std::string_view fichier) {
    const auto file = disk_->open(fichier);
    const std::string block = tag_block::read(*file);
    if (!tag_block::is_tag(block))
        return;
    const std::string fields = from_windows_1252(std::string_view{block}.substr(mark.size(), 122));
    artiste_ = ExtraireChamp(fields, 31, line_width);
    album_ = ExtraireChamp(fields, 61, line_width);
    titre_ = ExtraireChamp(fields, 1, line_width);
    annee_ = ExtraireChamp(fields, 91, year_width);
    commentaire_ = ExtraireChamp(fields, 95, comment_width);
    // The track's byte counts whatever the byte before it says; the last two characters of a long comment are lost.
    piste_ = number_at(block, track_offset);
    const int code = number_at(block, genre_offset);
    genre_ = code <= last_code_read ? code : no_genre;
    valide_ = true;
}

TypeTagV1 TypeTagV1::filtered() const {
    TypeTagV1 tag{*disk_};
    tag.set_Valide(valide_);
    tag.set_Artiste(artiste_);
    tag.set_Album(album_);
    tag.set_Piste(piste_);
    tag.set_Titre(titre_);
    tag.set_Genre(genre_);
    tag.set_Annee(annee_);
    tag.set_Commentaire(commentaire_);
    return tag;
}

bool TypeTagV1::EcrireTag(std::string_view fichier) const {
    try {
        write(fichier);
        return true;
    } catch (const Failure&) {
        return false;
    }
}

void TypeTagV1::write(std::string_view fichier) const {
    const std::string new_block = valide_ ? block() : std::string{};
    const auto file = disk_->open(fichier);
    const bool has_tag = tag_block::is_tag(tag_block::read(*file));
    const std::int64_t audio_bytes = file->length() - (has_tag ? tag_block::size : 0);
    tag_block::replace(*disk_, fichier, *file, audio_bytes, new_block);
}

std::string TypeTagV1::block() const {
    if (piste_ < 0 || piste_ > 255)
        throw Failure{FailureNumber::wrong_call, text_of(piste_), "un numéro de piste va de 0 à 255"};
    std::string text{mark};
    text += CompleterChamp(titre_, line_width);
    text += CompleterChamp(artiste_, line_width);
    text += CompleterChamp(album_, line_width);
    text += CompleterChamp(annee_, year_width);
    text += CompleterChamp(commentaire_, comment_width);
    text += zero;
    std::string bytes = to_windows_1252(text);
    bytes += static_cast<char>(static_cast<unsigned char>(piste_.value()));
    bytes += static_cast<char>(static_cast<unsigned char>(genre_));
    return bytes;
}

void TypeTagV1::set_Artiste(std::string_view text) {
    artiste_ = setter_text(text, line_width);
}

void TypeTagV1::set_Album(std::string_view text) {
    album_ = setter_text(text, line_width);
}

void TypeTagV1::set_Titre(std::string_view text) {
    titre_ = setter_text(text, line_width);
}

void TypeTagV1::set_Genre(std::int32_t code) {
    genre_ = code >= 0 && code < genre_count ? code : no_genre;
}

void TypeTagV1::set_Annee(std::string_view text) {
    annee_ = setter_text(text, year_width);
}

void TypeTagV1::set_Commentaire(std::string_view text) {
    commentaire_ = setter_text(text, comment_width);
}

std::string TypeTagV1::ExtraireChamp(std::string_view bloc, Integer debut, std::int32_t longueur,
                                     std::string_view fin) {
    if (debut < 1)
        throw Failure{FailureNumber::wrong_call};
    const auto field = mid(bloc, static_cast<std::size_t>(debut.value()), checked_count(longueur));
    return std::string{field.substr(0, field.find(fin.empty() ? zero : fin))};
}

std::string TypeTagV1::FiltrerTexte(std::string_view texte) {
    const std::string_view rest = texte.substr(texte.rfind('\0') + 1);
    std::string kept;
    kept.reserve(rest.size());
    for (std::size_t i = 0; i < rest.size(); ++i) {
        const auto byte = static_cast<unsigned char>(rest[i]);
        if (byte >= 32 && byte <= 126)
            kept += rest[i];
        else if (rest.substr(i, 2) == "\r\n")
            kept += rest.substr(i++, 2);
    }
    return kept;
}

std::string TypeTagV1::CompleterChamp(std::string_view texte, Integer longueur) {
    const std::size_t width = checked_count(longueur.value());
    const std::string_view kept = left(texte, width);
    return std::string{kept}.append(width - character_count(kept), '\0');
}

} // namespace sonarelle
