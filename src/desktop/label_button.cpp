#include "desktop/label_button.h"

#include "desktop/colours.h"
#include "desktop/qt_text.h"

namespace sonarelle {

LabelButtonBinding::LabelButtonBinding(Label& label, StudioButton& widget, const DesktopServices& services)
    : Binding{label, widget, services},
      label_{label},
      face_{widget} {
    connect(&face_, &QAbstractButton::clicked, this, [this] { run([this] { label_.click(); }); });
}

// The told ink is the label's, wherever it reads on a button.
void LabelButtonBinding::show_state() {
    const QColor told = to_qt(label_.fore_colour, studio::text);
    const auto ink_on = [&told](const QColor& ground) { return legible(told, ground); };
    face_.setText(caption());
    face_.set_marked(to_qt(label_.caption));
    face_.setShortcut(access_keys(label_.caption));
    face_.set_face({studio::control, ink_on(studio::control), studio::control_over, ink_on(studio::control_over),
                    studio::window, ink_on(studio::window)});
}

QString LabelButtonBinding::caption() const {
    return plain_caption(label_.caption);
}

} // namespace sonarelle
