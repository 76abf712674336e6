#include "playlist/list_clearing.h"

#include <utility>
#include <vector>

#include "platform/application.h"
#include "platform/dialogs.h"
#include "platform/disk.h"
#include "platform/failure.h"
#include "platform/paths.h"
#include "platform/shell.h"

namespace sonarelle {

namespace {

constexpr std::size_t names_told = 10;

bool has_wildcard(std::string_view name) {
    return name.find_first_of("*?") != std::string_view::npos;
}

} // namespace

ListClearing::ListClearing(const Platform& platform, const StationSettings& settings, ListState& state,
                           Liste_son& window, ListDocument& document, std::function<int()> row_on_air)
    : platform_{platform},
      settings_{settings},
      state_{state},
      window_{window},
      document_{document},
      row_on_air_{std::move(row_on_air)} {}

void ListClearing::offer_paste() {
    offered_ = platform_.shell.clipboard_text();
    if (!offered_.empty())
        window_.coller.enabled = true;
}

void ListClearing::Effacer_liste() {
    if (may_empty())
        empty();
}

bool ListClearing::may_empty() const {
    const int row = row_on_air_();
    if (row == 0)
        return true;
    const MessageBox question{std::string{name_of_path(window_.rows.text(row))} +
                                  " est à l'antenne\nSans autre liste l'antenne se taira à la fin de ce titre\n"
                                  "Effacer la liste ?",
                              std::string{application_title}, Buttons::yes_no, Icon::warning, 2};
    return platform_.dialogs.MsgBox(question) == Answer::yes;
}

// What another program has put on the clipboard is its own.
void ListClearing::empty() {
    if (const std::string offered = std::exchange(offered_, {});
        !offered.empty() && platform_.shell.clipboard_text() == offered)
        platform_.shell.set_clipboard_text("");
    window_.coller.enabled = false;
    window_.Supprimer_fichier.caption = "Supprimer le fichier";
    for (std::string* name : {&state_.nom_fichier, &state_.nom_sauvegarde, &state_.fichier_liste,
                              &state_.fichier_liste_precedent, &state_.extension_fichier})
        name->clear();
    window_.caption = settings_.nom_radio;
    window_.track_name.caption = settings_.nom_radio;
    window_.list_status.caption = "Ouverture en attente";
    window_.file_in_use.caption = settings_.nom_radio;
    document_.edits.clear();
    window_.search.set_text(state_.nom_sauvegarde);
    window_.remaining.caption = "00:00:00";
    window_.progress.caption = "Liste";
    document_.a_mettre_Enabled();
}

void ListClearing::Supprimer_fichier() {
    if (state_.fichier_liste.empty()) {
        const MessageBox box{" Aucun fichier en mémoire", " Suppréssion Fichier impossible "};
        (void)platform_.dialogs.MsgBox(box);
        return;
    }
    const std::string name = state_.fichier_liste; // while a box is open the chain may save under another
    if (!may_delete(name) || !may_empty())
        return;
    if (!ErrorIndicator{}.skip([&] { platform_.disk.Kill(list_path(platform_, name)); }))
        return show_box(platform_.dialogs, "Autorisation de suppréssion refusée", Icon::stop);
    ErrorIndicator{}.skip([this] { document_.default_list_file().notice_deletion(); });
    empty();
}

bool ListClearing::may_delete(const std::string& name) const {
    const MessageBox question{" Vous allez supprimer le fichier :  " + name +
                                  "\nATTENTION si le NOM de FICHIER est : *.dfm\n"
                                  "Vous SUPPRIMEZ TOUS LES FICHIERS LISTES\n"
                                  "Voulez vous continuer ? " +
                                  (has_wildcard(name) ? names_of_files(name) : std::string{}),
                              " Suppréssion Fichier ?", Buttons::yes_no, Icon::warning, 2};
    return platform_.dialogs.MsgBox(question) == Answer::yes;
}

std::string ListClearing::names_of_files(const std::string& pattern) const {
    std::vector<std::string> names;
    ErrorIndicator{}.skip([&] {
        for (std::string name = platform_.disk.Dir(list_path(platform_, pattern)); !name.empty();
             name = platform_.disk.Dir())
            names.push_back(std::move(name));
    });
    std::string text = "\n\n" + std::to_string(names.size()) + " fichiers :";
    for (std::size_t place = 0; place < names.size() && place < names_told; ++place)
        text += "\n" + names[place];
    return names.size() > names_told ? text + "\n..." : text;
}

} // namespace sonarelle
