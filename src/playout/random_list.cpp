#include "playout/random_list.h"

#include <algorithm>

#include "platform/dialogs.h"
#include "platform/failure.h"
#include "platform/text.h"
#include "playlist/list_file.h"
#include "playlist/list_rows.h"

namespace sonarelle {

namespace {

constexpr std::string_view list_filter = "fichier (*.dfm)|*.dfm";

} // namespace

RandomList::RandomList(Desk& desk, ListDocument& document, ListAtWork& list, SourceDraw& draws, DrawControl& control,
                       DrawTable& deja_tires)
    : desk_{desk},
      document_{document},
      list_{list},
      draws_{draws},
      control_{control},
      source_{deja_tires, DrawControl::Lists::of_list} {}

void RandomList::load_on() {
    const std::string& path = desk_.settings.chemin_fichier_aleatoire1;
    const std::optional<DrawnRecord> drawn = draws_.draw(path, source_, {});
    if (!drawn)
        return desk_.notices.inform(path + "\nAucun enregistrement à tirer");
    const std::string every = "Fichier aléatoire tous les " + text_of(desk_.settings.nb_fichier_aleatoire1) + " fich..";
    control_.item_drawn(drawn->number, drawn->records, every, path);
    document_.edits.insert(desk_.row_count() + 1, row_of(drawn->record, desk_.platform.decimal_mark));
    document_.save_by_itself();
    desk_.report(drawn->inserted_as(desk_.row_count()));
}

void RandomList::load_on_liste() {
    if (!list_.allows(ListAction::load_on_liste))
        return;
    const ChosenFile chosen = desk_.platform.dialogs.open_file(
        {"Ouvrir un fichier liste", desk_.settings.chemin_programme, "*.dfm", std::string{list_filter}});
    if (chosen.cancelled)
        return;
    if (!names_a_source(chosen.file_name))
        return tell_wrong_file(chosen.file_name);
    const ListWork work = list_.begin();
    desk_.list_window.mouse_pointer = 13;
    try {
        append_all(chosen.file_name);
    } catch (const Failure& failure) {
        return list_.tell(failure.description + " dans load on liste", Icon::stop);
    }
    document_.sauve_tout();
}

// A number that no record has ends it: what was drawn stays in the table.
void RandomList::append_all(const std::string& path) {
    ListReader reader{desk_.platform.disk, list_path(desk_.platform, path)};
    const int records = static_cast<int>(reader.count());
    control_.rows_to_draw(records);
    std::vector<std::string> drawn;
    try {
        for (int turn = 0; turn < records; ++turn)
            append_one(reader, records, drawn);
    } catch (const Failure&) {
        control_.log(source_.lists, drawn);
        throw;
    }
    control_.show_table(source_.lists, source_.table, source_.previous);
    control_.log(source_.lists, drawn);
}

void RandomList::append_one(ListReader& reader, int records, std::vector<std::string>& drawn) {
    source_.table.bar(source_.previous, records);
    const Draw draw = source_.table.draw({0, records});
    if (!draw.number)
        throw Failure{
            FailureNumber::wrong_record_number, {}, "Index non trouvé sur ( " + std::to_string(records) + ")"};
    source_.previous = *draw.number;
    drawn.push_back(std::to_string(*draw.number));
    enreg_liste record;
    reader.read(*draw.number, record);
    desk_.list_window.rows.append(row_of(record, desk_.platform.decimal_mark));
}

void RandomList::draw_first_row() {
    if (!desk_.chain.ordre_aleatoire.is_true() || !desk_.chain.jingles_aleatoires.is_true())
        return;
    ask_for_source();
    if (!names_a_source(desk_.settings.chemin_fichier_aleatoire1))
        return;
    switch_items_on();
    RowTable& rows = desk_.list_window.rows;
    const int selected = rows.selected();
    try {
        load_on();
    } catch (const Failure& failure) {
        desk_.notices.inform(desk_.settings.chemin_fichier_aleatoire1 + "\n" + failure.what());
    }
    if (rows.count() > 0) // the save has selected the row that the chain was on
        rows.select(std::max(selected, 1));
}

void RandomList::ask_for_source() {
    if (names_a_source(desk_.settings.chemin_fichier_aleatoire1))
        return;
    const ChosenFile chosen = desk_.platform.dialogs.open_file(
        {"Ouvrir un fichier liste (.dfm)", desk_.settings.chemin_programme, "*.dfm", std::string{list_filter}});
    if (chosen.cancelled)
        return;
    if (names_a_source(chosen.file_name))
        desk_.settings.chemin_fichier_aleatoire1 = chosen.file_name;
    else
        tell_wrong_file(chosen.file_name);
}

void RandomList::tell_wrong_file(const std::string& name) {
    desk_.notices.inform(name + "\nCe fichier n'est pas une liste (.dfm)");
}

} // namespace sonarelle
