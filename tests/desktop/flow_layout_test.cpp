// Parts in lines, as many as the width needs.
#include "desktop/flow_layout.h"

#include "desktop/desktop_fixture.h"

namespace sonarelle {

namespace {

class FlowLines : public DesktopFixture {
protected:
    FlowLines() {
        for (QWidget* part : {&first, &second, &third}) {
            part->setFixedSize(100, 20);
            flow->addWidget(part);
        }
        page.resize(250, 100);
        page.show();
        settle();
    }

    QWidget page;
    FlowLayout* flow = new FlowLayout{&page};
    QWidget first{&page}, second{&page}, third{&page};
};

} // namespace

TEST_F(FlowLines, BeginAnewWhereThePartsDontFit) {
    EXPECT_EQ(first.pos(), QPoint(0, 0));
    EXPECT_EQ(second.y(), 0);
    EXPECT_GT(second.x(), 100);
    EXPECT_EQ(third.x(), 0);
    EXPECT_GT(third.y(), 20);
}

TEST_F(FlowLines, AreOneWhereAllFit) {
    page.resize(400, 100);
    settle();
    EXPECT_EQ(third.y(), 0);
    EXPECT_GT(third.x(), second.x() + 100);
}

TEST_F(FlowLines, HaveOnePartAtLeast) {
    page.resize(100, 100);
    settle();
    EXPECT_EQ(second.pos().x(), 0);
    EXPECT_EQ(third.y() - second.y(), second.y() - first.y());
}

TEST_F(FlowLines, AreAsHighAsTheirHighestParts) {
    EXPECT_EQ(flow->heightForWidth(400), 20);
    EXPECT_EQ(flow->heightForWidth(250), third.y() + 20);
    second.setFixedSize(100, 50);
    EXPECT_EQ(flow->heightForWidth(400), 50);
    EXPECT_EQ(flow->heightForWidth(250), 50 + third.y());
}

TEST_F(FlowLines, KeepNoRoomForAHiddenPart) {
    first.hide();
    settle();
    EXPECT_EQ(second.pos(), QPoint(0, 0));
    EXPECT_EQ(third.y(), 0);
}

TEST_F(FlowLines, AreAtLeastAsLargeAsTheLargestPart) {
    third.setFixedSize(130, 15);
    EXPECT_EQ(flow->minimumSize(), QSize(130, 20));
    third.hide();
    EXPECT_EQ(flow->minimumSize(), QSize(100, 20));
}

TEST_F(FlowLines, CloseUpWhereAPartIsTaken) {
    const std::unique_ptr<QLayoutItem> taken{flow->takeAt(0)};
    ASSERT_NE(taken, nullptr);
    EXPECT_EQ(taken->widget(), &first);
    EXPECT_EQ(flow->takeAt(2), nullptr);
    EXPECT_EQ(flow->count(), 2);
    flow->invalidate();
    flow->activate();
    EXPECT_EQ(second.pos(), QPoint(0, 0));
}

} // namespace sonarelle
