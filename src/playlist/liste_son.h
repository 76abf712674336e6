#pragma once

#include <array>
#include <vector>

#include "platform/controls.h"
#include "platform/row_table.h"

namespace sonarelle {

/// The list window: the rows of the current list and what is done with them.
struct Liste_son : Window {
    Liste_son();

    RowTable rows;
    TextBox file_name{*this, "Text2"}; ///< Full name of the list or of the chosen file. Never shown.
    Label list_status{*this, "Label1",
                      "Ouverture en attente (0)"}; ///< What the list is doing, and how many rows it has.
    Label track_name{*this, "Label2"};             ///< Name of the track on the air.
    Label progress{*this, "Label3"};               ///< Elapsed second and mix point of the main deck.
    Label remaining{*this, "Label4", "00:00:00"};  ///< Remaining time of the main deck.
    Label zap_status{*this, "Label12", "Zapping autorisé"};
    Label time_of_day{*this, "Label13"};  ///< Time of day.
    Label running_deck{*this, "Label16"}; ///< Which deck plays in the chain over decks.
    Label file_in_use{*this, "Label25"};  ///< The list that is read.
    ComboBox search{*this, "Combo1", "Rechercher"};
    Label search_hits{*this, "search_hits"}; ///< Which of how many rows that the search has found is selected.
    Image play_list{*this, "Image1"};        ///< Starts the list.
    Image zap{*this, "Image2"};              ///< Zaps.
    Image stop_decks{*this, "Image3"};       ///< Stops all decks.
    Image show_playing_row{*this, "Image4"}; ///< Shows the row that plays.
    Image show_main_window{*this, "Image5"};
    Image look{*this, "Image6"};
    Image help{*this, "Image7"};
    Image side_picture{*this, "Image10"};        ///< Picture beside the window's buttons.
    Label list_label{*this, "Label5", "&Liste"}; ///< The labels that act as buttons.
    Label delete_label{*this, "Label6", "S&uppr."};
    Label add_label{*this, "Label7", "&Ajouter"};
    Label close_label{*this, "Label9", "Fermer"};
    Label search_label{*this, "Label10", "S"};
    Label display_label{*this, "Label11", "A.."};
    Label jingles_status{*this, "Label14", "Jingle auto "};
    Label items_status{*this, "Label15", "Liste / Off"};
    Image jingles_switch{*this, "Image13", "bouton_off.jpg"}; ///< Switch of the jingles.
    Image items_switch{*this, "Image14", "bouton_off.jpg"};   ///< Switch of the list items.

    Image player_lamp{*this, "Image17"}; ///< The four reading modes, each picture beside its option.
    Image random_lamp{*this, "Image9"};
    Image defined_end_lamp{*this, "Image11"};
    Image full_length_lamp{*this, "Image12"};
    OptionGroup reading_mode;
    OptionButton player_mode{*this, reading_mode, "Option1", "Lecteur"};
    OptionButton random_mode{*this, reading_mode, "Option2", "Lecture aléatoire"};
    OptionButton defined_end_mode{*this, reading_mode, "Option3", "Lecture durée définie"};
    OptionButton full_length_mode{*this, reading_mode, "Option4", "Lecture durée piste"};

    MenuItem A_revenir_couleur{*this, "A_revenir_couleur", "Revenir au couleur par défaut"};
    MenuItem lect_liste{*this, "lect_liste", "Lecture liste"};
    MenuItem A_a_zapping{*this, "A_a_zapping", "Mode enchainement auto liste"};
    MenuItem A_precoute{*this, "A_precoute", "Pré - écoute fichier"};
    MenuItem A_liste{*this, "A_liste", "Charger liste (C)"};
    MenuItem A_Charge{*this, "A_Charge", "Charger une liste"};
    MenuItem A_liste_anciene{*this, "A_liste_anciene", "Ouvrir le fichier par défaut (liste.dfm)"};
    MenuItem A_enreg_sous{*this, "A_enreg_sous", "Enregistrer la liste sous"};
    MenuItem A_sauve{*this, "A_sauve", "Sauver les modifications dans le fichier par défaut"};
    MenuItem a_Ne_pas_Sauve{*this, "a_Ne_pas_Sauve", "Ne pas sauver les modifications dans le fichier par défaut"};
    MenuItem Supprimer_fichier{*this, "Supprimer_fichier", "&Supprimer le fichier"};
    Label save_as{*this, "Label8", "&Enreg.."};

