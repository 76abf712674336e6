#include "configuration/settings_rewrite.h"

#include <utility>

#include "platform/dialogs.h"
#include "platform/failure.h"

namespace sonarelle {

std::string restart_needed() {
    return "Pour prendre effet..le redémarrage de " + std::string{application_title} + " est nécessaire";
}

SettingsRewrite::SettingsRewrite(const Platform& platform, StationSettings& settings, Ends ends)
    : platform_{platform},
      settings_{settings},
      store_{platform},
      ends_{std::move(ends)} {}

void SettingsRewrite::A_purger_registre_Click() {
    const bool first_start = settings_.premier_lancement.is_true();
    if (!first_start && !wants_to_purge())
        return;
    write(&SettingRow::first);
    store_.assign_column(settings_, &SettingRow::first);
    settings_.mix_defaut = settings_.mix_courant;
    settings_.prechargement_defaut = settings_.prechargement;
    if (first_start)
        return ends_.at_once();
    tell("Purge éffectué avec succés\n\n" + restart_needed());
    ends_.confirmed();
}

bool SettingsRewrite::wants_to_purge() {
    const MessageBox question{"Tous les réglages reviennent à ceux du premier démarrage,\net " +
                                  std::string{application_title} +
                                  " s'arrète avec ce qui est à l'antenne.\nContinuer ?",
                              std::string{application_title}, Buttons::yes_no, Icon::warning, 2};
    return platform_.dialogs.MsgBox(question) == Answer::yes;
}

// What is on the air keeps its overlap, its name and its colours until the next start.
void SettingsRewrite::A_revenir_couleur_Click() {
    write(&SettingRow::back);
    ErrorIndicator{}.skip([this] { store_.write(setting_section::config, "banniere", settings_.banniere); });
    const SettingRow& logo = setting_row(setting_section::config, "logo");
    store_.assign(settings_, logo, expand_setting(*logo.back, platform_.program_folder));
    tell(restart_needed() + " ");
}

// A store that can't be written says so: the operator would otherwise start again with the old values.
void SettingsRewrite::write(SettingsStore::Value column) {
    try {
        store_.write_column(column);
    } catch (const Failure& failure) {
        show_box(platform_.dialogs, failure.what(), Icon::stop);
    }
}

void SettingsRewrite::tell(const std::string& text) {
    show_box(platform_.dialogs, text, Icon::information);
}

} // namespace sonarelle
