#include "station/startup.h"

#include <array>
#include <utility>

#include "configuration/settings_store.h"
#include "platform/calendar_text.h"
#include "platform/dialogs.h"
#include "platform/disk.h"
#include "platform/failure.h"
#include "platform/paths.h"
#include "platform/shell.h"
#include "platform/text.h"
#include "playlist/list_rows.h"

namespace sonarelle {

namespace {

constexpr std::string_view splash_picture = "main_.jpg";
constexpr std::string_view background_picture = "fond_noir1.jpg";

/// The colours with which a store begins.
constexpr std::string_view first_label_colour = "-2147483630";
constexpr std::string_view first_window_colour = "-2147483633";

std::string first_start_text() {
    return "Ecrirure dans la base de registre éffectuée! \n\n"
           "Les paramètre de Sonarelle ont étés mis a jour\n"
           "Veuillez vérifier toutes les valeurs dans le menu options puis Paramètre du programme\n"
           "Et les modifier si il y a lieu\n\n"
           "Vérifier également vos paramètres régionaux si erreur type incompatible\n"
           "La séparation des décimales pour les nombres doit ètre un point\n\n"
           "Vous pouvez relancer " +
           std::string{application_title} + " pour valider ";
}

} // namespace

Startup::Startup(Parts parts)
    : parts_{std::move(parts)},
      platform_{parts_.desk.platform},
      settings_{parts_.desk.settings},
      window_{parts_.desk.window} {
    parts_.splash.on_activate = [this] { activate_splash(); };
}

void Startup::enter_program(const std::string& command_line) {
    ligne_commande_ = trim(command_line);
    ErrorIndicator{}.skip([this] { enter_program_folder(platform_); });
    read_first_settings();
    show_splash();
}

void Startup::read_first_settings() {
    const SettingsStore store{platform_};
    const SettingRow& label = setting_row(setting_section::colours, "coul_label");
    const SettingRow& window = setting_row(setting_section::colours, "coul_fenètre");
    ErrorIndicator errors;
    errors.skip([&] { settings_.type_affichage = store.read(setting_section::config, "type_affichage"); });
    for (const SettingRow* row : {&label, &window})
        errors.skip([&] { store.assign(settings_, *row, store.read(row->section, row->key)); });
    if (!errors.is_set())
        return;
    errors.skip([&] { store.write(label.section, label.key, first_label_colour); });
    errors.skip([&] { store.write(window.section, window.key, first_window_colour); });
    settings_.coul_label = desktop_text;
    settings_.coul_fenetre = desktop_face;
    errors.skip([&] { store.write(setting_section::config, "type_affichage", "T_perso"); });
    settings_.type_affichage = "T_défaut";
}

// A splash without its picture is shown all the same.
void Startup::show_splash() {
    ErrorIndicator{}.skip([this] { load_picture(parts_.splash.picture.picture, std::string{splash_picture}); });
    splash_waits_ = true;
    parts_.splash.show();
}

void Startup::activate_splash() {
    if (!std::exchange(splash_waits_, false))
        return;
    ErrorIndicator{}.skip([this] { enter_program_folder(platform_); });
    parts_.splash.mouse_pointer = 13;
    initialise();
    if (create())
        window_.show();
    if (!settings_.premier_lancement.is_true())
        parts_.document.claim_default_list();
    parts_.splash.mouse_pointer = 0;
    parts_.splash.hide();
}

void Startup::initialise() {
    window_.a_assosiation.caption =
        "Associer des fichiers audio , vidéo ou liste a : " + std::string{application_title};
    window_.show_about.caption = "À propos de " + std::string{application_title};
    ChainState& chain = parts_.desk.chain;
    for (Flag* flag : {&chain.maj_depuis_ajout, &chain.ajout_externe, &chain.preecoute_active, &chain.ecoute_en_cours,
                       &chain.chargement_fait})
        *flag = false;
    chain.index_debut_aleatoire = chain.index_debut_aleatoire1 = 0;
}

void Startup::read_settings() {
    parts_.load.Chargement_parametres();
    parts_.list.mode_insertion = 2;
    parts_.desk.chain.chaine_suspendue = false;
    parts_.desk.display.effects_offered(!settings_.valide_fichier_aleatoire1.is_true());
    window_.chain_status.caption = "Lecture en attente";
    window_.list_chain_timer.set_interval(settings_.valeur_vitesse_timer);
}

bool Startup::create() {
    shows_main_window_ = true;
    try {
        create_under_trap();
    } catch (const Failure& failure) {
        report(failure);
    }
    return shows_main_window_;
}

void Startup::create_under_trap() {
    read_settings();
    if (settings_.premier_lancement.is_true())
        return greet_first_start();
    enter_program_folder(platform_);
    parts_.desk.chain.ligne_journal.clear();
    parts_.journal.journal();
    parts_.list.glisser_autorise = true;
    parts_.desk.chain.ordre_aleatoire = parts_.desk.chain.jingles_aleatoires = false;
    if (platform_.shell.InternetGetConnectedState())
        parts_.options.A_Rafraichir_Click();
    parts_.options.show_station_name();
    window_.top = Twips{settings_.position_haut.value()};
    window_.left = Twips{settings_.position_gauche.value()};
    if (arrange_windows)
        arrange_windows();
    parts_.quick_load.Charge_combo(3);
    parts_.quick_load.Charge_combo(4);
    parts_.quick_load.active_text_combo();
    parts_.commands.show_effect(window_.A_visuel_active.checked);
    parts_.desk.display.overlap_hints();
    load_pictures();
    parts_.desk.chain.ligne_journal = date_and_time(platform_) + " Exécution de " + std::string{application_title};
    parts_.journal.journal();
    parts_.desk.chain.ligne_journal.clear();
    store_program_folder();
    act_on_command_line();
    if (show_desk_first)
        show_desk_first();
}

// The main window's background is always the black one: the picture that the store names shows with its theme alone.
void Startup::load_pictures() {
    Liste_son& list = parts_.desk.list_window;
    if (settings_.logo_liste != "Vrai" && settings_.logo_liste != "non")
        load_picture(list.picture, settings_.logo_liste);
    load_picture(window_.picture, settings_.logo_fond);
    if (show_file_manager_picture)
        show_file_manager_picture(settings_.logo_fichier);
    load_picture(list.side_picture.picture, settings_.logo);
    for (DeckControls& deck : window_.decks) {
        load_picture(deck.open.picture, "Open_noir.gif");
        load_picture(deck.zap.picture, "bouton_fleche_noir.gif");
        load_picture(deck.play.picture, "tplay_noir.gif");
    }
    settings_.logo_fond = settings_.chemin_programme + std::string{background_picture};
    load_picture(window_.picture, std::string{background_picture});
    window_.background_picture.picture = "";
}

// A setting without a name means no picture.
void Startup::load_picture(Property<std::string>& picture, const std::string& file) {
    if (!file.empty() && platform_.disk.Dir(file).empty())
        throw Failure{FailureNumber::file_not_found, file};
    picture = file;
}

void Startup::store_program_folder() {
    const SettingsStore store{platform_};
    settings_.chemin_programme = with_backslash(platform_.program_folder);
    // A store that takes nothing keeps no list from the air.
    ErrorIndicator{}.skip(
        [&] { store.write(setting_section::config, "Chemin_programme", settings_.chemin_programme); });
}

void Startup::greet_first_start() {
    shows_main_window_ = false;
    window_.hide();
    parts_.desk.notices.inform(first_start_text());
    parts_.rewrite.A_purger_registre_Click();
}

// The file's name stands in quotes: the first and the last character go, whatever they are.
void Startup::act_on_command_line() {
    const std::size_t count = character_count(ligne_commande_);
    if (count == 0)
        return;
    const std::string_view opened{ligne_commande_};
    const std::string_view without_last = left(opened, count - 1);
    ligne_commande_ = std::string{without_last.substr(left(without_last, 1).size())};
    détecte_ext();
    if (parts_.desk.chain.extension_fichier != "dfm")
        return play_on_small_player();
    if (!is_there(ligne_commande_))
        return;
    parts_.modes.press_list_chain_lamp();
    parts_.document.open_list(ligne_commande_);
    parts_.list_run.play_list();
}

// Opening a name that isn't there would make an empty list of it.
bool Startup::is_there(const std::string& list) {
    try {
        static_cast<void>(platform_.disk.facts(list));
        return true;
    } catch (const Failure& failure) {
        show_box(platform_.dialogs, failure.what(), Icon::warning);
        return false;
    }
}

void Startup::détecte_ext() {
    parts_.desk.chain.extension_fichier = extension_of(ligne_commande_);
}

void Startup::play_on_small_player() {
    Deck& deck = parts_.desk.ring.deck(1);
    mini_lecteur& player = parts_.small_player;
    deck.controls.open.enabled = false;
    shows_main_window_ = false;
    window_.hide();
    parts_.loading.charge_lire(ligne_commande_);
    window_.state = WindowState::minimised;
    player.topmost = true;
    player.caption = deck.controls.title.caption.get();
    player.show();
    parts_.press_play(deck);
}

void Startup::report(const Failure& failure) {
    show_box(platform_.dialogs,
             "Attention  !\nErreur " + failure.source + "  " + failure.description + " Erreur N°  " +
                 digits_of(failure.number) +
                 "\nDes paramètres ou des fichiers sont manquants!!!\n"
                 "Allez dans le menu OPTION puis PARAMETRES \n"
                 "Vérifier également vos paramètres régionaux\n"
                 "La séparation des décimales pour les nombres doit ètre un POINT\n"
                 "Cherchez le fichier demandé si c'est le cas\nExécutez a nouveau " +
                 std::string{application_title},
             Icon::stop);
}

} // namespace sonarelle
