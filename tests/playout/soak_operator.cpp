#include "playout/soak_operator.h"

#include <array>

#include <gtest/gtest.h>

namespace sonarelle {

namespace {

struct Hand {
    std::string_view name;
    int weight;
    void (SoakOperator::*move)();
};

constexpr std::array hands{
    Hand{"zap by key", 10, &SoakOperator::press_zap_key},
    Hand{"zap button of the main deck", 8, &SoakOperator::press_zap_button},
    Hand{"some zap button", 3, &SoakOperator::press_any_zap_button},
    Hand{"zap from another window", 4, &SoakOperator::press_zap_elsewhere},
    Hand{"special mix", 14, &SoakOperator::mix_specially},
    Hand{"special mix of a jingle", 8, &SoakOperator::mix_a_jingle},
    Hand{"open by hand", 10, &SoakOperator::open_by_hand},
    Hand{"slow open", 5, &SoakOperator::open_slowly},
    Hand{"cancelled open", 3, &SoakOperator::cancel_an_open},
    Hand{"quick load", 3, &SoakOperator::load_quickly},
    Hand{"play key", 5, &SoakOperator::press_play_key},
    Hand{"unload", 5, &SoakOperator::unload},
    Hand{"row to a deck", 5, &SoakOperator::send_row_to_deck},
    Hand{"stop of the main deck", 3, &SoakOperator::stop_main},
    Hand{"stop of another deck", 5, &SoakOperator::stop_another},
    Hand{"stop of all", 1, &SoakOperator::stop_all},
    Hand{"pause of the main deck", 6, &SoakOperator::pause_main},
    Hand{"pause across the load", 3, &SoakOperator::pause_at_the_load},
    Hand{"pause of another deck", 4, &SoakOperator::pause_another},
    Hand{"seek", 12, &SoakOperator::seek},
    Hand{"fade rule", 8, &SoakOperator::choose_fade_rule},
    Hand{"reading mode of the list", 8, &SoakOperator::choose_list_mode},
    Hand{"leave the list", 3, &SoakOperator::leave_the_list},
    Hand{"back to the list", 4, &SoakOperator::go_back_to_the_list},
    Hand{"manual mode", 1, &SoakOperator::choose_by_hand},
    Hand{"overlap", 4, &SoakOperator::change_overlap},
    Hand{"preload box", 3, &SoakOperator::click_preload},
    Hand{"volume", 8, &SoakOperator::turn_volume},
    Hand{"keep the volume", 3, &SoakOperator::keep_volume},
    Hand{"look at the list", 6, &SoakOperator::look_at_list},
    Hand{"list start", 2, &SoakOperator::start_list_again},
    Hand{"edit rows", 4, &SoakOperator::edit_rows},
    Hand{"edit the list", 1, &SoakOperator::edit_list},
    Hand{"test of the list", 1, &SoakOperator::test_list},
    Hand{"test of a row", 2, &SoakOperator::test_row},
    Hand{"merge of a list", 1, &SoakOperator::merge_a_list},
    Hand{"save of the list", 1, &SoakOperator::save_list},
    Hand{"update of the list", 1, &SoakOperator::update_list},
    Hand{"question to quit", 1, &SoakOperator::ask_to_quit},
    Hand{"windows", 3, &SoakOperator::look_around},
    Hand{"a place goes or comes", 5, &SoakOperator::lose_a_place},
    Hand{"switch of an insertion", 7, &SoakOperator::switch_an_insertion},
    Hand{"spacing of the insertions", 2, &SoakOperator::choose_spacing},
    Hand{"order of the rows", 4, &SoakOperator::choose_order},
    Hand{"control window of the draws", 3, &SoakOperator::repair_the_table},
    Hand{"row heard over the air", 4, &SoakOperator::listen_to_a_row},
    Hand{"pre-listen", 2, &SoakOperator::choose_prelisten},
    Hand{"random list", 1, &SoakOperator::make_a_random_list},
};

constexpr int sum_of_weights() {
    int sum = 0;
    for (const Hand& hand : hands)
        sum += hand.weight;
    return sum;
}

constexpr Frames longest_away = seconds(300);

} // namespace

void SoakOperator::begin_day() {
    world_.note("the list starts");
    const std::array modes{&list().random_mode, &list().defined_end_mode, &list().full_length_mode};
    modes[static_cast<std::size_t>(world_.below(3))]->click();
    list().play_list.click();
}

// Hands come in flurries.
Frames SoakOperator::patience() {
    if (!oracle_.own_silence().empty() && !world_.is_heard())
        return milliseconds(1000 + world_.below(30000));
    const int kind = world_.below(100);
    const int hundredths = kind < 30   ? 10 + world_.below(500)
                           : kind < 70 ? 500 + world_.below(3500)
                                       : 4000 + world_.below(20000);
    return milliseconds(hundredths * 10);
}

void SoakOperator::move() {
    const bool silent = !world_.is_heard();
    const bool on_list = world_.station.chain.mode_enchainement.is_true() && !world_.station.desk.is_manual();
    if (on_list)
        away_since_ = world_.machine.time.now();
    const bool away_long = world_.machine.time.now() - away_since_ > longest_away;
    if ((silent && !oracle_.own_silence().empty() && world_.happens(80)) || (away_long && world_.happens(50)))
        return come_back();
    int place = world_.below(sum_of_weights());
    const auto* hand = hands.begin();
    while ((place -= hand->weight) >= 0)
        ++hand;
    detail_.clear();
    world_.note(std::string{hand->name});
    oracle_.watch(hand->name, [this, hand] { (this->*hand->move)(); });
    if (!detail_.empty())
        world_.note("    " + detail_);
}

int SoakOperator::other_deck() {
    const int main = world_.main_deck();
    return main == 0 ? any_deck() : 1 + (main + world_.below(2)) % 3;
}

DeckControls& SoakOperator::main_controls() {
    return world_.controls(world_.main_deck() == 0 ? 1 : world_.main_deck());
}

std::string SoakOperator::any_file() {
    return world_.any_of(world_.happens(70) ? world_.jingles : world_.tracks);
}

// An option that is shown already is clicked all the same.
void SoakOperator::click_option(OptionButton& option) {
    say(option.name());
    option.click();
}

void SoakOperator::come_back() {
    world_.note("comes back to the list");
    oracle_.watch("come back", [this] {
        oracle_.expect_sound();
        resume_paused_decks();
        if (world_.main_sounds() && world_.station.chain.mode_enchainement.is_true())
            return;
        window().mix_list.click();
        const std::array modes{&list().random_mode, &list().defined_end_mode, &list().full_length_mode};
        modes[static_cast<std::size_t>(world_.below(3))]->click();
        if (!world_.main_sounds() || world_.happens(40))
            start_some_row();
    });
}

void SoakOperator::resume_paused_decks() {
    for (Deck& deck : world_.station.deck_ring.decks)
        if (deck.pause_lecteur.is_true() && (deck.number() == world_.main_deck() || deck.mix_en_cours != 0))
            deck.controls.pause.click();
}

// A list that runs by then goes on by itself.
void SoakOperator::start_some_row() {
    for (int tries = 0; tries < 40 && list().play_list.is_reachable(); ++tries) {
        world_.rows().click(1 + world_.below(world_.rows().count()));
        list().play_list.click();
        if (world_.main_sounds())
            return;
    }
    if (list().play_list.is_reachable())
        ADD_FAILURE() << "the list can't be started\n" << world_.recipe() << "\n" << world_.state();
}

} // namespace sonarelle
