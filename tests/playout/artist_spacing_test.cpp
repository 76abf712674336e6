// An artist who was on the air a little while ago gives way to the next draw.
#include "playout/artist_spacing.h"

#include "playout/random_order_fixture.h"

namespace sonarelle {

namespace {

class ArtistSpacingTest : public RandomOrderFixture {
protected:
    /// A list of these names, of which the first one plays at random, and the draw behind it has these numbers.
    void draw_behind(const std::vector<std::string>& names, std::initializer_list<float> numbers) {
        std::vector<enreg_liste> records;
        for (const std::string& name : names) {
            if (!machine.disk.exists("C:\\" + name + ".mp3"))
                machine.add_track("C:\\" + name + ".mp3", 100);
            records.push_back(record_of("C:\\" + name + ".mp3", "100.00"));
        }
        open_list("C:\\Sonarelle\\essai.dfm", records);
        rows().select(1);
        start_at_random();
        machine.random.then(numbers);
        machine.run_for(seconds(88));
    }
    [[nodiscard]] std::string drawn() { return rows().text(station.list.index_en_cours.value()); }
};

} // namespace

TEST_F(ArtistSpacingTest, IsOffAtFirst) {
    draw_behind({"Ana - un", "Ana - deux", "Bob - trois", "Cy - quatre"}, {0.3F});
    EXPECT_EQ(drawn(), "C:\\Ana - deux.mp3");
}

TEST_F(ArtistSpacingTest, GivesWayToTheNextDraw) {
    station.settings.ecart_artiste = 1;
    draw_behind({"Ana - un", "ANA - deux", "Bob - trois", "Cy - quatre"}, {0.3F, 0.6F});
    EXPECT_EQ(drawn(), "C:\\Bob - trois.mp3");
    EXPECT_EQ(log(), (Texts{"2 - Pas Trouvé Ok", "2 - Artiste trop proche", "3 - Pas Trouvé Ok"}));
    EXPECT_EQ(events_of(OnAirEvent::Kind::drawn).back().passed_over.back().reason, "même artiste");
}

TEST_F(ArtistSpacingTest, TakesTheRowAtTheFourthDraw) {
    station.settings.ecart_artiste = 1;
    draw_behind({"Ana - un", "Ana - deux", "Bob - trois", "Cy - quatre"}, {0.3F, 0.3F, 0.3F, 0.3F});
    EXPECT_EQ(drawn(), "C:\\Ana - deux.mp3");
}

TEST_F(ArtistSpacingTest, GivesWayThreeTimes) {
    station.settings.ecart_artiste = 1;
    draw_behind({"Ana - un", "Ana - deux", "Bob - trois", "Cy - quatre"}, {0.3F, 0.3F, 0.3F, 0.6F});
    EXPECT_EQ(drawn(), "C:\\Bob - trois.mp3");
}

TEST_F(ArtistSpacingTest, TellsWhatWasPassedOverBehindTheFirstTryToo) {
    station.settings.ecart_artiste = 1;
    draw_behind({"Ana - un", "Ana - deux", "Bob - trois", "Cy - quatre"}, {0.3F, 0.0F, 0.6F});
    const auto passed_over = events_of(OnAirEvent::Kind::drawn).back().passed_over;
    ASSERT_EQ(passed_over.size(), 2U);
    EXPECT_EQ(passed_over[1].number, 1);
    EXPECT_EQ(passed_over[1].reason, "déjà tiré");
}

TEST_F(ArtistSpacingTest, IsOffBelowNought) {
    station.settings.ecart_artiste = -1;
    draw_behind({"Ana - un", "Ana - deux", "Bob - trois", "Cy - quatre"}, {0.3F});
    EXPECT_EQ(drawn(), "C:\\Ana - deux.mp3");
}

TEST_F(ArtistSpacingTest, LooksAtTheTagBeforeTheName) {
    station.settings.ecart_artiste = 1;
    const auto tagged = [](const std::string& artist) {
        std::string block(128, '\0');
        block.replace(0, 3, "TAG").replace(33, artist.size(), artist);
        return std::string(1000, 'x') + block;
    };
    for (const char* name : {"un", "deux"}) {
        machine.add_track("C:\\" + std::string{name} + ".mp3", 100);
        machine.disk.put_file("C:\\" + std::string{name} + ".mp3", tagged("Ana"));
    }
    draw_behind({"un", "deux", "trois", "quatre"}, {0.3F, 0.6F});
    EXPECT_EQ(drawn(), "C:\\trois.mp3");
}

TEST_F(ArtistSpacingTest, LooksBackAsFarAsItIsTold) {
    station.settings.ecart_artiste = 2;
    station.chain.started_paths = {"C:\\Bob - avant.mp3"};
    draw_behind({"Ana - un", "Bob - deux", "Cy - trois", "Dan - quatre"}, {0.3F, 0.6F});
    EXPECT_EQ(drawn(), "C:\\Cy - trois.mp3");
}

TEST_F(ArtistSpacingTest, LooksNoFurtherThanItIsTold) {
    station.settings.ecart_artiste = 1;
    station.chain.started_paths = {"C:\\Bob - avant.mp3"};
    draw_behind({"Ana - un", "Bob - deux", "Cy - trois", "Dan - quatre"}, {0.3F});
    EXPECT_EQ(drawn(), "C:\\Bob - deux.mp3");
}

TEST_F(ArtistSpacingTest, KnowsNoArtistOfANameWithoutOne) {
    station.settings.ecart_artiste = 5;
    draw_behind({"un", "deux", "trois"}, {0.5F});
    EXPECT_EQ(drawn(), "C:\\deux.mp3");
}

} // namespace sonarelle
