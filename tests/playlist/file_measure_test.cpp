#include "playlist/file_measure.h"

#include "support/station_bench.h"

namespace sonarelle {

namespace {

constexpr std::string_view track = "C:\\Musique\\titre.mp3";

class FileMeasureTest : public StationBench {
protected:
    void measure(std::string_view path) {
        station.list.nom_fichier_maj = path;
        station.file_measure.met_ajour();
    }
    /// A file that ends in a tag with this genre code.
    void put_tagged(char genre) {
        machine.add_track(track, 200.03);
        machine.disk.put_file(track, std::string(1000, 'x') + "TAG" + std::string(124, '\0') + genre);
    }
};

} // namespace

TEST_F(FileMeasureTest, TakesTheLengthOfTheFile) {
    machine.add_track(track, 200.03);
    measure(track);
    EXPECT_EQ(station.chain.duree_mesuree, 200.03);
    EXPECT_EQ(station.chain.duree_piste_texte, "00:03:20");
    EXPECT_TRUE(station.list.mesure_echouee.is_false());
}

TEST_F(FileMeasureTest, TakesTheGenreOfTheTag) {
    put_tagged('\x11');
    measure(track);
    EXPECT_EQ(station.list.genre_lu, "Rock");
}

TEST_F(FileMeasureTest, LeavesTheDecksAlone) {
    machine.add_track(track, 200);
    machine.add_track("C:\\autre.mp3", 100);
    open_list("C:\\matin.dfm", {record_of("C:\\autre.mp3")});
    rows().select(1);
    station.list_window.char1.click();
    measure(track);
    EXPECT_EQ(station.desk.deck(1).graph().get_Duration(), 100);
}

TEST_F(FileMeasureTest, ReleasesItsGraph) {
    machine.add_track(track, 200);
    measure(track);
    EXPECT_EQ(machine.media.graphs(), 0U);
}

TEST_F(FileMeasureTest, SaysThatAMissingFileCouldNotBeMeasured) {
    measure(track);
    EXPECT_TRUE(station.list.mesure_echouee.is_true());
}

TEST_F(FileMeasureTest, SaysThatAnUnplayableFileCouldNotBeMeasured) {
    machine.add_track(track, 200);
    machine.media.set_unplayable(track);
    measure(track);
    EXPECT_TRUE(station.list.mesure_echouee.is_true());
}

} // namespace sonarelle
