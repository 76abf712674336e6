#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "playlist/working_records.h"
#include "playout/deck_volume.h"
#include "playout/desk.h"

namespace sonarelle {

class MixEngine;

/// What became of a load.
enum class LoadResult {
    loaded,
    failed,              ///< The file can't be played.
    disk_did_not_answer, ///< Its disk was silent for too long.
    too_short ///< It is shorter than a second: its bar would never come to its end, for which the chain waits.
};

/// Whether it failed in a way that may be mended by tomorrow: its row stays in the list.
[[nodiscard]] constexpr bool is_passed_over(LoadResult result) {
    return result == LoadResult::disk_did_not_answer || result == LoadResult::too_short;
}

/// Seconds of a file, which is opened beside the decks; 0 for one that can't be played.
[[nodiscard]] double length_of(const Platform& platform, const std::string& path);

/// Loads files on the decks. Every load takes a new graph first, so a deck that still plays goes silent at that moment,
/// whatever becomes of the load.
class DeckLoading {
public:
    DeckLoading(Desk& desk, DeckVolume& volume, MixEngine& mix);

    /// A record's file, by hand; one of the network is opened as it is told, without a look for it.
    void load_record(Deck& deck, const DestinationRecord& record, const std::string& network_path);
    /// Whether a hand may put another file on a deck: for one that sounds the operator is asked, No as default.
    [[nodiscard]] bool may_be_cut(const Deck& deck);

    /// A row's file, or the listening path, without starting it.
    LoadResult load_from_list(Deck& deck, const DestinationRecord& row);

    /// A file of the program's command line on deck 1.
    void charge_lire(const std::string& path);

    /// The open button of a deck: asks for a file, unless one was dragged. A deck that sounds is cut only after a
    /// question, and one that the chain has put on the air behind the file dialog keeps its track.
    void open_by_hand(Deck& deck);
    /// Files were dropped on a deck: the first one is opened as by hand, where dragging is allowed.
    void open_dropped(Deck& deck, const std::vector<std::string>& paths);

    /// The end point that a deck's counter shows by the reading options in force.
    [[nodiscard]] std::string end_point_text(Deck& deck, const std::string& end_of_record) const;

    /// The name of a file without its ending. A stop closes the video window by the ending of the file named last.
    [[nodiscard]] std::string name_of(std::string_view path);
    /// Seconds as a deck's title shows them. @throws Failure 6 above 32,767 seconds.
    [[nodiscard]] std::string duration_text(double seconds) const;
    /// Writes the folder of the chosen file into the settings.
    void ecrire_path_fichier(const std::string& path);

private:
    [[nodiscard]] LoadResult render_from_list(Deck& deck, const DestinationRecord& row);
    /// Where a file lies, by a look into its folder; empty, after a word to the operator, when it isn't there.
    [[nodiscard]] std::string recup_path(const std::string& dest_chemin);
    /// The record's start and volume are those of the deck's file; an end it has none yet.
    static void take_record(Deck& deck, const DestinationRecord& record);
    void show_length(Deck& deck);
    /// The bar's range, for files of a second and more; the bar goes back to its beginning.
    void set_bar(Deck& deck);
    void open(Deck& deck);
    /// The file of a deck was dragged on it.
    [[nodiscard]] bool is_file_chosen() const;
    void go_to_music_folder();
    /// False when nothing was chosen, or the deck plays meanwhile.
    [[nodiscard]] bool choose_file(Deck& deck);
    void accept_opened(Deck& deck);
    void report_failed_open(Deck& deck, const Failure& failure);

    Desk& desk_;
    DeckVolume& volume_;
    MixEngine& mix_;
};

} // namespace sonarelle
