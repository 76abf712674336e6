#pragma once

#include <deque>
#include <map>
#include <random>
#include <string>
#include <vector>

#include "platform/simulated/simulated_platform.h"
#include "station/station.h"

namespace sonarelle {

/// A place of the disk with music, which can go away and come back.
struct MusicPlace {
    std::string folder;
    int share_percent; ///< Of the list's rows.
    std::string drive; ///< That is unplugged when the place goes away; empty where the folder is renamed.
    bool gone = false;
};

/// A station on the air from a long list of everything that lists hold, on a simulated machine. The same seed gives
/// the same day.
class SoakWorld {
public:
    static constexpr int tracks_in_list = 400;

    explicit SoakWorld(unsigned seed);

    /// From 0 to `count` - 1.
    [[nodiscard]] int below(int count) { return std::uniform_int_distribution<int>{0, count - 1}(random_); }
    [[nodiscard]] bool happens(int percent) { return below(100) < percent; }
    [[nodiscard]] const std::string& any_of(const std::vector<std::string>& texts) {
        return texts[static_cast<std::size_t>(below(static_cast<int>(texts.size())))];
    }

    [[nodiscard]] Deck& deck(int number) { return station.deck_ring.deck(number); }
    [[nodiscard]] DeckControls& controls(int number) { return station.main_window.deck(number); }
    [[nodiscard]] int main_deck() const { return station.chain.lecteur_en_cours.value(); }
    [[nodiscard]] bool main_sounds() {
        return station.deck_ring.has_main_deck() && station.deck_ring.main_deck().sounds();
    }
    [[nodiscard]] RowTable& rows() { return station.list_window.rows; }
    [[nodiscard]] bool is_heard() const { return !machine.media.on_air().empty(); }
    [[nodiscard]] double now() const { return in_seconds(machine.time.now()); }

    /// Whether the file is there and plays at least a second.
    [[nodiscard]] bool can_be_played(const std::string& path) const;
    /// A place goes away with all that it holds, or comes back. The first place always stays.
    void toggle(MusicPlace& place);

    /// What the operator did last, and when, for a failure's recipe.
    void note(const std::string& gesture);
    [[nodiscard]] std::string recipe() const;
    /// What the desk shows, for the recipe.
    [[nodiscard]] std::string state();

    SimulatedPlatform machine;
    Station station{machine.platform};
    std::vector<MusicPlace> places;
    std::vector<std::string> tracks;  ///< Paths of the list that begins the day.
    std::vector<std::string> jingles; ///< Files that are in no list, always there.
    const unsigned seed;

private:
    void write_settings();
    void make_tracks();
    void make_jingles();
    void open_list();
    [[nodiscard]] const MusicPlace& any_place();
    [[nodiscard]] double any_length();
    void add_track(const std::string& path, double length);
    [[nodiscard]] enreg_liste make_track(int number);
    [[nodiscard]] std::string chain_state();
    [[nodiscard]] std::string deck_state(int number);

    std::mt19937 random_;
    std::map<std::string, double> lengths_; // of what can be played, by path
    std::deque<std::string> gestures_;
};

inline constexpr const char* soak_list = "C:\\Sonarelle\\jour.dfm";
inline constexpr const char* soak_short_list = "C:\\Sonarelle\\soir.dfm";

} // namespace sonarelle
