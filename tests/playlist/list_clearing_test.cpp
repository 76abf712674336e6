// The table is emptied, and the list's file is deleted.
#include <gmock/gmock.h>

#include "playlist/edited_list_fixture.h"

namespace sonarelle {

namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class ListClearingTest : public EditedList {
protected:
    void expect_question(Answer answer) {
        machine.dialogs.expect_box(" Vous allez supprimer le fichier :  " + station.list.fichier_liste +
                                       "\nATTENTION si le NOM de FICHIER est : *.dfm\n"
                                       "Vous SUPPRIMEZ TOUS LES FICHIERS LISTES\n"
                                       "Voulez vous continuer ? ",
                                   answer);
    }
};

} // namespace

TEST_F(ListClearingTest, AClearedTableBelongsToNoFile) {
    open_rows({"a", "b"}, 2);
    list.Effacer_liste.click();
    EXPECT_EQ(rows().count(), 0);
    EXPECT_EQ(station.list.fichier_liste, "");
    EXPECT_EQ(station.list.nom_sauvegarde, "");
    EXPECT_EQ(list.Supprimer_fichier.caption.get(), "Supprimer le fichier");
    EXPECT_EQ(list.list_status.caption.get(), "Ouverture en attente");
    EXPECT_EQ(list.caption.get(), station.settings.nom_radio);
    EXPECT_EQ(list.progress.caption.get(), "Liste");
}

TEST_F(ListClearingTest, AClearedTableBeginsAnewWithTheNextList) {
    open_rows({"a", "b"}, 2);
    list.Effacer_liste.click();
    EXPECT_EQ(station.list.index_en_cours, 0);
    EXPECT_EQ(station.list.ligne_en_lecture, 0);
    EXPECT_EQ(station.list.index_insertion, 0);
}

TEST_F(ListClearingTest, TheListFilesStay) {
    open_rows({"a", "b"}, 1);
    list.Couper_.click();
    list.Effacer_liste.click();
    EXPECT_THAT(saved_paths(), ElementsAre("b"));
    EXPECT_TRUE(machine.disk.exists("C:\\Sonarelle\\jour.dfm"));
}

TEST_F(ListClearingTest, WhatAnotherProgramPutOnTheClipboardStays) {
    open_rows({"a"}, 1);
    machine.shell.set_clipboard_text("à eux");
    list.Effacer_liste.click();
    EXPECT_EQ(machine.shell.clipboard_text(), "à eux");
}

TEST_F(ListClearingTest, TextThatWasOfferedForPastingIsTakenBack) {
    open_rows({"a"}, 1);
    machine.shell.set_clipboard_text("un texte");
    list.Load_Pl.open();
    ASSERT_TRUE(list.coller.enabled);
    list.Effacer_liste.click();
    EXPECT_EQ(machine.shell.clipboard_text(), "");
    EXPECT_FALSE(list.coller.enabled);
}

TEST_F(ListClearingTest, WithoutAFileThereIsNothingToDelete) {
    machine.dialogs.expect_box(" Aucun fichier en mémoire", Answer::ok);
    list.Supprimer_fichier.click();
}

TEST_F(ListClearingTest, ADeletedFileLeavesAnEmptyTable) {
    open_rows({"a"}, 1);
    expect_question(Answer::yes);
    list.Supprimer_fichier.click();
    EXPECT_FALSE(machine.disk.exists("C:\\Sonarelle\\jour.dfm"));
    EXPECT_EQ(rows().count(), 0);
    EXPECT_EQ(station.list.fichier_liste, "");
}

TEST_F(ListClearingTest, NoIsTheAnswerOfAHandThatPressesEnter) {
    open_rows({"a"}, 1);
    expect_question(Answer::no);
    list.Supprimer_fichier.click();
    EXPECT_EQ(machine.dialogs.asked().back().default_button, 2);
    EXPECT_TRUE(machine.disk.exists("C:\\Sonarelle\\jour.dfm"));
    EXPECT_EQ(rows().count(), 1);
}

TEST_F(ListClearingTest, APatternDeletesAllListsOfTheFolderAfterNamingThem) {
    open_rows({"a"}, 1);
    machine.disk.put_file("C:\\Sonarelle\\nuit.dfm", "x");
    station.list.fichier_liste = "C:\\Sonarelle\\*.dfm";
    expect_question(Answer::yes);
    list.Supprimer_fichier.click();
    EXPECT_FALSE(machine.disk.exists("C:\\Sonarelle\\jour.dfm"));
    EXPECT_FALSE(machine.disk.exists("C:\\Sonarelle\\nuit.dfm"));
    EXPECT_THAT(machine.dialogs.asked().back().text, HasSubstr("2 fichiers :\njour.dfm\nnuit.dfm"));
}

TEST_F(ListClearingTest, ARefusedDeletionIsToldAndLeavesTheTable) {
    open_rows({"a"}, 1);
    machine.disk.refuse("C:\\Sonarelle\\jour.dfm", FailureNumber::permission_refused);
    expect_question(Answer::yes);
    machine.dialogs.expect_box("Autorisation de suppréssion refusée", Answer::ok);
    list.Supprimer_fichier.click();
    EXPECT_EQ(rows().count(), 1);
}

TEST_F(ListClearingTest, ADeletedDefaultListIsWrittenAgainUnderItsName) {
    open_rows({"a", "b"}, 1);
    list.Couper_.click();
    expect_question(Answer::yes);
    list.Supprimer_fichier.click();
    open_rows({"c", "d"}, 1);
    list.Couper_.click();
    EXPECT_THAT(saved_paths(), ElementsAre("d"));
}

} // namespace sonarelle
