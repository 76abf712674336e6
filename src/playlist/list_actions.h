#pragma once

#include <string_view>

namespace sonarelle {

/// The actions of the list's menus that go over one row or over all of them.
enum class ListAction {
    prechar,
    prechar_fich,
    Modifier_lettre_lecteur,
    Modifier_volume,
    a_debutpiste,
    a_debutpiste_fichier,
    a_mettre_a_jour,
    a_mettre_a_jour_liste,
    a_modif,
    a_modifie_morceau,
    load_on_liste,
    copier_,
    Couper_,
    coller_,
    drop_row,
    drop_files,
    sort_rows
};

/// What an action asks of the list and of the operator before it begins.
struct ListActionRow {
    ListAction action = ListAction::prechar;
    bool needs_saving = false; ///< Refused while modifications aren't saved to the default list.
    bool needs_dfm = false;    ///< Refused until the list has been saved in its present form.
    bool tells_work = false;   ///< Where another action is under way, the operator is told why nothing happens.

    std::string_view question = {};     ///< Yes or No before all else; lines parted by line feeds.
    std::string_view input_title = {};  ///< Of the box that asks for the new value; empty: there is none.
    std::string_view input_prompt = {}; ///< Its lines.
    std::string_view input_preset = {};
    bool tells_first_row = false;           ///< The box tells the first row's value and the number of rows.
    std::string_view caption_of_value = {}; ///< Of its menu entry afterwards, before the value.
};

[[nodiscard]] const ListActionRow& list_action(ListAction action);

} // namespace sonarelle
