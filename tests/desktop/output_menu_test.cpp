// The sound outputs in the option menu.
#include <QMenu>

#include "desktop/station_views.h"

namespace sonarelle {

namespace {

class OutputMenu : public StationViews {
protected:
    OutputMenu() {
        show_windows();
        desktop->offer_outputs(
            {[this] { return cards; }, [this] { return chosen; }, [this](const std::string& name) { chosen = name; }});
    }

    /// The entries as the operator sees them on opening the menu.
    QList<QAction*> entries() {
        QMenu* menu = main_view().menus().menu(station.main_window.Option_)->actions().back()->menu();
        menu->popup({});
        menu->close();
        return menu->actions();
    }
    QStringList captions() {
        QStringList all;
        for (const QAction* entry : entries())
            all += entry->text();
        return all;
    }
    QStringList marked() {
        QStringList all;
        for (const QAction* entry : entries())
            if (entry->isChecked())
                all += entry->text();
        return all;
    }

    std::vector<std::string> cards{"Studio", "R&D"};
    std::string chosen;
};

} // namespace

TEST_F(OutputMenu, HangsBelowALine) {
    const auto entries_of_options = main_view().menus().menu(station.main_window.Option_)->actions();
    EXPECT_TRUE(entries_of_options[entries_of_options.size() - 2]->isSeparator());
    EXPECT_EQ(entries_of_options.back()->text(), "Sortie audio");
    EXPECT_EQ(entries_of_options.back()->menu()->objectName(), "Sortie_audio");
}

TEST_F(OutputMenu, EntriesAreAskedForEachTimeAndStandOnce) {
    entries();
    EXPECT_EQ(captions(), (QStringList{"Sortie par défaut", "Studio", "R&&D"}));
    for (const QAction* entry : entries())
        EXPECT_TRUE(entry->isCheckable());
}

TEST_F(OutputMenu, ChoiceGoesThroughTheDoor) {
    const int before = events;
    entries()[1]->trigger();
    EXPECT_EQ(chosen, "Studio");
    EXPECT_GT(events, before);
}

TEST_F(OutputMenu, OffersTheDefaultOutputAndEachCard) {
    EXPECT_EQ(captions(), (QStringList{"Sortie par défaut", "Studio", "R&&D"}));
}

TEST_F(OutputMenu, MarksTheChosenOneAlone) {
    EXPECT_EQ(marked(), QStringList{"Sortie par défaut"});
    chosen = "Studio";
    EXPECT_EQ(marked(), QStringList{"Studio"});
}

TEST_F(OutputMenu, KeepsTheChosenOneWhileItsCardIsGone) {
    chosen = "Studio";
    cards = {"R&D"};
    EXPECT_EQ(marked(), QStringList{"Studio"});
}

TEST_F(OutputMenu, FollowsTheCardsThatComeAndGo) {
    EXPECT_EQ(captions().size(), 3);
    cards.clear();
    EXPECT_EQ(captions().size(), 1);
}

TEST_F(OutputMenu, PressChoosesItsOutput) {
    entries()[2]->trigger();
    EXPECT_EQ(chosen, "R&D");
    entries()[0]->trigger();
    EXPECT_EQ(chosen, "");
}

} // namespace sonarelle
