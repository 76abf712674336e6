#include "playlist/row_changes.h"

#include <gmock/gmock.h>

#include "support/maintenance_fixture.h"

namespace sonarelle {

namespace {

using testing::Each;
using testing::ElementsAre;

class RowChangesTest : public MaintenanceFixture {
protected:
    void open_two_rows() {
        open_list(matin, {record_of("C:\\Musique\\a.mp3", "200.00", 80, 0.1, "Rock", "00:03:20"),
                          record_of("C:\\b.mp3", "100.5", 0, 2.4, "Pop", "00:01:40")});
        station.list.volume_nul_signale = true;
        rows().select(1);
    }
    void expect_letter(std::string_view answer) {
        machine.dialogs.expect_box("Aprés la copie de vos fichiers sur un autre disque", Answer::yes);
        machine.dialogs.expect_input(answer);
    }
    void expect_volume(std::string_view answer) {
        machine.dialogs.expect_box("Cette action n'a aucune incidence sur les fichiers", Answer::yes);
        machine.dialogs.expect_input(answer);
    }
};

using LetterChange = RowChangesTest;
using VolumeChange = RowChangesTest;
using StartChange = RowChangesTest;

} // namespace

TEST_F(LetterChange, PutsThePathsOnAnotherDriveAndTheVolumesTo100) {
    open_two_rows();
    expect_letter("e");
    list().Modifier_lettre_lecteur.click();
    EXPECT_THAT(paths(), ElementsAre("e:\\Musique\\a.mp3", "e:\\b.mp3"));
    EXPECT_THAT(column(list_column::volume), Each("100"));
    EXPECT_THAT(saved_paths(), ElementsAre("e:\\Musique\\a.mp3", "e:\\b.mp3"));
}

TEST_F(LetterChange, KeepsTheOtherCells) {
    open_two_rows();
    expect_letter("e");
    list().Modifier_lettre_lecteur.click();
    EXPECT_EQ(rows().row(2), (RowTable::Row{"e:\\b.mp3", "2.40", "100.50", "Pop", "100", "00:01:40"}));
}

TEST_F(LetterChange, TakesAnAnswerOfSeveralLettersAsItStands) {
    open_two_rows();
    expect_letter("d:");
    list().Modifier_lettre_lecteur.click();
    EXPECT_EQ(rows().text(2), "d::\\b.mp3");
}

TEST_F(LetterChange, OfAListThatWasEmptiedAsksNothing) {
    open_two_rows();
    rows().clear();
    const std::size_t asked = machine.dialogs.asked().size();
    list().Modifier_lettre_lecteur.click();
    EXPECT_EQ(machine.dialogs.asked().size(), asked);
}

TEST_F(LetterChange, CutsAPathAtTheWidthOfTheRecord) {
    open_rows({"C:\\" + std::string(197, 'x')});
    expect_letter("dd");
    list().Modifier_lettre_lecteur.click();
    EXPECT_EQ(rows().text(1), "dd:\\" + std::string(196, 'x'));
}

TEST_F(LetterChange, AsksInItsWords) {
    open_two_rows();
    expect_letter("");
    list().Modifier_lettre_lecteur.click();
    EXPECT_EQ(machine.dialogs.asked()[1].text,
              "Aprés la copie de vos fichiers sur un autre disque\n"
              "Vous avez la possibilité de modifier uniquement la lettre du lecteur\n"
              "Cette option est utilisé que dans la mesure ou les dossiers se trouvent au méme emplacement !\n"
              "Le niveau du son va etre également réinitialisé.\n"
              "Attention cette action sera appliqué sur toute la liste\n"
              "Continuez ?");
    EXPECT_EQ(machine.dialogs.last().title, " Modification de la lettre du disque (nom du volume) ");
    EXPECT_EQ(machine.dialogs.last().text, "Cette action sera appliqué sur toute la liste\nEn cours :C Enreg. (2)");
    EXPECT_EQ(machine.dialogs.last().preset, "c");
}

TEST_F(LetterChange, EndsWithNo) {
    open_two_rows();
    machine.dialogs.expect_box("Continuez ?", Answer::no);
    list().Modifier_lettre_lecteur.click();
    EXPECT_EQ(rows().text(1), "C:\\Musique\\a.mp3");
}

TEST_F(LetterChange, EndsWithAnEmptyAnswer) {
    open_two_rows();
    expect_letter("");
    list().Modifier_lettre_lecteur.click();
    EXPECT_FALSE(machine.disk.exists("C:\\Sonarelle\\liste.dfm"));
}

TEST_F(LetterChange, RefusesAnAnswerThatNoListCanHold) {
    open_two_rows();
    expect_letter("Ω");
    machine.dialogs.expect_box("Ω", Answer::ok);
    list().Modifier_lettre_lecteur.click();
    EXPECT_THAT(paths(), ElementsAre("C:\\Musique\\a.mp3", "C:\\b.mp3"));
}

TEST_F(LetterChange, ReturnsThePointer) {
    open_two_rows();
    expect_letter("e");
    list().Modifier_lettre_lecteur.click();
    EXPECT_EQ(list().mouse_pointer.get(), 0);
}

TEST_F(VolumeChange, GivesAllRowsTheAnswer) {
    open_two_rows();
    expect_volume("60");
    list().Modifier_volume.click();
    EXPECT_THAT(column(list_column::volume), Each("60"));
    EXPECT_EQ(record_in(default_list_bytes(), 2).volume(), 60);
}

TEST_F(VolumeChange, ReachesTheDeckUnconvertedOutsideTheTable) {
    open_two_rows();
    expect_volume("12");
    list().Modifier_volume.click();
    EXPECT_EQ(rows().sub_item(1, list_column::volume), "12");
    EXPECT_EQ(station.record_reading.lire_enreg_destinataire(1).dest_volume, 12);
}

TEST_F(VolumeChange, KeepsTheOtherCells) {
    open_two_rows();
    expect_volume("60");
    list().Modifier_volume.click();
    EXPECT_EQ(rows().row(2), (RowTable::Row{"C:\\b.mp3", "2.40", "100.50", "Pop", "60", "00:01:40"}));
}

TEST_F(VolumeChange, AsksInItsWords) {
    open_two_rows();
    expect_volume("");
    list().Modifier_volume.click();
    EXPECT_EQ(machine.dialogs.asked()[1].text, "Cette action n'a aucune incidence sur les fichiers\n"
                                               "Elle sera appliquée sur toute la liste\n"
                                               "Continuez ?");
    EXPECT_EQ(machine.dialogs.last().title, " Modification du volume) ");
    EXPECT_EQ(machine.dialogs.last().text, "Cette action sera appliqué sur toute la liste\nEn cours :80 Enreg. (2)");
    EXPECT_EQ(machine.dialogs.last().preset, "90");
}

TEST_F(VolumeChange, EndsWithNo) {
    open_two_rows();
    machine.dialogs.expect_box("Continuez ?", Answer::no);
    list().Modifier_volume.click();
    EXPECT_EQ(rows().sub_item(1, list_column::volume), "80");
}

TEST_F(VolumeChange, IsRefusedForAnOldList) {
    open_two_rows();
    station.list.nom_sauvegarde = "C:\\vieux.RFM";
    machine.dialogs.expect_box("Sauvegarder dans format .dfm avant traitement !", Answer::ok);
    list().Modifier_volume.click();
    EXPECT_EQ(machine.dialogs.last().icon, Icon::warning);
}

TEST_F(VolumeChange, IsRefusedForAnOldListThatWasOfferedForSavingOnly) {
    open_two_rows();
    station.list.nom_sauvegarde = "C:\\vieux.dfm";
    station.list.fichier_liste = "C:\\vieux.rfm";
    machine.dialogs.expect_box("Sauvegarder dans format .dfm avant traitement !", Answer::ok);
    list().Modifier_volume.click();
    EXPECT_EQ(rows().sub_item(1, list_column::volume), "80");
}

TEST_F(VolumeChange, TakesAListWithoutANameForTheDefaultOne) {
    open_two_rows();
    station.list.nom_sauvegarde.clear();
    expect_volume("60");
    list().Modifier_volume.click();
    EXPECT_EQ(rows().sub_item(1, list_column::volume), "60");
}

TEST_F(VolumeChange, TakesTheEndingInCapitalsToo) {
    open_two_rows();
    station.list.nom_sauvegarde = "C:\\Listes\\MATIN.DFM";
    expect_volume("60");
    list().Modifier_volume.click();
    EXPECT_EQ(rows().sub_item(1, list_column::volume), "60");
}

TEST_F(VolumeChange, LeavesTheOldListWhenTheDiskIsFull) {
    open_two_rows();
    machine.disk.put_file("C:\\Sonarelle\\liste.dfm", bytes_of(record_of("C:\\vieux.mp3")));
    machine.disk.set_capacity(machine.disk.used());
    expect_volume("60");
    machine.dialogs.expect_box("liste.dfm", Answer::ok);
    list().Modifier_volume.click();
    EXPECT_THAT(saved_paths(), ElementsAre("C:\\vieux.mp3"));
}

TEST_F(VolumeChange, ChangesRowsWhoseRecordCannotBeReadByTheirCells) {
    open_two_rows();
    machine.disk.refuse(matin, FailureNumber::device_fault);
    expect_volume("60");
    list().Modifier_volume.click();
    EXPECT_EQ(rows().row(2), (RowTable::Row{"C:\\b.mp3", "2.40", "100.50", "Pop", "60", "00:01:40"}));
}

TEST_F(VolumeChange, LeavesWhatTheNextStartOnTheAirGoesBy) {
    put_songs({"C:\\Musique\\a.mp3", "C:\\b.mp3"});
    open_two_rows();
    list().play_list.click();
    ASSERT_EQ(station.chain.lecteur_en_cours, 1);
    expect_volume("60");
    list().Modifier_volume.click();
    EXPECT_EQ(station.list.chemin_fichier, "C:\\Musique\\a.mp3");
}

TEST_F(VolumeChange, LeavesNoRowOutWhenOneGoesMeanwhile) {
    open_list(matin, {record_of("C:\\a.mp3", "200.00", 0), record_of("C:\\b.mp3"), record_of("C:\\c.mp3")});
    expect_volume("60");
    machine.dialogs.expect_window("err_form", [this] { rows().remove(1); });
    list().Modifier_volume.click();
    EXPECT_THAT(paths(), ElementsAre("C:\\b.mp3", "C:\\c.mp3"));
    EXPECT_THAT(column(list_column::volume), Each("60"));
}

TEST_F(StartChange, GivesAllRowsTheNewStart) {
    open_two_rows();
    machine.dialogs.expect_input("1.5");
    list().a_debutpiste.click();
    EXPECT_THAT(column(list_column::start), Each("1.50"));
    EXPECT_EQ(record_in(default_list_bytes(), 2).debut_lecture(), 1.5);
}

TEST_F(StartChange, KeepsTheOtherCells) {
    open_two_rows();
    machine.dialogs.expect_input("1.5");
    list().a_debutpiste.click();
    EXPECT_EQ(rows().row(1), (RowTable::Row{"C:\\Musique\\a.mp3", "1.50", "200.00", "Rock", "80", "00:03:20"}));
    EXPECT_EQ(rows().row(2), (RowTable::Row{"C:\\b.mp3", "1.50", "100.5", "Pop", "0", "00:01:40"}));
}

TEST_F(StartChange, AsksInItsWords) {
    open_two_rows();
    machine.dialogs.expect_input("");
    list().a_debutpiste.click();
    EXPECT_EQ(machine.dialogs.last().title, "Lecture a :");
    EXPECT_EQ(machine.dialogs.last().preset, "0.10");
    EXPECT_EQ(machine.dialogs.last().text, "Démarrer la lecture a :\n"
                                           "Entrez la nouvelle valeur pour cette session\n"
                                           "voir parametre régionaux si erreur Type incompatible\n"
                                           "Remplacer la virgule par un point dans séparation des décimales\n"
                                           "\n"
                                           "Exemple en secondes (minimun)\n"
                                           "0.10");
}

TEST_F(StartChange, WithACommaOnAMachineWithAPointIsAnError) {
    open_two_rows();
    machine.dialogs.expect_input("0,5");
    machine.dialogs.expect_box(" erreur ", Answer::ok);
    list().a_debutpiste.click();
    EXPECT_THAT(column(list_column::start), ElementsAre("0.10", "2.40"));
    EXPECT_FALSE(machine.disk.exists("C:\\Sonarelle\\liste.dfm"));
    EXPECT_EQ(list().mouse_pointer.get(), 0);
}

TEST_F(StartChange, EndsWithAnEmptyAnswer) {
    open_two_rows();
    machine.dialogs.expect_input("");
    list().a_debutpiste.click();
    EXPECT_EQ(list().a_debutpiste.caption.get(), "Modifier le debut piste sur toute la liste");
}

TEST_F(StartChange, ShowsTheValueInTheMenu) {
    open_two_rows();
    machine.dialogs.expect_input("1.5");
    list().a_debutpiste.click();
    EXPECT_EQ(list().a_debutpiste.caption.get(), "Début piste de la liste a : 1.50");
}

TEST_F(StartChange, OfOneFileChangesTheSelectedRowAlone) {
    open_two_rows();
    rows().select(2);
    machine.dialogs.expect_input("3");
    list().a_debutpiste_fichier.click();
    EXPECT_THAT(column(list_column::start), ElementsAre("0.10", "3.00"));
    EXPECT_EQ(list().a_debutpiste_fichier.caption.get(), "Début piste de ce fichier a : 3.00");
    EXPECT_EQ(record_in(default_list_bytes(), 2).debut_lecture(), 3);
}

TEST_F(StartChange, IsRefusedForAnOldList) {
    open_two_rows();
    station.list.nom_sauvegarde = "C:\\vieux.rfm";
    machine.dialogs.expect_box(".dfm avant traitement", Answer::ok);
    list().a_debutpiste.click();
    machine.dialogs.expect_box(".dfm avant traitement", Answer::ok);
    list().a_debutpiste_fichier.click();
    EXPECT_THAT(column(list_column::start), ElementsAre("0.10", "2.40"));
}

TEST_F(RowChangesTest, HasItsCaptions) {
    EXPECT_EQ(list().Modifier_lettre_lecteur.caption.get(),
              "Modifier uniquement la lettre du lecteur sur toute la liste");
    EXPECT_EQ(list().Modifier_volume.caption.get(), "Modifier le volume sur toute la liste");
    EXPECT_EQ(list().a_debutpiste_fichier.caption.get(), "Modifier le debut piste sur ce fichier");
}

} // namespace sonarelle
