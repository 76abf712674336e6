#pragma once

#include <string>

#include "platform/numbers.h"
#include "playlist/liste_son.h"
#include "playlist/working_records.h"
#include "playout/deck_ring.h"
#include "state/station_settings.h"
#include "windows/antenne_fm.h"
#include "windows/draw_window.h"
#include "windows/mini_lecteur.h"

namespace sonarelle {

inline constexpr std::string_view waiting_title = " - En attente";
inline constexpr std::string_view missing_title = "Non trouvé";
inline constexpr std::string_view switch_on = "bouton_on.jpg";
inline constexpr std::string_view switch_off = "bouton_off.jpg";
inline constexpr std::string_view empty_title = "(Aucun fichier en cours)";

/// How a started track is named.
struct TrackNames {
    std::string of_file; ///< The file's name without its ending.
    std::string title;   ///< The same, short.
    std::string on_main; ///< What the main window's title says behind the station's name.
};

/// What the windows say of the decks and of the chain. The routines tell it what has happened, and it turns that into
/// captions, lamps and the state of buttons: the main window, the list window and the small player say the same,
/// whichever of them the operator has before him.
/// Window thread.
class DeskDisplay {
public:
    DeskDisplay(const StationSettings& settings, Antenne_FM& window, Liste_son& list, mini_lecteur& small_player,
                liste& draws, DeckRing& ring)
        : settings_{settings},
          window_{window},
          list_{list},
          small_player_{small_player},
          draws_{draws},
          ring_{ring} {}

    /// A deck waits for its turn, or has nothing that it could play.
    void waits(Deck& deck) const { deck.controls.title.caption = std::string{waiting_title}; }
    void is_empty(Deck& deck) const { deck.controls.title.caption = std::string{empty_title}; }
    void has_no_file(Deck& deck) const { deck.controls.title.caption = std::string{missing_title}; }
    /// A file came on a deck. `duration` as hh:mm:ss.
    void loaded(Deck& deck, const std::string& duration, const std::string& title) const;
    /// Names the file that came on a deck, which the small player's "next" can follow again.
    void followed_by(const std::string& title) const;
    void next_allowed() const { small_player_.next.enabled = true; }
    /// A row's file came on a deck from the list.
    void loaded_from_list(const std::string& name, const std::string& duration) const;
    /// The chain goes over to a row: what the row says of its file.
    void goes_over_to(const DestinationRecord& row, const std::string& name) const;
    void named(Deck& deck, const std::string& name) const { deck.controls.title.caption = name; }
    /// The end of play that its counter shows, whole seconds as text.
    void ends_at(Deck& deck, const std::string& seconds) const { deck.controls.counter.caption = seconds; }
    void can_be_played(Deck& deck) const { deck.controls.play.enabled = true; }
    void can_be_zapped(Deck& deck) const { deck.controls.zap.enabled = true; }
    void can_be_paused(Deck& deck) const { deck.controls.pause.enabled = true; }
    /// No other file may be opened on a deck.
    void keeps_its_file(Deck& deck) const { deck.controls.open.enabled = false; }
    /// The slider's place, in percent.
    void volume(Deck& deck) const;
    /// Turns the title by a character. An even one grows by one first, and then turns.
    static void turn_title(Deck& deck);
    /// A deck stands at its beginning, and another file may be opened on it.
    void rewound(Deck& deck) const;
    void paused(Deck& deck, bool is_paused) const;
    void stopped(Deck& deck) const;

    /// A deck was started and is the main one.
    void started(Deck& deck, const TrackNames& names) const;
    /// Marks the deck that plays.
    void mark_main(const Deck& main) const;
    /// The entries that play or mix another deck than the main one, and their keys.
    void offer_entries_beside(const Deck& main) const;
    /// Which buttons can be reached while a deck begins, the chain being on: the main one goes on to be played and
    /// zapped, the others wait for it.
    void leave_buttons_to(const Deck& main) const;
    /// The same at rest, when another file may be opened on all but the main deck.
    void arrange_buttons_round(const Deck& main) const;
    void elapsed(Integer second) const { window_.elapsed.caption = text_of(second); }
    void main_deck_is_at(Deck& main, Integer second) const;
    void main_deck_ends_in(Integer seconds) const;
    /// The overlap of two tracks is over: `old` is released.
    void overlap_over(Deck& old, Deck& main) const;

