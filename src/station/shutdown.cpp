#include "station/shutdown.h"

#include <utility>
#include <vector>

#include "configuration/window_place.h"
#include "platform/calendar_text.h"
#include "platform/failure.h"
#include "playlist/list_rows.h"

namespace sonarelle {

Shutdown::Shutdown(Desk& desk, Journal& journal, std::function<std::vector<Window*>()> windows,
                   std::function<void()> end_process)
    : desk_{desk},
      journal_{journal},
      windows_{std::move(windows)},
      end_process_{std::move(end_process)} {}

void Shutdown::Quitter__Click() {
    ErrorIndicator{}.skip([this] { enter_program_folder(desk_.platform); });
    if (desk_.settings.premier_lancement.is_true())
        return end_process_();
    if (!fermeture_confirmee_) {
        const Answer answer = ask();
        if (answer == Answer::no)
            return;
        if (answer != Answer::yes)
            return end_process_();
        confirm();
    }
    unload_windows();
    drop_graphs();
    end_process_();
}

void Shutdown::confirm() {
    fermeture_confirmee_ = true;
    close_journal();
}

void Shutdown::quit_confirmed() {
    confirm();
    Quitter__Click();
}

Answer Shutdown::ask() {
    desk_.window.topmost = false;
    return desk_.platform.dialogs.MsgBox({"Confirmer la fermeture de " + std::string{application_title},
                                          std::string{application_title}, Buttons::yes_no, Icon::question, 2});
}

// Only "Activer  conserver" keeps the file beyond this run.
void Shutdown::close_journal() {
    desk_.chain.ligne_journal = date_and_time(desk_.platform) + " Fermeture de " + std::string{application_title};
    journal_.journal();
    desk_.chain.ligne_journal.clear();
    if (desk_.window.Active_journal1.checked || desk_.window.A_desacive_J.checked)
        static_cast<void>(journal_.discard());
}

void Shutdown::unload_windows() {
    const std::vector<Window*> windows = windows_();
    for (auto window = windows.rbegin(); window != windows.rend(); ++window) {
        if (*window == &desk_.window)
            store_place(desk_.platform, desk_.window, main_window_place);
        (*window)->hide();
    }
}

void Shutdown::drop_graphs() {
    for (Deck& deck : desk_.decks)
        deck.drop_graph();
    desk_.chain.element_en_cours = 0;
}

void Shutdown::Form_QueryUnload() {
    store_place(desk_.platform, desk_.window, main_window_place);
    Quitter__Click();
}

} // namespace sonarelle
