// The main window: its modes, its status line, its menus and what stands for them.
#include "desktop/main_view.h"

#include <QMenuBar>
#include <QTest>

#include "desktop/station_views.h"

namespace sonarelle {

namespace {

class MainWindow : public StationViews {
protected:
    MainWindow() { show_windows(); }

    [[nodiscard]] Antenne_FM& main() { return station.main_window; }
    [[nodiscard]] StationLabel& label(const std::string& name) { return part<StationLabel>(main_view(), name); }
    [[nodiscard]] bool lamp_is_lit(const Image& lamp) {
        return count_of(seen_in_window(part(main_view(), lamp.name())), studio::air) > 20;
    }
    /// A text of the view that stands anywhere in the window.
    [[nodiscard]] bool says(const QString& text) {
        const auto labels = parts_of<StationLabel>(main_view());
        return std::ranges::any_of(labels, [&](const StationLabel* shown) { return shown->text() == text; });
    }
};

} // namespace

TEST_F(MainWindow, ChainHasOneIndicatorThatFollowsItsOption) {
    main().mix_titles.show_value(true);
    settle();
    EXPECT_TRUE(lamp_is_lit(main().deck_chain_lamp));
    EXPECT_FALSE(lamp_is_lit(main().list_chain_lamp));
    main().mix_list.show_value(true);
    settle();
    EXPECT_FALSE(lamp_is_lit(main().deck_chain_lamp));
    EXPECT_TRUE(lamp_is_lit(main().list_chain_lamp));
}

TEST_F(MainWindow, PictureOfAChainCantContradictIt) {
    main().mix_list.show_value(true);
    settle();
    main().deck_chain_lamp.picture = "bouton_noir_petitdoux.jpg";
    main().list_chain_lamp.picture = "";
    settle();
    EXPECT_TRUE(lamp_is_lit(main().list_chain_lamp));
    EXPECT_FALSE(lamp_is_lit(main().deck_chain_lamp));
}

TEST_F(MainWindow, LampAndWordsOfAChainBothChooseIt) {
    int lamp_presses = 0;
    int word_presses = 0;
    main().list_chain_lamp.on_click = [&] { ++lamp_presses; };
    main().mix_list.on_click = [&] { ++word_presses; };
    part<QAbstractButton>(main_view(), "Image13").click();
    part<QRadioButton>(main_view(), "coche3").click();
    EXPECT_EQ(lamp_presses, 1);
    EXPECT_EQ(word_presses, 1);
}

TEST_F(MainWindow, LampOfAChainStaysWithTheChainThatWasChosenByIt) {
    main().mix_list.set_value(true);
    part<QAbstractButton>(main_view(), "Image12").click();
    settle();
    EXPECT_TRUE(main().mix_titles.value());
    EXPECT_TRUE(lamp_is_lit(main().deck_chain_lamp));
    part<QAbstractButton>(main_view(), "Image13").click();
    settle();
    EXPECT_TRUE(main().mix_list.value());
    EXPECT_TRUE(lamp_is_lit(main().list_chain_lamp));
}

TEST_F(MainWindow, OutputIsTold) {
    desktop->show_output("sortie : la carte son joue", false);
    EXPECT_EQ(label("output").text(), "sortie : la carte son joue");
    const QColor calm = ink_in(seen_in_window(label("output")));
    desktop->show_output("sortie : aucune carte son", true);
    settle();
    EXPECT_TRUE(is_near(ground_in(seen_in_window(label("output"))), studio::trouble_fill));
    EXPECT_GE(contrast_in(seen_in_window(label("output"))), readable);
    desktop->show_output("sortie : la carte son joue", false);
    settle();
    EXPECT_EQ(ink_in(seen_in_window(label("output"))), calm);
}

TEST_F(MainWindow, StatusLineSaysSinceWhenTheAirIsSilent) {
    AirLook look;
    look.silence = "00:12";
    look.silent_since = "10:53:50";
    main_view().show_air(look);
    EXPECT_TRUE(label("status_silence").isVisible());
    EXPECT_EQ(label("status_silence").text(), "Silence à l'antenne depuis 10:53:50");
    main_view().show_air({});
    EXPECT_FALSE(label("status_silence").isVisible());
}

TEST_F(MainWindow, StatusLineHasRoomForEachSentenceOfTheOutputOnTheSmallestScreen) {
    main_view().resize(1000, 560);
    station.chain.nb_fichiers_ecoutes = 32767;
    main().chain_status.caption = "Play 1 : liste mix a 3599";
    const QString gaps = "sortie : son arrivé trop tard 12 fois, 3.20 s de silence depuis le lancement";
    for (const auto& [text, is_trouble] :
         {std::pair{QString{"sortie : aucune carte son, cadence de l'horloge"}, true}, {gaps, false}}) {
        desktop->show_output(text.toStdString(), is_trouble);
        settle();
        const StationLabel& line = label("output");
        EXPECT_LE(line.fontMetrics().horizontalAdvance(text), line.width() - 4) << text.toStdString();
    }
}

TEST_F(MainWindow, FilesPlayedAreCounted) {
    station.chain.nb_fichiers_ecoutes = 41;
    main().deck(1).title.caption = "Titre";
    settle();
    EXPECT_TRUE(says("Nombre de fichiers lus : 41"));
}

TEST_F(MainWindow, DecksAreToldAgainWhenTheOverlapChanges) {
    main().deck(1).progress.maximum = 100;
    station.settings.mix_courant = 10;
    main().deck(1).counter.caption = "90";
    main().deck(1).title.caption = "titre";
    station.deck_ring.deck(1).path = "C:\\titre.mp3";
    station.chain.lecteur_en_cours = 1;
    settle();
    auto& bar = part(main_view(), main().deck(1).progress.name());
    const auto at = [&](int second) {
        return seen_in_window(bar).pixelColor(second * bar.width() / 100, bar.height() / 2);
    };
    EXPECT_TRUE(is_near(at(80), studio::next)) << at(80).name().toStdString();
    station.settings.mix_courant = 30;
    main().overlap.set_text("30");
    settle();
    EXPECT_TRUE(is_near(at(60), studio::next));
    EXPECT_TRUE(is_near(at(90), studio::trouble));
}

TEST_F(MainWindow, FrameNamesWhatIsOnTheAir) {
    main().caption = "Sonarelle : le mixage";
    settle();
    EXPECT_EQ(main_view().windowTitle(), "Sonarelle : le mixage");
    main_view().show_title("Sonarelle : Matin");
    main().caption = "Sonarelle : un autre";
    updates.flush(); // and no second passes, which would tell the air anew
    EXPECT_EQ(main_view().windowTitle(), "Sonarelle : Matin");
    main_view().show_title({});
    EXPECT_EQ(main_view().windowTitle(), "Sonarelle : un autre");
}

TEST_F(MainWindow, LabelsStandForTheMenuBarAndOpenItsMenus) {
    EXPECT_TRUE(main_view().menu_bar().isVisible());
    main().click();
    settle();
    EXPECT_FALSE(main_view().menu_bar().isVisible());
    EXPECT_TRUE(label("Label12").isVisible());
    QTest::mouseClick(&label("Label12"), Qt::LeftButton);
    settle();
    QWidget* menu = QApplication::activePopupWidget();
    ASSERT_NE(menu, nullptr);
    menu->close();
}

TEST_F(MainWindow, PointerOverBareGroundGivesTheLabelsTheirColourBack) {
    station.settings.coul_label = 0x808080;
    main().click();
    settle();
    main().display_label.mouse_move();
    ASSERT_NE(main().display_label.fore_colour.get(), 0x808080);
    QTest::mouseMove(&main_view(), {3, main_view().height() / 2});
    QMouseEvent move{QEvent::MouseMove, QPointF{3, 300}, QPointF{3, 300}, Qt::NoButton, Qt::NoButton, {}};
    QCoreApplication::sendEvent(&main_view(), &move);
    EXPECT_EQ(main().display_label.fore_colour.get(), 0x808080);
}

TEST_F(MainWindow, PointerThatLeavesALabelGivesItsColourBack) {
    station.settings.coul_label = 0x808080;
    main().click();
    settle();
    point_at(label("Label15"));
    ASSERT_NE(main().display_label.fore_colour.get(), 0x808080);
    leave(label("Label15"));
    EXPECT_EQ(main().display_label.fore_colour.get(), 0x808080);
}

TEST_F(MainWindow, PointerOverTheGroundsOfItsPartsIsOverTheWindow) {
    int moves = 0;
    main().on_mouse_move = [&] { ++moves; };
    std::vector<QWidget*> grounds{&main_view().content(), &part(main_view(), "air_header"),
                                  label("Label12").parentWidget()};
    for (Panel* panel : parts_of<Panel>(main_view()))
        grounds.push_back(panel);
    for (QWidget* ground : grounds) {
        moves = 0;
        QMouseEvent move{QEvent::MouseMove, QPointF{2, 2}, QPointF{2, 2}, Qt::NoButton, Qt::NoButton, {}};
        QCoreApplication::sendEvent(ground, &move);
        EXPECT_EQ(moves, 1) << ground->objectName().toStdString();
    }
}

TEST_F(MainWindow, BannerIsSeenWholeWhileNothingIsWrong) {
    QWidget& banner = part(main_view(), main().banner.name());
    main_view().resize(1920, 672);
    settle();
    EXPECT_TRUE(banner.isVisible());
    EXPECT_EQ(banner.size(), QSize(475, 40));
    EXPECT_EQ(banner.visibleRegion().boundingRect().size(), QSize(475, 40));
    desktop->show_output("sortie : aucune carte son", true);
    settle();
    EXPECT_FALSE(banner.isVisible());
    desktop->show_output("sortie : la carte son joue", false);
    settle();
    EXPECT_TRUE(banner.isVisible());
}

TEST_F(MainWindow, SlidersAreTurnedSoThatFullIsAtTheTop) {
    auto& slider = part<QSlider>(main_view(), main().deck(1).slider.name());
    EXPECT_TRUE(slider.invertedAppearance());
    EXPECT_TRUE(slider.invertedControls());
    EXPECT_EQ(slider.orientation(), Qt::Vertical);
}

TEST_F(MainWindow, SignsOfTheOverlapHaveNamesForTheScreenReader) {
    const auto name_of = [this](const Control& control) {
        return part(main_view(), control.name()).accessibleName().toStdString();
    };
    EXPECT_EQ(name_of(main().overlap_less), "Superposition moins une seconde");
    EXPECT_EQ(name_of(main().overlap_more), "Superposition plus une seconde");
    EXPECT_EQ(name_of(main().overlap), "Superposition en secondes");
}

TEST_F(MainWindow, ArrowKeysInTheFieldTakeTheStepsOfTheOverlap) {
    auto& field = part<QLineEdit>(main_view(), main().overlap.name());
    main().overlap_steps.set_value(6);
    QTest::keyClick(&field, Qt::Key_Up);
    EXPECT_EQ(main().overlap_steps.value(), 7);
    QTest::keyClick(&field, Qt::Key_Down);
    QTest::keyClick(&field, Qt::Key_Down);
    EXPECT_EQ(main().overlap_steps.value(), 5);
}

TEST_F(MainWindow, NoControlIsMissing) {
    for (const Control* control : main().controls())
        EXPECT_TRUE(control->kind() == ControlKind::menu_item || main_view().is_bound(*control)) << control->name();
}

TEST_F(MainWindow, NothingStandsOutsideOfItAtItsLeastSize) {
    main_view().resize(main_view().minimumSize());
    settle();
    for (const QWidget* child : main_view().content().findChildren<QWidget*>()) {
        const bool is_inside = main_view().rect().contains(QRect{child->mapTo(&main_view(), QPoint{}), child->size()});
        EXPECT_TRUE(!child->isVisible() || child->size().isEmpty() || is_inside) << child->objectName().toStdString();
    }
}

} // namespace sonarelle
