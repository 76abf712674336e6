#include "platform/failure.h"

#include <algorithm>
#include <array>

namespace sonarelle {

namespace {

struct Sentence {
    int number;
    std::string_view text;
};

constexpr std::array sentences{
    Sentence{failure_number::wrong_call, "Appel ou argument incorrect"},
    Sentence{failure_number::overflow, "Dépassement de capacité"},
    Sentence{failure_number::not_in_selection, "L'indice n'appartient pas à la sélection"},
    Sentence{failure_number::division_by_zero, "Division par zéro"},
    Sentence{failure_number::type_mismatch, "Type incompatible"},
    Sentence{failure_number::wrong_file_name, "Nom de fichier incorrect"},
    Sentence{failure_number::file_not_found, "Fichier introuvable"},
    Sentence{failure_number::device_fault, "Erreur d'entrée/sortie du périphérique"},
    Sentence{failure_number::file_exists, "Le fichier existe déjà"},
    Sentence{failure_number::disk_full, "Disque plein"},
    Sentence{failure_number::past_end_of_file, "Lecture au-delà de la fin du fichier"},
    Sentence{failure_number::wrong_record_number, "Numéro d'enregistrement incorrect"},
    Sentence{failure_number::too_many_files, "Trop de fichiers ouverts"},
    Sentence{failure_number::device_unavailable, "Périphérique non disponible"},
    Sentence{failure_number::permission_refused, "Permission refusée"},
    Sentence{failure_number::disk_not_ready, "Disque non prêt"},
    Sentence{failure_number::other_drive, "Impossible de renommer vers un autre lecteur"},
    Sentence{failure_number::path_access, "Erreur d'accès au chemin ou au fichier"},
    Sentence{failure_number::path_not_found, "Chemin d'accès introuvable"},
    Sentence{failure_number::no_object, "Objet non défini"},
    Sentence{failure_number::unplayable_file, "Format inconnu ou fichier illisible"},
    Sentence{failure_number::dialog_cancelled, "Choix annulé"},
};

} // namespace

std::string_view failure_description(int number) {
    const auto* found = std::ranges::find(sentences, number, &Sentence::number);
    return found == sentences.end() ? std::string_view{"Erreur inconnue"} : found->text;
}

Failure::Failure(int failure_number, std::string failure_source, std::string failure_sentence)
    : number{failure_number},
      source{std::move(failure_source)},
      description{std::move(failure_sentence)},
      message_{source.empty() ? description : source + " : " + description} {}

} // namespace sonarelle
