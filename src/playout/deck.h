#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "platform/media.h"
#include "platform/numbers.h"
#include "windows/deck_controls.h"

namespace sonarelle {

/// The deck ring: 1, 2, 3, 1.
[[nodiscard]] constexpr int next_deck(int deck) {
    return deck % 3 + 1;
}
[[nodiscard]] constexpr int previous_deck(int deck) {
    return (deck + 1) % 3 + 1;
}

/// Seconds of the shortest file that is taken for a track.
inline constexpr double shortest_good_file = 1.0;

/// Whether a file's ending is one of pictures. A stop closes, and the start of a list opens, the video window of the
/// classic ones alone; any other start opens it for all.
[[nodiscard]] bool has_video_ending(std::string_view extension);
[[nodiscard]] bool has_classic_video_ending(std::string_view extension);

/// One of the three decks: a graph, the file on it and its parts on the main window.
/// Window thread.
class Deck {
public:
    /// `path` is the shared variable that names the file on the deck.
    Deck(int number, Media& media, DeckControls& deck_controls, std::string& path_variable)
        : controls{deck_controls},
          path{path_variable},
          media_{media},
          number_{number} {}

    [[nodiscard]] int number() const { return number_; }
    [[nodiscard]] std::string name() const { return std::to_string(number_); }

    /// Takes a new, empty graph, which isn't paused; what played on the old one goes silent, and its video window
    /// closes.
    void create_graph();
    [[nodiscard]] bool has_graph() const { return graph_ != nullptr; }
    /// @throws Failure 91 without one.
    [[nodiscard]] MediaGraph& graph() const;
    /// Whether it runs and isn't at its end: a graph that has come to its end goes on running.
    [[nodiscard]] bool sounds() const;
    /// Whether it runs on and has nothing left to play.
    [[nodiscard]] bool is_at_its_end() const;
    /// Its bar is full, or it has nothing left to play.
    [[nodiscard]] bool has_played_out() const { return controls.progress.percent() == 100 || is_at_its_end(); }
    /// Drops the graph; a video window stays until `close_video`.
    void drop_graph();

    /// Whether nothing is under way on it: it neither runs nor is paused.
    [[nodiscard]] bool rests() const;

    /// Takes the video window of the graph and names it.
    void open_video(std::string_view caption);
    void close_video() { video_.reset(); }

    /// The second of the file at which it starts.
    [[nodiscard]] double start_of_play() const { return start_by_hand.value_or(debut_piste); }

    /// Seconds without their decimals. @throws Failure 6 beyond 16 bits, 91 without a graph.
    [[nodiscard]] Integer whole_position() const { return to_integer(Fix(graph().get_CurrentPosition())); }
    [[nodiscard]] Integer whole_duration() const { return to_integer(Fix(graph().get_Duration())); }

    /// The file on the deck belongs to no record: it plays from its beginning to its end, as loud as the slider says.
    void forget_record();

    /// The end point that the counter shows. @throws Failure 13 for a text that is none.
    [[nodiscard]] Integer end_point() const { return end_point_to_integer(controls.counter.caption.get()); }

    DeckControls& controls;
    std::string& path;
    std::string fin_piste;  ///< End of play of the record on the deck, seconds as text; empty without a record.
    double debut_piste = 0; ///< Start of play of that record, seconds.
    std::string genre;      ///< Of that record.
    std::optional<double> start_by_hand; ///< Where the operator wants the next start instead, seconds.
    std::optional<Integer> volume_piste; ///< Its attenuation, hundredths of a decibel; none without a record.
    std::string duree_piste;             ///< Whole seconds of the file, as text.
    Flag pause_lecteur;                  ///< The deck is paused.
    Integer mix_en_cours;                ///< Not 0 while the deck runs a special mix.
    Integer volume_sauve;                ///< Slider value that comes back after a special mix.
    /// The graph is about to go, for a new one or for none.
    std::function<void()> on_graph_leaves;

private:
    void end_pause();
    void tell_that_graph_leaves() const;

    Media& media_;
    std::shared_ptr<MediaGraph> graph_;
    std::shared_ptr<MediaGraph> video_;
    int number_;
};

} // namespace sonarelle
