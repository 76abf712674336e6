// What several controls show of one state, they show alike, whichever way the station came to it.
#include <QAction>
#include <QRadioButton>

#include "desktop/dresser.h"
#include "desktop/qt_text.h"
#include "desktop/segments.h"
#include "desktop/station_label.h"
#include "desktop/time_text.h"
#include "desktop/whole_desk_fixture.h"

namespace sonarelle {

namespace {

struct Gesture {
    const char* name;
    std::function<void()> make;
};

class OneState : public WholeDesk {
protected:
    OneState() {
        put_list("C:\\Sonarelle\\essai.dfm", 6);
        machine.dialogs.expect_open("C:\\Sonarelle\\essai.dfm");
        list.A_liste.click();
        list.show();
        station.small_player.show();
        settle();
    }

    void play_list() {
        list.rows.select(1);
        list.defined_end_mode.click();
        list.play_list.click();
        run_for(40); // from when on a zap is taken
    }
    void run_for(int seconds) {
        machine.run_for(Frames{std::int64_t{seconds} * 48000});
        settle();
    }

    [[nodiscard]] static QString text(QWidget& view, const std::string& name) {
        return dynamic_cast<StationLabel&>(*view.findChild<QWidget*>(to_qt(name))).text();
    }
    [[nodiscard]] static bool is_seen(QWidget& view, const std::string& name) {
        return view.findChild<QWidget*>(to_qt(name))->isVisible();
    }
    [[nodiscard]] bool is_lit(QWidget& view, const OptionButton& option) const {
        const auto* words = view.findChild<QRadioButton*>(to_qt(option.name()));
        const bool lit = dynamic_cast<const Segment&>(*words->parentWidget()).is_lit();
        EXPECT_EQ(lit, words->isChecked()) << option.name();
        return lit;
    }
    [[nodiscard]] bool is_marked(WindowView& view, MenuItem& item) const {
        return view.menus().action(item).isChecked();
    }
    [[nodiscard]] WindowView& view(const Window& of) { return dynamic_cast<WindowView&>(widget_of(of)); }
    /// A deck's button, as it is drawn.
    [[nodiscard]] const StudioButton& button(const Button& of) { return part<StudioButton>(of); }

    void expect_one_air() {
        const QString title = text(main_view(), "air_title");
        const QString state = text(main_view(), "air_state").section(" — ", 0, 0);
        const QString left = text(main_view(), "remaining");
        EXPECT_EQ(text(list_view, list.remaining.name()), left);
        EXPECT_EQ(text(list_view, list.time_of_day.name()), text(main_view(), "clock"));
        EXPECT_TRUE(title.isEmpty() || text(list_view, list.track_name.name()) == title) << title.toStdString();
        EXPECT_EQ(text(player_view, "player_title"), title);
        EXPECT_EQ(text(player_view, "player_state"), state);
        EXPECT_EQ(is_seen(player_view, "label1"), state != "EN ATTENTE");
        if (is_seen(player_view, "label1")) {
            EXPECT_EQ(clock_text(text(player_view, "label1").toInt()), left);
        }
    }
    /// One deck at most is the one on the air, and is told as that by its words, its play and its zap.
    void expect_one_main_deck() {
        int on_air = 0;
        for (DeckControls& deck : window.decks) {
            QWidget& card = *part(deck.play).parentWidget();
            int words = 0;
            for (QWidget* child : card.findChildren<QWidget*>())
                if (const auto* label = dynamic_cast<const StationLabel*>(child))
                    words += label->text() == "À L'ANTENNE" ? 1 : 0;
            EXPECT_EQ(button(deck.play).accent() == Accent::air, words == 1) << deck.play.name();
            EXPECT_EQ(button(deck.zap).accent() == Accent::next, words == 1) << deck.zap.name();
            on_air += words;
        }
        EXPECT_EQ(on_air, text(main_view(), "air_state").startsWith("À L'ANTENNE") ? 1 : 0);
    }
    /// Lamps and entries of one switch.
    void expect_one_mark() {
        const auto* play =
            dynamic_cast<const StudioButton*>(list_view.findChild<QWidget*>(to_qt(list.play_list.name())));
        EXPECT_EQ(play->accent() == Accent::air, !play->isEnabled());
        EXPECT_EQ(view(list).menus().action(list.lect_liste).isEnabled(), play->isEnabled());
        EXPECT_EQ(is_marked(view(window), window.aa_montrer_curseur), part(window.deck(1).slider).isVisible());
        EXPECT_NE(is_marked(view(window), window.aa_montrer_curseur),
                  is_marked(view(window), window.aa_cacher_curseur));
        EXPECT_EQ(is_marked(view(window), window.A_desacive_J),
                  text(main_view(), "air_station").contains("journal désactivé"));
    }
    /// The list's modes, the chain's entries, and the one of the list window.
    void expect_one_chain() {
        const bool from_list = is_marked(view(window), window.a_mode_predefini);
        EXPECT_NE(is_marked(view(window), window.a_mode_auto), from_list);
        EXPECT_EQ(is_marked(view(list), list.A_a_zapping), from_list);
        EXPECT_EQ(is_lit(list_view, list.player_mode), !from_list);
        int lit = 0;
        for (const OptionButton* mode :
             {&list.player_mode, &list.random_mode, &list.defined_end_mode, &list.full_length_mode})
            lit += is_lit(list_view, *mode) ? 1 : 0;
        EXPECT_EQ(lit, 1);
        EXPECT_FALSE(is_lit(main_view(), window.mix_titles) && is_lit(main_view(), window.mix_list));
    }
    void expect_one_state(const std::string& after) {
        const testing::ScopedTrace trace{__FILE__, __LINE__, after};
        settle();
        run_for(1); // the next second is told
        expect_one_air();
        expect_one_main_deck();
        expect_one_mark();
    }

