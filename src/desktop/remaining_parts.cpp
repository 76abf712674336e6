#include "desktop/remaining_parts.h"

#include <QBoxLayout>

#include "desktop/flow_layout.h"
#include "desktop/panel.h"

namespace sonarelle {

QWidget* remaining_parts(Dresser& dresser) {
    const auto rest = dresser.undressed();
    if (rest.empty())
        return nullptr;
    auto* line = new QWidget;
    auto* flow = new FlowLayout{line};
    for (Control* control : rest)
        if (QWidget* widget = dresser.usual(*control))
            flow->addWidget(widget);
    return line;
}

namespace {

constexpr int side = 16; // pixels around the lines of a form

bool is_button(const Control& control) {
    return control.kind() == ControlKind::button || control.kind() == ControlKind::graphic_button;
}

// The one that return presses is told from the others.
QWidget* form_button(Dresser& dresser, Control& control, const Control* main_button) {
    StudioButton* button = dresser.button(static_cast<Button&>(control));
    if (&control == main_button)
        button->set_accent(Accent::primary);
    return button;
}

QWidget* form_line(Dresser& dresser, Control& control) {
    if (control.kind() == ControlKind::label)
        return dresser.label(static_cast<Label&>(control), {.wrapped = true, .characters = 40});
    return dresser.usual(control);
}

} // namespace

QWidget* form_of_parts(Dresser& dresser, const Control* main_button) {
    auto* form = new QWidget;
    auto* card = new Panel;
    auto* lines = new QVBoxLayout{card};
    lines->setContentsMargins(side, side, side, side);
    lines->setSpacing(studio::grid);
    auto* buttons = row_of({nullptr}, studio::grid);
    for (Control* control : dresser.undressed()) {
        if (is_button(*control))
            buttons->addWidget(form_button(dresser, *control, main_button));
        else if (QWidget* line = form_line(dresser, *control))
            lines->addWidget(line);
    }
    lines->addStretch(1);
    auto* column = new QVBoxLayout{form};
    column->setContentsMargins(studio::grid, studio::grid, studio::grid, studio::grid);
    column->setSpacing(studio::grid);
    column->addWidget(card, 1);
    column->addLayout(buttons);
    return form;
}

} // namespace sonarelle
