// What every control on the screen has in common with its part of the station.
#include "desktop/button_bindings.h"
#include "desktop/desktop_fixture.h"
#include "desktop/pixels.h"
#include "desktop/text_bindings.h"

namespace sonarelle {

namespace {

using AnyBinding = DesktopFixture;

class CountingShown : public Shown {
public:
    void show_value() override { ++shown; }
    int shown = 0;
};

TEST_F(AnyBinding, TwentyChangesBetweenTwoPaintsAreShownOnce) {
    CountingShown label;
    for (int i = 0; i < 20; ++i)
        updates.mark(label);
    settle();
    EXPECT_EQ(label.shown, 1);
}

TEST_F(AnyBinding, ChangeIsShownSoonAndByItself) {
    Label label{window, "l"};
    StationLabel widget;
    const LabelBinding binding{label, widget, services};
    settle();
    label.caption = "autre";
    EXPECT_NE(widget.text(), "autre");
    EXPECT_TRUE(becomes([&] { return widget.text() == "autre"; }));
}

TEST_F(AnyBinding, OutlivesItsWidget) {
    Label label{window, "l"};
    auto widget = std::make_unique<StationLabel>();
    const LabelBinding binding{label, *widget, services};
    widget.reset();
    label.caption = "autre";
    settle();
    EXPECT_EQ(binding.widget(), nullptr);
}

TEST_F(AnyBinding, HintThatGoesLeavesTheCaptionAsItsNameAndTip) {
    Button button{window, "b", "&Stopper"};
    StudioButton widget;
    const ButtonBinding binding{button, widget, services};
    button.hint = "Stopper lecteur 1";
    settle();
    EXPECT_EQ(widget.accessibleName(), "Stopper lecteur 1");
    button.hint = "";
    settle();
    EXPECT_EQ(widget.accessibleName(), "Stopper");
    EXPECT_EQ(widget.toolTip(), "Stopper");
}

TEST_F(AnyBinding, SpokenNameStandsBeforeTheHintWhichDescribes) {
    Button button{window, "b"};
    StudioButton widget;
    ButtonBinding binding{button, widget, services};
    binding.set_spoken_name("Pause, lecteur 2");
    button.hint = "Pause / Lecture";
    settle();
    EXPECT_EQ(widget.accessibleName(), "Pause, lecteur 2");
    EXPECT_EQ(widget.toolTip(), "Pause / Lecture");
}

TEST_F(AnyBinding, TellsEachTimeThatItWasShown) {
    Label label{window, "l"};
    StationLabel widget;
    LabelBinding binding{label, widget, services};
    int shown = 0;
    binding.on_shown = [&] { ++shown; };
    settle();
    label.caption = "autre";
    settle();
    EXPECT_EQ(shown, 2);
}

TEST_F(AnyBinding, NamesTheWidgetAfterTheControl) {
    Label label{window, "Étiquette"};
    StationLabel widget;
    const LabelBinding binding{label, widget, services};
    EXPECT_EQ(widget.objectName(), "Étiquette");
}

TEST_F(AnyBinding, HintIsToolTipAndAccessibleName) {
    Button button{window, "b"};
    StudioButton widget;
    const ButtonBinding binding{button, widget, services};
    button.hint = "Stopper";
    settle();
    EXPECT_EQ(widget.toolTip(), "Stopper");
    EXPECT_EQ(widget.accessibleName(), "Stopper");
}

TEST_F(AnyBinding, DisabledControlDisablesItsWidget) {
    Button button{window, "b"};
    StudioButton widget;
    const ButtonBinding binding{button, widget, services};
    button.enabled = false;
    settle();
    EXPECT_FALSE(widget.isEnabled());
}

TEST_F(AnyBinding, HiddenControlHidesItsWidget) {
    QWidget parent;
    Label label{window, "l"};
    StationLabel widget{&parent};
    const LabelBinding binding{label, widget, services};
    parent.show();
    label.visible = false;
    settle();
    EXPECT_FALSE(widget.isVisible());
}

TEST_F(AnyBinding, LetsGoOfItsControl) {
    Label label{window, "l"};
    {
        StationLabel widget;
        const LabelBinding binding{label, widget, services};
    }
    label.caption = "autre";
    settle();
    EXPECT_EQ(events, 0);
}

TEST_F(AnyBinding, PointerThatComesAndGoesIsTold) {
    Label label{window, "l"};
    int came = 0;
    int left = 0;
    label.on_mouse_move = [&] { ++came; };
    StationLabel widget;
    LabelBinding binding{label, widget, services};
    binding.on_left = [&] { ++left; };
    point_at(widget);
    EXPECT_EQ(came, 1);
    EXPECT_EQ(left, 0);
    leave(widget);
    EXPECT_EQ(came, 1);
    EXPECT_EQ(left, 1);
}

TEST_F(AnyBinding, PointerThatNobodyFollowsIsNoEvent) {
    Label label{window, "l"};
    int left = 0;
    StationLabel widget;
    LabelBinding binding{label, widget, services};
    binding.on_left = [&] { ++left; };
    point_at(widget);
    leave(widget);
    EXPECT_EQ(events, 0);
    EXPECT_EQ(left, 0);
}

} // namespace

} // namespace sonarelle
