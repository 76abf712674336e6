#include "playout/deck_loading.h"

#include <optional>
#include <utility>

#include "configuration/settings_store.h"
#include "platform/dialogs.h"
#include "platform/disk.h"
#include "platform/duration_text.h"
#include "platform/failure.h"
#include "platform/paths.h"
#include "platform/text.h"
#include "playlist/file_existence.h"
#include "playlist/volume_table.h"
#include "playout/air_view.h"
#include "playout/file_title.h"
#include "playout/mix.h"

namespace sonarelle {

namespace {

constexpr std::string_view network_genre = "réseau";
constexpr std::string_view media_filter =
    "fichier multimédia |*.mp3;*.wav;*.wma;*.mid;*.avi;*.mpg|fichier (*.mp3)|*.mp3|fichier (*.wav)|*.wav|"
    "fichier (*.mid)|*.mid|";

} // namespace

DeckLoading::DeckLoading(Desk& desk, DeckVolume& volume, MixEngine& mix)
    : desk_{desk},
      volume_{volume},
      mix_{mix} {}

void DeckLoading::load_record(Deck& deck, const DestinationRecord& record, const std::string& network_path) {
    deck.create_graph();
    deck.path = record.dest_chemin; // it holds nothing else while the operator reads that this isn't there
    deck.path = record.dest_genre == network_genre ? network_path : recup_path(record.dest_chemin);
    if (deck.path.empty()) {
        desk_.display.has_no_file(deck);
        return;
    }
    take_record(deck, record);
    if (const int percent = record.dest_volume.value(); percent > 0) // 0 is none that was ever set
        deck.volume_piste = attenuation_of_percent(percent);
    const std::string title = short_title(name_of(deck.path));
    ErrorIndicator errors;
    errors.skip([&] { deck.graph().RenderFile(deck.path); });
    const double length = deck.graph().get_Duration();
    std::string duration;
    errors.skip([&] { duration = duration_text(length); });
    desk_.display.loaded(deck, duration, title);
    errors.skip([&] { show_length(deck); });
    if (length < shortest_good_file)
        return;
    set_bar(deck);
    desk_.display.can_be_zapped(deck);
    desk_.display.followed_by(title);
}

LoadResult DeckLoading::load_from_list(Deck& deck, const DestinationRecord& row) {
    deck.create_graph();
    try {
        return render_from_list(deck, row);
    } catch (const Failure& failure) {
        return failure.number == FailureNumber::device_fault ? LoadResult::disk_did_not_answer : LoadResult::failed;
    }
}

LoadResult DeckLoading::render_from_list(Deck& deck, const DestinationRecord& row) {
    ChainState& chain = desk_.chain;
    deck.path = chain.ecoute_demandee.is_true() ? chain.chemin_ecoute : row.dest_chemin;
    const std::string name = short_title(name_of(deck.path));
    deck.graph().RenderFile(deck.path);
    const double length = deck.graph().get_Duration();
    take_record(deck, row);
    deck.fin_piste = row.dest_fin;
    deck.duree_piste = text_of(deck.whole_duration());
    if (!desk_.list_window.full_length_mode.value() && chain.mode_enchainement.is_true())
        desk_.window.list_chain_timer.enable();
    desk_.display.ends_at(deck, end_point_text(deck, deck.fin_piste));
    const std::string duration = duration_text(length);
    desk_.display.loaded(deck, duration, name);
    desk_.display.followed_by(name);
    if (chain.ecoute_en_cours.is_false())
        desk_.display.loaded_from_list(name, duration);
    if (length < shortest_good_file)
        return LoadResult::too_short;
    set_bar(deck);
    return LoadResult::loaded;
}

// What a hand loads plays to its end.
void DeckLoading::take_record(Deck& deck, const DestinationRecord& record) {
    deck.debut_piste = record.dest_debut;
    deck.genre = record.dest_genre;
    deck.start_by_hand.reset();
    deck.fin_piste.clear();
    deck.volume_piste = record.dest_volume;
}

void DeckLoading::show_length(Deck& deck) {
    deck.duree_piste = text_of(deck.whole_duration());
    desk_.display.ends_at(deck, deck.duree_piste);
}

double length_of(const Platform& platform, const std::string& path) {
    const std::shared_ptr<MediaGraph> graph = platform.media.create_graph();
    return ErrorIndicator{}.skip([&] { graph->RenderFile(path); }) ? graph->get_Duration() : 0;
}

std::string DeckLoading::end_point_text(Deck& deck, const std::string& end_of_record) const {
    const ChainState& chain = desk_.chain;
    const Integer whole = deck.whole_duration();
    if (desk_.list_window.full_length_mode.value() || !chain.mode_enchainement.is_true())
        return text_of(whole);
    // A file that was opened by hand belongs to no record: it plays to its end.
    if (!chain.preecoute_active.is_true())
        return end_of_record.empty() ? text_of(whole) : end_of_record;
    return text_of(whole <= chain.duree_preecoute ? whole : chain.duree_preecoute);
}

void DeckLoading::charge_lire(const std::string& path) {
    Deck& deck = desk_.ring.deck(1);
    deck.create_graph();
    desk_.chain.lecteur_en_cours = 1;
    deck.path = path;
    deck.genre.clear();
    desk_.display.named(deck, name_of(path));
    Failure failure{FailureNumber::unplayable_file};
    try {
        deck.graph().RenderFile(path);
    } catch (const Failure& refused) {
        failure = refused;
    }
    ErrorIndicator errors;
    errors.skip([&] { show_length(deck); });
    if (deck.graph().get_Duration() < shortest_good_file) {
        show_box(desk_.platform.dialogs, path + " Ne peut ouvrir " + failure.description, Icon::stop);
        return;
    }
    set_bar(deck);
    desk_.display.can_be_zapped(deck);
    mix_.Choix_mix();
    desk_.display.can_be_played(deck);
    deck.controls.slider.set_value(0);
    desk_.window.deck_chain_timer.set_interval(desk_.settings.valeur_vitesse_timer);
    desk_.window.mix_titles.set_value(true);
}

void DeckLoading::open_by_hand(Deck& deck) {
    if (!may_be_cut(deck))
        return;
    open(deck);
    desk_.show_list_start();
}

// Behind the question the chain may bring another track on the deck, which no Yes was given to cut.
bool DeckLoading::may_be_cut(const Deck& deck) {
    std::optional<std::string> agreed;
    while (deck.sounds() && deck.path != agreed) {
        agreed = deck.path;
        if (desk_.platform.dialogs.MsgBox({name_without_ending(*agreed) + " est à l'antenne\nCouper le lecteur " +
                                               deck.name() + " pour y ouvrir un autre fichier ?",
                                           std::string{application_title}, Buttons::yes_no, Icon::warning, 2}) !=
            Answer::yes)
            return false;
    }
    return true;
}

// The last failure on the way says what to tell the operator when nothing came of it.
void DeckLoading::open(Deck& deck) {
    deck.create_graph();
    Failure pending{FailureNumber::unplayable_file};
    const auto attempt = [&pending](const auto& statement) {
        try {
            statement();
        } catch (const Failure& failure) {
            pending = failure;
        }
    };
    if (!is_file_chosen()) {
        attempt([this] { go_to_music_folder(); });
        if (!choose_file(deck))
            return;
    }
    const std::string title = short_title(name_of(deck.path));
    mix_.manuel_mix();
    deck.forget_record();
    attempt([&] { deck.graph().RenderFile(deck.path); });
    const double length = deck.graph().get_Duration();
    std::string duration;
    attempt([&] { duration = duration_text(length); });
    desk_.display.loaded(deck, duration, title);
    volume_.adjust(deck);
    attempt([&] { show_length(deck); });
    if (length < shortest_good_file)
        report_failed_open(deck, pending);
    else
        accept_opened(deck);
}

// The next press of the button asks for a file again, whatever became of this one.
void DeckLoading::open_dropped(Deck& deck, const std::vector<std::string>& paths) {
    if (paths.empty() || !desk_.list.glisser_autorise.is_true() || !may_be_cut(deck))
        return;
    deck.path = paths.front();
    desk_.chain.ajout_externe = true;
    open(deck);
    desk_.chain.ajout_externe = false;
    desk_.show_list_start();
}

bool DeckLoading::is_file_chosen() const {
    return desk_.chain.ajout_externe.is_true() || desk_.chain.maj_depuis_ajout.is_true();
}

void DeckLoading::go_to_music_folder() {
    const std::string& folder = desk_.settings.chemin_musique;
    if (folder.empty())
        return;
    desk_.platform.disk.ChDrive(folder);
    desk_.platform.disk.ChDir(folder);
}

bool DeckLoading::choose_file(Deck& deck) {
    const ChosenFile chosen = desk_.platform.dialogs.open_file(
        {"Ouvrir un fichier multimédia", desk_.settings.chemin_musique, "", std::string{media_filter}});
    if (chosen.cancelled || chosen.file_name.empty())
        return false;
    if (deck.has_graph() && deck.graph().GetState() != MediaState::stopped) {
        desk_.notices.inform("Le lecteur " + deck.name() + " est passé à l'antenne pendant votre choix\n" +
                             std::string{name_of_path(chosen.file_name)} + " n'est pas ouvert");
        return false;
    }
    deck.create_graph(); // the chain may have used the deck meanwhile
    deck.path = chosen.file_name;
    return true;
}

void DeckLoading::accept_opened(Deck& deck) {
    set_bar(deck);
    ecrire_path_fichier(deck.path);
    if (!desk_.is_manual())
        mix_.select_bouton();
    desk_.display.can_be_zapped(deck);
    desk_.display.can_be_played(deck);
    desk_.chain.ajout_externe = false;
    desk_.chain.maj_depuis_ajout = false;
}

void DeckLoading::report_failed_open(Deck& deck, const Failure& failure) {
    deck.path.clear();
    desk_.display.waits(deck);
    deck.controls.progress.value = 0;
    const auto tell = [&](const std::string& text) { show_box(desk_.platform.dialogs, text, Icon::stop); };
    switch (failure.number) {
    case FailureNumber::wrong_call:
    case FailureNumber::dialog_cancelled:
        return;
    case FailureNumber::permission_refused:
    case FailureNumber::disk_not_ready:
    case FailureNumber::other_drive:
    case FailureNumber::path_access:
    case FailureNumber::path_not_found:
        desk_.settings.chemin_musique = desk_.settings.chemin_programme;
        tell(lines_of(failure));
        return;
    default:
        tell("Erreur lecture fichier " + lines_of(failure));
    }
}

std::string DeckLoading::recup_path(const std::string& dest_chemin) {
    bool there = false;
    ErrorIndicator{}.skip([&] {
        enter_folder_of(desk_.platform.disk, dest_chemin);
        there = is_listed(desk_.platform.disk, dest_chemin);
    });
    const std::string name{name_of_path(dest_chemin)};
    if (there && !name.empty())
        return join_path(folder_of_path(dest_chemin), name);
    show_box(desk_.platform.dialogs, name + " n'existe pas ou plus", Icon::stop);
    return {};
}

std::string DeckLoading::name_of(std::string_view path) {
    FileTitle title = title_of(path);
    desk_.chain.extension_fichier = std::move(title.extension);
    return std::move(title.name);
}

std::string DeckLoading::duration_text(double seconds) const {
    return format_heure(seconds, desk_.platform.decimal_mark);
}

void DeckLoading::set_bar(Deck& deck) {
    deck.controls.progress.maximum = deck.whole_duration().value();
    deck.controls.progress.value = 0;
}

void DeckLoading::ecrire_path_fichier(const std::string& path) {
    const std::string folder = with_backslash(folder_of_path(path));
    desk_.settings.chemin_musique = trim(folder);
    const SettingsStore store{desk_.platform};
    ErrorIndicator{}.skip([&] { store.write(setting_section::config, "Chemin_dernier_fichier", trim(folder)); });
}

} // namespace sonarelle
