// Where the keyboard is on the desk, and what its keys do there.
#include <QAbstractItemView>
#include <QComboBox>
#include <QMenu>

#include "desktop/whole_desk_fixture.h"

namespace sonarelle {

namespace {

constexpr std::string_view favourites = "C:\\Listes\\favoris.dfm";
/// All letters that the main window knows, each in both cases where it has both.
const QString letters = QStringLiteral("&1é2\"3aAbBhHfFImlLoOpPzZ²qQ");

class KeyboardOfTheDesk : public WholeDesk {
protected:
    void load(int deck, double length = 100) {
        const std::string path = "C:\\Musique\\titre " + std::to_string(deck) + ".mp3";
        machine.add_track(path, length);
        machine.dialogs.expect_open(path);
        window.deck(deck).open.click();
    }
    void play(int deck) {
        load(deck);
        window.deck(deck).play.click();
        settle();
    }
    /// A special mix, which the operator may stop.
    void play_over(int deck) {
        window.special_mix_entries()[static_cast<std::size_t>(deck - 1)]->click();
        window.deck(deck).stop.enabled = true;
        settle();
        ASSERT_TRUE(sounds(deck));
    }
    [[nodiscard]] int transitions() { return station.chain.nb_fichiers_ecoutes.value(); }
    [[nodiscard]] bool sounds(int deck) { return station.deck_ring.deck(deck).sounds(); }
    QWidget& focus(const Control& control) {
        take_keyboard();
        QWidget& widget = part(control);
        widget.setFocus(Qt::TabFocusReason);
        EXPECT_TRUE(widget.hasFocus());
        return widget;
    }
};

/// The main window with every part reachable, and nothing behind its parts.
class EveryPart : public WholeDesk {
protected:
    EveryPart() {
        for (Control* control : window.controls()) {
            forget_events(*control);
            control->enabled = true;
            control->visible = true;
        }
        window.on_click = window.on_right_click = nullptr;
        window.on_key_press = [this](char32_t c) { seen += QString::fromUcs4(&c, 1); };
        settle();
    }

    static void forget_events(Control& control) {
        control.on_mouse_move = nullptr;
        if (auto* label = dynamic_cast<Label*>(&control); label != nullptr && label->on_click)
            label->on_click = [] {};
        if (auto* button = dynamic_cast<Button*>(&control))
            button->on_click = nullptr;
        if (auto* image = dynamic_cast<Image*>(&control))
            image->on_click = nullptr;
        if (auto* box = dynamic_cast<CheckBox*>(&control))
            box->on_click = nullptr;
        if (auto* option = dynamic_cast<OptionButton*>(&control))
            option->on_click = nullptr;
        if (auto* slider = dynamic_cast<Slider*>(&control))
            slider->on_change = nullptr;
        if (auto* entry = dynamic_cast<MenuItem*>(&control))
            entry->on_click = nullptr;
    }
    /// The parts that can be seen, but the field that is typed into.
    [[nodiscard]] std::vector<std::pair<std::string, QWidget*>> widgets() {
        std::vector<std::pair<std::string, QWidget*>> found;
        for (const Control* control : window.controls()) {
            auto* widget = main_view().findChild<QWidget*>(QString::fromStdString(control->name()));
            if (control->kind() != ControlKind::menu_item && control != &window.overlap && widget != nullptr &&
                widget->isVisible())
                found.emplace_back(control->name(), widget);
        }
        return found;
    }
    static void close_popups() {
        while (QWidget* open = QApplication::activePopupWidget())
            open->close();
    }

