// What the properties of a row save, and what keeps them from it.
#include <gmock/gmock.h>

#include "accessories/properties_fixture.h"

namespace sonarelle {

namespace {

using testing::ElementsAre;

class TrackPropertiesSaveTest : public PropertiesFixture {};

} // namespace

TEST_F(TrackPropertiesSaveTest, SaveWhatWasMarkedByEarAndShowItInTheRow) {
    open_and_play();
    machine.run_for(milliseconds(12340));
    window.mark_start.click();
    window.mark_end.click();
    machine.run_for(milliseconds(20000));
    window.mark_end.click();
    window.genre.set_text("Chanson");
    window.volume.set_text("95");
    window.save.click();

    EXPECT_THAT(rows().row(2), ElementsAre(std::string{music}, "12.34", "32.34", "Chanson", "95", "00:03:20"));
    EXPECT_EQ(bytes_of(record("C:\\Sonarelle\\matin.dfm", 2)),
              bytes_of(record_of(music, "32.34", 95, 12.34, "Chanson")));
}

TEST_F(TrackPropertiesSaveTest, SaveNoOtherRow) {
    open();
    window.end.set_text("100.00");
    window.save.click();
    EXPECT_EQ(bytes_of(record("C:\\Sonarelle\\matin.dfm", 1)), bytes_of(record_of("C:\\Musique\\autre.mp3")));
    EXPECT_EQ(machine.disk.bytes("C:\\Sonarelle\\matin.dfm").size(), 2 * enreg_liste::size);
    EXPECT_EQ(rows().count(), 2);
}

TEST_F(TrackPropertiesSaveTest, SaveNothingWhileAnActionGoesOverTheList) {
    machine.add_track("C:\\Musique\\autre.mp3", 200);
    open();
    window.genre.set_text("Chanson");
    machine.disk.take("C:\\Musique", seconds(1));
    std::string genre;
    machine.time.at(machine.time.now() + milliseconds(500), [&] {
        window.save.click();
        genre = record("C:\\Sonarelle\\matin.dfm", 2).trimmed_genre();
    });
    machine.dialogs.expect_box("Sauvegarder la liste ?", Answer::no);
    station.list_window.a_mettre_a_jour_liste.click();
    EXPECT_EQ(genre, "Rock");
}

TEST_F(TrackPropertiesSaveTest, SaveRefillsTheRowsFromTheFile) {
    open();
    rows().set_text(1, "C:\\jamais sauvé.mp3");
    window.save.click();
    EXPECT_EQ(rows().text(1), "C:\\Musique\\autre.mp3");
}

TEST_F(TrackPropertiesSaveTest, SavedRowGoesIntoTheDefaultListToo) {
    open();
    window.end.set_text("100.00");
    window.save.click();
    EXPECT_EQ(station.list.fichier_liste, "liste.dfm");
    EXPECT_EQ(default_list_bytes(), machine.disk.bytes("C:\\Sonarelle\\matin.dfm"));
}

TEST_F(TrackPropertiesSaveTest, SaveItsOwnRowAlthoughTheChainSelectsAnother) {
    open();
    rows().select(1);
    window.end.set_text("100.00");
    window.save.click();
    EXPECT_EQ(rows().sub_item(1, 2), "200.00");
    EXPECT_EQ(rows().sub_item(2, 2), "100.00");
    EXPECT_EQ(rows().text(2), music);
}

TEST_F(TrackPropertiesSaveTest, SaveNoRowThatIsNoLongerThere) {
    open();
    const std::string others = bytes_of({record_of("C:\\a.mp3"), record_of("C:\\b.mp3")});
    machine.disk.put_file("C:\\Sonarelle\\matin.dfm", others);
    machine.dialogs.expect_box(std::string{music}, Answer::ok);
    window.save.click();
    EXPECT_EQ(machine.disk.bytes("C:\\Sonarelle\\matin.dfm"), others);
}

TEST_F(TrackPropertiesSaveTest, SaveNeedsAList) {
    open();
    station.list.fichier_liste.clear();
    machine.dialogs.expect_box("Pas de nom de fichier", Answer::ok);
    window.save.click();
}

TEST_F(TrackPropertiesSaveTest, SaveIsRefusedWhileTheListIsKeptAsItIs) {
    station.list_window.a_Ne_pas_Sauve.click();
    open();
    window.end.set_text("100.00");
    const std::string before = machine.disk.bytes("C:\\Sonarelle\\matin.dfm");
    machine.dialogs.expect_box(
        "Traitement impossible avec l'option\nNe pas sauver les modifications dans le fichier par défaut\n"
        "Sauvegarder cette liste",
        Answer::ok);
    window.save.click();
    EXPECT_EQ(machine.dialogs.last().icon, Icon::information);
    EXPECT_EQ(machine.disk.bytes("C:\\Sonarelle\\matin.dfm"), before);
}

TEST_F(TrackPropertiesSaveTest, SaveTellsAFieldThatIsNoNumber) {
    open();
    window.start.set_text("début");
    machine.dialogs.expect_box("début", Answer::ok);
    window.save.click();
    EXPECT_EQ(bytes_of(record("C:\\Sonarelle\\matin.dfm", 2)), bytes_of(record_of(music, "180.00", 80)));
}

TEST_F(TrackPropertiesSaveTest, SaveOnAFullDiskLeavesTheListAndSaysSo) {
    open();
    const std::string before = machine.disk.bytes("C:\\Sonarelle\\matin.dfm");
    window.end.set_text("100.00");
    machine.disk.set_capacity(machine.disk.used() + 100);
    machine.dialogs.expect_box(Answer::ok);
    window.save.click();
    EXPECT_EQ(machine.dialogs.last().icon, Icon::stop);
    EXPECT_EQ(machine.disk.bytes("C:\\Sonarelle\\matin.dfm"), before);
}

} // namespace sonarelle
