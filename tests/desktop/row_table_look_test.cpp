// How a table of rows looks: its columns, its colours, its marks.
#include "desktop/pixels.h"
#include "desktop/row_table_fixture.h"
#include "desktop/text_size.h"

namespace sonarelle {

namespace {

const QColor first_ground{0x8f, 0x8f, 0x8f};
constexpr int few = 60; // pixels of text that happen to be of an edge's colour

class LookOfATable : public TableFixture {
protected:
    /// The station's colours of a table, whose rows then stand on the second.
    void wear(Colour ink, Colour ground) {
        table.fore_colour = ink;
        table.back_colour = ground;
        settle();
    }
    void wear_first_colours() { wear(0x0F0F0F, 0x8F8F8F); }
    void wear_dark_colours() { wear(0xF3F0ED, 0x1E1A17); }

    /// Rows on the air, next, missing and plain, in this order.
    void show_states() {
        fill(4);
        binding.model().is_missing = [](const std::string& path) { return path == "D:\\titre 3.mp3"; };
        binding.model().set_marks({.playing = 1, .next = 2});
        show();
    }
    [[nodiscard]] QRect place(int row, int column = 0) {
        return widget.visualRect(widget.model()->index(row - 1, column));
    }
    [[nodiscard]] int number_column() { return binding.model().number_column(); }
    [[nodiscard]] QImage cell(int row, int column = 0) { return seen(*widget.viewport()).copy(place(row, column)); }
    [[nodiscard]] QColor ground(int row) { return ground_in(cell(row)); }
    void expect_grounds(const std::array<QColor, 4>& expected) {
        for (int row = 1; row <= 4; ++row)
            EXPECT_EQ(ground(row).name().toStdString(),
                      expected[static_cast<std::size_t>(row - 1)].name().toStdString())
                << row;
    }
    /// Whether a line of the text's colour goes through the middle of a cell's text.
    [[nodiscard]] bool is_struck_out(int row, int column) {
        const QImage shown = cell(row, column);
        const QColor ink = ink_in(shown);
        for (int y = shown.height() / 3; y < shown.height() * 2 / 3; ++y) {
            int run = 0;
            for (int x = 0; x < shown.width(); ++x) {
                run = is_near(shown.pixelColor(x, y), ink, 60) ? run + 1 : 0;
                if (run > 40)
                    return true;
            }
        }
        return false;
    }
    /// How many pixels of a row's number aren't its ground: those of its sign and of its figures.
    [[nodiscard]] int drawn_in_number(int row) {
        const QImage shown = cell(row, number_column());
        return shown.width() * (shown.height() - 1) -
               count_of(shown.copy(0, 0, shown.width(), shown.height() - 1), ground_in(shown));
    }
};

} // namespace

TEST_F(LookOfATable, StatesOfRowsHaveTheirGroundsOnTheFirstColours) {
    wear_first_colours();
    show_states();
    expect_grounds({studio::air_row, studio::next_row, studio::missing_row, first_ground});
}

TEST_F(LookOfATable, StatesOfRowsHaveTheirGroundsOnADarkList) {
    wear_dark_colours();
    show_states();
    expect_grounds({studio::air_fill, studio::next_row_dark, studio::missing_row_dark, QColor{0x17, 0x1a, 0x1e}});
}

TEST_F(LookOfATable, EveryStateReadsInEveryColour) {
    for (const auto& [ink, ground] : {std::pair{0x0F0F0F, 0x8F8F8F},
                                      {0xF3F0ED, 0x1E1A17},
                                      {16711680, 8454016},
                                      {65535, 33023},
                                      {16777152, 16744703},
                                      {16777215, 16033024},
                                      {0, 0xFFFFFF}}) {
        const QColor told_ground = ground_for(ink, ground, studio::well);
        const RowColours colours{told_ground, legible(to_qt(ink, studio::text), told_ground)};
        EXPECT_GE(contrast(colours.heading(), colours.head()), readable) << ink;
        for (const RowState state : {RowState::plain, RowState::air, RowState::next, RowState::missing})
            for (const bool selected : {false, true})
                for (const bool over : {false, true}) {
                    const auto look = colours.look(state, selected, over);
                    EXPECT_GE(contrast(look.ink, look.ground), readable)
                        << ink << " on " << ground << " state " << static_cast<int>(state);
                }
    }
}

TEST_F(LookOfATable, SignStandsBesideTheNumberOfARowThatIsntPlain) {
    wear_first_colours();
    show_states();
    const int plain = drawn_in_number(4);
    for (const int row : {1, 2, 3})
        EXPECT_GT(drawn_in_number(row), plain + 20) << row;
}

TEST_F(LookOfATable, SignsOfADarkListAreInTheirColours) {
    wear_dark_colours();
    show_states();
    EXPECT_GT(count_of(cell(1, number_column()), studio::air), 20);
    EXPECT_GT(count_of(cell(2, number_column()), studio::next), 10);
    EXPECT_EQ(count_of(cell(4, number_column()), studio::air), 0);
}

TEST_F(LookOfATable, PathOfAMissingFileIsStruckOutAndNothingElse) {
    wear_first_colours();
    show_states();
    EXPECT_TRUE(is_struck_out(3, 0));
    EXPECT_FALSE(is_struck_out(3, 2));
    for (const int row : {1, 2, 4})
        EXPECT_FALSE(is_struck_out(row, 0)) << row;
}

TEST_F(LookOfATable, LongPathShowsItsBeginningAndItsEnd) {
    fill(1); // which has the edge of the table
    const std::string folder = "\\" + std::string(200, 'a') + "\\";
    for (const std::string& path :
         {"D:" + folder + "matin.mp3", "D:" + folder + "soir.mp3", "E:" + folder + "matin.mp3"})
        table.append({path});
    settle();
    show();
    EXPECT_NE(cell(2), cell(3)) << "the names of their files differ";
    EXPECT_NE(cell(2), cell(4)) << "their drives differ";
}

TEST_F(LookOfATable, StateIsToldInWordsToTheScreenReader) {
    show_states();
    const auto said = [this](int row) {
        return widget.model()->index(row - 1, number_column()).data(Qt::AccessibleTextRole).toString().toStdString();
    };
    EXPECT_EQ(said(1), "1, à l'antenne");
    EXPECT_EQ(said(2), "2, suivant");
    EXPECT_EQ(said(3), "3, fichier absent");
    EXPECT_EQ(said(4), "4");
}

TEST_F(LookOfATable, NumberStandsFirst) {
    fill(2);
    show();
    EXPECT_LT(place(1, number_column()).left(), place(1, 0).left());
    EXPECT_EQ(widget.model()->index(1, number_column()).data().toString(), "2");
    EXPECT_EQ(widget.model()->headerData(number_column(), Qt::Horizontal, Qt::DisplayRole).toString(), "N°");
}

TEST_F(LookOfATable, NumbersHaveRoomHoweverManyRowsThereAre) {
    fill(2);
    show();
    const int two = widget.columnWidth(number_column());
    fill(1200);
    EXPECT_GT(widget.columnWidth(number_column()), two);
}

TEST_F(LookOfATable, ColumnsAreAsWideAsTheStationWishesAndTheFirstTakesTheRest) {
    show();
    const int others = 60 + 104 + widget.columnWidth(number_column());
    EXPECT_EQ(widget.columnWidth(1), 60);
    EXPECT_EQ(widget.columnWidth(2), 104);
    EXPECT_EQ(widget.columnWidth(0) + others, widget.viewport()->width());
    widget.resize(900, 300);
    settle();
    EXPECT_EQ(widget.columnWidth(1), 60);
    EXPECT_EQ(widget.columnWidth(0) + others, widget.viewport()->width());
}

TEST_F(LookOfATable, RowsAndHeadHaveTheHeightOfTheirStep) {
    fill(3);
    show();
    for (const Step step : {Step::narrow, Step::compact, Step::large}) {
        widget.set_step(step);
        settle();
        EXPECT_EQ(widget.rowHeight(1), scaled(list_lengths_of(step).row));
        EXPECT_EQ(widget.horizontalHeader()->height(), scaled(list_lengths_of(step).head));
    }
    EXPECT_FALSE(widget.verticalHeader()->isVisible());
}

TEST_F(LookOfATable, ScrollsByWholeRows) {
    fill(500);
    show();
    table.ensure_visible(400);
    settle();
    EXPECT_EQ(widget.visualRect(widget.indexAt({5, 5})).top(), 0);
    EXPECT_EQ(widget.verticalScrollBar()->value(), widget.rowAt(5));
}

TEST_F(LookOfATable, ColoursOfTheStationAreTheRows) {
    wear(0x000000, 0x80FFFF);
    fill(1);
    show();
    EXPECT_EQ(ground(1), QColor(0xff, 0xff, 0x80));
    EXPECT_TRUE(is_near(ink_in(cell(1)), Qt::black, 40));
}

TEST_F(LookOfATable, MarkedRowKeepsTheToldInkWhereItReads) {
    wear(0x400000, 0xFFFFFF);
    show_states();
    for (const int row : {1, 2})
        EXPECT_TRUE(is_near(ink_in(cell(row)), QColor(0, 0, 0x40), 30)) << row;
    EXPECT_TRUE(is_near(ink_in(cell(3)), studio::on_missing_row, 40));
}

TEST_F(LookOfATable, SelectionOfAMarkedRowIsAnEdge) {
    wear_dark_colours();
    show_states();
    table.select(1);
    widget.setFocus();
    settle();
    EXPECT_EQ(ground(1), studio::air_fill);
    EXPECT_GT(count_of(cell(1), studio::focus), 100);
    EXPECT_LT(count_of(cell(4), studio::focus), few);
    table.select(4);
    settle();
    EXPECT_LT(count_of(cell(1), studio::focus), few);
    EXPECT_EQ(ground(4), studio::selection);
}

TEST_F(LookOfATable, EdgeOfTheSelectionIsBrightWhileTheRowsHaveTheKeyboard) {
    wear_first_colours();
    show_states();
    table.select(4);
    widget.setFocus();
    settle();
    EXPECT_GT(count_of(cell(4), studio::focus), 100);
    widget.clearFocus();
    settle();
    EXPECT_LT(count_of(cell(4), studio::focus), few);
    EXPECT_EQ(ground(4), studio::selected_row);
}

TEST_F(LookOfATable, ShowsTheKeyboardWhileNoRowIsSelected) {
    wear_dark_colours();
    fill(2);
    show();
    widget.clearFocus();
    settle();
    EXPECT_LT(count_of(seen(*widget.viewport()), studio::focus), few);
    widget.setFocus();
    settle();
    EXPECT_GT(count_of(seen(*widget.viewport()), studio::focus), 1000);
}

TEST_F(LookOfATable, RowUnderThePointerIsAnother) {
    wear_dark_colours();
    fill(3);
    show();
    const QColor rest = ground(2);
    const auto hover = [this](QEvent::Type type, const QPointF& at) {
        QHoverEvent event{type, at, at, at};
        QCoreApplication::sendEvent(widget.viewport(), &event);
        settle();
    };
    hover(QEvent::HoverMove, place(2).center());
    EXPECT_NE(ground(2), rest);
    EXPECT_EQ(ground(1), rest);
    hover(QEvent::HoverLeave, {-1, -1});
    EXPECT_EQ(ground(2), rest);
}

TEST_F(LookOfATable, LettersLookForNoRow) {
    fill(3);
    show();
    widget.setFocus();
    QTest::keyClicks(&widget, "dD");
    settle();
    EXPECT_EQ(table.selected(), 0);
}

} // namespace sonarelle
