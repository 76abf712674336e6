// What a screen reader learns of parts that the toolkit knows too little of, and what its presses do.
#include <QAccessible>
#include <QCheckBox>
#include <QDialog>
#include <QRadioButton>

#include "desktop/choice_bindings.h"
#include "desktop/desktop_fixture.h"
#include "desktop/text_bindings.h"
#include "desktop/title_label.h"
#include "desktop/toggle.h"
#include "desktop/window_view.h"

namespace sonarelle {

namespace {

class PartAccess : public DesktopFixture {
protected:
    [[nodiscard]] static QAccessibleInterface& told(QObject& part) {
        return *QAccessible::queryAccessibleInterface(&part);
    }
    [[nodiscard]] static std::string name(QObject& part) { return told(part).text(QAccessible::Name).toStdString(); }
    void press(QObject& part) {
        QAccessibleActionInterface& actions = *told(part).actionInterface();
        actions.doAction(actions.actionNames().front());
        settle();
    }
};

} // namespace

TEST_F(PartAccess, TextIsReadAsItStands) {
    StationLabel label;
    label.set_text("Jingle Off");
    EXPECT_EQ(told(label).role(), QAccessible::StaticText);
    EXPECT_EQ(name(label), "Jingle Off");
}

TEST_F(PartAccess, TextIsReadBehindWhatItIsOf) {
    StationLabel label;
    label.setAccessibleName("Temps restant");
    label.set_text("00:02:31");
    EXPECT_EQ(name(label), "Temps restant : 00:02:31");
}

TEST_F(PartAccess, TextOfTheViewStandsBeforeTheCaption) {
    Label label{window, "l", "chargé"};
    StationLabel widget;
    const LabelBinding binding{label, widget, services};
    settle();
    widget.set_text("Aube");
    EXPECT_EQ(name(widget), "Aube");
}

TEST_F(PartAccess, TurningTitleIsReadWhole) {
    TitleLabel title{{}};
    title.set_text("Matin sur le port - ");
    title.set_text("atin sur le port - M");
    EXPECT_EQ(name(title), "Matin sur le port");
}

TEST_F(PartAccess, TextThatCanBePressedIsAButton) {
    Label label{window, "l", "&Fichier"};
    int presses = 0;
    label.on_click = [&] { ++presses; };
    StationLabel widget{{.underlined = true}};
    LabelBinding binding{label, widget, services};
    binding.set_access("&Fichier");
    settle();
    EXPECT_EQ(told(widget).role(), QAccessible::Button);
    EXPECT_EQ(name(widget), "Fichier");
    press(widget);
    EXPECT_EQ(presses, 1);
}

TEST_F(PartAccess, PressOfAnOptionReachesTheStation) {
    OptionGroup group;
    OptionButton option{window, group, "o", "Lecture aléatoire"};
    QRadioButton widget;
    const OptionBinding binding{option, widget, services};
    settle();
    EXPECT_EQ(told(widget).role(), QAccessible::RadioButton);
    EXPECT_FALSE(told(widget).state().checked);
    press(widget);
    EXPECT_TRUE(option.value());
    EXPECT_TRUE(told(widget).state().checked);
    EXPECT_EQ(name(widget), "Lecture aléatoire");
}

TEST_F(PartAccess, PressOfACheckReachesTheStation) {
    CheckBox box{window, "c", "Préchargement"};
    QCheckBox widget;
    const CheckBoxBinding binding{box, widget, services};
    settle();
    press(widget);
    EXPECT_EQ(box.value(), 1);
    EXPECT_TRUE(told(widget).state().checked);
}

TEST_F(PartAccess, PressOfASwitchLeavesItsLookToTheStation) {
    Image image{window, "i"};
    int presses = 0;
    image.on_click = [&] { ++presses; };
    Toggle widget;
    const ToggleBinding binding{image, widget, services};
    settle();
    EXPECT_EQ(told(widget).role(), QAccessible::CheckBox);
    press(widget);
    EXPECT_EQ(presses, 1);
}

TEST_F(PartAccess, NothingIsPressedBehindABox) {
    OptionGroup group;
    OptionButton option{window, group, "o"};
    QRadioButton widget;
    const OptionBinding binding{option, widget, services};
    settle();
    QDialog box;
    box.setModal(true);
    box.show();
    press(widget);
    EXPECT_FALSE(option.value());
}

TEST_F(PartAccess, WindowIsAWindow) {
    WindowView view{window, services, {200, 100}};
    EXPECT_EQ(told(view).role(), QAccessible::Window);
}

} // namespace sonarelle
