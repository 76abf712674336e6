#include "playout/quick_load.h"

#include "configuration/settings_store.h"
#include "platform/dialogs.h"
#include "platform/failure.h"
#include "platform/text.h"
#include "playlist/list_file.h"
#include "playlist/list_rows.h"
#include "playout/deck_record.h"

namespace sonarelle {

QuickLoad::Box QuickLoad::favourites() {
    return {desk_.window.favourites, desk_.settings.load_combo1, "Load_combo1", desk_.window.cha, false};
}

QuickLoad::Box QuickLoad::jingles() {
    return {desk_.window.jingles, desk_.settings.load_combo2, "Load_combo2", desk_.window.char_F, true};
}

void QuickLoad::Charge_combo(int mode_combo) {
    const bool remembered = mode_combo == 3 || mode_combo == 4;
    const Box box = mode_combo == 1 || mode_combo == 3 ? favourites() : jingles();
    ErrorIndicator errors;
    errors.skip([this] { enter_program_folder(desk_.platform); });
    ChosenFile chosen{false, box.list};
    if (!remembered)
        chosen = desk_.platform.dialogs.open_file(
            {"Charger un fichier (.dfm)", desk_.settings.chemin_programme, "*.dfm", "fichier (*.dfm)|*.dfm"});
    if (chosen.cancelled || chosen.file_name.empty())
        return;
    const bool filled = errors.skip([&] { fill(box, chosen.file_name, !remembered); });
    if (filled && !remembered) {
        box.list = chosen.file_name;
        remember(desk_.platform, box.key, chosen.file_name);
    }
    active_text_combo();
}

void QuickLoad::fill(const Box& box, const std::string& file, bool replaces) {
    std::vector<std::string> items;
    if (!replaces)
        items = box.box.items;
    box.box.items = items;
    box.box.selected = -1;
    ErrorIndicator errors;
    ListReader list{desk_.platform.disk, list_path(desk_.platform, file)};
    enreg_liste record;
    const auto add_all = [&] {
        for (std::int64_t number = 1; number <= list.count(); ++number) {
            list.read(number, record);
            items.push_back(item_text(box, record));
        }
    };
    const bool whole = errors.skip(add_all);
    box.box.items = std::move(items);
    if (!whole)
        throw Failure{errors.number(), file};
}

// The path comes with the blanks that fill its field, so it is those that the name loses as its ending.
std::string QuickLoad::item_text(const Box& box, const enreg_liste& record) {
    const std::string name = loading_.name_of(record.chemin());
    return std::string{trim(box.shows_duration ? record.duree_piste() + " - " + name : name)};
}

void QuickLoad::active_text_combo() {
    desk_.window.favourites.set_text("Favoris " + desk_.settings.nom_radio);
    desk_.window.jingles.set_text("Jingles " + desk_.settings.nom_radio);
}

void QuickLoad::choose(const Box& box) {
    chosen_ = lire(desk_.platform, box.list, box.box.selected + 1, chosen_);
    desk_.window.popup(box.menu, &box.box);
}

void QuickLoad::press_key(const Box& box, char32_t key) {
    if (key == U' ')
        desk_.window.popup(box.menu, &box.box);
}

void QuickLoad::load(Deck& deck, const Box& box) {
    if (!loading_.may_be_cut(deck))
        return;
    run_.stoppe_list();
    loading_.load_record(deck, chosen_, std::string{trim(box.box.text())});
    desk_.display.can_be_played(deck);
    desk_.show_list_start();
}

} // namespace sonarelle
