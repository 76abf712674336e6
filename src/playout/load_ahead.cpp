#include "playout/load_ahead.h"

#include <string_view>

#include "platform/calendar_text.h"
#include "platform/disk.h"
#include "platform/failure.h"
#include "platform/paths.h"
#include "platform/text.h"
#include "playlist/file_existence.h"
#include "playout/air_view.h"

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

/// A folder that refuses to be entered may list its files all the same.
void enter_folder_or_stop(Disk& disk, std::string_view path) {
    ErrorIndicator errors;
    errors.skip([&] { enter_folder_of(disk, path); });
    if (errors.number() == FailureNumber::device_unavailable || errors.number() == FailureNumber::path_not_found)
        throw ListStopped{};
}

} // namespace

LoadAhead::LoadAhead(Desk& desk, RowCursor& cursor, RunControl& run, Journal& journal)
    : desk_{desk},
      cursor_{cursor},
      run_{run},
      journal_{journal},
      walk_{"load_walk", desk.platform.scheduler, desk.list_window.rows,
            [](const auto& turn) { ErrorIndicator{}.skip(turn); }} {}

void LoadAhead::compteur() {
    const std::string& shown = desk_.list_window.remaining.caption;
    int hours = field_of(shown, 1);
    int minutes = field_of(shown, 4);
    int seconds = field_of(shown, 7);
    if (hours == 0 && minutes == 0 && seconds == 0)
        return;
    const auto count_down = [](int& field, int full) {
        const bool borrows = field == 0;
        field = (borrows ? full : field) - 1;
        return borrows;
    };
    if (count_down(seconds, 60) && count_down(minutes, 60))
        count_down(hours, 24);
    desk_.display.list_remaining(two_digits(hours) + ":" + two_digits(minutes) + ":" + two_digits(seconds));
}

void LoadAhead::tick() {
    if (loads_ahead())
        ErrorIndicator{}.skip([this] { look(); });
}

bool LoadAhead::loads_ahead() const {
    return !desk_.is_manual() && !desk_.chain.chaine_suspendue.is_true() && !desk_.window.mix_titles.value();
}

void LoadAhead::look() {
    ChainState& chain = desk_.chain;
    const bool defined = chain.mode_enchainement.is_true() || chain.mode_enchainement.is_false();
    if (defined && desk_.ring.has_main_deck()) {
        chain.duree_lecteur = desk_.ring.main_deck().end_point();
        compteur();
    }
    if (chain.jingles_aleatoires.is_true() || desk_.settings.valide_fichier_aleatoire1.is_true())
        return;
    chain.point_chargement = chain.duree_lecteur - (desk_.settings.mix_courant + desk_.settings.prechargement);
    if (!is_due())
        return leave();
    desk_.notices.take_warning_back();
    const auto wanted = [this, main = chain.lecteur_en_cours] {
        return loads_ahead() && !waits_for_special_mix(desk_) && desk_.chain.lecteur_en_cours == main;
    };
    walk_.start([this] { return try_to_load_next(); }, wanted);
    leave();
}

bool LoadAhead::is_due() const {
    return desk_.ring.has_main_deck() && !waits_for_special_mix(desk_) && !walk_.under_way() &&
           desk_.chain.point_chargement == desk_.elapsed() && !cursor_.is_loaded(next_on_the_ring());
}

void LoadAhead::leave() {
    desk_.window.mouse_pointer = 0;
}

Deck& LoadAhead::next_on_the_ring() const {
    return desk_.ring.after(desk_.ring.main_deck());
}

/// Looks at the next row; true when it was loaded, or the list was stopped.
bool LoadAhead::try_to_load_next() {
    ChainState& chain = desk_.chain;
    if (!chain.ordre_aleatoire.is_true() && !chain.ordre_aleatoire.is_false())
        return true;
    if (!take_row() || desk_.list.chemin_fichier == chain.chemin_precedent)
        return false;
    desk_.window.load_ahead_timer.disable();
    const DestinationRecord row = cursor_.read_row();
    chain.chargement_fait = true;
    try {
        if (!is_file_there() || !load_row(row))
            return false;
        show_loaded();
        return true;
    } catch (const ListStopped&) {
        stop_after_load_error();
        return true;
    }
}

bool LoadAhead::take_row() {
    if (desk_.chain.ordre_aleatoire.is_true()) {
        if (!cursor_.take_drawn_row(DrawPlace::load_step))
            return false;
        desk_.chain.choix_prepare = true;
        return true;
    }
    desk_.chain.choix_prepare = false;
    cursor_.take_next_row();
    return true;
}

bool LoadAhead::is_file_there() {
    const std::string& path = desk_.list.chemin_fichier;
    if (is_network_path(path)) {
        journal_.note(date_and_time(desk_.platform) +
                      " Pas de vérification d'existence de fichier (fichier sur le réseau)");
        return true;
    }
    Disk& disk = desk_.platform.disk;
    enter_folder_or_stop(disk, path);
    bool there = false;
    try {
        there = is_listed(disk, path);
    } catch (const Failure& failure) {
        if (failure.number != FailureNumber::device_fault)
            throw;
        pass_over(passed_over::silent_disk);
        return false;
    }
    if (!there) {
        enter_folder_or_stop(disk, path); // it may have gone between the two looks
        drop_invalid_row();
    }
    return there;
}

bool LoadAhead::load_row(const DestinationRecord& row) {
    desk_.window.load_ahead_timer.disable();
    const LoadResult result = cursor_.load_on(next_on_the_ring(), row);
    if (result == LoadResult::loaded)
        return true;
    if (result == LoadResult::failed && cursor_.is_missing(desk_.list.chemin_fichier))
        drop_invalid_row();
    else
        pass_over(passed_over::because_of(result));
    return false;
}

// In list order the chain adds 1 again when it starts the track.
void LoadAhead::show_loaded() {
    desk_.report_loaded(next_on_the_ring());
    if (!desk_.chain.ordre_aleatoire.is_true())
        desk_.list.index_en_cours -= 1;
    desk_.chain.duree_lecteur = 0;
}

// A disk that is waited for ends the walk's turn.
void LoadAhead::pass_over(std::string_view why) {
    cursor_.pass_over(why);
    if (why == passed_over::silent_disk)
        walk_.rest();
}

void LoadAhead::drop_invalid_row() {
    journal_.note(date_and_time(desk_.platform) + " fichier : " + desk_.list.chemin_fichier +
                  " Non trouvé ou non valide");
    if (desk_.row_count() == 0)
        throw ListStopped{};
    cursor_.remove_row();
    if (desk_.row_count() == 0)
        throw ListStopped{};
}

// In random order the row that can't be reached would otherwise be drawn again and again.
void LoadAhead::stop_after_load_error() {
    if (desk_.chain.ordre_aleatoire.is_true() && desk_.row_count() > 0)
        cursor_.bar_current_row();
    journal_.note(date_and_time(desk_.platform) + " Erreur au chargement de fichier...liste stoppée");
    run_.stoppe_liste("Erreur au chargement de fichier...liste stoppée");
    desk_.window.mouse_pointer = 0;
}

} // namespace sonarelle
