#include "playout/zapping.h"

#include "platform/disk.h"
#include "platform/failure.h"
#include "platform/random.h"
#include "platform/text.h"
#include "playlist/list_file.h"
#include "playlist/list_rows.h"

namespace sonarelle {

namespace {

/// No track is zapped by key in its first seconds. The message names the longest jingle, whatever this limit is.
constexpr int earliest_second = 30;

} // namespace

Zapping::Zapping(Desk& desk, AutoChain& chain, DeckLoading& loading, DeckStart& start, MixEngine& mix, Journal& journal,
                 RecordReading& reading, ListDocument& document)
    : desk_{desk}, chain_{chain}, loading_{loading}, start_{start}, mix_{mix}, journal_{journal}, reading_{reading},
      document_{document} {}

void Zapping::zapping() {
    if (desk_.has_main_deck())
        return zap(desk_.main_deck());
    tell("Aucune lecture en cours", Icon::none);
    desk_.list_window.Image2.enabled = true;
    desk_.list_window.Label12.caption = "Zapping autorisé";
}

void Zapping::press_zap(Deck& old) {
    if (desk_.is_manual())
        return;
    if (!is_list_mode())
        return zap(old);
    try {
        chain_.automatic_zap(old);
    } catch (const Failure& failure) {
        tell(failure.what(), Icon::none);
    }
}

bool Zapping::is_list_mode() const {
    const Liste_son& list = desk_.list_window;
    return list.Option2.value() || list.Option3.value() || list.Option4.value();
}

void Zapping::zap(Deck& old) {
    try {
        zap_by_the_rules(old);
    } catch (const Failure& failure) {
        tell(failure.what(), Icon::none);
    }
}

void Zapping::zap_by_the_rules(Deck& old) {
    desk_.deck(next_deck(old.number())).create_graph();
    if (is_list_mode()) {
        if (desk_.chain.mode_enchainement.is_false()) {
            if (desk_.window.Désactive_audio.checked)
                mix_.Pas_demix_audio();
            else
                mix_.Active_audio_zapping_Click();
        } else if (desk_.chain.mode_enchainement.is_true()) {
            if (desk_.elapsed() <= earliest_second)
                return refuse_too_early();
            store_end_point(old);
        }
    }
    if (desk_.window.coche3.value())
        zap_in_list(old);
    else
        zap_over_decks(old);
}

void Zapping::refuse_too_early() {
    tell("Action mpossible avec l'option :\nMode enchainement auto liste prédéfini\ndu menu Option\n" +
             text_of(desk_.settings.valeur_max_jingles) + " secondes minimun sont demandées",
         Icon::warning);
    desk_.list_window.Image1.enabled = true;
    desk_.list_window.Image2.enabled = true;
    desk_.list_window.Label12.caption = "Zapping autorisé";
}

// The next run ends the track where it was zapped. A file that the operator put on the deck himself has no row: the end
// of the one that stands there is not its own.
void Zapping::store_end_point(const Deck& old) {
    const int row = desk_.list.ligne_en_lecture.value();
    desk_.list.index_destinataire = row;
    reading_.lire_enreg_destinataire();
    desk_.destination.convertir_valeur_son_ecriture();
    const std::string path = list_path(desk_.platform, desk_.list.fichier_liste);
    enreg_liste record;
    ListReader{desk_.platform.disk, path}.read(row, record);
    if (!equal_ignoring_case(record.trimmed_chemin(), old.path))
        return;
    record.set_fin_lecture(text_of(desk_.elapsed()));
    replace_record(desk_.platform.disk, path, row, record);
    document_.charge_liste();
}

void Zapping::zap_in_list(Deck& old) {
    bool by_draw = desk_.chain.ordre_aleatoire.is_true();
    int rows_left = desk_.row_count();
    do {
        if (rows_left-- < 0)
            return;
        if (by_draw) {
            desk_.platform.random.Randomize();
            const double rows = desk_.row_count();
            desk_.list.index_en_cours = to_integer(Fix(static_cast<double>(desk_.platform.random.Rnd()) * rows + 1));
            chain_.take_current_row();
            by_draw = false;
        } else {
            chain_.take_next_row();
        }
    } while (!chain_.is_found());
    chain_.cancel_walks();
    chain_.begin_overlap();
    desk_.chain.element_en_cours = desk_.list.index_en_cours;
    desk_.list.index_destinataire = desk_.list.index_en_cours;
    reading_.lire_enreg_destinataire();
    Deck& next = desk_.deck(next_deck(old.number()));
    const bool told = chain_.is_loaded(next);
    desk_.chain.erreur_chargement = false;
    loading_.load_from_list(next);
    // The track on the air goes on, with its load step, and its mix point takes the row behind.
    if (desk_.chain.erreur_chargement.is_true())
        throw Failure{failure_number::file_not_found, next.path, "lecture impossible"};
    if (!told)
        desk_.report_loaded(next);
    desk_.window.coche4.set_value(0);
    desk_.window.Timer2.set_interval(desk_.settings.valeur_vitesse_timer);
    hand_over(old);
    const int row = desk_.list.index_en_cours.value();
    desk_.list_window.ListView1.ensure_visible(row);
    desk_.list_window.ListView1.select(row);
}

void Zapping::zap_over_decks(Deck& old) {
    const std::string& path = desk_.deck(next_deck(old.number())).path;
    if (path.empty())
        return;
    if (desk_.platform.disk.Dir(path).empty())
        return tell("Fichier non trouvé /abandon", Icon::stop);
    chain_.begin_overlap();
    hand_over(old);
}

void Zapping::hand_over(Deck& old) {
    old.controls.title.caption = std::string{waiting_title};
    Deck& next = desk_.deck(next_deck(old.number()));
    journal_.note(date_and_time(desk_.platform) + " ZAPPING sur ----> : " + next.path);
    start_.play(next);
    desk_.chain.position_zap =
        to_integer(Format(next.graph().get_CurrentPosition(), "0", DecimalMark::point), DecimalMark::point);
    desk_.window.Timer3.set_interval(desk_.settings.mix_audio_vitesse);
    desk_.window.Timer3.enable();
}

void Zapping::tell(const std::string& text, Icon icon) {
    desk_.platform.dialogs.MsgBox({text, std::string{application_title}, Buttons::ok, icon});
}

} // namespace sonarelle