    void special_mix_offered(Deck& deck, bool offered) const { deck.controls.special_mix.enabled = offered; }
    void special_mix_began(Deck& deck, Integer seconds) const;
    void special_mix_ended(Deck& deck) const;

    /// Overlap and load lead in force.
    void overlap() const;
    /// The same, where the operator points at them.
    void overlap_hints() const;

    void list_fade_offered(bool offered) const { window_.Active_audio.enabled = offered; }
    void zap_fade_offered() const { window_.Active_audio_zapping.enabled = true; }

    /// The chain goes on by itself: its line names the station.
    void chain_goes_on() const { window_.chain_status.caption = "- - " + settings_.nom_radio + " - -"; }
    void chain_follows_list(Integer deck, Integer mix_point) const;
    void chain_follows_decks(const Deck& deck, Integer mix_point) const;
    void deck_runs_in_ring(const Deck& deck) const {
        list_.running_deck.caption = "Play " + deck.name() + " Mix lecteur";
    }
    void deck_stopped_in_ring(const Deck& deck) const { window_.chain_status.caption = "Play " + deck.name(); }
    void decks_run_by_hand() const;
    /// The manual mode was chosen, and was left for the chain over decks.
    void decks_wait_for_hands() const;
    void decks_can_be_chained() const { window_.mix_titles.caption = "Mixer les titres"; }
    void no_chain_runs() const { window_.running_chain.caption = "Chargement rapide"; }
    /// A fault has stopped the chain.
    void chain_stopped() const;

    void light_deck_chain() const;
    void light_list_chain() const;
    /// The lamp of the list chain goes off for that of the decks.
    void light_deck_chain_alone() const;
    /// One of the four reading modes' lamps.
    void light_reading_mode(Image& lamp) const;
    /// The lamp of a switch.
    void light_switch(Image& lamp, bool on) const { lamp.picture = std::string{on ? switch_on : switch_off}; }
    /// The entries of the visual effect can be reached.
    void effects_offered(bool offered) const;
    void items_off() const;
    void insertions_off() const;

    /// Whether a list can be started, which it can't while it runs.
    void list_can_start(bool can) const;
    void list_starts() const;
    void list_can_be_stopped() const;
    void prelisten_offered(bool offered) const { list_.A_precoute.enabled = offered; }
    void prelisten_is(bool on) const { list_.A_precoute.checked = on; }
    /// Draws that hit what was drawn before.
    void null_draws(int count) const { draws_.null_draws.caption = std::to_string(count); }
    /// In random order the list isn't changed by hand, and nothing is shown of the sound.
    void order_is(bool random) const;
    void list_stopped() const;
    void list_reads_row(Integer row) const;
    void list_has_no_file() const { list_.list_status.caption = "Non trouvé"; }
    void list_has_no_mix_point() const { list_.progress.caption = "( - - )"; }
    void list_mixes_at(Integer second, Integer mix_point) const;
    /// The list's title names the station and the chain that was chosen.
    void list_is_mixed_by(const std::string& chain) const {
        list_.caption = settings_.nom_radio + " ( " + chain + " )";
    }
    /// What is left of the main deck's track, as hh:mm:ss; and the time of day.
    void list_remaining(const std::string& time) const { list_.remaining.caption = time; }
    void list_time(const std::string& time) const { list_.time_of_day.caption = time; }
    void list_tells_the_time() const { list_.time_of_day.enabled = true; }
    /// The operator may zap.
    void zap_allowed() const;

    /// The windows' titles before a track gives them its name; and behind the operator's change of the name.
    void station_named() const;
    void names_file(const std::string& path) const { window_.caption = settings_.nom_radio + path; }
    void station_nameless() const;
    void station_renamed() const;

private:
    const StationSettings& settings_;
    Antenne_FM& window_;
    Liste_son& list_;
    mini_lecteur& small_player_;
    liste& draws_;
    DeckRing& ring_;
};

} // namespace sonarelle
