// Which entries hang under which menu of the main window.
#include <gmock/gmock.h>

#include <algorithm>
#include <set>

#include "support/station_fixture.h"

namespace sonarelle {

namespace {

using testing::ElementsAre;

class MainMenusTest : public StationFixture {
protected:
    Antenne_FM& window = station.main_window;

    static void collect(const MenuItem& menu, std::multiset<const Control*>& into) {
        for (const MenuItem* entry : menu.entries()) {
            into.insert(entry);
            collect(*entry, into);
        }
    }
    [[nodiscard]] std::multiset<const Control*> all_hung() const {
        std::multiset<const Control*> hung;
        for (const MenuItem* menu : station.main_window.menu_bar) {
            hung.insert(menu);
            collect(*menu, hung);
        }
        for (const MenuItem* menu : {&station.main_window.cha, &station.main_window.char_F}) {
            hung.insert(menu);
            collect(*menu, hung);
        }
        return hung;
    }
};

std::vector<std::string> names_of(const std::vector<MenuItem*>& items) {
    std::vector<std::string> names;
    for (const MenuItem* item : items)
        names.push_back(item->name());
    return names;
}

} // namespace

TEST_F(MainMenusTest, TheBarHasSevenMenus) {
    EXPECT_THAT(names_of(window.menu_bar),
                ElementsAre("Fichier", "lire_play", "liste", "affiche", "Option_", "aide", "A_Propos"));
}

TEST_F(MainMenusTest, WhatDestroysStandsLastBehindALine) {
    const auto destroys = [](const MenuItem* entry) { return entry->destroys; };
    for (const MenuItem* menu : {&window.Option_, &window.A_journal}) {
        const auto& entries = menu->entries();
        const auto first = std::ranges::find_if(entries, destroys);
        ASSERT_NE(first, entries.end()) << menu->name();
        EXPECT_TRUE(menu->begins_group(**first)) << menu->name();
        EXPECT_TRUE(std::all_of(first, entries.end(), destroys)) << menu->name();
    }
}

TEST_F(MainMenusTest, EveryEntryHangsInOnePlace) {
    const auto hung = all_hung();
    for (const Control* control : window.controls()) {
        if (control->kind() == ControlKind::menu_item) {
            EXPECT_EQ(hung.count(control), 1U) << control->name();
        }
    }
}

TEST_F(MainMenusTest, ALinePartsTheGroupsOfAMenu) {
    EXPECT_FALSE(window.live_.begins_group(window.A_lecteur_CD_Win));
    EXPECT_FALSE(window.live_.begins_group(window.A_Ouvrir_CD));
    EXPECT_TRUE(window.live_.begins_group(window.a_vol));
}

TEST_F(MainMenusTest, FunctionKeysBelongToOneEntryEach) {
    std::multiset<std::string> keys;
    for (const Control* control : window.controls())
        if (const auto* item = dynamic_cast<const MenuItem*>(control); item != nullptr && !item->shortcut.get().empty())
            keys.insert(item->shortcut);
    EXPECT_EQ(keys,
              (std::multiset<std::string>{"F1", "F2", "F4", "F5", "F6", "F7", "F8", "F9", "F11", "Ctrl+Y", "Ctrl+Z"}));
}

} // namespace sonarelle
