#include "playlist/list_at_work.h"

#include "support/maintenance_fixture.h"

namespace sonarelle {

namespace {

class RowPlace : public MaintenanceFixture {
protected:
    /// Where the row that stood at `place` is found, when the list has become `now`.
    int found(std::vector<std::string> before, int place, const std::vector<std::string>& now) {
        for (std::string& path : before)
            path.insert(0, "C:\\");
        open_rows(before);
        const RowTable::Row wanted = rows().row(place);
        while (rows().count() > 0)
            rows().remove(1);
        for (const std::string& path : now)
            rows().append(row_of(record_of("C:\\" + path), DecimalMark::point));
        return station.list_maintenance.list.place_of(wanted, place);
    }
};

} // namespace

TEST_F(RowPlace, IsItsOldOneThoughALikeRowStandsInFront) {
    EXPECT_EQ(found({"a", "b", "b"}, 3, {"a", "b", "b"}), 3);
}

TEST_F(RowPlace, IsItsOldOneThoughALikeRowStandsBehind) {
    EXPECT_EQ(found({"a", "b", "b"}, 2, {"a", "b", "b"}), 2);
}

TEST_F(RowPlace, MovesForwardByTheRowsThatWentBeforeIt) {
    EXPECT_EQ(found({"a", "b", "c"}, 3, {"c", "d", "e"}), 1);
}

TEST_F(RowPlace, MovesBackByOneRowThatCameBeforeIt) {
    EXPECT_EQ(found({"a", "b"}, 2, {"a", "x", "b"}), 3);
}

TEST_F(RowPlace, IsFoundAtTheEndOfAListThatHasGrown) {
    EXPECT_EQ(found({"a"}, 1, {"x", "y", "z", "a"}), 4);
}

TEST_F(RowPlace, OfALastRowIsFoundInAShorterList) {
    EXPECT_EQ(found({"a", "b", "c", "d"}, 4, {"d"}), 1);
}

TEST_F(RowPlace, OfARowThatWentIsTheNextOnes) {
    EXPECT_EQ(found({"a", "b", "c"}, 2, {"a", "c"}), 2);
}

} // namespace sonarelle
