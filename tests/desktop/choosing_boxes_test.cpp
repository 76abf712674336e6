// The boxes in which the operator chooses a colour or a font.
#include <QColorDialog>
#include <QFontDialog>
#include <QTimer>

#include "desktop/desktop_dialogs.h"
#include "desktop/desktop_fixture.h"

namespace sonarelle {

namespace {

class ChoosingBoxes : public DesktopFixture {
protected:
    /// The operator's hand in the box that comes next.
    template <typename Box>
    void in_next_box(std::function<void(Box&)> act) {
        QTimer::singleShot(0, [this, act = std::move(act)] {
            auto* box = qobject_cast<Box*>(QApplication::activeModalWidget());
            came = box != nullptr;
            if (came)
                act(*box);
        });
    }

    DesktopDialogs dialogs{{}, [](Window&) { return nullptr; }};
    bool came = false;
};

} // namespace

TEST_F(ChoosingBoxes, FontBeginsWithTheOneInUse) {
    QFont first;
    in_next_box<QFontDialog>([&](QFontDialog& box) {
        first = box.currentFont();
        box.reject();
    });
    static_cast<void>(dialogs.choose_font({"DejaVu Sans", 17, true, true}));
    ASSERT_TRUE(came);
    EXPECT_EQ(first.family(), "DejaVu Sans");
    EXPECT_EQ(first.pointSizeF(), 17);
    EXPECT_TRUE(first.bold());
    EXPECT_TRUE(first.italic());
}

TEST_F(ChoosingBoxes, ChosenFontIsGivenWhole) {
    in_next_box<QFontDialog>([](QFontDialog& box) {
        QFont font{"DejaVu Sans", 17};
        font.setBold(true);
        font.setItalic(true);
        box.setCurrentFont(font);
        box.accept();
    });
    const auto chosen = dialogs.choose_font({"DejaVu Sans", 9, false, false});
    ASSERT_TRUE(chosen.has_value());
    EXPECT_EQ(chosen->family, "DejaVu Sans");
    EXPECT_EQ(chosen->points, 17);
    EXPECT_TRUE(chosen->bold);
    EXPECT_TRUE(chosen->italic);
}

TEST_F(ChoosingBoxes, NoFontIsChosenByCancel) {
    in_next_box<QFontDialog>([](QFontDialog& box) { box.reject(); });
    EXPECT_FALSE(dialogs.choose_font({"DejaVu Sans", 9, false, false}).has_value());
    EXPECT_TRUE(came);
}

TEST_F(ChoosingBoxes, ColourBeginsWithTheOneInUse) {
    QColor first;
    in_next_box<QColorDialog>([&](QColorDialog& box) {
        first = box.currentColor();
        box.reject();
    });
    EXPECT_FALSE(dialogs.choose_colour(0x102030).has_value());
    ASSERT_TRUE(came);
    EXPECT_EQ(first, QColor(0x30, 0x20, 0x10));
}

TEST_F(ChoosingBoxes, ChosenColourHasItsRedInTheLowestByte) {
    in_next_box<QColorDialog>([](QColorDialog& box) {
        box.setCurrentColor(QColor{0x30, 0x20, 0x10});
        box.accept();
    });
    EXPECT_EQ(dialogs.choose_colour(0), 0x102030);
}

} // namespace sonarelle
