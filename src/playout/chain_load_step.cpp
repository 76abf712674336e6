#include <string_view>

#include "platform/calendar_text.h"
#include "platform/disk.h"
#include "platform/failure.h"
#include "platform/paths.h"
#include "platform/text.h"
#include "playout/air_view.h"
#include "playout/auto_chain.h"

namespace sonarelle {

namespace {

/// Drive or folder of the next file isn't there: the list is stopped.
struct ListStopped {};

/// One of the three fields of hh:mm:ss.
int field_of(const std::string& text, std::size_t place) {
    return to_integer(mid(text, place, 2), DecimalMark::point).value();
}

std::string two_digits(int number) {
    return (number < 10 ? "0" : "") + std::to_string(number);
}

} // namespace

void AutoChain::compteur() {
    Label& label = desk_.list_window.Label4;
    int hours = field_of(label.caption, 1);
    int minutes = field_of(label.caption, 4);
    int seconds = field_of(label.caption, 7);
    if (hours == 0 && minutes == 0 && seconds == 0)
        return;
    const auto count_down = [](int& field, int full) {
        const bool borrows = field == 0;
        field = (borrows ? full : field) - 1;
        return borrows;
    };
    if (count_down(seconds, 60) && count_down(minutes, 60))
        count_down(hours, 24);
    label.caption = two_digits(hours) + ":" + two_digits(minutes) + ":" + two_digits(seconds);
}

void AutoChain::Timer1_tick() {
    if (loads_ahead())
        ErrorIndicator{}.skip([this] { load_step(); });
}

bool AutoChain::loads_ahead() const {
    return !desk_.is_manual() && !desk_.chain.chaine_suspendue.is_true() && !desk_.window.coche2.value();
}

void AutoChain::load_step() {
    ChainState& chain = desk_.chain;
    const bool defined = chain.mode_enchainement.is_true() || chain.mode_enchainement.is_false();
    if (defined && desk_.has_main_deck()) {
        chain.duree_lecteur = desk_.main_deck().end_point();
        compteur();
    }
    if (chain.jingles_aleatoires.is_true() || desk_.settings.valide_fichier_aleatoire1.is_true())
        return;
    chain.point_chargement = chain.duree_lecteur - (desk_.settings.mix_courant + desk_.settings.prechargement);
    if (!desk_.has_main_deck() || waits_for_special_mix(desk_) || load_walk_.under_way() ||
        chain.point_chargement != desk_.elapsed() || is_loaded(desk_.deck(next_deck(chain.lecteur_en_cours.value()))))
        return leave_load_step();
    desk_.warning.hide();
    const auto trap = [](const std::function<void()>& statement) { ErrorIndicator{}.skip(statement); };
    const auto wanted = [this, main = chain.lecteur_en_cours] {
        return loads_ahead() && !waits_for_special_mix(desk_) && desk_.chain.lecteur_en_cours == main;
    };
    load_walk_.start([this] { return try_to_load_next(); }, [this] { return desk_.row_count(); }, wanted, trap);
    leave_load_step();
}

void AutoChain::leave_load_step() {
    desk_.window.mouse_pointer = 0;
}

/// Looks at the next row; true when it was loaded, or the list was stopped.
bool AutoChain::try_to_load_next() {
    ChainState& chain = desk_.chain;
    if (chain.ordre_aleatoire.is_false()) {
        chain.choix_prepare = false;
        take_next_row();
    } else if (chain.ordre_aleatoire.is_true()) {
        if (!take_drawn_row())
            return false;
        chain.choix_prepare = true;
    } else {
        return true;
    }
    if (desk_.list.chemin_fichier == chain.chemin_precedent)
        return false;
    desk_.window.Timer1.disable();
    desk_.list.index_destinataire = desk_.list.index_en_cours;
    reading_.read_for_the_air();
    chain.chargement_fait = true;
    try {
        if (!is_file_there() || !load_row())
            return false;
        loaded();
        return true;
    } catch (const ListStopped&) {
        stop_after_load_error();
        return true;
    }
}

void AutoChain::take_next_row() {
    desk_.list.index_en_cours += 1;
    take_current_row();
}

// Behind the last row the list begins anew; it may have become shorter meanwhile. Before the first row stands a list
// whose first row was loaded in list order.
void AutoChain::take_current_row() {
    if (desk_.list.index_en_cours < 1 || desk_.list.index_en_cours.value() > desk_.row_count())
        desk_.list.index_en_cours = 1;
    desk_.list.chemin_fichier = desk_.list_window.ListView1.text(desk_.list.index_en_cours.value());
}

bool AutoChain::take_drawn_row() {
    const int row = random_order_.draw(desk_.list.index_en_cours.value(), desk_.row_count());
    if (row == 0)
        return false;
    desk_.list.index_en_cours = row;
    take_current_row();
    return true;
}

bool AutoChain::is_file_there() {
    const std::string& path = desk_.list.chemin_fichier;
    if (is_network_path(path)) {
        journal_.note(date_and_time(desk_.platform) +
                      " Pas de vérification d'existence de fichier (fichier sur le réseau)");
        return true;
    }
    ErrorIndicator errors;
    const auto enter_folder = [&] {
        errors.skip([&] { desk_.platform.disk.ChDrive(path); });
        errors.skip([&] { desk_.platform.disk.ChDir(folder_of_path(path)); });
        if (errors.number() == failure_number::device_unavailable || errors.number() == failure_number::path_not_found)
            throw ListStopped{};
    };
    enter_folder();
    std::string found;
    errors.clear();
    errors.skip([&] { found = desk_.platform.disk.Dir(path); });
    if (errors.is_set() && errors.number() != failure_number::device_fault)
        throw Failure{errors.number(), path};
    const bool there = equal_ignoring_case(trim(found), trim(name_of_path(path)));
    if (errors.is_set())
        pass_over_row(load_walk_, passed_over::silent_disk);
    else if (!there) {
        enter_folder(); // it may have gone between the two looks
        drop_invalid_row();
    }
    return there;
}

bool AutoChain::load_row() {
    desk_.window.Timer1.disable();
    const LoadResult result = loading_.load_from_list(desk_.deck(next_deck(desk_.chain.lecteur_en_cours.value())));
    if (result == LoadResult::loaded)
        return true;
    if (result == LoadResult::failed && is_missing(desk_.list.chemin_fichier))
        drop_invalid_row();
    else
        pass_over_row(load_walk_, why_not_loaded(result));
    return false;
}

bool AutoChain::is_folder_there(const std::string& path) {
    bool there = false;
    ErrorIndicator{}.skip([&] { there = desk_.platform.disk.facts(folder_of_path(path)).is_folder; });
    return there;
}

bool AutoChain::is_missing(const std::string& path) {
    std::string found = path;
    ErrorIndicator{}.skip([&] { found = desk_.platform.disk.Dir(path); });
    return found.empty() && is_folder_there(path);
}

std::string_view AutoChain::why_not_loaded(LoadResult result) {
    return result == LoadResult::disk_did_not_answer ? passed_over::silent_disk
           : result == LoadResult::too_short         ? passed_over::too_short
                                                     : passed_over::unplayable;
}

// In list order the chain adds 1 again when it starts the track.
void AutoChain::loaded() {
    desk_.report_loaded(desk_.deck(next_deck(desk_.chain.lecteur_en_cours.value())));
    if (!desk_.chain.ordre_aleatoire.is_true())
        desk_.list.index_en_cours -= 1;
    desk_.chain.duree_lecteur = 0;
}

/// Tomorrow the row may be sound again, so it stays in the list. A disk that is waited for ends the walk's turn.
void AutoChain::pass_over_row(RowWalk& walk, std::string_view why) {
    note_passed_over(why);
    desk_.chain.chargement_fait = false;
    desk_.chain.choix_prepare = false;
    if (why == passed_over::silent_disk)
        walk.rest();
}

void AutoChain::note_passed_over(std::string_view why) {
    const std::string& path = desk_.list.chemin_fichier;
    if (passed_over_.insert(path).second)
        journal_.note(date_and_time(desk_.platform) + " fichier : " + path + std::string{why});
}

void AutoChain::drop_invalid_row() {
    journal_.note(date_and_time(desk_.platform) + " fichier : " + desk_.list.chemin_fichier +
                  " Non trouvé ou non valide");
    if (desk_.row_count() == 0)
        throw ListStopped{};
    run_.remove_row();
    desk_.chain.chargement_fait = false;
    if (desk_.row_count() == 0)
        throw ListStopped{};
}

void AutoChain::stop_after_load_error() {
    journal_.note(date_and_time(desk_.platform) + " Erreur au chargement de fichier...liste stoppée");
    run_.stoppe_liste("Erreur au chargement de fichier...liste stoppée");
    desk_.window.mouse_pointer = 0;
}

} // namespace sonarelle
