#include "desktop/remaining_parts.h"

#include <QBoxLayout>

#include "desktop/flow_layout.h"

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

bool is_button(const Control& control) {
    return control.kind() == ControlKind::button || control.kind() == ControlKind::graphic_button;
}

} // namespace

QWidget* form_of_parts(Dresser& dresser) {
    auto* form = new QWidget;
    auto* column = new QVBoxLayout{form};
    column->setContentsMargins(14, 12, 14, 12);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    for (Control* control : dresser.undressed()) {
        QWidget* widget = nullptr;
        if (control->kind() == ControlKind::label)
            widget = dresser.label(static_cast<Label&>(*control), {.bold = true, .wrapped = true, .characters = 40});
        else
            widget = dresser.usual(*control);
        if (widget == nullptr)
            continue;
        if (is_button(*control))
            buttons->addWidget(widget);
        else
            column->addWidget(widget);
    }
    column->addStretch(1);
    column->addLayout(buttons);
    return form;
}

} // namespace sonarelle
