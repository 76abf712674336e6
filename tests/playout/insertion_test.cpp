// Jingles and list items that come into the list by draw while it runs.
#include "playout/insertion.h"

#include <set>

#include "platform/failure.h"
#include "playout/random_order_fixture.h"

namespace sonarelle {

namespace {

using Kind = OnAirEvent::Kind;

constexpr Colour green = 8454016;

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

// The switches.

TEST_F(InsertionTest, WithoutAListTellsHowToMakeOneAndChangesNothing) {
    for (const char* none : {"", "Aucun fichier", "C:\\titre.mp3"}) {
        station.settings.chemin_fichier_aleatoire = none;
        machine.dialogs.expect_box("Aucun fichier rassemblant vos Jingles n'a été défini", Answer::ok);
        list().jingles_status.click();
        EXPECT_EQ(machine.dialogs.last().title, "Lecture aléatoire avec jingles aléatoire");
        EXPECT_FALSE(station.settings.valide_fichier_aleatoire.is_true());
        EXPECT_FALSE(window().jingle_timer.enabled());
    }
}

TEST_F(InsertionTest, OfItemsWithoutAListTellsHowToMakeOne) {
    station.settings.chemin_fichier_aleatoire1 = "Aucun fichier";
    machine.dialogs.expect_box("2° Sélectionner ce fichier dans le menu *Otions*", Answer::ok);
    list().items_switch.click();
    EXPECT_EQ(machine.dialogs.last().title, "Fichier par défaut");
    EXPECT_FALSE(station.settings.valide_fichier_aleatoire1.is_true());
}

TEST_F(InsertionTest, OfJinglesIsSwitchedByLabelAndLamp) {
    EXPECT_EQ(label(), "Jingle auto ");
    switch_jingles_on(put_source("jingle", 5), 3);
    EXPECT_TRUE(station.settings.valide_fichier_aleatoire.is_true());
    EXPECT_TRUE(station.chain.jingles_aleatoires.is_true());
    EXPECT_TRUE(window().jingle_timer.enabled());
    EXPECT_EQ(label(), "Jingle On");
    EXPECT_EQ(list().jingles_switch.picture.get(), "bouton_on.jpg");
    list().jingles_switch.click();
    EXPECT_FALSE(station.settings.valide_fichier_aleatoire.is_true());
    EXPECT_FALSE(station.chain.jingles_aleatoires.is_true());
    EXPECT_FALSE(window().jingle_timer.enabled());
    EXPECT_EQ(label(), "Jingle Off");
    EXPECT_EQ(list().jingles_switch.picture.get(), "bouton_off.jpg");
}

TEST_F(InsertionTest, OfItemsIsSwitchedWithItsOwnWords) {
    EXPECT_EQ(list().items_status.caption.get(), "Liste / Off");
    switch_items_on(put_source("music", 5));
    EXPECT_TRUE(window().item_timer.enabled());
    EXPECT_EQ(list().items_status.caption.get(), "liste On");
    list().items_status.click();
    EXPECT_FALSE(window().item_timer.enabled());
    EXPECT_EQ(list().items_status.caption.get(), "liste Off");
}

TEST_F(InsertionTest, OfItemsGreysTheVisualEffectWhileItIsOn) {
    switch_items_on(put_source("music", 5));
    EXPECT_FALSE(window().A_visuel_active.enabled);
    list().items_status.click();
    EXPECT_TRUE(window().A_visuel_active.enabled);
}

TEST_F(InsertionTest, OfItemsSwitchedOffInRandomOrderLeavesTheVisualEffectGrey) {
    list().random_mode.click();
    switch_items_on(put_source("music", 5));
    list().items_status.click();
    EXPECT_FALSE(window().A_visuel_active.enabled);
    list().defined_end_mode.click();
    EXPECT_TRUE(window().A_visuel_active.enabled);
}

TEST_F(InsertionTest, WithoutASpacingAsksForOne) {
    int asked = 0;
    station.main_window.pre_char.on_click = [&asked] { ++asked; };
    switch_jingles_on(put_source("jingle", 5), 0);
    EXPECT_EQ(asked, 1);
    list().jingles_status.click();
    EXPECT_EQ(asked, 1);
}

TEST_F(InsertionTest, HintsSayHowOften) {
    station.settings.nb_fichier_aleatoire = 4;
    list().jingles_status.on_mouse_move();
    EXPECT_EQ(list().jingles_status.hint.get(), "Insertion après 4 fichiers");
    list().items_status.on_mouse_move();
    EXPECT_EQ(list().items_status.hint.get(), "Liste aléatoire par défaut :Off");
    switch_items_on(put_source("music", 5));
    list().items_status.on_mouse_move();
    EXPECT_EQ(list().items_status.hint.get(), "Lecture dans fichier aleatoire");
}

// The flash.

TEST_F(InsertionTest, FlashesWithTheTracksThatAreLeft) {
    start_with_jingles(3);
    machine.run_for(seconds(1));
    EXPECT_EQ(label(), "Jingle On ( 2 )");
    EXPECT_EQ(list().jingles_status.fore_colour.get(), green);
    machine.run_for(seconds(1));
    EXPECT_EQ(list().jingles_status.fore_colour.get(), station.settings.coul_text_bouton);
}

TEST_F(InsertionTest, SwitchedOffInTheGreenPhaseIsAsBefore) {
    start_with_jingles(3);
    machine.run_for(seconds(1));
    list().jingles_status.click();
    EXPECT_EQ(list().jingles_status.fore_colour.get(), station.settings.coul_text_bouton);
    EXPECT_EQ(label(), "Jingle Off");
}

TEST_F(InsertionTest, SwitchedOffByAReadingModeInTheGreenPhaseIsAsBefore) {
    start_with_items();
    machine.run_for(seconds(1));
    ASSERT_EQ(list().items_status.fore_colour.get(), green);
    list().defined_end_mode.click();
    EXPECT_EQ(list().items_status.fore_colour.get(), station.settings.coul_text_bouton);
}

TEST_F(InsertionTest, FlashOfItemsHasNoCount) {
    start_with_items();
    machine.run_for(seconds(1));
    EXPECT_EQ(list().items_status.caption.get(), "liste On");
}

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

TEST_F(InsertionTest, OfAListOfOneRecordReadsNone) {
    start_list();
    switch_jingles_on(put_source("jingle", 1), 1);
    machine.run_for(seconds(300));
    EXPECT_EQ(insertions(), 0U);
    EXPECT_EQ(rows_started().size(), 4U);
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
