// The station's own menus as the operator sees them.
#include <QMenu>

#include "desktop/menu_style.h"
#include "desktop/pixels.h"
#include "desktop/qt_text.h"
#include "desktop/station_views.h"
#include "desktop/text_size.h"

namespace sonarelle {

namespace {

class MenusOfTheStation : public StationViews {
protected:
    MenusOfTheStation() { show_windows(); }

    [[nodiscard]] QAction& entry(MenuItem& item) { return main_view().menus().action(item); }
    [[nodiscard]] QString words_of(MenuItem& item) { return plain_caption(from_qt(entry(item).text())); }
    /// A menu as it is seen while it is open.
    [[nodiscard]] QMenu& opened(MenuItem& item) {
        QMenu& menu = *main_view().menus().menu(item);
        menu.popup({0, 0});
        settle();
        return menu;
    }
    [[nodiscard]] QImage picture_of(MenuItem& menu, MenuItem& item) {
        QMenu& shown = opened(menu);
        const QImage picture = seen(shown).copy(shown.actionGeometry(&entry(item)));
        shown.close();
        return picture;
    }
    /// How much ink stands left of an entry's words.
    [[nodiscard]] int mark_of(MenuItem& menu, MenuItem& item) {
        const QImage picture = picture_of(menu, item);
        return count_of(picture.copy(0, 0, scaled(28), picture.height()), studio::text);
    }
    void offer_outputs() {
        desktop->offer_outputs({[] { return std::vector<std::string>{"Studio", "Salon"}; }, [] { return ""; }, {}});
    }
    [[nodiscard]] static QList<QAction*> entries_of(const QMenu& menu) {
        QList<QAction*> entries = menu.actions();
        entries.removeIf([](const QAction* entry) { return entry->isSeparator(); });
        return entries;
    }
    [[nodiscard]] std::vector<QMenu*> all_menus() {
        std::vector<QMenu*> all;
        for (QWidget* view : {static_cast<QWidget*>(&main_view()), static_cast<QWidget*>(&list_view())})
            for (QMenu* menu : view->findChildren<QMenu*>())
                all.push_back(menu);
        return all;
    }

