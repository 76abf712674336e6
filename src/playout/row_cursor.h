#pragma once

#include <set>
#include <string>
#include <string_view>

#include "playlist/list_document.h"
#include "playlist/record_reading.h"
#include "playout/deck_loading.h"
#include "playout/desk.h"
#include "playout/journal.h"
#include "playout/row_draw.h"

namespace sonarelle {

/// Why a row is passed over and stays in the list, for the journal.
namespace passed_over {
inline constexpr std::string_view silent_disk = " Le disque ne répond pas";
inline constexpr std::string_view no_folder = " Dossier absent, gardé dans la liste";
inline constexpr std::string_view too_short = " Plus court qu'une seconde";
inline constexpr std::string_view unplayable = " Lecture impossible, gardé dans la liste";

/// Of a load that came to nothing.
[[nodiscard]] std::string_view because_of(LoadResult result);
} // namespace passed_over

/// Where the chain stands in the list: which row comes next, whether its file is there, and its way onto a deck.
/// Window thread.
class RowCursor {
public:
    RowCursor(Desk& desk, Journal& journal, ListDocument& document, RecordReading& reading, DeckLoading& loading,
              RowDraw& draws)
        : desk_{desk},
          journal_{journal},
          document_{document},
          reading_{reading},
          loading_{loading},
          draws_{draws} {}

    /// Steps to the next row, round the end, and takes its path.
    void take_next_row();
    /// Takes the path of the current row, round the end.
    void take_current_row();
    /// Steps to a row by draw. False when none could be drawn: the next turn draws again.
    [[nodiscard]] bool take_drawn_row(DrawPlace place);

    /// Keeps random order from the current row for the rest of the cycle.
    void bar_current_row() { draws_.bar_current_row(); }
    /// Steps to any row at all, by one draw.
    void draw_any_row();

    /// Where the chain stands, and what it has made ready.
    struct Place {
        Integer row;
        std::string path;
        Flag choix_prepare, chargement_fait;
        int rows = 0; ///< Of the list.
    };
    [[nodiscard]] Place place() const;
    /// Where rows were removed on the way there is no place to go back to, and the next look draws anew.
    void go_back_to(const Place& place);

    enum class Look {
        found,
        gone,       ///< The row left the list, or names no file.
        no_answer,  ///< Its drive or folder doesn't answer: passed over and kept.
        silent_disk ///< The same of a disk that was waited for.
    };
    /// Looks for the current row's file.
    [[nodiscard]] Look look();
    /// The current row's file as it was found, empty when it isn't there; a row whose folder is there and doesn't hold
    /// it is removed.
    /// @throws Failure when its drive or folder doesn't answer: 68, 76 and others.
    [[nodiscard]] std::string detecte_fichier_liste(const std::string& chemin_fichier);

    /// The current row's record for the deck that it goes on, with the path under which its file was found.
    [[nodiscard]] DestinationRecord read_row();
    /// Any row's record, as the list has it.
    [[nodiscard]] DestinationRecord record_of(Integer row) { return reading_.read_for_the_air(row); }
    /// A row that the deck holds already is rendered anew, and starts where the operator wanted it.
    LoadResult load_on(Deck& deck, const DestinationRecord& row);
    /// Whether the load step has put the current row on that deck already.
    [[nodiscard]] bool is_loaded(const Deck& deck) const;

    [[nodiscard]] bool is_folder_there(const std::string& path) const;
    /// Its folder answers and doesn't hold it.
    [[nodiscard]] bool is_missing(const std::string& path) const;

    /// Keeps the current row and journals, once a track, why it isn't taken. Tomorrow it may be sound again.
    void pass_over(std::string_view why);
    /// The journal's line alone.
    void note_passed_over(std::string_view why);
    /// A new track is on the air: what is passed over from now on is journalled anew.
    void begin_track() { passed_over_.clear(); }

    /// Removes the current row, whose file can't be played, saves the list and says so.
    void remove_row();
    /// Shows it as the one that plays.
    void select_row();

private:
    void report_missing(const std::string& heading, const std::string& last_line);

    Desk& desk_;
    Journal& journal_;
    ListDocument& document_;
    RecordReading& reading_;
    DeckLoading& loading_;
    RowDraw& draws_;
    std::set<std::string> passed_over_; // since the last start
};

} // namespace sonarelle
