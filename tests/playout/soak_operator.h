#pragma once

#include <string>
#include <string_view>

#include "playout/soak_oracle.h"
#include "playout/soak_world.h"

namespace sonarelle {

/// An operator who does all day what can be done at the desk, at moments and on decks as they come. When he has
/// silenced the air himself, he soon puts the list on it again.
class SoakOperator {
public:
    SoakOperator(SoakWorld& world, SoakOracle& oracle)
        : world_{world},
          oracle_{oracle} {}

    /// Starts the list.
    void begin_day();
    /// How long he looks on before he moves again, in frames.
    [[nodiscard]] Frames patience();
    void move();

    // The hands. Each does one thing, and says in `detail` what it was.

    void press_zap_key();
    void press_zap_button();
    void press_any_zap_button();
    void press_zap_elsewhere();
    void mix_specially();
    void mix_a_jingle();
    void open_by_hand();
    void open_slowly();
    void cancel_an_open();
    void load_quickly();
    void press_play_key();
    void unload();
    void send_row_to_deck();
    void stop_main();
    void stop_another();
    void stop_all();
    void pause_main();
    void pause_at_the_load();
    void pause_another();
    void seek();
    void choose_fade_rule();
    void choose_list_mode();
    void leave_the_list();
    void go_back_to_the_list();
    void choose_by_hand();
    void change_overlap();
    void click_preload();
    void turn_volume();
    void keep_volume();
    void look_at_list();
    void start_list_again();
    void edit_rows();
    void edit_list();
    void test_list();
    void test_row();
    void merge_a_list();
    void save_list();
    void update_list();
    void ask_to_quit();
    void look_around();
    void lose_a_place();
    void switch_an_insertion();
    void choose_spacing();
    void choose_order();
    void repair_the_table();
    void listen_to_a_row();
    void choose_prelisten();
    void make_a_random_list();

private:
    void press(char32_t key) { window().key_press(key); }
    void click_option(OptionButton& option);
    void come_back();
    void start_some_row();
    void resume_paused_decks();
    [[nodiscard]] int any_deck() { return 1 + world_.below(3); }
    [[nodiscard]] int other_deck();
    [[nodiscard]] DeckControls& main_controls();
    void open_on(int deck, const std::string& path, Frames delay);
    [[nodiscard]] std::string any_file();
    void say(const std::string& detail) { detail_ = detail; }
    [[nodiscard]] Antenne_FM& window() { return world_.station.main_window; }
    [[nodiscard]] Liste_son& list() { return world_.station.list_window; }
    [[nodiscard]] ScriptedDialogs& dialogs() { return world_.machine.dialogs; }

    SoakWorld& world_;
    SoakOracle& oracle_;
    std::string detail_;
    Frames away_since_; // from the list chain
};

} // namespace sonarelle
