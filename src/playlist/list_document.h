#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/platform.h"
#include "playlist/default_list.h"
#include "playlist/liste_son.h"
#include "playlist/row_edits.h"
#include "state/list_state.h"
#include "state/station_settings.h"

namespace sonarelle {

struct Failure;

/// The current list: the rows of the list window, filled from list files and written back to `liste.dfm`.
/// Window thread.
class ListDocument {
public:
    ListDocument(const Platform& platform, StationSettings& settings, ListState& list, ChainState& chain,
                 Liste_son& window);

    RowEdits edits; ///< How rows come and go.

    /// Replaces all rows by the content of `fichier_liste` and selects row `index_en_cours`.
    void charge_liste();
    /// Puts a record in the place of another in the file. @see replace_record
    void change_record(int number, const enreg_liste& record);
    /// Shows a record that was changed in the file. The whole list is read anew where the file holds the rows that are
    /// shown; where they have gone another way, as after a save that wasn't wanted, only this row changes.
    void show_changed_record(int number);
    /// Asks for a list and appends its rows. Rows that were there before make it a merge, which is saved at once.
    void A_liste_Click();
    /// The same with a list that was named already.
    void open_list(const std::string& name);
    /// Appends the rows of `liste.dfm` in the program's folder.
    void A_liste_anciene();
    /// Writes all rows to `liste.dfm` in the program's folder, whatever list was loaded, or to a list of this station's
    /// own where that one is another program's. Empty cells get their
    /// defaults. A cell that can't be converted gives its record the value of the record before.
    /// False where the list couldn't be written, which was told.
    bool sauve_tout();
    /// The same behind an edit by hand. The list that is in use afterwards is the one that the edit is in.
    bool save_edit();
    /// The same of rows that came or went by themselves, or with another list: where the operator doesn't want his
    /// modifications saved, the table alone has them.
    void save_by_itself();

    void A_sauve();
    void a_Ne_pas_Sauve();
    void a_mettre_Enabled();

    /// Makes the list of the changes this station's own, and tells when another program is on the air with it.
    void claim_default_list();
    [[nodiscard]] DefaultList& default_list_file() { return default_; }
    /// Names the file whose records the chain reads, and a list whose changes it has in its stead.
    void show_file_in_use();
    /// Tells the operator without holding up who calls.
    std::function<void(const std::string& text)> tell;

    /// Takes the drive and the file's name from `file_name`.
    void recup_nom();

    /// Appends every record of a file.
    template <typename Record>
    void append_records(const std::string& path);
    /// Says which list is loaded, and how many rows there are.
    void announce_list();
    /// Runs a load under its trap: a refusal of the disk is told to the operator, any other failure ends it silently.
    void run_load(const std::function<void()>& statements);

private:
    [[nodiscard]] std::vector<RowTable::Row> rows_of_file() const;
    void take_list_name(const std::string& name);
    void offer_deletion();
    void append_chosen_list(const std::string& name);
    void fill_empty_cells(int row);
    void write_rows(ListWriter& writer);
    [[nodiscard]] bool save_default_list();
    void take_default_list();
    void tell_notice();
    void select_current_row();
    void report(const Failure& failure);

    const Platform& platform_;
    StationSettings& settings_;
    ListState& list_;
    Liste_son& window_;
    DefaultList default_{platform_};
};

} // namespace sonarelle
