// What the soak's operator does with the decks.
#include <array>

#include "playout/soak_operator.h"

namespace sonarelle {

void SoakOperator::press_zap_key() {
    press(world_.happens(50) ? U'z' : U'Z');
}

void SoakOperator::press_zap_button() {
    main_controls().zap.click();
}

void SoakOperator::press_any_zap_button() {
    const int deck = any_deck();
    say("deck " + std::to_string(deck));
    world_.controls(deck).zap.click();
}

void SoakOperator::press_zap_elsewhere() {
    if (world_.happens(50))
        return list().zap.click();
    say("small player");
    world_.station.small_player.next.click();
}

void SoakOperator::mix_specially() {
    const int deck = other_deck();
    say("deck " + std::to_string(deck));
    if (world_.happens(50))
        window().special_mix_entries()[static_cast<std::size_t>(deck - 1)]->click();
    else
        world_.controls(deck).special_mix.click();
}

void SoakOperator::mix_a_jingle() {
    const int deck = other_deck();
    say("deck " + std::to_string(deck));
    open_on(deck, world_.any_of(world_.jingles), {});
    world_.controls(deck).special_mix.click();
}

void SoakOperator::open_on(int deck, const std::string& path, Frames delay) {
    if (deck == world_.main_deck())
        oracle_.expect_cut();
    if (world_.deck(deck).sounds())
        dialogs().expect_box("est à l'antenne", world_.happens(50) ? Answer::yes : Answer::no);
    dialogs().expect_open(path, delay);
    world_.controls(deck).open.click();
}

void SoakOperator::open_by_hand() {
    const int deck = world_.happens(90) ? other_deck() : any_deck();
    const std::string file = any_file();
    say(file + " on deck " + std::to_string(deck));
    open_on(deck, file, {});
}

void SoakOperator::open_slowly() {
    const int deck = other_deck();
    const int span = 1 + world_.below(90);
    const std::string file = any_file();
    say(file + " on deck " + std::to_string(deck) + " after " + std::to_string(span) + " s");
    open_on(deck, file, seconds(span));
}

void SoakOperator::cancel_an_open() {
    const int deck = any_deck();
    say("deck " + std::to_string(deck));
    if (deck == world_.main_deck())
        oracle_.expect_cut();
    if (world_.deck(deck).sounds())
        dialogs().expect_box("est à l'antenne", Answer::yes);
    dialogs().expect_cancel(seconds(world_.below(5)));
    world_.controls(deck).open.click();
}

void SoakOperator::load_quickly() {
    const int deck = world_.happens(80) ? other_deck() : any_deck();
    const bool favourite = world_.happens(50);
    ComboBox& box = favourite ? window().favourites : window().jingles;
    if (box.items.get().empty())
        return;
    say((favourite ? "favourite on deck " : "jingle on deck ") + std::to_string(deck));
    if (deck == world_.main_deck())
        oracle_.expect_cut();
    if (world_.deck(deck).sounds())
        dialogs().expect_box("est à l'antenne", world_.happens(50) ? Answer::yes : Answer::no);
    box.choose(world_.below(static_cast<int>(box.items.get().size())));
    const auto loads = favourite ? window().favourite_loads() : window().jingle_loads();
    loads[static_cast<std::size_t>(deck - 1)]->click();
}

void SoakOperator::press_play_key() {
    const int deck = any_deck();
    say("deck " + std::to_string(deck));
    if (world_.happens(50))
        window().lire_play.open();
    window().play_entries()[static_cast<std::size_t>(deck - 1)]->click();
}

void SoakOperator::unload() {
    const int deck = any_deck();
    say("deck " + std::to_string(deck));
    window().unload_entries()[static_cast<std::size_t>(deck - 1)]->click();
}

void SoakOperator::stop_main() {
    oracle_.expect_cut();
    if (world_.happens(50))
        return main_controls().stop.click();
    say("small player");
    world_.station.small_player.stop.click();
}

void SoakOperator::stop_another() {
    const int deck = other_deck();
    say("deck " + std::to_string(deck));
    world_.controls(deck).stop.click();
}

void SoakOperator::stop_all() {
    oracle_.expect_cut();
    list().stop_decks.click();
}

// He holds the track for some seconds, or comes back to it later.
void SoakOperator::pause_main() {
    const auto toggle = [this] { world_.happens(50) ? press(U'p') : main_controls().pause.click(); };
    toggle();
    if (world_.happens(30))
        return;
    const int span = 1 + world_.below(25);
    say("for " + std::to_string(span) + " s");
    world_.machine.run_for(seconds(span));
    toggle();
}

// The desk tells the load second: so many seconds before the mix point.
void SoakOperator::pause_at_the_load() {
    const StationSettings& settings = world_.station.settings;
    if (!world_.main_sounds())
        return;
    const Integer load =
        world_.station.deck_ring.main_deck().end_point() - settings.mix_courant - settings.prechargement;
    const int wait = load.value() - world_.station.deck_ring.main_deck().whole_position().value();
    if (wait < 1)
        return;
    world_.machine.run_for(milliseconds(1000 * wait - 700 + world_.below(2000)));
    say("paused in the load second");
    main_controls().pause.click();
    world_.machine.run_for(milliseconds(500 + world_.below(20000)));
    main_controls().pause.click();
}

void SoakOperator::pause_another() {
    const int deck = other_deck();
    say("deck " + std::to_string(deck));
    world_.controls(deck).pause.click();
}

void SoakOperator::seek() {
    const int deck = world_.happens(80) && world_.main_deck() != 0 ? world_.main_deck() : any_deck();
    const bool forward = world_.happens(70);
    const int times = 1 + world_.below(world_.happens(20) ? 12 : 3);
    say((forward ? "forward on deck " : "back on deck ") + std::to_string(deck) + ", " + std::to_string(times) +
        " times");
    for (int time = 0; time < times; ++time)
        if (forward)
            world_.controls(deck).forward.click();
        else if (world_.happens(50))
            world_.controls(deck).back.click();
        else
            press(std::array{U'1', U'2', U'3'}[static_cast<std::size_t>(deck - 1)]);
}

void SoakOperator::turn_volume() {
    const int deck = world_.happens(70) && world_.main_deck() != 0 ? world_.main_deck() : any_deck();
    const int kind = world_.below(3);
    if (kind == 0)
        world_.controls(deck).slider.set_value(world_.below(15));
    else if (kind == 1)
        world_.controls(deck).louder.click();
    else
        press(world_.happens(50) ? U'b' : U'h');
}

void SoakOperator::keep_volume() {
    main_controls().keep_volume.click();
}

} // namespace sonarelle
