// Where the keyboard's focus is can be seen on every kind of control.
#include <QCheckBox>
#include <QComboBox>
#include <QRadioButton>
#include <QSlider>

#include "desktop/colours.h"
#include "desktop/desktop_fixture.h"
#include "desktop/pixels.h"

namespace sonarelle {

namespace {

/// How a widget shows that the keyboard is with it.
class Focus : public DesktopFixture {
protected:
    /// Pixels in the colour of the focus, with the focus there.
    [[nodiscard]] int marked(QWidget& widget) {
        widget.setParent(&page);
        widget.setFocusPolicy(Qt::StrongFocus);
        widget.resize(160, 24);
        page.show();
        QApplication::setActiveWindow(&page);
        widget.setFocus(Qt::TabFocusReason);
        QCoreApplication::processEvents();
        const QImage seen = widget.grab().toImage();
        int count = 0;
        for (int y = 0; y < seen.height(); ++y)
            for (int x = 0; x < seen.width(); ++x)
                count += contrast(seen.pixelColor(x, y), studio::focus) < 1.1 ? 1 : 0;
        return count;
    }

    QWidget page;
};

} // namespace

TEST_F(Focus, IsFramedOnAnOption) {
    QRadioButton option{"Mixer une liste"};
    EXPECT_GT(marked(option), 100);
}

TEST_F(Focus, IsFramedOnACheckBox) {
    QCheckBox box{"Préchargement"};
    EXPECT_GT(marked(box), 100);
}

TEST_F(Focus, IsFramedOnASlider) {
    QSlider slider{Qt::Horizontal};
    EXPECT_GT(marked(slider), 100);
}

TEST_F(Focus, IsFramedOnAQuickLoadBox) {
    QComboBox box;
    EXPECT_GT(marked(box), 100);
}

TEST_F(Focus, LeavesTheControlItselfToBeSeen) {
    QComboBox box;
    box.addItem("Favoris");
    box.resize(160, 30);
    EXPECT_GE(contrast_in(seen(box)), readable);
    QSlider slider{Qt::Horizontal};
    slider.resize(160, 24);
    EXPECT_GE(contrast_in(seen(slider)), 1.5);
}

} // namespace sonarelle
