// Where the list window stands beside the main one.
#include "playout/desk_fixture.h"

namespace sonarelle {

namespace {

class ListPlace : public DeskFixture {
protected:
    ListPlace() {
        start();
        window.left = Twips{90};
        window.top = Twips{90};
        window.height = Twips{7000};
        list.height = Twips{4000};
    }
    void show_list_at(int left, int top) {
        list.left = Twips{left};
        list.top = Twips{top};
        list.show();
        list.activate();
    }

    Liste_son& list = station.list_window;
};

} // namespace

TEST_F(ListPlace, StaysOnTheScreenWhenTheMainWindowGoesDown) {
    list.show();
    window.top = Twips{6000};
    EXPECT_EQ(list.top.get(), station.desk.platform.screen().height - Twips{4000});
}

TEST_F(ListPlace, GoesBelowTheMainWindowThatItWouldHide) {
    show_list_at(100, 100);
    EXPECT_EQ(list.left.get(), Twips{90});
    EXPECT_EQ(list.top.get(), Twips{7090});
}

TEST_F(ListPlace, StaysWhereItHidesNothing) {
    show_list_at(100, 1500);
    EXPECT_EQ(list.left.get(), Twips{100});
    EXPECT_EQ(list.top.get(), Twips{1500});
}

} // namespace sonarelle
