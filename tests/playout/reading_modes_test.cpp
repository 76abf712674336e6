// What goes with the choice of an order: entries, lamps, marks, journal lines.
#include <gmock/gmock.h>

#include <algorithm>
#include <array>
#include <functional>

#include "playout/random_order_fixture.h"

namespace sonarelle {

namespace {

class ReadingModes : public RandomOrderFixture {
protected:
    ReadingModes() {
        open_tracks({100, 100, 100});
        window().Active_journal1.click();
    }
    [[nodiscard]] bool lists_can_be_opened() {
        const auto entries = list().entries_of_a_fixed_order();
        return std::ranges::all_of(entries, [](const MenuItem* entry) { return entry->enabled.get(); });
    }
    [[nodiscard]] bool lists_are_closed() {
        const auto entries = list().entries_of_a_fixed_order();
        return std::ranges::none_of(entries, [](const MenuItem* entry) { return entry->enabled.get(); });
    }
    [[nodiscard]] bool journal_has(std::string_view line) {
        return from_windows_1252(journal_text()).find(line) != std::string::npos;
    }
};

} // namespace

TEST_F(ReadingModes, RandomOrderClosesTheListsAndGreysTheEffect) {
    list().random_mode.click();
    EXPECT_TRUE(lists_are_closed());
    EXPECT_FALSE(list().A_precoute.enabled);
    EXPECT_FALSE(window().A_visuel_active.enabled);
}

TEST_F(ReadingModes, EveryWayOutOfRandomOrderOpensThemAgain) {
    const std::array<std::function<void()>, 8> ways{
        [this] { list().player_mode.click(); },        [this] { list().defined_end_mode.click(); },
        [this] { list().full_length_mode.click(); },   [this] { window().a_mode_auto.click(); },
        [this] { window().a_mode_predefini.click(); }, [this] { window().deck_chain_lamp.click(); },
        [this] { list().full_length_lamp.click(); },   [this] { window().A_ordre_continue.click(); }};
    for (std::size_t way = 0; way < ways.size(); ++way) {
        list().random_mode.click();
        window().mix_list.set_value(true);
        ASSERT_TRUE(lists_are_closed()) << way;
        ways[way]();
        EXPECT_TRUE(lists_can_be_opened()) << way;
        EXPECT_TRUE(window().A_visuel_active.enabled) << way;
        EXPECT_FALSE(station.chain.ordre_aleatoire.is_true()) << way;
        list().defined_end_mode.click();
    }
}

TEST_F(ReadingModes, LeftByTheMenuCanBeChosenAgain) {
    for (MenuItem* way : {&window().a_mode_predefini, &window().a_mode_auto, &window().A_ordre_continue}) {
        list().random_mode.click();
        way->click();
        EXPECT_FALSE(list().random_mode.value());
        EXPECT_EQ(list().random_lamp.picture.get(), "bouton_off.jpg");
        list().random_mode.click();
        EXPECT_TRUE(station.chain.ordre_aleatoire.is_true()) << way->name();
    }
}

TEST_F(ReadingModes, LeftByTheMenuForTheListShowTheDefinedEnd) {
    list().random_mode.click();
    window().a_mode_predefini.click();
    EXPECT_TRUE(list().defined_end_mode.value());
    EXPECT_EQ(list().defined_end_lamp.picture.get(), "bouton_on.jpg");
}

TEST_F(ReadingModes, LeftBehindTheLoadStepGoOnFromTheRowThatPlays) {
    rows().clear();
    open_tracks(std::vector<int>(6, 100));
    list().random_mode.click();
    list().play_list.click();
    machine.random.then({0.5F});
    machine.run_for(seconds(88));
    ASSERT_EQ(station.list.index_en_cours, 4);
    list().defined_end_mode.click();
    machine.run_for(seconds(10));
    EXPECT_EQ(rows_started(), (std::vector<int>{1, 2}));
}

TEST_F(ReadingModes, OfTheDecksChainThemBehindAListThatWentOverToTheFirstOne) {
    start_list();
    machine.run_for(seconds(94 * 3 + 20));
    ASSERT_EQ(station.chain.lecteur_en_cours, 1);
    list().player_mode.click();
    window().mix_titles.show_value(true);
    machine.add_track("C:\\bande.mp3", 100);
    open_on(2, "C:\\bande.mp3");
    machine.run_for(seconds(81));
    EXPECT_THAT(machine.media.on_air(), testing::Contains("C:\\bande.mp3"));
}

TEST_F(ReadingModes, LampOfTheDecksEndsTheInsertionsWhereTheDecksAreReadAlready) {
    list().player_mode.click();
    switch_jingles_on(put_source("jingle", 5, 10), 3);
    window().deck_chain_lamp.click();
    EXPECT_FALSE(station.settings.valide_fichier_aleatoire.is_true());
    EXPECT_EQ(list().jingles_switch.picture.get(), "bouton_off.jpg");
}

TEST_F(ReadingModes, LampOfTheDecksPutsTheTimersOfBothInsertionsOff) {
    start_list();
    switch_jingles_on(put_source("jingle", 5, 10), 3);
    switch_items_on(put_source("music", 5));
    window().deck_chain_lamp.click();
    EXPECT_FALSE(window().jingle_timer.enabled());
    EXPECT_FALSE(window().item_timer.enabled());
}

TEST_F(ReadingModes, ChosenByHandLeaveTheManualModeChecked) {
    open_on_all({100, 100, 100});
    window().a_mode_manuel.click();
    list().defined_end_mode.click();
    EXPECT_TRUE(window().a_mode_manuel.checked);
    EXPECT_FALSE(window().a_mode_predefini.checked);
}

TEST_F(ReadingModes, LightTheirLamp) {
    const std::array<std::pair<OptionButton*, Image*>, 4> modes{{{&list().random_mode, &list().random_lamp},
                                                                 {&list().defined_end_mode, &list().defined_end_lamp},
                                                                 {&list().full_length_mode, &list().full_length_lamp},
                                                                 {&list().player_mode, &list().player_lamp}}};
    for (const auto& [option, lamp] : modes) {
        option->click();
        for (const auto& [other, other_lamp] : modes)
            EXPECT_EQ(other_lamp->picture.get(), other_lamp == lamp ? "bouton_on.jpg" : "bouton_off.jpg");
    }
}

TEST_F(ReadingModes, MarkTheOrderInTheMenu) {
    list().random_mode.click();
    EXPECT_TRUE(window().A_ordre_aléatoire.checked);
    EXPECT_FALSE(window().A_ordre_continue.checked);
    list().defined_end_mode.click();
    EXPECT_FALSE(window().A_ordre_aléatoire.checked);
    EXPECT_TRUE(window().A_ordre_continue.checked);
}

TEST_F(ReadingModes, OfAListFollowTheOrderOfTheMenu) {
    list().full_length_mode.click();
    window().A_ordre_aléatoire.click();
    EXPECT_TRUE(list().random_mode.value());
    window().A_ordre_continue.click();
    EXPECT_TRUE(list().defined_end_mode.value());
}

TEST_F(ReadingModes, OfTheDecksTakeTheOrderOfTheMenuWithoutLeaving) {
    list().player_mode.click();
    window().A_ordre_aléatoire.click();
    EXPECT_TRUE(list().player_mode.value());
    EXPECT_TRUE(station.chain.ordre_aleatoire.is_true());
    EXPECT_TRUE(journal_has("Lecture aléatoire"));
}

TEST_F(ReadingModes, OfTheDecksTakeTheJinglesAlongByTheOrderOfTheMenu) {
    list().player_mode.click();
    switch_jingles_on(put_source("jingle", 5, 10), 3);
    station.chain.jingles_aleatoires = false;
    window().A_ordre_aléatoire.click();
    EXPECT_TRUE(station.chain.jingles_aleatoires.is_true());
}

TEST_F(ReadingModes, AreJournalledInTheirWords) {
    list().random_mode.click();
    list().defined_end_mode.click();
    list().full_length_mode.click();
    list().player_mode.click();
    for (const char* line : {"Liste - Lecture aléatoire", "Liste - Lecture fin de piste définie",
                             "Liste - Lecture durée piste", "Lecteur - Lecture continue auto"})
        EXPECT_TRUE(journal_has(line)) << line;
}

TEST_F(ReadingModes, OverASpecialMixAreJournalledWithTheOverlap) {
    start_list();
    machine.run_for(seconds(10));
    machine.add_track("C:\\bande.mp3", 30);
    const std::array<std::pair<OptionButton*, std::string>, 4> modes{
        {{&list().random_mode, "Liste - Lecture aléatoire auto / Mix : 6"},
         {&list().defined_end_mode, "Liste - Lecture Début / fin de piste définie/ Mix : 6"},
         {&list().full_length_mode, "Liste - Lecture Début / durée piste - Mix : 6"},
         {&list().player_mode, "Lecteur - Lecture continue auto / Mix : 6"}}};
    for (const auto& [option, line] : modes) {
        open_on(2, "C:\\bande.mp3");
        controls(2).special_mix.click();
        option->click();
        controls(2).stop.click();
        EXPECT_TRUE(journal_has(line)) << line;
    }
}

TEST_F(ReadingModes, OfRandomOrderTakeTheJinglesAlong) {
    switch_jingles_on(put_source("jingle", 5, 10), 3);
    station.settings.chemin_fichier_aleatoire1 = put_source("music", 5);
    station.chain.jingles_aleatoires = false;
    list().random_mode.click();
    EXPECT_TRUE(station.chain.jingles_aleatoires.is_true());
}

TEST_F(ReadingModes, OfRandomOrderHeadTheControlWindowAndClearItsLists) {
    station.draw_control.log(DrawControl::Lists::of_list, {"1"});
    list().random_mode.click();
    EXPECT_EQ(draws().heading.caption.get(), "Lecture aléatoire");
    EXPECT_TRUE(log().empty());
}

TEST_F(ReadingModes, OfAListClearTheInsertionsOfItems) {
    list().random_mode.click();
    switch_items_on(put_source("music", 5));
    station.chain.compteur_aleatoire = station.chain.compteur_aleatoire1 = 4;
    list().defined_end_mode.click();
    EXPECT_FALSE(station.settings.valide_fichier_aleatoire1.is_true());
    EXPECT_FALSE(window().item_timer.enabled());
    EXPECT_EQ(station.chain.compteur_aleatoire, 0);
    EXPECT_EQ(station.chain.compteur_aleatoire1, 0);
}

} // namespace sonarelle
