#include "playlist/list_update.h"

#include <gmock/gmock.h>

#include "support/maintenance_fixture.h"

namespace sonarelle {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ListUpdateTest : public MaintenanceFixture {
protected:
    void update(Answer saves = Answer::no) {
        machine.dialogs.expect_box("Sauvegarder la liste ?", saves);
        list().a_mettre_a_jour_liste.click();
    }
    /// Ends the file in a tag with a genre code.
    void tag(std::string_view path, char genre) {
        machine.disk.put_file(path, std::string(500, 'x') + "TAG" + std::string(124, '\0') + genre);
    }
};

using RowUpdateTest = ListUpdateTest;

} // namespace

TEST_F(RowUpdateTest, TakesLengthGenreAndDurationOfTheFile) {
    put_songs({"C:\\a.mp3", "C:\\b.mp3"}, 61.5);
    tag("C:\\b.mp3", '\x11');
    open_list(matin, {record_of("C:\\a.mp3"), record_of("C:\\b.mp3", "9", 80, 2.4, "?", "X")});
    rows().select(2);
    list().a_mettre_a_jour.click();
    EXPECT_EQ(rows().row(2), (RowTable::Row{"C:\\b.mp3", "2.40", "61.50", "Rock", "100", "00:01:01"}));
    EXPECT_EQ(rows().sub_item(1, list_column::end), "200.00");
    EXPECT_THAT(saved_paths(), ElementsAre("C:\\a.mp3", "C:\\b.mp3"));
}

TEST_F(RowUpdateTest, MakesTheRowTheCurrentOne) {
    put_songs({"C:\\a.mp3", "C:\\b.mp3"});
    open_rows({"C:\\a.mp3", "C:\\b.mp3"});
    rows().select(2);
    list().a_mettre_a_jour.click();
    EXPECT_EQ(station.list.index_en_cours, 2);
    EXPECT_EQ(rows().selected(), 2);
}

TEST_F(RowUpdateTest, LeavesARowThatCannotBeMeasured) {
    open_rows({"C:\\a.mp3"});
    machine.dialogs.expect_box("Impossible de mettre a jour.  C:\\a.mp3", Answer::ok);
    list().a_mettre_a_jour.click();
    EXPECT_EQ(rows().row(1), (RowTable::Row{"C:\\a.mp3", "0.10", "200.00", "Rock", "100", "00:03:20"}));
    EXPECT_EQ(list().mouse_pointer.get(), 0);
}

TEST_F(RowUpdateTest, GivesNoNullVolumeWarning) {
    put_songs({"C:\\a.mp3"});
    open_list(matin, {record_of("C:\\a.mp3", "200", 0)});
    rows().select(1);
    list().a_mettre_a_jour.click();
    EXPECT_TRUE(station.list.volume_nul_signale.is_true());
}

TEST_F(RowUpdateTest, OfAnEmptyTableDoesNothing) {
    open_list(matin, {});
    list().a_mettre_a_jour.click();
    EXPECT_TRUE(station.list.volume_nul_signale.is_true());
}

TEST_F(RowUpdateTest, AfterADropMeasuresTheDroppedRow) {
    put_songs({"C:\\a.mp3", "C:\\b.mp3"}, 30);
    open_rows({"C:\\a.mp3", "C:\\b.mp3"});
    station.list.index_insertion = 2;
    station.chain.maj_depuis_ajout = true;
    station.list_maintenance.update.a_mettre_a_jour();
    EXPECT_EQ(rows().sub_item(2, list_column::end), "30.00");
    EXPECT_TRUE(station.chain.maj_depuis_ajout.is_false());
}

TEST_F(RowUpdateTest, AfterADropTakesOutWhatCannotBeMeasured) {
    put_songs({"C:\\a.mp3", "C:\\c.mp3"});
    open_rows({"C:\\a.mp3", "C:\\b.txt", "C:\\c.mp3"});
    station.list.ligne_en_lecture = 3;
    station.list.index_insertion = 2;
    station.chain.maj_depuis_ajout = true;
    station.list_maintenance.update.a_mettre_a_jour();
    EXPECT_THAT(saved_paths(), ElementsAre("C:\\a.mp3", "C:\\c.mp3"));
    EXPECT_EQ(station.list.ligne_en_lecture, 2);
}

