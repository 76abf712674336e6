// The control window of the draws, as it is seen.
#include "desktop/draw_view.h"

#include <QListWidget>

#include "desktop/layout_check.h"
#include "desktop/whole_desk_fixture.h"

namespace sonarelle {

namespace {

class DrawsOnView : public WholeDesk {
protected:
    /// A list in random order at its first load step, and the window.
    QWidget& show_after_a_draw() {
        put_list("C:\\Sonarelle\\jour.dfm", 20);
        machine.dialogs.expect_open("C:\\Sonarelle\\jour.dfm");
        station.list_window.A_liste.click();
        station.list_window.random_mode.click();
        station.list_window.play_list.click();
        machine.run_for(seconds(190));
        window.Afficher_C_aleatoire.click();
        settle();
        return widget_of(station.draw_window);
    }
    [[nodiscard]] QListWidget& list(const ListBox& box) {
        return *widget_of(station.draw_window).findChild<QListWidget*>(QString::fromStdString(box.name()));
    }
};

} // namespace

TEST_F(DrawsOnView, ComeUpByTheirMenuEntry) {
    EXPECT_TRUE(show_after_a_draw().isVisible());
}

TEST_F(DrawsOnView, HaveRoomForAllThatIsWritten) {
    QWidget& view = show_after_a_draw();
    for (const QSize size : {view.minimumSize(), QSize{1000, 700}}) {
        view.resize(size);
        settle();
        for (const QWidget* part : parts_on_view(view)) {
            EXPECT_TRUE(is_whole(*part)) << name_of(*part);
            EXPECT_TRUE(view.rect().contains(place_in(*part, view))) << name_of(*part);
        }
    }
}

TEST_F(DrawsOnView, ShowTheTableAndTheNewestDraw) {
    show_after_a_draw();
    EXPECT_EQ(list(station.draw_window.played).count(), 1);
    QListWidget& draws = list(station.draw_window.draws);
    ASSERT_GE(draws.count(), 1);
    EXPECT_EQ(draws.currentRow(), draws.count() - 1);
    EXPECT_TRUE(draws.item(draws.count() - 1)->text().endsWith(" - Pas Trouvé Ok"));
}

TEST_F(DrawsOnView, ShowEachFigureBehindItsName) {
    QWidget& view = show_after_a_draw();
    station.draw_window.total.caption = "11";
    station.draw_window.jingle_total.caption = "22";
    station.draw_window.null_draws.caption = "33";
    settle();
    std::vector<std::pair<std::string, std::string>> figures;
    const StationLabel* before = nullptr;
    for (const QWidget* part : parts_on_view(view)) {
        const auto* label = dynamic_cast<const StationLabel*>(part);
        if (label != nullptr && before != nullptr && label->text().size() == 2)
            figures.emplace_back(before->text().toStdString(), label->text().toStdString());
        before = label;
    }
    EXPECT_EQ(figures, (std::vector<std::pair<std::string, std::string>>{
                           {"Déjà tirés", "11"}, {"Tirages nuls", "33"}, {"Déjà tirés", "22"}}));
}

TEST_F(DrawsOnView, AreToldApartToScreenReaders) {
    show_after_a_draw();
    for (const ListBox* played : {&station.draw_window.played, &station.draw_window.jingles_played})
        EXPECT_EQ(list(*played).accessibleName(), "Déjà tirés");
    for (const ListBox* draws : {&station.draw_window.draws, &station.draw_window.jingle_draws})
        EXPECT_EQ(list(*draws).accessibleName(), "Tirages");
}

TEST_F(DrawsOnView, AreSearchedByANumberThatIsTyped) {
    QWidget& view = show_after_a_draw();
    auto* number = view.findChild<QLineEdit*>(QString::fromStdString(station.draw_window.number.name()));
    for (const char* typed : {"7", "1"}) {
        number->selectAll();
        QTest::keyClicks(number, typed);
        settle();
    }
    EXPECT_EQ(station.draw_window.finding.text(), "Oui ce nombre existe");
}

TEST_F(DrawsOnView, TakeTypingInTheNumberAlone) {
    QWidget& view = show_after_a_draw();
    for (const QLineEdit* line : view.findChildren<QLineEdit*>())
        EXPECT_EQ(line->isReadOnly(), line->objectName() != QString::fromStdString(station.draw_window.number.name()));
}

TEST_F(DrawsOnView, GoByTheirButton) {
    QWidget& view = show_after_a_draw();
    press(*view.findChild<QWidget*>(QString::fromStdString(station.draw_window.close.name())));
    EXPECT_FALSE(view.isVisible());
}

TEST_F(DrawsOnView, LeaveTheKeyboardWithTheWindow) {
    QWidget& view = show_after_a_draw();
    take_keyboard(&view);
    EXPECT_EQ(view.focusWidget(), &view);
}

TEST_F(DrawsOnView, GoByEscape) {
    QWidget& view = show_after_a_draw();
    take_keyboard(&view);
    key(view, Qt::Key_Escape, "\x1b");
    settle();
    EXPECT_FALSE(view.isVisible());
}

TEST_F(DrawsOnView, StayAsTheyAreUnderAHandOnTheSpaceBar) {
    QWidget& view = show_after_a_draw();
    take_keyboard(&view);
    key(view, Qt::Key_Space, " ");
    settle();
    EXPECT_TRUE(view.isVisible());
    EXPECT_EQ(list(station.draw_window.played).count(), 1);
    EXPECT_EQ(station.draw_window.number.text(), "1");
}

TEST_F(DrawsOnView, GiveTheKeyboardBackWhenTheyAreClosed) {
    QWidget& view = show_after_a_draw();
    take_keyboard(&view);
    press(*view.findChild<QWidget*>(QString::fromStdString(station.draw_window.close.name())));
    take_keyboard();
    EXPECT_TRUE(window_has_keyboard());
}

} // namespace sonarelle
