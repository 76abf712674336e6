// The fields that hold a text: in the station's colours, and readable.
#include "desktop/choice_bindings.h"
#include "desktop/colours.h"
#include "desktop/desktop_fixture.h"
#include "desktop/text_bindings.h"

namespace sonarelle {

namespace {

constexpr QColor pale_yellow{0xff, 0xff, 0x80};

class FieldColours : public DesktopFixture {
protected:
    /// Whether the keyboard's window is another one or this.
    static constexpr std::array groups{QPalette::Active, QPalette::Inactive};

    void expect_told_colours(Control& control, const QWidget& widget) {
        control.fore_colour = 0x000000;
        control.back_colour = 0x80FFFF;
        settle();
        for (const auto group : groups) {
            const auto colour = [&](QPalette::ColorRole role) { return widget.palette().color(group, role); };
            EXPECT_EQ(colour(QPalette::Base), pale_yellow);
            EXPECT_EQ(colour(QPalette::Button), pale_yellow);
            EXPECT_EQ(colour(QPalette::Text), QColor(Qt::black));
            EXPECT_EQ(colour(QPalette::ButtonText), QColor(Qt::black));
        }
    }
};

} // namespace

TEST_F(FieldColours, AreTheStationsInATextBox) {
    TextBox box{window, "t"};
    QLineEdit widget;
    const TextBoxBinding binding{box, widget, services};
    expect_told_colours(box, widget);
}

TEST_F(FieldColours, AreTheStationsInAComboBox) {
    ComboBox box{window, "c", "Favoris"};
    QComboBox widget;
    const ComboBoxBinding binding{box, widget, services};
    expect_told_colours(box, widget);
    for (const auto group : groups)
        EXPECT_EQ(widget.palette().color(group, QPalette::PlaceholderText), QColor(Qt::black));
}

TEST_F(FieldColours, AreTheStationsInAListBox) {
    ListBox box{window, "l"};
    QListWidget widget;
    const ListBoxBinding binding{box, widget, services};
    expect_told_colours(box, widget);
}

TEST_F(FieldColours, AreTheStationsInARichText) {
    RichText text{window, "r"};
    QTextEdit widget;
    const RichTextBinding binding{text, widget, services};
    expect_told_colours(text, widget);
}

TEST_F(FieldColours, ReadWhateverTheStationTells) {
    TextBox box{window, "t"};
    QLineEdit widget;
    const TextBoxBinding binding{box, widget, services};
    for (const auto& [ink, ground] : {std::pair{0xFF0000, 0xFF0000}, {0xFFFFFF, 0xFFFFFF}, {0x808080, 0x8F8F8F}}) {
        box.fore_colour = ink;
        box.back_colour = ground;
        settle();
        const QPalette& shown = widget.palette();
        EXPECT_GE(contrast(shown.color(QPalette::Text), shown.color(QPalette::Base)), readable) << ink;
    }
}

TEST_F(FieldColours, StandBesideABoldTextThatIsNotSmall) {
    TextBox box{window, "t"};
    QLineEdit line;
    const TextBoxBinding of_box{box, line, services};
    ComboBox choice{window, "c"};
    QComboBox combo;
    const ComboBoxBinding of_choice{choice, combo, services};
    for (const QWidget* widget : std::initializer_list<QWidget*>{&line, &combo}) {
        EXPECT_TRUE(widget->font().bold());
        EXPECT_GE(QFontInfo{widget->font()}.pixelSize(), 14);
    }
}

} // namespace sonarelle
