#include "desktop/window_ground.h"

#include <algorithm>

#include "desktop/colours.h"
#include "desktop/panel.h"
#include "desktop/picture_store.h"
#include "platform/controls.h"

namespace sonarelle {

namespace {

/// The ink of a window's texts: that of the first one that isn't a button, which the pointer would colour.
Colour ink_of(const Window& window) {
    const auto& controls = window.controls();
    const auto text = std::ranges::find_if(controls, [](const Control* control) {
        return control->kind() == ControlKind::label && !control->on_mouse_move;
    });
    return text == controls.end() ? desktop_text : (*text)->fore_colour.get();
}

QColor mean_of(const QPixmap& picture) {
    return picture.scaled(1, 1, Qt::IgnoreAspectRatio, Qt::SmoothTransformation).toImage().pixelColor(0, 0);
}

} // namespace

void WindowGround::show(const Window& window, PictureStore& pictures, QWidget& content) {
    const Colour ink = ink_of(window);
    colour_ = ground_for(ink, window.back_colour, studio::window);
    const QPixmap picture = pictures.picture(window.picture);
    if (picture.cacheKey() != picture_.cacheKey()) {
        picture_ = picture;
        mean_ = picture.isNull() ? QColor{} : mean_of(picture);
    }
    QPalette told = content.palette();
    told.setColor(QPalette::Window, picture_.isNull() ? colour_ : mean_);
    content.setPalette(told);
    const bool reads = contrast(to_qt(ink, studio::text), studio::card) >= readable;
    const QColor plate = reads ? studio::card : studio::tip;
    for (QWidget* part : content.findChildren<QWidget*>())
        if (auto* panel = dynamic_cast<Panel*>(part))
            panel->set_plate(plate);
}

} // namespace sonarelle
