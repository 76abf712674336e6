// The list window: what it tells of the air, its rows and their menu.
#include <QWindow>
#include <map>

#include "desktop/list_window_fixture.h"
#include "desktop/qt_text.h"

namespace sonarelle {

TEST_F(ListWindow, TellsALostSoundCardInTheColourOfTrouble) {
    const ListAir air{.title = "Matin", .left = "00:00:31", .clock = "12:00:00", .silence = {}, .is_unheard = true};
    list_view().show_air(air);
    EXPECT_EQ(label(list().track_name).text(), "CARTE SON PERDUE");
    const QColor ink = ink_in(seen_in_window(label(list().track_name)));
    EXPECT_GT(ink.red(), ink.green() + 40);
    EXPECT_EQ(list_view().windowTitle(), "Matin");
}

TEST_F(ListWindow, NamesWhatIsOnTheAirWhateverItsOwnLabelSays) {
    list_view().show_air({.title = "Matin sur le port", .left = "00:00:10", .clock = "12:00:00"});
    list().track_name.caption = "Jingle bonjour";
    updates.flush();
    EXPECT_EQ(label(list().track_name).text(), "Matin sur le port");
}

TEST_F(ListWindow, NamesWhatIsLoadedWhileNothingIsOn) {
    list_view().show_air({.title = {}, .left = "00:00:00", .clock = "12:00:00"});
    list().track_name.caption = "Jingle bonjour";
    updates.flush();
    EXPECT_EQ(label(list().track_name).text(), "Jingle bonjour");
}

TEST_F(ListWindow, TellsASilenceInTheColourOfTrouble) {
    list_view().show_air({.title = {}, .left = "00:00:00", .clock = "12:00:00", .silence = "01:37"});
    EXPECT_EQ(label(list().track_name).text(), "SILENCE depuis 01:37");
    const QColor ink = ink_in(seen_in_window(label(list().track_name)));
    EXPECT_GT(ink.red(), ink.green() + 40);
    list_view().show_air({.title = "Matin", .left = "00:00:31", .clock = "12:00:00"});
    EXPECT_EQ(label(list().track_name).text(), "Matin");
    const QColor calm = ink_in(seen_in_window(label(list().track_name)));
    EXPECT_LT(calm.red(), calm.green() + 40);
}

TEST_F(ListWindow, RemainderIsTheDesksWhateverItsOwnLabelSays) {
    list_view().show_air({.title = "Matin", .left = "00:00:31", .clock = "12:00:00"});
    list().remaining.caption = "00:00:34";
    updates.flush();
    EXPECT_EQ(label(list().remaining).text(), "00:00:31");
    EXPECT_EQ(label(list().remaining).accessibleName(), "Temps restant");
}

TEST_F(ListWindow, ClockIsTheDesks) {
    list_view().show_air({.title = "Matin", .left = "00:00:31", .clock = "12:00:01"});
    list().time_of_day.caption = "12:00:00";
    updates.flush();
    EXPECT_EQ(label(list().time_of_day).text(), "12:00:01");
}

TEST_F(ListWindow, BothWindowsShowOneClockFromTheBeginning) {
    EXPECT_EQ(part<StationLabel>(main_view(), "clock").text().size(), 8);
    EXPECT_EQ(label(list().time_of_day).text(), part<StationLabel>(main_view(), "clock").text());
}

TEST_F(ListWindow, TellsTheAirAtOnce) {
    list_view().show_air({.title = "Matin", .left = "00:01:00", .clock = "10:00:00"});
    EXPECT_EQ(label(list().track_name).text(), "Matin");
    EXPECT_EQ(label(list().remaining).text(), "00:01:00");
    EXPECT_EQ(label(list().time_of_day).text(), "10:00:00");
    EXPECT_EQ(list_view().windowTitle(), "Matin");
}

TEST_F(ListWindow, BothWindowsShowOneRemainder) {
    EXPECT_EQ(label(list().remaining).text(), part<StationLabel>(main_view(), "remaining").text());
}

TEST_F(ListWindow, SaysWhatTheListIsDoingInOneLine) {
    list().list_status.caption = "En cours index N° : (7)";
    list().progress.caption = "( 63 / 69 )";
    list().file_in_use.caption = "Dans fichier M:\\demonstration.dfm";
    list().full_length_mode.show_value(true);
    settle();
    const int after_status = right_of(list().list_status);
    EXPECT_GT(label(list().progress).x(), after_status);
    EXPECT_GT(label(list().file_in_use).x(), right_of(list().progress));
    list().list_status.caption = "Nb de morceaux : 13 (9)";
    settle();
    EXPECT_NE(right_of(list().list_status), after_status);
    EXPECT_GT(label(list().progress).x(), right_of(list().list_status));
}

TEST_F(ListWindow, SaysThatTheListWasChangedBesideItsName) {
    Chip& chip = *parts_of<Chip>(list_view()).front();
    station.list.nom_sauvegarde = "C:\\Listes\\matin.dfm";
    station.list.fichier_liste = "C:\\Listes\\matin.dfm";
    station.list_document.show_file_in_use();
    settle();
    EXPECT_FALSE(chip.isVisible());
    EXPECT_EQ(label(list().file_in_use).text(), "Dans fichier C:\\Listes\\matin.dfm");
    station.list.fichier_liste = station.list_document.default_list_file().name();
    station.list_document.show_file_in_use();
    settle();
    EXPECT_TRUE(chip.isVisible());
    EXPECT_EQ(label(list().file_in_use).text(), "Dans fichier liste.dfm");
    EXPECT_EQ(chip.toolTip(), "matin.dfm : modifications non enregistrées");
    EXPECT_EQ(chip.accessibleDescription(), chip.toolTip());
}

TEST_F(ListWindow, ListThatRestsTellsNoSecond) {
    list().progress.caption = "( 63 / 69 )";
    settle();
    EXPECT_TRUE(label(list().progress).isVisible());
    list().progress.caption = "Liste";
    settle();
    EXPECT_FALSE(label(list().progress).isVisible());
}

TEST_F(ListWindow, DeckOfTheOtherChainIsNotToldWhileAListIsRead) {
    list().running_deck.caption = "Play 1 Mix lecteur";
    list().player_mode.show_value(true);
    settle();
    EXPECT_TRUE(label(list().running_deck).isVisible());
    list().random_mode.show_value(true);
    settle();
    EXPECT_FALSE(label(list().running_deck).isVisible());
}

TEST_F(ListWindow, RightButtonOpensTheRowsMenu) {
    rows_of_three();
    QMenu* menu = right_click();
    ASSERT_NE(menu, nullptr);
    EXPECT_TRUE(offers(*menu, "Charger sur Play 1"));
    menu->close();
}

TEST_F(ListWindow, MenuKeyOpensTheRowsMenuAtTheRow) {
    rows_of_three();
    table().setCurrentIndex(cell(2));
    const QPoint place = table().visualRect(cell(2)).center();
    QContextMenuEvent key{QContextMenuEvent::Keyboard, place, table().viewport()->mapToGlobal(place)};
    QCoreApplication::sendEvent(table().viewport(), &key);
    settle();
    QWidget* menu = QApplication::activePopupWidget();
    ASSERT_NE(menu, nullptr);
    EXPECT_EQ(menu->x(), table().viewport()->mapToGlobal(place).x());
    menu->close();
}

TEST_F(ListWindow, RightButtonLetsTheStationPrepareTheMenu) {
    rows_of_three();
    int opened = 0;
    list().Load_Pl.on_open = [&, before = list().Load_Pl.on_open] {
        ++opened;
        if (before)
            before();
    };
    QMenu* menu = right_click();
    ASSERT_NE(menu, nullptr);
    EXPECT_GE(opened, 1);
    menu->close();
}

TEST_F(ListWindow, LabelsOfTheFootOpenTheirMenus) {
    for (const auto& [label, entry] :
         std::initializer_list<std::pair<Label*, const char*>>{{&list().list_label, "Charger liste (C)"},
                                                               {&list().delete_label, "Effacer la liste (V)"},
                                                               {&list().add_label, "Ajouter un dossier"}}) {
        QMenu* menu = press_label(*label);
        ASSERT_NE(menu, nullptr) << label->name();
        EXPECT_TRUE(offers(*menu, entry)) << label->name();
        menu->close();
    }
}

TEST_F(ListWindow, LetterOfALabelOpensItsMenu) {
    QApplication::setActiveWindow(&list_view());
    QTest::keyClick(list_view().windowHandle(), Qt::Key_L, Qt::AltModifier);
    EXPECT_TRUE(becomes([] { return QApplication::activePopupWidget() != nullptr; }));
    QApplication::activePopupWidget()->close();
}

TEST_F(ListWindow, EveryEntryHangsInAMenu) {
    std::map<QString, int> places;
    for (const char* opened : {"of_adding", "of_deletion"})
        places[opened] = 1; // by its label
    for (const QMenu* menu : list_view().findChildren<QMenu*>())
        for (const QAction* entry : menu->actions())
            if (!entry->isSeparator())
                ++places[entry->objectName()];
    for (const Control* control : list().controls())
        if (control->kind() == ControlKind::menu_item &&
            !static_cast<const MenuItem*>(control)->caption.get().empty()) {
            EXPECT_GE(places[to_qt(control->name())], 1) << control->name();
        }
}

TEST_F(ListWindow, MenuOfTheRowsIsShortAndLeavesTheFilesToAMenuOfTheirOwn) {
    QMenu* menu = right_click();
    ASSERT_NE(menu, nullptr);
    EXPECT_LE(std::ranges::count_if(menu->actions(), [](const QAction* entry) { return !entry->isSeparator(); }), 20);
    for (const char* entry : {"Charger liste (C)", "Convertir liste V < V 6.0.0", "Supprimer le fichier"})
        EXPECT_FALSE(offers(*menu, entry)) << entry;
    EXPECT_TRUE(offers(*menu, "Fichier de liste"));
    menu->close();
}

TEST_F(ListWindow, MenuButtonOffersNoEntryWithoutWords) {
    for (const QMenu* menu : list_view().findChildren<QMenu*>())
        for (const QAction* action : menu->actions())
            EXPECT_NE(action->text().isEmpty(), !action->isSeparator()) << action->objectName().toStdString();
}

TEST_F(ListWindow, RowOnTheAirNextAndMissingAreTold) {
    rows_of_three();
    EXPECT_EQ(state(1), RowState::air);
    EXPECT_EQ(state(2), RowState::next);
    EXPECT_EQ(state(3), RowState::missing);
}

TEST_F(ListWindow, RowOnTheAirIsNeverCalledMissing) {
    rows_of_three();
    list_view().rows().set_marks({.playing = 3, .next = 0});
    EXPECT_EQ(state(3), RowState::air);
}

TEST_F(ListWindow, RowThatWaitsOnADeckIsNeverCalledMissing) {
    rows_of_three();
    list_view().rows().set_marks({.playing = 1, .next = 3});
    EXPECT_EQ(state(3), RowState::next);
}

TEST_F(ListWindow, MissingFilesAreMarkedWhenTheDiskHasAnswered) {
    rows_of_three();
    bool news = false;
    bool gone = false;
    desktop->mark_missing({[&](const std::string&) { return gone; }, [&] { return std::exchange(news, false); }});
    int repainted = 0;
    QObject::connect(table().model(), &QAbstractItemModel::dataChanged, [&] { ++repainted; });
    gone = news = true;
    EXPECT_TRUE(becomes([&] { return repainted > 0; }));
    list_view().rows().set_marks({});
    EXPECT_EQ(state(2), RowState::missing);
}

TEST_F(ListWindow, MarksThatMoveRepaintTheirRowsOnly) {
    rows_of_three();
    std::vector<int> rows;
    QObject::connect(table().model(), &QAbstractItemModel::dataChanged,
                     [&](const QModelIndex& index) { rows.push_back(index.row() + 1); });
    list_view().rows().set_marks({.playing = 2, .next = 3});
    std::ranges::sort(rows);
    EXPECT_EQ(std::ranges::count(rows, 1), 1);
    EXPECT_GE(std::ranges::count(rows, 2), 1);
    EXPECT_EQ(std::ranges::count(rows, 3), 1);
    rows.clear();
    list_view().rows().set_marks({.playing = 2, .next = 3});
    EXPECT_TRUE(rows.empty());
}

TEST_F(ListWindow, SelectedRowOnTheAirKeepsItsColour) {
    rows_of_three();
    const auto middle = [this](int row) {
        return ground_in(seen(*table().viewport()).copy(table().visualRect(cell(row))));
    };
    const QColor air = middle(1);
    const auto marks = list_view().rows().marks();
    table().setCurrentIndex(cell(1));
    settle();
    list_view().rows().set_marks(marks);
    EXPECT_EQ(middle(1), air);
    const QColor plain = middle(3);
    table().setCurrentIndex(cell(3));
    list_view().rows().is_missing = nullptr;
    settle();
    EXPECT_NE(middle(3), plain);
}

TEST_F(ListWindow, WholePathIsTheRowsToolTip) {
    rows_of_three();
    EXPECT_EQ(cell(2).data(Qt::ToolTipRole).toString(), "C:\\deux.mp3");
}

TEST_F(ListWindow, ColumnsHaveTheirCaptions) {
    const auto caption = [this](int column) {
        return table().model()->headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
    };
    EXPECT_TRUE(caption(0).startsWith("Chemin complet")) << caption(0).toStdString();
    EXPECT_EQ(caption(3), "Genre");
    EXPECT_FALSE(table().model()->headerData(0, Qt::Vertical, Qt::DisplayRole).isValid());
}

} // namespace sonarelle