    MenuItem Convertion{*this, "Convertion", "Convertir liste V < V 6.0.0"};
    MenuItem A_Copen_rfm{*this, "A_Copen_rfm", "Ouvrir liste .rfm Sonarine < V 5.8.0"};
    MenuItem A_Convertir_dfm{*this, "A_Convertir_dfm", "Sauvegarder en liste .dfm => V 5.8.0"};

    MenuItem char1{*this, "char1", "Charger sur Play 1"};
    MenuItem char2{*this, "char2", "Charger sur Play 2"};
    MenuItem char3{*this, "char3", "Charger sur Play 3"};
    MenuItem Couper_{*this, "Couper_", "Couper", "Ctrl+X"};
    MenuItem copier_{*this, "copier_", "Copier", "Ctrl+C"};
    MenuItem coller{*this, "coller", "Coller", "Ctrl+V"};
    MenuItem supprime{*this, "supprime", "Supprimer", "Del"};
    MenuItem Effacer_liste{*this, "Effacer_liste", "Effacer la liste (V)"};
    MenuItem of_deletion{*this, "of_deletion", "Supprimer"}; ///< What the delete label opens.
    MenuItem of_adding{*this, "of_adding", "Ajouter"};       ///< What the add label opens.
    MenuItem ajout_fich{*this, "ajout_fich", "Ajouter un fichier mp3 ; wav ; wma.."};
    MenuItem ajout_fichs{*this, "ajout_fichs", "Ajouter un dossier"};
    MenuItem ajout_jingl{*this, "ajout_jingl", "Ajouter un jingle mp3 ; wav ; wma .."};
    MenuItem ajout_fich_reseau{*this, "ajout_fich_reseau",
                               "Ajouter un fichier avec l'explorateur de Windows (Glisser / déplacer)"};
    MenuItem of_insertion{*this, "of_insertion", "Paramètre insertion"};
    MenuItem inser_avant{*this, "inser_avant", "Insérer avant l'élément sélectionné"};
    MenuItem inser_apres{*this, "inser_apres", "Insérer après l'élément sélectionné"};
    MenuItem inser_fin{*this, "inser_fin", "Insérer en fin de liste"};
    MenuItem A_conserver{*this, "A_conserver", "Conserver dans la recherche"};
    MenuItem A_recherche{*this, "A_recherche", "Recherche auto sur disque"};
    MenuItem find_next{*this, "find_next", "Occurrence suivante", "F3"};
    MenuItem find_previous{*this, "find_previous", "Occurrence précédente", "Shift+F3"};
    MenuItem of_look{*this, "of_look", "Look"}; ///< Colours, pictures, and where the window stands.
    MenuItem T_Printemps{*this, "T_Printemps", "Teinte préchargée : Printemps"};
    MenuItem T_Eté{*this, "T_Eté", "Teinte préchargée : Eté"};
    MenuItem T_Autonne{*this, "T_Autonne", "Teinte préchargée : Automne"};
    MenuItem T_Hiver{*this, "T_Hiver", "Teinte préchargée : Hiver"};
    MenuItem T_Nuit{*this, "T_Nuit", "Teinte préchargée : Nuit"};
    MenuItem a_coul_label{*this, "a_coul_label", "Couleur texte"};
    MenuItem A_coul_texte_liste{*this, "A_coul_texte_liste", "Couleur texte liste"};
    MenuItem A_coul_fenètre{*this, "A_coul_fenètre", "Couleur Fond"};
    MenuItem logofond{*this, "logofond", "Image de fond"};
    MenuItem logo_{*this, "logo_", "Image Menu liste"};
    MenuItem logo_liste{*this, "logo_liste", "Image fond liste"};
    MenuItem A_coul_fond_liste{*this, "A_coul_fond_liste", "Couleur Fond liste"};
    MenuItem logo_menu_fichier{*this, "logo_menu_fichier", "Image Menu fichier"};
    MenuItem a_coul_bouton{*this, "a_coul_bouton", "Couleur Bouton"};
    MenuItem A_coul_text_bouton{*this, "A_coul_text_bouton", "Couleur texte Bouton"};
    MenuItem a_coul_bouton_groupe_lecture{*this, "a_coul_bouton_groupe_lecture", "Couleur bouton (groupe lecture)"};
    MenuItem dock_list{*this, "dock_list", "Accrocher la liste à la fenètre principale", "Alt+Down"};
    MenuItem free_list{*this, "free_list", "Détacher la liste", "Alt+Up"};
    MenuItem Load_Pl{*this, "Load_Pl"};                     ///< The context menu of the rows, with all that follows.
    MenuItem of_row{*this, "of_row", "Ce fichier"};         ///< What is done to the row's file,
    MenuItem of_list{*this, "of_list", "Toute la liste"};   ///< to all rows,
    MenuItem of_file{*this, "of_file", "Fichier de liste"}; ///< and to the file that holds them.
    MenuItem A_ecoute{*this, "A_ecoute", "* Lire ce morceau  * ( jingles sélectionné)"};
    MenuItem A_ecoute_option{*this, "A_ecoute_option", "* Paramètre insertion auto (Jingles News etc..)"};
    MenuItem creer_aleatoire{*this, "creer_aleatoire", "Créer une liste aléatoire avec un fichier.dfm"};

