#include "station/shutdown.h"

#include <utility>
#include <vector>

#include "configuration/window_place.h"
#include "platform/application.h"
#include "platform/failure.h"
#include "playlist/list_rows.h"

namespace sonarelle {

Shutdown::Shutdown(const Platform& platform, const StationSettings& settings, Antenne_FM& window, DeckRing& ring,
                   Journal& journal, Process process)
    : platform_{platform},
      settings_{settings},
      window_{window},
      ring_{ring},
      journal_{journal},
      process_{std::move(process)} {}

void Shutdown::Quitter__Click() {
    ErrorIndicator{}.skip([this] { enter_program_folder(platform_); });
    if (settings_.premier_lancement.is_true())
        return process_.end();
    if (!fermeture_confirmee_) {
        const Answer answer = ask();
        if (answer == Answer::no)
            return;
        if (answer != Answer::yes)
            return process_.end();
        confirm();
    }
    unload_windows();
    for (Deck& deck : ring_.decks)
        deck.drop_graph();
    process_.end();
}

void Shutdown::confirm() {
    fermeture_confirmee_ = true;
    journal_.close();
}

void Shutdown::quit_confirmed() {
    confirm();
    Quitter__Click();
}

Answer Shutdown::ask() {
    window_.topmost = false;
    return platform_.dialogs.MsgBox({"Confirmer la fermeture de " + std::string{application_title},
                                     std::string{application_title}, Buttons::yes_no, Icon::question, 2});
}

void Shutdown::unload_windows() {
    const std::vector<Window*> windows = process_.windows();
    for (auto window = windows.rbegin(); window != windows.rend(); ++window) {
        if (*window == &window_)
            store_place(platform_, window_, main_window_place);
        (*window)->hide();
    }
}

void Shutdown::Form_QueryUnload() {
    store_place(platform_, window_, main_window_place);
    Quitter__Click();
}

} // namespace sonarelle
