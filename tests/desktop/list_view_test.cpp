// The list window: what it tells of the air, its modes, its rows and their menu.
#include "desktop/list_view.h"

#include <QContextMenuEvent>
#include <QMenu>
#include <QTest>

#include "desktop/station_views.h"

namespace sonarelle {

namespace {

class ListWindow : public StationViews {
protected:
    ListWindow() { show_windows(); }

    [[nodiscard]] Liste_son& list() { return station.list_window; }
    [[nodiscard]] StationLabel& label(const Label& told) { return part<StationLabel>(list_view(), told.name()); }
    [[nodiscard]] QTableView& table() { return part<QTableView>(list_view(), "ListView1"); }
    [[nodiscard]] QModelIndex cell(int row, int column = 0) { return table().model()->index(row - 1, column); }

    /// The right button over the rows; the menu that it opens.
    QMenu* right_click() {
        const QPoint place = table().visualRect(cell(1)).center();
        QContextMenuEvent click{QContextMenuEvent::Mouse, place, table().viewport()->mapToGlobal(place)};
        QCoreApplication::sendEvent(table().viewport(), &click);
        settle();
        return qobject_cast<QMenu*>(QApplication::activePopupWidget());
    }
    /// What the button "Menu" opens.
    QMenu* press_menu_button() {
        const auto buttons = parts_of<StudioButton>(list_view());
        const auto button = std::ranges::find(buttons, QString{"Menu"}, &QAbstractButton::text);
        if (button != buttons.end())
            (*button)->click();
        return qobject_cast<QMenu*>(QApplication::activePopupWidget());
    }
    [[nodiscard]] static bool offers(QMenu& menu, const QString& entry) {
        return std::ranges::any_of(menu.actions(), [&](const QAction* action) { return action->text() == entry; });
    }
};

} // namespace

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

TEST_F(ListWindow, ModeHasOneIndicatorThatFollowsItsOption) {
    const std::array<std::pair<Image*, OptionButton*>, 4> modes{{{&list().player_lamp, &list().player_mode},
                                                                 {&list().random_lamp, &list().random_mode},
                                                                 {&list().defined_end_lamp, &list().defined_end_mode},
                                                                 {&list().full_length_lamp, &list().full_length_mode}}};
    for (const auto& [image, option] : modes) {
        option->show_value(true);
        settle();
        for (const auto& [lamp, other] : modes) {
            const QImage shown = seen_in_window(part(list_view(), lamp->name()));
            EXPECT_EQ(count_of(shown, studio::air) > 40, other == option) << lamp->name();
        }
    }
}

TEST_F(ListWindow, PictureOfAModeCantContradictIt) {
    list().full_length_mode.show_value(true);
    settle();
    const QImage before = seen(list_view());
    list().player_lamp.picture = "bouton_on.jpg";
    list().full_length_lamp.picture = "bouton_off.jpg";
    settle();
    EXPECT_EQ(seen(list_view()), before);
}

TEST_F(ListWindow, OptionDrawsNoMarkBesideItsLamp) {
    auto& option = part<QRadioButton>(list_view(), "Option1");
    const QImage clear = seen_in_window(option);
    list().player_mode.show_value(true);
    settle();
    EXPECT_EQ(seen_in_window(option), clear);
}

TEST_F(ListWindow, LampAndWordsOfAModeBothChooseIt) {
    int lamp_presses = 0;
    int word_presses = 0;
    list().random_lamp.on_click = [&] { ++lamp_presses; };
    list().random_mode.on_click = [&] { ++word_presses; };
    QTest::mouseClick(&part(list_view(), "Image9"), Qt::LeftButton);
    part<QRadioButton>(list_view(), "Option2").click();
    EXPECT_EQ(lamp_presses, 1);
    EXPECT_EQ(word_presses, 1);
}

TEST_F(ListWindow, LampOfAModeIsNoStopOfTheKeyboard) {
    for (const Image* lamp :
         {&list().player_lamp, &list().random_lamp, &list().defined_end_lamp, &list().full_length_lamp})
        EXPECT_EQ(part(list_view(), lamp->name()).focusPolicy(), Qt::NoFocus) << lamp->name();
}

TEST_F(ListWindow, SwitchesShowTheirPictureAndTheirWord) {
    list().jingles_status.caption = "Jingle On";
    settle();
    EXPECT_EQ(label(list().jingles_status).text(), "Jingle On");
}

TEST_F(ListWindow, RightButtonOpensTheRowsMenu) {
    rows_of_three();
    QMenu* menu = right_click();
    ASSERT_NE(menu, nullptr);
    EXPECT_TRUE(offers(*menu, "Charger sur Play 1"));
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

TEST_F(ListWindow, MenuButtonOffersEveryEntryThatHangsUnderNoOther) {
    for (QMenu* menu : list_view().findChildren<QMenu*>()) {
        if (!offers(*menu, "Charger liste (C)"))
            continue;
        EXPECT_EQ(std::ranges::count_if(menu->actions(),
                                        [](const QAction* action) { return action->text() == "Charger liste (C)"; }),
                  1);
        return;
    }
    FAIL() << "no menu offers the loading of a list";
}

TEST_F(ListWindow, MenuButtonOffersNoEntryThatHangsUnderAnother) {
    QMenu* menu = press_menu_button();
    ASSERT_NE(menu, nullptr);
    for (const MenuItem* hung : list().Convertion.entries())
        EXPECT_FALSE(offers(*menu, QString::fromStdString(hung->caption))) << hung->name();
    menu->close();
}

TEST_F(ListWindow, MenuButtonOffersNoEntryWithoutWords) {
    QMenu* menu = press_menu_button();
    ASSERT_NE(menu, nullptr);
    for (const QAction* action : menu->actions())
        EXPECT_FALSE(action->text().isEmpty()) << action->objectName().toStdString();
    menu->close();
}

TEST_F(ListWindow, RowOnTheAirNextAndMissingAreTold) {
    rows_of_three();
    const auto ground = [this](int row) { return cell(row).data(Qt::BackgroundRole).value<QColor>(); };
    EXPECT_GT(ground(1).green(), ground(1).red() + 20);
    EXPECT_GT(ground(2).red(), ground(2).blue() + 20);
    EXPECT_GT(ground(3).red(), ground(3).green() + 20);
    EXPECT_TRUE(cell(1).data(Qt::FontRole).value<QFont>().bold());
    EXPECT_FALSE(cell(2).data(Qt::FontRole).value<QFont>().bold());
}

TEST_F(ListWindow, RowOfAMissingFileIsStruckOut) {
    rows_of_three();
    EXPECT_TRUE(cell(3).data(Qt::FontRole).value<QFont>().strikeOut());
    EXPECT_FALSE(cell(1).data(Qt::FontRole).value<QFont>().strikeOut());
    EXPECT_FALSE(cell(2).data(Qt::FontRole).value<QFont>().strikeOut());
}

TEST_F(ListWindow, RowOnTheAirIsNeverCalledMissing) {
    rows_of_three();
    list_view().rows().set_marks({.playing = 3, .next = 0});
    EXPECT_FALSE(cell(3).data(Qt::FontRole).value<QFont>().strikeOut());
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
    EXPECT_TRUE(cell(2).data(Qt::FontRole).value<QFont>().strikeOut());
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
    table().setCurrentIndex(cell(1));
    settle();
    EXPECT_EQ(middle(1), air);
    const QColor plain = middle(3);
    table().setCurrentIndex(cell(3));
    list_view().rows().is_missing = nullptr;
    settle();
    EXPECT_NE(middle(3), plain);
}

TEST_F(ListWindow, FiguresStandToTheRightAndWordsToTheLeft) {
    rows_of_three();
    const auto side = [this](int column) { return cell(1, column).data(Qt::TextAlignmentRole).toInt(); };
    EXPECT_TRUE(side(0) & Qt::AlignLeft);
    EXPECT_TRUE(side(1) & Qt::AlignRight);
    EXPECT_TRUE(side(3) & Qt::AlignLeft);
    EXPECT_TRUE(side(5) & Qt::AlignRight);
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

TEST_F(ListWindow, ButtonsReachTheirImages) {
    std::vector<std::string> pressed;
    for (Image* image : {&list().play_list, &list().zap, &list().stop_decks, &list().show_playing_row}) {
        image->enabled = true;
        image->on_click = [&pressed, image] { pressed.push_back(image->name()); };
        settle();
        part<StudioButton>(list_view(), image->name()).click();
    }
    EXPECT_EQ(pressed, (std::vector<std::string>{"Image1", "Image2", "Image3", "Image4"}));
}

TEST_F(ListWindow, ButtonsOfTheAirAreLitInItsColours) {
    for (Image* image : {&list().play_list, &list().zap, &list().stop_decks})
        image->enabled = true;
    settle();
    const auto face = [this](const Image& image) { return ground_in(seen_in_window(part(list_view(), image.name()))); };
    EXPECT_TRUE(is_near(face(list().play_list), studio::air_fill, 4));
    EXPECT_TRUE(is_near(face(list().zap), studio::next, 4));
}

TEST_F(ListWindow, NoControlIsMissing) {
    for (const Control* control : list().controls())
        EXPECT_TRUE(control->kind() == ControlKind::menu_item || list_view().is_bound(*control)) << control->name();
}

} // namespace sonarelle