    MenuItem a_mettre_a_jour{*this, "a_mettre_a_jour", "Mettre a jour les infos de ce fichier"};
    MenuItem a_mettre_a_jour_liste{*this, "a_mettre_a_jour_liste", "Mettre a jour les infos de la liste"};
    MenuItem prechar_fich{*this, "prechar_fich", "Tester l'existance du fichier"};
    MenuItem prechar{*this, "prechar", "Tester l'existance des fichiers de cette liste"};
    MenuItem Modifier_lettre_lecteur{*this, "Modifier_lettre_lecteur",
                                     "Modifier uniquement la lettre du lecteur sur toute la liste"};
    MenuItem a_debutpiste{*this, "a_debutpiste", "Modifier le debut piste sur toute la liste"};
    MenuItem A_Debut_piste{*this, "A_Debut_piste"};
    MenuItem a_debutpiste_fichier{*this, "a_debutpiste_fichier", "Modifier le debut piste sur ce fichier"};
    MenuItem a_modif{*this, "a_modif", "Propriété du fichier sélectionné"};
    MenuItem Modifier_volume{*this, "Modifier_volume", "Modifier le volume sur toute la liste"};

    MenuItem a_modifie_morceau{*this, "a_modifie_morceau",
                               "Modifier ce fichier (wav ou autre si votre éditeur le permet)"};
    MenuItem modifier_chemin{*this, "modifier_chemin", "Modifier le chemin sur la liste"};
    MenuItem modifier_chemin_non{*this, "modifier_chemin_non", "Ne pas modifier directement , le chemin sur la liste"};

    /// Whether the reading mode is one of the list's.
    [[nodiscard]] bool reads_the_list() const {
        return random_mode.value() || defined_end_mode.value() || full_length_mode.value();
    }
    /// The entries of the deck loads, by deck.
    [[nodiscard]] std::array<MenuItem*, 3> deck_loads() { return {&char1, &char2, &char3}; }
    /// What lists in a fixed order offer beside the pre-listen: lists to open, to make and to convert.
    [[nodiscard]] std::array<MenuItem*, 7> entries_of_a_fixed_order() {
        return {&A_liste, &A_Charge, &A_liste_anciene, &creer_aleatoire, &Convertion, &Effacer_liste, &supprime};
    }
    /// The insertion modes, in the order of their numbers from 1.
    [[nodiscard]] std::array<MenuItem*, 3> insertion_modes() { return {&inser_avant, &inser_apres, &inser_fin}; }
    /// The labels that act as buttons.
    [[nodiscard]] std::array<Label*, 7> label_buttons() {
        return {&list_label, &delete_label, &add_label, &save_as, &close_label, &search_label, &display_label};
    }
    /// The entries that need a list, and stand disabled until there is one.
    [[nodiscard]] std::array<MenuItem*, 9> entries_that_need_a_list();

private:
    void hang_menus();
};

} // namespace sonarelle
