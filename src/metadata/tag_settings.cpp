#include "metadata/tag_settings.h"

#include <utility>

#include "metadata/ini_file.h"
#include "platform/failure.h"
#include "platform/paths.h"

namespace sonarelle {

namespace {

constexpr std::string_view section_name = "global";
constexpr std::string_view mask_key = "masque";

std::string report_of(std::string_view fichier, std::string_view section, std::string_view cle,
                      std::string_view valeur) {
    std::string report = "Ok - Ecriture de la ";
    report.append(cle).append(" dans la ").append(section).append(" du fichier : \r\n\r\n");
    report.append(fichier).append("\r\n\r\nValeur de la clé = ").append(valeur);
    return report;
}

} // namespace

std::string ecrire_ini(Disk& disk, Dialogs& dialogs, std::string_view fichier, std::string_view section,
                       std::string_view cle, std::string_view valeur) {
    try {
        write_ini_value(disk, fichier, section, cle, valeur);
    } catch (const Failure&) {
        (void)dialogs.MsgBox({.text = "erreur lors de l'écriture", .title = {}, .icon = Icon::stop});
        return {};
    }
    return report_of(fichier, section, cle, valeur);
}

TagSettings::TagSettings(Disk& disk, Dialogs& dialogs, std::string program_folder, const TextBox& txtmasque,
                         Button& save_button)
    : disk_{disk},
      dialogs_{dialogs},
      program_folder_{std::move(program_folder)},
      txtmasque_{txtmasque},
      save_button_{save_button} {}

void TagSettings::window_loads() {
    if (!disk_.Dir(file_name).empty())
        save_button_.enabled = false;
}

void TagSettings::save() {
    try {
        ecrire_ini(disk_, dialogs_, join_path(program_folder_, file_name), section_name, mask_key, txtmasque_.text());
        (void)dialogs_.MsgBox({.text = "Sauvegarde Ok !", .title = {}, .icon = Icon::information});
        save_button_.enabled = false;
    } catch (const Failure&) { // The button stays on: it can be pressed again.
    }
}

} // namespace sonarelle
