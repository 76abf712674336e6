#include "playlist/file_measure.h"

#include "support/station_fixture.h"

namespace sonarelle {

namespace {

constexpr std::string_view track = "C:\\Musique\\titre.mp3";

class FileMeasureTest : public StationFixture {
protected:
    TrackFacts measure(std::string_view path) {
        const MeasuredFile measured = FileMeasure{machine.platform}.met_ajour(std::string{path});
        return std::get<TrackFacts>(measured);
    }
    bool cannot_be_measured(std::string_view path) {
        return std::holds_alternative<Failure>(FileMeasure{machine.platform}.met_ajour(std::string{path}));
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
    EXPECT_EQ(measure(track).seconds, 200.03);
    EXPECT_EQ(measure(track).duration, "00:03:20");
}

TEST_F(FileMeasureTest, TakesTheGenreOfTheTag) {
    put_tagged('\x11');
    EXPECT_EQ(measure(track).genre, "Rock");
}

TEST_F(FileMeasureTest, LeavesTheDecksAlone) {
    machine.add_track(track, 200);
    machine.add_track("C:\\autre.mp3", 100);
    open_list("C:\\matin.dfm", {record_of("C:\\autre.mp3")});
    rows().select(1);
    station.list_window.char1.click();
    static_cast<void>(measure(track));
    EXPECT_EQ(station.deck_ring.deck(1).graph().get_Duration(), 100);
}

TEST_F(FileMeasureTest, ReleasesItsGraph) {
    machine.add_track(track, 200);
    static_cast<void>(measure(track));
    EXPECT_EQ(machine.media.graphs(), 0U);
}

TEST_F(FileMeasureTest, SaysThatAMissingFileCouldNotBeMeasured) {
    EXPECT_TRUE(cannot_be_measured(track));
}

TEST_F(FileMeasureTest, SaysThatAnUnplayableFileCouldNotBeMeasured) {
    machine.add_track(track, 200);
    machine.media.set_unplayable(track);
    EXPECT_TRUE(cannot_be_measured(track));
}

} // namespace sonarelle