TEST_F(RowUpdateTest, AfterAnythingElseIsImpossible) {
    put_songs({"C:\\a.mp3"}, 30);
    open_rows({"C:\\a.mp3"});
    station.chain.maj_depuis_ajout = Flag::of_word(2);
    machine.dialogs.expect_box("Impossible de mettre a jour.  ", Answer::ok);
    station.list_maintenance.update.a_mettre_a_jour();
    EXPECT_EQ(rows().sub_item(1, list_column::end), "200.00");
}

TEST_F(ListUpdateTest, MeasuresEveryRow) {
    put_songs({"C:\\a.mp3"}, 30);
    put_songs({"C:\\b.mp3"}, 61.5);
    tag("C:\\b.mp3", '\x11');
    open_list(matin, {record_of("C:\\a.mp3", "1", 80, 0.5), record_of("C:\\b.mp3", "2", 50, 2.4, "?", "X")});
    update();
    EXPECT_EQ(rows().row(1)[list_column::end], "30.00");
    EXPECT_EQ(rows().row(1)[list_column::start], "0.50");
    EXPECT_EQ(rows().row(2), (RowTable::Row{"C:\\b.mp3", "2.40", "61.50", "Rock", "100", "00:01:01"}));
    EXPECT_EQ(record_in(default_list_bytes(), 2).trimmed_fin_lecture(), "61.50");
}

TEST_F(ListUpdateTest, ShowsEachRow) {
    put_songs({"C:\\a.mp3", "C:\\b.mp3"});
    open_rows({"C:\\a.mp3", "C:\\b.mp3"});
    watch_progress();
    update();
    EXPECT_THAT(progress(),
                ElementsAre("fichier Ok : C:\\a.mp3", "fichier Ok : C:\\b.mp3",
                            "Validation des fichiers terminé avec succés ", "Traitement en cours ......Patientez !",
                            "Traitement en cours 1 / 2", "Traitement en cours 2 / 2"));
    EXPECT_FALSE(window().visible);
}

TEST_F(ListUpdateTest, IsUnderWayForAsLongAsItRuns) {
    put_songs({"C:\\lent\\a.mp3"});
    open_rows({"C:\\lent\\a.mp3"});
    machine.disk.take("C:\\lent", seconds(1));
    bool seen = false;
    machine.time.at(machine.time.now() + milliseconds(500),
                    [&] { seen = station.list.maj_liste_en_cours.is_true() && list().mouse_pointer == 11; });
    update();
    EXPECT_TRUE(seen);
    EXPECT_TRUE(station.list.maj_liste_en_cours.is_false());
    EXPECT_EQ(list().mouse_pointer.get(), 0);
}

TEST_F(ListUpdateTest, OfAnEmptyTableEndsAtOnce) {
    open_list(matin, {});
    list().a_mettre_a_jour_liste.click();
    EXPECT_TRUE(station.list.maj_liste_en_cours.is_false());
}

TEST_F(ListUpdateTest, TakesOutMissingFilesFirst) {
    put_songs({"C:\\b.mp3"}, 30);
    open_rows({"C:\\a.mp3", "C:\\b.mp3"});
    update();
    EXPECT_THAT(saved_paths(), ElementsAre("C:\\b.mp3"));
    EXPECT_EQ(rows().sub_item(1, list_column::end), "30.00");
}

TEST_F(ListUpdateTest, TellsAtItsEndHowManyRowsWent) {
    put_songs({"C:\\b.mp3"}, 30);
    open_rows({"C:\\a.mp3", "C:\\b.mp3", "C:\\c.mp3"});
    update();
    EXPECT_EQ(machine.dialogs.last().text, "Eléments supprimés de la liste : 2\n\nSauvegarder la liste ?");
}

