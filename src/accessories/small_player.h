#pragma once

#include <functional>

#include "platform/platform.h"
#include "playout/deck_ring.h"
#include "windows/antenne_fm.h"
#include "windows/mini_lecteur.h"

namespace sonarelle {

/// What the small player's buttons do with a deck of the main window.
struct DeckCommands {
    std::function<void(Deck&)> open;
    std::function<void(Deck&)> play;
    std::function<void(Deck&)> next;
    std::function<void(Deck&)> stop;
    std::function<void(Deck&)> pause;
    std::function<void(Deck&)> back;
    std::function<void(Deck&)> forward;
};

/// The commands and keys of the small monitor player. Each goes to the main deck; without one a box says so, but play
/// begins with deck 1.
class SmallPlayer {
public:
    /// `quit` ends the program without asking again.
    SmallPlayer(const Platform& platform, DeckRing& ring, Antenne_FM& main_window, mini_lecteur& window,
                DeckCommands commands, std::function<void()> quit);

    void connect();

    void play();
    void next();
    void stop() { forward_to_main_deck(commands_.stop); }
    void pause_mini() { forward_to_main_deck(commands_.pause); }
    void back() { forward_to_main_deck(commands_.back); }
    void forward() { forward_to_main_deck(commands_.forward); }
    void show_main_window();
    void ask_to_quit();

private:
    /// True when there is a main deck; otherwise says that there is none.
    bool has_main_deck();
    void forward_to_main_deck(const std::function<void(Deck&)>& command);
    void press_key(char32_t key);
    void leave_the_top();

    const Platform& platform_;
    DeckRing& ring_;
    Antenne_FM& main_window_;
    mini_lecteur& window_;
    DeckCommands commands_;
    std::function<void()> quit_;
};

} // namespace sonarelle
