// The station started with a file, as by a double click on it.
#include "playout/desk_fixture.h"

namespace sonarelle {

namespace {

using CommandLine = DeskFixture;

} // namespace

TEST_F(CommandLine, OfAListThatIsNotThereNamesItAndMakesNone) {
    fill_store();
    machine.dialogs.expect_box("C:\\Listes\\non.dfm", Answer::ok);
    station.start("\"C:\\Listes\\non.dfm\"");
    EXPECT_FALSE(machine.disk.exists("C:\\Listes\\non.dfm"));
    EXPECT_EQ(station.list.fichier_liste, "");
    EXPECT_TRUE(window.visible);
}

TEST_F(CommandLine, OfAListLoadsItAndPlays) {
    put_list("C:\\Listes\\matin.dfm", 3);
    start("\"C:\\Listes\\matin.dfm\"");
    EXPECT_EQ(rows().count(), 3);
    EXPECT_TRUE(window.visible);
    EXPECT_TRUE(station.list_window.visible);
    EXPECT_TRUE(window.mix_list.value());
    EXPECT_EQ(machine.media.on_air(), std::vector<std::string>{"C:\\Musique\\titre 1.mp3"});
}

TEST_F(CommandLine, OfAListShowsTheDeskWhereTheScreenCantHoldBoth) {
    machine.screen = {.left{}, .top{}, .width = Twips{1024 * 15}, .height = Twips{600 * 15}};
    put_list("C:\\Listes\\matin.dfm", 3);
    start("\"C:\\Listes\\matin.dfm\"");
    EXPECT_TRUE(window.visible);
    EXPECT_FALSE(station.list_window.visible);
    EXPECT_EQ(machine.media.on_air(), std::vector<std::string>{"C:\\Musique\\titre 1.mp3"});
    window.ouvrir_liste.click();
    EXPECT_TRUE(station.list_window.visible);
}

TEST_F(CommandLine, OfAListPlaysWhereTheStoreCantBeWritten) {
    put_list("C:\\Listes\\matin.dfm", 1);
    fill_store();
    machine.settings.refuse_writes();
    station.start("\"C:\\Listes\\matin.dfm\"");
    EXPECT_EQ(machine.media.on_air(), std::vector<std::string>{"C:\\Musique\\titre 1.mp3"});
}

TEST_F(CommandLine, OfAListChainsItsTracks) {
    put_list("C:\\Listes\\matin.dfm", 3);
    start("\"C:\\Listes\\matin.dfm\"");
    machine.run_for(seconds(230));
    EXPECT_EQ(machine.media.on_air(), std::vector<std::string>{"C:\\Musique\\titre 2.mp3"});
}

TEST_F(CommandLine, OfAnEndingInCapitalsIsAListToo) {
    put_list("C:\\Listes\\MATIN.DFM", 1);
    start("\"C:\\Listes\\MATIN.DFM\"");
    EXPECT_EQ(rows().count(), 1);
}

TEST_F(CommandLine, OfATrackShowsTheSmallPlayerAlone) {
    machine.add_track("C:\\Musique\\Le pont.mp3", 180);
    start("\"C:\\Musique\\Le pont.mp3\"");
    EXPECT_FALSE(window.visible);
    EXPECT_EQ(window.state.get(), WindowState::minimised);
    EXPECT_TRUE(station.small_player.visible);
    EXPECT_TRUE(station.small_player.topmost);
    EXPECT_EQ(station.small_player.caption.get(), "Le pont");
    EXPECT_FALSE(window.deck(1).open.enabled);
}

TEST_F(CommandLine, OfATrackPlaysIt) {
    machine.add_track("C:\\Musique\\Le pont.mp3", 180);
    start("\"C:\\Musique\\Le pont.mp3\"");
    machine.run_for(seconds(5));
    EXPECT_EQ(machine.media.on_air(), std::vector<std::string>{"C:\\Musique\\Le pont.mp3"});
    EXPECT_EQ(station.small_player.remaining.caption.get(), "175");
}

TEST_F(CommandLine, OfATrackThatCantBeOpenedSaysSo) {
    machine.disk.put_file("C:\\Musique\\note.mp3", "rien");
    machine.dialogs.expect_box("C:\\Musique\\note.mp3 Ne peut ouvrir ", Answer::ok);
    start("\"C:\\Musique\\note.mp3\"");
    EXPECT_EQ(machine.dialogs.last().icon, Icon::stop);
}

TEST_F(CommandLine, WithoutQuotesLosesItsFirstAndLastCharacter) {
    machine.dialogs.expect_box(":\\Musique\\titre.mp Ne peut ouvrir ", Answer::ok);
    start("C:\\Musique\\titre.mp3");
}

TEST_F(CommandLine, OfBlanksIsEmpty) {
    start("   ");
    EXPECT_TRUE(window.visible);
    EXPECT_FALSE(station.small_player.visible);
}

TEST_F(CommandLine, OfOneCharacterIsNoFile) {
    machine.dialogs.expect_box(" Ne peut ouvrir ", Answer::ok);
    start("\"");
}

} // namespace sonarelle
