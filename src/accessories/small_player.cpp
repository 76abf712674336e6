#include "accessories/small_player.h"

#include <array>
#include <string_view>
#include <utility>

#include "configuration/window_place.h"
#include "platform/dialogs.h"

namespace sonarelle {

SmallPlayer::SmallPlayer(Desk& desk, DeckCommands commands, std::function<void()> quit)
    : desk_{desk},
      commands_{std::move(commands)},
      quit_{std::move(quit)} {}

void SmallPlayer::connect() {
    mini_lecteur& window = desk_.small_player;
    window.play.on_click = [this] { play(); };
    window.next.on_click = [this] { next(); };
    window.stop.on_click = [this] { stop(); };
    window.show_main_window.on_click = [this] { show_main_window(); };
    window.quit.on_click = [this] { ask_to_quit(); };
    window.back.on_click = [this] { back(); };
    window.forward.on_click = [this] { forward(); };
    window.on_key_press = [this](char32_t key) { press_key(key); };
    window.on_unload_request = [this] { ask_to_quit(); };
}

void SmallPlayer::play() {
    if (desk_.has_main_deck())
        return commands_.play(desk_.main_deck());
    Deck& first = desk_.deck(1);
    if (first.path.empty())
        commands_.open(first);
    commands_.play(first);
}

void SmallPlayer::next() {
    if (!has_main_deck())
        return;
    const Integer deck = desk_.chain.lecteur_en_cours;
    desk_.small_player.next.enabled = false;
    commands_.next(desk_.main_deck());
    // Where no file came, no load switches the button on again.
    if (desk_.chain.lecteur_en_cours == deck)
        desk_.small_player.next.enabled = true;
}

bool SmallPlayer::has_main_deck() {
    if (desk_.has_main_deck())
        return true;
    desk_.inform("Aucun lecteur en cours");
    return false;
}

void SmallPlayer::forward_to_main_deck(const std::function<void(Deck&)>& command) {
    if (has_main_deck())
        command(desk_.main_deck());
}

void SmallPlayer::leave_the_top() {
    desk_.small_player.topmost = false;
    store_place(desk_.platform, desk_.small_player, small_player_place);
}

void SmallPlayer::show_main_window() {
    leave_the_top();
    desk_.small_player.hide();
    desk_.window.state = WindowState::normal;
    desk_.window.show();
}

void SmallPlayer::ask_to_quit() {
    const Answer answer =
        desk_.platform.dialogs.MsgBox({"Confirmer la fermeture de " + std::string{application_title} + " ?",
                                       std::string{application_title}, Buttons::yes_no, Icon::question, 2});
    leave_the_top();
    if (answer == Answer::yes)
        quit_();
}

void SmallPlayer::press_key(char32_t key) {
    struct Key {
        std::u32string_view characters;
        std::function<void()> act;
    };
    const std::array keys{
        Key{U"sSzZ", [this] { next(); }},
        Key{U" ", [this] { stop(); }},
        Key{U"lL", [this] { show_main_window(); }},
        Key{U"qQ\x1b", [this] { ask_to_quit(); }},
        Key{U"pP", [this] { pause_mini(); }},
        Key{U"fF", [this] { desk_.window.A_gere.click(); }},
        Key{U"aA", [this] { desk_.window.popup(desk_.window.affiche); }},
        Key{U"oO", [this] { desk_.window.popup(desk_.window.Option_); }},
    };
    for (const Key& entry : keys)
        if (entry.characters.find(key) != std::u32string_view::npos)
            return entry.act();
}

} // namespace sonarelle
