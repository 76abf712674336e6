#include "accessories/small_player.h"

#include <array>
#include <string_view>
#include <utility>

#include "configuration/window_place.h"
#include "platform/application.h"
#include "platform/dialogs.h"

namespace sonarelle {

SmallPlayer::SmallPlayer(const Platform& platform, DeckRing& ring, Antenne_FM& main_window, mini_lecteur& window,
                         DeckCommands commands, std::function<void()> quit)
    : platform_{platform},
      ring_{ring},
      main_window_{main_window},
      window_{window},
      commands_{std::move(commands)},
      quit_{std::move(quit)} {}

void SmallPlayer::connect() {
    window_.play.on_click = [this] { play(); };
    window_.next.on_click = [this] { next(); };
    window_.stop.on_click = [this] { stop(); };
    window_.show_main_window.on_click = [this] { show_main_window(); };
    window_.quit.on_click = [this] { ask_to_quit(); };
    window_.back.on_click = [this] { back(); };
    window_.forward.on_click = [this] { forward(); };
    window_.on_key_press = [this](char32_t key) { press_key(key); };
    window_.on_unload_request = [this] { ask_to_quit(); };
}

void SmallPlayer::play() {
    if (ring_.has_main_deck())
        return commands_.play(ring_.main_deck());
    Deck& first = ring_.deck(1);
    if (first.path.empty())
        commands_.open(first);
    commands_.play(first);
}

void SmallPlayer::next() {
    if (!has_main_deck())
        return;
    Deck& main = ring_.main_deck();
    window_.next.enabled = false;
    commands_.next(main);
    // Where no file came, no load switches the button on again.
    if (ring_.is_main(main))
        window_.next.enabled = true;
}

bool SmallPlayer::has_main_deck() {
    if (ring_.has_main_deck())
        return true;
    show_box(platform_.dialogs, "Aucun lecteur en cours", Icon::information);
    return false;
}

void SmallPlayer::forward_to_main_deck(const std::function<void(Deck&)>& command) {
    if (has_main_deck())
        command(ring_.main_deck());
}

void SmallPlayer::leave_the_top() {
    window_.topmost = false;
    store_place(platform_, window_, small_player_place);
}

void SmallPlayer::show_main_window() {
    leave_the_top();
    window_.hide();
    main_window_.state = WindowState::normal;
    main_window_.show();
}

void SmallPlayer::ask_to_quit() {
    const Answer answer =
        platform_.dialogs.MsgBox({"Confirmer la fermeture de " + std::string{application_title} + " ?",
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
        Key{U"fF", [this] { main_window_.A_gere.click(); }},
        Key{U"aA", [this] { main_window_.popup(main_window_.affiche); }},
        Key{U"oO", [this] { main_window_.popup(main_window_.Option_); }},
    };
    for (const Key& entry : keys)
        if (entry.characters.find(key) != std::u32string_view::npos)
            return entry.act();
}

} // namespace sonarelle
