#include "playout/run_control.h"

#include "platform/calendar_text.h"
#include "platform/failure.h"

namespace sonarelle {

void RunControl::lect_liste() {
    if (desk_.row_count() == 0)
        return desk_.notices.inform("La liste est vide");
    if (desk_.chain.chemin_lecture.empty())
        return;
    // A fault may have put the chain off. In the mode of the full length, and without fades, no load puts it on again.
    if (desk_.chain.mode_enchainement.is_true() || desk_.list_window.reads_the_list())
        desk_.window.list_chain_timer.enable();
    desk_.display.can_be_zapped(desk_.ring.deck(1));
    desk_.window.mix_list.set_value(true);
    desk_.chain.lecteur_en_cours = 1;
    Start_liste();
}

void RunControl::Start_liste() {
    desk_.ring.deck(1).create_graph();
    if (desk_.chain.chemin_lecture.empty())
        return;
    try {
        start_first_deck();
    } catch (const Failure&) {
        desk_.set_air(AirState::failed);
        report_failed_start(desk_.chain.chemin_lecture);
    }
}

void RunControl::report_failed_start(const std::string& path) {
    desk_.show_list_start();
    desk_.display.list_has_no_file();
    desk_.notices.warn("Recherche de fichier\nDemarrage liste\n" + path +
                       "\n / format / lecture impossible  \nabandon lecture liste");
}

void RunControl::start_first_deck() {
    Deck& deck = desk_.ring.deck(1);
    desk_.display.can_be_played(deck);
    desk_.display.can_be_zapped(deck);
    desk_.chain.lecteur_en_cours = 1;
    desk_.chain.chargement_fait = desk_.chain.choix_prepare = false; // what a run before has loaded is not this one's
    desk_.chain.nb_tirages_nuls = 0;
    desk_.display.null_draws(0);
    deck.graph().RenderFile(deck.path);
    start_.set_going(deck, start_of_a_run);
    if (desk_.settings.valide_fichier_aleatoire.is_true()) {
        desk_.chain.compteur_aleatoire = 1;
        desk_.window.jingle_timer.enable();
        desk_.chain.index_debut_aleatoire = desk_.list.index_en_cours;
    }
    if (desk_.settings.valide_fichier_aleatoire1.is_true()) {
        desk_.chain.compteur_aleatoire1 = 1;
        desk_.window.item_timer.enable();
        desk_.chain.index_debut_aleatoire1 = desk_.list.index_en_cours;
    }
    write_start(deck.path);
}

void RunControl::write_start(const std::string& path) {
    const std::string time = time_text(desk_.platform);
    journal_.note(date_and_time(desk_.platform) + " *** " + std::string{application_title} + " ***  Lecture de " +
                  path);
    journal_.note(" Démmarage lecture liste a " + time);
    journal_.note("Nb_de_fichier_écouté " + text_of(desk_.chain.nb_fichiers_ecoutes));
    journal_.note(time + " Lecture de " + path);
}

void RunControl::write_stop() {
    journal_.note_of_list_window(" Arrét lecture liste a " + date_and_time(desk_.platform));
}

void RunControl::stoppe_liste(const std::string& reason) {
    for (Timer* timer : desk_.window.chain_timers())
        timer->set_enabled(timer == &desk_.window.overlap_timer && is_overlap_under_way());
    if (end_walks)
        end_walks();
    journal_.note(desk_.chain.ligne_journal); // in a list an empty line, which sets the run off
    desk_.chain.ligne_journal.clear();
    desk_.window.load_ahead.set_value(0);
    desk_.window.mix_titles.show_value(true);
    desk_.display.chain_stopped();
    desk_.set_air(AirState::failed);
    desk_.report({.kind = OnAirEvent::Kind::stopped, .text = reason});
}

bool RunControl::is_overlap_under_way() {
    return desk_.window.overlap_timer.enabled() && desk_.ring.has_main_deck() &&
           desk_.ring.before(desk_.ring.main_deck()).sounds();
}

void RunControl::stoppe_list() {
    desk_.display.light_deck_chain_alone();
    desk_.window.mix_titles.set_value(true);
    journal_.note("Liste soppée a " + time_text(desk_.platform));
    desk_.display.no_chain_runs();
}

void RunControl::under_trap(const std::string& timer, const std::function<void()>& step) {
    try {
        step();
    } catch (const Failure& failure) {
        stoppe_liste(failure.what());
        desk_.notices.warn(
            "ATTENTION ERREUR ! " + timer + "\nFICHIER NON TROUVEE , NON AUDIO ou " + failure.what() +
            "\nSI LISTE EN COURS : ARRETEE\nTapez F2 dans le cas de lecture de liste\nRevoir la sélection");
    }
}

void RunControl::Mettre_en_pause(const std::function<void(Deck&)>& press_pause) {
    if (desk_.ring.has_main_deck())
        press_pause(desk_.ring.main_deck());
    else if (desk_.chain.lecteur_en_cours == 0)
        desk_.notices.inform("Aucun lecteur en cours");
}

} // namespace sonarelle
