#include "desktop/stepped.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLineEdit>

#include "desktop/studio_style.h"
#include "desktop/text_size.h"

namespace sonarelle {

namespace {

// The toolkit's own know of no step.
void give_plain_step(QWidget& part, Step step) {
    const bool is_field = qobject_cast<QComboBox*>(&part) != nullptr || qobject_cast<QLineEdit*>(&part) != nullptr;
    const bool is_button =
        qobject_cast<QAbstractButton*>(&part) != nullptr && !part.property(lamp_stands_beside).toBool();
    if (!is_field && !is_button)
        return;
    QFont font = part.font();
    font.setPixelSize(scaled(pixels_of(Type::base, step)));
    part.setFont(font);
    if (is_field)
        part.setFixedHeight(scaled(lengths_of(step).control));
}

} // namespace

void give_step(QWidget& root, Step step) {
    QList<QWidget*> parts = root.findChildren<QWidget*>();
    parts.prepend(&root);
    for (QWidget* part : parts)
        if (auto* stepped = dynamic_cast<Stepped*>(part))
            stepped->set_step(step);
        else
            give_plain_step(*part, step);
}

} // namespace sonarelle
