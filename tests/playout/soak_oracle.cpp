#include "playout/soak_oracle.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <unordered_set>
#include <utility>

#include "platform/failure.h"
#include "platform/text.h"

namespace sonarelle {

namespace {

constexpr int listening_period = 500; // milliseconds
constexpr Frames longest_silence = seconds(2);
constexpr Frames longest_to_rescue = seconds(8);    // 5 s of patience, and whole seconds on either side
constexpr Frames longest_behind_a_mix = seconds(4); // a tick each for the mix and for the list, and a hand's
constexpr int half_seconds_between_row_checks = 120;

/// What a message begins with or holds, and why it may come.
struct KnownMessage {
    std::string_view part;
    std::string_view why;
};

constexpr std::array known_messages{
    KnownMessage{"Ce fichier est non trouvé ou non valide",
                 "a row whose file is gone or can't be read leaves the list"},
    KnownMessage{"secondes minimun sont demandées", "a zap in the first 30 s"},
    KnownMessage{"Aucun lecteur en cours", "a key before anything plays, or by hand"},
    KnownMessage{"Aucune lecture en cours", "a zap before anything plays, or by hand"},
    KnownMessage{"n'existe pas ou plus", "a quick load whose file is gone"},
    KnownMessage{"Le mixage spécial dure", "a special mix that outlasts the track on the air"},
    KnownMessage{"Impossible de mettre a jour", "an update of a row whose file is gone or can't be read"},
    KnownMessage{"Type incompatible", "an overlap field that holds no number"},
    KnownMessage{"Format inconnu ou fichier illisible",
                 "a file that can't be played, where no load step looked at it: a rescue follows"},
    KnownMessage{"Nom de fichier incorrect",
                 "a zap by key after a cancelled \"Charger liste\", which leaves no list file"},
    KnownMessage{"Rien n'est inséré dans la liste", "an insertion that has nothing to draw from"},
    KnownMessage{"dans load on liste", "a random list in which the number 0 was drawn, or nothing"},
    KnownMessage{"lecture impossible", "a zap to a file that can't be played: the track on the air goes on"},
    KnownMessage{"Périphérique non disponible", "a zap to a deck whose file's drive is gone"},
    KnownMessage{"Fichier non trouvé /abandon", "a zap to a deck whose file is gone"},
    KnownMessage{"Erreur lecture fichier", "an open by hand of a file that is gone or can't be read"},
    KnownMessage{"Chemin d'accès introuvable",
                 "an open by hand that came to nothing in a music folder that is gone, or a zap to a deck of one"},
    KnownMessage{"abandon lecture liste", "the operator started a row that can't be played"},
    KnownMessage{"Fichier introuvable", "a row of a share, which nothing looks for before its turn: a rescue follows"},
};

} // namespace

SoakOracle::SoakOracle(SoakWorld& world)
    : world_{world},
      timer_{"soak", 0, world.machine.scheduler} {
    for (const std::string& path : world_.tracks)
        owed_rows_.insert(path);
    world_.station.desk.on_event = [this](const OnAirEvent& event) { follow(event); };
    world_.station.notices.on_warning = [this](const std::string& text) { count_message(text); };
    world_.machine.dialogs.on_answered = [this](const Question& question) {
        // Questions and good news are no errors.
        if (question.kind == QuestionKind::box && question.buttons == Buttons::ok && question.icon != Icon::information)
            count_message(question.text);
    };
    timer_.on_tick = [this] { listen(); };
    timer_.set_interval(listening_period);
    timer_.enable();
}

void SoakOracle::watch(std::string_view hand, const std::function<void()>& move) {
    const int main = world_.main_deck();
    const bool sounded = world_.main_sounds();
    const Frames begin = world_.machine.time.now();
    in_hand_ = true;
    may_cut_ = false;
    try {
        move();
    } catch (const Failure& failure) {
        fail("a hand met a failure that nobody caught: " + std::string{failure.what()});
    }
    in_hand_ = false;
    list_was_on_ = world_.station.chain.mode_enchainement.is_true();
    world_.machine.dialogs.forget();
    if (may_cut_ && !world_.main_sounds())
        cut_by_ = hand;
    else if (sounded && world_.deck(main).rests() && own_silence().empty() && main == world_.main_deck() &&
             world_.machine.time.now() == begin)
        fail("the hand cut the air");
}

void SoakOracle::follow(const OnAirEvent& event) {
    if (event.kind == OnAirEvent::Kind::started) {
        cut_by_.clear();
        if (world_.station.chain.air == AirState::on) // a run, not a deck that is started by hand behind the fault
            stopped_by_fault_ = false;
    } else if (event.kind == OnAirEvent::Kind::silence_over) {
        silence_ = {}; // by a sound shorter than the ear's half second
    } else if (event.kind == OnAirEvent::Kind::stopped && event.text != "Arrét lecture liste") {
        stopped_by_fault_ = true;
    }
}

void SoakOracle::listen() {
    if (failed_)
        return;
    look_at_chain();
    const std::string_view own = own_silence();
    if (world_.station.chain.lecteur_mix_special != 0)
        last_mix_ = world_.machine.time.now();
    silence_ = world_.is_heard() || !own.empty() ? Frames{} : silence_ + milliseconds(listening_period);
    wished_silence_ = world_.is_heard() || own.empty() ? Frames{} : wished_silence_ + milliseconds(listening_period);
    if (wished_silence_ == longest_silence)
        ++silences_[std::string{own}];
    if (silence_ == Frames{})
        rule_ = {};
    else if (const std::string_view rule = silence_of_the_rules(); !rule.empty())
        rule_ = rule; // a hand that comes to mend it may leave it
    if (silence_ > longest_silence)
        judge_silence();
    if (++half_seconds_ % half_seconds_between_row_checks == 0)
        check_rows();
}

void SoakOracle::look_at_chain() {
    const bool list_is_on = world_.station.chain.mode_enchainement.is_true();
    if (list_was_on_ && !list_is_on && !in_hand_)
        fail("the list chain was left by no hand");
    list_was_on_ = list_is_on;
    if (world_.main_sounds())
        cut_by_.clear();
    const Antenne_FM& window = world_.station.main_window;
    off_by_rule_ = !window.deck_chain_timer.enabled() && (off_by_rule_ || window.Désactive_audio.checked);
    // A deck that is started by hand is no chain yet.
    if (world_.main_sounds() && (window.deck_chain_timer.enabled() || window.list_chain_timer.enabled()))
        stopped_by_fault_ = false;
    if (world_.station.chain.air == AirState::off) // which only a hand puts off
        stopped_by_fault_ = false;
}

void SoakOracle::judge_silence() {
    if (silence_ == longest_silence + milliseconds(listening_period))
        ++silences_[stopped_by_fault_ ? "a fault, until the rescue"
                    : rule_.empty()   ? "nobody's will"
                                      : std::string{rule_}];
    if (!stopped_by_fault_ && rule_.empty())
        fail("silence");
    else if (silence_ > longest_to_rescue)
        fail("no rescue");
}

// With insertions a track that is led past its mix point plays out, and its file's end brings nothing.
std::string_view SoakOracle::silence_of_the_rules() const {
    const Station& station = world_.station;
    if (world_.machine.time.now() - last_mix_ < longest_behind_a_mix)
        return "the end of a special mix that outlasted its track";
    const bool list_chain = station.chain.mode_enchainement.is_true() || station.main_window.list_chain_timer.enabled();
    if (!list_chain || !station.deck_ring.has_main_deck())
        return {};
    if (world_.main_deck() == 1 && station.settings.valide_fichier_aleatoire1.is_true())
        return "the file's end on deck 1 while items are inserted, until the rescue";
    if (station.chain.ordre_aleatoire.is_true() && station.chain.jingles_aleatoires.is_true())
        return "the file's end in random order with jingles, until the rescue";
    return {};
}

std::string_view SoakOracle::own_silence() {
    if (!cut_by_.empty())
        return cut_by_;
    if (in_hand_ && may_cut_)
        return "a hand that cuts";
    if (is_paused())
        return "a pause";
    if (world_.station.desk.is_manual())
        return "manual mode";
    return stopped_by_fault_ ? std::string_view{} : own_choice();
}

// A paused special mix holds the chain as a paused main deck does.
bool SoakOracle::is_paused() {
    return std::ranges::any_of(world_.station.deck_ring.decks, [this](const Deck& deck) {
        return deck.pause_lecteur.is_true() && (deck.number() == world_.main_deck() || deck.mix_en_cours != 0);
    });
}

// What the operator chose brings no next track: the chain over decks goes on only from deck to loaded deck.
std::string_view SoakOracle::own_choice() {
    const Antenne_FM& window = world_.station.main_window;
    if (!world_.station.deck_ring.has_main_deck())
        return "nothing started";
    if (world_.station.chain.mode_enchainement.is_true() || window.list_chain_timer.enabled())
        return {};
    if (off_by_rule_)
        return "the chain over decks, put off with the fades";
    if (!window.mix_titles.value())
        return "reading mode \"Lecteur\" under \"Mixer une liste\"";
    const Deck& next = world_.deck(next_deck(world_.main_deck()));
    if (next.path.empty() || !world_.can_be_played(next.path) || next.controls.progress.value > 0)
        return "the chain over decks before a deck that can't start";
    return {};
}

void SoakOracle::count_message(const std::string& text) {
    const auto* known = std::ranges::find_if(
        known_messages, [&text](const KnownMessage& message) { return text.find(message.part) != std::string::npos; });
    if (known == known_messages.end() || is_of_a_place_to_pass_over(text))
        return fail("an unexplained message: " + text);
    ++messages_[std::string{known->part}];
}

// The list chain passes over what lies on a place that is gone, without an error. The chain over decks can't.
bool SoakOracle::is_of_a_place_to_pass_over(const std::string& text) const {
    return text.find("ATTENTION ERREUR ! T4") != std::string::npos &&
           std::ranges::any_of(world_.places, [&text](const MusicPlace& place) {
               return place.gone && text.find(place.folder) != std::string::npos;
           });
}

void SoakOracle::accept_list() {
    owed_rows_.clear();
    for (int row = 1; row <= world_.rows().count(); ++row)
        owed_rows_.insert(world_.rows().text(row));
}

void SoakOracle::accept_test_of_list() {
    std::erase_if(owed_rows_, [this](const std::string& path) { return !world_.machine.disk.exists(path); });
}

void SoakOracle::check_rows() {
    std::unordered_set<std::string> rows;
    for (int row = 1; row <= world_.rows().count(); ++row)
        rows.insert(world_.rows().text(row));
    for (const std::string& path : owed_rows_)
        if (!rows.contains(path) && world_.can_be_played(path))
            return fail("a row was lost: " + path);
}

void SoakOracle::fail(const std::string& what) {
    if (std::exchange(failed_, true))
        return;
    ADD_FAILURE() << what << "\n  " << world_.recipe() << "\n  " << world_.state();
}

} // namespace sonarelle
