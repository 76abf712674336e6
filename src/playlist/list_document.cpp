#include "playlist/list_document.h"

#include <algorithm>
#include <array>
#include <cassert>

#include "platform/dialogs.h"
#include "platform/disk.h"
#include "platform/failure.h"
#include "platform/paths.h"
#include "platform/scheduler.h"
#include "platform/window_thread.h"
#include "playlist/list_file.h"
#include "playlist/list_rows.h"

namespace sonarelle {

namespace {

/// Shows the busy pointer for as long as it lives.
class BusyPointer {
public:
    explicit BusyPointer(Window& window)
        : window_{window} {
        window_.mouse_pointer = 13;
    }
    ~BusyPointer() { window_.mouse_pointer = 0; }
    BusyPointer(const BusyPointer&) = delete;
    BusyPointer& operator=(const BusyPointer&) = delete;

private:
    Window& window_;
};

bool is_refusal_of_the_disk(FailureNumber number) {
    constexpr std::array refusals{FailureNumber::permission_refused, FailureNumber::disk_not_ready,
                                  FailureNumber::other_drive, FailureNumber::path_access,
                                  FailureNumber::path_not_found};
    return std::ranges::find(refusals, number) != refusals.end();
}

} // namespace

ListDocument::ListDocument(const Platform& platform, StationSettings& settings, ListState& list, ChainState& chain,
                           Liste_son& window)
    : edits{list, chain, window.rows},
      platform_{platform},
      settings_{settings},
      list_{list},
      window_{window} {}

void ListDocument::charge_liste() {
    run_load([this] {
        enter_program_folder(platform_);
        list_.nom_fichier = list_.fichier_liste;
        if (list_.fichier_liste.empty())
            return;
        list_.fichier_liste_precedent = list_.fichier_liste;
        window_.rows.clear();
        window_.file_name.set_text(list_.fichier_liste);
        append_records<enreg_liste>(list_.fichier_liste);
        offer_deletion();
        select_current_row();
    });
}

void ListDocument::change_record(int number, const enreg_liste& record) {
    const std::string path = list_path(platform_, list_.fichier_liste);
    default_.changed(path, replace_record(platform_.disk, path, number, record));
}

void ListDocument::show_changed_record(int number) {
    RowTable& shown = window_.rows;
    const std::vector<RowTable::Row> rows = rows_of_file();
    const int count = static_cast<int>(rows.size());
    const auto row_of_file = [&rows](int row) -> const RowTable::Row& {
        return rows[static_cast<std::size_t>(row - 1)];
    };
    const auto is_shown = [&](int row) { return row_of_file(row)[list_column::path] == shown.text(row); };
    bool is_list = count == shown.count();
    for (int row = 1; is_list && row <= count; ++row)
        is_list = is_shown(row);
    if (is_list || shown.count() == 0)
        charge_liste();
    else if (number <= std::min(count, shown.count()) && is_shown(number))
        shown.replace(number, row_of_file(number));
}

std::vector<RowTable::Row> ListDocument::rows_of_file() const {
    ListReader reader{platform_.disk, list_path(platform_, list_.fichier_liste)};
    std::vector<RowTable::Row> rows;
    enreg_liste record;
    for (std::int64_t number = 1; number <= reader.count(); ++number) {
        reader.read(number, record);
        rows.push_back(row_of(record, platform_.decimal_mark));
    }
    return rows;
}

void ListDocument::A_liste_Click() {
    run_load([this] {
        const ChosenFile chosen = platform_.dialogs.open_file(
            {"Ouvrir un fichier liste", settings_.chemin_programme, "*.dfm", "fichier (*.dfm)|*.dfm"});
        append_chosen_list(chosen.file_name);
    });
}

void ListDocument::open_list(const std::string& name) {
    run_load([&] { append_chosen_list(name); });
}

void ListDocument::A_liste_anciene() {
    run_load([this] {
        enter_program_folder(platform_);
        const BusyPointer busy{window_};
        append_chosen_list(join_path(settings_.chemin_programme, default_list));
        if (window_.rows.count() > 0)
            list_.index_insertion = window_.rows.selected() + 1;
    });
}

void ListDocument::append_chosen_list(const std::string& name) {
    const bool merge = window_.rows.count() > 0;
    const std::string name_before = list_.nom_fichier;
    take_list_name(name);
    if (name.empty()) {
        list_.fichier_liste = name_before;
        return;
    }
    recup_nom();
    append_records<enreg_liste>(list_.fichier_liste);
    announce_list();
    if (default_.is_anothers(list_.fichier_liste)) // whose rows come and go without a word
        sauve_tout();
    else if (merge)
        save_by_itself();
    a_mettre_Enabled();
    window_.mouse_pointer = 0;
    list_.extension_fichier.clear();
}

void ListDocument::take_list_name(const std::string& name) {
    list_.nom_fichier = name;
    list_.fichier_liste_precedent = name;
    list_.fichier_liste = name;
    list_.nom_sauvegarde = name;
    window_.file_name.set_text(name);
}

void ListDocument::recup_nom() {
    const std::string& name = window_.file_name.text();
    if (!name.empty() && !is_network_path(name))
        platform_.disk.ChDrive(name);
    list_.nom_fichier = name_of_path(name);
}

template <typename Record>
void ListDocument::append_records(const std::string& path) {
    RecordReader<Record> reader{platform_.disk, path};
    Record record;
    const std::int64_t count = reader.count();
    for (std::int64_t number = 1; number <= count; ++number) {
        reader.read(number, record);
        window_.rows.append(row_of(record, platform_.decimal_mark));
    }
    default_.saw(path, reader.facts());
}

template void ListDocument::append_records<enreg_liste>(const std::string& path);
template void ListDocument::append_records<enreg_rfm>(const std::string& path);

void ListDocument::announce_list() {
    offer_deletion();
    window_.list_status.caption = "Lecture en attente .. Nb : " + std::to_string(window_.rows.count());
    window_.caption = "Fichier liste : " + list_.fichier_liste;
    show_file_in_use();
}

void ListDocument::offer_deletion() {
    window_.Supprimer_fichier.caption = "Supprimer le fichier " + list_.fichier_liste;
}

void ListDocument::select_current_row() {
    const int row = list_.index_en_cours.value();
    window_.rows.select(row);
    window_.rows.ensure_visible(row);
}

bool ListDocument::sauve_tout() {
    assert(on_window_thread());
    ErrorIndicator errors;
    errors.skip([this] { enter_program_folder(platform_); });
    const int selected = window_.rows.selected();
    if (window_.rows.count() > 0)
        window_.rows.select(1);
    const bool saved = save_default_list();
    if (list_.ligne_en_lecture == 0)
        list_.ligne_en_lecture = 1;
    errors.skip([&] {
        if (selected > 0)
            window_.rows.select(selected);
        select_current_row();
    });
    a_mettre_Enabled();
    if (saved)
        take_default_list();
    tell_notice();
    return saved;
}

// The operator goes on where he was.
bool ListDocument::save_edit() {
    const int selected = window_.rows.selected();
    const bool looked_at = window_.rows.is_looked_at();
    const bool saved = sauve_tout();
    if (selected > 0 && selected <= window_.rows.count()) {
        looked_at ? window_.rows.look_at(selected) : window_.rows.select(selected);
        window_.rows.ensure_visible(selected);
    }
    if (!saved)
        return false;
    list_.fichier_liste_precedent = list_.fichier_liste;
    offer_deletion();
    return true;
}

// A list that couldn't be written isn't the one of these rows.
bool ListDocument::save_default_list() {
    try {
        if (!default_.is_own(list_.fichier_liste))
            default_.keep_previous();
        default_.save([this](ListWriter& writer) { write_rows(writer); });
    } catch (const Failure& failure) {
        report(failure);
        return false;
    }
    return true;
}

void ListDocument::take_default_list() {
    list_.nom_fichier = list_.fichier_liste = default_.name();
    window_.file_name.set_text(default_.name());
    window_.caption = "Fichier liste ( Modification : " + list_.fichier_liste + " )";
    show_file_in_use();
}

void ListDocument::save_by_itself() {
    if (!window_.a_Ne_pas_Sauve.checked)
        sauve_tout();
}

// The record is reused from row to row and not cleared: a cell that can't be converted repeats the value of the row
// before. The file is replaced whole, so a full disk leaves the old list.
void ListDocument::write_rows(ListWriter& writer) {
    enreg_liste record;
    ErrorIndicator errors;
    for (int row = 1; row <= window_.rows.count(); ++row) {
        window_.rows.select(row);
        fill_empty_cells(row);
        fill_record(record, window_.rows.row(row), platform_.decimal_mark,
                    [&errors](auto&& statement) { errors.skip(statement); });
        writer.write(record);
    }
}

void ListDocument::claim_default_list() {
    default_.claim();
    tell_notice();
}

void ListDocument::tell_notice() {
    const std::string notice = default_.take_notice();
    if (!notice.empty() && tell)
        tell(notice);
}

void ListDocument::show_file_in_use() {
    const std::string_view loaded = name_of_path(list_.nom_sauvegarde);
    const bool holds_changes = list_.fichier_liste == default_.name() && !loaded.empty() && loaded != default_.name();
    window_.file_in_use.caption =
        "Dans fichier " + list_.fichier_liste +
        (holds_changes ? " (" + std::string{loaded} + " : modifications non enregistrées)" : "");
}

void ListDocument::fill_empty_cells(int row) {
    const auto fill = [&](std::size_t column, std::string_view value) {
        if (window_.rows.sub_item(row, column).empty())
            window_.rows.set_sub_item(row, column, std::string{value});
    };
    fill(list_column::start, default_start);
    fill(list_column::end, "0.00");
    fill(list_column::genre, "divers");
    fill(list_column::volume, "0");
    fill(list_column::duration, std::to_string(row));
}

void ListDocument::A_sauve() {
    window_.A_sauve.checked = true;
    window_.a_Ne_pas_Sauve.checked = false;
}

void ListDocument::a_Ne_pas_Sauve() {
    window_.a_Ne_pas_Sauve.checked = true;
    window_.A_sauve.checked = false;
}

void ListDocument::a_mettre_Enabled() {
    for (MenuItem* entry : window_.entries_that_need_a_list())
        entry->enabled = true;
}

void ListDocument::run_load(const std::function<void()>& statements) {
    try {
        statements();
    } catch (const Failure& failure) {
        if (!is_refusal_of_the_disk(failure.number))
            return;
        settings_.chemin_musique = settings_.chemin_programme;
        report(failure);
    }
}

// A box would hold up the tick that takes a row out, and the air with it.
void ListDocument::report(const Failure& failure) {
    if (tell && platform_.scheduler.in_tick())
        return tell(failure.what());
    show_box(platform_.dialogs, failure.what(), Icon::stop);
}

} // namespace sonarelle
