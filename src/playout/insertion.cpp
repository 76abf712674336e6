#include "playout/insertion.h"

#include <algorithm>
#include <cstdint>
#include <utility>

#include "platform/dialogs.h"
#include "platform/failure.h"
#include "playlist/file_existence.h"
#include "playlist/list_rows.h"
#include "playout/file_title.h"

namespace sonarelle {

namespace {

constexpr Colour pale_green = 8454016;
// A list of few records comes to it again and again, and the operator knows.
constexpr std::string_view nothing_to_draw = "Aucun enregistrement à tirer";

} // namespace

const InsertionRule jingle_rule{.on = &StationSettings::valide_fichier_aleatoire,
                                .spacing = &StationSettings::nb_fichier_aleatoire,
                                .source = &StationSettings::chemin_fichier_aleatoire,
                                .counter = &ChainState::compteur_aleatoire,
                                .timer = &Antenne_FM::jingle_timer,
                                .label = &Liste_son::jingles_status,
                                .lamp = &Liste_son::jingles_switch,
                                .caption_on = "Jingle On",
                                .caption_off = "Jingle Off",
                                .counts = true,
                                .heading = "Prochain jingle chargé",
                                .every = "Jingles aléatoire tous les ",
                                .missing_title = "Lecture aléatoire avec jingles aléatoire",
                                .missing_lines =
                                    "Aucun fichier rassemblant vos Jingles n'a été défini\n"
                                    "1° étape creer une liste (.dfm) contenant vos jingles et sauvegarder là\n"
                                    "2° Sélectionner ce fichier dans le menu *Options*"};

const InsertionRule item_rule{.on = &StationSettings::valide_fichier_aleatoire1,
                              .spacing = &StationSettings::nb_fichier_aleatoire1,
                              .source = &StationSettings::chemin_fichier_aleatoire1,
                              .counter = &ChainState::compteur_aleatoire1,
                              .timer = &Antenne_FM::item_timer,
                              .label = &Liste_son::items_status,
                              .lamp = &Liste_son::items_switch,
                              .caption_on = "liste On",
                              .caption_off = "liste Off",
                              .counts = false,
                              .heading = "Fichiers aléatoires",
                              .every = "Fichier aléatoire tous les ",
                              .missing_title = "Fichier par défaut",
                              .missing_lines =
                                  "Aucun fichier rassemblant vos musiques n'a été défini\n"
                                  "1° étape creer une liste (.dfm) contenant vos musiques préférées et sauvegarder là\n"
                                  "2° Sélectionner ce fichier dans le menu *Otions*"};

Insertion::Insertion(const InsertionRule& rule, Desk& desk, ListDocument& document, SourceDraw& draws,
                     DrawControl& control, DrawSource source)
    : rule_{rule},
      desk_{desk},
      document_{document},
      draws_{draws},
      control_{control},
      source_{source} {
    (desk_.window.*rule_.timer).on_tick = [this] { tick(); };
}

void Insertion::press_switch() {
    if (!is_on() && !names_a_source(desk_.settings.*rule_.source)) {
        desk_.platform.dialogs.MsgBox(
            {std::string{rule_.missing_lines}, std::string{rule_.missing_title}, Buttons::ok, Icon::information});
        return;
    }
    set_on(!is_on());
    if (is_on() && desk_.settings.*rule_.spacing == 0 && ask_for_spacing)
        ask_for_spacing();
}

void Insertion::set_on(bool on) {
    desk_.give_prepared_row_up();
    desk_.settings.*rule_.on = on;
    (desk_.window.*rule_.timer).set_enabled(on);
    end_flash();
    desk_.display.light_switch(desk_.list_window.*rule_.lamp, on);
    if (on_switched)
        on_switched(on);
}

bool Insertion::rests() const {
    return desk_.is_manual() || desk_.chain.chaine_suspendue.is_true() || desk_.window.mix_titles.value();
}

void Insertion::tick() {
    if (rests())
        return;
    if (!is_on()) {
        (desk_.window.*rule_.timer).disable();
        end_flash();
        return;
    }
    flash();
    Integer& counter = desk_.chain.*rule_.counter;
    if (rule_.counts && counter > desk_.settings.*rule_.spacing)
        counter = desk_.settings.*rule_.spacing;
    if (is_due())
        try_to_insert();
}

void Insertion::flash() {
    Label& label = desk_.list_window.*rule_.label;
    clignote_ = !clignote_;
    if (!clignote_) {
        label.fore_colour = desk_.settings.coul_text_bouton;
        return;
    }
    const Integer left = desk_.settings.*rule_.spacing - desk_.chain.*rule_.counter;
    const std::string counter = " ( " + text_of(std::max(left, Integer{0})) + " )"; // the spacing may have been lowered
    label.caption = std::string{rule_.caption_on} + (rule_.counts ? counter : "");
    label.fore_colour = pale_green;
}

void Insertion::end_flash() {
    clignote_ = false;
    (desk_.list_window.*rule_.label).fore_colour = desk_.settings.coul_text_bouton;
    (desk_.list_window.*rule_.label).caption = std::string{is_on() ? rule_.caption_on : rule_.caption_off};
}

bool Insertion::is_due() const {
    if (desk_.settings.*rule_.spacing < 1 || !desk_.ring.has_main_deck())
        return false;
    return rule_.counts ? desk_.chain.*rule_.counter >= desk_.settings.*rule_.spacing
                        : desk_.chain.ordre_aleatoire.is_true() && desk_.chain.demande_ajout.is_true();
}

// A list that can't be read is told once. The air goes on without it, and the next turn comes after as many tracks.
void Insertion::try_to_insert() {
    try {
        insert_one();
        if (told_ != nothing_to_draw)
            told_.clear();
    } catch (const Failure& failure) {
        tell_trouble(failure.what());
    }
    if (rule_.counts)
        desk_.chain.*rule_.counter = 0;
    else
        desk_.chain.demande_ajout = false;
}

void Insertion::tell_trouble(const std::string& reason) {
    if (std::exchange(told_, reason) != reason)
        desk_.notices.warn(desk_.settings.*rule_.source + "\n" + reason + "\nRien n'est inséré dans la liste");
}

/// @throws Failure when nothing can be inserted.
void Insertion::insert_one() {
    if (desk_.row_count() >= INT16_MAX)
        throw Failure{FailureNumber::overflow, {}, "La liste a " + std::to_string(INT16_MAX) + " lignes"};
    if (const int selected = desk_.list_window.rows.selected(); selected > 0 && !desk_.list_window.rows.is_looked_at())
        desk_.list.index_en_cours = selected;
    // What was drawn is given up for the record, which comes next.
    desk_.chain.choix_prepare = false;
    const std::string& path = desk_.settings.*rule_.source;
    control_.head(source_.lists, std::string{rule_.heading});
    const int current = desk_.list.index_en_cours.value();
    const std::string before = current >= 1 && current <= desk_.row_count() ? desk_.list_window.rows.text(current) : "";
    const std::optional<DrawnRecord> drawn = draws_.draw(path, source_, before);
    if (!drawn && !is_source_there())
        throw Failure{FailureNumber::file_not_found, {}, "Liste introuvable"};
    if (!drawn)
        throw Failure{FailureNumber::wrong_record_number, {}, std::string{nothing_to_draw}};
    show(*drawn);
    const int row = current + 1;
    document_.edits.insert(row, row_of(drawn->record, desk_.platform.decimal_mark));
    document_.save_by_itself();
    if (!rule_.counts)
        desk_.chain.chemin_ajoute = drawn->record.trimmed_chemin();
    desk_.report(drawn->inserted_as(row));
}

bool Insertion::is_source_there() const {
    return is_listed(desk_.platform.disk, list_path(desk_.platform, desk_.settings.*rule_.source));
}

void Insertion::show(const DrawnRecord& drawn) {
    const std::string& path = desk_.settings.*rule_.source;
    const std::string every = std::string{rule_.every} + text_of(desk_.settings.*rule_.spacing) + " fich..";
    if (source_.lists == DrawControl::Lists::of_list)
        return control_.item_drawn(drawn.number, drawn.records, every, path);
    control_.jingle_named(title_of(drawn.record.trimmed_chemin()).name);
    control_.jingle_drawn(drawn.number, drawn.records, every, path);
}

} // namespace sonarelle
