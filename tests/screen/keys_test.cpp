#include <gtest/gtest.h>

#include <QMenu>

#include "screen/desk_fixture.h"

namespace sonarelle::test {

/// The main window with three loaded decks, at the keyboard.
class KeysOnScreen : public DeskFixture {
protected:
    KeysOnScreen() { settings_of_a_second_start(); }

    void at_the_keyboard(const std::function<void()>& hands) {
        operate("", [&] {
            load_decks();
            hands();
        });
    }
    /// Sets a deck going by its key in the play menu, and brings it to its tenth second.
    void play(int number, const std::string& function_key) {
        key(function_key);
        eventually("the deck running", [this, number] { return runs(number); });
        operators_event([this, number] { station().deck_ring.deck(number).graph().put_CurrentPosition(10); });
    }
    [[nodiscard]] bool runs(int number) {
        Deck& deck = station().deck_ring.deck(number);
        return deck.has_graph() && deck.graph().GetState() == MediaState::running;
    }
    [[nodiscard]] static std::string open_menu() {
        const QWidget* menu = QApplication::activePopupWidget();
        return menu == nullptr ? "" : menu->objectName().toStdString();
    }
};

struct StepBack {
    const char* key;
    int deck;
    const char* play_key;
};

class StepsBack : public KeysOnScreen, public testing::WithParamInterface<StepBack> {};

TEST_P(StepsBack, OnItsDeck) {
    at_the_keyboard([this] {
        const StepBack& step = GetParam();
        play(step.deck, step.play_key);
        key(step.key);
        eventually("a place before the tenth second",
                   [&] { return station().deck_ring.deck(step.deck).graph().get_CurrentPosition() < 10; });
    });
}

INSTANTIATE_TEST_SUITE_P(Keys, StepsBack,
                         testing::Values(StepBack{"ampersand", 1, "F5"}, StepBack{"1", 1, "F5"},
                                         StepBack{"eacute", 2, "F6"}, StepBack{"2", 2, "F6"},
                                         StepBack{"quotedbl", 3, "F7"}, StepBack{"3", 3, "F7"}));

struct MenuKey {
    const char* key;
    const char* menu;
};

class MenuKeys : public KeysOnScreen, public testing::WithParamInterface<MenuKey> {};

TEST_P(MenuKeys, OpenTheirMenu) {
    at_the_keyboard([this] {
        key(GetParam().key);
        eventually("the menu", [] { return open_menu() == GetParam().menu; });
        key("Escape");
    });
}

INSTANTIATE_TEST_SUITE_P(Keys, MenuKeys,
                         testing::Values(MenuKey{"a", "affiche"}, MenuKey{"A", "affiche"}, MenuKey{"o", "Option_"},
                                         MenuKey{"O", "Option_"}));

/// Keys that do the same.
class OneKey : public KeysOnScreen, public testing::WithParamInterface<const char*> {
protected:
    void press_it() { key(GetParam()); }
};

class VolumeDownKeys : public OneKey {};

TEST_P(VolumeDownKeys, TurnTheMainDeckDown) {
    at_the_keyboard([this] {
        play(1, "F5");
        press_it();
        eventually("a quieter deck", [this] { return station().deck_ring.deck(1).controls.slider.value() == 1; });
    });
}

INSTANTIATE_TEST_SUITE_P(Keys, VolumeDownKeys, testing::Values("b", "B"));

class VolumeUpKeys : public OneKey {};

TEST_P(VolumeUpKeys, TurnTheMainDeckUpAgain) {
    at_the_keyboard([this] {
        play(1, "F5");
        key("b");
        key("b");
        press_it();
        eventually("one step up", [this] { return station().deck_ring.deck(1).controls.slider.value() == 1; });
    });
}

INSTANTIATE_TEST_SUITE_P(Keys, VolumeUpKeys, testing::Values("h", "H"));

class PauseKeys : public OneKey {};

TEST_P(PauseKeys, PauseTheMainDeck) {
    at_the_keyboard([this] {
        play(1, "F5");
        press_it();
        eventually("the pause", [this] { return !runs(1); });
    });
}

INSTANTIATE_TEST_SUITE_P(Keys, PauseKeys, testing::Values("p", "P"));

class ZapKeys : public OneKey {};

TEST_P(ZapKeys, GoOverToTheNextDeck) {
    at_the_keyboard([this] {
        play(1, "F5");
        press_it();
        eventually("deck 2 as the main one", [this] { return station().chain.lecteur_en_cours == 2; });
    });
}

INSTANTIATE_TEST_SUITE_P(Keys, ZapKeys, testing::Values("z", "Z"));

class QuitKeys : public OneKey {};

TEST_P(QuitKeys, Ask) {
    at_the_keyboard([this] {
        press_it();
        wait_for_box();
        EXPECT_EQ(box(), "Confirmer la fermeture de Sonarelle");
        answer("Non");
    });
}

INSTANTIATE_TEST_SUITE_P(Keys, QuitKeys, testing::Values("Escape", "q", "Q"));

struct PlayKey {
    const char* key;
    int deck;
};

class PlayKeys : public KeysOnScreen, public testing::WithParamInterface<PlayKey> {};

TEST_P(PlayKeys, SetTheirDeckGoing) {
    at_the_keyboard([this] { play(GetParam().deck, GetParam().key); });
}

INSTANTIATE_TEST_SUITE_P(Keys, PlayKeys, testing::Values(PlayKey{"F5", 1}, PlayKey{"F6", 2}, PlayKey{"F7", 3}));

struct MixKey {
    const char* main_key;
    int main;
    const char* key;
    int deck;
};

class MixKeys : public KeysOnScreen, public testing::WithParamInterface<MixKey> {};

TEST_P(MixKeys, PlayTheirDeckOverTheMainOne) {
    at_the_keyboard([this] {
        const MixKey& mix = GetParam();
        play(mix.main, mix.main_key);
        key(mix.key);
        eventually("both decks", [&] { return runs(mix.main) && runs(mix.deck); });
    });
}

INSTANTIATE_TEST_SUITE_P(Keys, MixKeys,
                         testing::Values(MixKey{"F6", 2, "F8", 1}, MixKey{"F5", 1, "F9", 2},
                                         MixKey{"F6", 2, "F11", 3}));

class ListKeys : public OneKey {};

TEST_P(ListKeys, ChooseTheList) {
    at_the_keyboard([this] {
        press_it();
        eventually("the list's chain", [this] { return station().main_window.mix_list.value(); });
    });
}

INSTANTIATE_TEST_SUITE_P(Keys, ListKeys, testing::Values("l", "L"));

struct QuickBox {
    const char* box;
    const char* menu;
};

class QuickBoxes : public KeysOnScreen, public testing::WithParamInterface<QuickBox> {};

TEST_P(QuickBoxes, OpenTheirMenuBySpace) {
    at_the_keyboard([this] {
        operators_event([this] {
            widget_of(station().main_window)->findChild<QWidget*>(GetParam().box)->setFocus(Qt::TabFocusReason);
        });
        key("space");
        eventually("the menu", [] { return open_menu() == GetParam().menu; });
        key("Escape");
    });
}

INSTANTIATE_TEST_SUITE_P(Keys, QuickBoxes, testing::Values(QuickBox{"Combo1", "cha"}, QuickBox{"Combo2", "char_F"}));

TEST_F(KeysOnScreen, SmallMShowsTheSmallPlayer) {
    at_the_keyboard([this] {
        key("m");
        eventually("the small player", [this] { return is_on_screen(station().small_player); });
    });
}

TEST_F(KeysOnScreen, ReturnClosesTheWarningAndTheDeskHasTheKeysAgain) {
    at_the_keyboard([this] {
        operators_event([this] { station().notices.warn("Ce fichier est NON TROUVE !"); });
        eventually("the warning", [this] { return is_active(station().warning_window); });
        key("Return");
        eventually("the desk",
                   [this] { return is_active(station().main_window) && !is_on_screen(station().warning_window); });
        key("m");
        eventually("the small player", [this] { return is_on_screen(station().small_player); });
    });
}

TEST_F(KeysOnScreen, CapitalIShowsTheSmallPlayer) {
    at_the_keyboard([this] {
        key("I");
        eventually("the small player", [this] { return is_on_screen(station().small_player); });
    });
}

TEST_F(KeysOnScreen, LTellsInManualModeThatItIsManual) {
    at_the_keyboard([this] {
        operators_event([this] { station().main_window.a_mode_manuel.click(); });
        key("l");
        wait_for_box();
        EXPECT_EQ(box(), "Vous ètes en mode manuel\nModifiez cette option pour une lecture de liste");
        key("Return");
    });
}

TEST_F(KeysOnScreen, TheSquareSignGoesFromCornerToCorner) {
    at_the_keyboard([this] {
        const auto left = [this] { return station().main_window.left.get().count(); };
        operators_event([this] { station().main_window.width = Twips{15 * 1000}; }); // it came as wide as the screen
        key("twosuperior");
        eventually("the right corner", [&] { return left() > 1000; });
        key("twosuperior");
        eventually("the left corner", [&] { return left() == 0; });
    });
}

TEST_F(KeysOnScreen, F2OpensTheListWindow) {
    at_the_keyboard([this] {
        key("F2");
        eventually("the list window", [this] { return is_on_screen(station().list_window); });
    });
}

TEST_F(KeysOnScreen, ControlYChoosesTheFadeOfTheList) {
    at_the_keyboard([this] {
        operators_event([this] { station().main_window.mix_list.click(); });
        key("ctrl+y");
        eventually("the check mark", [this] { return station().main_window.Active_audio.checked.get(); });
    });
}

TEST_F(KeysOnScreen, ControlZChoosesTheFadeOfTheZap) {
    at_the_keyboard([this] {
        operators_event([this] { station().main_window.mix_list.click(); });
        key("ctrl+z");
        eventually("the check mark", [this] { return station().main_window.Active_audio_zapping.checked.get(); });
    });
}

} // namespace sonarelle::test
