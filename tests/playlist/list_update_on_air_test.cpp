#include <gmock/gmock.h>

#include "playlist/list_update.h"
#include "playout/chain_fixture.h"

namespace sonarelle {

namespace {

class ListUpdateOnAir : public ChainFixture {
protected:
    /// Measures the list while it plays, on a disk on which the file of the first row takes its time.
    void update_slowly(Frames span) {
        machine.disk.take(track(1), span);
        machine.dialogs.expect_box("Sauvegarder la liste ?", Answer::no);
        station.list_window.a_mettre_a_jour_liste.click();
        machine.disk.heal(track(1));
    }
};

} // namespace

TEST_F(ListUpdateOnAir, LetsTheNextTrackStartOnItsSecond) {
    open_tracks({60, 60, 60});
    start_list();
    machine.run_for(seconds(30));
    update_slowly(seconds(10));
    machine.run_for(seconds(30));
    EXPECT_THAT(times_of(OnAirEvent::Kind::started), testing::Contains(std::pair{54.0, 2}));
    EXPECT_EQ(station.list.maj_liste_en_cours.word(), 0);
}

TEST_F(ListUpdateOnAir, LeavesTheStartOfTheLoadedTrackAlone) {
    open_tracks({60, 60, 60}, 3.0);
    rows().set_sub_item(3, 1, "9.00");
    station.list_document.sauve_tout();
    start_list();
    machine.run_for(seconds(47) + milliseconds(500)); // deck 2 is loaded
    update_slowly(milliseconds(100));
    EXPECT_EQ(station.deck_ring.deck(2).debut_piste, 3.0);
}

TEST_F(ListUpdateOnAir, LeavesTheTitleOfTheLoadedTrackAlone) {
    open_tracks({60, 60, 60});
    start_list();
    machine.run_for(seconds(47) + milliseconds(500));
    update_slowly(milliseconds(100));
    EXPECT_EQ(station.list.chemin_fichier, track(2));
}

} // namespace sonarelle