    Antenne_FM& window = station.main_window;
};

} // namespace

TEST_F(MenusOfTheStation, EntryThatOpensABoxEndsInDots) {
    EXPECT_EQ(words_of(window.pre_char), "Paramètres…");
    EXPECT_EQ(words_of(window.nom_radio), "Nom de votre radio : …");
    window.nom_radio.caption = "Nom de votre radio : Antenne";
    settle();
    EXPECT_EQ(words_of(window.nom_radio), "Nom de votre radio : Antenne…");
    EXPECT_EQ(window.nom_radio.caption.get(), "Nom de votre radio : Antenne");
    EXPECT_EQ(words_of(window.lire_1), "Play 1");
}

TEST_F(MenusOfTheStation, EntryWhoseCaptionHasDotsGetsNoMore) {
    window.Quitter_.caption = "Quitter...";
    settle();
    EXPECT_EQ(words_of(window.Quitter_), "Quitter...");
}

TEST_F(MenusOfTheStation, EachEntryHasALetterOfItsOwnInItsMenu) {
    offer_outputs();
    for (QMenu* menu : all_menus()) {
        QString letters;
        for (const QAction* entry : entries_of(*menu)) {
            const QString text = entry->text().remove("&&");
            const auto mark = text.indexOf('&');
            ASSERT_GE(mark, 0) << text.toStdString();
            EXPECT_FALSE(letters.contains(text[mark + 1], Qt::CaseInsensitive)) << text.toStdString();
            letters += text[mark + 1];
        }
    }
}

TEST_F(MenusOfTheStation, WhatDeletesStandsAloneAtTheEnd) {
    offer_outputs();
    for (QMenu* menu : all_menus()) {
        const auto entries = menu->actions();
        const auto deletes = [](const QAction* entry) { return entry->property(entry_destroys).toBool(); };
        const auto first = std::ranges::find_if(entries, deletes);
        if (first == entries.end())
            continue;
        EXPECT_TRUE(first != entries.begin() && (*std::prev(first))->isSeparator()) << menu->objectName().toStdString();
        EXPECT_TRUE(std::all_of(first, entries.end(), deletes)) << menu->objectName().toStdString();
    }
}

TEST_F(MenusOfTheStation, LetterStaysWhenACaptionChanges) {
    window.A_glisser_déplacer.caption = "Ne pas autoriser sur la liste, le glisser / déplacer";
    settle();
    EXPECT_TRUE(entry(window.A_glisser_déplacer).text().contains('&'));
}

TEST_F(MenusOfTheStation, ViewThatIsInForceHasTheOnlyDot) {
    window.affiche_tout.click();
    settle();
    for (MenuItem* view : window.views())
        EXPECT_EQ(mark_of(window.affiche, *view) > 0, view == &window.affiche_tout) << view->name();
}

TEST_F(MenusOfTheStation, SwitchHasACheckAndAChoiceADot) {
    window.pre_char.checked = true; // a switch by its place in no group
    window.affiche_tout.click();
    settle();
    EXPECT_NE(entry(window.affiche_tout).actionGroup(), nullptr);
    EXPECT_EQ(entry(window.pre_char).actionGroup(), nullptr);
    EXPECT_NE(mark_of(window.Option_, window.pre_char), mark_of(window.affiche, window.affiche_tout));
    EXPECT_GT(mark_of(window.Option_, window.pre_char), 0);
}

TEST_F(MenusOfTheStation, ChoiceThatIsPressedAgainStays) {
    window.affiche_tout.click();
    settle();
    entry(window.affiche_tout).trigger();
    settle();
    EXPECT_TRUE(entry(window.affiche_tout).isChecked());
}

TEST_F(MenusOfTheStation, EntryThatDeletesIsRedUnderAWarning) {
    EXPECT_GT(count_of(picture_of(window.Option_, window.A_purger_registre), studio::trouble_text), 60);
    EXPECT_EQ(count_of(picture_of(window.Option_, window.pre_char), studio::trouble_text), 0);
}

TEST_F(MenusOfTheStation, ShortcutStandsAtTheEnd) {
    const QImage with = picture_of(window.lire_play, window.lire_1);
    const QImage without = picture_of(window.lire_play, window.A_décharge_1);
    const auto end_of = [](const QImage& picture) {
        return picture.copy(picture.width() - scaled(32), 0, scaled(32), picture.height());
    };
    EXPECT_GT(contrast_in(end_of(with)), readable);
    EXPECT_LT(contrast_in(end_of(without)), 1.2);
}

TEST_F(MenusOfTheStation, LongPathIsCutInItsMiddleAndToldWhole) {
    const std::string path = "C:\\" + std::string(200, 'a') + "\\Jingles du matin";
    window.A_def_jingles.caption = "Définir le chemin des jingles : " + path;
    settle();
    const QString words = words_of(window.A_def_jingles);
    EXPECT_TRUE(words.startsWith("Définir le chemin des jingles : C:\\a")) << words.toStdString();
    EXPECT_TRUE(words.endsWith("matin…")) << words.toStdString();
    EXPECT_TRUE(entry(window.A_def_jingles).toolTip().contains(to_qt(path)));
    QMenu& menu = opened(window.Option_);
    EXPECT_LT(menu.width(), scaled(600));
    menu.close();
}

TEST_F(MenusOfTheStation, EveryEntryHasTheRoomOfItsWordsAndReads) {
    for (MenuItem* top : window.menu_bar) {
        QMenu& menu = opened(*top);
        for (MenuItem* item : top->entries()) {
            const QRect area = menu.actionGeometry(&entry(*item));
            const int words = menu.fontMetrics().horizontalAdvance(words_of(*item));
            const int shortcut =
                menu.fontMetrics().horizontalAdvance(entry(*item).shortcut().toString(QKeySequence::NativeText));
            EXPECT_GE(area.width(), scaled(42) + words + shortcut) << item->name();
            EXPECT_GE(contrast_in(seen(menu).copy(area)), readable) << item->name();
        }
        menu.close();
    }
}

TEST_F(MenusOfTheStation, AllLookAlike) {
    for (QMenu* menu : all_menus()) {
        if (menu->isEmpty())
            continue;
        menu->popup({0, 0});
        settle();
        EXPECT_TRUE(is_near(ground_in(seen(*menu)), studio::card)) << menu->objectName().toStdString();
        menu->close();
    }
}

} // namespace sonarelle
