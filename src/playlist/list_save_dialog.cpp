#include "playlist/list_save_dialog.h"

#include "platform/dialogs.h"
#include "platform/disk.h"
#include "platform/failure.h"
#include "platform/paths.h"
#include "platform/text.h"
#include "playlist/list_file.h"
#include "playlist/list_rows.h"

namespace sonarelle {

namespace {

std::string with_dfm_ending(std::string_view name) {
    const std::size_t count = character_count(name);
    if (count < 4)
        throw Failure{FailureNumber::wrong_call, std::string{name}};
    return std::string{left(name, count - 4)} + ".dfm";
}

} // namespace

ListSaveDialog::ListSaveDialog(const Platform& platform, const StationSettings& settings, ListState& list,
                               Liste_son& window, ListDocument& document)
    : platform_{platform},
      settings_{settings},
      list_{list},
      window_{window},
      document_{document} {}

void ListSaveDialog::A_enreg_sous() {
    if (window_.rows.count() == 0) {
        show_box(platform_.dialogs, "Rien a sauvegarder !", Icon::warning);
        return;
    }
    try {
        ask_and_save();
    } catch (const Failure& failure) {
        show_box(platform_.dialogs, failure.what(), Icon::stop);
    }
}

void ListSaveDialog::A_Convertir_dfm() {
    const auto offer = [this] { list_.nom_sauvegarde = with_dfm_ending(list_.nom_sauvegarde); };
    if (ErrorIndicator{}.skip(offer))
        A_enreg_sous();
}

void ListSaveDialog::ask_and_save() {
    enter_program_folder(platform_);
    const ChosenFile chosen = platform_.dialogs.save_file(
        {"Enregistrer sous", settings_.chemin_programme, list_.nom_sauvegarde, "fichier liste (*.dfm)|*.dfm"});
    if (chosen.cancelled)
        return;
    detecte_extention(chosen.file_name);
    if (list_.extension_fichier != "dfm")
        return;
    list_.fichier_liste = lower_case(chosen.file_name);
    window_.file_name.set_text(list_.fichier_liste);
    document_.recup_nom();
    const auto old_list = document_.default_list_file().state_of(list_.fichier_liste);
    if (!may_overwrite())
        return;
    document_.default_list_file().save_as(list_.fichier_liste, old_list,
                                          [this](ListWriter& writer) { write_rows(writer); });
    announce_saved();
}

void ListSaveDialog::detecte_extention(const std::string& name) {
    list_.extension_fichier = extension_of(name);
    if (name.empty())
        list_.nom_fichier = default_list;
}

bool ListSaveDialog::may_overwrite() const {
    if (platform_.disk.Dir(list_.fichier_liste, FileAttributes::hidden | FileAttributes::system).empty())
        return true;
    const MessageBox question{"Attention le fichier : " + list_.fichier_liste +
                                  " existe \nil va ètre écrasé !\nContinuer ?",
                              std::string{application_title}, Buttons::yes_no, Icon::stop, 2};
    return platform_.dialogs.MsgBox(question) == Answer::yes;
}

void ListSaveDialog::write_rows(ListWriter& writer) {
    enreg_liste record;
    for (int row = 1; row <= window_.rows.count(); ++row) {
        write_row(row, record);
        writer.write(record);
    }
}

void ListSaveDialog::write_row(int row, enreg_liste& record) {
    window_.rows.select(row);
    if (window_.rows.sub_item(row, list_column::duration).empty())
        window_.rows.set_sub_item(row, list_column::duration, std::string{unknown_duration});
    try {
        fill_record(record, window_.rows.row(row), platform_.decimal_mark, [](auto&& statement) { statement(); });
    } catch (const Failure& failure) {
        throw Failure{failure.number, "ligne " + std::to_string(row) + " : " + failure.source, failure.description};
    }
}

void ListSaveDialog::announce_saved() {
    list_.nom_sauvegarde = list_.fichier_liste;
    list_.extension_fichier.clear();
    document_.A_sauve();
    window_.A_ecoute.enabled = true;
    window_.caption = "Fichier liste : " + list_.fichier_liste;
    document_.show_file_in_use();
}

} // namespace sonarelle
