// Jingles and list items that come into the list by draw while it runs.
#include "playout/insertion.h"

#include <set>

#include "platform/failure.h"
#include "playout/random_order_fixture.h"

namespace sonarelle {

namespace {

using Kind = OnAirEvent::Kind;

class InsertionTest : public RandomOrderFixture {
protected:
    InsertionTest() { open_tracks(std::vector<int>(6, 100)); }

    [[nodiscard]] std::string jingle(int number) const {
        return "C:\\jingle\\jingle " + std::to_string(number) + ".mp3";
    }
    [[nodiscard]] std::string music(int number) const { return "C:\\music\\music " + std::to_string(number) + ".mp3"; }
    [[nodiscard]] std::size_t insertions() const { return events_of(Kind::inserted).size(); }
    [[nodiscard]] std::string label() { return list().jingles_status.caption; }

    /// A list in its own order with a jingle after each so many tracks, of a list of five.
    void start_with_jingles(int spacing) {
        start_list();
        switch_jingles_on(put_source("jingle", 5, 10), spacing);
        station.chain.compteur_aleatoire = 1;
    }
    void start_with_items(int spacing = 1, int records = 5) {
        list().random_mode.click();
        switch_items_on(put_source("music", records), spacing);
        list().play_list.click();
    }
};

} // namespace

// Jingles.

TEST_F(InsertionTest, OfAJingleComesAfterTheThirdStart) {
    start_with_jingles(3);
    machine.run_for(seconds(94));
    EXPECT_EQ(insertions(), 0U);
    machine.run_for(seconds(96));
    ASSERT_EQ(insertions(), 1U);
    EXPECT_EQ(events_of(Kind::inserted)[0].row, 4);
    EXPECT_EQ(rows().count(), 7);
    EXPECT_EQ(station.chain.compteur_aleatoire, 0);
}

TEST_F(InsertionTest, CounterRunsDownToNoughtFromTheSecondCycleOn) {
    start_with_jingles(3);
    std::set<std::string> captions;
    for (int second = 0; second < 500; ++second) {
        machine.run_for(seconds(1));
        captions.insert(label());
    }
    EXPECT_TRUE(captions.contains("Jingle On ( 3 )"));
    EXPECT_TRUE(captions.contains("Jingle On ( 0 )"));
}

TEST_F(InsertionTest, JingleIsPlayedNextAndStays) {
    start_with_jingles(1);
    machine.run_for(seconds(2));
    ASSERT_EQ(insertions(), 1U);
    const std::string inserted = rows().text(2);
    EXPECT_TRUE(inserted.starts_with("C:\\jingle\\"));
    machine.run_for(seconds(93));
    EXPECT_EQ(machine.media.on_air().back(), inserted);
    EXPECT_EQ(record_in(default_list_bytes(), 2).trimmed_chemin(), inserted);
}

TEST_F(InsertionTest, JingleIsPlayedNextInRandomOrderToo) {
    station.settings.chemin_fichier_aleatoire1 = put_source("music", 5);
    switch_jingles_on(put_source("jingle", 5, 10), 1);
    start_at_random();
    list().items_status.click(); // which the start has switched on
    machine.run_for(seconds(2));
    ASSERT_EQ(insertions(), 2U); // the first row of the run, and a jingle
    machine.run_for(seconds(93));
    EXPECT_EQ(machine.media.on_air().back(), rows().text(2));
}

TEST_F(InsertionTest, RowHasTheRecordsCells) {
    start_with_jingles(1);
    machine.random.then({0.5F}); // record 2
    machine.run_for(seconds(2));
    EXPECT_EQ(rows().row(2), (RowTable::Row{jingle(2), "1.50", "10.00", "Jazz", "80", "00:01:40"}));
}

TEST_F(InsertionTest, ComesBehindTheSelectedRow) {
    start_with_jingles(3);
    machine.run_for(seconds(95));
    rows().click(5);
    station.chain.compteur_aleatoire = 3;
    machine.run_for(seconds(1));
    EXPECT_TRUE(rows().text(6).starts_with("C:\\jingle\\"));
    EXPECT_EQ(station.list.index_en_cours, 5);
    EXPECT_EQ(station.list.ligne_en_lecture, 2);
}

TEST_F(InsertionTest, BehindASearchComesBehindTheRowThatPlays) {
    start_with_jingles(3);
    machine.run_for(seconds(95));
    station.list_window.search.set_text(rows().text(5));
    station.chain.compteur_aleatoire = 3;
    machine.run_for(seconds(1));
    EXPECT_TRUE(rows().text(3).starts_with("C:\\jingle\\"));
}

TEST_F(InsertionTest, WithoutASelectedRowComesBehindTheOneThatPlays) {
    start_with_jingles(3);
    machine.run_for(seconds(95));
    rows().clear();
    open_list("C:\\Sonarelle\\essai.dfm", std::vector<enreg_liste>(6, record_of(track(1), "100.00")));
    ASSERT_EQ(rows().selected(), 0);
    station.chain.compteur_aleatoire = 3;
    machine.run_for(seconds(1));
    ASSERT_EQ(insertions(), 1U);
    EXPECT_EQ(events_of(Kind::inserted)[0].row, 3);
}

TEST_F(InsertionTest, BeforeTheRowThatPlaysMovesItsMark) {
    start_with_jingles(3);
    machine.run_for(seconds(190));
    ASSERT_EQ(station.list.ligne_en_lecture, 3);
    rows().click(1);
    station.chain.compteur_aleatoire = 3;
    machine.run_for(seconds(1));
    EXPECT_EQ(rows().text(station.list.ligne_en_lecture.value()), track(3));
}

TEST_F(InsertionTest, NeverDrawsTheLastRecord) {
    start_with_jingles(1);
    machine.run_for(seconds(3000));
    ASSERT_GT(insertions(), 10U);
    for (const OnAirEvent& event : events_of(Kind::inserted))
        EXPECT_NE(event.path, jingle(5));
}

TEST_F(InsertionTest, OfRecordNoughtIsDrawnAgainInTheSamePass) {
    window().Active_journal1.click();
    start_with_jingles(1);
    machine.random.then({0.5F});
    machine.run_for(seconds(2)); // the first draw of a station bars the nought
    station.draw_tables.deja_lu.clear();
    station.chain.compteur_aleatoire = 1;
    machine.random.then({0.0F, 0.25F});
    machine.run_for(seconds(1));
    ASSERT_EQ(insertions(), 2U);
    const OnAirEvent event = events_of(Kind::inserted)[1];
    EXPECT_EQ(event.path, jingle(1));
    ASSERT_EQ(event.passed_over.size(), 1U);
    EXPECT_EQ(event.passed_over[0].number, 0);
    EXPECT_EQ(event.passed_over[0].reason, "aucun enregistrement");
    EXPECT_TRUE(station.draw_tables.deja_lu.holds(0));
    EXPECT_NE(journal_text().find("Tirage du nombre 0"), std::string::npos);
}

TEST_F(InsertionTest, OfRecordNoughtIsJournalledOnce) {
    window().Active_journal1.click();
    start_with_jingles(1);
    const auto insert_by = [this](std::initializer_list<float> numbers) {
        station.draw_tables.deja_lu.clear();
        station.chain.compteur_aleatoire = 1;
        machine.random.then(numbers);
        machine.run_for(seconds(1));
    };
    insert_by({0.25F}); // the first draw of a station bars the nought
    insert_by({0.0F, 0.5F});
    insert_by({0.0F, 0.25F});
    ASSERT_EQ(insertions(), 3U);
    const std::string journal = journal_text();
    const std::size_t first = journal.find("Tirage du nombre 0");
    ASSERT_NE(first, std::string::npos);
    EXPECT_EQ(journal.find("Tirage du nombre 0", first + 1), std::string::npos);
}

TEST_F(InsertionTest, OfAListOfOneRecordReadsNone) {
    start_list();
    switch_jingles_on(put_source("jingle", 1), 1);
    machine.run_for(seconds(300));
    EXPECT_EQ(insertions(), 0U);
    EXPECT_EQ(rows_started().size(), 4U);
}

TEST_F(InsertionTest, OfAListWithoutARecordLeavesWhatRandomOrderHasPlayed) {
    start_list();
    draws().add_current.click();
    machine.disk.put_file("C:\\Sonarelle\\vide.dfm");
    switch_jingles_on("C:\\Sonarelle\\vide.dfm", 1);
    station.chain.compteur_aleatoire = 1;
    machine.run_for(seconds(2));
    EXPECT_EQ(station.draw_tables.deja_lu.entries(), std::vector<int>{1});
    EXPECT_EQ(draws().jingles_played.items.get(), Texts{});
}

TEST_F(InsertionTest, OfAListThatIsNotThereMakesNoFile) {
    start_list();
    switch_jingles_on("C:\\Sonarelle\\absent.dfm", 1);
    machine.run_for(seconds(300));
    EXPECT_FALSE(machine.disk.exists("C:\\Sonarelle\\absent.dfm"));
    EXPECT_EQ(rows_started().size(), 4U);
}

TEST_F(InsertionTest, OfAListThatCantBeReadIsToldOnceAndTheAirGoesOn) {
    int warnings = 0;
    station.notices.on_warning = [&warnings](const std::string&) { ++warnings; };
    start_with_jingles(1);
    machine.disk.refuse("C:\\Sonarelle\\jingle.dfm", FailureNumber::permission_refused);
    machine.run_for(seconds(300));
    EXPECT_EQ(warnings, 1);
    EXPECT_EQ(rows_started().size(), 4U);
}

TEST_F(InsertionTest, OfAListThatCantBeReadIsTriedAgainAfterAsManyTracks) {
    start_with_jingles(1);
    machine.disk.refuse("C:\\Sonarelle\\jingle.dfm", FailureNumber::permission_refused);
    machine.run_for(seconds(2));
    machine.disk.heal("C:\\Sonarelle\\jingle.dfm");
    machine.run_for(seconds(90));
    EXPECT_EQ(insertions(), 0U);
    machine.run_for(seconds(4));
    EXPECT_EQ(insertions(), 1U);
}

TEST_F(InsertionTest, OfAListThatCouldBeReadMeanwhileIsToldAnew) {
    int warnings = 0;
    station.notices.on_warning = [&warnings](const std::string&) { ++warnings; };
    start_with_jingles(1);
    for (int turn = 0; turn < 2; ++turn) {
        machine.disk.refuse("C:\\Sonarelle\\jingle.dfm", FailureNumber::permission_refused);
        machine.run_for(seconds(1));
        machine.disk.heal("C:\\Sonarelle\\jingle.dfm");
        station.chain.compteur_aleatoire = 1;
        machine.run_for(seconds(1));
        station.chain.compteur_aleatoire = 1;
    }
    EXPECT_EQ(insertions(), 2U);
    EXPECT_EQ(warnings, 2);
}

TEST_F(InsertionTest, WithASpacingBelowOneNeverComes) {
    station.main_window.pre_char.on_click = [] {};
    start_with_jingles(0);
    machine.run_for(seconds(300));
    EXPECT_EQ(insertions(), 0U);
}

TEST_F(InsertionTest, WithoutAMainDeckNeverComes) {
    list().defined_end_mode.click();
    switch_jingles_on(put_source("jingle", 5), 1);
    window().mix_list.set_value(true);
    station.chain.compteur_aleatoire = 1;
    machine.run_for(seconds(60));
    EXPECT_EQ(insertions(), 0U);
}

TEST_F(InsertionTest, IntoAFullListNeverComes) {
    start_with_jingles(1);
    while (rows().count() < 32767)
        rows().append({track(1), "0.10", "100.00", "", "100", ""});
    machine.run_for(seconds(3));
    EXPECT_EQ(rows().count(), 32767);
}

TEST_F(InsertionTest, UnderNoSavingChangesTheTableAlone) {
    list().a_Ne_pas_Sauve.click();
    start_with_jingles(1);
    machine.run_for(seconds(2));
    EXPECT_EQ(rows().count(), 7);
    EXPECT_FALSE(machine.disk.exists("C:\\Sonarelle\\liste.dfm"));
    machine.run_for(seconds(93));
    EXPECT_TRUE(machine.media.on_air().back().starts_with("C:\\jingle\\"));
}

TEST_F(InsertionTest, RestsWhileTheTitlesAreMixed) {
    start_with_jingles(1);
    window().mix_titles.show_value(true);
    machine.run_for(seconds(3));
    EXPECT_EQ(insertions(), 0U);
}

TEST_F(InsertionTest, OfAJingleShowsWhatWasDrawn) {
    start_with_jingles(1);
    machine.random.then({0.5F});
    machine.run_for(seconds(2));
    EXPECT_EQ(draws().jingles_heading.caption.get(), "Prochain jingle chargé");
    EXPECT_EQ(draws().jingle_name.caption.get(), "Nom : jingle 2");
    EXPECT_EQ(draws().jingle_index.caption.get(), "Nombre d'index ( 5)");
    EXPECT_EQ(draws().jingle_total.caption.get(), "1");
    EXPECT_EQ(draws().jingle_every.caption.get(), "Jingles aléatoire tous les 1 fich..");
    EXPECT_EQ(draws().jingle_file.caption.get(), "Dans fichier C:\\Sonarelle\\jingle.dfm");
    EXPECT_EQ(draws().jingle_drawn.text(), "2");
    EXPECT_EQ(draws().jingle_draws.items.get(), Texts{"2 - Pas Trouvé"});
    EXPECT_EQ(draws().jingles_played.items.get(), Texts{"0"});
}

// List items.

TEST_F(InsertionTest, OfAnItemComesOnceForEachStartInRandomOrder) {
    start_with_items();
    machine.run_for(seconds(2));
    EXPECT_EQ(insertions(), 1U);
    machine.run_for(seconds(94));
    EXPECT_EQ(rows_started().size(), 2U);
    EXPECT_EQ(insertions(), 2U);
}

TEST_F(InsertionTest, OfItemsWithASpacingBelowOneNeverComes) {
    station.main_window.pre_char.on_click = [] {};
    start_with_items(0);
    machine.run_for(seconds(100));
    EXPECT_EQ(insertions(), 0U);
}

TEST_F(InsertionTest, OfItemsWithoutAMainDeckNeverComes) {
    start_at_random();
    machine.run_for(seconds(10));
    list().stop_decks.click();
    switch_items_on(put_source("music", 5));
    machine.run_for(seconds(5));
    EXPECT_EQ(insertions(), 0U);
}

TEST_F(InsertionTest, ItemIsPlayedNext) {
    start_with_items();
    machine.run_for(seconds(95));
    EXPECT_TRUE(machine.media.on_air().back().starts_with("C:\\music\\"));
}

TEST_F(InsertionTest, OfItemsInListOrderNeverComes) {
    start_list();
    switch_items_on(put_source("music", 5));
    machine.run_for(seconds(200));
    EXPECT_EQ(insertions(), 0U);
}

TEST_F(InsertionTest, OfItemsKeepsAShortListGoing) {
    rows().clear();
    open_tracks({100});
    start_with_items(1, 8);
    machine.run_for(seconds(94 * 20 + 5));
    EXPECT_EQ(rows_started().size(), 21U);
    EXPECT_GE(rows().count(), 21);
}

TEST_F(InsertionTest, OfTheFileThatPlaysGivesWayToAnother) {
    const std::string source = put_source("music", 5);
    rows().clear();
    rows().append({music(2), "0.10", "100.00", "", "100", ""});
    rows().select(1);
    list().random_mode.click();
    switch_items_on(source);
    list().play_list.click();
    machine.random.then({0.5F, 0.7F}); // record 2, which plays, and record 3
    machine.run_for(seconds(2));
    ASSERT_EQ(insertions(), 1U);
    EXPECT_EQ(events_of(Kind::inserted)[0].path, music(3));
    EXPECT_EQ(events_of(Kind::inserted)[0].passed_over[0].reason, "même fichier que le titre précédent");
}

TEST_F(InsertionTest, OfAFileThatIsGoneIsMadeUpFor) {
    rows().clear();
    open_tracks({100});
    start_with_items(1, 8);
    machine.run_for(seconds(2));
    machine.disk.Kill(rows().text(2));
    machine.run_for(seconds(94));
    EXPECT_EQ(rows_started().size(), 2U);
    EXPECT_TRUE(machine.media.on_air().back().starts_with("C:\\music\\"));
}

TEST_F(InsertionTest, OfAnItemShowsWhatWasDrawn) {
    list().random_mode.click();
    switch_items_on(put_source("music", 5));
    list().play_list.click();
    machine.random.then({0.5F});
    machine.run_for(seconds(2));
    EXPECT_EQ(draws().heading.caption.get(), "Fichiers aléatoires");
    EXPECT_EQ(draws().file.caption.get(), "Dans fichier C:\\Sonarelle\\music.dfm");
    EXPECT_EQ(log(), Texts{"2 - Pas Trouvé"});
}

TEST_F(InsertionTest, OfItemsHasATableOfItsOwn) {
    start_with_items();
    machine.run_for(seconds(2));
    EXPECT_EQ(station.draw_tables.deja_lu1.entries(), std::vector<int>{0});
    EXPECT_TRUE(station.draw_tables.deja_lu.entries().empty());
}

} // namespace sonarelle
