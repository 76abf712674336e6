#include "configuration/settings_rewrite.h"

#include <utility>

#include "platform/dialogs.h"
#include "platform/failure.h"

namespace sonarelle {

namespace {

std::string restart_needed() {
    return "Pour prendre effet..le redémarrage de " + std::string{application_title} + " est nécessaire";
}

} // namespace

SettingsRewrite::SettingsRewrite(const Platform& platform, StationSettings& settings, std::function<void()> end_process)
    : platform_{platform}, settings_{settings},
      store_{platform.settings, platform.program_folder, platform.decimal_mark}, end_process_{std::move(end_process)} {}

void SettingsRewrite::A_purger_registre_Click() {
    rewrite(&SettingRow::first);
    if (!settings_.premier_lancement.is_true())
        tell("Purge éffectué avec succés\n\n" + restart_needed());
    end_process_();
}

void SettingsRewrite::A_revenir_couleur_Click() {
    rewrite(&SettingRow::back);
    tell(restart_needed() + " ");
    end_process_();
}

// A store that can't be written says so: the operator would otherwise start again with the old values.
void SettingsRewrite::rewrite(SettingsStore::Value column) {
    try {
        store_.write_column(column);
    } catch (const Failure& failure) {
        platform_.dialogs.MsgBox({failure.what(), std::string{application_title}, Buttons::ok, Icon::stop});
    }
    store_.assign_column(settings_, column);
    settings_.mix_defaut = settings_.mix_courant;
    settings_.prechargement_defaut = settings_.prechargement;
}

void SettingsRewrite::tell(const std::string& text) {
    platform_.dialogs.MsgBox({text, std::string{application_title}, Buttons::ok, Icon::information});
}

} // namespace sonarelle
