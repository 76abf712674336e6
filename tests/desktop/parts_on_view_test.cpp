// What holds of the parts of every window, in whatever order they stand.
#include <QAbstractScrollArea>
#include <QAccessible>
#include <QGroupBox>
#include <QLayout>

#include "desktop/progress_strip.h"
#include "desktop/station_views.h"

namespace sonarelle {

namespace {

/// Whether another part shows what this one would.
bool is_unseen(const QWidget* part) {
    return dynamic_cast<const UnseenPart*>(part) != nullptr;
}

/// A window of the station that has room, with every part to be seen and reached.
class PartsOnView : public StationViews, public testing::WithParamInterface<std::size_t> {
protected:
    PartsOnView() {
        for (Control* control : window().controls()) {
            control->visible = control != &station.list_window.file_name; // which is never shown
            control->enabled = true;
        }
        window().show();
        settle();
        view().resize(1600, 1000);
        settle();
    }

    [[nodiscard]] Window& window() { return *station.windows().at(GetParam()); }
    [[nodiscard]] QWidget& view() { return *desktop->widget_of(window()); }
    /// The widget of every control, but for frames, in which others stand.
    [[nodiscard]] std::vector<QWidget*> parts() {
        std::vector<QWidget*> found;
        for (const Control* control : window().controls()) {
            auto* part = view().findChild<QWidget*>(QString::fromStdString(control->name()));
            const bool is_frame = qobject_cast<QGroupBox*>(part) != nullptr;
            if (control->kind() != ControlKind::menu_item && !is_frame && !is_unseen(part))
                found.push_back(part);
        }
        return found;
    }
    [[nodiscard]] QRect place_of(const QWidget& part) { return {part.mapTo(&view(), QPoint{}), part.size()}; }
};

/// Whether a layout or one inside it gives a widget its place.
bool places(const QLayout* layout, const QWidget* part) {
    if (layout == nullptr)
        return false;
    for (int at = 0; at < layout->count(); ++at)
        if (QLayoutItem& item = *layout->itemAt(at); item.widget() == part || places(item.layout(), part))
            return true;
    return false;
}

std::string name_of(const QWidget* part) {
    return part->objectName().toStdString();
}

} // namespace

TEST_P(PartsOnView, AreAllThere) {
    for (const QWidget* part : parts())
        EXPECT_TRUE(part != nullptr && part->parentWidget()->isVisible());
}

TEST_P(PartsOnView, HaveAPlaceOfTheirOwn) {
    for (const Control* control : window().controls()) {
        const bool is_part = control->kind() != ControlKind::menu_item && control->kind() != ControlKind::movie;
        const auto* part = view().findChild<QWidget*>(QString::fromStdString(control->name()));
        EXPECT_TRUE(!is_part || is_unseen(part) || places(part->parentWidget()->layout(), part)) << control->name();
    }
}

TEST_P(PartsOnView, StandApart) {
    const auto all = parts();
    for (auto one = all.begin(); one != all.end(); ++one)
        for (auto other = one + 1; other != all.end(); ++other)
            EXPECT_FALSE((*one)->isVisible() && (*other)->isVisible() && place_of(**one).intersects(place_of(**other)))
                << name_of(*one) << " " << name_of(*other);
}

TEST_P(PartsOnView, HaveTheRoomThatTheyNeed) {
    for (const QWidget* part : parts()) {
        const QSize least = part->minimumSizeHint().boundedTo(part->maximumSize());
        EXPECT_GE(part->width(), least.width()) << name_of(part);
        EXPECT_GE(part->height(), least.height()) << name_of(part);
    }
}

TEST_P(PartsOnView, ThatTheKeyboardReachesHaveAName) {
    const bool has_captions = &window() != &station.options_window;
    for (QWidget* part : parts())
        if (has_captions && part->isVisible() && part->focusPolicy() & Qt::TabFocus) {
            QAccessibleInterface* told = QAccessible::queryAccessibleInterface(part);
            ASSERT_NE(told, nullptr) << name_of(part);
            EXPECT_FALSE(told->text(QAccessible::Name).isEmpty()) << name_of(part);
        }
}

// Bars and rows tell of the place under the pointer.
TEST_P(PartsOnView, ThatAreWorkedHaveATip) {
    if (&window() == &station.options_window)
        return;
    for (const QWidget* part : view().findChildren<QWidget*>()) {
        const bool tells_itself = dynamic_cast<const ProgressStrip*>(part) != nullptr ||
                                  qobject_cast<const QAbstractScrollArea*>(part) != nullptr;
        const bool is_worked = part->isVisible() && part->focusPolicy() & Qt::TabFocus;
        EXPECT_TRUE(!is_worked || tells_itself || !part->toolTip().isEmpty()) << name_of(part);
    }
}

TEST_F(StationViews, PictureOfTheSplashFillsIt) {
    station.splash.show();
    settle();
    QWidget& splash = *desktop->widget_of(station.splash);
    const QWidget& picture = part(splash, station.splash.picture.name());
    EXPECT_GE(picture.width(), splash.width() - 10);
    EXPECT_GE(picture.height(), splash.height() - 10);
    EXPECT_TRUE(splash.windowFlags().testFlag(Qt::SplashScreen));
}

TEST_P(PartsOnView, ThatArePressedAreReachedByTheKeyboardToo) {
    for (const Control* control : window().controls())
        if (control->kind() == ControlKind::button || control->kind() == ControlKind::graphic_button) {
            const auto* part = view().findChild<QWidget*>(QString::fromStdString(control->name()));
            EXPECT_TRUE(part->focusPolicy() & Qt::TabFocus) << control->name();
            EXPECT_FALSE(part->focusPolicy() & Qt::ClickFocus) << control->name();
        }
}

INSTANTIATE_TEST_SUITE_P(Every, PartsOnView, testing::Range<std::size_t>(0, 10),
                         [](const auto& window) { return std::to_string(window.param); });

} // namespace sonarelle
