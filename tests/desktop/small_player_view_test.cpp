// The small player on the screen: what it says, and its keys.
#include "desktop/small_player_view.h"

#include "desktop/pixels.h"
#include "desktop/station_label.h"
#include "desktop/whole_desk_fixture.h"

namespace sonarelle {

namespace {

class PlayerOnView : public WholeDesk {
protected:
    PlayerOnView() {
        window.a_mini.click();
        settle();
        take_keyboard(&view());
    }

    void play(const std::string& name = "titre ") {
        for (const int deck : {1, 2}) {
            const std::string path = "C:\\Musique\\" + name + std::to_string(deck) + ".mp3";
            machine.add_track(path, 100);
            machine.dialogs.expect_open(path);
            window.deck(deck).open.click();
        }
        window.deck(1).play.click();
        machine.run_for(seconds(30));
        settle();
    }
    static Frames seconds(int count) { return Frames{std::int64_t{count} * 48000}; }
    [[nodiscard]] QWidget& view() { return widget_of(station.small_player); }
    [[nodiscard]] StationLabel& label(const char* name) { return *view().findChild<StationLabel*>(name); }
    [[nodiscard]] QColor lamp() {
        for (QWidget* child : view().findChildren<QWidget*>())
            if (auto* found = dynamic_cast<Lamp*>(child))
                return seen_in_window(*found).pixelColor(found->rect().center());
        return {};
    }
    /// Whether their unit stands behind the seconds.
    [[nodiscard]] bool shows_unit() {
        return std::ranges::any_of(view().findChildren<QWidget*>(), [](const QWidget* child) {
            const auto* text = dynamic_cast<const StationLabel*>(child);
            return text != nullptr && text->text() == "s" && text->isVisible();
        });
    }
    void press(Qt::Key code, const QString& text) {
        key(view(), code, text);
        settle();
    }
    QWidget& focus(const Control& control) {
        auto& widget = *view().findChild<QWidget*>(QString::fromStdString(control.name()));
        widget.setFocus(Qt::TabFocusReason);
        return widget;
    }
    [[nodiscard]] bool sounds() { return station.deck_ring.deck(1).sounds(); }
};

} // namespace

TEST_F(PlayerOnView, SaysThatItIsOnTheAirAndWhatPlays) {
    play();
    EXPECT_EQ(label("player_state").text(), "À L'ANTENNE");
    EXPECT_EQ(label("player_title").text(), "titre 1");
}

TEST_F(PlayerOnView, TitleHasTheRoomThatTheStateLeaves) {
    play("La rue des tille");
    view().resize(view().minimumSize());
    settle();
    EXPECT_EQ(label("player_title").text(), "La rue des tille1");
    EXPECT_FALSE(label("player_title").is_cut());
}

TEST_F(PlayerOnView, SaysThatTheDeckIsPaused) {
    play();
    press(Qt::Key_P, "p");
    EXPECT_EQ(label("player_state").text(), "EN PAUSE");
}

TEST_F(PlayerOnView, ShowsNoSecondsOfADeckThatHasStopped) {
    play();
    EXPECT_TRUE(label("label1").isVisible());
    EXPECT_TRUE(shows_unit());
    press(Qt::Key_Space, " ");
    EXPECT_EQ(label("player_state").text(), "EN ATTENTE");
    EXPECT_FALSE(label("label1").isVisible());
    EXPECT_FALSE(shows_unit());
}

TEST_F(PlayerOnView, ShowsTheSecondsOfADeckThatIsPaused) {
    play();
    press(Qt::Key_P, "p");
    EXPECT_TRUE(label("label1").isVisible());
}

TEST_F(PlayerOnView, HasTheKeyboardItself) {
    EXPECT_EQ(view().focusWidget(), &view());
}

TEST_F(PlayerOnView, SpaceBarStopsWhateverButtonHasTheKeyboard) {
    play();
    focus(station.small_player.forward);
    press(Qt::Key_Space, " ");
    EXPECT_FALSE(sounds());
}

TEST_F(PlayerOnView, ReturnPressesTheButtonThatHasTheKeyboard) {
    play();
    press(Qt::Key_Space, " ");
    focus(station.small_player.play);
    press(Qt::Key_Return, "\r");
    EXPECT_TRUE(sounds());
}

TEST_F(PlayerOnView, TakesEachLetterOfItsKeysInBothCases) {
    QString seen;
    station.small_player.on_key_press = [&](char32_t c) { seen += QString::fromUcs4(&c, 1); };
    const QString letters = "sSzZlLqQpPfFaAoO";
    for (const QChar c : letters)
        press(QTest::asciiToKey(c.toLatin1()), c);
    press(Qt::Key_Escape, "\x1b");
    EXPECT_EQ(seen, letters + "\x1b");
}

TEST_F(PlayerOnView, OpensTheMainWindowsMenuWhileThatIsHidden) {
    press(Qt::Key_O, "o");
    QWidget* menu = QApplication::activePopupWidget();
    ASSERT_NE(menu, nullptr);
    EXPECT_EQ(menu->objectName(), "Option_");
    menu->close();
}

TEST_F(PlayerOnView, TellsASilenceWhateverHidesBehindIt) {
    play();
    auto& player = dynamic_cast<SmallPlayerView&>(view());
    player.show_air({.role = DeckRole::ended, .title = {}, .silence = "01:37"});
    EXPECT_EQ(label("player_state").text(), "SILENCE 01:37");
    const QColor ink = ink_in(seen_in_window(label("player_state")));
    EXPECT_GT(ink.red(), ink.green() + 40);
    player.show_air({.role = DeckRole::on_air, .title = "titre 1"});
    EXPECT_EQ(label("player_state").text(), "À L'ANTENNE");
}

TEST_F(PlayerOnView, SaysWhatIsHeardBesideTheDeckThatWasStopped) {
    play();
    window.deck(1).zap.click();
    machine.run_for(seconds(1));
    window.deck(2).stop.click();
    settle();
    ASSERT_TRUE(sounds());
    EXPECT_EQ(label("player_state").text(), "EN LECTURE");
    EXPECT_EQ(label("player_title").text(), "titre 1");
    EXPECT_TRUE(label("label1").isVisible());
}

TEST_F(PlayerOnView, SaysThatTheSoundCardIsLost) {
    play();
    desktop.show_output("carte son perdue", true);
    EXPECT_EQ(label("player_state").text(), "CARTE SON PERDUE");
    EXPECT_EQ(label("player_title").text(), "titre 1");
    EXPECT_TRUE(view().windowTitle().startsWith("CARTE SON PERDUE : titre 1, reste "));
    view().resize(view().minimumSize());
    settle();
    EXPECT_GE(label("player_state").width(), label("player_state").width_of_text());
    desktop.show_output("carte son : Studio", false);
    EXPECT_EQ(label("player_state").text(), "À L'ANTENNE");
}

TEST_F(PlayerOnView, LampHasTheColourOfTheState) {
    auto& player = dynamic_cast<SmallPlayerView&>(view());
    player.show_air({.role = DeckRole::on_air, .title = "titre 1"});
    EXPECT_TRUE(is_near(lamp(), studio::air));
    player.show_air({.role = DeckRole::paused, .title = "titre 1"});
    EXPECT_TRUE(is_near(lamp(), studio::next));
    player.show_air({.role = DeckRole::ended, .title = {}, .silence = "01:37"});
    EXPECT_TRUE(is_near(lamp(), studio::trouble));
    player.show_air({.role = DeckRole::ended, .title = {}});
    EXPECT_TRUE(is_near(lamp(), studio::field_line));
}

TEST_F(PlayerOnView, ZapIsLitOnTheAirAlone) {
    auto& zap = *view().findChild<QWidget*>(QString::fromStdString(station.small_player.next.name()));
    play();
    EXPECT_TRUE(is_near(ground_in(seen_in_window(zap)), studio::next));
    press(Qt::Key_Space, " ");
    EXPECT_FALSE(is_near(ground_in(seen_in_window(zap)), studio::next));
}

TEST_F(PlayerOnView, NamesStateTitleAndTimeOnItsFrame) {
    EXPECT_EQ(view().windowTitle(), "En attente");
    play();
    const QString seconds = label("label1").text();
    EXPECT_EQ(view().windowTitle(), "À l'antenne : titre 1, reste " + seconds + " s");
    press(Qt::Key_P, "p");
    EXPECT_TRUE(view().windowTitle().startsWith("En pause : titre 1")) << view().windowTitle().toStdString();
    auto& player = dynamic_cast<SmallPlayerView&>(view());
    player.show_air({.role = DeckRole::ended, .title = {}, .silence = "01:37"});
    EXPECT_EQ(view().windowTitle(), "SILENCE 01:37");
}

TEST_F(PlayerOnView, HoldsALongTitleAtItsLeastWidth) {
    view().resize(view().minimumSize());
    dynamic_cast<SmallPlayerView&>(view()).show_air({.role = DeckRole::on_air, .title = QString(200, u'm')});
    settle();
    EXPECT_EQ(view().width(), view().minimumWidth());
    for (const char* name : {"player_state", "player_title", "label1", "Command5"}) {
        const auto& part = *view().findChild<QWidget*>(name);
        EXPECT_TRUE(view().rect().contains(QRect{part.mapTo(&view(), QPoint{}), part.size()})) << name;
    }
    EXPECT_GE(label("label1").width(), label("label1").minimumSizeHint().width());
}

TEST_F(PlayerOnView, DrawsItsButtonsBySigns) {
    for (const char* name : {"Command1", "Command2", "Command3", "Command4", "Command5", "Command6", "Command7"}) {
        auto& button = dynamic_cast<StudioButton&>(*view().findChild<QWidget*>(name));
        EXPECT_EQ(button.text(), "") << name;
        EXPECT_NE(button.accessibleName(), "") << name;
        EXPECT_GE(contrast_in(seen_in_window(button)), readable) << name;
    }
}

} // namespace sonarelle