    Liste_son& list = station.list_window;
    QWidget& list_view = widget_of(list);
    QWidget& player_view = widget_of(station.small_player);
};

} // namespace

TEST_F(OneState, OfTheAirIsToldAlikeThroughAProgramme) {
    expect_one_state("the start");
    play_list();
    const std::vector<Gesture> gestures{{"list on the air", [] {}},
                                        {"pause", [this] { window.key_press(U'p'); }},
                                        {"resumed", [this] { window.key_press(U'p'); }},
                                        {"next loaded", [this] { run_for(145); }},
                                        {"overlap", [this] { run_for(7); }},
                                        {"next track", [this] { run_for(40); }},
                                        {"zap", [this] { window.key_press(U'z'); }},
                                        {"faded out", [this] { run_for(10); }},
                                        {"sliders hidden", [this] { window.aa_cacher_curseur.click(); }},
                                        {"journal on", [this] { window.Active_journal1.click(); }},
                                        {"all stopped", [this] { list.stop_decks.click(); }},
                                        {"silence", [this] { run_for(4); }}};
    for (const Gesture& gesture : gestures) {
        gesture.make();
        expect_one_state(gesture.name);
    }
}

TEST_F(OneState, OfTheAirIsToldAlikeThroughASpecialMix) {
    play_list();
    machine.add_track("C:\\Musique\\jingle.mp3", 60);
    machine.dialogs.expect_open("C:\\Musique\\jingle.mp3");
    window.deck(3).open.click();
    window.deck(3).special_mix.click();
    expect_one_state("mixed over");
    run_for(30);
    expect_one_state("still mixed over");
    run_for(60);
    expect_one_state("the list goes on");
}

TEST_F(OneState, OfTheAirIsToldAlikeWhereADeckPlaysOnBesideOneThatWasStopped) {
    play_list();
    window.key_press(U'z');
    run_for(1);
    for (DeckControls& deck : window.decks)
        if (button(deck.play).accent() == Accent::air)
            deck.stop.click();
    expect_one_state("the new track stopped");
    EXPECT_TRUE(text(main_view(), "air_state").startsWith("EN LECTURE"));
}

TEST_F(OneState, OfTheChainIsMarkedAlikeByEachWayOfTheListWindow) {
    const std::vector<Gesture> ways{{"decks", [this] { list.player_mode.click(); }},
                                    {"random", [this] { list.random_mode.click(); }},
                                    {"defined end", [this] { list.defined_end_mode.click(); }},
                                    {"full length", [this] { list.full_length_mode.click(); }},
                                    {"list chain", [this] { list.A_a_zapping.click(); }},
                                    {"chain of decks", [this] { window.a_mode_auto.click(); }},
                                    {"lamp of the list", [this] { window.list_chain_lamp.click(); }},
                                    {"lamp of the decks", [this] { window.deck_chain_lamp.click(); }}};
    play_list();
    for (const Gesture& first : ways)
        for (const Gesture& second : ways) {
            first.make();
            second.make();
            settle();
            const testing::ScopedTrace trace{__FILE__, __LINE__, std::string{first.name} + ", " + second.name};
            expect_one_chain();
        }
}

} // namespace sonarelle
