#pragma once

#include <array>

#include "platform/controls.h"

namespace sonarelle {

/// The control window of the draws: what was drawn already, the draws with their hits, and the file that a draw has
/// brought on a deck.
struct liste : Window {
    liste()
        : Window{"liste"} {
        caption = "Controle en mode lecture liste";
        reload.hint = "Recharger le tableau des fichiers déja écouté en mode aléatoire";
        clear_lists.hint = "Effacer la liste";
        clear_table.hint = "Effacer toutes les donnees du tableau";
        add_current.hint = "Chargement  manuel dans le tableau du fichier en cours";
        on_key_press = [this](char32_t key) {
            if (key == U'\x1b')
                close.click();
        };
    }

    Label heading{*this, "Label1", "Lecture aléatoire"}; ///< Of what the draws are.
    ListBox played{*this, "List1"};                      ///< The numbers that were drawn already.
    ListBox draws{*this, "List2"};                       ///< The log of the draws.
    Label total_index{*this, "Label2", "Total index ( 0)"};
    Label total{*this, "Label3", "0"};      ///< How many were drawn already.
    Label null_draws{*this, "Label4", "0"}; ///< Draws of rows that had been played.
    TextBox number{*this, "Text1", "1"};    ///< The number to search.
    TextBox finding{*this, "Text2"};        ///< Whether it was drawn already.
    TextBox drawn{*this, "Text3"};          ///< The draw.
    Label file{*this, "Label5"};            ///< The list that is drawn from.

    Label jingles_heading{*this, "Label6", "Jingles"};
    ListBox jingles_played{*this, "List3"};
    ListBox jingle_draws{*this, "List4"};
    Label jingle_name{*this, "Label7"};
    Label jingle_index{*this, "Label8"};      ///< How many records the jingles' list has.
    Label jingle_total{*this, "Label9", "0"}; ///< How many of them were drawn already.
    Label jingle_every{*this, "Label10"};     ///< After how many tracks one comes.
    Label jingle_file{*this, "Label11"};
    TextBox jingle_drawn{*this, "Text4"};

    Label file_heading{*this, "Label12"}; ///< The file that a draw has brought on a deck, and what its row says.
    Label file_name{*this, "Label13"};
    Label file_start{*this, "Label14"};
    Label file_end{*this, "Label15"};
    Label file_genre{*this, "Label16"};
    Label file_volume{*this, "Label17"};
    Label file_duration{*this, "Label18"};

    Button close{*this, "Command1", "Quitter"};
    Button reload{*this, "Command2", "Charger tableau"};
    Button clear_lists{*this, "Command3", "Liste clear"};
    Button clear_table{*this, "Command4", "Tableau clear"};
    Button add_current{*this, "Command5", "Charger dans le tableau"};
};

} // namespace sonarelle
