#include "desktop/dresser.h"

#include "desktop/button_bindings.h"
#include "desktop/choice_bindings.h"
#include "desktop/label_button.h"
#include "desktop/range_bindings.h"
#include "desktop/segments.h"
#include "desktop/studio_style.h"
#include "desktop/text_bindings.h"
#include "desktop/title_label.h"

namespace sonarelle {

StationLabel* Dresser::label(Label& label, const StationLabel::Style& style) {
    auto* widget = new StationLabel{style, parent()};
    view_.keep(std::make_unique<LabelBinding>(label, *widget, services()));
    return widget;
}

TitleLabel* Dresser::title(Label& label, const StationLabel::Style& style) {
    auto* widget = new TitleLabel{style, parent()};
    view_.keep(std::make_unique<LabelBinding>(label, *widget, services()));
    return widget;
}

QLineEdit* Dresser::text_box(TextBox& box) {
    auto* widget = new QLineEdit{parent()};
    view_.keep(std::make_unique<TextBoxBinding>(box, *widget, services()));
    return widget;
}

QCheckBox* Dresser::check_box(CheckBox& box) {
    auto* widget = new QCheckBox{parent()};
    view_.keep(std::make_unique<CheckBoxBinding>(box, *widget, services()));
    return widget;
}

QRadioButton* Dresser::option(OptionButton& option) {
    auto* widget = new QRadioButton{parent()};
    view_.keep(std::make_unique<OptionBinding>(option, *widget, services()));
    return widget;
}

StudioButton* Dresser::label_button(Label& label) {
    auto* widget = new StudioButton{parent()};
    view_.keep(std::make_unique<LabelButtonBinding>(label, *widget, services()));
    return widget;
}

StudioButton* Dresser::button(Button& button, const QString& symbol) {
    auto* widget = new StudioButton{parent()};
    widget->set_words(symbol);
    view_.keep(std::make_unique<ButtonBinding>(button, *widget, services()));
    return widget;
}

StudioButton* Dresser::image(Image& image, const QString& symbol, Accent accent) {
    auto* widget = new StudioButton{parent()};
    widget->set_words(symbol);
    widget->set_accent(accent);
    view_.keep(std::make_unique<ImageBinding>(image, *widget, services()));
    return widget;
}

Segment* Dresser::mode(Image& lamp, OptionButton& chosen) {
    auto* light = new StudioButton{parent()};
    light->set_look(ButtonLook::lamp);
    light->setFocusPolicy(Qt::NoFocus); // the keyboard has the option
    view_.keep(std::make_unique<LampBinding>(lamp, *light, services()));
    auto* words = option(chosen);
    words->setProperty(lamp_stands_beside, true);
    // The light shows the choice, so a press of it leaves that chosen, whatever else the station makes of it.
    QObject::connect(light, &QAbstractButton::clicked, words, [words] {
        if (!words->isChecked())
            words->click();
    });
    auto* segment = new Segment{*light, *words};
    view_.binding_of(chosen)->on_shown = [light, words, segment] {
        segment->show_choice();
        light->setAccessibleName(words->text());
    };
    return segment;
}

QSlider* Dresser::slider(Slider& slider, Qt::Orientation orientation) {
    auto* widget = new QSlider{orientation, parent()};
    view_.keep(std::make_unique<SliderBinding>(slider, *widget, services()));
    return widget;
}

ProgressStrip* Dresser::progress(ProgressBar& bar) {
    auto* widget = new ProgressStrip{parent()};
    view_.keep(std::make_unique<ProgressBinding>(bar, *widget, services()));
    return widget;
}

QComboBox* Dresser::combo_box(ComboBox& box) {
    auto* widget = new QComboBox{parent()};
    widget->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    view_.keep(std::make_unique<ComboBoxBinding>(box, *widget, services()));
    return widget;
}

QListWidget* Dresser::list_box(ListBox& box) {
    auto* widget = new QListWidget{parent()};
    view_.keep(std::make_unique<ListBoxBinding>(box, *widget, services()));
    return widget;
}

QTextEdit* Dresser::rich_text(RichText& text) {
    auto* widget = new QTextEdit{parent()};
    view_.keep(std::make_unique<RichTextBinding>(text, *widget, services()));
    return widget;
}

QGroupBox* Dresser::frame(Frame& frame) {
    auto* widget = new QGroupBox{parent()};
    view_.keep(std::make_unique<FrameBinding>(frame, *widget, services()));
    return widget;
}

QLabel* Dresser::movie(Movie& movie) {
    auto* widget = new QLabel{parent()};
    widget->setAlignment(Qt::AlignCenter);
    view_.keep(std::make_unique<MovieBinding>(movie, *widget, services()));
    return widget;
}

RowTableView* Dresser::table(RowTable& table) {
    auto* widget = new RowTableView{parent()};
    view_.keep(std::make_unique<RowTableBinding>(table, *widget, services()));
    return widget;
}

void Dresser::unseen(Control& control) {
    auto* widget = new UnseenPart{parent()};
    view_.keep(std::make_unique<UnseenBinding>(control, *widget, services()));
}

QWidget* Dresser::usual(Control& control) {
    switch (control.kind()) {
    case ControlKind::label:
        return label(static_cast<Label&>(control));
    case ControlKind::text_box:
        return text_box(static_cast<TextBox&>(control));
    case ControlKind::check_box:
        return check_box(static_cast<CheckBox&>(control));
    case ControlKind::option_button:
        return option(static_cast<OptionButton&>(control));
    case ControlKind::button:
    case ControlKind::graphic_button:
        return button(static_cast<Button&>(control));
    case ControlKind::image:
        return image(static_cast<Image&>(control));
    case ControlKind::slider:
        return slider(static_cast<Slider&>(control), Qt::Horizontal);
    case ControlKind::progress_bar:
        return progress(static_cast<ProgressBar&>(control));
    case ControlKind::combo_box:
        return combo_box(static_cast<ComboBox&>(control));
    case ControlKind::list_box:
        return list_box(static_cast<ListBox&>(control));
    case ControlKind::row_table:
        return table(static_cast<RowTable&>(control));
    case ControlKind::rich_text:
        return rich_text(static_cast<RichText&>(control));
    case ControlKind::frame:
        return frame(static_cast<Frame&>(control));
    case ControlKind::movie:
        return movie(static_cast<Movie&>(control));
    case ControlKind::window:
    case ControlKind::menu_item:
    case ControlKind::sound_display:
        break;
    }
    return nullptr;
}

std::vector<Control*> Dresser::undressed() const {
    std::vector<Control*> rest;
    for (Control* control : view_.window_value().controls())
        if (control->kind() != ControlKind::menu_item && !view_.is_bound(*control))
            rest.push_back(control);
    return rest;
}

} // namespace sonarelle