TEST_F(ListUpdateTest, EndsWhenNoFileWasFound) {
    open_rows({"C:\\a.mp3"});
    machine.dialogs.expect_box("Aucun fichier de trouvé !", Answer::ok);
    list().a_mettre_a_jour_liste.click();
    EXPECT_EQ(machine.dialogs.last().icon, Icon::warning);
    EXPECT_TRUE(station.list.maj_liste_en_cours.is_false());
    EXPECT_FALSE(window().visible);
}

TEST_F(ListUpdateTest, AfterADropDoesNotTestTheFiles) {
    put_songs({"C:\\b.mp3"}, 30);
    open_rows({"C:\\a.mp3", "C:\\b.mp3"});
    station.chain.maj_depuis_ajout = Flag::of_word(2);
    update();
    EXPECT_THAT(paths(), ElementsAre("C:\\a.mp3", "C:\\b.mp3"));
    EXPECT_THAT(column(list_column::end), ElementsAre("200.00", "30.00"));
}

TEST_F(ListUpdateTest, LeavesARowThatCannotBeMeasured) {
    put_songs({"C:\\a.mp3", "C:\\b.mp3"}, 30);
    machine.media.set_unplayable("C:\\a.mp3");
    open_rows({"C:\\a.mp3", "C:\\b.mp3"});
    update();
    EXPECT_THAT(column(list_column::end), ElementsAre("200.00", "30.00"));
}

TEST_F(ListUpdateTest, StopsAtOnceWhenItsWindowIsClosed) {
    put_songs({"C:\\lent\\a.mp3", "C:\\lent\\b.mp3", "C:\\lent\\c.mp3"}, 30);
    open_rows({"C:\\lent\\a.mp3", "C:\\lent\\b.mp3", "C:\\lent\\c.mp3"});
    station.chain.maj_depuis_ajout = Flag::of_word(3);
    machine.disk.take("C:\\lent\\b.mp3", seconds(10));
    machine.time.at(machine.time.now() + seconds(1), [this] { window().ask_to_close(); });
    update();
    EXPECT_EQ(column(list_column::end)[0], "30.00");
    EXPECT_EQ(column(list_column::end)[2], "200.00");
    EXPECT_FALSE(window().visible);
    EXPECT_EQ(record_in(default_list_bytes(), 1).trimmed_fin_lecture(), "30.00");
}

TEST_F(ListUpdateTest, ClosedDuringTheTestOfTheFilesEndsWithoutAWord) {
    put_songs({"C:\\lent\\a.mp3", "C:\\lent\\b.mp3"}, 30);
    open_rows({"C:\\lent\\a.mp3", "C:\\lent\\b.mp3"});
    machine.disk.take("C:\\lent", seconds(10));
    machine.time.at(machine.time.now() + seconds(1), [this] { window().ask_to_close(); });
    list().a_mettre_a_jour_liste.click();
    EXPECT_THAT(column(list_column::end), ElementsAre("200.00", "200.00"));
    EXPECT_TRUE(station.list.maj_liste_en_cours.is_false());
}

TEST_F(ListUpdateTest, DoesNotBeginTwice) {
    put_songs({"C:\\lent\\a.mp3"});
    open_rows({"C:\\lent\\a.mp3"});
    machine.disk.take("C:\\lent", seconds(1));
    machine.time.at(machine.time.now() + milliseconds(500), [this] { list().a_mettre_a_jour_liste.click(); });
    update();
    EXPECT_EQ(rows().count(), 1);
}

TEST_F(ListUpdateTest, OffersToSaveUnderTheShortNameOfTheList) {
    put_songs({"C:\\a.mp3"}, 30);
    open_rows({"C:\\a.mp3"});
    machine.dialogs.expect_box("Sauvegarder la liste ?", Answer::yes);
    machine.dialogs.expect_save("C:\\Listes\\soir.dfm");
    list().a_mettre_a_jour_liste.click();
    EXPECT_EQ(machine.dialogs.asked()[1].title, "matin.dfm");
    EXPECT_EQ(record_in(machine.disk.bytes("C:\\Listes\\soir.dfm"), 1).trimmed_fin_lecture(), "30.00");
}

