// What the search box holds when the station begins.
#include <gmock/gmock.h>

#include "playout/desk_fixture.h"

namespace sonarelle {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using SearchAtStart = DeskFixture;

} // namespace

TEST_F(SearchAtStart, OffersWhatWasKeptBefore) {
    machine.disk.put_file("C:\\Sonarelle\\recherche.dit", "aube" + std::string(196, ' ') + "soir");
    start();
    EXPECT_THAT(station.list_window.search.items.get(), ElementsAre("aube"));
    EXPECT_EQ(station.list_window.search.text(), "Recherche ");
}

TEST_F(SearchAtStart, MakesNoFileOfNothing) {
    start();
    EXPECT_THAT(station.list_window.search.items.get(), IsEmpty());
    EXPECT_FALSE(machine.disk.exists("C:\\Sonarelle\\recherche.dit"));
}

} // namespace sonarelle
