#include "desktop/range_bindings.h"

#include <QEvent>

#include "desktop/colours.h"
#include "desktop/qt_text.h"

namespace sonarelle {

SliderBinding::SliderBinding(Slider& slider, QSlider& widget, const DesktopServices& services)
    : Binding{slider, widget, services},
      slider_{slider},
      handle_{widget} {
    handle_.setSingleStep(1);
    handle_.setPageStep(5);
    connect(&handle_, &QSlider::valueChanged, this, [this](int value) { run([&] { slider_.set_value(value); }); });
}

void SliderBinding::show_state() {
    handle_.setRange(slider_.minimum, slider_.maximum);
    handle_.setValue(slider_.value());
}

ProgressBinding::ProgressBinding(ProgressBar& bar, ProgressStrip& widget, const DesktopServices& services)
    : Binding{bar, widget, services},
      bar_{bar},
      strip_{widget} {
    const auto place = [this](double share) { return static_cast<int>(share * bar_.units_wide); };
    if (bar_.on_click_at) {
        strip_.on_seek = [this, place](double share) {
            run([&] { bar_.click_at(place(share)); });
            this->services().updates.mark(*this); // the place of a deck that waits is no value of its bar
        };
        strip_.setFocusPolicy(Qt::TabFocus);
    }
    strip_.refusal = [this] { return bar_.refusal ? to_qt(bar_.refusal()) : QString{}; };
    strip_.on_move = [this, place](double share) {
        if (bar_.on_mouse_move_at)
            run([&] { bar_.move_over(place(share)); });
    };
}

void ProgressBinding::show_state() {
    const double span = bar_.maximum - bar_.minimum;
    strip_.set_share(span > 0 ? (bar_.value - bar_.minimum) / span : 0);
    strip_.set_text(plain_caption(bar_.caption));
}

// The fill is the air's green: a bar says how far the sound is.
void ProgressBinding::paint(QPalette&) const {}

} // namespace sonarelle
