#pragma once

#include "desktop/binding.h"
#include "desktop/studio_button.h"
#include "platform/controls.h"

namespace sonarelle {

/// A label that can be pressed, drawn as a button; the letter that calls it is underlined.
class LabelButtonBinding : public Binding {
public:
    LabelButtonBinding(Label& label, StudioButton& widget, const DesktopServices& services);

protected:
    void show_state() override;
    [[nodiscard]] QString caption() const override;

private:
    Label& label_;
    StudioButton& face_;
};

} // namespace sonarelle