    QString seen;
};

} // namespace

TEST_F(KeyboardOfTheDesk, IsWithTheWindowAtTheStart) {
    EXPECT_TRUE(window_has_keyboard());
}

TEST_F(KeyboardOfTheDesk, IsWithTheRowsOfTheListAtItsFirst) {
    station.list_window.show();
    settle();
    take_keyboard(&widget_of(station.list_window));
    EXPECT_EQ(widget_of(station.list_window).focusWidget()->objectName(), "ListView1");
}

TEST_F(EveryPart, TakesNoLetterFromTheWindowWhenItHasBeenPressed) {
    for (const auto& [name, widget] : widgets()) {
        press(*widget);
        close_popups();
        seen.clear();
        type(letters);
        EXPECT_EQ(seen, letters) << name;
    }
}

TEST_F(EveryPart, ThatIsAButtonTakesNoSpaceBarByBeingPressed) {
    for (const auto& [name, widget] : widgets())
        if (auto* button = qobject_cast<QAbstractButton*>(widget)) {
            press(*button);
            EXPECT_TRUE(window_has_keyboard()) << name;
        }
}

TEST_F(EveryPart, TakesNoLetterFromTheWindowWhenItHasTheKeyboard) {
    for (const auto& [name, widget] : widgets()) {
        widget->setFocus(Qt::TabFocusReason);
        seen.clear();
        type(letters);
        EXPECT_EQ(seen, letters) << name;
    }
}

TEST_F(EveryPart, LeavesTheFunctionKeysToTheMenus) {
    std::vector<std::string> chosen;
    for (Control* control : window.controls())
        if (auto* entry = dynamic_cast<MenuItem*>(control); entry != nullptr && !entry->shortcut.get().empty())
            entry->on_click = [&chosen, entry] { chosen.push_back(entry->name()); };
    const std::vector<std::string> all{
        "aideprog",     "ouvrir_liste",        "ecoute", "lire_1", "lire_2", "lire_3", "Mix1", "Mix2", "Mix3",
        "Active_audio", "Active_audio_zapping"};
    for (const auto& [name, widget] : widgets()) {
        widget->setFocus(Qt::TabFocusReason);
        chosen.clear();
        for (const Qt::Key code : {Qt::Key_F1, Qt::Key_F2, Qt::Key_F4, Qt::Key_F5, Qt::Key_F6, Qt::Key_F7, Qt::Key_F8,
                                   Qt::Key_F9, Qt::Key_F11})
            key(code);
        for (const Qt::Key code : {Qt::Key_Y, Qt::Key_Z})
            QTest::keyClick(main_view().windowHandle(), code, Qt::ControlModifier);
        EXPECT_EQ(chosen, all) << name;
    }
}

TEST_F(EveryPart, OfAMenuGivesTheLettersBackToTheWindow) {
    for (MenuItem* menu : {&window.affiche, &window.Option_, &window.cha, &window.char_F}) {
        window.popup(*menu);
        settle();
        auto* open = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_NE(open, nullptr) << menu->name();
        QTest::keyClick(open, Qt::Key_Down);
        QTest::keyClick(open, Qt::Key_Return);
        close_popups();
        settle();
        seen.clear();
        type(letters);
        EXPECT_EQ(seen, letters) << menu->name();
    }
}

TEST_F(KeyboardOfTheDesk, IsTheWindowsAgainAfterAQuickLoad) {
    machine.add_track("C:\\Musique\\favori.mp3", 60);
    machine.disk.put_file(favourites, bytes_of({record_of("C:\\Musique\\favori.mp3", "60.00", 80, 0.0)}));
    machine.dialogs.expect_open(favourites);
    window.choose_favourites.click();
    settle();
    auto& box = part<QComboBox>(window.favourites);
    box.setFocus(Qt::TabFocusReason);
    box.showPopup();
    QTest::keyClick(box.view(), Qt::Key_Down);
    QTest::keyClick(box.view(), Qt::Key_Return);
    settle();
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    QTest::keyClick(menu, Qt::Key_Down);
    QTest::keyClick(menu, Qt::Key_Return);
    settle();
    EXPECT_NE(station.deck_ring.deck(1).path.find("favori"), std::string::npos);
    EXPECT_TRUE(window_has_keyboard());
}

TEST_F(KeyboardOfTheDesk, GoesToTheWindowWhenItsPartCantBeReachedAnyMore) {
    window.deck(1).stop.enabled = true;
    settle();
    focus(window.deck(1).stop);
    window.deck(1).stop.enabled = false;
    settle();
    EXPECT_TRUE(window_has_keyboard());
}

TEST_F(KeyboardOfTheDesk, GoesToTheWindowWhenItsPartIsHidden) {
    window.show_sliders(true);
    settle();
    focus(window.deck(1).slider);
    window.show_sliders(false);
    settle();
    EXPECT_TRUE(window_has_keyboard());
}

TEST_F(KeyboardOfTheDesk, GoesToTheWindowWhenTheOverlapHasBeenTyped) {
    focus(window.overlap);
    press_return();
    EXPECT_TRUE(window_has_keyboard());
}

TEST_F(KeyboardOfTheDesk, GoesToTheWindowByAPressOnItsGround) {
    focus(window.overlap);
    QTest::mouseClick(&main_view(), Qt::LeftButton, {}, {2, main_view().height() - 2});
    settle();
    EXPECT_TRUE(window_has_keyboard());
}

TEST_F(KeyboardOfTheDesk, IsTheListsWhereItsKeyBringsItForward) {
    station.list_window.show();
    settle();
    take_keyboard(&main_view());
    station.main_window.ouvrir_liste.click();
    settle();
    EXPECT_EQ(QApplication::activeWindow(), &widget_of(station.list_window));
}

TEST_F(KeyboardOfTheDesk, TypesIntoTheOverlapAlone) {
    std::u32string seen;
    window.on_key_press = [&](char32_t c) { seen += c; };
    focus(window.overlap);
    type(u"7");
    EXPECT_EQ(seen, U"");
}

TEST_F(KeyboardOfTheDesk, SpaceReturnAndEscapeAtEachSecondNeverCutTheAir) {
    std::vector<enreg_liste> records;
    for (const char* name : {"a", "b", "c", "d", "e"}) {
        const std::string path = std::string{"C:\\Musique\\"} + name + ".mp3";
        machine.add_track(path, 60);
        records.push_back(record_of(path, "60.00"));
    }
    open_list("C:\\Listes\\soir.dfm", records);
    rows().select(1);
    station.list_window.defined_end_mode.click();
    station.list_window.play_list.click();
    for (int second = 1; second < 200; ++second) {
        machine.run_for(Frames{48000});
        settle();
        press_space();
        press_return();
        machine.dialogs.expect_box("Confirmer la fermeture", Answer::no);
        key(Qt::Key_Escape, "\x1b");
        EXPECT_TRUE(sounds(1) || sounds(2) || sounds(3)) << second;
    }
    EXPECT_EQ(transitions(), 3);
}

TEST_F(KeyboardOfTheDesk, SpaceBarDoesntStopTheDeckOnTheAir) {
    play(1);
    focus(window.deck(1).stop);
    press_space();
    EXPECT_TRUE(sounds(1));
}

TEST_F(KeyboardOfTheDesk, SpaceBarDoesntOpenOnTheDeckOnTheAir) {
    play(1);
    window.deck(1).open.enabled = true;
    settle();
    focus(window.deck(1).open);
    press_space();
    EXPECT_TRUE(machine.dialogs.complaints().empty());
    EXPECT_TRUE(sounds(1));
}

TEST_F(KeyboardOfTheDesk, ReturnStopsTheDeckOnTheAir) {
    play(1);
    focus(window.deck(1).stop);
    press_return();
    EXPECT_FALSE(sounds(1));
}

TEST_F(KeyboardOfTheDesk, SpaceBarStopsAnotherDeck) {
    load(2);
    play(1);
    play_over(2);
    focus(window.deck(2).stop);
    press_space();
    EXPECT_FALSE(sounds(2));
}

TEST_F(KeyboardOfTheDesk, SpaceBarThatWasDownWhenTheDeckCameOnTheAirDoesntStopIt) {
    play(1);
    load(2);
    play_over(2);
    focus(window.deck(2).stop);
    QTest::sendKeyEvent(QTest::Press, main_view().windowHandle(), Qt::Key_Space, " ", Qt::NoModifier);
    station.chain.lecteur_en_cours = 2;
    QTest::sendKeyEvent(QTest::Release, main_view().windowHandle(), Qt::Key_Space, " ", Qt::NoModifier);
    settle();
    EXPECT_TRUE(sounds(2));
}

TEST_F(KeyboardOfTheDesk, SpaceBarInAQuickLoadBoxOpensItsMenu) {
    focus(window.jingles);
    press_space();
    auto* menu = QApplication::activePopupWidget();
    ASSERT_NE(menu, nullptr);
    EXPECT_EQ(menu->objectName(), "char_F");
    menu->close();
}

TEST_F(KeyboardOfTheDesk, MenuOfAQuickLoadBoxOpensUnderIt) {
    QWidget& box = focus(window.favourites);
    press_space();
    auto* menu = QApplication::activePopupWidget();
    ASSERT_NE(menu, nullptr);
    EXPECT_EQ(menu->pos().x(), box.mapToGlobal(QPoint{}).x());
    menu->close();
}

} // namespace sonarelle
