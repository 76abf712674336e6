#pragma once

#include <functional>
#include <map>
#include <set>
#include <string>
#include <string_view>

#include "platform/timer.h"
#include "playout/soak_world.h"

namespace sonarelle {

/// Listens to a station all day and says at once what shouldn't be: air that is silent by nobody's will, a row that was
/// lost, a message of a kind that has no explanation. What the operator did himself is told to it.
class SoakOracle {
public:
    explicit SoakOracle(SoakWorld& world);

    /// Runs what a hand does. The track on the air goes on unless the hand has said that it takes it off.
    void watch(std::string_view hand, const std::function<void()>& move);
    void expect_cut() { may_cut_ = true; }
    /// He wants to hear the list again.
    void expect_sound() { cut_by_.clear(); }
    /// The operator has changed the list on purpose: it is as it ought to be as it stands.
    void accept_list();
    /// The operator has the list tested: rows whose files are away just now leave it.
    void accept_test_of_list();

    /// Why nothing is to be heard at the operator's own wish; empty while something should be.
    [[nodiscard]] std::string_view own_silence();
    [[nodiscard]] bool failed() const { return failed_; }

    /// Silences of more than 2 s by their reason, and messages by their kind.
    [[nodiscard]] const std::map<std::string, int>& silences() const { return silences_; }
    [[nodiscard]] const std::map<std::string, int>& messages() const { return messages_; }

private:
    void listen();
    void follow(const OnAirEvent& event);
    void look_at_chain();
    void judge_silence();
    void count_message(const std::string& text);
    [[nodiscard]] bool is_of_a_place_to_pass_over(const std::string& text) const;
    void check_rows();
    void fail(const std::string& what);
    [[nodiscard]] bool is_paused();
    [[nodiscard]] std::string_view own_choice();
    [[nodiscard]] std::string_view silence_of_the_rules() const;

    SoakWorld& world_;
    Timer timer_;
    std::set<std::string> owed_rows_;
    std::map<std::string, int> silences_;
    std::map<std::string, int> messages_;
    std::string cut_by_;    // the hand that took the main deck off the air
    std::string_view rule_; // that has made the silence of now
    Frames last_mix_;       // when a special mix was under way
    bool stopped_by_fault_ = false;
    bool off_by_rule_ = false; // "Désactiver dégradé audio" puts the chain over decks off
    bool in_hand_ = false;
    bool may_cut_ = false; // what the hand does may take the main deck off the air
    bool list_was_on_ = false;
    Frames wished_silence_;
    Frames silence_; // of nobody's will so far
    int half_seconds_ = 0;
    bool failed_ = false;
};

} // namespace sonarelle
