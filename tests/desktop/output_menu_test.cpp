// The sound outputs in the option menu.
#include <QMenu>

#include "desktop/menu_style.h"
#include "desktop/qt_text.h"
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

    [[nodiscard]] QMenu& options() { return *main_view().menus().menu(station.main_window.Option_); }
    /// The place of the outputs among the options.
    [[nodiscard]] qsizetype place() {
        const auto entries = options().actions();
        const auto is_of_outputs = [](const QAction* entry) {
            return entry->menu() != nullptr && entry->menu()->objectName() == "Sortie_audio";
        };
        return std::ranges::find_if(entries, is_of_outputs) - entries.begin();
    }
    /// The entries as the operator sees them on opening the menu.
    QList<QAction*> entries() {
        QMenu* menu = options().actions().at(place())->menu();
        menu->popup({});
        menu->close();
        return menu->actions();
    }
    QStringList captions() {
        QStringList all;
        for (const QAction* entry : entries())
            all += plain_caption(from_qt(entry->text()));
        return all;
    }
    QStringList marked() {
        QStringList all;
        for (const QAction* entry : entries())
            if (entry->isChecked())
                all += plain_caption(from_qt(entry->text()));
        return all;
    }

    std::vector<std::string> cards{"Studio", "R&D"};
    std::string chosen;
};

} // namespace

TEST_F(OutputMenu, HangsBetweenTwoLinesAboveWhatDeletes) {
    const auto entries = options().actions();
    EXPECT_TRUE(entries.at(place() - 1)->isSeparator());
    EXPECT_TRUE(entries.at(place() + 1)->isSeparator());
    EXPECT_TRUE(entries.at(place() + 2)->property(entry_destroys).toBool());
    EXPECT_EQ(plain_caption(from_qt(entries.at(place())->text())), "Sortie audio");
}

TEST_F(OutputMenu, EachOutputHasALetterOfItsOwn) {
    QString letters;
    for (const QAction* entry : entries()) {
        const QString text = entry->text().remove("&&");
        ASSERT_TRUE(text.contains('&')) << text.toStdString();
        letters += text[text.indexOf('&') + 1];
    }
    EXPECT_EQ(letters.toUpper(), "STR");
}

TEST_F(OutputMenu, EntriesAreAskedForEachTimeAndStandOnce) {
    entries();
    EXPECT_EQ(captions(), (QStringList{"Sortie par défaut", "Studio", "R&D"}));
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
    EXPECT_EQ(captions(), (QStringList{"Sortie par défaut", "Studio", "R&D"}));
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
