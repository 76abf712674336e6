#pragma once

#include <deque>
#include <string>
#include <string_view>
#include <vector>

#include "platform/row_table.h"
#include "playlist/draw_table.h"
#include "state/chain_state.h"
#include "state/list_state.h"
#include "windows/draw_window.h"

namespace sonarelle {

/// How the log says what a draw came to, and what the window says while it hits.
struct DrawWords {
    std::string_view hit;
    std::string_view accepted;
    std::string_view on_hit;
};

/// Keeps what the draws came to, and shows it in their control window, whose lists are filled only while it can be
/// seen. By its buttons the operator repairs the table of random order. Window thread.
class DrawControl {
public:
    /// The two pairs of lists: of the list's rows and items, and of the jingles.
    enum class Lists { of_list, of_jingles };

    DrawControl(liste& window, DrawTables& tables, const ListState& list, ChainState& chain, const RowTable& rows);

    void show();
    /// Names what is drawn: rows in random order, items, or jingles.
    void head(Lists which, const std::string& heading);
    /// A cycle begins anew: both lists are emptied.
    void begin_cycle(Lists which);
    void clear_lists();
    /// The table of which the next draw is made, with the number that it has just barred.
    void show_table(Lists which, const DrawTable& table, int barred);
    void log(Lists which, const Draw& draw, const DrawWords& words);
    /// Lines of the log of their own.
    void log(Lists which, const std::vector<std::string>& lines);

    void rows_to_draw(int rows);
    /// What a draw of a row, or of a record of a list file, has come to in the end. `every` as "… tous les 3 fich..".
    void row_drawn(int row, int rows, const std::string& file);
    void item_drawn(int number, int records, const std::string& every, const std::string& file);
    void jingle_drawn(int number, int records, const std::string& every, const std::string& file);
    void jingle_named(const std::string& name) { window_.jingle_name.caption = "Nom : " + name; }

private:
    struct Pair {
        ListBox& played;
        ListBox& draws;
        const DrawTable* table; // that the played list shows; none after "Liste clear"
        std::deque<std::string> lines;
    };

    [[nodiscard]] Pair& pair(Lists which) { return which == Lists::of_list ? of_list_ : of_jingles_; }
    void fill(Pair& pair);
    void show_total();
    void forget_null_draws();
    void search();
    void reload();
    void press_clear_lists();
    void press_clear_table();
    void add_current();

    liste& window_;
    DrawTables& tables_;
    const ListState& list_;
    ChainState& chain_;
    const RowTable& rows_;
    Pair of_list_{window_.played, window_.draws, nullptr, {}};
    Pair of_jingles_{window_.jingles_played, window_.jingle_draws, nullptr, {}};
};

} // namespace sonarelle
