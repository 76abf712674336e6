#include "platform/row_table.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/failure.h"
#include "platform/window.h"

namespace sonarelle {

namespace {

using testing::ElementsAre;

struct RowDiary : RowTableObserver {
    void rows_reset() override { lines.emplace_back("reset"); }
    void row_inserted(int row) override { lines.push_back("inserted " + std::to_string(row)); }
    void row_removed(int row) override { lines.push_back("removed " + std::to_string(row)); }
    void row_changed(int row) override { lines.push_back("changed " + std::to_string(row)); }
    void row_selected(int row) override { lines.push_back("selected " + std::to_string(row)); }
    void row_shown(int row) override { lines.push_back("shown " + std::to_string(row)); }
    std::vector<std::string> lines;
};

class Rows : public testing::Test {
protected:
    void fill(const std::vector<std::string>& texts) {
        for (const std::string& text : texts)
            table.append({text});
    }
    [[nodiscard]] std::vector<std::string> texts() const {
        std::vector<std::string> all;
        for (int row = 1; row <= table.count(); ++row)
            all.push_back(table.text(row));
        return all;
    }

    Window window{"Liste_son"};
    RowTable table{window, "ListView1", {{"Chemin", Twips{6700}}}};
};

TEST_F(Rows, InsertingMovesTheRowsBehindDown) {
    fill({"a", "c"});
    table.insert(2, {"b"});
    EXPECT_THAT(texts(), ElementsAre("a", "b", "c"));
}

TEST_F(Rows, InsertingBehindTheLastAddsAtTheEnd) {
    fill({"a"});
    table.insert(2, {"b"});
    EXPECT_THAT(texts(), ElementsAre("a", "b"));
}

TEST_F(Rows, ARowThatIsNotThereIsFailureNine) {
    fill({"a"});
    for (const auto& statement : std::vector<std::function<void()>>{
             [&] { (void)table.text(0); }, [&] { (void)table.text(2); }, [&] { table.remove(2); },
             [&] { table.insert(3, {"x"}); }, [&] { table.insert(0, {"x"}); }, [&] { table.select(0); },
             [&] { table.ensure_visible(2); }, [&] { table.set_sub_item(2, 1, "x"); }})
        try {
            statement();
            ADD_FAILURE() << "no failure";
        } catch (const Failure& failure) {
            EXPECT_EQ(failure.number, FailureNumber::not_in_selection);
        }
    EXPECT_THAT(texts(), ElementsAre("a"));
}

TEST_F(Rows, SubItemsAreNumberedFromOne) {
    fill({"a"});
    table.set_sub_item(1, 2, "200.00");
    EXPECT_EQ(table.sub_item(1, 2), "200.00");
    EXPECT_EQ(table.row(1)[0], "a");
}

TEST_F(Rows, TheSelectionStaysOnItsRow) {
    fill({"a", "b", "c"});
    table.select(2);
    table.insert(1, {"x"});
    EXPECT_EQ(table.text(table.selected()), "b");
    table.remove(1);
    EXPECT_EQ(table.text(table.selected()), "b");
    table.remove(3);
    EXPECT_EQ(table.text(table.selected()), "b");
}

TEST_F(Rows, TheSelectionStaysOnItsRowWhenOneComesInItsPlace) {
    fill({"a", "b", "c"});
    table.select(2);
    table.insert(2, {"x"});
    EXPECT_EQ(table.text(table.selected()), "b");
}

TEST_F(Rows, WhenTheSelectedRowGoesTheNextOneIsSelected) {
    fill({"a", "b", "c"});
    table.select(2);
    table.remove(2);
    EXPECT_EQ(table.text(table.selected()), "c");
}

TEST_F(Rows, WhenTheLastRowGoesTheOneBeforeIsSelected) {
    fill({"a", "b"});
    table.select(2);
    table.remove(2);
    EXPECT_EQ(table.selected(), 1);
    table.remove(1);
    EXPECT_EQ(table.selected(), 0);
}

TEST_F(Rows, AReplacedRowKeepsItsPlaceAndTheSelection) {
    fill({"a", "b", "c"});
    table.select(2);
    table.replace(2, {"B"});
    EXPECT_THAT(texts(), ElementsAre("a", "B", "c"));
    EXPECT_EQ(table.selected(), 2);
}

TEST_F(Rows, APressSelectsTheRowAndRaisesTheClick) {
    fill({"a", "b"});
    int selected = 0;
    table.on_click = [&] { selected = table.selected(); };
    table.click(2);
    EXPECT_EQ(selected, 2);
}

TEST_F(Rows, ALabelIsEditedWhereThatIsAutomatic) {
    fill({"a"});
    int edits = 0;
    table.on_label_edited = [&] { ++edits; };
    table.label_editing = LabelEditing::automatic;
    table.edit_label(1, "A");
    EXPECT_THAT(texts(), ElementsAre("A"));
    EXPECT_EQ(edits, 1);
}

TEST_F(Rows, ALabelIsNotEditedByHandOtherwise) {
    fill({"a"});
    table.edit_label(1, "A");
    EXPECT_THAT(texts(), ElementsAre("a"));
}

TEST_F(Rows, ClearingLeavesNoSelection) {
    fill({"a"});
    table.select(1);
    table.clear();
    EXPECT_EQ(table.count(), 0);
    EXPECT_EQ(table.selected(), 0);
}

TEST_F(Rows, SortingIgnoresCase) {
    fill({"b", "A", "É", "é", "a"});
    table.sort_by(0);
    EXPECT_THAT(texts(), ElementsAre("A", "a", "b", "É", "é"));
}

TEST_F(Rows, SortingDownwardsKeepsTheOrderOfEqualOnes) {
    fill({"a", "b", "A"});
    table.sort_by(0, SortOrder::descending);
    EXPECT_THAT(texts(), ElementsAre("b", "a", "A"));
}

TEST_F(Rows, SortingByAColumnMovesWholeRows) {
    fill({"a", "b"});
    table.set_sub_item(1, 3, "Rock");
    table.set_sub_item(2, 3, "Jazz");
    table.sort_by(3);
    EXPECT_THAT(texts(), ElementsAre("b", "a"));
}

TEST_F(Rows, SortingTakesTheSelectionAlong) {
    fill({"c", "a", "b"});
    table.select(1);
    table.sort_by(0);
    EXPECT_EQ(table.text(table.selected()), "c");
}

TEST_F(Rows, TheObserverIsToldOfEachChange) {
    RowDiary diary;
    table.observe_rows(&diary);
    table.append({"b"});
    table.insert(1, {"a"});
    table.set_text(2, "c");
    table.select(2);
    table.ensure_visible(1);
    table.remove(1);
    table.sort_by(0);
    table.clear();
    EXPECT_THAT(diary.lines, ElementsAre("inserted 1", "inserted 1", "changed 2", "selected 2", "shown 1", "removed 1",
                                         "reset", "reset"));
}

TEST_F(Rows, AnEqualTextIsNotTold) {
    fill({"a"});
    RowDiary diary;
    table.observe_rows(&diary);
    table.set_text(1, "a");
    EXPECT_TRUE(diary.lines.empty());
}

} // namespace

} // namespace sonarelle