TEST_F(ListUpdateTest, CountsTheTracksAtTheEnd) {
    put_songs({"C:\\a.mp3", "C:\\b.mp3"});
    open_rows({"C:\\a.mp3", "C:\\b.mp3"});
    update();
    EXPECT_EQ(list().list_status.caption.get(), "Nb de morceaux : 2 (2)");
    EXPECT_EQ(station.list.index_en_cours, 2);
}

TEST_F(ListUpdateTest, IsRefusedWhenModificationsAreNotSaved) {
    put_songs({"C:\\a.mp3"}, 30);
    open_rows({"C:\\a.mp3"});
    list().a_Ne_pas_Sauve.click();
    machine.dialogs.expect_box("Traitement impossible avec l'option", Answer::ok);
    list().a_mettre_a_jour_liste.click();
    EXPECT_EQ(rows().sub_item(1, list_column::end), "200.00");
}

TEST_F(ListUpdateTest, LeavesTheOldListWhenTheDiskIsFull) {
    put_songs({"C:\\a.mp3"}, 30);
    open_rows({"C:\\a.mp3"});
    machine.disk.put_file("C:\\Sonarelle\\liste.dfm", bytes_of(record_of("C:\\vieux.mp3")));
    machine.disk.set_capacity(machine.disk.used());
    machine.dialogs.expect_box("liste.dfm", Answer::ok);
    update();
    EXPECT_THAT(saved_paths(), ElementsAre("C:\\vieux.mp3"));
    EXPECT_EQ(rows().sub_item(1, list_column::end), "30.00");
}

TEST_F(ListUpdateTest, BuildsAndReleasesAGraphForEachRow) {
    put_songs({"C:\\a.mp3", "C:\\b.mp3"});
    open_rows({"C:\\a.mp3", "C:\\b.mp3"});
    machine.media.clear_log();
    update();
    EXPECT_EQ(machine.media.graphs(), 0U);
    EXPECT_EQ(std::ranges::count(machine.media.log(), MediaAction::rendered, &MediaCommand::action), 2);
}

TEST_F(ListUpdateTest, FollowsTheRowsWhenTheListChangesMeanwhile) {
    put_songs({"C:\\a.mp3", "C:\\b.mp3", "C:\\c.mp3"}, 30);
    open_rows({"C:\\a.mp3", "C:\\b.mp3", "C:\\c.mp3"});
    station.chain.maj_depuis_ajout = Flag::of_word(3);
    machine.disk.take("C:\\b.mp3", seconds(1));
    machine.time.at(machine.time.now() + milliseconds(500), [this] {
        rows().remove(1);
        station.list_document.sauve_tout();
    });
    update();
    EXPECT_THAT(paths(), ElementsAre("C:\\b.mp3", "C:\\c.mp3"));
    EXPECT_EQ(column(list_column::end)[0], "30.00");
}

TEST_F(ListUpdateTest, LeavesNoRowOutWhenOneGoesBetweenTwoOthers) {
    put_songs({"C:\\a.mp3", "C:\\b.mp3"}, 30);
    open_rows({"C:\\a.mp3", "C:\\b.mp3"});
    station.chain.maj_depuis_ajout = Flag::of_word(3);
    machine.time.at(machine.time.now(), [this] { rows().remove(1); });
    update();
    EXPECT_THAT(paths(), ElementsAre("C:\\b.mp3"));
    EXPECT_EQ(column(list_column::end)[0], "30.00");
}

TEST_F(ListUpdateTest, HasItsCaptions) {
    EXPECT_EQ(list().a_mettre_a_jour.caption.get(), "Mettre a jour les infos de ce fichier");
    EXPECT_EQ(list().a_mettre_a_jour_liste.caption.get(), "Mettre a jour les infos de la liste");
}

} // namespace sonarelle
