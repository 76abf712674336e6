#include "platform/failure.h"

#include <algorithm>
#include <array>

namespace sonarelle {

namespace {

struct Sentence {
    FailureNumber number;
    std::string_view text;
};

constexpr std::array sentences{
    Sentence{FailureNumber::wrong_call, "Appel ou argument incorrect"},
    Sentence{FailureNumber::overflow, "Dépassement de capacité"},
    Sentence{FailureNumber::not_in_selection, "L'indice n'appartient pas à la sélection"},
    Sentence{FailureNumber::division_by_zero, "Division par zéro"},
    Sentence{FailureNumber::type_mismatch, "Type incompatible"},
    Sentence{FailureNumber::wrong_file_name, "Nom de fichier incorrect"},
    Sentence{FailureNumber::file_not_found, "Fichier introuvable"},
    Sentence{FailureNumber::device_fault, "Erreur d'entrée/sortie du périphérique"},
    Sentence{FailureNumber::file_exists, "Le fichier existe déjà"},
    Sentence{FailureNumber::disk_full, "Disque plein"},
    Sentence{FailureNumber::past_end_of_file, "Lecture au-delà de la fin du fichier"},
    Sentence{FailureNumber::wrong_record_number, "Numéro d'enregistrement incorrect"},
    Sentence{FailureNumber::too_many_files, "Trop de fichiers ouverts"},
    Sentence{FailureNumber::device_unavailable, "Périphérique non disponible"},
    Sentence{FailureNumber::permission_refused, "Permission refusée"},
    Sentence{FailureNumber::disk_not_ready, "Disque non prêt"},
    Sentence{FailureNumber::other_drive, "Impossible de renommer vers un autre lecteur"},
    Sentence{FailureNumber::path_access, "Erreur d'accès au chemin ou au fichier"},
    Sentence{FailureNumber::path_not_found, "Chemin d'accès introuvable"},
    Sentence{FailureNumber::no_object, "Objet non défini"},
    Sentence{FailureNumber::unplayable_file, "Format inconnu ou fichier illisible"},
    Sentence{FailureNumber::dialog_cancelled, "Choix annulé"},
};

} // namespace

std::string digits_of(FailureNumber number) {
    return std::to_string(static_cast<int>(number));
}

std::string_view failure_description(FailureNumber number) {
    const auto* found = std::ranges::find(sentences, number, &Sentence::number);
    return found == sentences.end() ? std::string_view{"Erreur inconnue"} : found->text;
}

Failure::Failure(FailureNumber failure_number, std::string failure_source, std::string failure_sentence)
    : number{failure_number},
      source{std::move(failure_source)},
      description{std::move(failure_sentence)},
      message_{source.empty() ? description : source + " : " + description} {}

} // namespace sonarelle
