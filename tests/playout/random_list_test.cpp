// Lists that are made of drawn records, and the first row of a run with jingles.
#include "playout/random_list.h"

#include "platform/failure.h"
#include "playout/random_order_fixture.h"

namespace sonarelle {

namespace {

class RandomListTest : public RandomOrderFixture {
protected:
    /// "Créer une liste aléatoire avec un fichier.dfm", of this list.
    void create_of(const std::string& source) {
        machine.dialogs.expect_open(source);
        list().creer_aleatoire.click();
    }
    [[nodiscard]] std::string music(int number) const { return "C:\\music\\music " + std::to_string(number) + ".mp3"; }
    void choose_random_with_jingles() {
        switch_jingles_on(put_source("jingle", 5, 10), 3);
        list().random_mode.click();
    }
};

} // namespace

TEST_F(RandomListTest, AppendsAsManyRowsAsTheListHasRecordsAndSaves) {
    open_tracks({100});
    machine.random.then({0.25F, 0.5F, 0.75F});
    const std::string source = put_source("music", 4);
    machine.random.then({0.3F});
    create_of(source);
    EXPECT_EQ(rows().count(), 5);
    EXPECT_EQ(rows().row(2), (RowTable::Row{music(1), "1.50", "100.00", "Jazz", "80", "00:01:40"}));
    EXPECT_EQ(rows().text(3), music(2));
    EXPECT_EQ(rows().text(4), music(3));
    EXPECT_EQ(default_list_bytes().size(), 5U * 418U);
}

TEST_F(RandomListTest, NeverHasTheLastRecord) {
    machine.random.then({0.25F, 0.5F, 0.75F, 0.25F});
    create_of(put_source("music", 4));
    for (const std::string& path : paths())
        EXPECT_NE(path, music(4));
}

TEST_F(RandomListTest, OfTwoRecordsEndsWithTheNoughtThatComesBehindTheRenewal) {
    machine.dialogs.expect_open(put_source("music", 2));
    machine.dialogs.expect_box(" dans load on liste", Answer::ok);
    list().creer_aleatoire.click();
    EXPECT_EQ(paths(), Texts{music(1)});
    EXPECT_EQ(machine.dialogs.last().icon, Icon::stop);
    EXPECT_FALSE(machine.disk.exists("C:\\Sonarelle\\liste.dfm"));
}

TEST_F(RandomListTest, OfOneRecordEndsInWords) {
    machine.dialogs.expect_open(put_source("music", 1));
    machine.dialogs.expect_box("Index non trouvé sur ( 1)", Answer::ok);
    list().creer_aleatoire.click();
    EXPECT_EQ(rows().count(), 0);
    EXPECT_EQ(list().mouse_pointer.get(), 0);
}

TEST_F(RandomListTest, ThatEndsInWordsLeavesItsDrawsInTheLog) {
    machine.dialogs.expect_open(put_source("music", 2));
    machine.dialogs.expect_box(" dans load on liste", Answer::ok);
    list().creer_aleatoire.click();
    EXPECT_EQ(log(), (Texts{"1", "0"}));
}

TEST_F(RandomListTest, OfAnotherKindOfFileIsRefusedByName) {
    machine.add_track("C:\\titre.mp3", 100);
    machine.dialogs.expect_open("C:\\titre.mp3");
    machine.dialogs.expect_box("C:\\titre.mp3\nCe fichier n'est pas une liste", Answer::ok);
    list().creer_aleatoire.click();
    EXPECT_EQ(rows().count(), 0);
}

TEST_F(RandomListTest, CancelledChangesNothing) {
    open_tracks({100});
    machine.dialogs.expect_cancel();
    list().creer_aleatoire.click();
    EXPECT_EQ(rows().count(), 1);
    EXPECT_FALSE(machine.disk.exists("C:\\Sonarelle\\liste.dfm"));
}

TEST_F(RandomListTest, IsRefusedWhileModificationsArentSaved) {
    list().a_Ne_pas_Sauve.click();
    machine.dialogs.expect_box(Answer::ok);
    list().creer_aleatoire.click();
    EXPECT_EQ(rows().count(), 0);
}

TEST_F(RandomListTest, ShowsItsDraws) {
    machine.random.then({0.25F, 0.5F, 0.75F, 0.3F});
    create_of(put_source("music", 4));
    EXPECT_EQ(draws().total_index.caption.get(), "Total index ( 4)");
    EXPECT_EQ(log(), (Texts{"1", "2", "3", "1"}));
    EXPECT_EQ(draws().total.caption.get(), "1");
}

TEST_F(RandomListTest, TableIsNotResetFromBuildToBuild) {
    machine.random.then({0.25F, 0.5F, 0.75F, 0.3F});
    create_of(put_source("music", 4));
    EXPECT_EQ(station.draw_tables.deja_tires.entries(), std::vector<int>{3});
}

// The first row of a run with jingles.

TEST_F(RandomListTest, InRandomOrderWithJinglesARunBeginsInAnEmptyList) {
    station.settings.chemin_fichier_aleatoire1 = put_source("music", 5);
    station.settings.nb_fichier_aleatoire1 = 1;
    choose_random_with_jingles();
    machine.random.then({0.5F});
    list().play_list.click();
    EXPECT_EQ(paths(), Texts{music(2)});
    EXPECT_EQ(machine.media.on_air(), Texts{music(2)});
    EXPECT_EQ(station.list.index_en_cours, 1);
    EXPECT_TRUE(station.settings.valide_fichier_aleatoire1.is_true());
    EXPECT_EQ(list().items_switch.picture.get(), "bouton_on.jpg");
    for (int second = 0; second < 1000; ++second) {
        machine.run_for(seconds(1));
        ASSERT_FALSE(machine.media.on_air().empty()) << second;
    }
}

TEST_F(RandomListTest, InAListWithRowsTheRunBeginsWithTheSelectedOne) {
    open_tracks({100, 100});
    rows().select(2);
    station.settings.chemin_fichier_aleatoire1 = put_source("music", 5);
    choose_random_with_jingles();
    list().play_list.click();
    EXPECT_EQ(rows().count(), 3);
    EXPECT_EQ(machine.media.on_air(), Texts{track(2)});
    EXPECT_EQ(station.list.index_en_cours, 2);
}

TEST_F(RandomListTest, UnderNoSavingItsRowComesIntoTheTableAlone) {
    open_tracks({100, 100});
    station.settings.chemin_fichier_aleatoire1 = put_source("music", 5);
    choose_random_with_jingles();
    list().a_Ne_pas_Sauve.click();
    list().play_list.click();
    EXPECT_EQ(rows().count(), 3);
    EXPECT_FALSE(machine.disk.exists("C:\\Sonarelle\\liste.dfm"));
}

TEST_F(RandomListTest, WithoutAListOfMusicAsksForOne) {
    const std::string source = put_source("music", 5);
    switch_jingles_on(put_source("jingle", 5, 10), 3);
    machine.dialogs.expect_box("La lecture peut etre activée directement sur le bouton lecture", Answer::yes);
    list().random_mode.click();
    machine.dialogs.expect_open(source);
    list().play_list.click();
    EXPECT_EQ(station.settings.chemin_fichier_aleatoire1, source);
    EXPECT_EQ(rows().count(), 1);
}

TEST_F(RandomListTest, AnotherKindOfFileForMusicIsRefusedAndLeavesTheNameAsItWas) {
    open_tracks({100});
    switch_jingles_on(put_source("jingle", 5, 10), 3);
    machine.dialogs.expect_box("La lecture peut etre", Answer::yes);
    list().random_mode.click();
    machine.dialogs.expect_open(track(1));
    machine.dialogs.expect_box("Ce fichier n'est pas une liste", Answer::ok);
    list().play_list.click();
    EXPECT_EQ(station.settings.chemin_fichier_aleatoire1, "Aucun fichier");
}

TEST_F(RandomListTest, WithoutAListOfMusicANoSaysThatNoneIsLoaded) {
    switch_jingles_on(put_source("jingle", 5, 10), 3);
    machine.dialogs.expect_box("de charger une liste de votre choix et désactiver les jingles", Answer::no);
    machine.dialogs.expect_box("Pas de chargement de liste.", Answer::ok);
    list().random_mode.click();
    EXPECT_TRUE(station.chain.ordre_aleatoire.is_true());
}

TEST_F(RandomListTest, OfMusicWithoutARecordIsTold) {
    open_tracks({100, 100});
    station.settings.chemin_fichier_aleatoire1 = put_source("music", 1);
    choose_random_with_jingles();
    machine.dialogs.expect_box("Aucun enregistrement à tirer", Answer::ok);
    list().play_list.click();
    EXPECT_EQ(machine.media.on_air(), Texts{track(1)});
}

TEST_F(RandomListTest, ACancelledDialogLeavesTheNameAsItWas) {
    open_tracks({100, 100});
    switch_jingles_on(put_source("jingle", 5, 10), 3);
    machine.dialogs.expect_box("La lecture peut etre", Answer::yes);
    list().random_mode.click();
    machine.dialogs.expect_cancel();
    list().play_list.click();
    EXPECT_EQ(station.settings.chemin_fichier_aleatoire1, "Aucun fichier");
    EXPECT_FALSE(station.settings.valide_fichier_aleatoire1.is_true());
    EXPECT_EQ(machine.media.on_air(), Texts{track(1)});
}

} // namespace sonarelle
