// The control window of the draws, as the operator works it.
#include "playout/desk_fixture.h"

namespace sonarelle {

namespace {

class DrawWindow : public DeskFixture {
protected:
    DrawWindow() {
        start();
        put_list("C:\\Sonarelle\\jour.dfm", 6);
        put_list("C:\\Sonarelle\\musiques.dfm", 5);
        machine.dialogs.expect_open("C:\\Sonarelle\\jour.dfm");
        station.list_window.A_liste.click();
        station.settings.chemin_fichier_aleatoire1 = "C:\\Sonarelle\\musiques.dfm";
        station.settings.nb_fichier_aleatoire1 = 1;
        window.Afficher_C_aleatoire.click();
    }

    liste& draws = station.draw_window;
};

} // namespace

TEST_F(DrawWindow, GoesByEscape) {
    ASSERT_TRUE(draws.visible);
    draws.key_press(U'\x1b');
    EXPECT_FALSE(draws.visible);
}

TEST_F(DrawWindow, IsHeadedByRowsAgainWhenNoItemsComeAnyMore) {
    station.list_window.random_mode.click();
    station.list_window.items_switch.click();
    station.list_window.play_list.click();
    machine.run_for(seconds(10));
    ASSERT_EQ(draws.heading.caption.get(), "Fichiers aléatoires");
    station.list_window.items_switch.click();
    EXPECT_EQ(draws.heading.caption.get(), "Lecture aléatoire");
}

} // namespace sonarelle
