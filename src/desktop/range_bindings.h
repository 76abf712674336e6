#pragma once

#include <QSlider>

#include "desktop/binding.h"
#include "desktop/progress_strip.h"
#include "platform/controls.h"

namespace sonarelle {

class SliderBinding : public Binding {
public:
    SliderBinding(Slider& slider, QSlider& widget, const DesktopServices& services);

protected:
    void show_state() override;

private:
    Slider& slider_;
    QSlider& handle_;
};

class ProgressBinding : public Binding {
public:
    ProgressBinding(ProgressBar& bar, ProgressStrip& widget, const DesktopServices& services);

protected:
    void show_state() override;
    void paint(QPalette& palette) const override;

private:
    ProgressBar& bar_;
    ProgressStrip& strip_;
};

} // namespace sonarelle
