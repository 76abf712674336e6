#include "platform/controls.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <vector>

namespace sonarelle {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct CountingObserver : ControlObserver {
    void control_changed(Control& control) override { changed.push_back(control.name()); }
    std::vector<std::string> changed;
};

class Controls : public testing::Test {
protected:
    Window window{"feuille"};
    int events = 0;
    std::function<void()> count = [this] { ++events; };
};

using Property = Controls;
using CheckBoxes = Controls;
using Options = Controls;
using Sliders = Controls;
using Texts = Controls;
using Buttons = Controls;
using Bars = Controls;
using Choices = Controls;
using Windows = Controls;

TEST_F(Property, AnotherValueIsToldToTheObserver) {
    Label label{window, "Label5", "0"};
    CountingObserver observer;
    label.observe(&observer);
    label.caption = "1";
    EXPECT_THAT(observer.changed, ElementsAre("Label5"));
    EXPECT_EQ(label.caption.get(), "1");
}

TEST_F(Property, AnEqualValueIsNot) {
    Label label{window, "Label5", "0"};
    CountingObserver observer;
    label.observe(&observer);
    label.caption = "0";
    label.visible = true;
    EXPECT_THAT(observer.changed, IsEmpty());
}

TEST_F(Property, TheObserverSeesTheNewValue) {
    struct Reader : ControlObserver {
        void control_changed(Control& control) override { seen = static_cast<Label&>(control).caption; }
        std::string seen;
    } reader;
    Label label{window, "Label5", "0"};
    label.observe(&reader);
    label.caption = "1";
    EXPECT_EQ(reader.seen, "1");
}

TEST_F(Property, WithoutAnObserverNobodyIsTold) {
    Label label{window, "Label5"};
    CountingObserver observer;
    label.observe(&observer);
    label.observe(nullptr);
    label.caption = "1";
    EXPECT_THAT(observer.changed, IsEmpty());
}

TEST_F(CheckBoxes, AnotherValueRaisesTheClick) {
    CheckBox box{window, "coche"};
    box.on_click = count;
    box.set_value(1);
    EXPECT_EQ(events, 1);
}

TEST_F(CheckBoxes, AnEqualValueRaisesNothing) {
    CheckBox box{window, "coche"};
    box.on_click = count;
    box.set_value(0);
    EXPECT_EQ(events, 0);
}

TEST_F(CheckBoxes, AClickTurnsItRound) {
    CheckBox box{window, "coche"};
    box.click();
    EXPECT_EQ(box.value(), 1);
    box.click();
    EXPECT_EQ(box.value(), 0);
}

TEST_F(CheckBoxes, OutOfReachItIgnoresTheHandAndObeysTheCode) {
    CheckBox box{window, "coche"};
    box.on_click = count;
    box.enabled = false;
    box.click();
    EXPECT_EQ(box.value(), 0);
    box.set_value(1);
    EXPECT_EQ(events, 1);
}

TEST_F(Options, ChoosingOneClearsTheOthers) {
    OptionGroup group;
    OptionButton one{window, group, "Option1"};
    OptionButton two{window, group, "Option2"};
    one.set_value(true);
    two.set_value(true);
    EXPECT_FALSE(one.value());
    EXPECT_TRUE(two.value());
}

TEST_F(Options, GroupsDoNotDisturbOneAnother) {
    OptionGroup first;
    OptionGroup second;
    OptionButton one{window, first, "Option1"};
    OptionButton other{window, second, "Option4"};
    one.set_value(true);
    other.set_value(true);
    EXPECT_TRUE(one.value());
}

TEST_F(Options, OnlyTheChosenOneRaisesItsClick) {
    OptionGroup group;
    OptionButton one{window, group, "Option1"};
    OptionButton two{window, group, "Option2"};
    one.set_value(true);
    one.on_click = count;
    two.set_value(true);
    EXPECT_EQ(events, 0);
    two.on_click = count;
    one.set_value(true);
    EXPECT_EQ(events, 1);
}

TEST_F(Options, ChoosingTheChosenOneRaisesNothing) {
    OptionGroup group;
    OptionButton one{window, group, "Option1"};
    one.set_value(true);
    one.on_click = count;
    one.set_value(true);
    one.click();
    EXPECT_EQ(events, 0);
}

TEST_F(Options, ShownItRaisesNothingAndClearsTheOthers) {
    OptionGroup group;
    OptionButton one{window, group, "Option1"};
    OptionButton two{window, group, "Option2"};
    one.set_value(true);
    two.on_click = count;
    two.show_value(true);
    EXPECT_EQ(events, 0);
    EXPECT_TRUE(two.value());
    EXPECT_FALSE(one.value());
}

TEST_F(Options, ShownItIsNotInForceAndAClickRaisesItsClick) {
    OptionGroup group;
    OptionButton option{window, group, "option"};
    int clicks = 0;
    option.on_click = [&clicks] { ++clicks; };
    option.show_value(true);
    option.click();
    EXPECT_EQ(clicks, 1);
    option.click();
    EXPECT_EQ(clicks, 1);
}

TEST_F(Options, OneThatIsGoneLeavesItsGroup) {
    OptionGroup group;
    OptionButton one{window, group, "Option1"};
    { const OptionButton gone{window, group, "Option2"}; }
    one.set_value(true);
    EXPECT_TRUE(one.value());
}

TEST_F(Sliders, AnotherValueRaisesTheChange) {
    Slider slider{window, "Slider", 0, 20};
    slider.on_change = count;
    slider.set_value(4);
    EXPECT_EQ(events, 1);
    EXPECT_EQ(slider.value(), 4);
}

TEST_F(Sliders, AnEqualValueRaisesNothing) {
    Slider slider{window, "Slider", 0, 20};
    slider.set_value(4);
    slider.on_change = count;
    slider.set_value(4);
    EXPECT_EQ(events, 0);
}

TEST_F(Sliders, AValueOutsideIsRefused) {
    Slider slider{window, "Slider", 0, 20};
    slider.set_value(20);
    slider.on_change = count;
    slider.set_value(21);
    slider.set_value(-1);
    EXPECT_EQ(slider.value(), 20);
    EXPECT_EQ(events, 0);
}

TEST_F(Sliders, ShownAValueRaisesNothing) {
    Slider slider{window, "Slider", 0, 20};
    CountingObserver observer;
    slider.observe(&observer);
    slider.on_change = count;
    EXPECT_TRUE(slider.show_value(7));
    EXPECT_EQ(slider.value(), 7);
    EXPECT_EQ(events, 0);
    EXPECT_THAT(observer.changed, ElementsAre("Slider"));
}

TEST_F(Texts, AnotherTextRaisesTheChange) {
    TextBox box{window, "Text2", "a"};
    box.on_change = count;
    box.set_text("b");
    EXPECT_EQ(events, 1);
    EXPECT_EQ(box.text(), "b");
}

TEST_F(Texts, AnEqualTextRaisesNothing) {
    TextBox box{window, "Text2", "a"};
    box.on_change = count;
    box.set_text("a");
    EXPECT_EQ(events, 0);
}

TEST_F(Buttons, AClickIsRaised) {
    Button button{window, "Command3"};
    button.on_click = count;
    button.click();
    EXPECT_EQ(events, 1);
}

TEST_F(Buttons, OutOfReachTheyIgnoreTheHand) {
    Button button{window, "Command3"};
    Label label{window, "Label1"};
    Image image{window, "Image1"};
    MenuItem item{window, "A_liste"};
    button.on_click = label.on_click = image.on_click = item.on_click = count;
    button.enabled = false;
    label.visible = false;
    image.enabled = false;
    item.visible = false;
    button.click();
    label.click();
    image.click();
    item.click();
    EXPECT_EQ(events, 0);
}

TEST_F(Buttons, AClickWithoutAHandlerDoesNothing) {
    Button button{window, "Command3"};
    EXPECT_NO_THROW(button.click());
}

TEST_F(Bars, ReadAHundredOnlyAtTheMaximum) {
    ProgressBar bar{window, "picProgBack"};
    bar.maximum = 20'000;
    bar.value = 19'999;
    EXPECT_EQ(bar.percent(), 99);
    bar.value = 20'000;
    EXPECT_EQ(bar.percent(), 100);
    bar.value = 20'001;
    EXPECT_EQ(bar.percent(), 100);
}

TEST_F(Bars, ReadNothingBelowTheMinimum) {
    ProgressBar bar{window, "picProgBack"};
    bar.minimum = 1;
    bar.maximum = 200;
    EXPECT_EQ(bar.percent(), 0);
}

TEST_F(Bars, WithEqualEndsReadNothingUntilTheyAreReached) {
    ProgressBar bar{window, "picProgBack"};
    bar.minimum = 1;
    bar.maximum = 1;
    EXPECT_EQ(bar.percent(), 0);
    bar.value = 1;
    EXPECT_EQ(bar.percent(), 100);
}

TEST_F(Choices, TypingRaisesTheChangeAndChoosingTheClick) {
    ComboBox box{window, "Combo1"};
    int changes = 0;
    box.on_change = [&] { ++changes; };
    box.on_click = count;
    box.items = std::vector<std::string>{"Rock", "Jazz"};
    box.set_text("Blues");
    box.choose(1);
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(events, 1);
    EXPECT_EQ(box.text(), "Jazz");
    EXPECT_EQ(box.selected.get(), 1);
}

TEST_F(Choices, AnEntryThatIsNotThereIsNotChosen) {
    ComboBox box{window, "Combo1"};
    box.items = std::vector<std::string>{"Rock"};
    box.on_click = count;
    box.choose(1);
    box.choose(-1);
    EXPECT_EQ(events, 0);
    EXPECT_EQ(box.selected.get(), -1);
}

TEST_F(Choices, OutOfReachTheyKeepTheirEntry) {
    ComboBox box{window, "Combo1"};
    ListBox list{window, "List1"};
    for (auto* items : {&box.items, &list.items})
        *items = std::vector<std::string>{"Rock", "Jazz"};
    box.on_click = count;
    list.on_click = count;
    box.enabled = false;
    list.visible = false;
    box.choose(1);
    list.choose(1);
    EXPECT_EQ(events, 0);
    EXPECT_EQ(box.text(), "");
    EXPECT_EQ(box.selected.get(), -1);
    EXPECT_EQ(list.selected.get(), -1);
}

TEST_F(Windows, TellWhereTheirProgressBarIsPressed) {
    ProgressBar bar{window, "ProgressBar1"};
    std::vector<int> places;
    bar.on_mouse_move_at = [&](int x) { places.push_back(x); };
    bar.on_click_at = [&](int x) { places.push_back(-x); };
    bar.move_over(12);
    bar.click_at(30);
    bar.enabled = false;
    bar.click_at(31);
    EXPECT_THAT(places, ElementsAre(12, -30));
}

TEST_F(Windows, KnowTheirPartsInTheOrderOfMaking) {
    const Label label{window, "Label5"};
    const Button button{window, "Command3"};
    EXPECT_THAT(window.controls(), ElementsAre(&label, &button));
}

TEST_F(Windows, ForgetAPartThatIsGone) {
    { const Label gone{window, "Label5"}; }
    EXPECT_THAT(window.controls(), IsEmpty());
}

TEST_F(Windows, TellThatTheyMoved) {
    int moves = 0;
    window.on_move = [&] { ++moves; };
    window.left = Twips{600};
    window.top = Twips{300};
    window.top = Twips{300};
    EXPECT_EQ(moves, 2);
}

TEST_F(Windows, AreHiddenAtFirst) {
    EXPECT_FALSE(window.visible);
    window.show();
    EXPECT_TRUE(window.visible);
}

TEST_F(Windows, PassKeysWhenTheyPreviewThem) {
    std::vector<char32_t> keys;
    window.on_key_press = [&](char32_t key) { keys.push_back(key); };
    window.key_press(U'²');
    window.key_preview = false;
    window.key_press(U'e');
    EXPECT_THAT(keys, ElementsAre(U'²'));
}

TEST_F(Windows, PassTheMenuThatTheyPopUp) {
    MenuItem menu{window, "Load_Pl"};
    MenuItem* shown = nullptr;
    window.on_popup = [&](MenuItem& item, const Control*) { shown = &item; };
    window.popup(menu);
    EXPECT_EQ(shown, &menu);
}

} // namespace

} // namespace sonarelle
